#include "signaldata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void SignalListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(SignalListContent, "src/signaldata.cpp")

// ReadOnly is copied but left out of comparison: two settings of one signal
// that differ only in whether the user may change them are the same setting.
template <class FieldVisitor>
void SignalItem::describeFields(FieldVisitor& field) {
  field("Name", &SignalItem::m_Name);
  field("Stop", &SignalItem::m_Stop);
  field("Print", &SignalItem::m_Print);
  field("PassToProg", &SignalItem::m_PassToProg);
  field("Description", &SignalItem::m_Description);
  field("ReadOnly", &SignalItem::m_ReadOnly, Field::notCompared);
  field("Triggered", &SignalItem::m_Triggered);
}
DD_DATA_CLASS_IMPL(SignalItem, "src/signaldata.cpp")

} // namespace DbgData
} // namespace Vemo
