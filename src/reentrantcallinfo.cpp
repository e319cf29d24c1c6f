#include "reentrantcallinfo.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void ReEntrantCallItem::describeFields(FieldVisitor& field) {
  field("AddressText", &ReEntrantCallItem::m_AddressText);
  field("EnableDetection", &ReEntrantCallItem::m_EnableDetection);
}
// The class's row is the one named "ReEntrantCallInfo"; no row carries the
// class's own name.
DD_DATA_CLASS_IMPL_UNBOUND(ReEntrantCallItem, "src/reentrantcallinfo.cpp")
DD_BIND_CLASS_ROW(DDID_ReEntrantCallInfo, ReEntrantCallItem)

} // namespace DbgData
} // namespace Vemo
