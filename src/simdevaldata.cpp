#include "simdevaldata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void SIMDConfig::describeFields(FieldVisitor& field) {
  field("RequestType", &SIMDConfig::m_RequestType, Field::as<unsigned int>);
  field("OperatorType", &SIMDConfig::m_OperatorType, Field::as<unsigned int>);
  field("IterationType", &SIMDConfig::m_IterationType, Field::as<unsigned int>);
  field("IterationExpr", &SIMDConfig::m_IterationExpr);
}
DD_DATA_CLASS_IMPL(SIMDConfig, "src/simdevaldata.cpp")

// EvalID is unsigned but travels through the signed-long operation; the
// window type's default (all bits set) goes out as 4294967295.
template <class FieldVisitor>
void SIMDEvalRootContent::describeFields(FieldVisitor& field) {
  field("EvalID", &SIMDEvalRootContent::m_EvalID, Field::as<long>);
  field("WinID", &SIMDEvalRootContent::m_WinID);
  field("Info", &SIMDEvalRootContent::m_Info);
  field("Unions", &SIMDEvalRootContent::m_Unions);
  field("AsciiLength", &SIMDEvalRootContent::m_AsciiLength);
  field("Flags", &SIMDEvalRootContent::m_Flags);
  field("FormatFlags", &SIMDEvalRootContent::m_FormatFlags);
  field("NumColumns", &SIMDEvalRootContent::m_NumColumns);
  field("NumRows", &SIMDEvalRootContent::m_NumRows);
  field("WindowType", &SIMDEvalRootContent::m_WindowType,
        Field::as<unsigned int>);
}
DD_DATA_CLASS_IMPL(SIMDEvalRootContent, "src/simdevaldata.cpp")

// The row's bytes are handled like a memory block's: always written (an
// empty array writes "" and answers false), not compared (their number
// is), and read only when the size read is not 0. OperatorType goes out
// as an unsigned int and comes back as an int.
template <class FieldVisitor>
void SIMDEvalRowContent::describeFields(FieldVisitor& field) {
  field("DisplayExpression", &SIMDEvalRowContent::m_DisplayExpression);
  field("EngineExpression", &SIMDEvalRowContent::m_EngineExpression);
  field("Flags", &SIMDEvalRowContent::m_Flags);
  field("OperatorType", &SIMDEvalRowContent::m_OperatorType,
        Field::as<unsigned int, int>);
  field("FormatFlags", &SIMDEvalRowContent::m_FormatFlags);
  field("ArraySize", "ByteArray", &SIMDEvalRowContent::m_ByteArray,
        Field::notCompared | Field::bytesSkippedWhenEmpty);
  field("EvalID", &SIMDEvalRowContent::m_EvalID, Field::as<unsigned int>);
  field("SizeOfArrayElement", &SIMDEvalRowContent::m_SizeOfArrayElement);
}
// The reader takes the size before the operator type, and the bytes after.
DD_FIELD_READ_ORDER(SIMDEvalRowContent, "DisplayExpression", "EngineExpression",
                    "Flags", "FormatFlags", "ArraySize", "OperatorType",
                    "ByteArray", "EvalID", "SizeOfArrayElement")
DD_DATA_CLASS_IMPL(SIMDEvalRowContent, "src/simdevaldata.cpp")

template <class FieldVisitor>
void SIMDEvalItem::describeFields(FieldVisitor& field) {
  field("Value", &SIMDEvalItem::m_Value);
  field("ModValue", &SIMDEvalItem::m_ModifyValue);
  field("Flags", &SIMDEvalItem::m_Flags);
  field("FormatFlags", &SIMDEvalItem::m_FormatFlags);
  field("Highlight", &SIMDEvalItem::m_Highlight);
}
DD_DATA_CLASS_IMPL(SIMDEvalItem, "src/simdevaldata.cpp")

} // namespace DbgData
} // namespace Vemo
