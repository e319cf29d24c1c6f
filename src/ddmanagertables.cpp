// The static name tables of DbgDataManager and the states of its full-key
// automaton.
//
// All of it is plain constant data: the tables are constant-initialized, so
// the source files of the data classes may bind their identities into
// st_DD_Name during their own static initialisation, whatever the order in
// which the library's files are initialised. Rows are stored in id order;
// sortNameTables() still restores that order if anything moved them.
#include "ddmanager.h"

namespace Vemo {
namespace DbgData {

// Class names; the identity pointers are filled in by bindClassIdentity().
DD_NameRow DbgDataManager::st_DD_Name[DD_NameCount] = {
    {"DebuggerData", DDID_DebuggerData, nullptr},
    {"DataElement", DDID_DataElement, nullptr},
    {"DataList", DDID_DataList, nullptr},
    {"DataListWC", DDID_DataListWC, nullptr},
    {"Root", DDID_Root, nullptr},
    {"OptionListContent", DDID_OptionListContent, nullptr},
    {"OptionItem", DDID_OptionItem, nullptr},
    {"ConfigListContent", DDID_ConfigListContent, nullptr},
    {"ConfigItem", DDID_ConfigItem, nullptr},
    {"CurDbgPrompt", DDID_CurDbgPrompt, nullptr},
    {"ConsoleIOHistoryItem", DDID_ConsoleIOHistoryItem, nullptr},
    {"CmdHistoryItem", DDID_CmdHistoryItem, nullptr},
    {"CoreInfo", DDID_CoreInfo, nullptr},
    {"ProcessInfoListContent", DDID_ProcessInfoListContent, nullptr},
    {"ProcessInfoItem", DDID_ProcessInfoItem, nullptr},
    {"ThreadInfoListContent", DDID_ThreadInfoListContent, nullptr},
    {"ThreadInfoItem", DDID_ThreadInfoItem, nullptr},
    {"PlugInListContent", DDID_PlugInListContent, nullptr},
    {"PlugInItem", DDID_PlugInItem, nullptr},
    {"OtherOSInfoListContent", DDID_OtherOSInfoListContent, nullptr},
    {"OtherOSInfoItem", DDID_OtherOSInfoItem, nullptr},
    {"RsrvdCoreInfo1", DDID_RsrvdCoreInfo1, nullptr},
    {"RsrvdCoreInfo2", DDID_RsrvdCoreInfo2, nullptr},
    {"RsrvdCoreInfo3", DDID_RsrvdCoreInfo3, nullptr},
    {"RsrvdCoreInfo4", DDID_RsrvdCoreInfo4, nullptr},
    {"DebuggerState", DDID_DebuggerState, nullptr},
    {"ActiveDebuggee", DDID_ActiveDebuggee, nullptr},
    {"CurScope", DDID_CurScope, nullptr},
    {"RsrvdState3", DDID_RsrvdState3, nullptr},
    {"RsrvdState4", DDID_RsrvdState4, nullptr},
    {"RsrvdState5", DDID_RsrvdState5, nullptr},
    {"RsrvdState6", DDID_RsrvdState6, nullptr},
    {"RsrvdState7", DDID_RsrvdState7, nullptr},
    {"RsrvdState8", DDID_RsrvdState8, nullptr},
    {"ParallelJobListContent", DDID_ParallelJobListContent, nullptr},
    {"ParallelJobItem", DDID_ParallelJobItem, nullptr},
    {"JobListContent", DDID_JobListContent, nullptr},
    {"JobItem", DDID_JobItem, nullptr},
    {"DebugInfo", DDID_DebugInfo, nullptr},
    {"SourceListContent", DDID_SourceListContent, nullptr},
    {"SourceItem", DDID_SourceItem, nullptr},
    {"SymbolListContent", DDID_SymbolListContent, nullptr},
    {"SymbolItem", DDID_SymbolItem, nullptr},
    {"TypeListContent", DDID_TypeListContent, nullptr},
    {"TypeItem", DDID_TypeItem, nullptr},
    {"Events", DDID_Events, nullptr},
    {"BreakPointListContent", DDID_BreakPointListContent, nullptr},
    {"BreakPointItem", DDID_BreakPointItem, nullptr},
    {"WatchPointListContent", DDID_WatchPointListContent, nullptr},
    {"WatchPointItem", DDID_WatchPointItem, nullptr},
    {"SignalListContent", DDID_SignalListContent, nullptr},
    {"SignalItem", DDID_SignalItem, nullptr},
    {"RsrvdEvent1", DDID_RsrvdEvent1, nullptr},
    {"RsrvdEvent2", DDID_RsrvdEvent2, nullptr},
    {"RsrvdEvent3", DDID_RsrvdEvent3, nullptr},
    {"RsrvdEvent4", DDID_RsrvdEvent4, nullptr},
    {"ProcessListContent", DDID_ProcessListContent, nullptr},
    {"ProcessItem", DDID_ProcessItem, nullptr},
    {"ThreadListContent", DDID_ThreadListContent, nullptr},
    {"ThreadItem", DDID_ThreadItem, nullptr},
    {"RegisterGroup", DDID_RegisterGroup, nullptr},
    {"RegisterItem", DDID_RegisterItem, nullptr},
    {"LocalsRootContent", DDID_LocalsRootContent, nullptr},
    {"LocalsLineContent", DDID_LocalsLineContent, nullptr},
    {"StackFrameListContent", DDID_StackFrameListContent, nullptr},
    {"StackFrameItem", DDID_StackFrameItem, nullptr},
    {"TLSListContent", DDID_TLSListContent, nullptr},
    {"TLSItem", DDID_TLSItem, nullptr},
    {"MemoryListContent", DDID_MemoryListContent, nullptr},
    {"MemoryItem", DDID_MemoryItem, nullptr},
    {"Paging", DDID_Paging, nullptr},
    {"1stPageListContent", DDID_1stPageListContent, nullptr},
    {"1stPageItem", DDID_1stPageItem, nullptr},
    {"2ndPageListContent", DDID_2ndPageListContent, nullptr},
    {"2ndPageItem", DDID_2ndPageItem, nullptr},
    {"RsrvdPage1", DDID_RsrvdPage1, nullptr},
    {"RsrvdPage2", DDID_RsrvdPage2, nullptr},
    {"RsrvdPage3", DDID_RsrvdPage3, nullptr},
    {"RsrvdPage4", DDID_RsrvdPage4, nullptr},
    {"EvalRootContent", DDID_EvalRootContent, nullptr},
    {"EvalLineContent", DDID_EvalLineContent, nullptr},
    {"DisAsmItem", DDID_DisAsmItem, nullptr},
    {"SourceScope", DDID_SourceScope, nullptr},
    {"BreakPointInternalZMT", DDID_BreakPointInternalZMT, nullptr},
    {"BreakPointInternalKYR", DDID_BreakPointInternalKYR, nullptr},
    {"ModuleListContent", DDID_ModuleListContent, nullptr},
    {"ModuleItem", DDID_ModuleItem, nullptr},
    {"MemoryAddress", DDID_MemoryAddress, nullptr},
    {"EvalLineInternalZMT", DDID_EvalLineInternalZMT, nullptr},
    {"EvalLineInternalKYR", DDID_EvalLineInternalKYR, nullptr},
    {"StringList", DDID_StringList, nullptr},
    {"DisAsmListContent", DDID_DisAsmListContent, nullptr},
    {"WatchPointInternalZMT", DDID_WatchPointInternalZMT, nullptr},
    {"WatchPointInternalKYR", DDID_WatchPointInternalKYR, nullptr},
    {"DisAsmConfig", DDID_DisAsmConfig, nullptr},
    {"UserToolBarItem", DDID_UserToolBarItem, nullptr},
    {"SymbolBrowserConfig", DDID_SymbolBrowserConfig, nullptr},
    {"DataAccessItem", DDID_DataAccessItem, nullptr},
    {"SymbolToken", DDID_SymbolToken, nullptr},
    {"DataSharingConfig", DDID_DataSharingConfig, nullptr},
    {"SIMDEvalRootContent", DDID_SIMDEvalRootContent, nullptr},
    {"SIMDEvalRowContent", DDID_SIMDEvalRowContent, nullptr},
    {"SIMDEvalItem", DDID_SIMDEvalItem, nullptr},
    {"SIMDConfig", DDID_SIMDConfig, nullptr},
    {"DataSharingFilterItem", DDID_DataSharingFilterItem, nullptr},
    {"OpenMPTask", DDID_OpenMPTask, nullptr},
    {"OpenMPBarrier", DDID_OpenMPBarrier, nullptr},
    {"OpenMPTaskWait", DDID_OpenMPTaskWait, nullptr},
    {"OpenMPLock", DDID_OpenMPLock, nullptr},
    {"OpenMPTeam", DDID_OpenMPTeam, nullptr},
    {"OpenMPExecEnv", DDID_OpenMPExecEnv, nullptr},
    {"ThreadSet", DDID_ThreadSet, nullptr},
    {"ReEntrantCallInfo", DDID_ReEntrantCallInfo, nullptr},
    {"LoadableItem", DDID_LoadableItem, nullptr},
    {"StateStoppedReason", DDID_StateStoppedReason, nullptr},
    {"Undefined", DDID_Undefined, nullptr},
};

// Serialization section names.
DDS_NameRow DbgDataManager::st_DDS_Name[DDS_NameCount] = {
    {"EngineData", DDS_EngineData},
    {"List", DDS_List},
    {"Child", DDS_Child},
    {"Content", DDS_Content},
    {"attributes", DDS_attributes},
    {"values", DDS_values},
    {"SpecialItemSubKey", DDS_SpecialItemSubKey},
    {"undefined", DDS_undefined},
};

// Hierarchy places: name (null for an item row, whose sub key is the item's
// own), id, class of the object found there, flag.
DDH_NameRow DbgDataManager::st_DDH_Name[DDH_NameCount] = {
    {"Root", DDH_Root, DDID_Root, 0},
    {"Options[]", DDH_Options, DDID_OptionListContent, 0},
    {nullptr, DDH_Options_Item, DDID_OptionItem, 1},
    {"Configuration[]", DDH_Configuration, DDID_ConfigListContent, 0},
    {nullptr, DDH_Configuration_Item, DDID_ConfigItem, 1},
    {"Console", DDH_Console, DDID_DataList, 1},
    {"CurDbgPrompt", DDH_CurDbgPrompt, DDID_CurDbgPrompt, 1},
    {"ConsoleIOHistory[]", DDH_ConsoleIOHistory, DDID_DataList, 1},
    {nullptr, DDH_ConsoleIOHistory_Item, DDID_ConsoleIOHistoryItem, 1},
    {"CmdHistory[]", DDH_CmdHistory, DDID_DataList, 1},
    {nullptr, DDH_CmdHistory_Item, DDID_CmdHistoryItem, 1},
    {"CoreInfo", DDH_CoreInfo, DDID_CoreInfo, 0},
    {"ProcessInfo[]", DDH_ProcessInfo, DDID_ProcessInfoListContent, 0},
    {nullptr, DDH_ProcessInfo_Item, DDID_ProcessInfoItem, 1},
    {"ThreadInfo[]", DDH_ThreadInfo, DDID_ThreadInfoListContent, 0},
    {nullptr, DDH_ThreadInfo_Item, DDID_ThreadInfoItem, 1},
    {"PlugIn[]", DDH_PlugIn, DDID_PlugInListContent, 0},
    {nullptr, DDH_PlugIn_Item, DDID_PlugInItem, 1},
    {"OtherOSInfo[]", DDH_OtherOSInfo, DDID_OtherOSInfoListContent, 0},
    {nullptr, DDH_OtherOSInfo_Item, DDID_OtherOSInfoItem, 1},
    {"<RsrvdCoreInfo1>", DDH_RsrvdCoreInfo1, DDID_RsrvdCoreInfo1, 1},
    {"<RsrvdCoreInfo2>", DDH_RsrvdCoreInfo2, DDID_RsrvdCoreInfo2, 1},
    {"<RsrvdCoreInfo3>", DDH_RsrvdCoreInfo3, DDID_RsrvdCoreInfo3, 1},
    {"<RsrvdCoreInfo4>", DDH_RsrvdCoreInfo4, DDID_RsrvdCoreInfo4, 1},
    {"DebuggerState", DDH_DebuggerState, DDID_DebuggerState, 0},
    {"ActiveDebuggee", DDH_ActiveDebuggee, DDID_ActiveDebuggee, 1},
    {"CurScope", DDH_CurScope, DDID_CurScope, 1},
    {"<RsrvdState3>", DDH_RsrvdState3, DDID_RsrvdState3, 1},
    {"<RsrvdState4>", DDH_RsrvdState4, DDID_RsrvdState4, 1},
    {"<RsrvdState5>", DDH_RsrvdState5, DDID_RsrvdState5, 1},
    {"<RsrvdState6>", DDH_RsrvdState6, DDID_RsrvdState6, 1},
    {"<RsrvdState7>", DDH_RsrvdState7, DDID_RsrvdState7, 1},
    {"<RsrvdState8>", DDH_RsrvdState8, DDID_RsrvdState8, 1},
    {"ParallelJob[]", DDH_ParallelJob, DDID_ParallelJobListContent, 0},
    {nullptr, DDH_ParallelJob_Item, DDID_ParallelJobItem, 1},
    {"Jobs[]", DDH_Jobs, DDID_JobListContent, 0},
    {nullptr, DDH_Jobs_Item, DDID_JobItem, 1},
    {"DebugInfo", DDH_DebugInfo, DDID_DebugInfo, 0},
    {"Sources[]", DDH_Sources, DDID_SourceListContent, 0},
    {nullptr, DDH_Sources_Item, DDID_SourceItem, 1},
    {"GlobalSymbols[]", DDH_GlobalSymbols, DDID_DataListWC, 0},
    {nullptr, DDH_GlobalSymbols_Item, DDID_SymbolItem, 1},
    {"Modules[]", DDH_Modules, DDID_ModuleListContent, 0},
    {nullptr, DDH_Modules_Item, DDID_ModuleItem, 1},
    {"Types[]", DDH_Types, DDID_TypeListContent, 0},
    {nullptr, DDH_Types_Item, DDID_TypeItem, 1},
    {"Events", DDH_Events, DDID_Events, 0},
    {"BreakPoints[]", DDH_BreakPoints, DDID_BreakPointListContent, 0},
    {nullptr, DDH_BreakPoints_Item, DDID_BreakPointItem, 1},
    {"WatchPoints[]", DDH_WatchPoints, DDID_WatchPointListContent, 0},
    {nullptr, DDH_WatchPoints_Item, DDID_WatchPointItem, 1},
    {"Signals[]", DDH_Signals, DDID_SignalListContent, 0},
    {nullptr, DDH_Signals_Item, DDID_SignalItem, 1},
    {"<RsrvdEvent1>", DDH_RsrvdEvent1, DDID_RsrvdEvent1, 1},
    {"<RsrvdEvent2>", DDH_RsrvdEvent2, DDID_RsrvdEvent2, 1},
    {"<RsrvdEvent3>", DDH_RsrvdEvent3, DDID_RsrvdEvent3, 1},
    {"<RsrvdEvent4>", DDH_RsrvdEvent4, DDID_RsrvdEvent4, 1},
    {"Process[]", DDH_Process, DDID_ProcessListContent, 0},
    {nullptr, DDH_Process_Item, DDID_ProcessItem, 1},
    {"Threads[]", DDH_Threads, DDID_ThreadListContent, 0},
    {nullptr, DDH_Threads_Item, DDID_ThreadItem, 1},
    {"CtxtRegGrps[]", DDH_CtxtRegGrps, DDID_DataListWC, 0},
    {nullptr, DDH_CtxtRegGrps_Item, DDID_RegisterGroup, 0},
    {nullptr, DDH_CtxtRegGrps_SubItem, DDID_RegisterItem, 1},
    {"Locals[]", DDH_Locals, DDID_DataList, 0},
    {"LocalsRoot", DDH_LocalsRoot, DDID_EvalRootContent, 1},
    {"StackFrames[]", DDH_StackFrames, DDID_StackFrameListContent, 0},
    {nullptr, DDH_StackFrames_Item, DDID_StackFrameItem, 1},
    {"TLS[]", DDH_TLS, DDID_TLSListContent, 0},
    {nullptr, DDH_TLS_Item, DDID_TLSItem, 1},
    {"Memory[]", DDH_Memory, DDID_MemoryListContent, 0},
    {nullptr, DDH_Memory_Item, DDID_MemoryItem, 1},
    {"Paging", DDH_Paging, DDID_Paging, 0},
    {"Primary[]", DDH_Primary, DDID_1stPageListContent, 0},
    {nullptr, DDH_Primary_Item, DDID_1stPageItem, 1},
    {"Secondary[]", DDH_Secondary, DDID_2ndPageListContent, 0},
    {nullptr, DDH_Secondary_Item, DDID_2ndPageItem, 1},
    {"<RsrvdPage1>", DDH_RsrvdPage1, DDID_RsrvdPage1, 1},
    {"<RsrvdPage2>", DDH_RsrvdPage2, DDID_RsrvdPage2, 1},
    {"<RsrvdPage3>", DDH_RsrvdPage3, DDID_RsrvdPage3, 1},
    {"<RsrvdPage4>", DDH_RsrvdPage4, DDID_RsrvdPage4, 1},
    {"SysRegSets[]", DDH_SysRegSets, DDID_DataListWC, 0},
    {nullptr, DDH_SysRegSets_Item, DDID_DataListWC, 0},
    {nullptr, DDH_SysRegSets_SubItem, DDID_RegisterGroup, 1},
    {nullptr, DDH_SysRegSets_SubSubItem, DDID_RegisterItem, 1},
    {"Evaluations[]", DDH_Evaluations, DDID_DataList, 1},
    {"EvalRoot", DDH_EvalRoot, DDID_EvalRootContent, 0},
    {"DisAsm[]", DDH_DisAsm, DDID_DisAsmListContent, 0},
    {nullptr, DDH_DisAsm_Item, DDID_DisAsmItem, 0},
    {"ModuleSymbols[]", DDH_ModuleSymbols, DDID_DataListWC, 1},
    {nullptr, DDH_ModuleSymbols_Item, DDID_SymbolItem, 0},
    {"LocalSymbols[]", DDH_LocalSymbols, DDID_DataListWC, 1},
    {nullptr, DDH_LocalSymbols_Item, DDID_SymbolItem, 0},
    {"UserToolbar[]", DDH_UserToolbar, DDID_DataList, 1},
    {nullptr, DDH_UserToolbar_Item, DDID_UserToolBarItem, 0},
    {"DataSharingEvent[]", DDH_DataSharingEvent, DDID_DataListWC, 0},
    {nullptr, DDH_DataSharingEvent_Item, DDID_DataAccessItem, 1},
    {"SIMDRegisters[]", DDH_SIMDRegisters, DDID_DataList, 0},
    {nullptr, DDH_SIMDRegisters_Item, DDID_SIMDEvalRootContent, 1},
    {"DataSharingFilter[]", DDH_DataSharingFilter, DDID_DataList, 0},
    {nullptr, DDH_DataSharingFilter_Item, DDID_DataSharingFilterItem, 1},
    {"OpenMPTask[]", DDH_OpenMPTask, DDID_DataList, 0},
    {nullptr, DDH_OpenMPTask_Item, DDID_OpenMPTask, 1},
    {"OpenMPBarrier[]", DDH_OpenMPBarrier, DDID_DataList, 0},
    {nullptr, DDH_OpenMPBarrier_Item, DDID_OpenMPBarrier, 1},
    {"OpenMPTaskWait[]", DDH_OpenMPTaskWait, DDID_DataList, 0},
    {nullptr, DDH_OpenMPTaskWait_Item, DDID_OpenMPTaskWait, 1},
    {"OpenMPLock[]", DDH_OpenMPLock, DDID_DataList, 0},
    {nullptr, DDH_OpenMPLock_Item, DDID_OpenMPLock, 1},
    {"OpenMPTeam[]", DDH_OpenMPTeam, DDID_DataList, 0},
    {nullptr, DDH_OpenMPTeam_Item, DDID_OpenMPTeam, 1},
    {"ThreadSet[]", DDH_ThreadSet, DDID_DataList, 0},
    {nullptr, DDH_ThreadSet_Item, DDID_ThreadSet, 1},
    {"SIMDEvaluations[]", DDH_SIMDEvaluations, DDID_DataList, 0},
    {nullptr, DDH_SIMDEvaluations_Item, DDID_SIMDEvalRootContent, 1},
    {"ReEntrantCalls[]", DDH_ReEntrantCalls, DDID_DataList, 0},
    {nullptr, DDH_ReEntrantCalls_Item, DDID_ReEntrantCallInfo, 1},
    {"Loadables[]", DDH_Loadables, DDID_DataList, 0},
    {nullptr, DDH_Loadables_Item, DDID_LoadableItem, 1},
    {"Locals[]", DDH_FrameLocals, DDID_DataList, 1},
    {"CtxtRegGrps[]", DDH_FrameCtxtRegGrps, DDID_DataListWC, 1},
    {nullptr, DDH_FrameCtxtRegGrps_Item, DDID_RegisterGroup, 1},
    {nullptr, DDH_FrameCtxtRegGrps_SubItem, DDID_RegisterItem, 1},
    {"<Undefined>", DDH_Undefined, DDID_Undefined, 0},
};

namespace {

using Transition = DbgDataManager::Transition;
constexpr std::int32_t kEnd = DbgDataManager::StateEnd;
constexpr std::int32_t kReject = DbgDataManager::StateReject;

// Matches an element equal to the hierarchy name of place.
constexpr Transition named(DDHierarchyID place, std::int32_t next) {
  return Transition{1, place, next};
}
// Matches every element, taken as place; ends the state's transitions.
constexpr Transition any(DDHierarchyID place, std::int32_t next) {
  return Transition{0, place, next};
}

// The states of the full-key automaton, numbered by their suffix.
//
// Where a name belongs to two places, the transition carries the place it
// reaches: below a thread (state 33) "Locals[]" and "CtxtRegGrps[]" are
// DDH_Locals and DDH_CtxtRegGrps, below a stack frame (state 59) they are
// DDH_FrameLocals and DDH_FrameCtxtRegGrps.
//
// The "otherwise" transitions of the named states take an unknown name as
// an item at place DDH_Root and start over in state 0. A few any transitions
// deliberately carry the id of the named list or place rather than of its
// item row: state 31 (DDH_EvalRoot), state 38 (DDH_LocalsRoot), state 55
// (DDH_ThreadSet) and state 57 (DDH_ReEntrantCalls).
const Transition kState0[] = {named(DDH_Root, 1), any(DDH_Root, 0)};
const Transition kState1[] = {
    named(DDH_Options, 2),       named(DDH_Configuration, 3),
    named(DDH_Console, 4),       named(DDH_CoreInfo, 5),
    named(DDH_DebuggerState, 6), named(DDH_ParallelJob, 7),
    named(DDH_UserToolbar, 46),  any(DDH_Root, 0)};
const Transition kState2[] = {any(DDH_Options_Item, kEnd)};
const Transition kState3[] = {any(DDH_Configuration_Item, kEnd)};
const Transition kState4[] = {named(DDH_ConsoleIOHistory, 8),
                              named(DDH_CmdHistory, 9),
                              named(DDH_CurDbgPrompt, kEnd), any(DDH_Root, 0)};
const Transition kState5[] = {named(DDH_ProcessInfo, 10),
                              named(DDH_ThreadInfo, 11), named(DDH_PlugIn, 12),
                              named(DDH_OtherOSInfo, 13), any(DDH_Root, 0)};
const Transition kState6[] = {named(DDH_ActiveDebuggee, kEnd),
                              named(DDH_CurScope, kEnd),
                              named(DDH_RsrvdState3, kReject),
                              named(DDH_RsrvdState4, kReject),
                              named(DDH_RsrvdState5, kReject),
                              named(DDH_RsrvdState6, kReject),
                              named(DDH_RsrvdState7, kReject),
                              named(DDH_RsrvdState8, kReject),
                              any(DDH_Root, 0)};
const Transition kState7[] = {any(DDH_ParallelJob_Item, 14)};
const Transition kState8[] = {any(DDH_ConsoleIOHistory_Item, kEnd)};
const Transition kState9[] = {any(DDH_CmdHistory_Item, kEnd)};
const Transition kState10[] = {any(DDH_ProcessInfo_Item, kEnd)};
const Transition kState11[] = {any(DDH_ThreadInfo_Item, kEnd)};
const Transition kState12[] = {any(DDH_PlugIn_Item, 12)};
const Transition kState13[] = {any(DDH_OtherOSInfo_Item, kEnd)};
const Transition kState14[] = {named(DDH_Jobs, 15), any(DDH_Root, 0)};
const Transition kState15[] = {any(DDH_Jobs_Item, 16)};
const Transition kState16[] = {named(DDH_DebugInfo, 17), named(DDH_Events, 18),
                               named(DDH_Process, 19), any(DDH_Root, 0)};
const Transition kState17[] = {named(DDH_Sources, 20),
                               named(DDH_GlobalSymbols, 21),
                               named(DDH_Types, 22),
                               named(DDH_Modules, 42),
                               named(DDH_ModuleSymbols, 44),
                               named(DDH_LocalSymbols, 45),
                               any(DDH_Root, 0)};
const Transition kState18[] = {
    named(DDH_BreakPoints, 23),      named(DDH_WatchPoints, 24),
    named(DDH_Signals, 25),          named(DDH_RsrvdEvent1, kReject),
    named(DDH_RsrvdEvent2, kReject), named(DDH_RsrvdEvent3, kReject),
    named(DDH_RsrvdEvent4, kReject), any(DDH_Root, 0)};
const Transition kState19[] = {any(DDH_Process_Item, 26)};
const Transition kState20[] = {any(DDH_Sources_Item, kEnd)};
const Transition kState21[] = {any(DDH_GlobalSymbols_Item, kEnd)};
const Transition kState22[] = {any(DDH_Types_Item, kEnd)};
const Transition kState23[] = {any(DDH_BreakPoints_Item, kEnd)};
const Transition kState24[] = {any(DDH_WatchPoints_Item, kEnd)};
const Transition kState25[] = {any(DDH_Signals_Item, kEnd)};
const Transition kState26[] = {
    named(DDH_Threads, 27),          named(DDH_Memory, 28),
    named(DDH_Paging, 29),           named(DDH_SysRegSets, 30),
    named(DDH_Evaluations, 31),      named(DDH_DisAsm, 32),
    named(DDH_DataSharingEvent, 47), named(DDH_DataSharingFilter, 49),
    named(DDH_OpenMPTask, 50),       named(DDH_OpenMPBarrier, 51),
    named(DDH_OpenMPTaskWait, 52),   named(DDH_OpenMPLock, 53),
    named(DDH_OpenMPTeam, 54),       named(DDH_ThreadSet, 55),
    named(DDH_SIMDEvaluations, 56),  named(DDH_ReEntrantCalls, 57),
    named(DDH_Loadables, 58),        any(DDH_Root, 0)};
const Transition kState27[] = {any(DDH_Threads_Item, 33)};
const Transition kState28[] = {any(DDH_Memory_Item, kEnd)};
const Transition kState29[] = {named(DDH_Primary, 34),
                               named(DDH_Secondary, 35),
                               named(DDH_RsrvdPage1, kReject),
                               named(DDH_RsrvdPage2, kReject),
                               named(DDH_RsrvdPage3, kReject),
                               named(DDH_RsrvdPage4, kReject),
                               any(DDH_Root, 0)};
const Transition kState30[] = {any(DDH_SysRegSets_Item, 36)};
const Transition kState31[] = {any(DDH_EvalRoot, kEnd)};
const Transition kState32[] = {any(DDH_DisAsm_Item, kEnd)};
const Transition kState33[] = {
    named(DDH_CtxtRegGrps, 37),   named(DDH_Locals, 38),
    named(DDH_StackFrames, 39),   named(DDH_TLS, 40),
    named(DDH_SIMDRegisters, 48), any(DDH_Root, 0)};
const Transition kState34[] = {any(DDH_Primary_Item, kEnd)};
const Transition kState35[] = {any(DDH_Secondary_Item, kEnd)};
const Transition kState36[] = {any(DDH_SysRegSets_SubItem, 43)};
const Transition kState37[] = {any(DDH_CtxtRegGrps_Item, 41)};
const Transition kState38[] = {any(DDH_LocalsRoot, kEnd)};
const Transition kState39[] = {any(DDH_StackFrames_Item, 59)};
const Transition kState40[] = {any(DDH_TLS_Item, kEnd)};
const Transition kState41[] = {any(DDH_CtxtRegGrps_SubItem, kEnd)};
const Transition kState42[] = {any(DDH_Modules_Item, kEnd)};
const Transition kState43[] = {any(DDH_SysRegSets_SubSubItem, kEnd)};
const Transition kState44[] = {any(DDH_ModuleSymbols_Item, kEnd)};
const Transition kState45[] = {any(DDH_LocalSymbols_Item, kEnd)};
const Transition kState46[] = {any(DDH_UserToolbar_Item, kEnd)};
const Transition kState47[] = {any(DDH_DataSharingEvent_Item, kEnd)};
const Transition kState48[] = {any(DDH_SIMDRegisters_Item, kEnd)};
const Transition kState49[] = {any(DDH_DataSharingFilter_Item, kEnd)};
const Transition kState50[] = {any(DDH_OpenMPTask_Item, kEnd)};
const Transition kState51[] = {any(DDH_OpenMPBarrier_Item, kEnd)};
const Transition kState52[] = {any(DDH_OpenMPTaskWait_Item, kEnd)};
const Transition kState53[] = {any(DDH_OpenMPLock_Item, kEnd)};
const Transition kState54[] = {any(DDH_OpenMPTeam_Item, kEnd)};
const Transition kState55[] = {any(DDH_ThreadSet, kEnd)};
const Transition kState56[] = {any(DDH_SIMDEvaluations_Item, kEnd)};
const Transition kState57[] = {any(DDH_ReEntrantCalls, kEnd)};
const Transition kState58[] = {any(DDH_Loadables_Item, kEnd)};
const Transition kState59[] = {named(DDH_FrameLocals, kEnd),
                               named(DDH_FrameCtxtRegGrps, 60),
                               any(DDH_Root, 0)};
const Transition kState60[] = {any(DDH_FrameCtxtRegGrps_Item, 61)};
const Transition kState61[] = {any(DDH_FrameCtxtRegGrps_SubItem, kEnd)};

} // namespace

const DbgDataManager::Transition* const DbgDataManager::st_States[StateCount] =
    {
        kState0,  kState1,  kState2,  kState3,  kState4,  kState5,  kState6,
        kState7,  kState8,  kState9,  kState10, kState11, kState12, kState13,
        kState14, kState15, kState16, kState17, kState18, kState19, kState20,
        kState21, kState22, kState23, kState24, kState25, kState26, kState27,
        kState28, kState29, kState30, kState31, kState32, kState33, kState34,
        kState35, kState36, kState37, kState38, kState39, kState40, kState41,
        kState42, kState43, kState44, kState45, kState46, kState47, kState48,
        kState49, kState50, kState51, kState52, kState53, kState54, kState55,
        kState56, kState57, kState58, kState59, kState60, kState61,
};

} // namespace DbgData
} // namespace Vemo
