// Sample objects of the debuggee tree, the data-sharing analysis and the
// OpenMP runtime. Every sample value differs from the member's default, and
// the OpenMP types and states include negative values, which travel as the
// unsigned long of the same bits.
#include "selfcheck.h"

#include "datasharingdata.h"
#include "debuggeedata.h"
#include "openmpdata.h"
#include "valuetypes.h"

#include <initializer_list>

using namespace Vemo::DbgData;

namespace {

StringVector sampleVector(std::initializer_list<const char*> items) {
  StringVector vector;
  for (const char* item : items)
    vector.addItem(item);
  return vector;
}

Scope sampleScope(unsigned long line) {
  return Scope(Address(0, 0x402000 + line, 0, 1, 64),
               DbgDataKey("/Root/ParallelJob[]/0/Jobs[]/1/DebugInfo/Sources[]/"
                          "worker.c"),
               line, 5);
}

void setSampleThread(ThreadItem& thread) {
  thread.setDebuggerId("3");
  thread.setLibraryId("0x7f3a2c000700");
  thread.setOsId("4713");
  thread.setNameId("worker-2");
  thread.setLocation("worker.c:118");
  thread.setType(static_cast<ThreadItem::ThreadType>(2));
  thread.setScope(sampleScope(118));
  thread.setOMPId("omp-3");
  thread.setOMPType(static_cast<ThreadItem::_ompThrdType>(-1));
  thread.setOMPState(static_cast<ThreadItem::_ompThrdState>(4));
  thread.setOMPTeamId("team-1");
  thread.setOMPThreadNum(2);
  thread.setOMPBlockerId("lock-9");
  thread.setOMPMemberships(sampleVector({"team-0", "team-1", "team-4"}));
  thread.setExecutionAttribute("frozen");
  thread.setExecAttrFlag(static_cast<ThreadItem::_threadExecAttribute>(1));
}

} // namespace

void fillParallelJobListContent(ParallelJobListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ParallelJobListContent, ParallelJobListContent,
                  fillParallelJobListContent)

void fillParallelJobItem(ParallelJobItem* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_ParallelJobItem, ParallelJobItem, fillParallelJobItem)

void fillJobListContent(JobListContent* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_JobListContent, JobListContent, fillJobListContent)

void fillJobItem(JobItem* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_JobItem, JobItem, fillJobItem)

void fillProcessListContent(ProcessListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ProcessListContent, ProcessListContent,
                  fillProcessListContent)

void fillProcessItem(ProcessItem* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_ProcessItem, ProcessItem, fillProcessItem)

void fillThreadListContent(ThreadListContent* object) {
  object->setWithThreadLibrarySupport(false);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ThreadListContent, ThreadListContent,
                  fillThreadListContent)

void fillThreadItem(ThreadItem* object) {
  setSampleThread(*object);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ThreadItem, ThreadItem, fillThreadItem)

void fillThreadSet(ThreadSet* object) {
  object->setName("Workers");
  object->setThreads(sampleVector({"2", "3", "5"}));
  object->setDeclaration("threads 2,3,5");
  object->setNormalized("2-3,5");
  object->setEditable(true);
  object->setDeleteable(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ThreadSet, ThreadSet, fillThreadSet)

void fillDataSharingConfig(DataSharingConfig* object) {
  object->setEnabled(true);
  object->setStopOnEvent(false);
  object->setReset(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DataSharingConfig, DataSharingConfig,
                  fillDataSharingConfig)

void fillDataSharingFilterItem(DataSharingFilterItem* object) {
  object->setId(7);
  object->setType(static_cast<DataSharingFilterType>(2));
  object->setState(static_cast<DataSharingFilterState>(1));
  object->setDisplayText("buffer[0..63]");
  object->setStartAddress(Address(0, 0x601040, 0, 1, 64));
  object->setEndAddress(Address(0, 0x601080, 0, 1, 64));
  object->setStartExpression("&buffer[0]");
  object->setEndExpression("&buffer[63]");
  object->setByteCount(64);
  object->setUseSizeOf(true);
  object->setCodeFilterType(static_cast<DataSharingCodeFilterType>(3));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DataSharingFilterItem, DataSharingFilterItem,
                  fillDataSharingFilterItem)

void fillDataAccessItem(DataAccessItem* object) {
  ThreadItem thread;
  setSampleThread(thread);
  object->setThread(thread);
  // The access location is the thread's scope; move it to another column.
  object->setSrcAccessLocationColumn(9);
  object->setAccess(static_cast<DataAccess>(2));
  object->setSymbol("buffer");
  object->setAddress(Address(0, 0x601048, 0, 1, 64));
  object->setFunctionName("worker");
  object->setSrcFileName("worker.c");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DataAccessItem, DataAccessItem, fillDataAccessItem)

void fillOpenMPTask(OpenMPTask* object) {
  object->setId("task-5");
  object->setDisplayText("explicit task at worker.c:120");
  object->setType(static_cast<OpenMPTask::_ompTaskType>(-1));
  object->setState(static_cast<OpenMPTask::_ompTaskState>(3));
  object->setSourceLocation("worker.c:120");
  object->setScope(sampleScope(120));
  object->setTeamId("team-1");
  object->setParentId("task-1");
  object->setRunThreadId("3");
  object->setSpawnedTaskIds(sampleVector({"task-6", "task-7"}));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPTask, OpenMPTask, fillOpenMPTask)

void fillOpenMPBarrier(OpenMPBarrier* object) {
  object->setId("barrier-2");
  object->setDisplayText("barrier at worker.c:131");
  object->setType(static_cast<OpenMPBarrier::_ompBarrType>(2));
  object->setState(static_cast<OpenMPBarrier::_ompBarrState>(-2));
  object->setSourceLocation("worker.c:131");
  object->setScope(sampleScope(131));
  object->setTeamId("team-1");
  object->setReachedThreadIds(sampleVector({"2", "3"}));
  object->setWaitedForTaskIds(sampleVector({"task-6", "task-7", "task-8"}));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPBarrier, OpenMPBarrier, fillOpenMPBarrier)

void fillOpenMPTaskWait(OpenMPTaskWait* object) {
  object->setId("taskwait-1");
  object->setDisplayText("taskwait at worker.c:140");
  object->setType(static_cast<OpenMPTaskWait::_ompTWaitType>(1));
  object->setState(static_cast<OpenMPTaskWait::_ompTWaitState>(2));
  object->setSourceLocation("worker.c:140");
  object->setScope(sampleScope(140));
  object->setEncounteredThreadId("3");
  object->setWaitedForTaskIds(sampleVector({"task-6", "task-7"}));
  object->setBindingTaskId("task-5");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPTaskWait, OpenMPTaskWait, fillOpenMPTaskWait)

void fillOpenMPLock(OpenMPLock* object) {
  object->setId("lock-9");
  object->setDisplayText("omp_lock_t at 0x601100");
  object->setType(static_cast<OpenMPLock::_ompLockType>(2));
  object->setState(static_cast<OpenMPLock::_ompLockState>(1));
  object->setSourceLocation("worker.c:150");
  object->setScope(sampleScope(150));
  object->setLevel(2);
  object->setHoldingTaskId("task-5");
  object->setWaitingTaskIds(sampleVector({"task-6", "task-8"}));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPLock, OpenMPLock, fillOpenMPLock)

void fillOpenMPTeam(OpenMPTeam* object) {
  object->setId("team-1");
  object->setDisplayText("parallel region at worker.c:110");
  object->setParentId("team-0");
  object->setMemberThreadIds(sampleVector({"1", "2", "3"}));
  object->setMemberThreadOmpIds(sampleVector({"0", "1", "2"}));
  object->setSourceLocation("worker.c:110");
  object->setScope(sampleScope(110));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPTeam, OpenMPTeam, fillOpenMPTeam)

void fillOpenMPExecEnv(OpenMPExecEnv* object) {
  object->setMajorVersion(4);
  object->setMinorVersion(5);
  object->setNumThreads(4);
  object->setMaxThreadsInTeam(8);
  object->setNumProcs(2);
  object->setInParallelRegion(1);
  object->setDynAdjustThreads(0);
  object->setNestedParallelism(1);
  object->setSchedule(static_cast<OpenMPExecEnv::_ompSchedule>(2));
  object->setMaxThreadsInProg(16);
  object->setMaxNestedActiveParRegions(3);
  object->setNumNestedParRegions(2);
  object->setNumNestedActiveParRegions(1);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_OpenMPExecEnv, OpenMPExecEnv, fillOpenMPExecEnv)
