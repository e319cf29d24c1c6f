// Events, signals, process info, plug-in data items and the small items:
// keys, orders, defaults and asymmetries, string list bounds, line-feed
// escaping, and the plug-in data path through the deserializer.
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "eventsdata.h"
#include "plugindataitem.h"
#include "processinfodata.h"
#include "reentrantcallinfo.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "signaldata.h"
#include "stringlistdata.h"
#include "testsupport.h"
#include "testsupport_classes.h"
#include "testsupport_xml.h"
#include "usertoolbardata.h"
#include "xmltext.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace Vemo::DbgData;
using TestSupport::ClassCase;
using TestSupport::dumpText;
using TestSupport::make;
using TestSupport::NotCompared;
using TestSupport::on;

namespace {

const std::vector<ClassCase>& classCases() {
  static const std::vector<ClassCase> cases = {
      {"Events", {}, {}},
      {"SignalListContent", {}, {}},
      {"SignalItem",
       {"Name=", "Stop=false", "Print=false", "PassToProg=false",
        "Description=", "ReadOnly=false", "Triggered=false"},
       {{on(&SignalItem::setName, "SIGINT"), "Name=SIGINT"},
        {on(&SignalItem::setStop, true), "Stop=true"},
        {on(&SignalItem::setPrint, true), "Print=true"},
        {on(&SignalItem::setPassToProg, true), "PassToProg=true"},
        {on(&SignalItem::setDescription, "d"), "Description=d"},
        {on(&SignalItem::setReadOnly, true), "ReadOnly=true", NotCompared},
        {on(&SignalItem::setTriggered, true), "Triggered=true"}}},
      {"ProcessInfoListContent",
       {"DescriptionHeader="},
       {{on(&ProcessInfoListContent::setDescriptionHeader, "h"),
         "DescriptionHeader=h"}}},
      {"ProcessInfoItem",
       {"Command=", "PID=", "Description=", "Attached=false"},
       {{on(&ProcessInfoItem::setCommand, "a.out"), "Command=a.out"},
        {on(&ProcessInfoItem::setPID, "42"), "PID=42"},
        {on(&ProcessInfoItem::setDescription, "d"), "Description=d"},
        {on(&ProcessInfoItem::setAttached, true), "Attached=true"}}},
      {"PlugInItem", {}, {}},
      {"ReEntrantCallInfo",
       {"AddressText=", "EnableDetection=false"},
       {{on(&ReEntrantCallItem::setAddressText, "0x10"), "AddressText=0x10"},
        {on(&ReEntrantCallItem::setEnableDetection, true),
         "EnableDetection=true"}}},
      {"StringList",
       {"NumOfElements=0"},
       {{on(&StringList::addStringItem, "x"), "LF0000=x"}}},
      {"UserToolBarItem",
       {"Name=", "Command=", "ToolTip=", "Arguments=false", "Execute=false"},
       {{on(&UserToolBarItem::setName, "n"), "Name=n"},
        {on(&UserToolBarItem::setCommand, "a\nb"), "Command=a&#10;b"},
        {on(&UserToolBarItem::setToolTip, "\n\n"), "ToolTip=&#10;&#10;"},
        {[](DebuggerData& o) {
           static_cast<UserToolBarItem&>(o).setArguments();
         },
         "Arguments=true"},
        {on(&UserToolBarItem::setExecute, true), "Execute=true"}}},
  };
  return cases;
}

// Reads the given "values" attributes into object, as the deserializer lets
// an object read its members.
bool readValues(DebuggerData& object, const std::string& attributes) {
  XmlTextDocument document;
  EXPECT_TRUE(document.parse("<UserContentContainer><DataElement ClassName="
                             "\"x\" SubKey=\"k\"><attributes/><values " +
                             attributes +
                             "/></DataElement></UserContentContainer>"));
  DeserializerHelperDOM reader(document.getDocumentElement());
  EXPECT_TRUE(reader.pushSection("DataElement"));
  return object.deserializeMembers(&reader);
}

std::vector<std::string> itemsOf(const StringList& list) {
  std::vector<std::string> items;
  for (unsigned long i = 0; i < list.getSize(); ++i)
    items.push_back(list.getStringItem(i));
  return items;
}

// Plug-in data of the tests: one number, and a count of live objects.
struct TestPlugIn : IPlugInData {
  static int live;
  long number;
  explicit TestPlugIn(long n) : number(n) { ++live; }
  ~TestPlugIn() override { --live; }
  bool serialize(ISerializerHelper* w) const override {
    return w->setString("PlugInDataKey", "TestKey") &&
           w->setInt("Number", number);
  }
  bool deserialize(IDeserializerHelper* r) override {
    return r->getInt("Number", &number);
  }
  bool compare(const IPlugInData* other) const override {
    auto* same = dynamic_cast<const TestPlugIn*>(other);
    return same && same->number == number;
  }
  IPlugInData* clone() const override { return new TestPlugIn(number); }
};
int TestPlugIn::live = 0;

// Owns what it makes; answers null for keys other than "TestKey". Installed
// on the shared deserializer for its lifetime.
struct TestPlugInFactory : IPlugInDataFactory {
  std::vector<std::string> keys;
  std::vector<std::unique_ptr<TestPlugIn>> made;
  explicit TestPlugInFactory() {
    getDeserializer()->setPlugInDataFactory(this);
  }
  ~TestPlugInFactory() override {
    getDeserializer()->setPlugInDataFactory(nullptr);
  }
  IPlugInData* createPlugInData(const std::string& key) override {
    keys.push_back(key);
    if (key != "TestKey")
      return nullptr;
    made.push_back(std::make_unique<TestPlugIn>(0));
    return made.back().get();
  }
};

PlugInDataItem* plugInItemOf(const std::unique_ptr<DebuggerData>& object) {
  EXPECT_TRUE(object && object->isKindOf(PlugInDataItem::staticRtti()));
  return static_cast<PlugInDataItem*>(object.get());
}

} // namespace

TEST(SmallItems, DefaultsKeysAndWriteOrder) {
  TestSupport::checkDefaultsKeysAndWriteOrder(classCases());
}

TEST(SmallItems, EveryFieldIsComparedClonedAssignedAndWritten) {
  TestSupport::checkFieldsCompareCloneAssignAndWrite(classCases());
}

TEST(SmallItemsDeathTest, AssigningAcrossClassesAborts) {
  TestSupport::checkAssigningAcrossClassesAborts(classCases());
}

TEST(SmallItems, TwoRowsCreateClassesOfOtherNames) {
  const std::pair<const char*, const char*> rows[] = {
      {"PlugInItem", "PlugInDataItem"},
      {"ReEntrantCallInfo", "ReEntrantCallItem"}};
  for (const auto& row : rows) {
    std::unique_ptr<DebuggerData> object(st_ddmanager.factory(row.first, "s"));
    ASSERT_TRUE(object) << row.first;
    EXPECT_STREQ(object->getRtti()->getClassName(), row.second);
    EXPECT_EQ(object->getClassName(), row.first);
    EXPECT_EQ(st_ddmanager.factory(row.second, "s"), nullptr);
  }
  EXPECT_EQ(st_ddmanager.factory(DDID_PlugInListContent, "s"), nullptr);
}

TEST(StringList, KeysOfElevenAndOfFiveDigitIndexes) {
  auto list = make<StringList>("StringList", "k");
  std::vector<std::string> lines = {"NumOfElements=11"};
  for (char c : std::string("0123456789A")) {
    list->addStringItem(std::string(1, c));
    lines.push_back(std::string("LF000") + c + "=" + c);
  }
  EXPECT_EQ(dumpText(*list), TestSupport::leafDump("StringList", lines));

  for (unsigned long i = 11; i <= 0x10000; ++i)
    list->addStringItem("");
  const std::string dump = dumpText(*list);
  EXPECT_NE(dump.find("\n  LF00FF=\n"), std::string::npos);
  EXPECT_NE(dump.find("\n  LFFFFF=\n  LF10000=\n}"), std::string::npos);
}

TEST(StringList, ReadingCloneAndAssignmentAppend) {
  auto list = make<StringList>("StringList", "k");
  list->addStringItem("old");
  EXPECT_TRUE(
      readValues(*list, "NumOfElements=\"3\" LF0000=\"a\" LF0002=\"c\""));
  // An absent attribute reads as found and empty.
  EXPECT_EQ(itemsOf(*list), (std::vector<std::string>{"old", "a", "", "c"}));

  auto two = make<StringList>("StringList", "k");
  two->addStringItem("x");
  two->addStringItem("y");
  *list = *two;
  EXPECT_EQ(list->getSize(), 6ul);
  std::unique_ptr<DebuggerData> copy(two->clone());
  EXPECT_EQ(*copy, *two);
  *two = *two; // appends to itself
  EXPECT_EQ(itemsOf(*two), (std::vector<std::string>{"x", "y", "x", "y"}));
  EXPECT_FALSE(*two == *copy);
}

TEST(StringList, OutsideCountsAboveTheBoundAreRefused) {
  auto list = make<StringList>("StringList", "k");
  list->addStringItem("kept");
  // Two values in the section: up to 2 + 16 elements are believed, and
  // the missing ones read as empty.
  EXPECT_TRUE(readValues(*list, "NumOfElements=\"18\" LF0000=\"x\""));
  EXPECT_EQ(list->getSize(), 19ul);
  list = make<StringList>("StringList", "k");
  list->addStringItem("kept");
  for (const char* count : {"19", "1048577", "18446744073709551615", "-1"}) {
    EXPECT_FALSE(readValues(*list, std::string("NumOfElements=\"") + count +
                                       "\" LF0000=\"x\""))
        << count;
    EXPECT_EQ(itemsOf(*list), std::vector<std::string>{"kept"}) << count;
  }
  EXPECT_TRUE(readValues(*list, "NumOfElements=\"junk\""));
  EXPECT_EQ(list->getSize(), 1ul);
}

TEST(StringList, FindAndOutOfRange) {
  StringList list;
  EXPECT_EQ(list.find("a"), ULONG_MAX);
  for (const char* item : {"a", "b", "a"})
    list.addStringItem(item);
  EXPECT_EQ(list.find("a"), 0ul);
  EXPECT_EQ(list.find("b"), 1ul);
  EXPECT_EQ(list.find("c"), ULONG_MAX);
  EXPECT_THROW(list.getStringItem(3), std::out_of_range);
  EXPECT_THROW(list.getStringItem(ULONG_MAX), std::out_of_range);
}

TEST(UserToolBarItem, LineFeedsAreEscapedAndEveryEscapeReadsBack) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\nb", "a\nb"},
      {"typed &#10; text", "typed \n text"},
      {"&&#10;#10;", "&\n#10;"}, // one pass, on after each replacement
      {"\n&#10;\n", "\n\n\n"},
  };
  for (const auto& c : cases) {
    auto item = make<UserToolBarItem>("UserToolBarItem", "k");
    item->setName(c.first);
    item->setCommand(c.first);
    item->setToolTip(c.first);
    auto back = TestSupport::xmlRoundTrip(*item, true);
    ASSERT_TRUE(back);
    const auto& read = static_cast<const UserToolBarItem&>(*back);
    EXPECT_EQ(read.getName(), c.first);
    EXPECT_EQ(read.getCommand(), c.second);
    EXPECT_EQ(read.getToolTip(), c.second);
  }
  auto item = make<UserToolBarItem>("UserToolBarItem", "k");
  item->setCommand("a\nb");
  EXPECT_NE(TestSupport::xmlOutline(*item).find(" Command=a&#10;b "),
            std::string::npos);
  EXPECT_EQ(item->getCommand(), "a\nb");
}

TEST(UserToolBarItem, ArgumentsIsOnlySetByCopiesButClearedByReading) {
  auto on = make<UserToolBarItem>("UserToolBarItem", "k");
  auto off = make<UserToolBarItem>("UserToolBarItem", "k");
  on->setArguments();
  off->setExecute(true);
  *on = *off;
  EXPECT_TRUE(on->hasArguments());
  EXPECT_TRUE(on->isExecute());
  EXPECT_TRUE(readValues(*on, "Arguments=\"false\""));
  EXPECT_FALSE(on->hasArguments());
}

TEST(PlugInDataItem, OwnsNothingComparesOneSidedClonesDeeplyAssignsBaseOnly) {
  TestPlugIn data(7);
  {
    auto with = make<PlugInDataItem>("PlugInItem", "k");
    auto without = make<PlugInDataItem>("PlugInItem", "k");
    with->setPlugInData(&data);
    EXPECT_EQ(dumpText(*with),
              TestSupport::leafDump("PlugInItem",
                                    {"PlugInDataKey=TestKey", "Number=7"}));
    EXPECT_TRUE(*without == *with);
    EXPECT_FALSE(*with == *without);

    std::unique_ptr<DebuggerData> copy(with->clone());
    IPlugInData* cloned = plugInItemOf(copy)->getPlugInData();
    ASSERT_NE(cloned, nullptr);
    EXPECT_NE(cloned, &data);
    EXPECT_TRUE(*with == *copy);
    EXPECT_EQ(TestPlugIn::live, 2);
    delete cloned; // the plug-in side's to release

    auto other = make<PlugInDataItem>("PlugInItem", "b");
    TestPlugIn kept(8);
    other->setPlugInData(&kept);
    *other = *without;
    EXPECT_EQ(other->getSubKey(), "k");
    EXPECT_EQ(other->getPlugInData(), &kept);
  }
  EXPECT_EQ(TestPlugIn::live, 1); // the items released nothing
}

TEST(PlugInDataItem, DeserializerMakesPlugInDataWithTheFactory) {
  TestPlugIn data(-5);
  auto item = make<PlugInDataItem>("PlugInItem", "p");
  item->setPlugInData(&data);
  {
    TestPlugInFactory factory;
    auto back = TestSupport::xmlRoundTrip(*item, true);
    ASSERT_EQ(factory.keys, std::vector<std::string>{"TestKey"});
    EXPECT_EQ(plugInItemOf(back)->getPlugInData(), factory.made[0].get());
    EXPECT_EQ(factory.made[0]->number, -5);
    EXPECT_TRUE(*item == *back);
  }
  // Without a factory, or with a key the factory does not know: no data.
  auto back = TestSupport::xmlRoundTrip(*item, false);
  EXPECT_EQ(plugInItemOf(back)->getPlugInData(), nullptr);
  TestPlugInFactory factory;
  auto unknown = TestSupport::readXmlText(
      "<UserContentContainer><DataElement ClassName=\"PlugInItem\" "
      "SubKey=\"p\"><attributes/><values PlugInDataKey=\"Other\" "
      "Number=\"1\"/></DataElement></UserContentContainer>");
  EXPECT_EQ(factory.keys, std::vector<std::string>{"Other"});
  EXPECT_EQ(plugInItemOf(unknown)->getPlugInData(), nullptr);
  // Other classes never ask the factory.
  auto signal = make<SignalItem>("SignalItem", "s");
  EXPECT_TRUE(TestSupport::xmlRoundTrip(*signal, false));
  EXPECT_EQ(factory.keys.size(), 1u);
}

TEST(SmallItemsSelfCheck, PlugInItemRoundTripsAndPutsTheFactoryBack) {
  // A writer that drops one key of the plug-in data.
  struct Dropping : SerializerHelperDOM {
    bool setString(const std::string& key, const std::string& value) override {
      return key == "PlugInText" || SerializerHelperDOM::setString(key, value);
    }
  };
  SerializerHelperDOM writer;
  Dropping dropping;
  DeserializerHelperDOM reader;
  g_desHlp = &reader;
  TestPlugInFactory previous;
  g_serHlp = &writer;
  testing::internal::CaptureStdout();
  EXPECT_TRUE(runSerializationRoundTrip("PlugInItem"));
  EXPECT_EQ(
      testing::internal::GetCapturedStdout(),
      "Test for debugger data class PlugInItem successfully completed.\n");
  g_serHlp = &dropping;
  testing::internal::CaptureStderr();
  EXPECT_FALSE(runSerializationRoundTrip("PlugInItem"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Error: Content of debugger data class PlugInItem corupted after "
            "serialization & deserialization.\n");
  EXPECT_EQ(getDeserializer()->getPlugInDataFactory(), &previous);
  EXPECT_TRUE(previous.keys.empty());
  g_serHlp = nullptr;
  g_desHlp = nullptr;

  // The samples that the keys and escapes must show.
  auto list = make<StringList>("StringList", "s");
  fillStringList(list.get());
  EXPECT_NE(dumpText(*list).find("\n  LF000A="), std::string::npos);
  auto button = make<UserToolBarItem>("UserToolBarItem", "s");
  fillUserToolBarItem(button.get());
  EXPECT_NE(button->getCommand().find('\n'), std::string::npos);
}
