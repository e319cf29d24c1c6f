// The built-in self-check: its result lines, its sample objects, the round
// trip catching each kind of fault, and the full-key checks.
#include "dbgdatakey.h"
#include "ddmanager.h"
#include "debuggerstatedata.h"
#include "deserializerhelperDOM.h"
#include "registerdata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"
#include "testsupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <sstream>
#include <string>

using namespace Vemo::DbgData;

namespace {

struct Output {
  std::string out;
  std::string err;
};

template <class F> Output capture(F&& run) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  run();
  const std::string err = testing::internal::GetCapturedStderr();
  return {testing::internal::GetCapturedStdout(), err};
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

// Writers and readers with one deliberate fault each. This writer skips the
// value of one key and answers as told for it.
class KeySkippingWriter : public SerializerHelperDOM {
public:
  KeySkippingWriter(std::string key, bool answer)
      : m_key(std::move(key)), m_answer(answer) {}
  bool setString(const std::string& key, const std::string& value) override {
    return key == m_key ? m_answer : SerializerHelperDOM::setString(key, value);
  }

private:
  std::string m_key;
  bool m_answer;
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

TEST(SelfCheck, EveryCreatableClassAndKeyPassesAndSwitchesSelectGroups) {
  ASSERT_EQ(g_runSerializationTest, 1);
  ASSERT_EQ(g_runFullKeyTest, 1);
  int errors = -1;
  const Output output = capture([&] { errors = runSelfCheck(); });
  EXPECT_EQ(errors, 0);
  EXPECT_EQ(output.err, "");
  // The helpers made for the run are gone again.
  EXPECT_EQ(g_serHlp, nullptr);
  EXPECT_EQ(g_desHlp, nullptr);

  // Every report line word for word: first one per class, in row order,
  // then one per full key.
  std::string classLines;
  for (const std::string& name : creatableClasses())
    classLines +=
        "Test for debugger data class " + name + " successfully completed.\n";
  ASSERT_EQ(output.out.compare(0, classLines.size(), classLines), 0);
  std::istringstream keyLines(output.out.substr(classLines.size()));
  std::set<std::string> keys;
  for (std::string line; std::getline(keyLines, line); keys.insert(line))
    EXPECT_EQ(line.rfind("Fullkey test for /Root", 0), 0u) << line;
  EXPECT_EQ(keys.size(), 55u); // one per node, each with its own key
  // The whole catalogue: 71 creatable classes and 55 full keys.
  EXPECT_EQ(creatableClasses().size(), 71u);
  EXPECT_EQ(std::count(output.out.begin(), output.out.end(), '\n'), 126);

  const std::pair<int, int> switches[] = {{1, 0}, {0, 1}, {0, 0}};
  for (const auto& c : switches) {
    g_runSerializationTest = c.first;
    g_runFullKeyTest = c.second;
    const std::string out = capture([] { runSelfCheck(); }).out;
    EXPECT_EQ(std::count(out.begin(), out.end(), '\n'),
              c.first * std::count(classLines.begin(), classLines.end(), '\n') +
                  c.second * 55);
  }
  g_runSerializationTest = 1;
  g_runFullKeyTest = 1;
}

TEST(SelfCheck, EachFaultOfTheRoundTripPrintsItsOneLine) {
  struct Case {
    const char* className;
    std::shared_ptr<ISerializerHelper> writer;
    std::shared_ptr<IDeserializerHelper> reader;
    const char* line;
  };
  const auto dom = [] { return std::make_shared<SerializerHelperDOM>(); };
  const auto reader = [] { return std::make_shared<DeserializerHelperDOM>(); };
  const Case cases[] = {
      {"CurDbgPrompt", std::make_shared<KeySkippingWriter>("PromptText", true),
       reader(),
       "Error: Content of debugger data class CurDbgPrompt corupted after "
       "serialization & deserialization."},
      // A member lost in a child makes the list differ.
      {"DataList", std::make_shared<KeySkippingWriter>("Description", true),
       reader(),
       "Error: Content of debugger data class DataList corupted after "
       "serialization & deserialization."},
      {"RegisterItem", std::make_shared<KeySkippingWriter>("Value", false),
       reader(),
       "Error: Could not serialize debugger data class RegisterItem."},
      {"DataListWC", dom(), std::make_shared<FirstChildOnlyReader>(),
       "Error: Deserialization of children not correct for debugger data "
       "class DataListWC."},
      {"Root", dom(), std::make_shared<NamelessReader>(),
       "Error: Could not deserialize debugger data class Root."},
      {"NoSuchClass", dom(), reader(),
       "Error: Could not create debugger data class NoSuchClass."},
      // A writer that builds no DOM cannot hand anything to the reader.
      {"Root", std::make_shared<SerializerHelperString>(), reader(),
       "Error: Could not serialize debugger data class Root."},
  };
  for (const Case& c : cases) {
    Helpers helpers(c.writer.get(), c.reader.get());
    bool passed = true;
    const Output output =
        capture([&] { passed = runSerializationRoundTrip(c.className); });
    EXPECT_FALSE(passed) << c.className;
    EXPECT_EQ(output.err, std::string(c.line) + "\n");
    EXPECT_EQ(output.out, "");
  }
}

TEST(SelfCheckFill, SamplesDifferFromDefaultsAndCarryEngineData) {
  // Classes whose members have no sample values compare equal to a fresh
  // object; every other fill must change something that == sees.
  const std::set<std::string> noOwnMembers = {
      "DebuggerState", "StackFrameListContent", "DebugInfo",
      "ModuleListContent", "Events", "SignalListContent", "MemoryListContent",
      "SourceListContent", "BreakPointListContent",
      // Placeholders: their one member has no accessor to fill it.
      "ParallelJobListContent", "ParallelJobItem", "JobListContent", "JobItem",
      "ProcessListContent", "ProcessItem"};
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

  // The sample list marks R1 and carries a content.
  auto list = TestSupport::make<DataListWC>("DataListWC", "l");
  fillDataListWC(list.get());
  ASSERT_TRUE(list->getContent() && list->getSpecialItem());
  EXPECT_EQ(list->getSpecialItem()->getSubKey(), "R1");
}

TEST(SelfCheckFullKey, ChecksTheParsedPlaceAndReportsItsKey) {
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
