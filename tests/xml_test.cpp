// The XML writer and its layout, the DOM reader and the deserializer.
#include "consoleiodata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "registerdata.h"
#include "serializerhelperDOM.h"
#include "stackframedata.h"
#include "testsupport.h"
#include "testsupport_xml.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <sstream>

using namespace Vemo::DbgData;
using namespace Vemo::DbgData::TestSupport;
using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

std::unique_ptr<CurDbgPrompt> prompt(const std::string& subKey,
                                     const std::string& text) {
  auto object = make<CurDbgPrompt>("CurDbgPrompt", subKey);
  object->setPromptText(text);
  return object;
}

// The engine data object that the self-check attaches.
const DebuggerData* engineData() {
  auto item = make<RegisterItem>("RegisterItem", "Internal");
  item->setName("Internal");
  item->setType(2);
  item->setFlags(1);
  return item.release();
}

template <class T> const T* adopt(std::unique_ptr<T> object) {
  return object.release();
}

DOMElement* rootOf(SerializerHelperDOM& writer) {
  return writer.getDocument()->getDocumentElement();
}

// ---------------------------------------------------------------------------
// Writer and layout

TEST(XmlWriter, LayoutOfLeafListsEngineDataAndSiblings) {
  EXPECT_EQ(xmlOutline(*prompt("s", "p")),
            "UserContentContainer\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=s\n"
            "    attributes\n"
            "    values PromptText=p\n");

  DataListWC list;
  list.setClassName("DataListWC");
  list.setSubKey("s");
  list.appendChild(adopt(prompt("c1", "one")));
  list.appendChild(adopt(prompt("c2", "two")));
  list.setSpecialItem(std::string("c1"));
  list.setContent(
      adopt(make<StackFrameListContent>("StackFrameListContent", "head")));
  EXPECT_EQ(xmlOutline(list),
            "UserContentContainer\n"
            "  DataListWC ClassName=DataListWC SubKey=s\n"
            "    values SpecialItemSubKey=c1\n"
            "    List\n"
            "      Child\n"
            "        DataElement ClassName=CurDbgPrompt SubKey=c1\n"
            "          attributes\n"
            "          values PromptText=one\n"
            "      Child\n"
            "        DataElement ClassName=CurDbgPrompt SubKey=c2\n"
            "          attributes\n"
            "          values PromptText=two\n"
            "    Content\n"
            "      DataElement ClassName=StackFrameListContent SubKey=head\n"
            "        attributes\n"
            "        values\n");

  // No special item: no "values" element; no children: an empty "List".
  DataList empty;
  empty.setClassName("DataList");
  empty.setSubKey("e");
  EXPECT_EQ(xmlOutline(empty), "UserContentContainer\n"
                               "  DataList ClassName=DataList SubKey=e\n"
                               "    List\n");

  auto withEngine = prompt("s", "p");
  withEngine->setEngineData(engineData());
  EXPECT_EQ(xmlOutline(*withEngine),
            "UserContentContainer\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=s\n"
            "    attributes\n"
            "    values PromptText=p\n"
            "    EngineData\n"
            "      DataElement ClassName=RegisterItem SubKey=Internal\n"
            "        attributes\n"
            "        values Description= Expression= Flags=1 Name=Internal "
            "Type=2 Value=\n");

  SerializerHelperDOM writer;
  EXPECT_TRUE(prompt("a", "1")->serialize(&writer));
  EXPECT_TRUE(prompt("b", "2")->serialize(&writer));
  EXPECT_EQ(writer.getFocusNode(), rootOf(writer));
  EXPECT_EQ(outlineOf(rootOf(writer)),
            "UserContentContainer\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=a\n"
            "    attributes\n"
            "    values PromptText=1\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=b\n"
            "    attributes\n"
            "    values PromptText=2\n");
}

TEST(XmlWriter, ValueTextsAndTheirPlacement) {
  const Address address(0, 0x401000, 0, 1, 32);
  const Scope scope(address, DbgDataKey("Root/Console"), 3, 4);
  const DbgDataKey key("Root/a\\/b");
  std::string addressText, scopeText;
  address.serialize(addressText);
  scope.serialize(scopeText);

  SerializerHelperDOM writer;
  ASSERT_TRUE(writer.pushSection("DataElement"));
  EXPECT_TRUE(writer.setClassNameAndSubKey("Any", "k"));
  EXPECT_TRUE(writer.setBool("T", true));
  EXPECT_TRUE(writer.setBool("F", false));
  EXPECT_TRUE(writer.setInt("I", INT_MIN));
  EXPECT_TRUE(writer.setInt("U", UINT_MAX));
  EXPECT_TRUE(writer.setInt("L", -7L));
  EXPECT_TRUE(writer.setInt("UL", ULONG_MAX));
  EXPECT_TRUE(writer.setInt("LL", LLONG_MIN));
  EXPECT_TRUE(writer.setInt("ULL", 0ULL));
  EXPECT_TRUE(writer.setFloat("D", -0.25));
  EXPECT_TRUE(writer.setString("S", "a&b <c>"));
  EXPECT_TRUE(writer.setAddress("A", address));
  EXPECT_TRUE(writer.setScope("SC", scope));
  EXPECT_TRUE(writer.setDbgDataKey("K", key));
  EXPECT_TRUE(writer.setString("S", "last wins"));
  // A plain section has no "values" child: values go on the section itself.
  ASSERT_TRUE(writer.pushSection("Plain"));
  EXPECT_TRUE(writer.setFloat("D", 1e20));
  writer.popSection();
  writer.popSection();
  EXPECT_EQ(outlineOf(rootOf(writer)),
            "UserContentContainer\n"
            "  DataElement ClassName=Any SubKey=k\n"
            "    attributes\n"
            "    values A=" +
                addressText +
                " D=-0.250000 F=false "
                "I=-2147483648 K=" +
                key.toString() +
                " L=-7 "
                "LL=-9223372036854775808 S=last wins SC=" +
                scopeText +
                " T=true U=4294967295 UL=18446744073709551615 ULL=0\n"
                "    Plain D=100000000000000000000.000000\n");
}

TEST(XmlWriter, RefusesWhatTheDomRefusesAndSurvivesBadBalance) {
  SerializerHelperDOM writer;
  DOMNode* root = rootOf(writer);
  EXPECT_FALSE(writer.pushSection("not a name"));
  EXPECT_FALSE(writer.pushSection(""));
  EXPECT_EQ(writer.getFocusNode(), root);
  EXPECT_FALSE(writer.setString("bad key", "v"));
  EXPECT_EQ(writer.findSubNode("x"), nullptr);

  // A text node as the current node takes neither values nor sections.
  ASSERT_TRUE(writer.pushSection("Holder"));
  DOMNode* text = writer.getDocument()->createTextNode(A2X("t").get());
  writer.getFocusNode()->appendChild(text);
  ASSERT_TRUE(writer.setFocusToChild(text));
  EXPECT_FALSE(writer.setInt("N", 1));
  EXPECT_FALSE(writer.pushSection("Inner"));
  EXPECT_FALSE(writer.setFocusToChild(nullptr));
  writer.popSection();
  EXPECT_EQ(writer.findSubNode("#text"), text);
  writer.popSection();

  // Popping past the root: answers false from then on, never crashes.
  EXPECT_TRUE(writer.popSection());
  EXPECT_FALSE(writer.popSection());
  EXPECT_EQ(writer.getFocusNode(), nullptr);
  EXPECT_FALSE(writer.pushSection("DataElement"));
  EXPECT_FALSE(writer.setString("S", "v"));

  writer.resetDOM();
  EXPECT_NE(rootOf(writer), nullptr);
  EXPECT_EQ(writer.getFocusNode(), rootOf(writer));
  EXPECT_EQ(outlineOf(rootOf(writer)), "UserContentContainer\n");
  writer.cleanupDOM();
  EXPECT_EQ(writer.getDocument(), nullptr);
  EXPECT_FALSE(writer.pushSection("DataElement"));
}

TEST(XmlWriter, FindSubNodeBySubKey) {
  SerializerHelperDOM writer;
  for (const char* subKey : {"a", "b", "b"}) {
    writer.pushSection("Child");
    writer.setClassNameAndSubKey("C", subKey);
    writer.popSection();
  }
  DOMNode* first = writer.findSubNode("Child");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(writer.findSubNode("Child", "a"), first);
  EXPECT_EQ(writer.findSubNode("Child", "b"), first->getNextSibling());
  EXPECT_EQ(writer.findSubNode("Child", "c"), nullptr);
  EXPECT_EQ(writer.findSubNode("Other", "a"), nullptr);
}

// ---------------------------------------------------------------------------
// Reader

// A "DataElement" section holding the given texts as values, and a "Bare"
// section without a "values" child.
class XmlReader : public ::testing::Test {
protected:
  void SetUp() override {
    writer.pushSection("DataElement");
    writer.setClassNameAndSubKey("CurDbgPrompt", "k");
    for (const auto& value : texts)
      writer.setString(value.first, value.second);
    writer.setAddress("A", address);
    writer.setScope("SC", scope);
    writer.setDbgDataKey("K", key);
    writer.popSection();
    writer.pushSection("Bare");
    writer.popSection();
    reader.initDOM(rootOf(writer));
  }

  const std::vector<std::pair<std::string, std::string>> texts = {
      {"Dec", "42"},
      {"Hexish", "0x10"},
      {"Spaced", " 7"},
      {"Junk", "abc"},
      {"Tail", "12abc"},
      {"Neg", "-5"},
      {"Plus", "+8"},
      {"Big", "99999999999"},
      {"IntMin", "-2147483648"},
      {"ULLMax", "18446744073709551615"},
      {"LLOver", "9223372036854775808"},
      {"True", "true"},
      {"Upper", "TRUE"},
      {"Float", "2.5"}};
  const Address address{0, 0x401000, 0, 1, 32};
  const Scope scope{address, DbgDataKey("Root/Console"), 3, 4};
  const DbgDataKey key{"Root/Console"};
  SerializerHelperDOM writer;
  DeserializerHelperDOM reader;
};

template <class Int> struct IntCase {
  const char* key;
  Int expected; // the initial value 3 stands for "unchanged"
};

template <class Int>
void expectInts(const DeserializerHelperDOM& reader,
                std::initializer_list<IntCase<Int>> cases) {
  for (const IntCase<Int>& c : cases) {
    Int value = 3;
    EXPECT_TRUE(reader.getInt(c.key, &value)) << c.key;
    EXPECT_EQ(value, c.expected) << c.key;
  }
}

TEST_F(XmlReader, ConvertsValueTexts) {
  ASSERT_TRUE(reader.pushSection("DataElement"));
  std::string className, subKey;
  EXPECT_TRUE(reader.getNameAndSubKey(&className, &subKey));
  EXPECT_EQ(className, "CurDbgPrompt");
  EXPECT_EQ(subKey, "k");

  // Decimal only; text that does not parse, overflows or is missing
  // leaves the target unchanged but still counts as found.
  expectInts<int>(reader, {{"Dec", 42},
                           {"Hexish", 0},
                           {"Spaced", 7},
                           {"Junk", 3},
                           {"Tail", 12},
                           {"Neg", -5},
                           {"Plus", 8},
                           {"Big", 3},
                           {"IntMin", INT_MIN},
                           {"Missing", 3}});
  expectInts<unsigned int>(reader, {{"Neg", 4294967291u}, {"Big", 3}});
  expectInts<long>(reader, {{"Big", 99999999999L}});
  expectInts<unsigned long long>(reader, {{"ULLMax", ULLONG_MAX}});
  expectInts<long long>(reader, {{"LLOver", 3}, {"Neg", -5}});
  expectInts<unsigned long>(reader, {{"Dec", 42}});

  bool flag = true;
  EXPECT_TRUE(reader.getBool("True", &flag));
  EXPECT_TRUE(flag);
  EXPECT_TRUE(reader.getBool("Upper", &flag));
  EXPECT_FALSE(flag);
  flag = true;
  EXPECT_TRUE(reader.getBool("Missing", &flag));
  EXPECT_FALSE(flag);

  double number = 1;
  EXPECT_TRUE(reader.getFloat("Float", &number));
  EXPECT_EQ(number, 2.5);
  EXPECT_TRUE(reader.getFloat("Junk", &number));
  EXPECT_EQ(number, 0.0);

  std::string text = "old";
  EXPECT_TRUE(reader.getString("Missing", &text));
  EXPECT_EQ(text, "");
  Address readAddress;
  Scope readScope;
  DbgDataKey readKey;
  EXPECT_TRUE(reader.getAddress("A", &readAddress));
  EXPECT_TRUE(reader.getScope("SC", &readScope));
  EXPECT_TRUE(reader.getDbgDataKey("K", &readKey));
  EXPECT_EQ(readAddress, address);
  EXPECT_EQ(readAddress.getMode(), 1u);
  EXPECT_EQ(readScope, scope);
  EXPECT_EQ(readKey, key);
  EXPECT_TRUE(reader.popSection());
  EXPECT_EQ(reader.getFocusNode(), rootOf(writer));
}

TEST_F(XmlReader, WithoutValuesNumbersAreZeroAndOthersUnchanged) {
  ASSERT_TRUE(reader.pushSection("Bare"));
  int i = 5;
  unsigned long long u = 5;
  bool flag = true;
  double number = 5;
  std::string text = "old";
  Address readAddress(0, 9, 0, 1, 32);
  DbgDataKey readKey("x");
  EXPECT_FALSE(reader.getInt("Dec", &i));
  EXPECT_FALSE(reader.getInt("Dec", &u));
  EXPECT_FALSE(reader.getBool("True", &flag));
  EXPECT_FALSE(reader.getFloat("Float", &number));
  EXPECT_FALSE(reader.getString("Dec", &text));
  EXPECT_FALSE(reader.getAddress("A", &readAddress));
  EXPECT_FALSE(reader.getDbgDataKey("K", &readKey));
  EXPECT_EQ(i, 0);
  EXPECT_EQ(u, 0u);
  EXPECT_FALSE(flag);
  EXPECT_EQ(number, 0.0);
  EXPECT_EQ(text, "old");
  EXPECT_EQ(readAddress.getOffset(), 9u);
  EXPECT_EQ(readKey, DbgDataKey("x"));
  EXPECT_FALSE(reader.pushSection("Nothing"));
}

std::string notFoundLine(const std::string& key, const DOMNode* node) {
  std::ostringstream line;
  line << "SerializerHelperDOM::setStringHelper(" << key << ", <not found!>, "
       << static_cast<const void*>(node) << ");\n";
  return line.str();
}

TEST_F(XmlReader, NonElementNodeReportsNotFound) {
  ASSERT_TRUE(reader.pushSection("Bare"));
  DOMNode* text = writer.getDocument()->createTextNode(A2X("t").get());
  const_cast<DOMNode*>(reader.getFocusNode())->appendChild(text);
  ASSERT_TRUE(reader.setFocusToChild(text));

  std::string out = "old";
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(reader.getStringHelper("Key", &out, nullptr));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            notFoundLine("Key", text));
  EXPECT_EQ(out, "");

  // The sub key is not tried when the class name cannot be read.
  std::string className, subKey = "old";
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(reader.getNameAndSubKey(&className, &subKey));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            notFoundLine("ClassName", text));
  EXPECT_EQ(subKey, "old");

  // No current node at all.
  reader.cleanupDOM();
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(reader.getStringHelper("Key", &out, nullptr));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            notFoundLine("Key", nullptr));
}

TEST(XmlReaderCursor, WalksEveryChildNodeAndKeepsBalance) {
  XmlTextDocument parsed;
  ASSERT_TRUE(parsed.parse("<R><List> <a/><b/></List><Empty/></R>", false));
  DeserializerHelperDOM reader(parsed.getDocumentElement());
  const DOMNode* root = reader.getFocusNode();

  EXPECT_FALSE(reader.pushFirstChildSection()); // no list section open
  EXPECT_FALSE(reader.pushNextChildSection());
  EXPECT_FALSE(reader.popListSection());
  EXPECT_FALSE(reader.pushListSection("Missing"));
  EXPECT_EQ(reader.getFocusNode(), root);

  ASSERT_TRUE(reader.pushListSection("List"));
  EXPECT_FALSE(reader.pushNextChildSection()); // the cursor is before the first
  std::vector<std::string> visited;
  for (bool entered = reader.pushFirstChildSection(); entered;
       entered = reader.pushNextChildSection()) {
    visited.push_back(X2A(reader.getFocusNode()->getNodeName()).get());
    EXPECT_TRUE(reader.popSection());
  }
  EXPECT_EQ(visited, (std::vector<std::string>{"#text", "a", "b"}));
  EXPECT_FALSE(reader.pushNextChildSection()); // stays past the end
  EXPECT_TRUE(reader.popListSection());
  EXPECT_EQ(reader.getFocusNode(), root);

  ASSERT_TRUE(reader.pushListSection("Empty"));
  EXPECT_FALSE(reader.pushFirstChildSection());
  EXPECT_TRUE(reader.popListSection());
  EXPECT_TRUE(reader.popSection());
  EXPECT_FALSE(reader.popSection());
  EXPECT_EQ(reader.getFocusNode(), nullptr);
  int value = 5;
  EXPECT_FALSE(reader.getInt("x", &value));
  EXPECT_FALSE(reader.pushSection("List"));
}

// ---------------------------------------------------------------------------
// Deserializer

// A list of lists, a list with content and duplicate sub keys, engine data
// on leaves and on the content, and a leaf with a scope.
std::unique_ptr<DataList> sampleTree() {
  auto outer = make<DataList>("DataList", "outer");
  auto inner = make<DataList>("DataList", "inner");
  inner->appendChild(adopt(prompt("a", "1")));
  inner->appendChild(adopt(make<DataList>("DataList", "emptyList")));
  outer->appendChild(adopt(std::move(inner)));

  auto withContent = make<DataListWC>("DataListWC", "wc");
  withContent->appendChild(adopt(prompt("dup", "first")));
  withContent->appendChild(adopt(prompt("dup", "second")));
  withContent->appendChild(adopt(prompt("x", "third")));
  withContent->setSpecialItem(std::string("dup"));
  auto content = make<StackFrameListContent>("StackFrameListContent", "head");
  content->setEngineData(engineData());
  withContent->setContent(adopt(std::move(content)));
  outer->appendChild(adopt(std::move(withContent)));

  auto frame = make<StackFrameItem>("StackFrameItem", "frame");
  frame->setFrameID(-7);
  frame->setDisplayText("a&b <c> \"q\" 'r'");
  frame->setScope(Scope(Address(0, 0x401000, 0, 1, 32),
                        DbgDataKey("Root/Sources[]/main.c"), 12, 3));
  frame->setHasBrkPoint(true);
  outer->appendChild(adopt(std::move(frame)));

  auto withEngine = prompt("engine", "ZMT>");
  withEngine->setEngineData(engineData());
  outer->appendChild(adopt(std::move(withEngine)));
  outer->setSpecialItem(std::string("wc"));
  return outer;
}

TEST(XmlRoundTrip, TreesComeBackEqualThroughDomAndText) {
  const std::unique_ptr<DataList> original = sampleTree();
  for (bool viaText : {false, true}) {
    SCOPED_TRACE(viaText ? "via XML text" : "via DOM");
    const std::unique_ptr<DebuggerData> copy = xmlRoundTrip(*original, viaText);
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(*copy == *original);
    EXPECT_TRUE(*original == *copy);
    EXPECT_EQ(xmlOutline(*copy), xmlOutline(*original));

    EXPECT_EQ(copy->getSpecialItem(), copy->getChild("wc"));
    const DebuggerData* wc = copy->getChild("wc");
    ASSERT_NE(wc, nullptr);
    // With duplicate sub keys the last child carrying it is the special one.
    const DebuggerDataList& children =
        *static_cast<const DataList*>(wc)->getConstList();
    ASSERT_EQ(children.size(), 3u);
    EXPECT_EQ(wc->getSpecialItem(), *std::next(children.begin()));
    ASSERT_NE(wc->getContent(), nullptr);
    ASSERT_NE(wc->getContent()->getEngineData(), nullptr);
    EXPECT_TRUE(*wc->getContent()->getEngineData() ==
                *original->getChild("wc")->getContent()->getEngineData());

    const DebuggerData* engineOwner = copy->getChild("engine");
    ASSERT_NE(engineOwner, nullptr);
    ASSERT_NE(engineOwner->getEngineData(), nullptr);
    EXPECT_TRUE(*engineOwner->getEngineData() ==
                *original->getChild("engine")->getEngineData());
    EXPECT_EQ(copy->getDescendant("inner/a")->getClassName(), "CurDbgPrompt");
  }
}

TEST(XmlRoundTrip, MissingKeysKeepDefaults) {
  const auto object = readXmlText(
      "<UserContentContainer><DataElement ClassName=\"StackFrameItem\" "
      "SubKey=\"f\"><attributes/><values DisplayText=\"d\"/></DataElement>"
      "</UserContentContainer>");
  ASSERT_NE(object, nullptr);
  ASSERT_TRUE(object->isKindOf(StackFrameItem::staticRtti()));
  const auto& frame = static_cast<const StackFrameItem&>(*object);
  EXPECT_EQ(frame.getSubKey(), "f");
  EXPECT_EQ(frame.getDisplayText(), "d");
  EXPECT_EQ(frame.getFrameID(), 0);
  EXPECT_FALSE(frame.hasBrkPoint());
  EXPECT_TRUE(frame.getScope() == Scope());
}

TEST(XmlDeserializer, UnknownClassesAndWrongKindsGiveNull) {
  const char* const cases[] = {
      "<DataElement ClassName=\"NoSuchClass\" SubKey=\"x\"/>",
      "<DataElement ClassName=\"DataElement\" SubKey=\"x\"/>",
      "<DataElement ClassName=\"DataList\" SubKey=\"x\"><List/></DataElement>",
      "<DataList ClassName=\"DataListWC\" SubKey=\"x\"><List/></DataList>",
      "<DataList ClassName=\"CurDbgPrompt\" SubKey=\"x\"/>",
      "<DataListWC ClassName=\"DataList\" SubKey=\"x\"/>",
  };
  for (const char* xml : cases) {
    EXPECT_EQ(readXmlText(std::string("<UserContentContainer>") + xml +
                          "</UserContentContainer>"),
              nullptr)
        << xml;
  }
}

TEST(XmlDeserializer, BadChildrenAndContentAreDroppedWithoutLosingPlace) {
  const auto list = readXmlText(
      "<UserContentContainer><DataListWC ClassName=\"DataListWC\" SubKey=\"l\">"
      "<values SpecialItemSubKey=\"bad\"/><List>"
      "<Child><DataElement ClassName=\"CurDbgPrompt\" SubKey=\"a\">"
      "<values PromptText=\"1\"/></DataElement></Child>"
      "<Child><DataElement ClassName=\"Nope\" SubKey=\"bad\"><values/>"
      "<EngineData><DataElement ClassName=\"CurDbgPrompt\" SubKey=\"e\"/>"
      "</EngineData></DataElement></Child>"
      "<Child><DataList ClassName=\"DataList\" SubKey=\"sub\"><List>"
      "<Child><DataElement ClassName=\"CurDbgPrompt\" SubKey=\"deep\"/></Child>"
      "</List></DataList></Child>"
      "</List><Content><DataList ClassName=\"DataList\" SubKey=\"c\"/>"
      "</Content></DataListWC></UserContentContainer>");
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->getList()->size(), 2u);
  EXPECT_NE(list->getChild("a"), nullptr);
  EXPECT_NE(list->getDescendant("sub/deep"), nullptr);
  EXPECT_EQ(list->getSpecialItem(), nullptr);
  EXPECT_EQ(list->getContent(), nullptr);
}

TEST(XmlDeathTest, MalformedDataAndNullPointersAreFatal) {
  auto readWrapped = [](const std::string& xml) {
    return readXmlText("<UserContentContainer>" + xml +
                       "</UserContentContainer>");
  };
  EXPECT_DEATH(getDeserializer()->deserialize(nullptr), "");
  EXPECT_DEATH(readWrapped("<Foo/>"), "");
  EXPECT_DEATH(readWrapped(""), "");
  EXPECT_DEATH(readWrapped("<Child><DataElement ClassName=\"CurDbgPrompt\" "
                           "SubKey=\"x\"/></Child>"),
               "");
  for (const char* section : {"<EngineData/>", "<Content/>", "<List/>"})
    EXPECT_DEATH(readWrapped(section), "") << section;
  // Indentation kept as text nodes stands where a list child should be.
  XmlTextDocument indented;
  ASSERT_TRUE(indented.parse(
      "<UserContentContainer><DataList ClassName=\"DataList\" SubKey=\"l\">"
      "<List>\n  <Child/></List></DataList></UserContentContainer>",
      false));
  DeserializerHelperDOM indentedReader(indented.getDocumentElement());
  EXPECT_DEATH(getDeserializer()->deserialize(&indentedReader), "");

  DeserializerHelperDOM reader;
  EXPECT_DEATH(reader.initDOM(nullptr), "");
  reader.initDOM(indented.getDocumentElement());
  std::string text;
  EXPECT_DEATH(reader.getInt("k", static_cast<int*>(nullptr)), "");
  EXPECT_DEATH(reader.getBool("k", nullptr), "");
  EXPECT_DEATH(reader.getString("k", nullptr), "");
  EXPECT_DEATH(reader.getScope("k", nullptr), "");
  EXPECT_DEATH(reader.getNameAndSubKey(nullptr, &text), "");
  EXPECT_DEATH(reader.getStringHelper("k", nullptr, nullptr), "");
}

// ---------------------------------------------------------------------------
// XML text

TEST(XmlText, ReportsParseErrorsWithPosition) {
  XmlTextDocument parsed;
  EXPECT_FALSE(parsed.parse("<a>\n<b></a>"));
  EXPECT_EQ(parsed.getDocument(), nullptr);
  EXPECT_EQ(parsed.getError().line, 2u);
  EXPECT_FALSE(parsed.getError().message.empty());
  EXPECT_FALSE(parsed.parse(""));
  EXPECT_TRUE(parsed.parse("<a> <b/>\n</a>"));
  EXPECT_EQ(outlineOf(parsed.getDocumentElement()), "a\n  b\n");

  std::string text = "unchanged";
  XmlTextError error;
  EXPECT_FALSE(writeXmlText(nullptr, true, &text, &error));
  EXPECT_EQ(text, "unchanged");
  EXPECT_FALSE(error.message.empty());
}

} // namespace
