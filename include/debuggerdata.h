// The object model core: DebuggerData, the abstract base of every data
// object; DataElement, the base of all leaves; DataList and DataListWC, the
// lists that own their children (and, for DataListWC, a content object).
#ifndef DBGDATA_DEBUGGERDATA_H
#define DBGDATA_DEBUGGERDATA_H

#include "Common/RTTITempl.h"
#include "ddfatalerror.h"
#include "serializerhelper.h"

#include <list>
#include <string>

namespace Vemo {
namespace DbgData {

class DebuggerData;
class DataElement;

// The children of a list, in insertion order. The pointers are owned by the
// list that holds the container.
typedef std::list<const DebuggerData*> DebuggerDataList;

// Declares the class-identity boilerplate of a data class: the nested
// identity class RTTI_<Class>, its static instance s_RTTI_<Class> and
// getRtti(). DD_DEFINE_IDENTITY (in the class's source file) defines them.
#define DD_DECLARE_IDENTITY(Class)                                             \
public:                                                                        \
  class RTTI_##Class                                                           \
      : public ::Vemo::DbgData::RTTITempl<::Vemo::DbgData::DebuggerData> {     \
  public:                                                                      \
    RTTI_##Class();                                                            \
    ::Vemo::DbgData::DebuggerData* createOwnerInstance() const override;       \
  };                                                                           \
  static RTTI_##Class s_RTTI_##Class;                                          \
  static const ::Vemo::DbgData::RTTITempl<::Vemo::DbgData::DebuggerData>*      \
  staticRtti() {                                                               \
    return &s_RTTI_##Class;                                                    \
  }                                                                            \
  const ::Vemo::DbgData::RTTITempl<::Vemo::DbgData::DebuggerData>* getRtti()   \
      const override {                                                         \
    return &s_RTTI_##Class;                                                    \
  }

// Defines the identity of Class, registered under its own name with Base as
// its one parent. The static object is constructed where this stands, so the
// order of these lines in a source file is the order of the class ids.
#define DD_DEFINE_IDENTITY_WITH(Class, Base, Creation)                         \
  Class::RTTI_##Class::RTTI_##Class()                                          \
      : ::Vemo::DbgData::RTTITempl<::Vemo::DbgData::DebuggerData>(#Class) {    \
    addParentRtti(Base::staticRtti());                                         \
  }                                                                            \
  ::Vemo::DbgData::DebuggerData* Class::RTTI_##Class::createOwnerInstance()    \
      const {                                                                  \
    return Creation;                                                           \
  }                                                                            \
  Class::RTTI_##Class Class::s_RTTI_##Class;

#define DD_DEFINE_IDENTITY(Class, Base)                                        \
  DD_DEFINE_IDENTITY_WITH(Class, Base, new Class())

// Abstract base of every data object: a class name (the registered name the
// factory created it under) and a sub key (its name inside its parent list).
class DebuggerData {
public:
  class RTTI_DebuggerData : public RTTITempl<DebuggerData> {
  public:
    RTTI_DebuggerData();
    DebuggerData* createOwnerInstance() const override; // always null
  };
  static RTTI_DebuggerData s_RTTI_DebuggerData;
  static const RTTITempl<DebuggerData>* staticRtti() {
    return &s_RTTI_DebuggerData;
  }

  virtual const RTTITempl<DebuggerData>* getRtti() const {
    return &s_RTTI_DebuggerData;
  }
  virtual ~DebuggerData() = default;

  // New deep copy owned by the caller (null when the factory cannot make
  // the class).
  virtual DebuggerData* clone() const = 0;
  // Writes the object's own section.
  virtual bool serialize(ISerializerHelper* writer) const = 0;
  virtual bool deserializeMembers(IDeserializerHelper* reader) = 0;

  virtual const std::string& getClassName() const { return m_className; }
  virtual void setClassName(const std::string& name) { m_className = name; }
  virtual const std::string& getSubKey() const { return m_subKey; }
  virtual void setSubKey(const std::string& subKey) { m_subKey = subKey; }

  virtual const DebuggerData* getEngineData() const { return nullptr; }
  // Takes ownership of engineData (leaves only; lists ignore it).
  virtual void setEngineData(const DebuggerData* engineData) = 0;

  // The children, or null for a leaf.
  virtual DebuggerDataList* getList() = 0;
  // First child with exactly this sub key, or null.
  virtual const DebuggerData* getChild(const std::string& subKey) const = 0;
  // Follows a relative path of sub keys separated by "/". The path must not
  // be null or empty and must not start with or contain an empty element.
  virtual const DebuggerData* getDescendant(const char* pszRelKey) const;
  // Takes ownership of child on success; a leaf refuses (false) and the
  // caller keeps it.
  virtual bool appendChild(const DebuggerData* child) = 0;

  // The special item is a marked child, not owned separately.
  virtual const DebuggerData* getSpecialItem() const { return nullptr; }
  virtual void setSpecialItem(const DebuggerData* item) { (void)item; }
  virtual void setSpecialItem(const std::string& subKey) = 0;

  virtual const DataElement* getContent() const { return nullptr; }
  virtual void setContent(const DataElement* content) = 0;

  virtual DebuggerData& operator=(const DebuggerData& other) {
    (void)other;
    return *this;
  }
  // One-sided: a == b checks only that b is a kind of a's class.
  virtual bool operator==(const DebuggerData& other) const = 0;
  bool operator!=(const DebuggerData& other) const { return !(*this == other); }

  // Serializes the object into a text writer and discards the text.
  virtual void dump();

  virtual bool serializeMembers(ISerializerHelper* writer) const = 0;
  virtual void cloneMembers(DebuggerData* target) const = 0;

  bool isKindOf(const RTTITempl<DebuggerData>* rtti) const {
    return getRtti()->IsKindOf(rtti, false);
  }

protected:
  DebuggerData() = default;
  // Objects own children and engine data by pointer; copying them is what
  // clone() and operator= are for.
  DebuggerData(const DebuggerData&) = delete;

private:
  std::string m_className;
  std::string m_subKey;
};

// Base of every leaf object. Owns an optional engine-data object private to
// the debugger engine that produced the element.
class DataElement : public DebuggerData {
  DD_DECLARE_IDENTITY(DataElement)

public:
  ~DataElement() override;

  DebuggerData* clone() const override;
  bool serialize(ISerializerHelper* writer) const override;
  bool deserializeMembers(IDeserializerHelper* reader) override;

  const DebuggerData* getEngineData() const override { return m_engineData; }
  // Takes ownership; a previously stored object is not freed.
  void setEngineData(const DebuggerData* engineData) override {
    m_engineData = engineData;
  }

  DebuggerDataList* getList() override { return nullptr; }
  const DebuggerData* getChild(const std::string&) const override {
    return nullptr;
  }
  bool appendChild(const DebuggerData*) override { return false; }
  void setSpecialItem(const DebuggerData*) override {}
  void setSpecialItem(const std::string&) override {}
  void setContent(const DataElement*) override {}

  // Copies class name, sub key and the engine-data pointer itself: both
  // objects then share one engine-data object.
  DebuggerData& operator=(const DebuggerData& other) override;
  DataElement& operator=(const DataElement& other) {
    operator=(static_cast<const DebuggerData&>(other));
    return *this;
  }
  // Class names and sub keys; engine data is not compared.
  bool operator==(const DebuggerData& other) const override;

  bool serializeMembers(ISerializerHelper* writer) const override;
  void cloneMembers(DebuggerData* target) const override;

protected:
  DataElement() = default;

private:
  const DebuggerData* m_engineData = nullptr;
};

// A list of owned children with an optional special (marked) child.
class DataList : public DebuggerData {
  DD_DECLARE_IDENTITY(DataList)

public:
  DataList() = default;
  ~DataList() override;

  DebuggerData* clone() const override;
  bool serialize(ISerializerHelper* writer) const override;
  // Only clears the special item: the reader attaches children itself.
  bool deserializeMembers(IDeserializerHelper* reader) override;

  void setEngineData(const DebuggerData*) override {}

  // The container itself: callers may reorder, remove (taking ownership)
  // and append; a null pointer put into it is skipped by every operation.
  DebuggerDataList* getList() override { return &m_children; }
  virtual const DebuggerDataList* getConstList() const { return &m_children; }
  const DebuggerData* getChild(const std::string& subKey) const override;
  bool appendChild(const DebuggerData* child) override;

  const DebuggerData* getSpecialItem() const override { return m_specialItem; }
  void setSpecialItem(const DebuggerData* item) override {
    m_specialItem = item;
  }
  // Marks the last child with this sub key; no match leaves it unchanged.
  void setSpecialItem(const std::string& subKey) override;

  void setContent(const DataElement*) override {}

  // Copies class name and sub key only: children and special item of this
  // list stay as they are.
  DebuggerData& operator=(const DebuggerData& other) override;
  DataList& operator=(const DataList& other) {
    operator=(static_cast<const DebuggerData&>(other));
    return *this;
  }
  // Names and the children position by position; not the special item.
  bool operator==(const DebuggerData& other) const override;

  bool serializeMembers(ISerializerHelper* writer) const override;
  void cloneMembers(DebuggerData* target) const override;

private:
  DebuggerDataList m_children;
  const DebuggerData* m_specialItem = nullptr;
};

// A list with one owned content object describing the list as a whole.
class DataListWC : public DataList {
  DD_DECLARE_IDENTITY(DataListWC)

public:
  DataListWC() = default;
  ~DataListWC() override;

  bool serialize(ISerializerHelper* writer) const override;
  bool deserializeMembers(IDeserializerHelper* reader) override;

  const DataElement* getContent() const override { return m_content; }
  // Takes ownership; a previous content is not freed.
  void setContent(const DataElement* content) override { m_content = content; }

  // DataList's assignment, then the content pointer is shared.
  DebuggerData& operator=(const DebuggerData& other) override;
  DataListWC& operator=(const DataListWC& other) {
    operator=(static_cast<const DebuggerData&>(other));
    return *this;
  }
  // DataList's comparison and the contents; a missing content is equal only
  // to a missing content.
  bool operator==(const DebuggerData& other) const override;

  bool serializeMembers(ISerializerHelper* writer) const override;
  void cloneMembers(DebuggerData* target) const override;

private:
  const DataElement* m_content = nullptr;
};

} // namespace DbgData
} // namespace Vemo

#endif
