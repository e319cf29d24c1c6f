#include "registerdata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void RegisterGroup::describeFields(FieldVisitor& field) {
  field("Name", &RegisterGroup::m_Name);
}
DD_DATA_CLASS_IMPL(RegisterGroup, "src/registerdata.cpp")

template <class FieldVisitor>
void RegisterItem::describeFields(FieldVisitor& field) {
  field("Name", &RegisterItem::m_Name);
  field("Value", &RegisterItem::m_Value);
  field("Description", &RegisterItem::m_Description);
  field("Expression", &RegisterItem::m_Expression);
  field("Type", &RegisterItem::m_Type);
  field("Flags", &RegisterItem::m_Flags);
}
DD_DATA_CLASS_IMPL(RegisterItem, "src/registerdata.cpp")

unsigned int RegisterItem::getBitSize() const {
  // Register widths by type code. The odd entries (48 bits for code 4, 80
  // for code 12, 36 for code 17, and 8/16/32 again at codes 13 to 15) are
  // what the register display relies on.
  static const unsigned int bitSizes[] = {8,  16, 32, 64,  48, 64,  64, 64,
                                          64, 64, 64, 64,  80, 32,  16, 8,
                                          32, 36, 64, 128, 64, 128, 64, 128};
  // Compared as unsigned, so negative codes also fall outside the table.
  const unsigned int code = static_cast<unsigned int>(m_Type);
  return code < sizeof bitSizes / sizeof bitSizes[0] ? bitSizes[code] : 32;
}

} // namespace DbgData
} // namespace Vemo
