#include "datasharingdata.h"

namespace Vemo {
namespace DbgData {

// StopOnEvent travels under the key "EventStop".
template <class FieldVisitor>
void DataSharingConfig::describeFields(FieldVisitor& field) {
  field("Enabled", &DataSharingConfig::m_Enabled);
  field("EventStop", &DataSharingConfig::m_StopOnEvent);
  field("Reset", &DataSharingConfig::m_Reset);
}
DD_DATA_CLASS_IMPL(DataSharingConfig, "src/datasharingdata.cpp")

// The member Id travels as "ID", DisplayText as "Text".
template <class FieldVisitor>
void DataSharingFilterItem::describeFields(FieldVisitor& field) {
  field("ID", &DataSharingFilterItem::m_Id);
  field("Type", &DataSharingFilterItem::m_Type);
  field("State", &DataSharingFilterItem::m_State);
  field("Text", &DataSharingFilterItem::m_DisplayText);
  field("StartAddress", &DataSharingFilterItem::m_StartAddress);
  field("EndAddress", &DataSharingFilterItem::m_EndAddress);
  field("StartExpression", &DataSharingFilterItem::m_StartExpression);
  field("EndExpression", &DataSharingFilterItem::m_EndExpression);
  field("ByteCount", &DataSharingFilterItem::m_ByteCount);
  field("UseSizeOf", &DataSharingFilterItem::m_UseSizeOf);
  field("CodeFilterType", &DataSharingFilterItem::m_CodeFilterType);
}
DD_DATA_CLASS_IMPL(DataSharingFilterItem, "src/datasharingdata.cpp")

namespace {

// A thread from the factory, checked to be a ThreadItem before it is used as
// one.
ThreadItem* newThreadItem() {
  DebuggerData* thread = st_ddmanager.factory(DDID_ThreadItem, std::string());
  DD_ASSERT(thread && thread->isKindOf(ThreadItem::staticRtti()));
  return static_cast<ThreadItem*>(thread);
}

} // namespace

DataAccessItem::OwnedThread::OwnedThread() : m_thread(newThreadItem()) {}

DataAccessItem::OwnedThread::~OwnedThread() { delete m_thread; }

// The thread's sixteen keys come first, flat in the item's own section
// ("Thread" names the field only and is not written).
template <class FieldVisitor>
void DataAccessItem::describeFields(FieldVisitor& field) {
  field("Thread", &DataAccessItem::m_Thread);
  field("Access", &DataAccessItem::m_Access);
  field("Symbol", &DataAccessItem::m_Symbol);
  field("Address", &DataAccessItem::m_Address);
  field("FunctionName", &DataAccessItem::m_FunctionName);
  field("SrcFileName", &DataAccessItem::m_SrcFileName);
}
DD_DATA_CLASS_IMPL(DataAccessItem, "src/datasharingdata.cpp")

void DataAccessItem::setThread(const ThreadItem& thread) {
  DataClassOps<ThreadItem>::copyFields(m_Thread.get(), thread, false);
}

template <class Change> void DataAccessItem::changeThreadScope(Change change) {
  Scope scope = getThread().getScope();
  change(scope);
  m_Thread.get().setScope(scope);
}

void DataAccessItem::setAccessLocationAddress(const Address& address) {
  changeThreadScope([&](Scope& scope) { scope.setAddress(address); });
}

void DataAccessItem::setAccessLocationSrcFullKey(const DbgDataKey& key) {
  changeThreadScope([&](Scope& scope) { scope.setKey(key); });
}

void DataAccessItem::setAccessLocationSrcLine(unsigned long line) {
  changeThreadScope([&](Scope& scope) { scope.setNumber1(line); });
}

void DataAccessItem::setSrcAccessLocationColumn(unsigned long column) {
  changeThreadScope([&](Scope& scope) { scope.setNumber2(column); });
}

} // namespace DbgData
} // namespace Vemo
