#include "debuggerdata.h"

#include "ddmanager.h"
#include "serializerhelperString.h"

#include <cstring>

namespace Vemo {
namespace DbgData {

// Explicit instantiation: the one registry of identity objects lives here.
template class RTTITempl<DebuggerData>;

// Identity objects in class-id order of this file: DebuggerData,
// DataElement, DataList, DataListWC.
DebuggerData::RTTI_DebuggerData::RTTI_DebuggerData()
    : RTTITempl<DebuggerData>("DebuggerData") {}
DebuggerData* DebuggerData::RTTI_DebuggerData::createOwnerInstance() const {
  return nullptr;
}
DebuggerData::RTTI_DebuggerData DebuggerData::s_RTTI_DebuggerData;

DD_DEFINE_IDENTITY_WITH(DataElement, DebuggerData, nullptr)
DD_DEFINE_IDENTITY(DataList, DebuggerData)
DD_DEFINE_IDENTITY(DataListWC, DataList)

[[maybe_unused]] static const bool s_rowsBound =
    DbgDataManager::bindClassIdentity(DDID_DebuggerData,
                                      DebuggerData::staticRtti()) &&
    DbgDataManager::bindClassIdentity(DDID_DataElement,
                                      DataElement::staticRtti()) &&
    DbgDataManager::bindClassIdentity(DDID_DataList, DataList::staticRtti()) &&
    DbgDataManager::bindClassIdentity(DDID_DataListWC,
                                      DataListWC::staticRtti());

// ---------------------------------------------------------------------------
// DebuggerData

const DebuggerData* DebuggerData::getDescendant(const char* pszRelKey) const {
  DD_ASSERT(pszRelKey);
  DD_ASSERT(strlen(pszRelKey) > 0);
  DD_ASSERT(pszRelKey[0] != '/');
  const char* slash = std::strchr(pszRelKey, '/');
  const std::string sDirectChildSubKey =
      slash ? std::string(pszRelKey, slash) : std::string(pszRelKey);
  DD_ASSERT(!(sDirectChildSubKey.empty()));
  const DebuggerData* child = getChild(sDirectChildSubKey);
  if (!child)
    return nullptr;
  if (!slash)
    return child;
  return child->getDescendant(slash + 1);
}

void DebuggerData::dump() {
  SerializerHelperString writer;
  serialize(&writer);
}

// ---------------------------------------------------------------------------
// DataElement

DataElement::~DataElement() {
  delete m_engineData;
  m_engineData = nullptr;
}

DebuggerData* DataElement::clone() const {
  DebuggerData* copy = st_ddmanager.factory(getClassName(), getSubKey());
  if (copy)
    cloneMembers(copy);
  return copy;
}

void DataElement::cloneMembers(DebuggerData* target) const {
  if (target && target->isKindOf(DataElement::staticRtti()) && m_engineData)
    target->setEngineData(m_engineData->clone());
}

DebuggerData& DataElement::operator=(const DebuggerData& other) {
  if (other.isKindOf(DataElement::staticRtti())) {
    setClassName(other.getClassName());
    setSubKey(other.getSubKey());
    setEngineData(other.getEngineData());
  }
  return *this;
}

bool DataElement::operator==(const DebuggerData& other) const {
  return other.isKindOf(DataElement::staticRtti()) &&
         getClassName() == other.getClassName() &&
         getSubKey() == other.getSubKey();
}

bool DataElement::serialize(ISerializerHelper* writer) const {
  if (!writer->pushSection("DataElement"))
    return false;
  const bool result = serializeMembers(writer);
  writer->popSection();
  return result;
}

bool DataElement::serializeMembers(ISerializerHelper* writer) const {
  const bool named = writer->setClassNameAndSubKey(getClassName(), getSubKey());
  if (!m_engineData)
    return named;
  // With engine data, only the engine data's own outcome is reported.
  if (!writer->pushSection("EngineData"))
    return false;
  const bool result = m_engineData->serialize(writer);
  writer->popSection();
  return result;
}

bool DataElement::deserializeMembers(IDeserializerHelper*) {
  // Class name and sub key were read before the object was created.
  return true;
}

// ---------------------------------------------------------------------------
// DataList

DataList::~DataList() {
  for (const DebuggerData* child : m_children)
    delete child;
  m_children.clear();
}

DebuggerData* DataList::clone() const {
  DebuggerData* copy = st_ddmanager.factory(getClassName(), getSubKey());
  if (copy)
    cloneMembers(copy);
  return copy;
}

const DebuggerData* DataList::getChild(const std::string& subKey) const {
  for (const DebuggerData* child : m_children)
    if (child && child->getSubKey() == subKey)
      return child;
  return nullptr;
}

bool DataList::appendChild(const DebuggerData* child) {
  if (!child)
    return false;
  m_children.push_back(child);
  return true;
}

void DataList::setSpecialItem(const std::string& subKey) {
  // Every match is marked in turn, so the last child with the sub key wins.
  for (const DebuggerData* child : m_children)
    if (child && child->getSubKey() == subKey)
      m_specialItem = child;
}

DebuggerData& DataList::operator=(const DebuggerData& other) {
  if (other.isKindOf(DataList::staticRtti())) {
    setClassName(other.getClassName());
    setSubKey(other.getSubKey());
  }
  return *this;
}

bool DataList::operator==(const DebuggerData& other) const {
  if (!other.isKindOf(DataList::staticRtti()))
    return false;
  const DataList& list = static_cast<const DataList&>(other);
  if (getClassName() != list.getClassName() ||
      getSubKey() != list.getSubKey() ||
      m_children.size() != list.m_children.size())
    return false;
  auto theirs = list.m_children.begin();
  for (const DebuggerData* mine : m_children) {
    if (!mine || !*theirs ? mine != *theirs : !(*mine == **theirs))
      return false;
    ++theirs;
  }
  return true;
}

bool DataList::serialize(ISerializerHelper* writer) const {
  if (!writer->pushSection("DataList"))
    return false;
  const bool result = serializeMembers(writer);
  writer->popSection();
  return result;
}

bool DataList::serializeMembers(ISerializerHelper* writer) const {
  bool result = writer->setClassNameAndSubKey(getClassName(), getSubKey());
  if (m_specialItem && result) {
    result = writer->pushSection("values");
    if (result) {
      result =
          writer->setString("SpecialItemSubKey", m_specialItem->getSubKey()) &&
          result;
      writer->popSection();
    }
  }
  if (result)
    result = writer->pushSection("List");
  if (!result)
    return false;
  // Each child's outcome replaces the running result, so only the last
  // child decides the answer.
  for (const DebuggerData* child : m_children) {
    if (!child)
      continue;
    result = writer->pushSection("Child");
    if (result) {
      result = child->serialize(writer) && result;
      writer->popSection();
    }
  }
  writer->popSection();
  return result;
}

bool DataList::deserializeMembers(IDeserializerHelper*) {
  m_specialItem = nullptr;
  return true;
}

void DataList::cloneMembers(DebuggerData* target) const {
  if (!target || !target->isKindOf(DataList::staticRtti()))
    return;
  for (const DebuggerData* child : m_children)
    if (child)
      target->appendChild(child->clone()); // a null clone is refused
  if (m_specialItem)
    target->setSpecialItem(m_specialItem->getSubKey());
}

// ---------------------------------------------------------------------------
// DataListWC

DataListWC::~DataListWC() {
  delete m_content;
  m_content = nullptr;
}

DebuggerData& DataListWC::operator=(const DebuggerData& other) {
  if (other.isKindOf(DataListWC::staticRtti())) {
    DataList::operator=(other);
    setContent(other.getContent());
  }
  return *this;
}

bool DataListWC::operator==(const DebuggerData& other) const {
  if (!other.isKindOf(DataListWC::staticRtti()) || !DataList::operator==(other))
    return false;
  const DataElement* theirs = other.getContent();
  if (!m_content || !theirs)
    return !m_content && !theirs;
  return *m_content == *theirs;
}

bool DataListWC::serialize(ISerializerHelper* writer) const {
  if (!writer->pushSection("DataListWC"))
    return false;
  const bool result = serializeMembers(writer);
  writer->popSection();
  return result;
}

bool DataListWC::serializeMembers(ISerializerHelper* writer) const {
  const bool listResult = DataList::serializeMembers(writer);
  if (!m_content)
    return listResult;
  const bool pushed = writer->pushSection("Content");
  if (!listResult || !pushed) {
    // A pushed section is still closed so that the writer stays balanced.
    if (pushed)
      writer->popSection();
    return false;
  }
  const bool result = m_content->serialize(writer);
  writer->popSection();
  return result;
}

bool DataListWC::deserializeMembers(IDeserializerHelper* reader) {
  return DataList::deserializeMembers(reader);
}

void DataListWC::cloneMembers(DebuggerData* target) const {
  if (!target || !target->isKindOf(DataListWC::staticRtti()))
    return;
  DataList::cloneMembers(target);
  if (!m_content)
    return;
  DebuggerData* copy = m_content->clone();
  if (copy && copy->isKindOf(DataElement::staticRtti())) {
    target->setContent(static_cast<const DataElement*>(copy));
  } else {
    delete copy;
    target->setContent(nullptr);
  }
}

} // namespace DbgData
} // namespace Vemo
