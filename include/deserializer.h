// Deserializer: turns the serialized form of a data object back into an
// object tree, through any IDeserializerHelper (normally the DOM reader).
#ifndef DBGDATA_DESERIALIZER_H
#define DBGDATA_DESERIALIZER_H

#include "Common/RTTITempl.h"
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
  // The factory set last, or null.
  IPlugInDataFactory* getPlugInDataFactory() const {
    return m_plugInDataFactory;
  }

  // How the class of plug-in data items takes the plug-in data object made
  // for one of its items (item is a kind of that class).
  typedef void (*PlugInDataTaker)(DebuggerData* item, ::IPlugInData* data);
  // Names the class of plug-in data items. That class is a data class, which
  // the reader does not know, so it binds itself here at load time; until
  // it has, no item gets plug-in data. Answers true.
  static bool bindPlugInDataItem(const RTTITempl<DebuggerData>* itemClass,
                                 PlugInDataTaker take);

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
  // Gives a plug-in data item the plug-in data object the factory makes for
  // its "PlugInDataKey"; no factory, or none made: no plug-in data.
  void readPlugInData(IDeserializerHelper* reader, DebuggerData* object);

  IPlugInDataFactory* m_plugInDataFactory = nullptr;
};

// The one shared deserializer.
Deserializer* getDeserializer();

} // namespace DbgData
} // namespace Vemo

#endif
