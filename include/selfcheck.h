// The built-in self-check: sample objects of every data class for a
// serialization round trip, and the build-and-parse check of every full key.
//
// The exported symbols stand at global scope with C++ linkage, as the
// self-check's drivers know them; the types they use are those of
// Vemo::DbgData. Every check prints one line: a success line on the standard
// output, an error line on the standard error stream.
//
// Like the rest of the library, the self-check is for one thread at a time,
// and st_ddmanager.init() must have run before any of it is used.
#ifndef DBGDATA_SELFCHECK_H
#define DBGDATA_SELFCHECK_H

#include "Common/DDAssert.h"
#include "ddmanager.h"
#include "debuggerdata.h"
#include "serializerhelper.h"

#include <cstddef>
#include <string>

namespace Vemo {
namespace DbgData {
class DbgDataKey;
class Root;
class DebuggerState;
class ActiveDebuggee;
class CurScope;
class StateStoppedReason;
class ConsoleIOHistoryItem;
class CurDbgPrompt;
class StackFrameListContent;
class StackFrameItem;
class RegisterGroup;
class RegisterItem;
} // namespace DbgData
} // namespace Vemo

// ---------------------------------------------------------------------------
// Switches and helpers of the driver

// Nonzero: the driver runs the serialization round trip of every class.
extern int g_runSerializationTest;
// Nonzero: the driver runs the full-key checks.
extern int g_runFullKeyTest;
// Writer and reader of the round trip; not owned by the library. When they
// are null, runSelfCheck() uses a SerializerHelperDOM and a
// DeserializerHelperDOM of its own for its duration. The writer must be (or
// derive from) SerializerHelperDOM or SerializerHelperXmlText, the reader
// DeserializerHelperDOM or DeserializerHelperXmlText: the round trip passes
// the written DOM element from the DOM writer to the DOM reader, and XML
// text in every other pairing.
extern Vemo::DbgData::ISerializerHelper* g_serHlp;
extern Vemo::DbgData::IDeserializerHelper* g_desHlp;

// ---------------------------------------------------------------------------
// Result lines (each ended with std::endl)

// Standard output.
void report_ok(const std::string& className);
void report_fullkey_ok(const Vemo::DbgData::DbgDataKey& key);
// Standard error.
void error_serialization(const std::string& className);
void error_deserialization(const std::string& className);
void error_deserialization_listsize(const std::string& className);
void error_cannot_create(const std::string& className);
void error_content_corrupt(const std::string& className);
void error_fullkey(const Vemo::DbgData::DbgDataKey& key);

// ---------------------------------------------------------------------------
// Sample objects

// Gives object the standard engine data: a RegisterItem "Internal" made by
// the factory (owned by object from then on).
void attachEngineData(Vemo::DbgData::DataElement* object);

// Each sets every member of the object to a sample value that differs from
// the member's default, then attaches the standard engine data.
void fillRoot(Vemo::DbgData::Root* object);
void fillDebuggerState(Vemo::DbgData::DebuggerState* object);
void fillActiveDebuggee(Vemo::DbgData::ActiveDebuggee* object);
void fillCurScope(Vemo::DbgData::CurScope* object);
void fillStateStoppedReason(Vemo::DbgData::StateStoppedReason* object);
void fillConsoleIOHistoryItem(Vemo::DbgData::ConsoleIOHistoryItem* object);
void fillCurDbgPrompt(Vemo::DbgData::CurDbgPrompt* object);
void fillStackFrameListContent(Vemo::DbgData::StackFrameListContent* object);
void fillStackFrameItem(Vemo::DbgData::StackFrameItem* object);
void fillRegisterGroup(Vemo::DbgData::RegisterGroup* object);
void fillRegisterItem(Vemo::DbgData::RegisterItem* object);
// The register name, the value "0x12345678", the expression "expression",
// the description "Description: Register <name> blablabla", and index + 1
// as its type code.
void fillRegisterItem(Vemo::DbgData::RegisterItem* object,
                      const std::string& name, int index);
// Three RegisterItem children "R0", "R1" and "R2"; "R1" is the special item.
void fillDataList(Vemo::DbgData::DataList* object);
// The children of fillDataList and a filled StackFrameListContent as content.
void fillDataListWC(Vemo::DbgData::DataListWC* object);

// Debug info, disassembly, expression evaluation and SIMD evaluation.
namespace Vemo {
namespace DbgData {
class DebugInfo;
class SymbolItem;
class SymbolBrowserConfig;
class ModuleListContent;
class ModuleItem;
class LoadableItem;
class SymbolToken;
class DisAsmListContent;
class DisAsmItem;
class DisAsmConfig;
class EvalRootContent;
class EvalLineContent;
class EvalLineInternalZMT;
class SIMDConfig;
class SIMDEvalRootContent;
class SIMDEvalRowContent;
class SIMDEvalItem;
} // namespace DbgData
} // namespace Vemo
void fillDebugInfo(Vemo::DbgData::DebugInfo* object);
void fillSymbolItem(Vemo::DbgData::SymbolItem* object);
void fillSymbolBrowserConfig(Vemo::DbgData::SymbolBrowserConfig* object);
void fillModuleListContent(Vemo::DbgData::ModuleListContent* object);
void fillModuleItem(Vemo::DbgData::ModuleItem* object);
void fillLoadableItem(Vemo::DbgData::LoadableItem* object);
void fillSymbolToken(Vemo::DbgData::SymbolToken* object);
void fillDisAsmListContent(Vemo::DbgData::DisAsmListContent* object);
void fillDisAsmItem(Vemo::DbgData::DisAsmItem* object);
void fillDisAsmConfig(Vemo::DbgData::DisAsmConfig* object);
// Also the fill of the rows "LocalsRootContent" and "LocalsLineContent".
void fillEvalRootContent(Vemo::DbgData::EvalRootContent* object);
void fillEvalLineContent(Vemo::DbgData::EvalLineContent* object);
void fillEvalLineInternalZMT(Vemo::DbgData::EvalLineInternalZMT* object);
void fillSIMDConfig(Vemo::DbgData::SIMDConfig* object);
void fillSIMDEvalRootContent(Vemo::DbgData::SIMDEvalRootContent* object);
void fillSIMDEvalRowContent(Vemo::DbgData::SIMDEvalRowContent* object);
void fillSIMDEvalItem(Vemo::DbgData::SIMDEvalItem* object);

// Events, signals, process info, plug-in data and small items
namespace Vemo {
namespace DbgData {
class Events;
class SignalListContent;
class SignalItem;
class ProcessInfoListContent;
class ProcessInfoItem;
class PlugInDataItem;
class ReEntrantCallItem;
class StringList;
class UserToolBarItem;
class IPlugInDataFactory;
} // namespace DbgData
} // namespace Vemo
void fillEvents(Vemo::DbgData::Events* object);
void fillSignalListContent(Vemo::DbgData::SignalListContent* object);
void fillSignalItem(Vemo::DbgData::SignalItem* object);
void fillProcessInfoListContent(Vemo::DbgData::ProcessInfoListContent* object);
void fillProcessInfoItem(Vemo::DbgData::ProcessInfoItem* object);
// Twelve elements, so that the keys reach "LF000A" and beyond.
void fillStringList(Vemo::DbgData::StringList* object);
// The Command holds a line feed.
void fillUserToolBarItem(Vemo::DbgData::UserToolBarItem* object);
void fillReEntrantCallItem(Vemo::DbgData::ReEntrantCallItem* object);
// Gives the item a plug-in data object of the self-check's own, with the
// plug-in data key "SelfCheckPlugInData".
void fillPlugInDataItem(Vemo::DbgData::PlugInDataItem* object);
// The factory of the self-check's own plug-in data objects: it makes one for
// the key "SelfCheckPlugInData" and answers null for any other key. The
// round trip installs it on the shared deserializer while it reads back.
// The self-check owns every plug-in data object it makes (for a fill, by
// this factory, or as a clone of one of them): they stay valid until the
// end of the process, which frees them.
Vemo::DbgData::IPlugInDataFactory* getSelfCheckPlugInDataFactory();

// Debuggee tree, data sharing and OpenMP.
namespace Vemo {
namespace DbgData {
class ParallelJobListContent;
class ParallelJobItem;
class JobListContent;
class JobItem;
class ProcessListContent;
class ProcessItem;
class ThreadListContent;
class ThreadItem;
class ThreadSet;
class DataSharingConfig;
class DataSharingFilterItem;
class DataAccessItem;
class OpenMPTask;
class OpenMPBarrier;
class OpenMPTaskWait;
class OpenMPLock;
class OpenMPTeam;
class OpenMPExecEnv;
} // namespace DbgData
} // namespace Vemo
// The six placeholders have no sample members: engine data only.
void fillParallelJobListContent(Vemo::DbgData::ParallelJobListContent* object);
void fillParallelJobItem(Vemo::DbgData::ParallelJobItem* object);
void fillJobListContent(Vemo::DbgData::JobListContent* object);
void fillJobItem(Vemo::DbgData::JobItem* object);
void fillProcessListContent(Vemo::DbgData::ProcessListContent* object);
void fillProcessItem(Vemo::DbgData::ProcessItem* object);
// Sets its one member to false (0).
void fillThreadListContent(Vemo::DbgData::ThreadListContent* object);
void fillThreadItem(Vemo::DbgData::ThreadItem* object);
void fillThreadSet(Vemo::DbgData::ThreadSet* object);
void fillDataSharingConfig(Vemo::DbgData::DataSharingConfig* object);
void fillDataSharingFilterItem(Vemo::DbgData::DataSharingFilterItem* object);
// Gives the item's own thread the sample values of fillThreadItem.
void fillDataAccessItem(Vemo::DbgData::DataAccessItem* object);
void fillOpenMPTask(Vemo::DbgData::OpenMPTask* object);
void fillOpenMPBarrier(Vemo::DbgData::OpenMPBarrier* object);
void fillOpenMPTaskWait(Vemo::DbgData::OpenMPTaskWait* object);
void fillOpenMPLock(Vemo::DbgData::OpenMPLock* object);
void fillOpenMPTeam(Vemo::DbgData::OpenMPTeam* object);
void fillOpenMPExecEnv(Vemo::DbgData::OpenMPExecEnv* object);

// Memory, source and breakpoints.
namespace Vemo {
namespace DbgData {
class MemoryListContent;
class MemoryItem;
class MemoryAddress;
class SourceListContent;
class SourceItem;
class SourceScope;
class BreakPointListContent;
class BreakPointItem;
class BreakPointInternalZMT;
class BreakPointInternalKYR;
class WatchPointInternalZMT;
class WatchPointInternalKYR;
} // namespace DbgData
} // namespace Vemo
void fillMemoryListContent(Vemo::DbgData::MemoryListContent* object);
void fillMemoryItem(Vemo::DbgData::MemoryItem* object);
void fillMemoryAddress(Vemo::DbgData::MemoryAddress* object);
void fillSourceListContent(Vemo::DbgData::SourceListContent* object);
// Two lines, 0x12345678 and 0x87654321.
void fillSourceItem(Vemo::DbgData::SourceItem* object);
void fillSourceScope(Vemo::DbgData::SourceScope* object);
void fillBreakPointListContent(Vemo::DbgData::BreakPointListContent* object);
// A synchronised code breakpoint with the standard engine data.
void fillBreakPointItem(Vemo::DbgData::BreakPointItem* object);
// Breakpoints as each engine reports them: the members of
// fillBreakPointItem with the Kind of a code breakpoint (ZMT), a synchronised
// one (KYR) or a hardware data breakpoint (0xA, the watchpoint), and as
// engine data, instead of the standard one, the engine's internal object
// filled by its own fill (the watchpoint's is a WatchPointInternalZMT).
void fillBreakPointItemZMT(Vemo::DbgData::BreakPointItem* object);
void fillBreakPointItemKYR(Vemo::DbgData::BreakPointItem* object);
void fillWatchPointItem(Vemo::DbgData::BreakPointItem* object);
void fillBreakPointInternalZMT(Vemo::DbgData::BreakPointInternalZMT* object);
void fillBreakPointInternalKYR(Vemo::DbgData::BreakPointInternalKYR* object);
void fillWatchPointInternalZMT(Vemo::DbgData::WatchPointInternalZMT* object);
void fillWatchPointInternalKYR(Vemo::DbgData::WatchPointInternalKYR* object);

// The fill functions by class row, so that the round trip finds the fill of
// a class without knowing the class. A fill joins with one line next to its
// definition: DD_SELFCHECK_FILL(DDID_Root, Root, fillRoot).
typedef void (*SelfCheckFill)(Vemo::DbgData::DebuggerData* object);
// Registers fill for the objects the factory makes for row id; answers true
// (it runs at load time). A second fill for the same row is a programming
// error.
bool registerSelfCheckFill(Vemo::DbgData::DebuggerDataID id,
                           SelfCheckFill fill);
// The fill registered for row id, or null.
SelfCheckFill findSelfCheckFill(Vemo::DbgData::DebuggerDataID id);

// Calls Fill on object, which must be a kind of C.
template <class C, void (*Fill)(C*)>
void selfCheckFillAs(Vemo::DbgData::DebuggerData* object);

#define DD_SELFCHECK_FILL(RowId, Class, fillFunction)                          \
  [[maybe_unused]] static const bool s_selfCheckFill_##RowId =                 \
      registerSelfCheckFill(                                                   \
          ::Vemo::DbgData::RowId,                                              \
          &selfCheckFillAs<::Vemo::DbgData::Class, &fillFunction>);

// ---------------------------------------------------------------------------
// Full-key checks

// Every checked node of the hierarchy: the builder createFullKey<Node> of
// the data manager, and the place that parsing the built key must reach.
// For the builders whose key ends in a sample sub key although their name
// says "List" (DisAsmList, SIMDRegisterList, SIMDEvalList, SysRegGrpList),
// that place is the item row the automaton assigns to the sub key.
#define DD_SELFCHECK_FULLKEY_NODES(X)                                          \
  X(ContextRegisterGrpList, DDH_CtxtRegGrps)                                   \
  X(ContextRegisterGroup, DDH_CtxtRegGrps_Item)                                \
  X(ContextRegister, DDH_CtxtRegGrps_SubItem)                                  \
  X(Root, DDH_Root)                                                            \
  X(DebuggerState, DDH_DebuggerState)                                          \
  X(ActiveDebuggee, DDH_ActiveDebuggee)                                        \
  X(CurScope, DDH_CurScope)                                                    \
  X(Console, DDH_Console)                                                      \
  X(CurDbgPrompt, DDH_CurDbgPrompt)                                            \
  X(ConsoleIOHistoryList, DDH_ConsoleIOHistory)                                \
  X(CmdHistoryList, DDH_CmdHistory)                                            \
  X(ParallelJobList, DDH_ParallelJob)                                          \
  X(ParallelJobItem, DDH_ParallelJob_Item)                                     \
  X(JobList, DDH_Jobs)                                                         \
  X(JobItem, DDH_Jobs_Item)                                                    \
  X(ProcessList, DDH_Process)                                                  \
  X(ProcessItem, DDH_Process_Item)                                             \
  X(ThreadList, DDH_Threads)                                                   \
  X(ThreadItem, DDH_Threads_Item)                                              \
  X(DebugInfo, DDH_DebugInfo)                                                  \
  X(SourceList, DDH_Sources)                                                   \
  X(SourceItem, DDH_Sources_Item)                                              \
  X(Events, DDH_Events)                                                        \
  X(BreakPointList, DDH_BreakPoints)                                           \
  X(BreakPointItem, DDH_BreakPoints_Item)                                      \
  X(StackFrameList, DDH_StackFrames)                                           \
  X(EvalList, DDH_Evaluations)                                                 \
  X(EvalRoot, DDH_EvalRoot)                                                    \
  X(LoadableList, DDH_Loadables)                                               \
  X(ModuleList, DDH_Modules)                                                   \
  X(MemoryItem, DDH_Memory_Item)                                               \
  X(LocalEvalList, DDH_Locals)                                                 \
  X(LocalEvalRoot, DDH_LocalsRoot)                                             \
  X(StackFrameLocals, DDH_FrameLocals)                                         \
  X(SysRegSet, DDH_SysRegSets)                                                 \
  X(SysRegGrpList, DDH_SysRegSets_Item)                                        \
  X(SysRegGroup, DDH_SysRegSets_SubItem)                                       \
  X(SysRegister, DDH_SysRegSets_SubSubItem)                                    \
  X(DisAsmList, DDH_DisAsm_Item)                                               \
  X(UserToolBarList, DDH_UserToolbar)                                          \
  X(GlobalSymbolList, DDH_GlobalSymbols)                                       \
  X(ModuleSymbolList, DDH_ModuleSymbols)                                       \
  X(LocalSymbolList, DDH_LocalSymbols)                                         \
  X(DataSharingEventList, DDH_DataSharingEvent)                                \
  X(DataSharingFilterList, DDH_DataSharingFilter)                              \
  X(SignalList, DDH_Signals)                                                   \
  X(SIMDRegisterList, DDH_SIMDRegisters_Item)                                  \
  X(SIMDEvalList, DDH_SIMDEvaluations_Item)                                    \
  X(OpenMPTaskList, DDH_OpenMPTask)                                            \
  X(OpenMPBarrierList, DDH_OpenMPBarrier)                                      \
  X(OpenMPTaskWaitList, DDH_OpenMPTaskWait)                                    \
  X(OpenMPLockList, DDH_OpenMPLock)                                            \
  X(OpenMPTeamList, DDH_OpenMPTeam)                                            \
  X(ThreadSetList, DDH_ThreadSet)                                              \
  X(ReEntrantCallList, DDH_ReEntrantCalls)

// checkFullKey<Node>(): builds the key with fixed sample sub keys ("0", "1",
// ... in order), parses it, and prints report_fullkey_ok or error_fullkey.
// Answers true when the parse consumed the whole key and reached the place.
#define DD_DECLARE_FULLKEY_CHECK(Node, Place) bool checkFullKey##Node();
DD_SELFCHECK_FULLKEY_NODES(DD_DECLARE_FULLKEY_CHECK)
#undef DD_DECLARE_FULLKEY_CHECK

struct SelfCheckFullKeyCheck {
  const char* node; // the part of the name after "checkFullKey"
  bool (*check)();
};
// The checks above in their listed order.
const SelfCheckFullKeyCheck* getSelfCheckFullKeyChecks(std::size_t* count);

// The check behind every checkFullKey<Node>(): builds a key with build,
// parses it and prints the result line.
bool runFullKeyCheck(bool (*build)(Vemo::DbgData::DbgDataKey& key),
                     Vemo::DbgData::DDHierarchyID expectedPlace);

// ---------------------------------------------------------------------------
// The driver's part

// The round trip of one class: creates an object with the factory, fills it
// (its registered fill, else engine data only for a leaf), writes it with
// g_serHlp into a fresh document, reads it back with g_desHlp and the shared
// deserializer, compares child counts for lists and then the content.
// Prints exactly one line and answers true for report_ok. g_serHlp and
// g_desHlp must be set.
bool runSerializationRoundTrip(const std::string& className);

// Runs the round trip of every class the factory can create (class rows 0 to
// 114) when g_runSerializationTest is nonzero, then every full-key check
// when g_runFullKeyTest is nonzero. Answers the number of error lines.
// Initialises the XML library for its own duration; g_serHlp and g_desHlp
// keep the values they had.
int runSelfCheck();

// ---------------------------------------------------------------------------

template <class C, void (*Fill)(C*)>
void selfCheckFillAs(Vemo::DbgData::DebuggerData* object) {
  DD_ASSERT(object && object->isKindOf(C::staticRtti()));
  Fill(static_cast<C*>(object));
}

#endif
