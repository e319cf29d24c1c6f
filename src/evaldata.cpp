#include "evaldata.h"

namespace Vemo {
namespace DbgData {

// EvalID and BaseID are unsigned but travel through the signed-long
// operation: values from 2^63 up show as negative numbers in the text dump
// and read back to the same unsigned value.
template <class FieldVisitor>
void EvalRootContent::describeFields(FieldVisitor& field) {
  field("EvalID", &EvalRootContent::m_EvalID, Field::as<long>);
  field("Symbol", &EvalRootContent::m_Symbol);
  field("BaseID", &EvalRootContent::m_BaseID, Field::as<long>);
  field("BaseSubKey", &EvalRootContent::m_BaseSubKey);
  field("AccessSize", &EvalRootContent::m_AccessSize);
  field("AsciiLength", &EvalRootContent::m_AsciiLength);
  field("Flags", &EvalRootContent::m_Flags);
  field("WinID", &EvalRootContent::m_WinID);
  field("FormatFlags", &EvalRootContent::m_FormatFlags);
}
DD_DATA_CLASS_IMPL(EvalRootContent, "src/evaldata.cpp")
// The roots of a stack frame's locals are evaluation roots.
DD_BIND_CLASS_ROW(DDID_LocalsRootContent, EvalRootContent)

template <class FieldVisitor>
void EvalLineContent::describeFields(FieldVisitor& field) {
  field("Expression", &EvalLineContent::m_Expression);
  field("Name", &EvalLineContent::m_Name);
  field("Value", &EvalLineContent::m_Value);
  field("HexValue", &EvalLineContent::m_HexValue);
  field("Type", &EvalLineContent::m_Type);
  field("ModValue", &EvalLineContent::m_ModifyValue);
  field("Flags", &EvalLineContent::m_Flags);
  field("FormatFlags", &EvalLineContent::m_FormatFlags);
  field("FrameId", &EvalLineContent::m_FrameId);
}
DD_DATA_CLASS_IMPL(EvalLineContent, "src/evaldata.cpp")
// So are the lines of a stack frame's locals.
DD_BIND_CLASS_ROW(DDID_LocalsLineContent, EvalLineContent)

template <class FieldVisitor>
void EvalLineInternalZMT::describeFields(FieldVisitor& field) {
  field("EvalID", &EvalLineInternalZMT::m_EvalID);
  field("PUser", &EvalLineInternalZMT::m_PUser);
}
DD_DATA_CLASS_IMPL(EvalLineInternalZMT, "src/evaldata.cpp")

} // namespace DbgData
} // namespace Vemo
