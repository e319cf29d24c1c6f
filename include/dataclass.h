// The one pattern every concrete data class follows.
//
// A data class is mostly a list of fields: a key, a member, and whether the
// field takes part in comparison and copying. The class states that list
// once, in its own source file, as a static template
//
//   template <class FieldVisitor>
//   void CurDbgPrompt::describeFields(FieldVisitor& field) {
//     field("PromptText", &CurDbgPrompt::m_PromptText);
//   }
//
// and the same list drives cloneMembers, operator=, operator==,
// serializeMembers and deserializeMembers, so the five cannot drift apart.
// Each of them handles the direct base first. Serialization writes the fields
// in the listed order, makes every call even after a failure, and answers the
// AND of all results.
//
// Deliberate differences are options on the field's own line:
//   field("ModValue", &C::m_ModifyValue);                 key differs from
//   member field("Bytes", &C::m_bytes, Field::notCompared);      left out of ==
//   field("LineText", &C::m_text, Field::writtenAs(f));   one-way conversion
//
// In the header:  class X : public DataElement { DD_DATA_CLASS(X, DataElement)
// ... }; In the source:  DD_DATA_CLASS_IMPL(X, "src/x.cpp") after
// describeFields.
#ifndef DBGDATA_DATACLASS_H
#define DBGDATA_DATACLASS_H

#include "dbgdatakey.h"
#include "ddmanager.h"
#include "debuggerdata.h"
#include "serializerhelper.h"
#include "valuetypes.h"

#include <string>
#include <type_traits>

namespace Vemo {
namespace DbgData {

namespace Field {

enum Flags : unsigned {
  Plain = 0,
  NotCompared = 1u << 0, // not part of operator==
  NotCopied = 1u << 1,   // not copied by clone or operator=
};

// A conversion applied to a string field when it is written; the reader
// takes the written text as it is, so the conversion is not undone.
typedef std::string (*StringConversion)(const std::string&);

struct Options {
  unsigned flags = Plain;
  StringConversion writtenAs = nullptr;
};

constexpr Options notCompared{NotCompared, nullptr};
constexpr Options notCopied{NotCopied, nullptr};
constexpr Options writtenAs(StringConversion conversion) {
  return Options{Plain, conversion};
}

} // namespace Field

// One writer call per value type. Enumerations travel as signed ints.
// clang-format off
inline bool writeValue(ISerializerHelper* w, const std::string& k, bool v) { return w->setBool(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, int v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, unsigned int v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, long v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, unsigned long v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, long long v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, unsigned long long v) { return w->setInt(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, double v) { return w->setFloat(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, const std::string& v) { return w->setString(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, const Address& v) { return w->setAddress(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, const Scope& v) { return w->setScope(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, const DbgDataKey& v) { return w->setDbgDataKey(k, v); }
inline bool writeValue(ISerializerHelper* w, const std::string& k, const StringVector& v) { return v.serialize(k, w); }
// clang-format on
template <class E, std::enable_if_t<std::is_enum<E>::value, int> = 0>
bool writeValue(ISerializerHelper* w, const std::string& k, E v) {
  return w->setInt(k, static_cast<int>(v));
}

// The matching reader calls. A value whose key is absent keeps what the
// reader leaves in it (the member's default, or 0 for a missing section).
// clang-format off
inline bool readValue(IDeserializerHelper* r, const std::string& k, bool& v) { return r->getBool(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, int& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, unsigned int& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, long& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, unsigned long& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, long long& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, unsigned long long& v) { return r->getInt(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, double& v) { return r->getFloat(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, std::string& v) { return r->getString(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, Address& v) { return r->getAddress(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, Scope& v) { return r->getScope(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, DbgDataKey& v) { return r->getDbgDataKey(k, &v); }
inline bool readValue(IDeserializerHelper* r, const std::string& k, StringVector& v) { return v.deserialize(k, r); }
// clang-format on
template <class E, std::enable_if_t<std::is_enum<E>::value, int> = 0>
bool readValue(IDeserializerHelper* r, const std::string& k, E& v) {
  // Every enumeration carried by data objects has a fixed underlying type,
  // so any int read from outside is a valid value of it.
  static_assert(sizeof(E) >= sizeof(int), "enumeration too narrow for int");
  int value = static_cast<int>(v);
  const bool found = r->getInt(k, &value);
  v = static_cast<E>(value);
  return found;
}

// The generic operations of a data class C, driven by C::describeFields.
template <class C> struct DataClassOps {
  struct Writer {
    const C& object;
    ISerializerHelper* writer;
    bool result;
    template <class T>
    void operator()(const char* key, T C::*member,
                    Field::Options options = {}) {
      bool written;
      if constexpr (std::is_same<T, std::string>::value) {
        written =
            options.writtenAs
                ? writeValue(writer, key, options.writtenAs(object.*member))
                : writeValue(writer, key, object.*member);
      } else {
        written = writeValue(writer, key, object.*member);
      }
      result = written && result;
    }
  };
  struct Reader {
    C& object;
    IDeserializerHelper* reader;
    bool result;
    template <class T>
    void operator()(const char* key, T C::*member, Field::Options = {}) {
      result = readValue(reader, key, object.*member) && result;
    }
  };
  struct Comparer {
    const C& left;
    const C& right;
    bool equal;
    template <class T>
    void operator()(const char*, T C::*member, Field::Options options = {}) {
      if (equal && !(options.flags & Field::NotCompared))
        equal = left.*member == right.*member;
    }
  };
  struct Copier {
    C& target;
    const C& source;
    template <class T>
    void operator()(const char*, T C::*member, Field::Options options = {}) {
      if (!(options.flags & Field::NotCopied))
        target.*member = source.*member;
    }
  };

  static void cloneMembers(const C& self, DebuggerData* target) {
    if (!target || !target->isKindOf(C::staticRtti()))
      return;
    self.C::BaseClass::cloneMembers(target);
    Copier copier{static_cast<C&>(*target), self};
    C::describeFields(copier);
  }
  static DebuggerData& assign(C& self, const DebuggerData& other,
                              const char* sourceName, unsigned long line) {
    if (!other.isKindOf(C::staticRtti()))
      throwDDFatalError("Assign: class mismatch!", sourceName, line);
    self.C::BaseClass::operator=(other);
    Copier copier{self, static_cast<const C&>(other)};
    C::describeFields(copier);
    return self;
  }
  static bool equals(const C& self, const DebuggerData& other) {
    if (!other.isKindOf(C::staticRtti()))
      return false;
    if (!self.C::BaseClass::operator==(other))
      return false;
    Comparer comparer{self, static_cast<const C&>(other), true};
    C::describeFields(comparer);
    return comparer.equal;
  }
  static bool serializeMembers(const C& self, ISerializerHelper* writer) {
    Writer fields{self, writer, self.C::BaseClass::serializeMembers(writer)};
    C::describeFields(fields);
    return fields.result;
  }
  static bool deserializeMembers(C& self, IDeserializerHelper* reader) {
    Reader fields{self, reader, self.C::BaseClass::deserializeMembers(reader)};
    C::describeFields(fields);
    return fields.result;
  }
};

} // namespace DbgData
} // namespace Vemo

// Pass-through accessors onto a Scope member that serves as a source
// position: its address, its key (the source file's full key), its first
// number (line) and its second number (column). They add no fields and no
// keys: the parts travel, compare and copy with the Scope itself.
#define DD_SCOPE_POSITION_ACCESSORS(scopeMember)                               \
  virtual const ::Vemo::DbgData::Address& getAddress() const {                 \
    return scopeMember.getAddress();                                           \
  }                                                                            \
  virtual void setAddress(const ::Vemo::DbgData::Address& address) {           \
    scopeMember.setAddress(address);                                           \
  }                                                                            \
  virtual const ::Vemo::DbgData::DbgDataKey& getSrcFullKey() const {           \
    return scopeMember.getKey();                                               \
  }                                                                            \
  virtual void setSrcFullKey(const ::Vemo::DbgData::DbgDataKey& key) {         \
    scopeMember.setKey(key);                                                   \
  }                                                                            \
  virtual unsigned long getSrcLine() const {                                   \
    return scopeMember.getNumber1();                                           \
  }                                                                            \
  virtual void setSrcLine(unsigned long line) {                                \
    scopeMember.setNumber1(line);                                              \
  }                                                                            \
  virtual unsigned long getSrcColumn() const {                                 \
    return scopeMember.getNumber2();                                           \
  }                                                                            \
  virtual void setSrcColumn(unsigned long column) {                            \
    scopeMember.setNumber2(column);                                            \
  }

// Declares the identity and the pattern's operations of a data class.
#define DD_DATA_CLASS(Class, Base)                                             \
  DD_DECLARE_IDENTITY(Class)                                                   \
                                                                               \
public:                                                                        \
  typedef Base BaseClass;                                                      \
  void cloneMembers(::Vemo::DbgData::DebuggerData* target) const override;     \
  ::Vemo::DbgData::DebuggerData& operator=(                                    \
      const ::Vemo::DbgData::DebuggerData& other) override;                    \
  Class& operator=(const Class& other) {                                       \
    operator=(static_cast<const ::Vemo::DbgData::DebuggerData&>(other));       \
    return *this;                                                              \
  }                                                                            \
  bool operator==(const ::Vemo::DbgData::DebuggerData& other) const override;  \
  bool serializeMembers(::Vemo::DbgData::ISerializerHelper* writer)            \
      const override;                                                          \
  bool deserializeMembers(::Vemo::DbgData::IDeserializerHelper* reader)        \
      override;                                                                \
                                                                               \
private:                                                                       \
  friend struct ::Vemo::DbgData::DataClassOps<Class>;                          \
  template <class FieldVisitor>                                                \
  static void describeFields(FieldVisitor& field);                             \
                                                                               \
public:

// Binds Class's identity to a row of the manager's class table at load time,
// so that the factory creates Class for that row's class name.
#define DD_BIND_CLASS_ROW(RowId, Class)                                        \
  [[maybe_unused]] static const bool s_rowBound_##RowId =                      \
      ::Vemo::DbgData::DbgDataManager::bindClassIdentity(                      \
          ::Vemo::DbgData::RowId, Class::staticRtti());

// Defines the identity and the pattern's operations, and binds the class to
// the row of its own name (DDID_<Class>). SourceName is the file named by
// the class's fatal errors (for example "src/consoleiodata.cpp").
#define DD_DATA_CLASS_IMPL(Class, SourceName)                                  \
  DD_DATA_CLASS_IMPL_UNBOUND(Class, SourceName)                                \
  DD_BIND_CLASS_ROW(DDID_##Class, Class)

// The same for a class that the factory must not create under its own row
// (the rows of classes such as SymbolListContent or WatchPointItem stay
// unbound), or that has no row of its own name; bind it to the rows that
// create it, if any, with DD_BIND_CLASS_ROW.
#define DD_DATA_CLASS_IMPL_UNBOUND(Class, SourceName)                          \
  DD_DEFINE_IDENTITY(Class, Class::BaseClass)                                  \
  void Class::cloneMembers(::Vemo::DbgData::DebuggerData* target) const {      \
    ::Vemo::DbgData::DataClassOps<Class>::cloneMembers(*this, target);         \
  }                                                                            \
  ::Vemo::DbgData::DebuggerData& Class::operator=(                             \
      const ::Vemo::DbgData::DebuggerData& other) {                            \
    return ::Vemo::DbgData::DataClassOps<Class>::assign(*this, other,          \
                                                        SourceName, __LINE__); \
  }                                                                            \
  bool Class::operator==(const ::Vemo::DbgData::DebuggerData& other) const {   \
    return ::Vemo::DbgData::DataClassOps<Class>::equals(*this, other);         \
  }                                                                            \
  bool Class::serializeMembers(::Vemo::DbgData::ISerializerHelper* writer)     \
      const {                                                                  \
    return ::Vemo::DbgData::DataClassOps<Class>::serializeMembers(*this,       \
                                                                  writer);     \
  }                                                                            \
  bool Class::deserializeMembers(                                              \
      ::Vemo::DbgData::IDeserializerHelper* reader) {                          \
    return ::Vemo::DbgData::DataClassOps<Class>::deserializeMembers(*this,     \
                                                                    reader);   \
  }

#endif
