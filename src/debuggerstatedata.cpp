#include "debuggerstatedata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void DebuggerState::describeFields(FieldVisitor& field) {
  field("DummyContent", &DebuggerState::m_DummyContent);
}
DD_DATA_CLASS_IMPL(DebuggerState, "src/debuggerstatedata.cpp")

template <class FieldVisitor>
void ActiveDebuggee::describeFields(FieldVisitor& field) {
  field("ActiveParallelJob", &ActiveDebuggee::m_ActiveParallelJob);
  field("ActiveJob", &ActiveDebuggee::m_ActiveJob);
  field("ActiveProcess", &ActiveDebuggee::m_ActiveProcess);
  field("ActiveThread", &ActiveDebuggee::m_ActiveThread);
}
DD_DATA_CLASS_IMPL(ActiveDebuggee, "src/debuggerstatedata.cpp")

// Address, source key, line and column travel inside "Location".
template <class FieldVisitor>
void CurScope::describeFields(FieldVisitor& field) {
  field("ExecState", &CurScope::m_ExecState);
  field("Location", &CurScope::m_Location);
}
DD_DATA_CLASS_IMPL(CurScope, "src/debuggerstatedata.cpp")

} // namespace DbgData
} // namespace Vemo
