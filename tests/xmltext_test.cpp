// The XML text path without a DOM: the text writer's output against what
// writeXmlText makes of the DOM writer's document, either reader on either
// writer's text, each call's answer against the DOM helpers', and the
// refusal of text the deserializer cannot take.
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "deserializerhelperXmlText.h"
#include "layoutcheck.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "serializerhelperXmlText.h"
#include "testsupport.h"
#include "testsupport_xml.h"
#include "valuetypes.h"
#include "xmlsyntax.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLChar.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <sstream>

using namespace Vemo::DbgData;

namespace {

typedef std::unique_ptr<DebuggerData> Object;

// The self-check's sample of every class the factory can make, in row order.
std::vector<Object> samples() {
  std::vector<Object> objects;
  for (int row = 0; row < DDID_Undefined; ++row) {
    const auto id = static_cast<DebuggerDataID>(row);
    Object object(st_ddmanager.factory(id, "SelfCheck"));
    if (!object)
      continue;
    if (SelfCheckFill fill = findSelfCheckFill(id))
      fill(object.get());
    else if (object->isKindOf(DataElement::staticRtti()))
      attachEngineData(static_cast<DataElement*>(object.get()));
    objects.push_back(std::move(object));
  }
  return objects;
}

std::string domText(const std::vector<const DebuggerData*>& objects,
                    bool indent) {
  SerializerHelperDOM writer;
  for (const DebuggerData* object : objects)
    EXPECT_TRUE(object->serialize(&writer));
  std::string text;
  EXPECT_TRUE(writeXmlText(writer.getDocument(), indent, &text));
  return text;
}

std::string fastText(const std::vector<const DebuggerData*>& objects,
                     bool indent) {
  SerializerHelperXmlText writer(indent);
  for (const DebuggerData* object : objects)
    EXPECT_TRUE(object->serialize(&writer));
  return writer.getText();
}

Object readWithDom(const std::string& text) {
  XmlTextDocument parsed;
  if (!parsed.parse(text)) {
    ADD_FAILURE() << parsed.getError().message;
    return nullptr;
  }
  DeserializerHelperDOM reader(parsed.getDocumentElement());
  return Object(getDeserializer()->deserialize(&reader));
}

Object readFast(const std::string& text) {
  DeserializerHelperXmlText reader;
  XmlTextError error;
  if (!reader.parse(text, &error)) {
    ADD_FAILURE() << error.line << ":" << error.column << ": " << error.message;
    return nullptr;
  }
  return Object(getDeserializer()->deserialize(&reader));
}

// ---------------------------------------------------------------------------
// Every class

TEST(XmlTextPath, EveryClassWritesTheDomTextAndReadsBackThroughEitherReader) {
  const std::vector<Object> objects = samples();
  ASSERT_GE(objects.size(), 10u);
  // The sample plug-in item's plug-in data is made by the self-check's
  // factory when it is read back.
  Deserializer* deserializer = getDeserializer();
  IPlugInDataFactory* const previous = deserializer->getPlugInDataFactory();
  deserializer->setPlugInDataFactory(getSelfCheckPlugInDataFactory());
  for (const Object& object : objects) {
    const std::string className = object->getClassName();
    SCOPED_TRACE(className);
    const std::string reference = fastText({object.get()}, false);
    for (bool indent : {false, true}) {
      const std::string dom = domText({object.get()}, indent);
      const std::string fast = fastText({object.get()}, indent);
      EXPECT_EQ(fast, dom) << (indent ? "indented" : "compact");
      for (const std::string* text : {&dom, &fast}) {
        for (const auto& read : {readWithDom, readFast}) {
          const Object copy = read(*text);
          ASSERT_NE(copy, nullptr);
          EXPECT_TRUE(*copy == *object);
          // The text also shows engine data and special items.
          EXPECT_EQ(fastText({copy.get()}, false), reference);
        }
      }
    }
  }
  deserializer->setPlugInDataFactory(previous);
}

TEST(XmlTextPath, ManyObjectsInOneDocumentAreReadOneByOne) {
  const std::vector<Object> objects = samples();
  std::vector<const DebuggerData*> all;
  for (const Object& object : objects)
    all.push_back(object.get());
  for (bool indent : {false, true}) {
    const std::string text = fastText(all, indent);
    EXPECT_EQ(text, domText(all, indent));
    DeserializerHelperXmlText reader;
    ASSERT_TRUE(reader.parse(text));
    EXPECT_EQ(reader.getDocumentElementName(), "UserContentContainer");
    ASSERT_EQ(reader.getObjectCount(), objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
      ASSERT_TRUE(reader.selectObject(i));
      const Object copy(getDeserializer()->deserialize(&reader));
      ASSERT_NE(copy, nullptr);
      EXPECT_TRUE(*copy == *objects[i]) << objects[i]->getClassName();
    }
    EXPECT_FALSE(reader.selectObject(objects.size()));
  }
}

TEST(XmlTextPath, TheSelfCheckPassesInEveryPairingOfWritersAndReaders) {
  SerializerHelperDOM domWriter;
  SerializerHelperXmlText textWriter;
  DeserializerHelperDOM domReader;
  DeserializerHelperXmlText textReader;
  g_runFullKeyTest = 0;
  ISerializerHelper* const writers[] = {&domWriter, &textWriter};
  IDeserializerHelper* const readers[] = {&domReader, &textReader};
  for (ISerializerHelper* writer : writers) {
    for (IDeserializerHelper* reader : readers) {
      g_serHlp = writer;
      g_desHlp = reader;
      testing::internal::CaptureStdout();
      testing::internal::CaptureStderr();
      const int errors = runSelfCheck();
      testing::internal::GetCapturedStdout();
      EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
      EXPECT_EQ(errors, 0);
    }
  }
  g_serHlp = nullptr;
  g_desHlp = nullptr;
  g_runFullKeyTest = 1;
}

// ---------------------------------------------------------------------------
// Writer: the same answers and the same text as the DOM writer

// Runs the same calls on both writers; the answers must agree.
void bothWriters(const std::function<bool(ISerializerHelper&)>& calls,
                 bool indent, std::string* domResult, std::string* fastResult) {
  SerializerHelperDOM dom;
  SerializerHelperXmlText fast(indent);
  const bool domAnswer = calls(dom);
  EXPECT_EQ(calls(fast), domAnswer);
  *domResult = "";
  writeXmlText(dom.getDocument(), indent, domResult);
  *fastResult = fast.getText();
}

std::function<bool(ISerializerHelper&)> valueCalls(const std::string& key,
                                                   const std::string& value) {
  return [=](ISerializerHelper& writer) {
    writer.pushSection("DataElement");
    const bool answer = writer.setString(key, value);
    writer.setString("Other", "o");
    writer.popSection();
    return answer;
  };
}

TEST(XmlTextWriter, EscapesAndRepairsValuesAsTheDomPathDoes) {
  const std::string values[] = {
      "& < > \" '", "\t\n\r", "a\r\nb", "]]>", "", "\xc3\xa9\xe2\x82\xac",
      "\xf0\x9f\x98\x80", "\xef\xbf\xbd", "\xc2\x85\xe2\x80\xa8\x7f",
      // Ill-formed UTF-8: one U+FFFD per maximal ill-formed part.
      "\xff", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x82",
      "a\xe9z", "\xf0\x9f\x98", std::string("cut\0off", 7),
      std::string(3000, '&') + std::string(3000, '\xe9')};
  std::vector<std::string> all(std::begin(values), std::end(values));
  // Each special character at every place of a long plain run, which the
  // writer skips eight bytes at a time.
  for (const char* special :
       {"&", "<", "\"", "\t", "\r", "\xc3\xa9", ">", "\x1f"})
    for (std::size_t at = 0; at <= 17; ++at)
      all.push_back(std::string("0123456789ABCDEFabcdef").insert(at, special));
  for (const std::string& value : all) {
    if (value.find('\x1f') != std::string::npos) {
      SerializerHelperXmlText fast;
      EXPECT_FALSE(valueCalls("V", value)(fast)) << value;
      continue;
    }
    for (bool indent : {false, true}) {
      std::string dom, fast;
      bothWriters(valueCalls("V", value), indent, &dom, &fast);
      EXPECT_EQ(fast, dom) << value.substr(0, 40);
      // Either reader gives back what the DOM reader gives back.
      DeserializerHelperXmlText reader;
      XmlTextDocument parsed;
      ASSERT_TRUE(parsed.parse(fast) && reader.parse(fast)) << value;
      DeserializerHelperDOM domReader(parsed.getDocumentElement());
      std::string fromDom, fromFast;
      EXPECT_TRUE(domReader.pushSection("DataElement") &&
                  domReader.getString("V", &fromDom));
      EXPECT_TRUE(reader.pushSection("DataElement") &&
                  reader.getString("V", &fromFast));
      EXPECT_EQ(fromFast, fromDom);
    }
  }
}

// Elements with many keys find a key written before through the names'
// stamps, which one element holds at a time: going back to an element
// after writing the same keys into its child must still find its own.
TEST(XmlTextWriter, ManyKeysWrittenAgainAfterAChildKeepTheLastValue) {
  const auto calls = [](ISerializerHelper& writer) {
    bool answer = writer.pushSection("DataElement");
    const auto keys = [&](const char* prefix) {
      for (int i = 0; i < 20; ++i)
        answer = writer.setString("k" + std::to_string(19 - i),
                                  prefix + std::to_string(i)) &&
                 answer;
    };
    keys("parent");
    answer = writer.pushSection("DataElement") && answer;
    keys("child");
    answer = writer.popSection() && answer;
    keys("again");
    answer = writer.setString("k7", "last") && answer;
    return writer.popSection() && answer;
  };
  std::string dom, fast;
  bothWriters(calls, false, &dom, &fast);
  EXPECT_EQ(fast, dom);
  EXPECT_NE(fast.find(" k7=\"last\""), std::string::npos);
  EXPECT_EQ(fast.find("parent"), std::string::npos);
}

TEST(XmlTextWriter, RefusesCharactersXmlCannotCarryWhereTheDomTextFails) {
  for (const char* value : {"\x01", "a\x1f", "\xef\xbf\xbe", "\xef\xbf\xbf"}) {
    SerializerHelperDOM dom;
    dom.pushSection("values");
    EXPECT_TRUE(dom.setString("V", value));
    std::string text;
    EXPECT_FALSE(writeXmlText(dom.getDocument(), false, &text));

    SerializerHelperXmlText fast;
    fast.pushSection("DataElement");
    EXPECT_FALSE(fast.setString("V", value));
    EXPECT_FALSE(fast.setClassNameAndSubKey(value, "s"));
    EXPECT_TRUE(fast.setString("W", "kept"));
    fast.popSection();
    EXPECT_EQ(fast.getText(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>"
              "<UserContentContainer><DataElement><attributes/>"
              "<values W=\"kept\"/></DataElement></UserContentContainer>");
  }
}

TEST(XmlTextWriter, NamesOrderAndPlacementFollowTheDom) {
  // Element and attribute names the DOM takes or refuses, including names
  // beyond ASCII, which the DOM tests with its own tables.
  const std::string names[] = {"a",
                               "_x",
                               ":a",
                               "a:b",
                               "a-b.c",
                               "1a",
                               "-a",
                               "a b",
                               "",
                               "\xc3\xa9t\xc3\xa9",
                               "\xef\x80\x80",
                               "\xf0\x90\x80\x80",
                               "a\xf0\x90\x80\x80",
                               "a\xff",
                               "\xe2\x80\xbf",
                               "a\xcc\x80",
                               "\xd9\xa0",
                               std::string("ok\0bad", 6)};
  for (const std::string& name : names) {
    for (bool indent : {false, true}) {
      std::string dom, fast;
      bothWriters(
          [&](ISerializerHelper& writer) {
            const bool pushed = writer.pushSection(name);
            const bool set = writer.setInt(name, 1);
            if (pushed)
              writer.popSection();
            return pushed && set;
          },
          indent, &dom, &fast);
      EXPECT_EQ(fast, dom) << name;
    }
  }

  // Keys in every order, written twice, many of them (past the writer's
  // linear search), values with no "values" child on the element itself,
  // nested levels, and writes after popping the document element.
  for (bool indent : {false, true}) {
    std::string dom, fast;
    bothWriters(
        [](ISerializerHelper& writer) {
          bool answer = writer.setString("root", "r");
          answer = writer.pushSection("DataList") && answer;
          answer = writer.setClassNameAndSubKey("DataList", "l") && answer;
          for (int round = 0; round < 2; ++round)
            for (int i = 40; i > 0; i -= 3)
              answer =
                  writer.setInt("k" + std::to_string(i * 7 % 41), i + round) &&
                  answer;
          answer = writer.pushSection("values") && answer;
          answer = writer.setString("SpecialItemSubKey", "s") && answer;
          writer.popSection();
          answer = writer.setString("toValues", "v") && answer;
          answer = writer.pushSection("DataElement\0ignored") && answer;
          answer = writer.setBool("B", true) && answer;
          answer = writer.pushSection("EngineData") && answer;
          answer = writer.pushSection("DataElement") && answer;
          answer = writer.setFloat("F", -1e300) && answer;
          writer.popSection();
          writer.popSection();
          writer.popSection();
          writer.popSection();
          answer = writer.setScope("S", Scope()) && answer;
          answer = writer.setAddress("A", Address()) && answer;
          answer = writer.setDbgDataKey("K", DbgDataKey("/Root/a")) && answer;
          answer = writer.setInt("ll", LLONG_MIN) && answer;
          answer = writer.setInt("ull", ULLONG_MAX) && answer;
          EXPECT_TRUE(writer.popSection());
          EXPECT_FALSE(writer.popSection());
          EXPECT_FALSE(writer.pushSection("late"));
          EXPECT_FALSE(writer.setString("late", "x"));
          EXPECT_FALSE(writer.setClassNameAndSubKey("late", "x"));
          return answer;
        },
        indent, &dom, &fast);
    EXPECT_EQ(fast, dom);
  }

  // The writer answers the document at every step, and starts afresh.
  SerializerHelperXmlText writer(true);
  const std::string empty = writer.getText();
  EXPECT_EQ(empty,
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>\n"
            "<UserContentContainer/>\n");
  writer.pushSection("A");
  EXPECT_EQ(writer.getText(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>\n"
            "<UserContentContainer>\n\n  <A/>\n\n</UserContentContainer>\n");
  writer.reset();
  EXPECT_EQ(writer.getText(), empty);
}

TEST(XmlTextWriter, AnswersTheDomTextAfterEveryCallWhenAskedBetweenWrites) {
  // The text is asked for after each call, so values set before it are
  // rewritten, reordered and joined by new ones afterwards: keys in falling
  // order, each written again (on short lists and on lists long enough to
  // be sorted as a whole), values on a parent after its children, a refused
  // key, and long values whose characters to escape fall on either side
  // of every sixteen-byte boundary.
  std::vector<std::function<bool(ISerializerHelper&)>> steps;
  const auto add = [&](std::function<bool(ISerializerHelper&)> step) {
    steps.push_back(std::move(step));
  };
  add([](ISerializerHelper& w) { return w.pushSection("DataElement"); });
  add([](ISerializerHelper& w) {
    return w.setClassNameAndSubKey("Item", "a&b");
  });
  for (int round = 0; round < 3; ++round)
    for (int i = 45; i > 0; i -= 11)
      add([=](ISerializerHelper& w) {
        return w.setString("k" + std::to_string(i),
                           std::to_string(round) + "<" + std::to_string(i));
      });
  add([](ISerializerHelper& w) { return w.pushSection("DataElement"); });
  for (int i = 0; i < 60; ++i)
    add([=](ISerializerHelper& w) {
      return w.setInt("m" + std::to_string(i * 37 % 60), i) &&
             w.setInt("m" + std::to_string(i * 23 % 60), -i);
    });
  add([](ISerializerHelper& w) { return w.setString("1bad", "v"); });
  add([](ISerializerHelper& w) { return w.popSection(); });
  add([](ISerializerHelper& w) { return w.setString("k12", "again"); });
  for (std::size_t at : {0, 1, 14, 15, 16, 17, 31, 32, 33, 1000})
    add([=](ISerializerHelper& w) {
      std::string value(1040, 'x');
      value[at] = '"';
      value[at + 2] = '\n';
      value[at + 5] = '\xe9';
      return w.setString("long", value) &&
             w.setString("long" + std::to_string(at), value);
    });
  add([](ISerializerHelper& w) {
    return w.setClassNameAndSubKey("Item2", "");
  });
  add([](ISerializerHelper& w) { return w.popSection(); });
  add([](ISerializerHelper& w) { return w.pushSection("values"); });

  for (bool indent : {false, true}) {
    SerializerHelperDOM dom;
    SerializerHelperXmlText fast(indent);
    for (std::size_t i = 0; i < steps.size(); ++i) {
      SCOPED_TRACE(i);
      EXPECT_EQ(steps[i](fast), steps[i](dom));
      std::string text;
      ASSERT_TRUE(writeXmlText(dom.getDocument(), indent, &text));
      const std::string& fastText = fast.getText();
      ASSERT_EQ(fastText, text);
      EXPECT_EQ(&fast.getText(), &fastText); // kept until the next write
    }
    fast.reset();
    SerializerHelperDOM empty;
    std::string text;
    ASSERT_TRUE(writeXmlText(empty.getDocument(), indent, &text));
    EXPECT_EQ(fast.getText(), text);
  }
}

TEST(XmlTextWriter, NamesAreTheDomsNames) {
  // Every character of the basic plane as a one-character name and as the
  // second character of a name, against the XML library's own test.
  for (char32_t c = 0x80; c < 0x10000; ++c) {
    if (c >= 0xD800 && c <= 0xDFFF)
      continue;
    char utf8[4];
    const std::size_t size = c < 0x800 ? 2 : 3;
    if (size == 2) {
      utf8[0] = static_cast<char>(0xC0 | (c >> 6));
      utf8[1] = static_cast<char>(0x80 | (c & 0x3F));
    } else {
      utf8[0] = static_cast<char>(0xE0 | (c >> 12));
      utf8[1] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      utf8[2] = static_cast<char>(0x80 | (c & 0x3F));
    }
    const XMLCh alone[] = {static_cast<XMLCh>(c)};
    const XMLCh second[] = {'a', static_cast<XMLCh>(c)};
    ASSERT_EQ(isXmlName(utf8, size), xercesc::XMLChar1_0::isValidName(alone, 1))
        << std::hex << c;
    const std::string after = "a" + std::string(utf8, size);
    ASSERT_EQ(isXmlName(after.data(), after.size()),
              xercesc::XMLChar1_0::isValidName(second, 2))
        << std::hex << c;
  }
}

// ---------------------------------------------------------------------------
// Reader: the same answers as the DOM reader

const char kValuesText[] =
    "<UserContentContainer><DataElement ClassName=\"CurDbgPrompt\" "
    "SubKey=\"k\"><values Dec=\"42\" Hexish=\"0x10\" Spaced=\" 7\" "
    "Junk=\"abc\" Tail=\"12abc\" Neg=\"-5\" Big=\"99999999999\" "
    "ULLMax=\"18446744073709551615\" True=\"true\" Upper=\"TRUE\" "
    "Float=\"2.5\" K=\"/Root/a\\/b\" Tabbed=\"a&#9;b\tc\r\nd\" "
    "A=\"Address( 1 32 0 401000 0 )Address\" "
    "SC=\"Scope( Address( 1 32 0 401000 0 )Address 2F5200 3 4 )Scope\" "
    "\xc3\xa9=\"\xe2\x82\xac&lt;&#x1F600;\"/></DataElement>"
    "<Bare>text<a/>\n <![CDATA[ ]]>&#32;<b><values X=\"1\"/></b></Bare>"
    "</UserContentContainer>";

// One read on one reader, as a line: the answer and the value read.
template <class Value>
std::string readLine(const IDeserializerHelper& reader, const std::string& key,
                     Value start) {
  Value value = start;
  const bool answer = [&] {
    if constexpr (std::is_same<Value, bool>::value)
      return reader.getBool(key, &value);
    else if constexpr (std::is_same<Value, double>::value)
      return reader.getFloat(key, &value);
    else if constexpr (std::is_same<Value, std::string>::value)
      return reader.getString(key, &value);
    else if constexpr (std::is_same<Value, Address>::value)
      return reader.getAddress(key, &value);
    else if constexpr (std::is_same<Value, Scope>::value)
      return reader.getScope(key, &value);
    else if constexpr (std::is_same<Value, DbgDataKey>::value)
      return reader.getDbgDataKey(key, &value);
    else
      return reader.getInt(key, &value);
  }();
  std::ostringstream line;
  line << key << " " << answer << " " << value << "\n";
  return line.str();
}

// Every read of every key in the current node, and the walk of a list.
std::string transcript(IDeserializerHelper& reader) {
  std::string lines;
  const char* const keys[] = {"Dec",      "Hexish",  "Spaced", "Junk", "Tail",
                              "Neg",      "Big",     "ULLMax", "True", "Upper",
                              "Float",    "K",       "Tabbed", "A",    "SC",
                              "\xc3\xa9", "Missing", "X"};
  const auto allReads = [&] {
    for (const char* key : keys) {
      lines += readLine<int>(reader, key, 3) +
               readLine<unsigned int>(reader, key, 3) +
               readLine<long>(reader, key, 3) +
               readLine<unsigned long>(reader, key, 3) +
               readLine<long long>(reader, key, 3) +
               readLine<unsigned long long>(reader, key, 3) +
               readLine<bool>(reader, key, true) +
               readLine<double>(reader, key, 1.5) +
               readLine<std::string>(reader, key, "old") +
               readLine<Address>(reader, key, Address(0, 9, 0, 1, 32)) +
               readLine<Scope>(reader, key, Scope()) +
               readLine<DbgDataKey>(reader, key, DbgDataKey("/x"));
    }
    std::string className = "old", subKey = "old";
    lines += std::to_string(reader.getNameAndSubKey(&className, &subKey)) +
             " " + className + " " + subKey + "\n";
  };
  allReads(); // on the document element
  lines += std::to_string(reader.pushSection("DataElement")) + "\n";
  allReads();
  lines += std::to_string(reader.popSection()) +
           std::to_string(reader.pushFirstChildSection()) +
           std::to_string(reader.pushListSection("Bare")) + "\n";
  for (bool entered = reader.pushFirstChildSection(); entered;
       entered = reader.pushNextChildSection()) {
    allReads();
    lines += std::to_string(reader.pushSection("values")) +
             std::to_string(reader.popSection()) + "\n";
    lines += std::to_string(reader.popSection()) + "\n";
  }
  lines += std::to_string(reader.pushNextChildSection()) +
           std::to_string(reader.popListSection()) +
           std::to_string(reader.popListSection()) +
           std::to_string(reader.popSection()) +
           std::to_string(reader.popSection()) +
           std::to_string(reader.pushSection("DataElement")) + "\n";
  allReads(); // with no current node
  return lines;
}

TEST(XmlTextReader, AnswersEveryReadAsTheDomReader) {
  XmlTextDocument parsed;
  ASSERT_TRUE(parsed.parse(kValuesText));
  DeserializerHelperDOM domReader(parsed.getDocumentElement());
  DeserializerHelperXmlText fastReader;
  ASSERT_TRUE(fastReader.parse(kValuesText));
  testing::internal::CaptureStderr(); // the DOM reader's "not found" lines
  const std::string expected = transcript(domReader);
  testing::internal::GetCapturedStderr();
  const std::string got = transcript(fastReader);
  EXPECT_EQ(got, expected);
  EXPECT_NE(got.find("Tabbed 1 a\tb c d\n"), std::string::npos);
  EXPECT_NE(got.find("\xc3\xa9 1 \xe2\x82\xac<\xf0\x9f\x98\x80\n"),
            std::string::npos);

  // A "values" element with more keys than the reader searches one by one.
  std::string many = "<UserContentContainer><values";
  for (int i = 0; i < 50; ++i)
    many +=
        " k" + std::to_string(i * 7 % 50) + "=\"" + std::to_string(i) + "\"";
  many += "/><DataElement ClassName=\"CurDbgPrompt\" SubKey=\"p\"/>"
          "</UserContentContainer>";
  XmlTextDocument manyParsed;
  ASSERT_TRUE(manyParsed.parse(many) && fastReader.parse(many));
  DeserializerHelperDOM manyDom(manyParsed.getDocumentElement());
  for (int i = 0; i <= 50; ++i) {
    const std::string key = "k" + std::to_string(i);
    EXPECT_EQ(readLine<int>(fastReader, key, -1),
              readLine<int>(manyDom, key, -1));
  }

  // Without a document every read answers false.
  DeserializerHelperXmlText empty;
  std::string text = "old";
  EXPECT_FALSE(empty.getString("K", &text) || empty.pushSection("values") ||
               empty.popSection());
  EXPECT_EQ(empty.getObjectCount(), 0u);
  EXPECT_EQ(empty.getDocumentElementName(), "");
}

TEST(XmlTextReaderDeathTest, NullOutputsAreFatalAsInTheDomReader) {
  DeserializerHelperXmlText reader;
  ASSERT_TRUE(reader.parse(kValuesText));
  std::string text;
  EXPECT_DEATH(reader.getInt("Dec", static_cast<int*>(nullptr)), "");
  EXPECT_DEATH(reader.getScope("SC", nullptr), "");
  EXPECT_DEATH(reader.getNameAndSubKey(nullptr, &text), "");
}

// ---------------------------------------------------------------------------
// Reader: bad text

std::string container(const std::string& inner) {
  return "<UserContentContainer>" + inner + "</UserContentContainer>";
}

const char kPrompt[] =
    "<DataElement ClassName=\"CurDbgPrompt\" SubKey=\"p\"><attributes/>"
    "<values PromptText=\"&gt;\"/></DataElement>";

struct BadText {
  std::string text;
  unsigned long line;
  unsigned long column;
  const char* message; // a part of it
};

TEST(XmlTextReader, RefusesBadTextWithOneErrorNamingLineAndColumn) {
  std::string deep;
  for (unsigned i = 0; i < kMaxLayoutDepth; ++i)
    deep += "<a>";
  // Twenty attributes in order, then one of them again.
  std::string many = "<a";
  for (int i = 0; i < 20; ++i)
    many +=
        std::string(" k") + char('0' + i / 10) + char('0' + i % 10) + "='1'";
  many += " k05='2'/>";
  const BadText cases[] = {
      {"", 1, 1, "not XML: no document element"},
      {"just text", 1, 1, "not XML: expected the document element"},
      {"<UserContentContainer>\n<DataElement", 2, 13, "not XML: the text ends"},
      {"<a><b></a>", 1, 7, "does not match the start tag \"b\""},
      {"<a x='1' x='2'/>", 1, 10, "\"x\" is given twice"},
      {"<a b='1' a='2' b='3'/>", 1, 16, "\"b\" is given twice"},
      {many, 1, 164, "\"k05\" is given twice"},
      {"<a x='<'/>", 1, 7, "not XML: \"<\" in attribute value"},
      {"<a x='&'/>", 1, 8, "not XML: expected an entity name"},
      {"<a x='&nbsp;'/>", 1, 7, "the entity \"nbsp\" is not declared"},
      {"<a x='&#1;'/>", 1, 7, "character reference to a character"},
      {"<a x='\x01'/>", 1, 7, "a character XML does not allow"},
      {"<a x='\xc3'/>", 1, 7, "ill-formed UTF-8"},
      {"<a x='1'y='2'/>", 1, 9, "expected white space"},
      {"<a/><b/>", 1, 5, "content after the document element"},
      {"<a/>text", 1, 5, "content after the document element"},
      {"<a>]]></a>", 1, 4, "\"]]>\" in text"},
      {"<a><!-- a -- b --></a>", 1, 11, "\"--\" inside a comment"},
      {" <?xml version='1.0'?><a/>", 1, 2, "XML declaration stands only"},
      {"<?xml version='2.0'?><a/>", 1, 16, "unsupported XML version"},
      {"<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>", 1, 1,
       "a document type declaration is not accepted"},
      {"<?xml version='1.1'?><a/>", 1, 16, "XML version 1.1 is not accepted"},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><a/>", 1, 31,
       "the encoding \"ISO-8859-1\" is not accepted"},
      {std::string("\xff\xfe<\0a\0/\0>\0", 10), 1, 1,
       "UTF-16 text is not accepted"},
      {deep + "<b/>", 1, 1 + 3 * kMaxLayoutDepth,
       "elements nested deeper than 600 are not accepted"},
      // Layouts on which the deserializer would stop the process.
      {"<UserContentContainer/>", 1, 1,
       "not the layout of serialized data: the document element holds no "
       "data object"},
      {container("<Child>" + std::string(kPrompt) + "</Child>"), 1, 1,
       "holds no data object"},
      {container("\n<DataList ClassName='DataList' SubKey='l'><List>\n x "
                 "</List></DataList>"),
       2, 49, "text stands where an element holding a data object must be"},
      {container("<DataList ClassName='DataList' SubKey='l'><List>"
                 "<Child/></List></DataList>"),
       1, 71, "no data object where one must be"},
      {container("<DataElement ClassName='CurDbgPrompt' SubKey='r'>"
                 "<EngineData><List/></EngineData></DataElement>"),
       1, 72, "a \"List\" section stands where a data object must be"},
      {container("<DataListWC ClassName='DataListWC' SubKey='l'><List/>"
                 "<Content><Child/></Content></DataListWC>"),
       1, 76, "a \"Child\" section stands where a data object must be"},
  };
  for (const BadText& c : cases) {
    SCOPED_TRACE(c.text.substr(0, 80));
    DeserializerHelperXmlText reader;
    ASSERT_TRUE(reader.parse(container(kPrompt))); // replaced by the failure
    XmlTextError error;
    EXPECT_FALSE(reader.parse(c.text, &error));
    EXPECT_NE(error.message.find(c.message), std::string::npos)
        << error.message;
    EXPECT_EQ(error.message.find('\n'), std::string::npos);
    EXPECT_EQ(error.line, c.line);
    EXPECT_EQ(error.column, c.column);
    EXPECT_EQ(reader.getObjectCount(), 0u);
    EXPECT_FALSE(reader.pushSection("DataElement"));
  }
}

TEST(XmlTextReader, ReadsUpToTheDeepestNestingAndRefusesOneLevelMore) {
  // A chain of objects, each the engine data of the one before: object k
  // stands at depth 2k, its "values" at 2k + 1.
  const auto chain = [](int objects) {
    std::unique_ptr<DataElement> first;
    DataElement* last = nullptr;
    for (int i = 0; i < objects; ++i) {
      auto* object = static_cast<DataElement*>(
          st_ddmanager.factory("CurDbgPrompt", std::to_string(i)));
      if (last)
        last->setEngineData(object);
      else
        first.reset(object);
      last = object;
    }
    return first;
  };
  const int deepest = (kMaxLayoutDepth - 1) / 2;
  const std::unique_ptr<DataElement> fits = chain(deepest);
  const Object copy = readFast(fastText({fits.get()}, true));
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(fastText({copy.get()}, false), fastText({fits.get()}, false));

  const std::unique_ptr<DataElement> tooDeep = chain(deepest + 1);
  XmlTextError error;
  EXPECT_FALSE(DeserializerHelperXmlText().parse(
      fastText({tooDeep.get()}, false), &error));
  EXPECT_NE(error.message.find("nested deeper than"), std::string::npos);
}

TEST(XmlTextReaderDeathTest, RefusedLayoutsAreTheOnesThatStopTheDomPath) {
  for (const char* inner :
       {"", "<Child/>",
        "<DataList ClassName='DataList' SubKey='l'><List>x</List></DataList>",
        "<DataElement ClassName='CurDbgPrompt' SubKey='r'><EngineData/>"
        "</DataElement>"}) {
    SCOPED_TRACE(inner);
    EXPECT_FALSE(DeserializerHelperXmlText().parse(container(inner)));
    EXPECT_DEATH(readWithDom(container(inner)), "");
  }
}

TEST(XmlTextReader, ReadsOddButHarmlessLayoutsAsTheDomPathDoes) {
  const std::string cases[] = {
      // Nothing below an object of an unknown class, or of the wrong kind,
      // is read, so nothing below it is checked.
      container("<DataElement ClassName='Nope' SubKey='n'><EngineData/>"
                "</DataElement>"),
      container("<DataList ClassName='Root' SubKey='n'><List>x</List>"
                "</DataList>"),
      container("<DataElement SubKey='n'><EngineData/></DataElement>"),
      // Elements the deserializer does not look at; comments, blanks and
      // character references to blanks between list children.
      container("<Foo/><Bar>text</Bar>" + std::string(kPrompt)),
      container("<DataList ClassName='DataList' SubKey='l'><Extra/><List>\n"
                "  <Child>" +
                std::string(kPrompt) + "</Child> &#32;&#10; <Wrapper>" +
                kPrompt + "</Wrapper></List></DataList>"),
      "\xef\xbb\xbf<?xml version='1.0' encoding='utf-8' standalone='yes'?>"
      "<!-- c --><?pi x?>" +
          container(std::string("<!-- in -->") + kPrompt) + "<!-- after -->",
  };
  for (const std::string& text : cases) {
    SCOPED_TRACE(text);
    const Object fromDom = readWithDom(text);
    const Object fromFast = readFast(text);
    ASSERT_EQ(fromFast == nullptr, fromDom == nullptr);
    if (fromDom) {
      EXPECT_EQ(fastText({fromFast.get()}, false),
                fastText({fromDom.get()}, false));
    }
  }
}

} // namespace
