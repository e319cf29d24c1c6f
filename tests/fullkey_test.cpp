// Tests of the full-key automaton, the key tests and the full-key builders.
// st_ddmanager.init() runs once for the suite (tests/testsupport.cpp).
#include "ddmanager.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace Vemo::DbgData;

namespace {

using Positions = std::vector<unsigned long>;
using Manager = DbgDataManager;

// Prefixes of the expected keys, written out independently of the builders.
#define JOB "/Root/ParallelJob[]/a/Jobs[]/b"
#define PROCESS JOB "/Process[]/c"
#define THREAD PROCESS "/Threads[]/d"
#define FRAME THREAD "/StackFrames[]/e"

DbgDataKey firstElements(const DbgDataKey& key, unsigned long count) {
  DbgDataKey first;
  for (unsigned long i = 0; i < count; ++i)
    first.append(key[i]);
  return first;
}

TEST(FullKeyTest, ParseTable) {
  struct Case {
    const char* text;
    bool accepted;
    DDHierarchyID place;
    Positions items;
    unsigned long consumed;
  };
  // clang-format off
  const Case cases[] = {
      {"/Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]/7", true,
       DDH_BreakPoints_Item, {2, 4, 7}, 8},
      {"/Root/Console/CurDbgPrompt", true, DDH_CurDbgPrompt, {}, 3},
      // Unknown names are items at place 0 and start the automaton over.
      {"Nowhere", true, DDH_Root, {0}, 1},
      {"/Root/Nowhere/Root/Console", true, DDH_Console, {1}, 4},
      {"/Root/Console/x/Root/Options[]/o", true, DDH_Options_Item, {2, 5},
       6},
      // Plug-in data items nest without end.
      {"/Root/CoreInfo/PlugIn[]/p/q/r", true, DDH_PlugIn_Item, {3, 4, 5}, 6},
      // An escaped separator stays inside one item sub key.
      {"/Root/CoreInfo/PlugIn[]/p\\/q", true, DDH_PlugIn_Item, {3}, 4},
      // Any transitions that deliberately name the list or place itself.
      {PROCESS "/ThreadSet[]/x", true, DDH_ThreadSet, {2, 4, 6, 8}, 9},
      {PROCESS "/ReEntrantCalls[]/x", true, DDH_ReEntrantCalls, {2, 4, 6, 8},
       9},
      {PROCESS "/Evaluations[]/x", true, DDH_EvalRoot, {2, 4, 6, 8}, 9},
      {THREAD "/Locals[]/x", true, DDH_LocalsRoot, {2, 4, 6, 8, 10}, 11},
      {PROCESS "/Paging/Secondary[]/s", true, DDH_Secondary_Item,
       {2, 4, 6, 9}, 10},
      // The shared names reach the place of their parent.
      {THREAD "/CtxtRegGrps[]/g/r", true, DDH_CtxtRegGrps_SubItem,
       {2, 4, 6, 8, 10, 11}, 12},
      {FRAME "/CtxtRegGrps[]/g/r", true, DDH_FrameCtxtRegGrps_SubItem,
       {2, 4, 6, 8, 10, 12, 13}, 14},
      // A reserved place ends the key: it parses, but nothing may follow.
      {"/Root/DebuggerState/<RsrvdState3>", true, DDH_RsrvdState3, {}, 3},
      {JOB "/Events/<RsrvdEvent4>", true, DDH_RsrvdEvent4, {2, 4}, 7},
      {"/Root/DebuggerState/<RsrvdState3>/x", false, DDH_RsrvdState3, {}, 3},
      // Nothing may follow a place that ends the key.
      {"/Root/Console/CurDbgPrompt/x", false, DDH_CurDbgPrompt, {}, 3},
      {FRAME "/Locals[]/x", false, DDH_FrameLocals, {2, 4, 6, 8, 10}, 12},
      // A reserved name where no state expects it is just an unknown name.
      {"/Root/<RsrvdState3>", true, DDH_Root, {1}, 2},
      {"", false, DDH_Root, {}, 0},
  };
  // clang-format on
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Manager::DataHierarchy result;
    EXPECT_EQ(st_ddmanager.parseFullKey(std::string(c.text), result),
              c.accepted);
    EXPECT_EQ(result.place, c.place);
    EXPECT_EQ(result.itemPositions, c.items);
    // The consumed elements are the key's first ones.
    EXPECT_EQ(result.key, firstElements(DbgDataKey(c.text), c.consumed));
  }

  // Parsing appends to the record it is given.
  Manager::DataHierarchy result;
  result.key << "Earlier";
  result.itemPositions.push_back(99);
  ASSERT_TRUE(st_ddmanager.parseFullKey(
      DbgDataKey("/Root/Console/ConsoleIOHistory[]/h"), result));
  EXPECT_EQ(result.key.toString(),
            "/Earlier/Root/Console/ConsoleIOHistory[]/h");
  // Positions index the parsed key, not the result's.
  EXPECT_EQ(result.itemPositions, (Positions{99, 3}));
  EXPECT_EQ(result.place, DDH_ConsoleIOHistory_Item);
  // A refused empty key leaves the record alone.
  EXPECT_FALSE(st_ddmanager.parseFullKey(DbgDataKey(), result));
  EXPECT_EQ(result.key.size(), 5u);
}

TEST(FullKeyTest, EveryStateEndsInAnAnyTransitionAndLeadsSomewhere) {
  for (int state = 0; state < Manager::StateCount; ++state) {
    SCOPED_TRACE(state);
    const Manager::Transition* transition = Manager::st_States[state];
    for (;; ++transition) {
      const std::int32_t next = transition->next;
      EXPECT_TRUE(next == Manager::StateEnd || next == Manager::StateReject ||
                  (next >= 0 && next < Manager::StateCount));
      if (!transition->named) {
        // Past the restart, an any transition takes an item row, but for
        // four states that deliberately name the list or place itself.
        if (next != 0) {
          EXPECT_EQ(Manager::getHierarchyName(transition->id) != nullptr,
                    state == 31 || state == 38 || state == 55 || state == 57);
        }
        break;
      }
      EXPECT_NE(Manager::getHierarchyName(transition->id), nullptr);
      // Exactly the reserved places reject.
      const std::string name = Manager::getHierarchyName(transition->id);
      EXPECT_EQ(next == Manager::StateReject, name.front() == '<') << name;
    }
  }
}

// Random keys over the names of the hierarchy and a few other words: the
// automaton must stay within the key and accept only what it consumed.
TEST(FullKeyTest, RandomKeysStayWithinTheKey) {
  std::vector<std::string> words = {"0", "x", "a/b", "Root ", "[]", "<>"};
  for (const DDH_NameRow& row : Manager::st_DDH_Name)
    if (row.name)
      words.push_back(row.name);
  std::mt19937 random(424242);
  std::uniform_int_distribution<std::size_t> pickWord(0, words.size() - 1);
  std::uniform_int_distribution<int> pickLength(0, 16);
  int accepted = 0;
  for (int round = 0; round < 20000; ++round) {
    DbgDataKey key;
    // Starting with "Root" most of the time gets the walk past state 1.
    if (round % 4 != 0)
      key << "Root";
    for (int n = pickLength(random); n > 0; --n)
      key << words[pickWord(random)];
    Manager::DataHierarchy result;
    const bool ok = st_ddmanager.parseFullKey(key, result);
    accepted += ok;
    ASSERT_LE(result.key.size(), key.size());
    ASSERT_EQ(result.key, firstElements(key, result.key.size()));
    if (ok) {
      ASSERT_EQ(result.key, key);
    }
    for (unsigned long position : result.itemPositions)
      ASSERT_LT(position, result.key.size());
  }
  EXPECT_GT(accepted, 0);
}

// The key tests, and the text forms that go through the virtual key forms.
class TaggingManager : public DbgDataManager {
public:
  using DbgDataManager::createFullKeyPlugIn;
  using DbgDataManager::isPlugInKey;
  bool createFullKeyPlugIn(DbgDataKey& key,
                           const std::string& s1) const override {
    key << "Tagged" << s1;
    return true;
  }
  bool isPlugInKey(const DbgDataKey& key) const override {
    return key.find(std::string("Tagged"));
  }
};

TEST(FullKeyTest, KeyTestsAndTextForms) {
  const std::pair<const char*, bool> plugIn[] = {
      {"/Root/CoreInfo/PlugIn[]", true},
      {"x/PlugIn[]/y", true},
      {"/Root/CoreInfo/PlugIn", false},
      {"/Root/PlugIn[]x", false},
      {"", false}};
  for (const auto& c : plugIn)
    EXPECT_EQ(st_ddmanager.isPlugInKey(std::string(c.first)), c.second)
        << c.first;
  EXPECT_TRUE(st_ddmanager.isEvalListKey(DbgDataKey(PROCESS "/Evaluations[]")));
  EXPECT_TRUE(st_ddmanager.isEvalListKey(DbgDataKey("Evaluations[]/e")));
  EXPECT_FALSE(st_ddmanager.isEvalListKey(DbgDataKey(PROCESS "/EvalRoot")));
  // Both places named "Locals[]" count as local evaluations.
  EXPECT_TRUE(st_ddmanager.isLocalEvalListKey(DbgDataKey(THREAD "/Locals[]")));
  EXPECT_TRUE(st_ddmanager.isLocalEvalListKey(DbgDataKey(FRAME "/Locals[]")));
  EXPECT_FALSE(st_ddmanager.isLocalEvalListKey(DbgDataKey(THREAD "/Locals")));

  // The text builders replace the text.
  std::string text = "/Old/Text";
  EXPECT_TRUE(st_ddmanager.createFullKeyPlugInList(text));
  EXPECT_EQ(text, "/Root/CoreInfo/PlugIn[]");
  EXPECT_TRUE(st_ddmanager.createFullKeyPlugInDataItem(text, "p", "a/b"));
  EXPECT_EQ(text, "/Root/CoreInfo/PlugIn[]/p/a\\/b");

  const TaggingManager tagging;
  const DbgDataManager& manager = tagging;
  EXPECT_TRUE(manager.createFullKeyPlugIn(text, "p"));
  EXPECT_EQ(text, "/Tagged/p");
  EXPECT_TRUE(manager.isPlugInKey(std::string("/x/Tagged")));
  EXPECT_FALSE(manager.isPlugInKey(std::string("/Root/CoreInfo/PlugIn[]")));

  // Sub keys stay one element each, whatever they hold.
  DbgDataKey key;
  ASSERT_TRUE(
      st_ddmanager.createFullKeyMemoryItem(key, "p/1", "j", "//", "m\\"));
  ASSERT_EQ(key.size(), 9u);
  EXPECT_EQ(key.toString(),
            "/Root/ParallelJob[]/p\\/1/Jobs[]/j/Process[]/\\/\\//Memory[]/m\\");
}

// A builder called with the sub keys "a", "b", "c", ... in order.
using Builder = std::function<bool(DbgDataKey&)>;

template <class Member, std::size_t... Index>
bool callWithSubKeys(Member member, DbgDataKey& key,
                     std::index_sequence<Index...>) {
  return (st_ddmanager.*member)(key, std::string(1, char('a' + Index))...);
}

template <class... SubKeys>
Builder builder(bool (DbgDataManager::*member)(DbgDataKey&, SubKeys...) const) {
  return [member](DbgDataKey& key) {
    return callWithSubKeys(member, key, std::index_sequence_for<SubKeys...>{});
  };
}

struct BuilderCase {
  const char* name;
  Builder build;
  const char* text;
  DDHierarchyID place; // where the automaton takes the key
};

#define CASE(Name, Text, Place)                                                \
  { #Name, builder(&DbgDataManager::createFullKey##Name), Text, DDH_##Place }

const std::vector<BuilderCase>& builderCases() {
  static const std::vector<BuilderCase> cases = {
      CASE(ContextRegisterGrpList, THREAD "/CtxtRegGrps[]", CtxtRegGrps),
      CASE(ContextRegisterGroup, THREAD "/CtxtRegGrps[]/e", CtxtRegGrps_Item),
      CASE(ContextRegister, THREAD "/CtxtRegGrps[]/e/f", CtxtRegGrps_SubItem),
      CASE(Root, "/Root", Root),
      CASE(DebuggerState, "/Root/DebuggerState", DebuggerState),
      CASE(ActiveDebuggee, "/Root/DebuggerState/ActiveDebuggee",
           ActiveDebuggee),
      CASE(CurScope, "/Root/DebuggerState/CurScope", CurScope),
      CASE(Console, "/Root/Console", Console),
      CASE(CurDbgPrompt, "/Root/Console/CurDbgPrompt", CurDbgPrompt),
      CASE(ConsoleIOHistoryList, "/Root/Console/ConsoleIOHistory[]",
           ConsoleIOHistory),
      CASE(CmdHistoryList, "/Root/Console/CmdHistory[]", CmdHistory),
      CASE(ParallelJobList, "/Root/ParallelJob[]", ParallelJob),
      CASE(ParallelJobItem, "/Root/ParallelJob[]/a", ParallelJob_Item),
      CASE(JobList, "/Root/ParallelJob[]/a/Jobs[]", Jobs),
      CASE(JobItem, JOB, Jobs_Item),
      CASE(ProcessList, JOB "/Process[]", Process),
      CASE(ProcessItem, PROCESS, Process_Item),
      CASE(ThreadList, PROCESS "/Threads[]", Threads),
      CASE(ThreadItem, THREAD, Threads_Item),
      CASE(DebugInfo, JOB "/DebugInfo", DebugInfo),
      CASE(SourceList, JOB "/DebugInfo/Sources[]", Sources),
      CASE(SourceItem, JOB "/DebugInfo/Sources[]/c", Sources_Item),
      CASE(Events, JOB "/Events", Events),
      CASE(BreakPointList, JOB "/Events/BreakPoints[]", BreakPoints),
      CASE(BreakPointItem, JOB "/Events/BreakPoints[]/c", BreakPoints_Item),
      CASE(PlugInList, "/Root/CoreInfo/PlugIn[]", PlugIn),
      CASE(PlugIn, "/Root/CoreInfo/PlugIn[]/a", PlugIn_Item),
      CASE(PlugInDataItem, "/Root/CoreInfo/PlugIn[]/a/b", PlugIn_Item),
      CASE(StackFrameList, THREAD "/StackFrames[]", StackFrames),
      CASE(StackFrameItem, FRAME, StackFrames_Item),
      CASE(StackFrameLocals, FRAME "/Locals[]", FrameLocals),
      CASE(StackFrameRegisterGrpList, FRAME "/CtxtRegGrps[]", FrameCtxtRegGrps),
      CASE(StackFrameRegisterGroup, FRAME "/CtxtRegGrps[]/f",
           FrameCtxtRegGrps_Item),
      CASE(StackFrameRegister, FRAME "/CtxtRegGrps[]/f/g",
           FrameCtxtRegGrps_SubItem),
      CASE(EvalList, PROCESS "/Evaluations[]", Evaluations),
      CASE(EvalRoot, PROCESS "/Evaluations[]/d", EvalRoot),
      CASE(ModuleList, JOB "/DebugInfo/Modules[]", Modules),
      CASE(MemoryItem, PROCESS "/Memory[]/d", Memory_Item),
      CASE(LocalEvalList, THREAD "/Locals[]", Locals),
      CASE(LocalEvalRoot, THREAD "/Locals[]/e", LocalsRoot),
      CASE(SysRegSet, PROCESS "/SysRegSets[]", SysRegSets),
      CASE(SysRegGrpList, PROCESS "/SysRegSets[]/d", SysRegSets_Item),
      CASE(SysRegGroup, PROCESS "/SysRegSets[]/d/e", SysRegSets_SubItem),
      CASE(SysRegister, PROCESS "/SysRegSets[]/d/e/f", SysRegSets_SubSubItem),
      CASE(DisAsmList, PROCESS "/DisAsm[]/d", DisAsm_Item),
      CASE(GlobalSymbolList, JOB "/DebugInfo/GlobalSymbols[]", GlobalSymbols),
      CASE(ModuleSymbolList, JOB "/DebugInfo/ModuleSymbols[]", ModuleSymbols),
      CASE(LocalSymbolList, JOB "/DebugInfo/LocalSymbols[]", LocalSymbols),
      CASE(UserToolBarList, "/Root/UserToolbar[]", UserToolbar),
      CASE(SignalList, JOB "/Events/Signals[]", Signals),
      CASE(DataSharingEventList, PROCESS "/DataSharingEvent[]",
           DataSharingEvent),
      CASE(DataSharingFilterList, PROCESS "/DataSharingFilter[]",
           DataSharingFilter),
      CASE(SIMDRegisterList, THREAD "/SIMDRegisters[]/e", SIMDRegisters_Item),
      CASE(SIMDEvalList, PROCESS "/SIMDEvaluations[]/d", SIMDEvaluations_Item),
      CASE(OpenMPTaskList, PROCESS "/OpenMPTask[]", OpenMPTask),
      CASE(OpenMPBarrierList, PROCESS "/OpenMPBarrier[]", OpenMPBarrier),
      CASE(OpenMPTaskWaitList, PROCESS "/OpenMPTaskWait[]", OpenMPTaskWait),
      CASE(OpenMPLockList, PROCESS "/OpenMPLock[]", OpenMPLock),
      CASE(OpenMPTeamList, PROCESS "/OpenMPTeam[]", OpenMPTeam),
      CASE(ThreadSetList, PROCESS "/ThreadSet[]", ThreadSet),
      CASE(ReEntrantCallList, PROCESS "/ReEntrantCalls[]", ReEntrantCalls),
      CASE(LoadableList, PROCESS "/Loadables[]", Loadables),
      CASE(LoadableListItem, PROCESS "/Loadables[]/d", Loadables_Item),
  };
  return cases;
}

#undef CASE

TEST(FullKeyTest, EveryBuilderBuildsAKeyThatParsesToItsPlace) {
  ASSERT_EQ(builderCases().size(), 63u);
  for (const BuilderCase& c : builderCases()) {
    SCOPED_TRACE(c.name);
    DbgDataKey key;
    ASSERT_TRUE(c.build(key));
    EXPECT_EQ(key.toString(), c.text);

    Manager::DataHierarchy result;
    EXPECT_TRUE(st_ddmanager.parseFullKey(key, result));
    EXPECT_EQ(result.place, c.place);
    EXPECT_EQ(result.key, key);
    // The caller's sub keys, and only they, are taken as items.
    Positions subKeys;
    for (unsigned long i = 0; i < key.size(); ++i)
      if (key[i].size() == 1)
        subKeys.push_back(i);
    EXPECT_EQ(result.itemPositions, subKeys);

    // On a non-empty key the builder appends behind what is there.
    DbgDataKey prefixed("/Before");
    ASSERT_TRUE(c.build(prefixed));
    EXPECT_EQ(prefixed.toString(), std::string("/Before") + c.text);
  }
}

} // namespace
