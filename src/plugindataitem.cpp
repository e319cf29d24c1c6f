#include "plugindataitem.h"

#include "deserializer.h"

namespace Vemo {
namespace DbgData {

// The plug-in data pointer is not a field of the pattern: every operation
// that involves it does so in its own way, written out below. With no
// fields, the pattern's assignment copies exactly the DataElement part.
template <class FieldVisitor>
void PlugInDataItem::describeFields(FieldVisitor&) {}

DD_DEFINE_IDENTITY(PlugInDataItem, PlugInDataItem::BaseClass)
DD_IMPL_ASSIGN(PlugInDataItem, "src/plugindataitem.cpp")
// The class's row is the one named "PlugInItem"; no row carries the class's
// own name.
DD_BIND_CLASS_ROW(DDID_PlugInItem, PlugInDataItem)

// The copy gets the plug-in object's own clone, which the copy does not own
// either.
void PlugInDataItem::cloneMembers(DebuggerData* target) const {
  if (!target || !target->isKindOf(staticRtti()))
    return;
  DataElement::cloneMembers(target);
  if (m_PlugInData)
    static_cast<PlugInDataItem*>(target)->m_PlugInData = m_PlugInData->clone();
}

// One-sided like every comparison, and more so: only this item's plug-in
// object is asked (with the other's, which may be null); without one the
// DataElement part decides.
bool PlugInDataItem::operator==(const DebuggerData& other) const {
  if (!other.isKindOf(staticRtti()) || !DataElement::operator==(other))
    return false;
  return !m_PlugInData ||
         m_PlugInData->compare(
             static_cast<const PlugInDataItem&>(other).m_PlugInData);
}

bool PlugInDataItem::serializeMembers(ISerializerHelper* writer) const {
  const bool base = DataElement::serializeMembers(writer);
  if (!m_PlugInData)
    return base;
  return m_PlugInData->serialize(writer) && base;
}

bool PlugInDataItem::deserializeMembers(IDeserializerHelper* reader) {
  const bool base = DataElement::deserializeMembers(reader);
  if (!m_PlugInData)
    return base;
  return m_PlugInData->deserialize(reader) && base;
}

namespace {

void takePlugInData(DebuggerData* item, ::IPlugInData* plugInData) {
  static_cast<PlugInDataItem*>(item)->setPlugInData(plugInData);
}

} // namespace

// The deserializer gives plug-in data items the objects its plug-in data
// factory makes; it learns the class here, at load time.
[[maybe_unused]] static const bool s_plugInDataItemBound =
    Deserializer::bindPlugInDataItem(PlugInDataItem::staticRtti(),
                                     &takePlugInData);

} // namespace DbgData
} // namespace Vemo
