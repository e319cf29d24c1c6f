#include "disassemblerdata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void DisAsmListContent::describeFields(FieldVisitor& field) {
  field("SrcAnnotationMode", &DisAsmListContent::m_SrcAnnotationMode,
        Field::as<unsigned int>);
  field("Address", &DisAsmListContent::m_Address);
}
DD_DATA_CLASS_IMPL(DisAsmListContent, "src/disassemblerdata.cpp")

// Address, source key, line and column travel inside "Scope".
template <class FieldVisitor>
void DisAsmItem::describeFields(FieldVisitor& field) {
  field("Flags", &DisAsmItem::m_Flags);
  field("Scope", &DisAsmItem::m_Scope);
  field("AddressText", &DisAsmItem::m_AddressText);
  field("SourceText", &DisAsmItem::m_SourceText);
  field("OpcodeText", &DisAsmItem::m_OpcodeText);
  field("SymbolText", &DisAsmItem::m_SymbolText);
}
DD_DATA_CLASS_IMPL(DisAsmItem, "src/disassemblerdata.cpp")

template <class FieldVisitor>
void DisAsmConfig::describeFields(FieldVisitor& field) {
  field("Address", &DisAsmConfig::m_Address);
  field("RequestType", &DisAsmConfig::m_RequestType, Field::as<unsigned int>);
  field("Amount", &DisAsmConfig::m_Amount);
  field("Flags", &DisAsmConfig::m_Flags);
}
DD_DATA_CLASS_IMPL(DisAsmConfig, "src/disassemblerdata.cpp")

} // namespace DbgData
} // namespace Vemo
