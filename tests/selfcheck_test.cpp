// The built-in self-check: its result lines, its sample objects, the round
// trip catching each kind of fault, and the full-key checks.
#include "dbgdatakey.h"
#include "ddmanager.h"
#include "debuggerstatedata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "registerdata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"
#include "testsupport.h"
#include "xmltext.h"

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include <functional>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace Vemo::DbgData;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

namespace {

struct Output {
  std::string out;
  std::string err;
};

template <class F> Output capture(F&& run) {
  CaptureStdout();
  CaptureStderr();
  run();
  Output output;
  output.err = GetCapturedStderr();
  output.out = GetCapturedStdout();
  return output;
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    result.push_back(line);
  return result;
}

// Class names of every row the factory can make, in row order.
std::vector<std::string> creatableClasses() {
  std::vector<std::string> names;
  for (int row = 0; row < DDID_Undefined; ++row) {
    const auto id = static_cast<DebuggerDataID>(row);
    std::unique_ptr<DebuggerData> probe(st_ddmanager.factory(id, ""));
    if (probe)
      names.push_back(DbgDataManager::getClassName(id));
  }
  return names;
}

// Sets the round trip's helpers for one test and clears them afterwards.
struct Helpers {
  Helpers(ISerializerHelper* writer, IDeserializerHelper* reader) {
    g_serHlp = writer;
    g_desHlp = reader;
  }
  ~Helpers() {
    g_serHlp = nullptr;
    g_desHlp = nullptr;
  }
};

// Writers and readers with one deliberate fault each.
class KeyDroppingWriter : public SerializerHelperDOM {
public:
  explicit KeyDroppingWriter(std::string key) : m_key(std::move(key)) {}
  bool setString(const std::string& key, const std::string& value) override {
    return key == m_key || SerializerHelperDOM::setString(key, value);
  }

private:
  std::string m_key;
};

class KeyRefusingWriter : public SerializerHelperDOM {
public:
  bool setString(const std::string& key, const std::string& value) override {
    return key != "Value" && SerializerHelperDOM::setString(key, value);
  }
};

class FirstChildOnlyReader : public DeserializerHelperDOM {
public:
  bool pushNextChildSection() override { return false; }
};

class NamelessReader : public DeserializerHelperDOM {
public:
  bool getNameAndSubKey(std::string*, std::string*) const override {
    return false;
  }
};

} // namespace

TEST(SelfCheckReport, LinesGoToTheirStreamWordForWord) {
  const DbgDataKey key("/Root/Console/CurDbgPrompt");
  struct Case {
    std::function<void()> report;
    bool toStdout;
    const char* line;
  };
  const Case cases[] = {
      {[] { report_ok("Root"); }, true,
       "Test for debugger data class Root successfully completed."},
      {[&] { report_fullkey_ok(key); }, true,
       "Fullkey test for /Root/Console/CurDbgPrompt successfully completed."},
      {[] { error_serialization("Root"); }, false,
       "Error: Could not serialize debugger data class Root."},
      {[] { error_deserialization("Root"); }, false,
       "Error: Could not deserialize debugger data class Root."},
      {[] { error_deserialization_listsize("DataList"); }, false,
       "Error: Deserialization of children not correct for debugger data "
       "class DataList."},
      {[] { error_cannot_create("X"); }, false,
       "Error: Could not create debugger data class X."},
      {[] { error_content_corrupt("Root"); }, false,
       "Error: Content of debugger data class Root corupted after "
       "serialization & deserialization."},
      {[&] { error_fullkey(key); }, false,
       "Error: problem with fullkey creation / parsing of key "
       "/Root/Console/CurDbgPrompt."},
  };
  for (const Case& c : cases) {
    const Output output = capture(c.report);
    EXPECT_EQ(c.toStdout ? output.out : output.err, std::string(c.line) + "\n");
    EXPECT_EQ(c.toStdout ? output.err : output.out, "");
  }
}

TEST(SelfCheck, EveryCreatableClassAndEveryKeyPassesWithTheSwitchesOn) {
  ASSERT_EQ(g_runSerializationTest, 1);
  ASSERT_EQ(g_runFullKeyTest, 1);
  int errors = -1;
  const Output output = capture([&] { errors = runSelfCheck(); });
  EXPECT_EQ(errors, 0);
  EXPECT_EQ(output.err, "");

  std::vector<std::string> expected;
  for (const std::string& name : creatableClasses())
    expected.push_back("Test for debugger data class " + name +
                       " successfully completed.");
  const std::vector<std::string> printed = lines(output.out);
  ASSERT_EQ(printed.size(), expected.size() + 55);
  EXPECT_EQ(std::vector<std::string>(printed.begin(),
                                     printed.begin() + expected.size()),
            expected);
  for (std::size_t i = expected.size(); i < printed.size(); ++i)
    EXPECT_EQ(printed[i].rfind("Fullkey test for /Root", 0), 0u) << printed[i];
  // The helpers made for the run are gone again.
  EXPECT_EQ(g_serHlp, nullptr);
  EXPECT_EQ(g_desHlp, nullptr);
}

TEST(SelfCheck, SwitchesSelectTheGroups) {
  struct Case {
    int serialization;
    int fullKey;
    std::size_t lineCount;
  };
  const std::size_t classes = creatableClasses().size();
  for (const Case& c : {Case{1, 0, classes}, Case{0, 1, 55}, Case{0, 0, 0}}) {
    g_runSerializationTest = c.serialization;
    g_runFullKeyTest = c.fullKey;
    const Output output = capture([] { runSelfCheck(); });
    EXPECT_EQ(lines(output.out).size(), c.lineCount);
  }
  g_runSerializationTest = 1;
  g_runFullKeyTest = 1;
}

TEST(SelfCheck, EachFaultOfTheRoundTripPrintsItsOneLine) {
  XmlPlatform xml;
  struct Case {
    const char* className;
    std::function<SerializerHelperDOM*()> writer;
    std::function<DeserializerHelperDOM*()> reader;
    const char* line;
  };
  const auto plainWriter = [] { return new SerializerHelperDOM(); };
  const auto plainReader = [] { return new DeserializerHelperDOM(); };
  const Case cases[] = {
      {"CurDbgPrompt", [] { return new KeyDroppingWriter("PromptText"); },
       plainReader,
       "Error: Content of debugger data class CurDbgPrompt corupted after "
       "serialization & deserialization."},
      // A member lost in a child makes the list differ.
      {"DataList", [] { return new KeyDroppingWriter("Description"); },
       plainReader,
       "Error: Content of debugger data class DataList corupted after "
       "serialization & deserialization."},
      {"RegisterItem", [] { return new KeyRefusingWriter(); }, plainReader,
       "Error: Could not serialize debugger data class RegisterItem."},
      {"DataListWC", plainWriter, [] { return new FirstChildOnlyReader(); },
       "Error: Deserialization of children not correct for debugger data "
       "class DataListWC."},
      {"Root", plainWriter, [] { return new NamelessReader(); },
       "Error: Could not deserialize debugger data class Root."},
      {"NoSuchClass", plainWriter, plainReader,
       "Error: Could not create debugger data class NoSuchClass."},
  };
  for (const Case& c : cases) {
    std::unique_ptr<SerializerHelperDOM> writer(c.writer());
    std::unique_ptr<DeserializerHelperDOM> reader(c.reader());
    Helpers helpers(writer.get(), reader.get());
    bool passed = true;
    const Output output =
        capture([&] { passed = runSerializationRoundTrip(c.className); });
    EXPECT_FALSE(passed) << c.className;
    EXPECT_EQ(output.err, std::string(c.line) + "\n");
    EXPECT_EQ(output.out, "");
  }

  // A writer that builds no DOM cannot hand anything to the reader.
  SerializerHelperString text;
  DeserializerHelperDOM reader;
  Helpers helpers(&text, &reader);
  const Output output = capture([] { runSerializationRoundTrip("Root"); });
  EXPECT_EQ(output.err,
            "Error: Could not serialize debugger data class Root.\n");
}

TEST(SelfCheckFill, SamplesDifferFromDefaultsAndCarryEngineData) {
  // Classes whose members have no sample values compare equal to a fresh
  // object; every other fill must change something that == sees.
  const std::set<std::string> noOwnMembers = {"DebuggerState",
                                              "StackFrameListContent"};
  for (const std::string& name : creatableClasses()) {
    DebuggerDataID id;
    ASSERT_TRUE(st_ddmanager.getClassId(name, &id));
    SelfCheckFill fill = findSelfCheckFill(id);
    ASSERT_NE(fill, nullptr) << name << " has no fill function";
    std::unique_ptr<DebuggerData> filled(st_ddmanager.factory(name, "s"));
    std::unique_ptr<DebuggerData> fresh(st_ddmanager.factory(name, "s"));
    fill(filled.get());
    EXPECT_EQ(*filled == *fresh, noOwnMembers.count(name) == 1) << name;
    if (filled->isKindOf(DataElement::staticRtti())) {
      EXPECT_NE(filled->getEngineData(), nullptr) << name;
    }
  }

  // The standard engine data, and the registers of the sample list.
  auto list = TestSupport::make<DataListWC>("DataListWC", "l");
  fillDataListWC(list.get());
  ASSERT_NE(list->getContent(), nullptr);
  EXPECT_EQ(list->getContent()->getClassName(), "StackFrameListContent");
  ASSERT_NE(list->getSpecialItem(), nullptr);
  EXPECT_EQ(list->getSpecialItem()->getSubKey(), "R1");
  const auto* r2 = static_cast<const RegisterItem*>(list->getChild("R2"));
  ASSERT_NE(r2, nullptr);
  EXPECT_EQ(r2->getName(), "R2");
  EXPECT_EQ(r2->getValue(), "0x12345678");
  EXPECT_EQ(r2->getExpression(), "expression");
  EXPECT_EQ(r2->getDescription(), "Description: Register R2 blablabla");
  EXPECT_EQ(r2->getType(), 3);
  const auto* engine = static_cast<const RegisterItem*>(r2->getEngineData());
  ASSERT_NE(engine, nullptr);
  EXPECT_EQ(engine->getClassName(), "RegisterItem");
  EXPECT_EQ(engine->getSubKey(), "Internal");
  EXPECT_EQ(engine->getName(), "Internal");
  EXPECT_EQ(engine->getDescription(), "Description: ZMT specific engine data");
  EXPECT_EQ(engine->getType(), 2);
  EXPECT_EQ(engine->getFlags(), 1);
}

TEST(SelfCheckFill, EngineDataOfAMemberlessSampleSurvivesTheXmlRoundTrip) {
  XmlPlatform xml;
  auto state = TestSupport::make<DebuggerState>("DebuggerState", "s");
  fillDebuggerState(state.get());
  SerializerHelperDOM writer;
  ASSERT_TRUE(state->serialize(&writer));
  DeserializerHelperDOM reader(writer.getDocument()->getDocumentElement());
  std::unique_ptr<DebuggerData> copy(getDeserializer()->deserialize(&reader));
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(TestSupport::dumpText(*copy), TestSupport::dumpText(*state));
  ASSERT_NE(copy->getEngineData(), nullptr);
  EXPECT_TRUE(*copy->getEngineData() == *state->getEngineData());
}

TEST(SelfCheckFullKey, TableListsEveryNodeOnceAndChecksTheParsedPlace) {
  std::size_t count = 0;
  const SelfCheckFullKeyCheck* checks = getSelfCheckFullKeyChecks(&count);
  ASSERT_EQ(count, 55u);
  std::set<std::string> nodes;
  for (std::size_t i = 0; i < count; ++i)
    nodes.insert(checks[i].node);
  EXPECT_EQ(nodes.size(), 55u);
  EXPECT_STREQ(checks[0].node, "ContextRegisterGrpList");
  EXPECT_EQ(checks[0].check, &checkFullKeyContextRegisterGrpList);

  // A builder named "List" whose key ends in a sample sub key passes with
  // the item place the automaton gives it.
  Output output = capture([] { EXPECT_TRUE(checkFullKeyDisAsmList()); });
  EXPECT_EQ(output.out, "Fullkey test for /Root/ParallelJob[]/0/Jobs[]/1/"
                        "Process[]/2/DisAsm[]/3 successfully completed.\n");

  // The wrong expected place, and a key the automaton rejects.
  const auto root = [](DbgDataKey& key) {
    return st_ddmanager.createFullKeyRoot(key);
  };
  const auto beyondEnd = [](DbgDataKey& key) {
    st_ddmanager.createFullKeyCurDbgPrompt(key);
    key << "x";
    return true;
  };
  output = capture([&] { EXPECT_FALSE(runFullKeyCheck(root, DDH_Console)); });
  EXPECT_EQ(output.err,
            "Error: problem with fullkey creation / parsing of key /Root.\n");
  output = capture(
      [&] { EXPECT_FALSE(runFullKeyCheck(beyondEnd, DDH_CurDbgPrompt)); });
  EXPECT_EQ(output.err, "Error: problem with fullkey creation / parsing of key "
                        "/Root/Console/CurDbgPrompt/x.\n");
}
