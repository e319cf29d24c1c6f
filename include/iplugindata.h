// IPlugInData: the interface of data objects supplied by plug-ins. The
// library calls it but does not implement it; it lives in the global
// namespace, on the plug-in side of the boundary.
#ifndef DBGDATA_IPLUGINDATA_H
#define DBGDATA_IPLUGINDATA_H

#include "serializerhelper.h"

class IPlugInData {
public:
  virtual ~IPlugInData();
  // Writes the object's values into the writer's current section. A plug-in
  // data object that the deserializer is to find again writes its plug-in
  // data key under "PlugInDataKey" here (see IPlugInDataFactory).
  virtual bool serialize(Vemo::DbgData::ISerializerHelper* writer) const = 0;
  // Reads the values back from the reader's current section.
  virtual bool deserialize(Vemo::DbgData::IDeserializerHelper* reader) = 0;
  // True when other (which may be null) holds the same data.
  virtual bool compare(const IPlugInData* other) const = 0;
  // New copy; who releases it is the plug-in side's decision.
  virtual IPlugInData* clone() const = 0;
};

#endif
