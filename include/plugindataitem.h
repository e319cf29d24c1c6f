// PlugInDataItem: a data object that carries data supplied by a plug-in.
#ifndef DBGDATA_PLUGINDATAITEM_H
#define DBGDATA_PLUGINDATAITEM_H

#include "dataclass.h"
#include "iplugindata.h"

namespace Vemo {
namespace DbgData {

// Wraps a plug-in's data object. The factory makes it for the class name
// "PlugInItem". The item never owns its plug-in data object: neither its
// destructor nor anything else here releases it, and the plug-in side
// decides who releases the objects it hands over, the clones this item
// makes of them included.
//
// Serialization writes the DataElement part and then lets the plug-in
// object write itself into the same section; reading lets an already set
// plug-in object read itself (the deserializer sets it from the plug-in
// data factory). Comparison asks this item's plug-in object; an item
// without one equals any item with an equal DataElement part. Clone gives
// the copy a clone of the plug-in object; assignment copies only the
// DataElement part and leaves the target's plug-in object as it is.
class PlugInDataItem : public DataElement {
  DD_DATA_CLASS(PlugInDataItem, DataElement)

  virtual ::IPlugInData* getPlugInData() const { return m_PlugInData; }
  // Not taken over: the caller keeps ownership of plugInData.
  virtual void setPlugInData(::IPlugInData* plugInData) {
    m_PlugInData = plugInData;
  }

private:
  ::IPlugInData* m_PlugInData = nullptr; // not owned
};

} // namespace DbgData
} // namespace Vemo

#endif
