#include "deserializer.h"

#include "../Common/DDAssert.h"
#include "ddfatalerror.h"
#include "ddmanager.h"
#include "debuggerdata.h"

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSourceName = "src/deserializer";

// Sections that belong inside an object's section; finding one where an
// object section should be means the data is misplaced, not unknown.
const char* const kInnerSections[] = {"EngineData", "Child", "Content", "List"};

// The class of plug-in data items and how it takes its plug-in data, as
// bound by that class. Constant-initialised, so they are null before any
// other file's static initialisation binds them.
const RTTITempl<DebuggerData>* s_plugInItemClass = nullptr;
Deserializer::PlugInDataTaker s_takePlugInData = nullptr;

} // namespace

// An object section: its name, the class name it demands (null: any) and
// the kind its object must be of.
struct Deserializer::ObjectSection {
  const char* name;
  const char* requiredClassName;
  const RTTITempl<DebuggerData>* (*kind)();
};

Deserializer::~Deserializer() = default;

void Deserializer::setPlugInDataFactory(IPlugInDataFactory* factory) {
  m_plugInDataFactory = factory;
}

const Deserializer::ObjectSection&
Deserializer::enterObjectSection(IDeserializerHelper* reader) {
  // In the order in which they are tried.
  static const ObjectSection sections[] = {
      {"DataList", "DataList", &DataList::staticRtti},
      {"DataListWC", "DataListWC", &DataListWC::staticRtti},
      {"DataElement", nullptr, &DataElement::staticRtti},
  };
  for (const ObjectSection& section : sections) {
    if (reader->pushSection(section.name))
      return section;
  }
  for (const char* name : kInnerSections) {
    if (reader->pushSection(name))
      throwDDFatalError("Known, but at this point illegal section!",
                        kSourceName, __LINE__);
  }
  throwDDFatalError("Syntax Error in serialized data!", kSourceName, __LINE__);
}

DebuggerData* Deserializer::createObject(IDeserializerHelper* reader,
                                         const ObjectSection& section) {
  std::string className;
  std::string subKey;
  if (!reader->getNameAndSubKey(&className, &subKey))
    return nullptr;
  if (section.requiredClassName && className != section.requiredClassName)
    return nullptr;
  DebuggerData* object = st_ddmanager.factory(className, subKey);
  if (object && !object->isKindOf(section.kind())) {
    delete object;
    return nullptr;
  }
  return object;
}

DebuggerData* Deserializer::deserialize(IDeserializerHelper* reader) {
  if (!reader)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  const ObjectSection& section = enterObjectSection(reader);
  DebuggerData* object = createObject(reader, section);
  if (object) {
    std::string specialSubKey;
    bool hasSpecialSubKey = false;
    if (object->isKindOf(DataList::staticRtti())) {
      hasSpecialSubKey = reader->getString("SpecialItemSubKey", &specialSubKey);
      readChildren(reader, object, hasSpecialSubKey ? &specialSubKey : nullptr);
      if (object->isKindOf(DataListWC::staticRtti()))
        readContent(reader, object);
    } else {
      readEngineData(reader, object);
    }
    readPlugInData(reader, object);
    object->deserializeMembers(reader);
    // A list's own members clear its special item; mark it again.
    if (hasSpecialSubKey)
      object->setSpecialItem(specialSubKey);
  }
  reader->popSection();
  return object;
}

void Deserializer::readChildren(IDeserializerHelper* reader, DebuggerData* list,
                                const std::string* specialSubKey) {
  if (!reader->pushListSection("List"))
    return;
  // Each child is read with its "Child" wrapper as the current node and
  // leaves the reader there again, also when it comes back null.
  for (bool entered = reader->pushFirstChildSection(); entered;
       entered = reader->pushNextChildSection()) {
    if (DebuggerData* child = deserialize(reader)) {
      if (specialSubKey && child->getSubKey() == *specialSubKey)
        list->setSpecialItem(child);
      list->appendChild(child);
    }
    reader->popSection();
  }
  reader->popListSection();
}

void Deserializer::readContent(IDeserializerHelper* reader,
                               DebuggerData* list) {
  if (!reader->pushSection("Content"))
    return;
  DebuggerData* content = deserialize(reader);
  if (content && content->isKindOf(DataElement::staticRtti()))
    list->setContent(static_cast<const DataElement*>(content));
  else
    delete content;
  reader->popSection();
}

void Deserializer::readEngineData(IDeserializerHelper* reader,
                                  DebuggerData* element) {
  if (!reader->pushSection("EngineData"))
    return;
  if (DebuggerData* engineData = deserialize(reader))
    element->setEngineData(engineData);
  reader->popSection();
}

bool Deserializer::bindPlugInDataItem(const RTTITempl<DebuggerData>* itemClass,
                                      PlugInDataTaker take) {
  DD_ASSERT(itemClass && take);
  s_plugInItemClass = itemClass;
  s_takePlugInData = take;
  return true;
}

void Deserializer::readPlugInData(IDeserializerHelper* reader,
                                  DebuggerData* object) {
  // Only an item made under the class name of plug-in items.
  if (!s_plugInItemClass || !object->isKindOf(s_plugInItemClass))
    return;
  const char* plugInItemName = DbgDataManager::getClassName(DDID_PlugInItem);
  if (!plugInItemName || object->getClassName() != plugInItemName)
    return;
  if (!m_plugInDataFactory)
    return;
  // The plug-in data object wrote its key into the item's values when it
  // serialized itself; the item's own members then let it read the rest.
  std::string plugInDataKey;
  if (!reader->getString("PlugInDataKey", &plugInDataKey))
    return;
  if (::IPlugInData* plugInData =
          m_plugInDataFactory->createPlugInData(plugInDataKey))
    s_takePlugInData(object, plugInData);
}

Deserializer* getDeserializer() {
  static Deserializer deserializer;
  return &deserializer;
}

} // namespace DbgData
} // namespace Vemo
