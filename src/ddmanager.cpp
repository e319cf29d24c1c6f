// DbgDataManager: name lookups, the factory, the full-key automaton and the
// full-key builders. The tables themselves are in ddmanagertables.cpp.
#include "ddmanager.h"

#include "../Common/DDAssert.h"
#include "ddfatalerror.h"
#include "debuggerdata.h"

#include <utility>

namespace Vemo {
namespace DbgData {

DbgDataManager st_ddmanager;

namespace {

// Moves every row of a table to the index equal to its id: passes of swaps
// until one pass changes nothing. Each swap puts the row that stood at r into
// its final place, so the passes end; the last row is never examined because it
// is the only place left for the last misplaced row.
template <class Row, int N> void sortRows(Row (&rows)[N]) {
  bool changed = true;
  while (changed) {
    changed = false;
    for (int r = 0; r < N - 1; ++r) {
      const int id = rows[r].id;
      DD_ASSERT(id >= 0 && id < N);
      if (id != r) {
        std::swap(rows[r], rows[id]);
        changed = true;
      }
    }
  }
}

// Name of row id of a sorted table; null when id is outside the table.
template <class Row, int N> const char* nameOf(const Row (&rows)[N], int id) {
  return id >= 0 && id < N ? rows[id].name : nullptr;
}

bool isHierarchyName(DDHierarchyID place, const std::string& element) {
  const char* name = DbgDataManager::getHierarchyName(place);
  return name && element == name;
}

// True when some element of key is the hierarchy name of place.
bool holdsHierarchyName(const DbgDataKey& key, DDHierarchyID place) {
  const char* name = DbgDataManager::getHierarchyName(place);
  return name && key.find(std::string(name));
}

// Looks name up in one of the name maps; id may be null to test only.
template <class Id>
bool lookUp(const std::map<std::string, Id>& ids, const std::string& name,
            Id* id) {
  const auto found = ids.find(name);
  if (found == ids.end())
    return false;
  if (id)
    *id = found->second;
  return true;
}

// Common stems of the builders' keys. s1..s5 are the sub keys of the
// parallel job, the job, the process, the thread and the stack frame.
DbgDataKey& appendJob(DbgDataKey& key, const std::string& s1,
                      const std::string& s2) {
  return key << DDH_Root << DDH_ParallelJob << s1 << DDH_Jobs << s2;
}

DbgDataKey& appendProcess(DbgDataKey& key, const std::string& s1,
                          const std::string& s2, const std::string& s3) {
  return appendJob(key, s1, s2) << DDH_Process << s3;
}

DbgDataKey& appendThread(DbgDataKey& key, const std::string& s1,
                         const std::string& s2, const std::string& s3,
                         const std::string& s4) {
  return appendProcess(key, s1, s2, s3) << DDH_Threads << s4;
}

DbgDataKey& appendStackFrame(DbgDataKey& key, const std::string& s1,
                             const std::string& s2, const std::string& s3,
                             const std::string& s4, const std::string& s5) {
  return appendThread(key, s1, s2, s3, s4) << DDH_StackFrames << s5;
}

} // namespace

// ---------------------------------------------------------------------------
// Tables and lookups

bool DbgDataManager::bindClassIdentity(DebuggerDataID id,
                                       const RTTITempl<DebuggerData>* rtti) {
  // Runs during other files' static initialisation, so it must not rely on
  // the table being sorted: find the row by its id.
  DD_NameRow* found = nullptr;
  for (DD_NameRow& row : st_DD_Name)
    if (row.id == id)
      found = &row;
  DD_ASSERT(found);
  found->rtti = rtti;
  return true;
}

DbgDataManager::DbgDataManager() = default;

DbgDataManager::~DbgDataManager() = default;

void DbgDataManager::sortNameTables() {
  sortRows(st_DD_Name);
  sortRows(st_DDS_Name);
  sortRows(st_DDH_Name);
}

void DbgDataManager::init() {
  sortNameTables();
  // The last row of each table ("Undefined", "undefined", "<Undefined>") is
  // not a name clients may look up. insert() keeps the first entry of a
  // name, so a name that names two places is found as the lower id.
  for (int i = 0; i < DDID_Undefined; ++i) {
    const DD_NameRow& row = st_DD_Name[i];
    if (!row.name)
      throwDDFatalError("Bad Pointer!", "src/ddmanager.cpp", __LINE__);
    m_classIds.insert({row.name, row.id});
  }
  for (int i = 0; i < DDS_undefined; ++i) {
    const DDS_NameRow& row = st_DDS_Name[i];
    if (!row.name)
      throwDDFatalError("Bad Pointer!", "src/ddmanager.cpp", __LINE__);
    m_sectionIds.insert({row.name, row.id});
  }
  for (int i = 0; i < DDH_Undefined; ++i) {
    const DDH_NameRow& row = st_DDH_Name[i];
    if (row.name) // item rows have no name of their own
      m_hierarchyIds.insert({row.name, row.id});
  }
}

bool DbgDataManager::getClassId(const std::string& name,
                                DebuggerDataID* id) const {
  return lookUp(m_classIds, name, id);
}

bool DbgDataManager::getSectionId(const std::string& name,
                                  DDSectionID* id) const {
  return lookUp(m_sectionIds, name, id);
}

bool DbgDataManager::getHierarchyId(const std::string& name,
                                    DDHierarchyID* id) const {
  return lookUp(m_hierarchyIds, name, id);
}

const char* DbgDataManager::getClassName(DebuggerDataID id) {
  return nameOf(st_DD_Name, id);
}

const char* DbgDataManager::getSectionName(DDSectionID id) {
  return nameOf(st_DDS_Name, id);
}

const char* DbgDataManager::getHierarchyName(DDHierarchyID id) {
  return nameOf(st_DDH_Name, id);
}

// Appends the hierarchy name of place. An item row has no name of its own
// (its sub key is the item's), and an id outside the table names nothing:
// both append no element rather than an empty or invalid one.
DbgDataKey& DbgDataKey::operator<<(DDHierarchyID place) {
  if (const char* name = DbgDataManager::getHierarchyName(place))
    m_elements.emplace_back(name);
  return *this;
}

// ---------------------------------------------------------------------------
// Factory

DebuggerData* DbgDataManager::factory(const std::string& className,
                                      const std::string& subKey) const {
  DebuggerDataID id;
  if (!getClassId(className, &id))
    return nullptr;
  return factory(id, subKey);
}

DebuggerData* DbgDataManager::factory(DebuggerDataID id,
                                      const std::string& subKey) const {
  if (id < 0 || id >= DD_NameCount)
    return nullptr;
  const DD_NameRow& row = st_DD_Name[id];
  if (!row.rtti)
    return nullptr;
  DebuggerData* object = row.rtti->createOwnerInstance(); // caller's
  if (!object)
    return nullptr;
  // The row's name, not the identity's: a class bound to a row of another
  // name (PlugInDataItem as "PlugInItem") takes the row's name.
  object->setClassName(row.name);
  object->setSubKey(subKey);
  return object;
}

// ---------------------------------------------------------------------------
// Full-key automaton

bool DbgDataManager::parseFullKey(const DbgDataKey& key,
                                  DataHierarchy& result) const {
  if (key.empty())
    return false;
  std::int32_t state = 0;
  bool accepted = true;
  // Elements consumed so far; also the position of the next element.
  unsigned long consumed = 0;
  for (const std::string& element : key.elements()) {
    // An end or reject state takes no further element.
    if (state == StateEnd || state == StateReject) {
      accepted = false;
      break;
    }
    DD_ASSERT(state >= 0 && state < StateCount);
    // Named transitions come first; the state's any transition ends it.
    const Transition* transition = st_States[state];
    while (transition->named && !isHierarchyName(transition->id, element))
      ++transition;
    if (!transition->named && transition->id == DDH_Undefined &&
        transition->next == StateReject) {
      accepted = false;
      break;
    }
    result.place = transition->id;
    // Positions index the key being parsed, not result.key, which may
    // already have held elements.
    if (!transition->named)
      result.itemPositions.push_back(consumed);
    state = transition->next;
    ++consumed;
  }
  // The consumed elements go to the result's key in one step rather than
  // one by one (0 as the end of the range would mean "all").
  if (consumed > 0)
    result.key.append(key, 0, consumed);
  // A key that ends on a reserved place (a transition to reject) is
  // accepted like any other: reject only forbids a further element.
  return accepted;
}

bool DbgDataManager::parseFullKey(const std::string& text,
                                  DataHierarchy& result) const {
  return parseFullKey(DbgDataKey(text), result);
}

bool DbgDataManager::isPlugInKey(const DbgDataKey& key) const {
  return holdsHierarchyName(key, DDH_PlugIn);
}

bool DbgDataManager::isPlugInKey(const std::string& text) const {
  return isPlugInKey(DbgDataKey(text));
}

bool DbgDataManager::isEvalListKey(const DbgDataKey& key) const {
  return holdsHierarchyName(key, DDH_Evaluations);
}

bool DbgDataManager::isLocalEvalListKey(const DbgDataKey& key) const {
  return holdsHierarchyName(key, DDH_Locals);
}

// ---------------------------------------------------------------------------
// Builders. Each appends its place's key to key and answers true.

bool DbgDataManager::createFullKeyPlugInList(std::string& text) const {
  DbgDataKey key;
  createFullKeyPlugInList(key);
  text = key.toString();
  return true;
}

bool DbgDataManager::createFullKeyPlugIn(std::string& text,
                                         const std::string& s1) const {
  DbgDataKey key;
  createFullKeyPlugIn(key, s1);
  text = key.toString();
  return true;
}

bool DbgDataManager::createFullKeyPlugInDataItem(std::string& text,
                                                 const std::string& s1,
                                                 const std::string& s2) const {
  DbgDataKey key;
  createFullKeyPlugInDataItem(key, s1, s2);
  text = key.toString();
  return true;
}

bool DbgDataManager::createFullKeyContextRegisterGrpList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4) const {
  appendThread(key, s1, s2, s3, s4) << DDH_CtxtRegGrps;
  return true;
}

bool DbgDataManager::createFullKeyContextRegisterGroup(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendThread(key, s1, s2, s3, s4) << DDH_CtxtRegGrps << s5;
  return true;
}

bool DbgDataManager::createFullKeyContextRegister(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5,
    const std::string& s6) const {
  appendThread(key, s1, s2, s3, s4) << DDH_CtxtRegGrps << s5 << s6;
  return true;
}

bool DbgDataManager::createFullKeyRoot(DbgDataKey& key) const {
  key << DDH_Root;
  return true;
}

bool DbgDataManager::createFullKeyDebuggerState(DbgDataKey& key) const {
  key << DDH_Root << DDH_DebuggerState;
  return true;
}

bool DbgDataManager::createFullKeyActiveDebuggee(DbgDataKey& key) const {
  key << DDH_Root << DDH_DebuggerState << DDH_ActiveDebuggee;
  return true;
}

bool DbgDataManager::createFullKeyCurScope(DbgDataKey& key) const {
  key << DDH_Root << DDH_DebuggerState << DDH_CurScope;
  return true;
}

bool DbgDataManager::createFullKeyConsole(DbgDataKey& key) const {
  key << DDH_Root << DDH_Console;
  return true;
}

bool DbgDataManager::createFullKeyCurDbgPrompt(DbgDataKey& key) const {
  key << DDH_Root << DDH_Console << DDH_CurDbgPrompt;
  return true;
}

bool DbgDataManager::createFullKeyConsoleIOHistoryList(DbgDataKey& key) const {
  key << DDH_Root << DDH_Console << DDH_ConsoleIOHistory;
  return true;
}

bool DbgDataManager::createFullKeyCmdHistoryList(DbgDataKey& key) const {
  key << DDH_Root << DDH_Console << DDH_CmdHistory;
  return true;
}

bool DbgDataManager::createFullKeyParallelJobList(DbgDataKey& key) const {
  key << DDH_Root << DDH_ParallelJob;
  return true;
}

bool DbgDataManager::createFullKeyParallelJobItem(DbgDataKey& key,
                                                  const std::string& s1) const {
  key << DDH_Root << DDH_ParallelJob << s1;
  return true;
}

bool DbgDataManager::createFullKeyJobList(DbgDataKey& key,
                                          const std::string& s1) const {
  key << DDH_Root << DDH_ParallelJob << s1 << DDH_Jobs;
  return true;
}

bool DbgDataManager::createFullKeyJobItem(DbgDataKey& key,
                                          const std::string& s1,
                                          const std::string& s2) const {
  appendJob(key, s1, s2);
  return true;
}

bool DbgDataManager::createFullKeyProcessList(DbgDataKey& key,
                                              const std::string& s1,
                                              const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_Process;
  return true;
}

bool DbgDataManager::createFullKeyProcessItem(DbgDataKey& key,
                                              const std::string& s1,
                                              const std::string& s2,
                                              const std::string& s3) const {
  appendProcess(key, s1, s2, s3);
  return true;
}

bool DbgDataManager::createFullKeyThreadList(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_Threads;
  return true;
}

bool DbgDataManager::createFullKeyThreadItem(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4) const {
  appendThread(key, s1, s2, s3, s4);
  return true;
}

bool DbgDataManager::createFullKeyDebugInfo(DbgDataKey& key,
                                            const std::string& s1,
                                            const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo;
  return true;
}

bool DbgDataManager::createFullKeySourceList(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_Sources;
  return true;
}

bool DbgDataManager::createFullKeySourceItem(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_Sources << s3;
  return true;
}

bool DbgDataManager::createFullKeyEvents(DbgDataKey& key, const std::string& s1,
                                         const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_Events;
  return true;
}

bool DbgDataManager::createFullKeyBreakPointList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_Events << DDH_BreakPoints;
  return true;
}

bool DbgDataManager::createFullKeyBreakPointItem(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3) const {
  appendJob(key, s1, s2) << DDH_Events << DDH_BreakPoints << s3;
  return true;
}

bool DbgDataManager::createFullKeyPlugInList(DbgDataKey& key) const {
  key << DDH_Root << DDH_CoreInfo << DDH_PlugIn;
  return true;
}

bool DbgDataManager::createFullKeyPlugIn(DbgDataKey& key,
                                         const std::string& s1) const {
  key << DDH_Root << DDH_CoreInfo << DDH_PlugIn << s1;
  return true;
}

bool DbgDataManager::createFullKeyPlugInDataItem(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2) const {
  key << DDH_Root << DDH_CoreInfo << DDH_PlugIn << s1 << s2;
  return true;
}

bool DbgDataManager::createFullKeyStackFrameList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3,
                                                 const std::string& s4) const {
  appendThread(key, s1, s2, s3, s4) << DDH_StackFrames;
  return true;
}

bool DbgDataManager::createFullKeyStackFrameItem(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendStackFrame(key, s1, s2, s3, s4, s5);
  return true;
}

bool DbgDataManager::createFullKeyStackFrameLocals(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendStackFrame(key, s1, s2, s3, s4, s5) << DDH_FrameLocals;
  return true;
}

bool DbgDataManager::createFullKeyStackFrameRegisterGrpList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendStackFrame(key, s1, s2, s3, s4, s5) << DDH_FrameCtxtRegGrps;
  return true;
}

bool DbgDataManager::createFullKeyStackFrameRegisterGroup(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5,
    const std::string& s6) const {
  appendStackFrame(key, s1, s2, s3, s4, s5) << DDH_FrameCtxtRegGrps << s6;
  return true;
}

bool DbgDataManager::createFullKeyStackFrameRegister(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5,
    const std::string& s6, const std::string& s7) const {
  appendStackFrame(key, s1, s2, s3, s4, s5) << DDH_FrameCtxtRegGrps << s6 << s7;
  return true;
}

bool DbgDataManager::createFullKeyEvalList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_Evaluations;
  return true;
}

bool DbgDataManager::createFullKeyEvalRoot(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3,
                                           const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_Evaluations << s4;
  return true;
}

bool DbgDataManager::createFullKeyModuleList(DbgDataKey& key, std::string s1,
                                             std::string s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_Modules;
  return true;
}

bool DbgDataManager::createFullKeyMemoryItem(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_Memory << s4;
  return true;
}

bool DbgDataManager::createFullKeyLocalEvalList(DbgDataKey& key,
                                                const std::string& s1,
                                                const std::string& s2,
                                                const std::string& s3,
                                                const std::string& s4) const {
  appendThread(key, s1, s2, s3, s4) << DDH_Locals;
  return true;
}

bool DbgDataManager::createFullKeyLocalEvalRoot(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendThread(key, s1, s2, s3, s4) << DDH_Locals << s5;
  return true;
}

bool DbgDataManager::createFullKeySysRegSet(DbgDataKey& key,
                                            const std::string& s1,
                                            const std::string& s2,
                                            const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_SysRegSets;
  return true;
}

// The register-group list of a set lives below the set's own sub key s4,
// which is why this "List" ends in a sub key.
bool DbgDataManager::createFullKeySysRegGrpList(DbgDataKey& key,
                                                const std::string& s1,
                                                const std::string& s2,
                                                const std::string& s3,
                                                const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_SysRegSets << s4;
  return true;
}

bool DbgDataManager::createFullKeySysRegGroup(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendProcess(key, s1, s2, s3) << DDH_SysRegSets << s4 << s5;
  return true;
}

bool DbgDataManager::createFullKeySysRegister(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5,
    const std::string& s6) const {
  appendProcess(key, s1, s2, s3) << DDH_SysRegSets << s4 << s5 << s6;
  return true;
}

// Deliberately ends in the caller's sub key s4, although it names a list.
bool DbgDataManager::createFullKeyDisAsmList(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_DisAsm << s4;
  return true;
}

bool DbgDataManager::createFullKeyGlobalSymbolList(DbgDataKey& key,
                                                   std::string s1,
                                                   std::string s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_GlobalSymbols;
  return true;
}

bool DbgDataManager::createFullKeyModuleSymbolList(DbgDataKey& key,
                                                   std::string s1,
                                                   std::string s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_ModuleSymbols;
  return true;
}

bool DbgDataManager::createFullKeyLocalSymbolList(DbgDataKey& key,
                                                  std::string s1,
                                                  std::string s2) const {
  appendJob(key, s1, s2) << DDH_DebugInfo << DDH_LocalSymbols;
  return true;
}

bool DbgDataManager::createFullKeyUserToolBarList(DbgDataKey& key) const {
  key << DDH_Root << DDH_UserToolbar;
  return true;
}

bool DbgDataManager::createFullKeySignalList(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2) const {
  appendJob(key, s1, s2) << DDH_Events << DDH_Signals;
  return true;
}

bool DbgDataManager::createFullKeyDataSharingEventList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_DataSharingEvent;
  return true;
}

bool DbgDataManager::createFullKeyDataSharingFilterList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_DataSharingFilter;
  return true;
}

// Deliberately ends in the caller's sub key s5, although it names a list.
bool DbgDataManager::createFullKeySIMDRegisterList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4, const std::string& s5) const {
  appendThread(key, s1, s2, s3, s4) << DDH_SIMDRegisters << s5;
  return true;
}

// Deliberately ends in the caller's sub key s4, although it names a list.
bool DbgDataManager::createFullKeySIMDEvalList(DbgDataKey& key,
                                               const std::string& s1,
                                               const std::string& s2,
                                               const std::string& s3,
                                               const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_SIMDEvaluations << s4;
  return true;
}

bool DbgDataManager::createFullKeyOpenMPTaskList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_OpenMPTask;
  return true;
}

bool DbgDataManager::createFullKeyOpenMPBarrierList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_OpenMPBarrier;
  return true;
}

bool DbgDataManager::createFullKeyOpenMPTaskWaitList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_OpenMPTaskWait;
  return true;
}

bool DbgDataManager::createFullKeyOpenMPLockList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_OpenMPLock;
  return true;
}

bool DbgDataManager::createFullKeyOpenMPTeamList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_OpenMPTeam;
  return true;
}

bool DbgDataManager::createFullKeyThreadSetList(DbgDataKey& key,
                                                const std::string& s1,
                                                const std::string& s2,
                                                const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_ThreadSet;
  return true;
}

bool DbgDataManager::createFullKeyReEntrantCallList(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_ReEntrantCalls;
  return true;
}

bool DbgDataManager::createFullKeyLoadableList(DbgDataKey& key,
                                               const std::string& s1,
                                               const std::string& s2,
                                               const std::string& s3) const {
  appendProcess(key, s1, s2, s3) << DDH_Loadables;
  return true;
}

bool DbgDataManager::createFullKeyLoadableListItem(
    DbgDataKey& key, const std::string& s1, const std::string& s2,
    const std::string& s3, const std::string& s4) const {
  appendProcess(key, s1, s2, s3) << DDH_Loadables << s4;
  return true;
}

} // namespace DbgData
} // namespace Vemo
