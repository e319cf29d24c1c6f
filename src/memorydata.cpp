#include "memorydata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void MemoryListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(MemoryListContent, "src/memorydata.cpp")

// The bytes travel as hex text after their count. An item without bytes
// writes an empty "ByteArray" and answers false. A count larger than its
// text can fill is refused on reading (the item stays empty), so that a
// count from outside never allocates more than the document holds.
template <class FieldVisitor>
void MemoryItem::describeFields(FieldVisitor& field) {
  field("ArraySize", "ByteArray", &MemoryItem::m_ByteArray, Field::notCompared);
  field("Address", &MemoryItem::m_Address);
}
DD_DATA_CLASS_IMPL(MemoryItem, "src/memorydata.cpp")

template <class FieldVisitor>
void MemoryAddress::describeFields(FieldVisitor& field) {
  field("Address", &MemoryAddress::m_Address);
  field("AccessSize", &MemoryAddress::m_AccessSize);
}
DD_DATA_CLASS_IMPL(MemoryAddress, "src/memorydata.cpp")

} // namespace DbgData
} // namespace Vemo
