#include "debuggeedata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void ParallelJobListContent::describeFields(FieldVisitor& field) {
  field("DummyContent", &ParallelJobListContent::m_DummyContent);
}
DD_DATA_CLASS_IMPL(ParallelJobListContent, "src/debuggeedata.cpp")

template <class FieldVisitor>
void ParallelJobItem::describeFields(FieldVisitor& field) {
  field("DummyContent", &ParallelJobItem::m_DummyContent);
}
DD_DATA_CLASS_IMPL(ParallelJobItem, "src/debuggeedata.cpp")

template <class FieldVisitor>
void JobListContent::describeFields(FieldVisitor& field) {
  field("DummyContent", &JobListContent::m_DummyContent);
}
DD_DATA_CLASS_IMPL(JobListContent, "src/debuggeedata.cpp")

template <class FieldVisitor>
void JobItem::describeFields(FieldVisitor& field) {
  field("DummyContent", &JobItem::m_DummyContent);
}
DD_DATA_CLASS_IMPL(JobItem, "src/debuggeedata.cpp")

template <class FieldVisitor>
void ProcessListContent::describeFields(FieldVisitor& field) {
  field("DummyContent", &ProcessListContent::m_DummyContent);
}
DD_DATA_CLASS_IMPL(ProcessListContent, "src/debuggeedata.cpp")

template <class FieldVisitor>
void ProcessItem::describeFields(FieldVisitor& field) {
  field("DummyContent", &ProcessItem::m_DummyContent);
}
DD_DATA_CLASS_IMPL(ProcessItem, "src/debuggeedata.cpp")

template <class FieldVisitor>
void ThreadListContent::describeFields(FieldVisitor& field) {
  field("WithThreadLibrarySupport",
        &ThreadListContent::m_WithThreadLibrarySupport);
}
DD_DATA_CLASS_IMPL(ThreadListContent, "src/debuggeedata.cpp")

// The library id goes out after the name id although it is declared second;
// the thread's own ids end in "ID", the team and blocker ids in "Id". The two
// OpenMP enumerations travel as unsigned long, the other two as int.
template <class FieldVisitor>
void ThreadItem::describeFields(FieldVisitor& field) {
  field("DbgID", &ThreadItem::m_DebuggerId);
  field("OsID", &ThreadItem::m_OsId);
  field("NameID", &ThreadItem::m_NameId);
  field("LibID", &ThreadItem::m_LibraryId);
  field("Location", &ThreadItem::m_Location);
  field("Type", &ThreadItem::m_Type);
  field("Scope", &ThreadItem::m_Scope);
  field("OMPID", &ThreadItem::m_OMPId);
  field("OMPType", &ThreadItem::m_OMPType, Field::as<unsigned long>);
  field("OMPState", &ThreadItem::m_OMPState, Field::as<unsigned long>);
  field("OMPTeamId", &ThreadItem::m_OMPTeamId);
  field("OMPThreadNum", &ThreadItem::m_OMPThreadNum);
  field("OMPBlockerId", &ThreadItem::m_OMPBlockerId);
  field("OMPMemberships", &ThreadItem::m_OMPMemberships);
  field("ExecutionAttribute", &ThreadItem::m_ExecutionAttribute);
  field("ExecAttrFlag", &ThreadItem::m_ExecAttrFlag);
}
DD_DATA_CLASS_IMPL(ThreadItem, "src/debuggeedata.cpp")

// For DataAccessItem, which embeds these fields in its own section.
template void ThreadItem::describeFields(DataClassOps<ThreadItem>::Writer&);
template void ThreadItem::describeFields(DataClassOps<ThreadItem>::Reader&);
template void ThreadItem::describeFields(DataClassOps<ThreadItem>::Copier&);
template void ThreadItem::describeFields(DataClassOps<ThreadItem>::Comparer&);

template <class FieldVisitor>
void ThreadSet::describeFields(FieldVisitor& field) {
  field("Name", &ThreadSet::m_Name);
  field("Threads", &ThreadSet::m_Threads);
  field("Declaration", &ThreadSet::m_Declaration);
  field("Normalized", &ThreadSet::m_Normalized);
  field("Editable", &ThreadSet::m_Editable);
  field("Deleteable", &ThreadSet::m_Deleteable);
}
DD_DATA_CLASS_IMPL(ThreadSet, "src/debuggeedata.cpp")

} // namespace DbgData
} // namespace Vemo
