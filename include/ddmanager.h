// DbgDataManager: the vocabulary of the data model.
//
// Three static name tables map the ids of data classes, serialization
// sections and hierarchy places to their names; three maps (filled by init())
// lead back from names to ids. The manager creates data objects by class
// name or id, classifies full keys with a fixed automaton, and builds the
// full key of every kind of place in the hierarchy.
#ifndef DBGDATA_DDMANAGER_H
#define DBGDATA_DDMANAGER_H

#include "Common/RTTITempl.h"
#include "dbgdatakey.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Vemo {
namespace DbgData {

class DebuggerData;

// Data classes; the name of each id is the class's registered class name.
enum DebuggerDataID : std::int32_t {
  DDID_DebuggerData = 0,
  DDID_DataElement = 1,
  DDID_DataList = 2,
  DDID_DataListWC = 3,
  DDID_Root = 4,
  DDID_OptionListContent = 5,
  DDID_OptionItem = 6,
  DDID_ConfigListContent = 7,
  DDID_ConfigItem = 8,
  DDID_CurDbgPrompt = 9,
  DDID_ConsoleIOHistoryItem = 10,
  DDID_CmdHistoryItem = 11,
  DDID_CoreInfo = 12,
  DDID_ProcessInfoListContent = 13,
  DDID_ProcessInfoItem = 14,
  DDID_ThreadInfoListContent = 15,
  DDID_ThreadInfoItem = 16,
  DDID_PlugInListContent = 17,
  DDID_PlugInItem = 18,
  DDID_OtherOSInfoListContent = 19,
  DDID_OtherOSInfoItem = 20,
  DDID_RsrvdCoreInfo1 = 21,
  DDID_RsrvdCoreInfo2 = 22,
  DDID_RsrvdCoreInfo3 = 23,
  DDID_RsrvdCoreInfo4 = 24,
  DDID_DebuggerState = 25,
  DDID_ActiveDebuggee = 26,
  DDID_CurScope = 27,
  DDID_RsrvdState3 = 28,
  DDID_RsrvdState4 = 29,
  DDID_RsrvdState5 = 30,
  DDID_RsrvdState6 = 31,
  DDID_RsrvdState7 = 32,
  DDID_RsrvdState8 = 33,
  DDID_ParallelJobListContent = 34,
  DDID_ParallelJobItem = 35,
  DDID_JobListContent = 36,
  DDID_JobItem = 37,
  DDID_DebugInfo = 38,
  DDID_SourceListContent = 39,
  DDID_SourceItem = 40,
  DDID_SymbolListContent = 41,
  DDID_SymbolItem = 42,
  DDID_TypeListContent = 43,
  DDID_TypeItem = 44,
  DDID_Events = 45,
  DDID_BreakPointListContent = 46,
  DDID_BreakPointItem = 47,
  DDID_WatchPointListContent = 48,
  DDID_WatchPointItem = 49,
  DDID_SignalListContent = 50,
  DDID_SignalItem = 51,
  DDID_RsrvdEvent1 = 52,
  DDID_RsrvdEvent2 = 53,
  DDID_RsrvdEvent3 = 54,
  DDID_RsrvdEvent4 = 55,
  DDID_ProcessListContent = 56,
  DDID_ProcessItem = 57,
  DDID_ThreadListContent = 58,
  DDID_ThreadItem = 59,
  DDID_RegisterGroup = 60,
  DDID_RegisterItem = 61,
  DDID_LocalsRootContent = 62,
  DDID_LocalsLineContent = 63,
  DDID_StackFrameListContent = 64,
  DDID_StackFrameItem = 65,
  DDID_TLSListContent = 66,
  DDID_TLSItem = 67,
  DDID_MemoryListContent = 68,
  DDID_MemoryItem = 69,
  DDID_Paging = 70,
  DDID_1stPageListContent = 71,
  DDID_1stPageItem = 72,
  DDID_2ndPageListContent = 73,
  DDID_2ndPageItem = 74,
  DDID_RsrvdPage1 = 75,
  DDID_RsrvdPage2 = 76,
  DDID_RsrvdPage3 = 77,
  DDID_RsrvdPage4 = 78,
  DDID_EvalRootContent = 79,
  DDID_EvalLineContent = 80,
  DDID_DisAsmItem = 81,
  DDID_SourceScope = 82,
  DDID_BreakPointInternalZMT = 83,
  DDID_BreakPointInternalKYR = 84,
  DDID_ModuleListContent = 85,
  DDID_ModuleItem = 86,
  DDID_MemoryAddress = 87,
  DDID_EvalLineInternalZMT = 88,
  DDID_EvalLineInternalKYR = 89,
  DDID_StringList = 90,
  DDID_DisAsmListContent = 91,
  DDID_WatchPointInternalZMT = 92,
  DDID_WatchPointInternalKYR = 93,
  DDID_DisAsmConfig = 94,
  DDID_UserToolBarItem = 95,
  DDID_SymbolBrowserConfig = 96,
  DDID_DataAccessItem = 97,
  DDID_SymbolToken = 98,
  DDID_DataSharingConfig = 99,
  DDID_SIMDEvalRootContent = 100,
  DDID_SIMDEvalRowContent = 101,
  DDID_SIMDEvalItem = 102,
  DDID_SIMDConfig = 103,
  DDID_DataSharingFilterItem = 104,
  DDID_OpenMPTask = 105,
  DDID_OpenMPBarrier = 106,
  DDID_OpenMPTaskWait = 107,
  DDID_OpenMPLock = 108,
  DDID_OpenMPTeam = 109,
  DDID_OpenMPExecEnv = 110,
  DDID_ThreadSet = 111,
  DDID_ReEntrantCallInfo = 112,
  DDID_LoadableItem = 113,
  DDID_StateStoppedReason = 114,
  DDID_Undefined = 115,
};

enum DDSectionID : std::int32_t {
  DDS_EngineData = 0,
  DDS_List = 1,
  DDS_Child = 2,
  DDS_Content = 3,
  DDS_attributes = 4,
  DDS_values = 5,
  DDS_SpecialItemSubKey = 6,
  DDS_undefined = 7,
};

enum DDHierarchyID : std::int32_t {
  DDH_Root = 0,                       // "Root"
  DDH_Options = 1,                    // "Options[]"
  DDH_Options_Item = 2,               // item: OptionItem
  DDH_Configuration = 3,              // "Configuration[]"
  DDH_Configuration_Item = 4,         // item: ConfigItem
  DDH_Console = 5,                    // "Console"
  DDH_CurDbgPrompt = 6,               // "CurDbgPrompt"
  DDH_ConsoleIOHistory = 7,           // "ConsoleIOHistory[]"
  DDH_ConsoleIOHistory_Item = 8,      // item: ConsoleIOHistoryItem
  DDH_CmdHistory = 9,                 // "CmdHistory[]"
  DDH_CmdHistory_Item = 10,           // item: CmdHistoryItem
  DDH_CoreInfo = 11,                  // "CoreInfo"
  DDH_ProcessInfo = 12,               // "ProcessInfo[]"
  DDH_ProcessInfo_Item = 13,          // item: ProcessInfoItem
  DDH_ThreadInfo = 14,                // "ThreadInfo[]"
  DDH_ThreadInfo_Item = 15,           // item: ThreadInfoItem
  DDH_PlugIn = 16,                    // "PlugIn[]"
  DDH_PlugIn_Item = 17,               // item: PlugInItem
  DDH_OtherOSInfo = 18,               // "OtherOSInfo[]"
  DDH_OtherOSInfo_Item = 19,          // item: OtherOSInfoItem
  DDH_RsrvdCoreInfo1 = 20,            // "<RsrvdCoreInfo1>"
  DDH_RsrvdCoreInfo2 = 21,            // "<RsrvdCoreInfo2>"
  DDH_RsrvdCoreInfo3 = 22,            // "<RsrvdCoreInfo3>"
  DDH_RsrvdCoreInfo4 = 23,            // "<RsrvdCoreInfo4>"
  DDH_DebuggerState = 24,             // "DebuggerState"
  DDH_ActiveDebuggee = 25,            // "ActiveDebuggee"
  DDH_CurScope = 26,                  // "CurScope"
  DDH_RsrvdState3 = 27,               // "<RsrvdState3>"
  DDH_RsrvdState4 = 28,               // "<RsrvdState4>"
  DDH_RsrvdState5 = 29,               // "<RsrvdState5>"
  DDH_RsrvdState6 = 30,               // "<RsrvdState6>"
  DDH_RsrvdState7 = 31,               // "<RsrvdState7>"
  DDH_RsrvdState8 = 32,               // "<RsrvdState8>"
  DDH_ParallelJob = 33,               // "ParallelJob[]"
  DDH_ParallelJob_Item = 34,          // item: ParallelJobItem
  DDH_Jobs = 35,                      // "Jobs[]"
  DDH_Jobs_Item = 36,                 // item: JobItem
  DDH_DebugInfo = 37,                 // "DebugInfo"
  DDH_Sources = 38,                   // "Sources[]"
  DDH_Sources_Item = 39,              // item: SourceItem
  DDH_GlobalSymbols = 40,             // "GlobalSymbols[]"
  DDH_GlobalSymbols_Item = 41,        // item: SymbolItem
  DDH_Modules = 42,                   // "Modules[]"
  DDH_Modules_Item = 43,              // item: ModuleItem
  DDH_Types = 44,                     // "Types[]"
  DDH_Types_Item = 45,                // item: TypeItem
  DDH_Events = 46,                    // "Events"
  DDH_BreakPoints = 47,               // "BreakPoints[]"
  DDH_BreakPoints_Item = 48,          // item: BreakPointItem
  DDH_WatchPoints = 49,               // "WatchPoints[]"
  DDH_WatchPoints_Item = 50,          // item: WatchPointItem
  DDH_Signals = 51,                   // "Signals[]"
  DDH_Signals_Item = 52,              // item: SignalItem
  DDH_RsrvdEvent1 = 53,               // "<RsrvdEvent1>"
  DDH_RsrvdEvent2 = 54,               // "<RsrvdEvent2>"
  DDH_RsrvdEvent3 = 55,               // "<RsrvdEvent3>"
  DDH_RsrvdEvent4 = 56,               // "<RsrvdEvent4>"
  DDH_Process = 57,                   // "Process[]"
  DDH_Process_Item = 58,              // item: ProcessItem
  DDH_Threads = 59,                   // "Threads[]"
  DDH_Threads_Item = 60,              // item: ThreadItem
  DDH_CtxtRegGrps = 61,               // "CtxtRegGrps[]"
  DDH_CtxtRegGrps_Item = 62,          // item: RegisterGroup
  DDH_CtxtRegGrps_SubItem = 63,       // item: RegisterItem
  DDH_Locals = 64,                    // "Locals[]"
  DDH_LocalsRoot = 65,                // "LocalsRoot"
  DDH_StackFrames = 66,               // "StackFrames[]"
  DDH_StackFrames_Item = 67,          // item: StackFrameItem
  DDH_TLS = 68,                       // "TLS[]"
  DDH_TLS_Item = 69,                  // item: TLSItem
  DDH_Memory = 70,                    // "Memory[]"
  DDH_Memory_Item = 71,               // item: MemoryItem
  DDH_Paging = 72,                    // "Paging"
  DDH_Primary = 73,                   // "Primary[]"
  DDH_Primary_Item = 74,              // item: 1stPageItem
  DDH_Secondary = 75,                 // "Secondary[]"
  DDH_Secondary_Item = 76,            // item: 2ndPageItem
  DDH_RsrvdPage1 = 77,                // "<RsrvdPage1>"
  DDH_RsrvdPage2 = 78,                // "<RsrvdPage2>"
  DDH_RsrvdPage3 = 79,                // "<RsrvdPage3>"
  DDH_RsrvdPage4 = 80,                // "<RsrvdPage4>"
  DDH_SysRegSets = 81,                // "SysRegSets[]"
  DDH_SysRegSets_Item = 82,           // item: DataListWC
  DDH_SysRegSets_SubItem = 83,        // item: RegisterGroup
  DDH_SysRegSets_SubSubItem = 84,     // item: RegisterItem
  DDH_Evaluations = 85,               // "Evaluations[]"
  DDH_EvalRoot = 86,                  // "EvalRoot"
  DDH_DisAsm = 87,                    // "DisAsm[]"
  DDH_DisAsm_Item = 88,               // item: DisAsmItem
  DDH_ModuleSymbols = 89,             // "ModuleSymbols[]"
  DDH_ModuleSymbols_Item = 90,        // item: SymbolItem
  DDH_LocalSymbols = 91,              // "LocalSymbols[]"
  DDH_LocalSymbols_Item = 92,         // item: SymbolItem
  DDH_UserToolbar = 93,               // "UserToolbar[]"
  DDH_UserToolbar_Item = 94,          // item: UserToolBarItem
  DDH_DataSharingEvent = 95,          // "DataSharingEvent[]"
  DDH_DataSharingEvent_Item = 96,     // item: DataAccessItem
  DDH_SIMDRegisters = 97,             // "SIMDRegisters[]"
  DDH_SIMDRegisters_Item = 98,        // item: SIMDEvalRootContent
  DDH_DataSharingFilter = 99,         // "DataSharingFilter[]"
  DDH_DataSharingFilter_Item = 100,   // item: DataSharingFilterItem
  DDH_OpenMPTask = 101,               // "OpenMPTask[]"
  DDH_OpenMPTask_Item = 102,          // item: OpenMPTask
  DDH_OpenMPBarrier = 103,            // "OpenMPBarrier[]"
  DDH_OpenMPBarrier_Item = 104,       // item: OpenMPBarrier
  DDH_OpenMPTaskWait = 105,           // "OpenMPTaskWait[]"
  DDH_OpenMPTaskWait_Item = 106,      // item: OpenMPTaskWait
  DDH_OpenMPLock = 107,               // "OpenMPLock[]"
  DDH_OpenMPLock_Item = 108,          // item: OpenMPLock
  DDH_OpenMPTeam = 109,               // "OpenMPTeam[]"
  DDH_OpenMPTeam_Item = 110,          // item: OpenMPTeam
  DDH_ThreadSet = 111,                // "ThreadSet[]"
  DDH_ThreadSet_Item = 112,           // item: ThreadSet
  DDH_SIMDEvaluations = 113,          // "SIMDEvaluations[]"
  DDH_SIMDEvaluations_Item = 114,     // item: SIMDEvalRootContent
  DDH_ReEntrantCalls = 115,           // "ReEntrantCalls[]"
  DDH_ReEntrantCalls_Item = 116,      // item: ReEntrantCallInfo
  DDH_Loadables = 117,                // "Loadables[]"
  DDH_Loadables_Item = 118,           // item: LoadableItem
  DDH_FrameLocals = 119,              // "Locals[]"
  DDH_FrameCtxtRegGrps = 120,         // "CtxtRegGrps[]"
  DDH_FrameCtxtRegGrps_Item = 121,    // item: RegisterGroup
  DDH_FrameCtxtRegGrps_SubItem = 122, // item: RegisterItem
  DDH_Undefined = 123,                // "<Undefined>"
};

struct DD_NameRow {
  const char* name;
  DebuggerDataID id;
  // Identity of the class made for this row; null until the class's source
  // file binds it at load time, and for rows that cannot be created.
  const RTTITempl<DebuggerData>* rtti;
};

struct DDS_NameRow {
  const char* name;
  DDSectionID id;
};

struct DDH_NameRow {
  const char* name; // null for an item row: the sub key is the item's own
  DDHierarchyID id;
  DebuggerDataID classId; // class of the object found at this place
  int flag;
};

class DbgDataManager {
public:
  // Result of parseFullKey: the place reached, the elements consumed and the
  // indexes of the elements taken as item sub keys.
  struct DataHierarchy {
    DDHierarchyID place = DDH_Root;
    DbgDataKey key;
    std::vector<unsigned long> itemPositions;
  };

  // One transition of the full-key automaton.
  struct Transition {
    std::uint8_t named; // 1: matches the hierarchy name of id; 0: any element
    DDHierarchyID id;
    std::int32_t next; // next state, or StateEnd / StateReject
  };
  static constexpr std::int32_t StateEnd = INT32_MAX;
  static constexpr std::int32_t StateReject = INT32_MIN;
  static constexpr int StateCount = 62;
  // Each state's transitions end with its first "any" transition.
  static const Transition* const st_States[StateCount];

  static const int DD_NameCount = 116;
  static const int DDS_NameCount = 8;
  static const int DDH_NameCount = 124;
  static DD_NameRow st_DD_Name[DD_NameCount];
  static DDS_NameRow st_DDS_Name[DDS_NameCount];
  static DDH_NameRow st_DDH_Name[DDH_NameCount];

  // Stores a class's identity into the row of id, so that the factory can
  // create the class. Called by each class's source file at load time.
  static bool bindClassIdentity(DebuggerDataID id,
                                const RTTITempl<DebuggerData>* rtti);

  DbgDataManager();
  virtual ~DbgDataManager();

  // Sorts the tables and fills the name maps. Clients call it once.
  void init();
  // Puts every row of the three tables at the index equal to its id.
  static void sortNameTables();

  // New object of the class with the sub key set, owned by the caller; null
  // for unknown, abstract and reserved classes.
  DebuggerData* factory(const std::string& className,
                        const std::string& subKey) const;
  DebuggerData* factory(DebuggerDataID id, const std::string& subKey) const;

  // Name lookups (after init()); false when the name is unknown.
  bool getClassId(const std::string& name, DebuggerDataID* id) const;
  bool getSectionId(const std::string& name, DDSectionID* id) const;
  bool getHierarchyId(const std::string& name, DDHierarchyID* id) const;
  // Name lookups by id (after sortNameTables()); null for item rows.
  static const char* getClassName(DebuggerDataID id);
  static const char* getSectionName(DDSectionID id);
  static const char* getHierarchyName(DDHierarchyID id);

  // Walks the key through the automaton, appending to result (which is not
  // cleared). False for an empty key, an element the "<Undefined>" reject
  // transition takes, or a key that goes on after a place that must end it
  // (an end, or a reserved place leading to reject).
  bool parseFullKey(const DbgDataKey& key, DataHierarchy& result) const;
  bool parseFullKey(const std::string& text, DataHierarchy& result) const;

  virtual bool isPlugInKey(const DbgDataKey& key) const;
  virtual bool isPlugInKey(const std::string& text) const;
  virtual bool isEvalListKey(const DbgDataKey& key) const;
  virtual bool isLocalEvalListKey(const DbgDataKey& key) const;

  // Text forms of the plug-in builders: replace text with the key's text.
  virtual bool createFullKeyPlugInList(std::string& text) const;
  virtual bool createFullKeyPlugIn(std::string& text,
                                   const std::string& s1) const;
  virtual bool createFullKeyPlugInDataItem(std::string& text,
                                           const std::string& s1,
                                           const std::string& s2) const;

  // Builders: each appends the full key of one kind of place to key (which
  // callers pass empty) and answers true.
  virtual bool createFullKeyContextRegisterGrpList(DbgDataKey& key,
                                                   const std::string& s1,
                                                   const std::string& s2,
                                                   const std::string& s3,
                                                   const std::string& s4) const;
  virtual bool createFullKeyContextRegisterGroup(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3,
                                                 const std::string& s4,
                                                 const std::string& s5) const;
  virtual bool
  createFullKeyContextRegister(DbgDataKey& key, const std::string& s1,
                               const std::string& s2, const std::string& s3,
                               const std::string& s4, const std::string& s5,
                               const std::string& s6) const;
  virtual bool createFullKeyRoot(DbgDataKey& key) const;
  virtual bool createFullKeyDebuggerState(DbgDataKey& key) const;
  virtual bool createFullKeyActiveDebuggee(DbgDataKey& key) const;
  virtual bool createFullKeyCurScope(DbgDataKey& key) const;
  virtual bool createFullKeyConsole(DbgDataKey& key) const;
  virtual bool createFullKeyCurDbgPrompt(DbgDataKey& key) const;
  virtual bool createFullKeyConsoleIOHistoryList(DbgDataKey& key) const;
  virtual bool createFullKeyCmdHistoryList(DbgDataKey& key) const;
  virtual bool createFullKeyParallelJobList(DbgDataKey& key) const;
  virtual bool createFullKeyParallelJobItem(DbgDataKey& key,
                                            const std::string& s1) const;
  virtual bool createFullKeyJobList(DbgDataKey& key,
                                    const std::string& s1) const;
  virtual bool createFullKeyJobItem(DbgDataKey& key, const std::string& s1,
                                    const std::string& s2) const;
  virtual bool createFullKeyProcessList(DbgDataKey& key, const std::string& s1,
                                        const std::string& s2) const;
  virtual bool createFullKeyProcessItem(DbgDataKey& key, const std::string& s1,
                                        const std::string& s2,
                                        const std::string& s3) const;
  virtual bool createFullKeyThreadList(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2,
                                       const std::string& s3) const;
  virtual bool createFullKeyThreadItem(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2,
                                       const std::string& s3,
                                       const std::string& s4) const;
  virtual bool createFullKeyDebugInfo(DbgDataKey& key, const std::string& s1,
                                      const std::string& s2) const;
  virtual bool createFullKeySourceList(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2) const;
  virtual bool createFullKeySourceItem(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2,
                                       const std::string& s3) const;
  virtual bool createFullKeyEvents(DbgDataKey& key, const std::string& s1,
                                   const std::string& s2) const;
  virtual bool createFullKeyBreakPointList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2) const;
  virtual bool createFullKeyBreakPointItem(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3) const;
  virtual bool createFullKeyPlugInList(DbgDataKey& key) const;
  virtual bool createFullKeyPlugIn(DbgDataKey& key,
                                   const std::string& s1) const;
  virtual bool createFullKeyPlugInDataItem(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2) const;
  virtual bool createFullKeyStackFrameList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3,
                                           const std::string& s4) const;
  virtual bool createFullKeyStackFrameItem(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3,
                                           const std::string& s4,
                                           const std::string& s5) const;
  virtual bool createFullKeyStackFrameLocals(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4,
                                             const std::string& s5) const;
  virtual bool createFullKeyStackFrameRegisterGrpList(
      DbgDataKey& key, const std::string& s1, const std::string& s2,
      const std::string& s3, const std::string& s4,
      const std::string& s5) const;
  virtual bool createFullKeyStackFrameRegisterGroup(
      DbgDataKey& key, const std::string& s1, const std::string& s2,
      const std::string& s3, const std::string& s4, const std::string& s5,
      const std::string& s6) const;
  virtual bool createFullKeyStackFrameRegister(
      DbgDataKey& key, const std::string& s1, const std::string& s2,
      const std::string& s3, const std::string& s4, const std::string& s5,
      const std::string& s6, const std::string& s7) const;
  virtual bool createFullKeyEvalList(DbgDataKey& key, const std::string& s1,
                                     const std::string& s2,
                                     const std::string& s3) const;
  virtual bool createFullKeyEvalRoot(DbgDataKey& key, const std::string& s1,
                                     const std::string& s2,
                                     const std::string& s3,
                                     const std::string& s4) const;
  virtual bool createFullKeyModuleList(DbgDataKey& key, std::string s1,
                                       std::string s2) const;
  virtual bool createFullKeyMemoryItem(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2,
                                       const std::string& s3,
                                       const std::string& s4) const;
  virtual bool createFullKeyLocalEvalList(DbgDataKey& key,
                                          const std::string& s1,
                                          const std::string& s2,
                                          const std::string& s3,
                                          const std::string& s4) const;
  virtual bool createFullKeyLocalEvalRoot(DbgDataKey& key,
                                          const std::string& s1,
                                          const std::string& s2,
                                          const std::string& s3,
                                          const std::string& s4,
                                          const std::string& s5) const;
  virtual bool createFullKeySysRegSet(DbgDataKey& key, const std::string& s1,
                                      const std::string& s2,
                                      const std::string& s3) const;
  virtual bool createFullKeySysRegGrpList(DbgDataKey& key,
                                          const std::string& s1,
                                          const std::string& s2,
                                          const std::string& s3,
                                          const std::string& s4) const;
  virtual bool createFullKeySysRegGroup(DbgDataKey& key, const std::string& s1,
                                        const std::string& s2,
                                        const std::string& s3,
                                        const std::string& s4,
                                        const std::string& s5) const;
  virtual bool createFullKeySysRegister(DbgDataKey& key, const std::string& s1,
                                        const std::string& s2,
                                        const std::string& s3,
                                        const std::string& s4,
                                        const std::string& s5,
                                        const std::string& s6) const;
  virtual bool createFullKeyDisAsmList(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2,
                                       const std::string& s3,
                                       const std::string& s4) const;
  virtual bool createFullKeyGlobalSymbolList(DbgDataKey& key, std::string s1,
                                             std::string s2) const;
  virtual bool createFullKeyModuleSymbolList(DbgDataKey& key, std::string s1,
                                             std::string s2) const;
  virtual bool createFullKeyLocalSymbolList(DbgDataKey& key, std::string s1,
                                            std::string s2) const;
  virtual bool createFullKeyUserToolBarList(DbgDataKey& key) const;
  virtual bool createFullKeySignalList(DbgDataKey& key, const std::string& s1,
                                       const std::string& s2) const;
  virtual bool createFullKeyDataSharingEventList(DbgDataKey& key,
                                                 const std::string& s1,
                                                 const std::string& s2,
                                                 const std::string& s3) const;
  virtual bool createFullKeyDataSharingFilterList(DbgDataKey& key,
                                                  const std::string& s1,
                                                  const std::string& s2,
                                                  const std::string& s3) const;
  virtual bool createFullKeySIMDRegisterList(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4,
                                             const std::string& s5) const;
  virtual bool createFullKeySIMDEvalList(DbgDataKey& key, const std::string& s1,
                                         const std::string& s2,
                                         const std::string& s3,
                                         const std::string& s4) const;
  virtual bool createFullKeyOpenMPTaskList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3) const;
  virtual bool createFullKeyOpenMPBarrierList(DbgDataKey& key,
                                              const std::string& s1,
                                              const std::string& s2,
                                              const std::string& s3) const;
  virtual bool createFullKeyOpenMPTaskWaitList(DbgDataKey& key,
                                               const std::string& s1,
                                               const std::string& s2,
                                               const std::string& s3) const;
  virtual bool createFullKeyOpenMPLockList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3) const;
  virtual bool createFullKeyOpenMPTeamList(DbgDataKey& key,
                                           const std::string& s1,
                                           const std::string& s2,
                                           const std::string& s3) const;
  virtual bool createFullKeyThreadSetList(DbgDataKey& key,
                                          const std::string& s1,
                                          const std::string& s2,
                                          const std::string& s3) const;
  virtual bool createFullKeyReEntrantCallList(DbgDataKey& key,
                                              const std::string& s1,
                                              const std::string& s2,
                                              const std::string& s3) const;
  virtual bool createFullKeyLoadableList(DbgDataKey& key, const std::string& s1,
                                         const std::string& s2,
                                         const std::string& s3) const;
  virtual bool createFullKeyLoadableListItem(DbgDataKey& key,
                                             const std::string& s1,
                                             const std::string& s2,
                                             const std::string& s3,
                                             const std::string& s4) const;

private:
  std::map<std::string, DebuggerDataID> m_classIds;
  std::map<std::string, DDSectionID> m_sectionIds;
  std::map<std::string, DDHierarchyID> m_hierarchyIds;
};

// The one manager of the library.
extern DbgDataManager st_ddmanager;

} // namespace DbgData
} // namespace Vemo

#endif
