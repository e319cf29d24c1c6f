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
using xercesc::DOMNode;

namespace {

// Raw pointer owned by the caller (the list or element it is handed to).
CurDbgPrompt* prompt(const std::string& subKey, const std::string& text) {
  auto object = make<CurDbgPrompt>("CurDbgPrompt", subKey);
  object->setPromptText(text);
  return object.release();
}

// The engine data object that the self-check attaches; owned by the caller.
RegisterItem* engineData() {
  auto item = make<RegisterItem>("RegisterItem", "Internal");
  item->setName("Internal");
  item->setType(2);
  item->setFlags(1);
  return item.release();
}

DOMNode* rootOf(SerializerHelperDOM& writer) {
  return writer.getDocument()->getDocumentElement();
}

std::string wrapped(const std::string& xml) {
  return "<UserContentContainer>" + xml + "</UserContentContainer>";
}

// ---------------------------------------------------------------------------
// Writer and layout

TEST(XmlWriter, LayoutOfLeafListsEngineDataAndSiblings) {
  EXPECT_EQ(xmlOutline(*std::unique_ptr<CurDbgPrompt>(prompt("s", "p"))),
            "UserContentContainer\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=s\n"
            "    attributes\n"
            "    values PromptText=p\n");

  auto list = make<DataListWC>("DataListWC", "s");
  list->appendChild(prompt("c1", "one"));
  list->appendChild(prompt("c2", "two"));
  list->setSpecialItem(std::string("c1"));
  list->setContent(
      make<StackFrameListContent>("StackFrameListContent", "head").release());
  EXPECT_EQ(xmlOutline(*list),
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
  EXPECT_EQ(xmlOutline(*make<DataList>("DataList", "e")),
            "UserContentContainer\n"
            "  DataList ClassName=DataList SubKey=e\n"
            "    List\n");

  // Objects written one after another become siblings under the root.
  SerializerHelperDOM writer;
  std::unique_ptr<CurDbgPrompt> first(prompt("a", "1")),
      second(prompt("b", ""));
  first->setEngineData(engineData());
  EXPECT_TRUE(first->serialize(&writer) && second->serialize(&writer));
  EXPECT_EQ(writer.getFocusNode(), rootOf(writer));
  EXPECT_EQ(outlineOf(rootOf(writer)),
            "UserContentContainer\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=a\n"
            "    attributes\n"
            "    values PromptText=1\n"
            "    EngineData\n"
            "      DataElement ClassName=RegisterItem SubKey=Internal\n"
            "        attributes\n"
            "        values Description= Expression= Flags=1 Name=Internal "
            "Type=2 Value=\n"
            "  DataElement ClassName=CurDbgPrompt SubKey=b\n"
            "    attributes\n"
            "    values PromptText=\n");
}

TEST(XmlWriter, ValueTextsAndTheirPlacement) {
  const Address address(0, 0x401000, 0, 1, 32);
  SerializerHelperDOM writer;
  ASSERT_TRUE(writer.pushSection("DataElement"));
  EXPECT_TRUE(writer.setClassNameAndSubKey("Any", "k") &&
              writer.setBool("T", true) && writer.setBool("F", false) &&
              writer.setInt("I", INT_MIN) && writer.setInt("U", UINT_MAX) &&
              writer.setInt("L", -7L) && writer.setInt("UL", ULONG_MAX) &&
              writer.setInt("LL", LLONG_MIN) && writer.setInt("ULL", 0ULL) &&
              writer.setFloat("D", -0.25) && writer.setString("S", "a&b <c>") &&
              writer.setAddress("A", address) &&
              writer.setScope("SC", Scope(address, DbgDataKey("/R"), 3, 4)) &&
              writer.setDbgDataKey("K", DbgDataKey("Root/a\\/b")) &&
              writer.setString("S", "last wins"));
  writer.popSection();
  EXPECT_EQ(outlineOf(rootOf(writer)),
            "UserContentContainer\n"
            "  DataElement ClassName=Any SubKey=k\n"
            "    attributes\n"
            "    values A=Address( 1 32 0 401000 0 )Address D=-0.250000 "
            "F=false I=-2147483648 K=/Root/a\\/b L=-7 "
            "LL=-9223372036854775808 S=last wins SC=Scope( Address( 1 32 0 "
            "401000 0 )Address 2F5200 3 4 )Scope T=true U=4294967295 "
            "UL=18446744073709551615 ULL=0\n");
}

TEST(XmlWriter, RefusesWhatTheDomRefusesAndSurvivesBadBalance) {
  SerializerHelperDOM writer;
  DOMNode* root = rootOf(writer);
  EXPECT_FALSE(writer.pushSection("not a name"));
  EXPECT_FALSE(writer.pushSection(""));
  EXPECT_FALSE(writer.setString("bad key", "v"));
  EXPECT_EQ(writer.getFocusNode(), root);
  for (const char* subKey : {"a", "b", "b"}) {
    writer.pushSection("Child");
    writer.setClassNameAndSubKey("C", subKey);
    writer.popSection();
  }
  EXPECT_EQ(writer.findSubNode("Child", "a"), writer.findSubNode("Child"));
  EXPECT_EQ(writer.findSubNode("Child", "b"),
            writer.findSubNode("Child")->getNextSibling());
  EXPECT_EQ(writer.findSubNode("Child", "c"), nullptr);

  // Popping past the root: answers false from then on, never crashes.
  EXPECT_TRUE(writer.popSection());
  EXPECT_FALSE(writer.popSection());
  EXPECT_EQ(writer.getFocusNode(), nullptr);
  EXPECT_FALSE(writer.pushSection("DataElement"));
  EXPECT_FALSE(writer.setString("S", "v"));
  writer.resetDOM();
  EXPECT_EQ(outlineOf(writer.getFocusNode()), "UserContentContainer\n");
  writer.cleanupDOM();
  EXPECT_EQ(writer.getDocument(), nullptr);
  EXPECT_FALSE(writer.pushSection("DataElement"));
}

// ---------------------------------------------------------------------------
// Reader

template <class Int>
void expectInts(const DeserializerHelperDOM& reader,
                std::initializer_list<std::pair<const char*, Int>> cases) {
  for (const auto& c : cases) {
    Int value = 3; // stands for "unchanged"
    EXPECT_TRUE(reader.getInt(c.first, &value)) << c.first;
    EXPECT_EQ(value, c.second) << c.first;
  }
}

TEST(XmlReader, ConvertsValueTexts) {
  XmlTextDocument parsed;
  ASSERT_TRUE(parsed.parse(
      "<R><DataElement ClassName=\"CurDbgPrompt\" SubKey=\"k\"><values "
      "Dec=\"42\" Hexish=\"0x10\" Spaced=\" 7\" Junk=\"abc\" Tail=\"12abc\" "
      "Neg=\"-5\" Plus=\"+8\" Big=\"99999999999\" IntMin=\"-2147483648\" "
      "ULLMax=\"18446744073709551615\" LLOver=\"9223372036854775808\" "
      "True=\"true\" Upper=\"TRUE\" Float=\"2.5\" K=\"/Root/a\\/b\" "
      "A=\"Address( 1 32 0 401000 0 )Address\" "
      "SC=\"Scope( Address( 1 32 0 401000 0 )Address 2F5200 3 4 )Scope\"/>"
      "</DataElement></R>",
      false));
  DeserializerHelperDOM reader(parsed.getDocumentElement());
  ASSERT_TRUE(reader.pushSection("DataElement"));
  std::string className, subKey;
  EXPECT_TRUE(reader.getNameAndSubKey(&className, &subKey));
  EXPECT_EQ(className + "/" + subKey, "CurDbgPrompt/k");
  // Decimal only; text that does not parse, overflows or is missing
  // leaves the target unchanged but still counts as found.
  // clang-format off
  expectInts<int>(reader, {{"Dec", 42}, {"Hexish", 0}, {"Spaced", 7},
      {"Junk", 3}, {"Tail", 12}, {"Neg", -5}, {"Plus", 8}, {"Big", 3},
      {"IntMin", INT_MIN}, {"Missing", 3}});
  // clang-format on
  expectInts<unsigned int>(reader, {{"Neg", 4294967291u}, {"Big", 3}});
  expectInts<long>(reader, {{"Big", 99999999999L}});
  expectInts<unsigned long long>(reader, {{"ULLMax", ULLONG_MAX}});
  expectInts<long long>(reader, {{"LLOver", 3}, {"Neg", -5}});
  expectInts<unsigned long>(reader, {{"Dec", 42}});

  bool yes = false, upper = true, missing = true;
  double number = 1, junk = 1;
  std::string text = "old";
  Address address;
  Scope scope;
  DbgDataKey key;
  EXPECT_TRUE(
      reader.getBool("True", &yes) && reader.getBool("Upper", &upper) &&
      reader.getBool("Missing", &missing) &&
      reader.getFloat("Float", &number) && reader.getFloat("Junk", &junk) &&
      reader.getString("Missing", &text) && reader.getAddress("A", &address) &&
      reader.getScope("SC", &scope) && reader.getDbgDataKey("K", &key));
  EXPECT_TRUE(yes && !upper && !missing);
  EXPECT_EQ(number, 2.5);
  EXPECT_EQ(junk, 0.0);
  EXPECT_EQ(text, "");
  EXPECT_EQ(address.getMode(), 1u);
  EXPECT_EQ(address, Address(0, 0x401000, 0, 1, 32));
  EXPECT_EQ(scope, Scope(address, DbgDataKey("/R"), 3, 4));
  EXPECT_EQ(key.toString(), "/Root/a\\/b");
  EXPECT_TRUE(reader.popSection());
  EXPECT_EQ(reader.getFocusNode(), parsed.getDocumentElement());
}

// Runs a read that must fail and answers what it printed to stderr.
template <class Read> std::string failedReadOutput(Read read) {
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(read());
  return ::testing::internal::GetCapturedStderr();
}

std::string notFoundLine(const std::string& key, const DOMNode* node) {
  std::ostringstream line;
  line << "SerializerHelperDOM::setStringHelper(" << key << ", <not found!>, "
       << static_cast<const void*>(node) << ");\n";
  return line.str();
}

TEST(XmlReader, ListCursorValuesAndNodesThatAreNoElement) {
  XmlTextDocument parsed;
  ASSERT_TRUE(parsed.parse("<R><Bare>text<a/></Bare></R>", false));
  DeserializerHelperDOM reader(parsed.getDocumentElement());
  EXPECT_FALSE(reader.pushFirstChildSection()); // no list section open
  EXPECT_FALSE(reader.popListSection());
  ASSERT_TRUE(reader.pushListSection("Bare"));
  // Without a "values" child numbers read as zero, the rest stays unchanged.
  int i = 5;
  bool flag = true;
  double number = 5;
  std::string text = "old";
  Address address(0, 9, 0, 1, 32);
  EXPECT_EQ(failedReadOutput([&] {
              return reader.getInt("I", &i) || reader.getBool("B", &flag) ||
                     reader.getFloat("F", &number) ||
                     reader.getString("S", &text) ||
                     reader.getAddress("A", &address);
            }),
            "");
  EXPECT_EQ(i, 0);
  EXPECT_FALSE(flag);
  EXPECT_EQ(number, 0.0);
  EXPECT_EQ(text, "old");
  EXPECT_EQ(address.getOffset(), 9u);
  EXPECT_FALSE(reader.pushSection("Nothing"));

  // The cursor starts before the first child and visits every child node;
  // a node that is no element reports the key as not found, and the sub key
  // is not tried when the class name cannot be read.
  EXPECT_FALSE(reader.pushNextChildSection());
  ASSERT_TRUE(reader.pushFirstChildSection());
  const DOMNode* textNode = reader.getFocusNode();
  EXPECT_EQ(failedReadOutput(
                [&] { return reader.getStringHelper("Key", &text, nullptr); }),
            notFoundLine("Key", textNode));
  EXPECT_EQ(text, "");
  std::string className, subKey = "old";
  EXPECT_EQ(failedReadOutput(
                [&] { return reader.getNameAndSubKey(&className, &subKey); }),
            notFoundLine("ClassName", textNode));
  EXPECT_EQ(subKey, "old");
  EXPECT_TRUE(reader.popSection() && reader.pushNextChildSection());
  EXPECT_EQ(outlineOf(reader.getFocusNode()), "a\n");
  EXPECT_TRUE(reader.popSection());
  EXPECT_FALSE(reader.pushNextChildSection());
  EXPECT_FALSE(reader.pushNextChildSection()); // stays past the end
  EXPECT_TRUE(reader.popListSection());
  EXPECT_EQ(reader.getFocusNode(), parsed.getDocumentElement());
  reader.cleanupDOM();
  EXPECT_EQ(failedReadOutput(
                [&] { return reader.getStringHelper("Key", &text, nullptr); }),
            notFoundLine("Key", nullptr));
}

// ---------------------------------------------------------------------------
// Deserializer

// A list of lists, a list with content and duplicate sub keys, engine data
// on leaves and on the content, and a leaf with a scope.
std::unique_ptr<DataList> sampleTree() {
  auto outer = make<DataList>("DataList", "outer");
  auto inner = make<DataList>("DataList", "inner");
  inner->appendChild(prompt("a", "1"));
  inner->appendChild(make<DataList>("DataList", "emptyList").release());
  outer->appendChild(inner.release());

  auto withContent = make<DataListWC>("DataListWC", "wc");
  withContent->appendChild(prompt("dup", "first"));
  withContent->appendChild(prompt("dup", "second"));
  withContent->appendChild(prompt("x", "third"));
  withContent->setSpecialItem(std::string("dup"));
  auto content = make<StackFrameListContent>("StackFrameListContent", "head");
  content->setEngineData(engineData());
  withContent->setContent(content.release());
  outer->appendChild(withContent.release());

  auto frame = make<StackFrameItem>("StackFrameItem", "frame");
  frame->setFrameID(-7);
  frame->setDisplayText("a&b <c> \"q\" 'r'");
  frame->setScope(Scope(Address(0, 0x401000, 0, 1, 32),
                        DbgDataKey("Root/Sources[]/main.c"), 12, 3));
  frame->setHasBrkPoint(true);
  outer->appendChild(frame.release());

  CurDbgPrompt* withEngine = prompt("engine", "ZMT>");
  withEngine->setEngineData(engineData());
  outer->appendChild(withEngine);
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
    // The outlines show engine data too, which == leaves out.
    EXPECT_EQ(xmlOutline(*copy), xmlOutline(*original));
    // With duplicate sub keys the last child carrying it is the special one.
    const DebuggerData* wc = copy->getChild("wc");
    ASSERT_TRUE(wc && copy->getSpecialItem() == wc);
    const DebuggerDataList& children =
        *static_cast<const DataList*>(wc)->getConstList();
    ASSERT_EQ(children.size(), 3u);
    EXPECT_EQ(wc->getSpecialItem(), *std::next(children.begin()));
  }

  // Without a document there is no text, only a message.
  std::string text = "unchanged";
  XmlTextError error;
  EXPECT_FALSE(writeXmlText(nullptr, true, &text, &error));
  EXPECT_EQ(text, "unchanged");
  EXPECT_FALSE(error.message.empty());
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
  for (const char* xml : cases)
    EXPECT_EQ(readXmlText(wrapped(xml)), nullptr) << xml;
}

TEST(XmlDeserializer, BadChildrenAndContentAreDroppedWithoutLosingPlace) {
  const auto list = readXmlText(wrapped(
      "<DataListWC ClassName=\"DataListWC\" SubKey=\"l\">"
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
      "</Content></DataListWC>"));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->getList()->size(), 2u);
  EXPECT_NE(list->getChild("a"), nullptr);
  EXPECT_NE(list->getDescendant("sub/deep"), nullptr);
  EXPECT_EQ(list->getSpecialItem(), nullptr);
  EXPECT_EQ(list->getContent(), nullptr);
}

TEST(XmlDeathTest, MalformedDataAndNullPointersAreFatal) {
  EXPECT_DEATH(getDeserializer()->deserialize(nullptr), "");
  for (const char* xml : {"<Foo/>", "", "<EngineData/>", "<List/>",
                          "<Child><DataElement ClassName=\"CurDbgPrompt\" "
                          "SubKey=\"x\"/></Child>"})
    EXPECT_DEATH(readXmlText(wrapped(xml)), "") << xml;
  // Indentation kept as text nodes stands where a list child should be.
  XmlTextDocument indented;
  ASSERT_TRUE(
      indented.parse(wrapped("<DataList ClassName=\"DataList\" SubKey=\"l\">"
                             "<List>\n  <Child/></List></DataList>"),
                     false));
  DeserializerHelperDOM reader(indented.getDocumentElement());
  EXPECT_DEATH(getDeserializer()->deserialize(&reader), "");

  std::string text;
  EXPECT_DEATH(reader.initDOM(nullptr), "");
  EXPECT_DEATH(reader.getInt("k", static_cast<int*>(nullptr)), "");
  EXPECT_DEATH(reader.getScope("k", nullptr), "");
  EXPECT_DEATH(reader.getNameAndSubKey(nullptr, &text), "");
}

} // namespace
