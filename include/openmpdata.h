// The state of an OpenMP program's runtime: tasks, barriers, task waits,
// locks, thread teams and the execution environment. Objects refer to each
// other by id strings (task, team and thread ids), never by pointer.
//
// The four task-like classes share six leading fields (Id, DisplayText,
// Type, State, SourceLocation, Scope), each class declaring its own; their
// type and state enumerations travel as unsigned long, widened with their
// sign, and are narrowed back when read.
#ifndef DBGDATA_OPENMPDATA_H
#define DBGDATA_OPENMPDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// The enumerators besides the default 0 belong to the engine side.

class OpenMPTask : public DataElement {
  DD_DATA_CLASS(OpenMPTask, DataElement)

  enum _ompTaskType : std::int32_t { OMPTaskType_Undefined = 0 };
  enum _ompTaskState : std::int32_t { OMPTaskState_Undefined = 0 };

  virtual const std::string& getId() const { return m_Id; }
  virtual void setId(const std::string& v) { m_Id = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual _ompTaskType getType() const { return m_Type; }
  virtual void setType(_ompTaskType v) { m_Type = v; }
  virtual _ompTaskState getState() const { return m_State; }
  virtual void setState(_ompTaskState v) { m_State = v; }
  virtual const std::string& getSourceLocation() const {
    return m_SourceLocation;
  }
  virtual void setSourceLocation(const std::string& v) { m_SourceLocation = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }
  virtual const std::string& getTeamId() const { return m_TeamId; }
  virtual void setTeamId(const std::string& v) { m_TeamId = v; }
  virtual const std::string& getParentId() const { return m_ParentId; }
  virtual void setParentId(const std::string& v) { m_ParentId = v; }
  virtual const std::string& getRunThreadId() const { return m_RunThreadId; }
  virtual void setRunThreadId(const std::string& v) { m_RunThreadId = v; }
  virtual const StringVector& getSpawnedTaskIds() const {
    return m_SpawnedTaskIds;
  }
  virtual void setSpawnedTaskIds(const StringVector& v) {
    m_SpawnedTaskIds = v;
  }

private:
  std::string m_Id;
  std::string m_DisplayText;
  _ompTaskType m_Type = OMPTaskType_Undefined;
  _ompTaskState m_State = OMPTaskState_Undefined;
  std::string m_SourceLocation;
  Scope m_Scope;
  std::string m_TeamId;
  std::string m_ParentId;    // the parent task
  std::string m_RunThreadId; // the thread running the task
  StringVector m_SpawnedTaskIds;
};

class OpenMPBarrier : public DataElement {
  DD_DATA_CLASS(OpenMPBarrier, DataElement)

  enum _ompBarrType : std::int32_t { OMPBarrType_Undefined = 0 };
  enum _ompBarrState : std::int32_t { OMPBarrState_Undefined = 0 };

  virtual const std::string& getId() const { return m_Id; }
  virtual void setId(const std::string& v) { m_Id = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual _ompBarrType getType() const { return m_Type; }
  virtual void setType(_ompBarrType v) { m_Type = v; }
  virtual _ompBarrState getState() const { return m_State; }
  virtual void setState(_ompBarrState v) { m_State = v; }
  virtual const std::string& getSourceLocation() const {
    return m_SourceLocation;
  }
  virtual void setSourceLocation(const std::string& v) { m_SourceLocation = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }
  virtual const std::string& getTeamId() const { return m_TeamId; }
  virtual void setTeamId(const std::string& v) { m_TeamId = v; }
  virtual const StringVector& getReachedThreadIds() const {
    return m_ReachedThreadIds;
  }
  virtual void setReachedThreadIds(const StringVector& v) {
    m_ReachedThreadIds = v;
  }
  virtual const StringVector& getWaitedForTaskIds() const {
    return m_WaitedForTaskIds;
  }
  virtual void setWaitedForTaskIds(const StringVector& v) {
    m_WaitedForTaskIds = v;
  }

private:
  std::string m_Id;
  std::string m_DisplayText;
  _ompBarrType m_Type = OMPBarrType_Undefined;
  _ompBarrState m_State = OMPBarrState_Undefined;
  std::string m_SourceLocation;
  Scope m_Scope;
  std::string m_TeamId;
  StringVector m_ReachedThreadIds;
  StringVector m_WaitedForTaskIds;
};

class OpenMPTaskWait : public DataElement {
  DD_DATA_CLASS(OpenMPTaskWait, DataElement)

  enum _ompTWaitType : std::int32_t { OMPTWaitType_Undefined = 0 };
  enum _ompTWaitState : std::int32_t { OMPTWaitState_Undefined = 0 };

  virtual const std::string& getId() const { return m_Id; }
  virtual void setId(const std::string& v) { m_Id = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual _ompTWaitType getType() const { return m_Type; }
  virtual void setType(_ompTWaitType v) { m_Type = v; }
  virtual _ompTWaitState getState() const { return m_State; }
  virtual void setState(_ompTWaitState v) { m_State = v; }
  virtual const std::string& getSourceLocation() const {
    return m_SourceLocation;
  }
  virtual void setSourceLocation(const std::string& v) { m_SourceLocation = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }
  virtual const std::string& getEncounteredThreadId() const {
    return m_EncounteredThreadId;
  }
  virtual void setEncounteredThreadId(const std::string& v) {
    m_EncounteredThreadId = v;
  }
  virtual const StringVector& getWaitedForTaskIds() const {
    return m_WaitedForTaskIds;
  }
  virtual void setWaitedForTaskIds(const StringVector& v) {
    m_WaitedForTaskIds = v;
  }
  virtual const std::string& getBindingTaskId() const {
    return m_BindingTaskId;
  }
  virtual void setBindingTaskId(const std::string& v) { m_BindingTaskId = v; }

private:
  std::string m_Id;
  std::string m_DisplayText;
  _ompTWaitType m_Type = OMPTWaitType_Undefined;
  _ompTWaitState m_State = OMPTWaitState_Undefined;
  std::string m_SourceLocation;
  Scope m_Scope;
  std::string m_EncounteredThreadId;
  StringVector m_WaitedForTaskIds;
  std::string m_BindingTaskId;
};

class OpenMPLock : public DataElement {
  DD_DATA_CLASS(OpenMPLock, DataElement)

  enum _ompLockType : std::int32_t { OMPLockType_Undefined = 0 };
  enum _ompLockState : std::int32_t { OMPLockState_Undefined = 0 };

  virtual const std::string& getId() const { return m_Id; }
  virtual void setId(const std::string& v) { m_Id = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual _ompLockType getType() const { return m_Type; }
  virtual void setType(_ompLockType v) { m_Type = v; }
  virtual _ompLockState getState() const { return m_State; }
  virtual void setState(_ompLockState v) { m_State = v; }
  virtual const std::string& getSourceLocation() const {
    return m_SourceLocation;
  }
  virtual void setSourceLocation(const std::string& v) { m_SourceLocation = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }
  virtual unsigned long getLevel() const { return m_Level; }
  virtual void setLevel(unsigned long v) { m_Level = v; }
  virtual const std::string& getHoldingTaskId() const {
    return m_HoldingTaskId;
  }
  virtual void setHoldingTaskId(const std::string& v) { m_HoldingTaskId = v; }
  virtual const StringVector& getWaitingTaskIds() const {
    return m_WaitingTaskIds;
  }
  virtual void setWaitingTaskIds(const StringVector& v) {
    m_WaitingTaskIds = v;
  }

private:
  std::string m_Id;
  std::string m_DisplayText;
  _ompLockType m_Type = OMPLockType_Undefined;
  _ompLockState m_State = OMPLockState_Undefined;
  std::string m_SourceLocation;
  Scope m_Scope;
  unsigned long m_Level = 0;
  std::string m_HoldingTaskId;
  StringVector m_WaitingTaskIds;
};

// A thread team: its members by debugger thread id and, in the same order,
// by OpenMP thread number.
class OpenMPTeam : public DataElement {
  DD_DATA_CLASS(OpenMPTeam, DataElement)

  virtual const std::string& getId() const { return m_Id; }
  virtual void setId(const std::string& v) { m_Id = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual const std::string& getParentId() const { return m_ParentId; }
  virtual void setParentId(const std::string& v) { m_ParentId = v; }
  virtual const StringVector& getMemberThreadIds() const {
    return m_MemberThreadIds;
  }
  virtual void setMemberThreadIds(const StringVector& v) {
    m_MemberThreadIds = v;
  }
  virtual const StringVector& getMemberThreadOmpIds() const {
    return m_MemberThreadOmpIds;
  }
  virtual void setMemberThreadOmpIds(const StringVector& v) {
    m_MemberThreadOmpIds = v;
  }
  virtual const std::string& getSourceLocation() const {
    return m_SourceLocation;
  }
  virtual void setSourceLocation(const std::string& v) { m_SourceLocation = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }

private:
  std::string m_Id;
  std::string m_DisplayText;
  std::string m_ParentId;
  StringVector m_MemberThreadIds;
  StringVector m_MemberThreadOmpIds;
  std::string m_SourceLocation;
  Scope m_Scope;
};

// The runtime's execution environment, a single object. The flags
// InParallelRegion, DynAdjustThreads and NestedParallelism are ints like the
// counts, -1 until the runtime reports them.
class OpenMPExecEnv : public DataElement {
  DD_DATA_CLASS(OpenMPExecEnv, DataElement)

  enum _ompSchedule : std::int32_t { OMPSchedule_Undefined = 0 };

  virtual int getMajorVersion() const { return m_MajorVersion; }
  virtual void setMajorVersion(int v) { m_MajorVersion = v; }
  virtual int getMinorVersion() const { return m_MinorVersion; }
  virtual void setMinorVersion(int v) { m_MinorVersion = v; }
  virtual int getNumThreads() const { return m_NumThreads; }
  virtual void setNumThreads(int v) { m_NumThreads = v; }
  virtual int getMaxThreadsInTeam() const { return m_MaxThreadsInTeam; }
  virtual void setMaxThreadsInTeam(int v) { m_MaxThreadsInTeam = v; }
  virtual int getNumProcs() const { return m_NumProcs; }
  virtual void setNumProcs(int v) { m_NumProcs = v; }
  virtual int getInParallelRegion() const { return m_InParallelRegion; }
  virtual void setInParallelRegion(int v) { m_InParallelRegion = v; }
  virtual int getDynAdjustThreads() const { return m_DynAdjustThreads; }
  virtual void setDynAdjustThreads(int v) { m_DynAdjustThreads = v; }
  virtual int getNestedParallelism() const { return m_NestedParallelism; }
  virtual void setNestedParallelism(int v) { m_NestedParallelism = v; }
  virtual _ompSchedule getSchedule() const { return m_Schedule; }
  virtual void setSchedule(_ompSchedule v) { m_Schedule = v; }
  virtual int getMaxThreadsInProg() const { return m_MaxThreadsInProg; }
  virtual void setMaxThreadsInProg(int v) { m_MaxThreadsInProg = v; }
  virtual int getMaxNestedActiveParRegions() const {
    return m_MaxNestedActiveParRegions;
  }
  virtual void setMaxNestedActiveParRegions(int v) {
    m_MaxNestedActiveParRegions = v;
  }
  virtual int getNumNestedParRegions() const { return m_NumNestedParRegions; }
  virtual void setNumNestedParRegions(int v) { m_NumNestedParRegions = v; }
  virtual int getNumNestedActiveParRegions() const {
    return m_NumNestedActiveParRegions;
  }
  virtual void setNumNestedActiveParRegions(int v) {
    m_NumNestedActiveParRegions = v;
  }

private:
  int m_MajorVersion = -1;
  int m_MinorVersion = -1;
  int m_NumThreads = -1;
  int m_MaxThreadsInTeam = -1;
  int m_NumProcs = -1;
  int m_InParallelRegion = -1;
  int m_DynAdjustThreads = -1;
  int m_NestedParallelism = -1;
  _ompSchedule m_Schedule = OMPSchedule_Undefined;
  int m_MaxThreadsInProg = -1;
  int m_MaxNestedActiveParRegions = -1;
  int m_NumNestedParRegions = -1;
  int m_NumNestedActiveParRegions = -1;
};

} // namespace DbgData
} // namespace Vemo

#endif
