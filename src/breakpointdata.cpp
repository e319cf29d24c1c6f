#include "breakpointdata.h"

#include "sourcedata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void BreakPointListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(BreakPointListContent, "src/breakpointdata.cpp")

// Address, source key, line and column travel inside "Location". Pending is
// written, read and copied, but left out of ==. The two style enumerations
// go out as unsigned long.
template <class FieldVisitor>
void BreakPointItem::describeFields(FieldVisitor& field) {
  field("ID", &BreakPointItem::m_Id);
  field("Kind", &BreakPointItem::m_Kind);
  field("Location", &BreakPointItem::m_Location);
  field("Condition", &BreakPointItem::m_Condition);
  field("Action", &BreakPointItem::m_Action);
  field("Continue", &BreakPointItem::m_Continue);
  field("Enabled", &BreakPointItem::m_Enabled);
  field("Pending", &BreakPointItem::m_Pending, Field::notCompared);
  field("MaxSkips", &BreakPointItem::m_MaxSkips);
  field("CurSkips", &BreakPointItem::m_CurSkips);
  field("DisplayText", &BreakPointItem::m_DisplayText);
  field("ExpStr", &BreakPointItem::m_ExpStr);
  field("Triggered", &BreakPointItem::m_Triggered);
  field("ConditionStyle", &BreakPointItem::m_ConditionStyle,
        Field::as<unsigned long>);
  field("PassCountStyle", &BreakPointItem::m_PassCountStyle,
        Field::as<unsigned long>);
}
DD_DATA_CLASS_IMPL(BreakPointItem, "src/breakpointdata.cpp")

template <class FieldVisitor>
void BreakPointInternalZMT::describeFields(FieldVisitor& field) {
  field("SymbolName", &BreakPointInternalZMT::m_SymbolName);
  field("IsHardwareBP", &BreakPointInternalZMT::m_IsHardwareBP);
  field("HardwareBPId", &BreakPointInternalZMT::m_HardwareBPId);
}
DD_DATA_CLASS_IMPL(BreakPointInternalZMT, "src/breakpointdata.cpp")

template <class FieldVisitor>
void BreakPointInternalKYR::describeFields(FieldVisitor& field) {
  field("Synchronized", &BreakPointInternalKYR::m_Synchronized);
  field("ThreadFilter", &BreakPointInternalKYR::m_ThreadFilter);
  field("StoppingThreads", &BreakPointInternalKYR::m_StoppingThreads);
}
DD_DATA_CLASS_IMPL(BreakPointInternalKYR, "src/breakpointdata.cpp")

bool BreakPointInternalKYR::locListContainsAddr(const Address& address) const {
  const DebuggerData* engineData = getEngineData();
  if (!engineData || !engineData->isKindOf(DataList::staticRtti()))
    return false;
  for (const DebuggerData* child :
       *static_cast<const DataList*>(engineData)->getConstList()) {
    // Unlike the list's own operations, the walk does not skip a missing
    // child: anything but a SourceScope ends it.
    if (!child || !child->isKindOf(SourceScope::staticRtti()))
      return false;
    if (static_cast<const SourceScope*>(child)->getAddress() == address)
      return true;
  }
  return false;
}

template <class FieldVisitor>
void WatchPointInternalZMT::describeFields(FieldVisitor& field) {
  field("SymbolName", &WatchPointInternalZMT::m_SymbolName);
  field("Access", &WatchPointInternalZMT::m_Access, Field::as<unsigned int>);
  field("Mask", &WatchPointInternalZMT::m_Mask);
  field("OverlayID", &WatchPointInternalZMT::m_OverlayID);
  field("Length", &WatchPointInternalZMT::m_Length);
  field("IsHardwareBP", &WatchPointInternalZMT::m_IsHardwareBP);
  field("HardwareBPId", &WatchPointInternalZMT::m_HardwareBPId);
}
DD_DATA_CLASS_IMPL(WatchPointInternalZMT, "src/breakpointdata.cpp")

template <class FieldVisitor>
void WatchPointInternalKYR::describeFields(FieldVisitor& field) {
  field("ThreadFilter", &WatchPointInternalKYR::m_ThreadFilter);
  field("Access", &WatchPointInternalKYR::m_Access, Field::as<unsigned int>);
  field("WithinFunction", &WatchPointInternalKYR::m_WithinFunction);
  field("OverlayID", &WatchPointInternalKYR::m_OverlayID);
  field("Length", &WatchPointInternalKYR::m_Length);
  field("IsHardwareBP", &WatchPointInternalKYR::m_IsHardwareBP);
}
DD_DATA_CLASS_IMPL(WatchPointInternalKYR, "src/breakpointdata.cpp")

} // namespace DbgData
} // namespace Vemo
