#include "stackframedata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void StackFrameListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(StackFrameListContent, "src/stackframedata.cpp")

// Address, source key, line and column travel inside "Scope".
template <class FieldVisitor>
void StackFrameItem::describeFields(FieldVisitor& field) {
  field("FrameID", &StackFrameItem::m_FrameID);
  field("DisplayText", &StackFrameItem::m_DisplayText);
  field("Scope", &StackFrameItem::m_Scope);
  field("HasBrkPoint", &StackFrameItem::m_HasBrkPoint);
}
DD_DATA_CLASS_IMPL(StackFrameItem, "src/stackframedata.cpp")

DebuggerData* StackFrameItem::clone() const {
  DebuggerData* copy = st_ddmanager.factory(getClassName(), getSubKey());
  if (!copy || !copy->isKindOf(staticRtti()))
    return copy;
  StackFrameItem* frame = static_cast<StackFrameItem*>(copy);
  if (getEngineData())
    frame->setEngineData(getEngineData()->clone());
  frame->setFrameID(getFrameID());
  frame->setDisplayText(getDisplayText());
  frame->setScope(
      Scope(getAddress(), getSrcFullKey(), getSrcLine(), getSrcColumn()));
  frame->setHasBrkPoint(hasBrkPoint());
  return copy;
}

} // namespace DbgData
} // namespace Vemo
