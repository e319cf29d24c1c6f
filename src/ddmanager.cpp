#include "ddmanager.h"

#include "debuggerdata.h"

namespace Vemo {
namespace DbgData {

DbgDataManager st_ddmanager;

DD_NameRow DbgDataManager::st_DD_Name[DD_NameCount] = {};
DDS_NameRow DbgDataManager::st_DDS_Name[DDS_NameCount] = {};
DDH_NameRow DbgDataManager::st_DDH_Name[DDH_NameCount] = {};

static const DbgDataManager::Transition s_stub[] = {
    {0, DDH_Undefined, DbgDataManager::StateReject}};
const DbgDataManager::Transition* const
    DbgDataManager::st_States[StateCount] = {s_stub};

bool DbgDataManager::bindClassIdentity(DebuggerDataID id,
                                       const RTTITempl<DebuggerData>* rtti) {
  for (DD_NameRow& row : st_DD_Name)
    if (row.id == id)
      row.rtti = rtti;
  return true;
}

DbgDataManager::DbgDataManager() = default;
DbgDataManager::~DbgDataManager() = default;
void DbgDataManager::init() {}
void DbgDataManager::sortNameTables() {}
DebuggerData* DbgDataManager::factory(const std::string&,
                                      const std::string&) const {
  return nullptr;
}
DebuggerData* DbgDataManager::factory(DebuggerDataID,
                                      const std::string&) const {
  return nullptr;
}
bool DbgDataManager::getClassId(const std::string&, DebuggerDataID*) const {
  return false;
}
bool DbgDataManager::getSectionId(const std::string&, DDSectionID*) const {
  return false;
}
bool DbgDataManager::getHierarchyId(const std::string&,
                                    DDHierarchyID*) const {
  return false;
}
const char* DbgDataManager::getClassName(DebuggerDataID) { return nullptr; }
const char* DbgDataManager::getSectionName(DDSectionID) { return nullptr; }
const char* DbgDataManager::getHierarchyName(DDHierarchyID) { return nullptr; }
bool DbgDataManager::parseFullKey(const DbgDataKey&, DataHierarchy&) const {
  return false;
}
bool DbgDataManager::parseFullKey(const std::string&, DataHierarchy&) const {
  return false;
}

DbgDataKey& DbgDataKey::operator<<(DDHierarchyID) { return *this; }

bool DbgDataManager::isPlugInKey(const DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::isPlugInKey(const std::string& text) const {
  (void)text;
  return false;
}

bool DbgDataManager::isEvalListKey(const DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::isLocalEvalListKey(const DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyPlugInList(std::string& text) const {
  (void)text;
  return false;
}

bool DbgDataManager::createFullKeyPlugIn(std::string& text, const std::string& s1) const {
  (void)text;
  (void)s1;
  return false;
}

bool DbgDataManager::createFullKeyPlugInDataItem(std::string& text, const std::string& s1, const std::string& s2) const {
  (void)text;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyContextRegisterGrpList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyContextRegisterGroup(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeyContextRegister(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5, const std::string& s6) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  (void)s6;
  return false;
}

bool DbgDataManager::createFullKeyRoot(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyDebuggerState(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyActiveDebuggee(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyCurScope(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyConsole(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyCurDbgPrompt(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyConsoleIOHistoryList(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyCmdHistoryList(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyParallelJobList(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyParallelJobItem(DbgDataKey& key, const std::string& s1) const {
  (void)key;
  (void)s1;
  return false;
}

bool DbgDataManager::createFullKeyJobList(DbgDataKey& key, const std::string& s1) const {
  (void)key;
  (void)s1;
  return false;
}

bool DbgDataManager::createFullKeyJobItem(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyProcessList(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyProcessItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyThreadList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyThreadItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyDebugInfo(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeySourceList(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeySourceItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyEvents(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyBreakPointList(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyBreakPointItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyPlugInList(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeyPlugIn(DbgDataKey& key, const std::string& s1) const {
  (void)key;
  (void)s1;
  return false;
}

bool DbgDataManager::createFullKeyPlugInDataItem(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameLocals(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameRegisterGrpList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameRegisterGroup(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5, const std::string& s6) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  (void)s6;
  return false;
}

bool DbgDataManager::createFullKeyStackFrameRegister(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5, const std::string& s6, const std::string& s7) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  (void)s6;
  (void)s7;
  return false;
}

bool DbgDataManager::createFullKeyEvalList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyEvalRoot(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyModuleList(DbgDataKey& key, std::string s1, std::string s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyMemoryItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyLocalEvalList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyLocalEvalRoot(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeySysRegSet(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeySysRegGrpList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeySysRegGroup(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeySysRegister(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5, const std::string& s6) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  (void)s6;
  return false;
}

bool DbgDataManager::createFullKeyDisAsmList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyGlobalSymbolList(DbgDataKey& key, std::string s1, std::string s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyModuleSymbolList(DbgDataKey& key, std::string s1, std::string s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyLocalSymbolList(DbgDataKey& key, std::string s1, std::string s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyUserToolBarList(DbgDataKey& key) const {
  (void)key;
  return false;
}

bool DbgDataManager::createFullKeySignalList(DbgDataKey& key, const std::string& s1, const std::string& s2) const {
  (void)key;
  (void)s1;
  (void)s2;
  return false;
}

bool DbgDataManager::createFullKeyDataSharingEventList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyDataSharingFilterList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeySIMDRegisterList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4, const std::string& s5) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  (void)s5;
  return false;
}

bool DbgDataManager::createFullKeySIMDEvalList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

bool DbgDataManager::createFullKeyOpenMPTaskList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyOpenMPBarrierList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyOpenMPTaskWaitList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyOpenMPLockList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyOpenMPTeamList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyThreadSetList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyReEntrantCallList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyLoadableList(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  return false;
}

bool DbgDataManager::createFullKeyLoadableListItem(DbgDataKey& key, const std::string& s1, const std::string& s2, const std::string& s3, const std::string& s4) const {
  (void)key;
  (void)s1;
  (void)s2;
  (void)s3;
  (void)s4;
  return false;
}

} // namespace DbgData
} // namespace Vemo
