// Deserializer: turns the serialized form of a data object back into an
// object tree, through any IDeserializerHelper (normally the DOM reader).
#ifndef DBGDATA_DESERIALIZER_H
#define DBGDATA_DESERIALIZER_H

#include "serializerhelper.h"

#include <string>

// The plug-in data interface belongs to the plug-in side, outside the
// library's namespace.
class IPlugInData;

namespace Vemo {
namespace DbgData {

class DebuggerData;

// Implemented by the plug-in side: makes the plug-in data object that a
// plug-in data item names by its plug-in data key.
class IPlugInDataFactory {
public:
  virtual ~IPlugInDataFactory() = default;
  // New plug-in data object for plugInDataKey, or null when the key is
  // unknown. Who releases it is the plug-in side's decision.
  virtual ::IPlugInData* createPlugInData(const std::string& plugInDataKey) = 0;
};

class Deserializer {
public:
  Deserializer() = default;
  virtual ~Deserializer();
  Deserializer(const Deserializer&) = delete;
  Deserializer& operator=(const Deserializer&) = delete;

  // Reads the object whose section ("DataList", "DataListWC" or
  // "DataElement") is a child of the reader's current node, with its
  // children, content and engine data, and leaves the reader where it was.
  // Answers the new object, owned by the caller, or null for a class the
  // factory cannot make or that does not fit its section. A null reader, or
  // no object section at all, is a fatal error.
  virtual DebuggerData* deserialize(IDeserializerHelper* reader);
  // The factory used for plug-in data objects; not owned, may be null.
  virtual void setPlugInDataFactory(IPlugInDataFactory* factory);

private:
  struct ObjectSection;

  // Enters the first object section there is; fatal when there is none.
  const ObjectSection& enterObjectSection(IDeserializerHelper* reader);
  // The object the section's class name and sub key describe, or null.
  DebuggerData* createObject(IDeserializerHelper* reader,
                             const ObjectSection& section);
  // Children from the "List" section, marking the special item.
  void readChildren(IDeserializerHelper* reader, DebuggerData* list,
                    const std::string* specialSubKey);
  // Content object from the "Content" section.
  void readContent(IDeserializerHelper* reader, DebuggerData* list);
  // Engine data object from the "EngineData" section.
  void readEngineData(IDeserializerHelper* reader, DebuggerData* element);
  // Gives a plug-in data item its plug-in data object.
  void readPlugInData(IDeserializerHelper* reader, DebuggerData* object);

  IPlugInDataFactory* m_plugInDataFactory = nullptr;
};

// The one shared deserializer.
Deserializer* getDeserializer();

} // namespace DbgData
} // namespace Vemo

#endif
