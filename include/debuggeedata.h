// The debuggee tree: parallel jobs holding jobs holding processes holding
// threads, each level a list content and its items, and the user's thread
// sets.
#ifndef DBGDATA_DEBUGGEEDATA_H
#define DBGDATA_DEBUGGEEDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// The nodes above the thread level carry no information of their own: they
// exist so that the tree has nodes whose sub keys name the job and the
// process. Each has one member with no accessor, so that the node carries a
// serializable value.
class ParallelJobListContent : public DataElement {
  DD_DATA_CLASS(ParallelJobListContent, DataElement)

private:
  std::string m_DummyContent;
};

class ParallelJobItem : public DataElement {
  DD_DATA_CLASS(ParallelJobItem, DataElement)

private:
  std::string m_DummyContent;
};

class JobListContent : public DataElement {
  DD_DATA_CLASS(JobListContent, DataElement)

private:
  std::string m_DummyContent;
};

class JobItem : public DataElement {
  DD_DATA_CLASS(JobItem, DataElement)

private:
  std::string m_DummyContent;
};

class ProcessListContent : public DataElement {
  DD_DATA_CLASS(ProcessListContent, DataElement)

private:
  std::string m_DummyContent;
};

class ProcessItem : public DataElement {
  DD_DATA_CLASS(ProcessItem, DataElement)

private:
  std::string m_DummyContent;
};

// Content header of a process's thread list.
class ThreadListContent : public DataElement {
  DD_DATA_CLASS(ThreadListContent, DataElement)

  bool getWithThreadLibrarySupport() const {
    return m_WithThreadLibrarySupport;
  }
  void setWithThreadLibrarySupport(bool v) { m_WithThreadLibrarySupport = v; }

private:
  bool m_WithThreadLibrarySupport = true;
};

// One thread of a process: its ids in the debugger, the operating system
// and the thread library, where it stands, and its OpenMP view.
class ThreadItem : public DataElement {
  DD_DATA_CLASS(ThreadItem, DataElement)

  // The enumerators besides the default belong to the engine protocol; the
  // library stores and transports the values as numbers.
  enum ThreadType : std::int32_t { ThreadType_Undefined = 0 };
  enum _ompThrdType : std::int32_t { OMPThrdType_Undefined = 0 };
  enum _ompThrdState : std::int32_t { OMPThrdState_Undefined = 0 };
  enum _threadExecAttribute : std::int32_t { ThreadExecAttribute_None = 0 };

  ThreadType getType() const { return m_Type; }
  void setType(ThreadType v) { m_Type = v; }
  const std::string& getDebuggerId() const { return m_DebuggerId; }
  void setDebuggerId(const std::string& v) { m_DebuggerId = v; }
  const std::string& getLibraryId() const { return m_LibraryId; }
  void setLibraryId(const std::string& v) { m_LibraryId = v; }
  const std::string& getOsId() const { return m_OsId; }
  void setOsId(const std::string& v) { m_OsId = v; }
  const std::string& getNameId() const { return m_NameId; }
  void setNameId(const std::string& v) { m_NameId = v; }
  const std::string& getLocation() const { return m_Location; }
  void setLocation(const std::string& v) { m_Location = v; }
  const Scope& getScope() const { return m_Scope; }
  void setScope(const Scope& v) { m_Scope = v; }
  const std::string& getOMPId() const { return m_OMPId; }
  void setOMPId(const std::string& v) { m_OMPId = v; }
  _ompThrdType getOMPType() const { return m_OMPType; }
  void setOMPType(_ompThrdType v) { m_OMPType = v; }
  _ompThrdState getOMPState() const { return m_OMPState; }
  void setOMPState(_ompThrdState v) { m_OMPState = v; }
  const std::string& getOMPTeamId() const { return m_OMPTeamId; }
  void setOMPTeamId(const std::string& v) { m_OMPTeamId = v; }
  unsigned long getOMPThreadNum() const { return m_OMPThreadNum; }
  void setOMPThreadNum(unsigned long v) { m_OMPThreadNum = v; }
  const std::string& getOMPBlockerId() const { return m_OMPBlockerId; }
  void setOMPBlockerId(const std::string& v) { m_OMPBlockerId = v; }
  const StringVector& getOMPMemberships() const { return m_OMPMemberships; }
  void setOMPMemberships(const StringVector& v) { m_OMPMemberships = v; }
  const std::string& getExecutionAttribute() const {
    return m_ExecutionAttribute;
  }
  void setExecutionAttribute(const std::string& v) { m_ExecutionAttribute = v; }
  _threadExecAttribute getExecAttrFlag() const { return m_ExecAttrFlag; }
  void setExecAttrFlag(_threadExecAttribute v) { m_ExecAttrFlag = v; }

private:
  std::string m_DebuggerId;
  std::string m_LibraryId;
  std::string m_OsId;
  std::string m_NameId;
  std::string m_Location;
  ThreadType m_Type = ThreadType_Undefined;
  Scope m_Scope;
  std::string m_OMPId;
  _ompThrdType m_OMPType = OMPThrdType_Undefined;
  _ompThrdState m_OMPState = OMPThrdState_Undefined;
  std::string m_OMPTeamId;
  unsigned long m_OMPThreadNum = 0;
  std::string m_OMPBlockerId;
  StringVector m_OMPMemberships;
  std::string m_ExecutionAttribute;
  _threadExecAttribute m_ExecAttrFlag = ThreadExecAttribute_None;
};

// DataAccessItem writes, reads, copies and compares a ThreadItem's fields
// in its own section through DataClassOps<ThreadItem>. The field visits
// those need are instantiated once, in src/debuggeedata.cpp next to the
// field list.
extern template void
ThreadItem::describeFields(DataClassOps<ThreadItem>::Writer&);
extern template void
ThreadItem::describeFields(DataClassOps<ThreadItem>::Reader&);
extern template void
ThreadItem::describeFields(DataClassOps<ThreadItem>::Copier&);
extern template void
ThreadItem::describeFields(DataClassOps<ThreadItem>::Comparer&);

// A named, user-editable set of threads.
class ThreadSet : public DataElement {
  DD_DATA_CLASS(ThreadSet, DataElement)

  const std::string& getName() const { return m_Name; }
  void setName(const std::string& v) { m_Name = v; }
  const StringVector& getThreads() const { return m_Threads; }
  void setThreads(const StringVector& v) { m_Threads = v; }
  const std::string& getDeclaration() const { return m_Declaration; }
  void setDeclaration(const std::string& v) { m_Declaration = v; }
  const std::string& getNormalized() const { return m_Normalized; }
  void setNormalized(const std::string& v) { m_Normalized = v; }
  bool isEditable() const { return m_Editable; }
  void setEditable(bool v) { m_Editable = v; }
  bool isDeleteable() const { return m_Deleteable; }
  void setDeleteable(bool v) { m_Deleteable = v; }

private:
  std::string m_Name;
  StringVector m_Threads;
  std::string m_Declaration;
  std::string m_Normalized;
  bool m_Editable = false;
  bool m_Deleteable = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
