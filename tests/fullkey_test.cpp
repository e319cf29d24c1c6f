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
      {"Root", true, DDH_Root, {}, 1},
      // Unknown names are items at place 0 and start the automaton over.
      {"Nowhere", true, DDH_Root, {0}, 1},
      {"/Root/Nowhere", true, DDH_Root, {1}, 2},
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
      // Reserved places are consumed but rejected.
      {"/Root/DebuggerState/<RsrvdState3>", false, DDH_RsrvdState3, {}, 3},
      {JOB "/Events/<RsrvdEvent4>", false, DDH_RsrvdEvent4, {2, 4}, 7},
      {PROCESS "/Paging/<RsrvdPage1>", false, DDH_RsrvdPage1, {2, 4, 6}, 9},
      {"/Root/DebuggerState/<RsrvdState8>/x", false, DDH_RsrvdState8, {}, 3},
      // Nothing may follow a place that ends the key.
      {"/Root/Console/CurDbgPrompt/x", false, DDH_CurDbgPrompt, {}, 3},
      {FRAME "/Locals[]/x", false, DDH_FrameLocals, {2, 4, 6, 8, 10}, 12},
      {"/Root/Options[]/o/x", false, DDH_Options_Item, {2}, 3},
      // A reserved name where no state expects it is just an unknown name.
      {"/Root/<RsrvdState3>", true, DDH_Root, {1}, 2},
      {"", false, DDH_Root, {}, 0},
      {"///", false, DDH_Root, {}, 0},
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
}

TEST(FullKeyTest, ParseAppendsToTheResult) {
  Manager::DataHierarchy result;
  result.key << "Earlier"
             << "Elements";
  result.itemPositions.push_back(99);
  const DbgDataKey key("/Root/Console/ConsoleIOHistory[]/h");
  ASSERT_TRUE(st_ddmanager.parseFullKey(key, result));
  EXPECT_EQ(result.key.toString(),
            "/Earlier/Elements/Root/Console/ConsoleIOHistory[]/h");
  // Positions index the parsed key, not the result's.
  EXPECT_EQ(result.itemPositions, (Positions{99, 3}));
  EXPECT_EQ(result.place, DDH_ConsoleIOHistory_Item);

  // A refused empty key leaves the record alone.
  EXPECT_FALSE(st_ddmanager.parseFullKey(DbgDataKey(), result));
  EXPECT_EQ(result.key.size(), 6u);
  EXPECT_EQ(result.place, DDH_ConsoleIOHistory_Item);
}

TEST(FullKeyTest, EveryStateEndsInAnAnyTransitionAndLeadsSomewhere) {
  for (int state = 0; state < Manager::StateCount; ++state) {
    SCOPED_TRACE(state);
    const Manager::Transition* transition = Manager::st_States[state];
    for (;; ++transition) {
      const std::int32_t next = transition->next;
      EXPECT_TRUE(next == Manager::StateEnd || next == Manager::StateReject ||
                  (next >= 0 && next < Manager::StateCount));
      if (!transition->named)
        break;
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

TEST(FullKeyTest, KeyTests) {
  EXPECT_TRUE(st_ddmanager.isPlugInKey(std::string("/Root/CoreInfo/PlugIn[]")));
  EXPECT_TRUE(st_ddmanager.isPlugInKey(DbgDataKey("x/PlugIn[]/y")));
  EXPECT_FALSE(st_ddmanager.isPlugInKey(std::string("/Root/CoreInfo/PlugIn")));
  EXPECT_FALSE(st_ddmanager.isPlugInKey(std::string("/Root/PlugIn[]x")));
  EXPECT_FALSE(st_ddmanager.isPlugInKey(std::string("")));

  EXPECT_TRUE(st_ddmanager.isEvalListKey(DbgDataKey(PROCESS "/Evaluations[]")));
  EXPECT_TRUE(st_ddmanager.isEvalListKey(DbgDataKey("Evaluations[]/e")));
  EXPECT_FALSE(st_ddmanager.isEvalListKey(DbgDataKey(PROCESS "/EvalRoot")));

  // Both places named "Locals[]" count as local evaluations.
  EXPECT_TRUE(st_ddmanager.isLocalEvalListKey(DbgDataKey(THREAD "/Locals[]")));
  EXPECT_TRUE(st_ddmanager.isLocalEvalListKey(DbgDataKey(FRAME "/Locals[]")));
  EXPECT_FALSE(st_ddmanager.isLocalEvalListKey(DbgDataKey(THREAD "/Locals")));
  EXPECT_FALSE(st_ddmanager.isLocalEvalListKey(DbgDataKey()));
}

TEST(FullKeyTest, TextPlugInBuildersReplaceTheText) {
  std::string text = "/Old/Text";
  EXPECT_TRUE(st_ddmanager.createFullKeyPlugInList(text));
  EXPECT_EQ(text, "/Root/CoreInfo/PlugIn[]");
  EXPECT_TRUE(st_ddmanager.createFullKeyPlugIn(text, "p"));
  EXPECT_EQ(text, "/Root/CoreInfo/PlugIn[]/p");
  EXPECT_TRUE(st_ddmanager.createFullKeyPlugInDataItem(text, "p", "a/b"));
  EXPECT_EQ(text, "/Root/CoreInfo/PlugIn[]/p/a\\/b");
}

// The text forms and the text key test go through the virtual key forms.
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

TEST(FullKeyTest, TextFormsCallTheVirtualKeyForms) {
  const TaggingManager tagging;
  const DbgDataManager& manager = tagging;
  std::string text;
  EXPECT_TRUE(manager.createFullKeyPlugIn(text, "p"));
  EXPECT_EQ(text, "/Tagged/p");
  EXPECT_TRUE(manager.isPlugInKey(std::string("/x/Tagged")));
  EXPECT_FALSE(manager.isPlugInKey(std::string("/Root/CoreInfo/PlugIn[]")));
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

#define CASE(Member, Text, Place)                                              \
  BuilderCase { #Member, builder(&DbgDataManager::Member), Text, Place }

const std::vector<BuilderCase>& builderCases() {
  static const std::vector<BuilderCase> cases = {
      CASE(createFullKeyContextRegisterGrpList, THREAD "/CtxtRegGrps[]",
           DDH_CtxtRegGrps),
      CASE(createFullKeyContextRegisterGroup, THREAD "/CtxtRegGrps[]/e",
           DDH_CtxtRegGrps_Item),
      CASE(createFullKeyContextRegister, THREAD "/CtxtRegGrps[]/e/f",
           DDH_CtxtRegGrps_SubItem),
      CASE(createFullKeyRoot, "/Root", DDH_Root),
      CASE(createFullKeyDebuggerState, "/Root/DebuggerState",
           DDH_DebuggerState),
      CASE(createFullKeyActiveDebuggee, "/Root/DebuggerState/ActiveDebuggee",
           DDH_ActiveDebuggee),
      CASE(createFullKeyCurScope, "/Root/DebuggerState/CurScope", DDH_CurScope),
      CASE(createFullKeyConsole, "/Root/Console", DDH_Console),
      CASE(createFullKeyCurDbgPrompt, "/Root/Console/CurDbgPrompt",
           DDH_CurDbgPrompt),
      CASE(createFullKeyConsoleIOHistoryList,
           "/Root/Console/ConsoleIOHistory[]", DDH_ConsoleIOHistory),
      CASE(createFullKeyCmdHistoryList, "/Root/Console/CmdHistory[]",
           DDH_CmdHistory),
      CASE(createFullKeyParallelJobList, "/Root/ParallelJob[]",
           DDH_ParallelJob),
      CASE(createFullKeyParallelJobItem, "/Root/ParallelJob[]/a",
           DDH_ParallelJob_Item),
      CASE(createFullKeyJobList, "/Root/ParallelJob[]/a/Jobs[]", DDH_Jobs),
      CASE(createFullKeyJobItem, JOB, DDH_Jobs_Item),
      CASE(createFullKeyProcessList, JOB "/Process[]", DDH_Process),
      CASE(createFullKeyProcessItem, PROCESS, DDH_Process_Item),
      CASE(createFullKeyThreadList, PROCESS "/Threads[]", DDH_Threads),
      CASE(createFullKeyThreadItem, THREAD, DDH_Threads_Item),
      CASE(createFullKeyDebugInfo, JOB "/DebugInfo", DDH_DebugInfo),
      CASE(createFullKeySourceList, JOB "/DebugInfo/Sources[]", DDH_Sources),
      CASE(createFullKeySourceItem, JOB "/DebugInfo/Sources[]/c",
           DDH_Sources_Item),
      CASE(createFullKeyEvents, JOB "/Events", DDH_Events),
      CASE(createFullKeyBreakPointList, JOB "/Events/BreakPoints[]",
           DDH_BreakPoints),
      CASE(createFullKeyBreakPointItem, JOB "/Events/BreakPoints[]/c",
           DDH_BreakPoints_Item),
      CASE(createFullKeyPlugInList, "/Root/CoreInfo/PlugIn[]", DDH_PlugIn),
      CASE(createFullKeyPlugIn, "/Root/CoreInfo/PlugIn[]/a", DDH_PlugIn_Item),
      CASE(createFullKeyPlugInDataItem, "/Root/CoreInfo/PlugIn[]/a/b",
           DDH_PlugIn_Item),
      CASE(createFullKeyStackFrameList, THREAD "/StackFrames[]",
           DDH_StackFrames),
      CASE(createFullKeyStackFrameItem, FRAME, DDH_StackFrames_Item),
      CASE(createFullKeyStackFrameLocals, FRAME "/Locals[]", DDH_FrameLocals),
      CASE(createFullKeyStackFrameRegisterGrpList, FRAME "/CtxtRegGrps[]",
           DDH_FrameCtxtRegGrps),
      CASE(createFullKeyStackFrameRegisterGroup, FRAME "/CtxtRegGrps[]/f",
           DDH_FrameCtxtRegGrps_Item),
      CASE(createFullKeyStackFrameRegister, FRAME "/CtxtRegGrps[]/f/g",
           DDH_FrameCtxtRegGrps_SubItem),
      CASE(createFullKeyEvalList, PROCESS "/Evaluations[]", DDH_Evaluations),
      CASE(createFullKeyEvalRoot, PROCESS "/Evaluations[]/d", DDH_EvalRoot),
      CASE(createFullKeyModuleList, JOB "/DebugInfo/Modules[]", DDH_Modules),
      CASE(createFullKeyMemoryItem, PROCESS "/Memory[]/d", DDH_Memory_Item),
      CASE(createFullKeyLocalEvalList, THREAD "/Locals[]", DDH_Locals),
      CASE(createFullKeyLocalEvalRoot, THREAD "/Locals[]/e", DDH_LocalsRoot),
      CASE(createFullKeySysRegSet, PROCESS "/SysRegSets[]", DDH_SysRegSets),
      CASE(createFullKeySysRegGrpList, PROCESS "/SysRegSets[]/d",
           DDH_SysRegSets_Item),
      CASE(createFullKeySysRegGroup, PROCESS "/SysRegSets[]/d/e",
           DDH_SysRegSets_SubItem),
      CASE(createFullKeySysRegister, PROCESS "/SysRegSets[]/d/e/f",
           DDH_SysRegSets_SubSubItem),
      CASE(createFullKeyDisAsmList, PROCESS "/DisAsm[]/d", DDH_DisAsm_Item),
      CASE(createFullKeyGlobalSymbolList, JOB "/DebugInfo/GlobalSymbols[]",
           DDH_GlobalSymbols),
      CASE(createFullKeyModuleSymbolList, JOB "/DebugInfo/ModuleSymbols[]",
           DDH_ModuleSymbols),
      CASE(createFullKeyLocalSymbolList, JOB "/DebugInfo/LocalSymbols[]",
           DDH_LocalSymbols),
      CASE(createFullKeyUserToolBarList, "/Root/UserToolbar[]",
           DDH_UserToolbar),
      CASE(createFullKeySignalList, JOB "/Events/Signals[]", DDH_Signals),
      CASE(createFullKeyDataSharingEventList, PROCESS "/DataSharingEvent[]",
           DDH_DataSharingEvent),
      CASE(createFullKeyDataSharingFilterList, PROCESS "/DataSharingFilter[]",
           DDH_DataSharingFilter),
      CASE(createFullKeySIMDRegisterList, THREAD "/SIMDRegisters[]/e",
           DDH_SIMDRegisters_Item),
      CASE(createFullKeySIMDEvalList, PROCESS "/SIMDEvaluations[]/d",
           DDH_SIMDEvaluations_Item),
      CASE(createFullKeyOpenMPTaskList, PROCESS "/OpenMPTask[]",
           DDH_OpenMPTask),
      CASE(createFullKeyOpenMPBarrierList, PROCESS "/OpenMPBarrier[]",
           DDH_OpenMPBarrier),
      CASE(createFullKeyOpenMPTaskWaitList, PROCESS "/OpenMPTaskWait[]",
           DDH_OpenMPTaskWait),
      CASE(createFullKeyOpenMPLockList, PROCESS "/OpenMPLock[]",
           DDH_OpenMPLock),
      CASE(createFullKeyOpenMPTeamList, PROCESS "/OpenMPTeam[]",
           DDH_OpenMPTeam),
      CASE(createFullKeyThreadSetList, PROCESS "/ThreadSet[]", DDH_ThreadSet),
      CASE(createFullKeyReEntrantCallList, PROCESS "/ReEntrantCalls[]",
           DDH_ReEntrantCalls),
      CASE(createFullKeyLoadableList, PROCESS "/Loadables[]", DDH_Loadables),
      CASE(createFullKeyLoadableListItem, PROCESS "/Loadables[]/d",
           DDH_Loadables_Item),
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

TEST(FullKeyTest, SubKeysStayOneElement) {
  DbgDataKey key;
  ASSERT_TRUE(st_ddmanager.createFullKeyBreakPointItem(key, "0", "1", "7"));
  EXPECT_EQ(key.toString(),
            "/Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]/7");

  key = DbgDataKey();
  ASSERT_TRUE(
      st_ddmanager.createFullKeyMemoryItem(key, "p/1", "j", "//", "m\\"));
  ASSERT_EQ(key.size(), 9u);
  EXPECT_EQ(key[2], "p/1");
  EXPECT_EQ(key[6], "//");
  EXPECT_EQ(key.toString(),
            "/Root/ParallelJob[]/p\\/1/Jobs[]/j/Process[]/\\/\\//Memory[]/m\\");
  // The text form reads back into the same elements.
  EXPECT_EQ(DbgDataKey(key.toString()), key);
}

} // namespace
