#include "openmpdata.h"

namespace Vemo {
namespace DbgData {

// Type and State go out as the unsigned long of the value widened with its
// sign (-1 as 18446744073709551615) and come back narrowed to the same value.
template <class FieldVisitor>
void OpenMPTask::describeFields(FieldVisitor& field) {
  field("Id", &OpenMPTask::m_Id);
  field("DisplayText", &OpenMPTask::m_DisplayText);
  field("Type", &OpenMPTask::m_Type, Field::as<unsigned long>);
  field("State", &OpenMPTask::m_State, Field::as<unsigned long>);
  field("SourceLocation", &OpenMPTask::m_SourceLocation);
  field("Scope", &OpenMPTask::m_Scope);
  field("TeamId", &OpenMPTask::m_TeamId);
  field("ParentId", &OpenMPTask::m_ParentId);
  field("RunThreadId", &OpenMPTask::m_RunThreadId);
  field("SpawnedTaskIds", &OpenMPTask::m_SpawnedTaskIds);
}
DD_DATA_CLASS_IMPL(OpenMPTask, "src/openmpdata.cpp")

template <class FieldVisitor>
void OpenMPBarrier::describeFields(FieldVisitor& field) {
  field("Id", &OpenMPBarrier::m_Id);
  field("DisplayText", &OpenMPBarrier::m_DisplayText);
  field("Type", &OpenMPBarrier::m_Type, Field::as<unsigned long>);
  field("State", &OpenMPBarrier::m_State, Field::as<unsigned long>);
  field("SourceLocation", &OpenMPBarrier::m_SourceLocation);
  field("Scope", &OpenMPBarrier::m_Scope);
  field("TeamId", &OpenMPBarrier::m_TeamId);
  field("ReachedThreadIds", &OpenMPBarrier::m_ReachedThreadIds);
  field("WaitedForTaskIds", &OpenMPBarrier::m_WaitedForTaskIds);
}
DD_DATA_CLASS_IMPL(OpenMPBarrier, "src/openmpdata.cpp")

template <class FieldVisitor>
void OpenMPTaskWait::describeFields(FieldVisitor& field) {
  field("Id", &OpenMPTaskWait::m_Id);
  field("DisplayText", &OpenMPTaskWait::m_DisplayText);
  field("Type", &OpenMPTaskWait::m_Type, Field::as<unsigned long>);
  field("State", &OpenMPTaskWait::m_State, Field::as<unsigned long>);
  field("SourceLocation", &OpenMPTaskWait::m_SourceLocation);
  field("Scope", &OpenMPTaskWait::m_Scope);
  field("EncounteredThreadId", &OpenMPTaskWait::m_EncounteredThreadId);
  field("WaitedForTaskIds", &OpenMPTaskWait::m_WaitedForTaskIds);
  field("BindingTaskId", &OpenMPTaskWait::m_BindingTaskId);
}
DD_DATA_CLASS_IMPL(OpenMPTaskWait, "src/openmpdata.cpp")

template <class FieldVisitor>
void OpenMPLock::describeFields(FieldVisitor& field) {
  field("Id", &OpenMPLock::m_Id);
  field("DisplayText", &OpenMPLock::m_DisplayText);
  field("Type", &OpenMPLock::m_Type, Field::as<unsigned long>);
  field("State", &OpenMPLock::m_State, Field::as<unsigned long>);
  field("SourceLocation", &OpenMPLock::m_SourceLocation);
  field("Scope", &OpenMPLock::m_Scope);
  field("Level", &OpenMPLock::m_Level);
  field("HoldingTaskId", &OpenMPLock::m_HoldingTaskId);
  field("WaitingTaskIds", &OpenMPLock::m_WaitingTaskIds);
}
DD_DATA_CLASS_IMPL(OpenMPLock, "src/openmpdata.cpp")

// Written in another order than declared: the source location and scope
// come before the parent and the members.
template <class FieldVisitor>
void OpenMPTeam::describeFields(FieldVisitor& field) {
  field("Id", &OpenMPTeam::m_Id);
  field("DisplayText", &OpenMPTeam::m_DisplayText);
  field("SourceLocation", &OpenMPTeam::m_SourceLocation);
  field("Scope", &OpenMPTeam::m_Scope);
  field("ParentId", &OpenMPTeam::m_ParentId);
  field("MemberThreadIds", &OpenMPTeam::m_MemberThreadIds);
  field("MemberThreadOmpIds", &OpenMPTeam::m_MemberThreadOmpIds);
}
DD_DATA_CLASS_IMPL(OpenMPTeam, "src/openmpdata.cpp")

// The versions travel but are neither copied nor compared: a clone keeps -1
// in both, and environments that differ only in their version are equal.
// Schedule goes out as unsigned long like the OpenMP types and states.
template <class FieldVisitor>
void OpenMPExecEnv::describeFields(FieldVisitor& field) {
  field("MajorVersion", &OpenMPExecEnv::m_MajorVersion,
        Field::notCopied | Field::notCompared);
  field("MinorVersion", &OpenMPExecEnv::m_MinorVersion,
        Field::notCopied | Field::notCompared);
  field("NumThreads", &OpenMPExecEnv::m_NumThreads);
  field("MaxThreadsInTeam", &OpenMPExecEnv::m_MaxThreadsInTeam);
  field("NumProcs", &OpenMPExecEnv::m_NumProcs);
  field("InParallelRegion", &OpenMPExecEnv::m_InParallelRegion);
  field("DynAdjustThreads", &OpenMPExecEnv::m_DynAdjustThreads);
  field("NestedParallelism", &OpenMPExecEnv::m_NestedParallelism);
  field("Schedule", &OpenMPExecEnv::m_Schedule, Field::as<unsigned long>);
  field("MaxThreadsInProg", &OpenMPExecEnv::m_MaxThreadsInProg);
  field("MaxNestedActiveParRegions",
        &OpenMPExecEnv::m_MaxNestedActiveParRegions);
  field("NumNestedParRegions", &OpenMPExecEnv::m_NumNestedParRegions);
  field("NumNestedActiveParRegions",
        &OpenMPExecEnv::m_NumNestedActiveParRegions);
}
DD_DATA_CLASS_IMPL(OpenMPExecEnv, "src/openmpdata.cpp")

} // namespace DbgData
} // namespace Vemo
