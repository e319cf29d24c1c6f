// The one pattern every concrete data class follows.
//
// A data class is mostly a list of fields: a key, a member, and how the field
// takes part in comparison, copying and the writer. The class states that
// list once, in its own source file, as a static template
//
//   template <class FieldVisitor>
//   void CurDbgPrompt::describeFields(FieldVisitor& field) {
//     field("PromptText", &CurDbgPrompt::m_PromptText);
//   }
//
// and the same list drives cloneMembers, operator=, operator==,
// serializeMembers and deserializeMembers, so the five cannot drift apart.
// Each of them handles the direct base first. The fields are listed in write
// order (which need not be the declaration order); serialization makes every
// call even after a failure and answers the AND of all results, and
// deserialization reads the same keys in the same order. Comparison has no
// side effects, so the order in which it visits the fields is immaterial.
//
// Deliberate differences are options on the field's own line:
//   field("ModValue", &C::m_ModifyValue);              key differs from member
//   field("Pending", &C::m_Pending, Field::notCompared);       left out of ==
//   field("Valid", &C::m_Valid, Field::notCloned);      copied by = only
//   field("Major", &C::m_Major, Field::notCopied | Field::notCompared);
//   field("OMPType", &C::m_OMPType, Field::as<unsigned long>);  writer type
//   field("Op", &C::m_Op, Field::as<unsigned int, int>);  written/read types
//   field("LineText", &C::m_text, Field::writtenAs(f));  one-way conversion
//   field("ArraySize", "ByteArray", &C::m_Bytes);  byte array: size and hex
// A class whose reader visits the keys in another order than its writer says
// so with DD_FIELD_READ_ORDER. A member of a type of the class's own travels
// through the writeValue/readValue (and, if copying is special, copyValue)
// overloads it declares next to the type.
//
// In the header:  class X : public DataElement { DD_DATA_CLASS(X, DataElement)
// ... }; In the source:  DD_DATA_CLASS_IMPL(X, "src/x.cpp") after
// describeFields. A class that must write one of the five operations by hand
// defines the other four with the DD_IMPL_* macros below.
#ifndef DBGDATA_DATACLASS_H
#define DBGDATA_DATACLASS_H

#include "Common/DDAssert.h"
#include "dbgdatakey.h"
#include "ddmanager.h"
#include "debuggerdata.h"
#include "hexdumphelper.h"
#include "serializerhelper.h"
#include "valuetypes.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>

namespace Vemo {
namespace DbgData {

namespace Field {

enum Flags : unsigned {
  Plain = 0,
  // Not part of operator==. On a byte array: its bytes are not compared,
  // its size still is.
  NotCompared = 1u << 0,
  NotCloned = 1u << 1,   // not copied by cloneMembers
  NotAssigned = 1u << 2, // not copied by operator=
  NotCopied = NotCloned | NotAssigned,
  // A bool that copying only ever sets: a false source leaves the target's
  // value as it is.
  CopiedWhenTrue = 1u << 3,
  // On a byte array: the bytes are not read when the size read is 0.
  BytesSkippedWhenEmpty = 1u << 4,
};

// A conversion of a string field's text on its way out or in.
typedef std::string (*StringConversion)(const std::string&);

struct Options {
  unsigned flags = Plain;
  StringConversion writtenAs = nullptr; // applied to the text written
  StringConversion readAs = nullptr;    // applied to the text read
};

constexpr Options operator|(Options a, Options b) {
  return Options{a.flags | b.flags, b.writtenAs ? b.writtenAs : a.writtenAs,
                 b.readAs ? b.readAs : a.readAs};
}

constexpr Options notCompared{NotCompared};
constexpr Options notCloned{NotCloned};
constexpr Options notAssigned{NotAssigned};
constexpr Options notCopied{NotCopied};
constexpr Options copiedWhenTrue{CopiedWhenTrue};
constexpr Options bytesSkippedWhenEmpty{BytesSkippedWhenEmpty};
// The writer gets conversion(value); the reader takes the text as it is.
constexpr Options writtenAs(StringConversion conversion) {
  return Options{Plain, conversion, nullptr};
}
// The member gets conversion(text read).
constexpr Options readAs(StringConversion conversion) {
  return Options{Plain, nullptr, conversion};
}

// The writer operation of a field whose member type is not the one it
// travels as: the value is converted to Written and written with that
// type's operation, read with Read's and converted back to the member's
// type. An enumeration with a signed underlying type written as unsigned
// long thus goes out widened with its sign (-1 as 18446744073709551615) and
// comes back narrowed to the same value.
template <class Written, class Read = Written> struct Wire {};
template <class Written, class Read = Written>
constexpr Wire<Written, Read> as{};

constexpr Options toOptions(Options options) { return options; }
template <class Written, class Read>
constexpr Options toOptions(Wire<Written, Read>) {
  return Options{};
}
template <class... Extra> constexpr Options optionsOf(Extra... extra) {
  return (Options{} | ... | toOptions(extra));
}

// The Wire among a field's extra arguments, if any.
template <class T, class... Extra> struct WireOf {
  static constexpr bool converted = false;
  typedef T Written;
  typedef T Read;
};
template <class T, class W, class R, class... Rest>
struct WireOf<T, Wire<W, R>, Rest...> {
  static constexpr bool converted = true;
  typedef W Written;
  typedef R Read;
};
template <class T, class First, class... Rest>
struct WireOf<T, First, Rest...> : WireOf<T, Rest...> {};

} // namespace Field

// One writer call per value type. Enumerations travel as signed ints unless
// the field says otherwise.
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

// How clone and assignment copy a member; a type of a class's own may
// overload it.
template <class T> void copyValue(T& target, const T& source) {
  target = source;
}

// The order in which a class's reader visits its keys, when it differs from
// the write order: DD_FIELD_READ_ORDER(Class, "Key1", "Key2", ...) in the
// class's source file, before DD_DATA_CLASS_IMPL. Every key of the field
// list appears exactly once.
template <class C> struct FieldReadOrder {
  static constexpr std::size_t count = 0;
  static constexpr const char* const* keys = nullptr;
};
#define DD_FIELD_READ_ORDER(Class, ...)                                        \
  template <> struct FieldReadOrder<Class> {                                   \
    static constexpr const char* keys[] = {__VA_ARGS__};                       \
    static constexpr std::size_t count = sizeof keys / sizeof keys[0];         \
  };

// The generic operations of a data class C, driven by C::describeFields.
// The *Fields functions cover C's own fields only (not its base); a class
// that embeds another data class's fields in its own section uses them.
template <class C> struct DataClassOps {
  struct Writer {
    const C& object;
    ISerializerHelper* writer;
    bool result;

    template <class T, class... Extra>
    void operator()(const char* key, T C::*member, Extra... extra) {
      typedef Field::WireOf<T, Extra...> Wire;
      const T& value = object.*member;
      bool written;
      if constexpr (Wire::converted) {
        written =
            writeValue(writer, key, static_cast<typename Wire::Written>(value));
      } else if constexpr (std::is_same<T, std::string>::value) {
        const Field::Options options = Field::optionsOf(extra...);
        written = options.writtenAs
                      ? writeValue(writer, key, options.writtenAs(value))
                      : writeValue(writer, key, value);
      } else {
        written = writeValue(writer, key, value);
      }
      result = written && result;
    }

    template <class... Extra>
    void operator()(const char* sizeKey, const char* bytesKey,
                    ByteArray C::*member, Extra...) {
      const ByteArray& bytes = object.*member;
      bool written = writeValue(writer, sizeKey, bytes.size());
      std::string text;
      written = bytes.toHex(text) && written; // false for an empty array
      written = writeValue(writer, bytesKey, text) && written;
      result = written && result;
    }
  };

  struct Reader {
    C& object;
    IDeserializerHelper* reader;
    bool result;
    // When set, only the field of this key is read (see FieldReadOrder).
    const char* wanted = nullptr;
    unsigned matched = 0;
    // A byte array's size, read before its bytes.
    unsigned int arraySize = 0;

    bool takes(const char* key) {
      if (wanted && std::strcmp(wanted, key) != 0)
        return false;
      ++matched;
      return true;
    }

    template <class T, class... Extra>
    void operator()(const char* key, T C::*member, Extra... extra) {
      if (!takes(key))
        return;
      typedef Field::WireOf<T, Extra...> Wire;
      T& value = object.*member;
      bool found;
      if constexpr (Wire::converted) {
        auto wire = static_cast<typename Wire::Read>(value);
        found = readValue(reader, key, wire);
        value = static_cast<T>(wire);
      } else {
        found = readValue(reader, key, value);
        if constexpr (std::is_same<T, std::string>::value) {
          const Field::Options options = Field::optionsOf(extra...);
          if (options.readAs)
            value = options.readAs(value);
        }
      }
      result = found && result;
    }

    template <class... Extra>
    void operator()(const char* sizeKey, const char* bytesKey,
                    ByteArray C::*member, Extra... extra) {
      ByteArray& bytes = object.*member;
      if (takes(sizeKey)) {
        arraySize = bytes.size();
        result = readValue(reader, sizeKey, arraySize) && result;
      }
      if (!takes(bytesKey))
        return;
      const Field::Options options = Field::optionsOf(extra...);
      if (arraySize == 0 && (options.flags & Field::BytesSkippedWhenEmpty)) {
        bytes.assign(nullptr, 0);
        return;
      }
      std::string text;
      bool found = readValue(reader, bytesKey, text);
      found = bytes.assignHex(text, arraySize) && found;
      result = found && result;
    }
  };

  struct Comparer {
    const C& left;
    const C& right;
    bool equal;

    template <class T, class... Extra>
    void operator()(const char*, T C::*member, Extra... extra) {
      if (equal && !(Field::optionsOf(extra...).flags & Field::NotCompared))
        equal = left.*member == right.*member;
    }
    template <class... Extra>
    void operator()(const char*, const char*, ByteArray C::*member,
                    Extra... extra) {
      if (!equal)
        return;
      equal = Field::optionsOf(extra...).flags & Field::NotCompared
                  ? (left.*member).size() == (right.*member).size()
                  : left.*member == right.*member;
    }
  };

  struct Copier {
    C& target;
    const C& source;
    unsigned skipped; // NotCloned or NotAssigned

    template <class T, class... Extra>
    void operator()(const char*, T C::*member, Extra... extra) {
      const unsigned flags = Field::optionsOf(extra...).flags;
      if (flags & skipped)
        return;
      if constexpr (std::is_same<T, bool>::value) {
        if (flags & Field::CopiedWhenTrue) {
          if (source.*member)
            target.*member = true;
          return;
        }
      }
      copyValue(target.*member, source.*member);
    }
    template <class... Extra>
    void operator()(const char*, const char*, ByteArray C::*member,
                    Extra... extra) {
      if (!(Field::optionsOf(extra...).flags & skipped))
        target.*member = source.*member;
    }
  };

  struct KeyCounter {
    std::size_t keys = 0;
    template <class T, class... Extra>
    void operator()(const char*, T C::*, Extra...) {
      ++keys;
    }
    template <class... Extra>
    void operator()(const char*, const char*, ByteArray C::*, Extra...) {
      keys += 2;
    }
  };

  static bool writeFields(const C& self, ISerializerHelper* writer) {
    Writer fields{self, writer, true};
    C::describeFields(fields);
    return fields.result;
  }
  static bool readFields(C& self, IDeserializerHelper* reader) {
    Reader fields{self, reader, true};
    if constexpr (FieldReadOrder<C>::count > 0) {
      KeyCounter counter;
      C::describeFields(counter);
      DD_ASSERT(counter.keys == FieldReadOrder<C>::count);
      for (const char* key : FieldReadOrder<C>::keys) {
        fields.wanted = key;
        fields.matched = 0;
        C::describeFields(fields);
        DD_ASSERT(fields.matched == 1);
      }
    } else {
      C::describeFields(fields);
    }
    return fields.result;
  }
  static void copyFields(C& target, const C& source, bool cloning) {
    Copier copier{target, source,
                  cloning ? unsigned(Field::NotCloned)
                          : unsigned(Field::NotAssigned)};
    C::describeFields(copier);
  }
  static bool fieldsEqual(const C& left, const C& right) {
    Comparer comparer{left, right, true};
    C::describeFields(comparer);
    return comparer.equal;
  }

  static void cloneMembers(const C& self, DebuggerData* target) {
    if (!target || !target->isKindOf(C::staticRtti()))
      return;
    self.C::BaseClass::cloneMembers(target);
    copyFields(static_cast<C&>(*target), self, true);
  }
  static DebuggerData& assign(C& self, const DebuggerData& other,
                              const char* sourceName, unsigned long line) {
    if (!other.isKindOf(C::staticRtti()))
      throwDDFatalError("Assign: class mismatch!", sourceName, line);
    self.C::BaseClass::operator=(other);
    copyFields(self, static_cast<const C&>(other), false);
    return self;
  }
  static bool equals(const C& self, const DebuggerData& other) {
    if (!other.isKindOf(C::staticRtti()))
      return false;
    if (!self.C::BaseClass::operator==(other))
      return false;
    return fieldsEqual(self, static_cast<const C&>(other));
  }
  static bool serializeMembers(const C& self, ISerializerHelper* writer) {
    const bool base = self.C::BaseClass::serializeMembers(writer);
    return writeFields(self, writer) && base;
  }
  static bool deserializeMembers(C& self, IDeserializerHelper* reader) {
    const bool base = self.C::BaseClass::deserializeMembers(reader);
    return readFields(self, reader) && base;
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

// Pass-through accessors onto the parts of an Address member: Segment,
// Offset, Length (the aux part), Type (the mode) and Size (the bit width).
// The getters answer references into the member; the setters overwrite one
// part. They add no fields and no keys.
#define DD_ADDRESS_PART_ACCESSORS(addressMember)                               \
  virtual const unsigned long long& getSegment() const {                       \
    return addressMember.getSegment();                                         \
  }                                                                            \
  virtual void setSegment(const unsigned long long& segment) {                 \
    addressMember.setSegment(segment);                                         \
  }                                                                            \
  virtual const unsigned long long& getOffset() const {                        \
    return addressMember.getOffset();                                          \
  }                                                                            \
  virtual void setOffset(const unsigned long long& offset) {                   \
    addressMember.setOffset(offset);                                           \
  }                                                                            \
  virtual const unsigned long long& getLength() const {                        \
    return addressMember.getAux();                                             \
  }                                                                            \
  virtual void setLength(const unsigned long long& length) {                   \
    addressMember.setAux(length);                                              \
  }                                                                            \
  virtual const ::Vemo::DbgData::AddressType& getType() const {                \
    return addressMember.getMode();                                            \
  }                                                                            \
  virtual void setType(const ::Vemo::DbgData::AddressType& type) {             \
    addressMember.setMode(type);                                               \
  }                                                                            \
  virtual const ::Vemo::DbgData::AddressSize& getSize() const {                \
    return addressMember.getBitWidth();                                        \
  }                                                                            \
  virtual void setSize(const ::Vemo::DbgData::AddressSize& size) {             \
    addressMember.setBitWidth(size);                                           \
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
  DD_IMPL_CLONE_MEMBERS(Class)                                                 \
  DD_IMPL_ASSIGN(Class, SourceName)                                            \
  DD_IMPL_EQUALS(Class)                                                        \
  DD_IMPL_SERIALIZE_MEMBERS(Class)                                             \
  DD_IMPL_DESERIALIZE_MEMBERS(Class)

// The five operations one by one, for a class that writes one of them by
// hand (with DD_DEFINE_IDENTITY and, if bound, DD_BIND_CLASS_ROW).
#define DD_IMPL_CLONE_MEMBERS(Class)                                           \
  void Class::cloneMembers(::Vemo::DbgData::DebuggerData* target) const {      \
    ::Vemo::DbgData::DataClassOps<Class>::cloneMembers(*this, target);         \
  }
#define DD_IMPL_ASSIGN(Class, SourceName)                                      \
  ::Vemo::DbgData::DebuggerData& Class::operator=(                             \
      const ::Vemo::DbgData::DebuggerData& other) {                            \
    return ::Vemo::DbgData::DataClassOps<Class>::assign(*this, other,          \
                                                        SourceName, __LINE__); \
  }
#define DD_IMPL_EQUALS(Class)                                                  \
  bool Class::operator==(const ::Vemo::DbgData::DebuggerData& other) const {   \
    return ::Vemo::DbgData::DataClassOps<Class>::equals(*this, other);         \
  }
#define DD_IMPL_SERIALIZE_MEMBERS(Class)                                       \
  bool Class::serializeMembers(::Vemo::DbgData::ISerializerHelper* writer)     \
      const {                                                                  \
    return ::Vemo::DbgData::DataClassOps<Class>::serializeMembers(*this,       \
                                                                  writer);     \
  }
#define DD_IMPL_DESERIALIZE_MEMBERS(Class)                                     \
  bool Class::deserializeMembers(                                              \
      ::Vemo::DbgData::IDeserializerHelper* reader) {                          \
    return ::Vemo::DbgData::DataClassOps<Class>::deserializeMembers(*this,     \
                                                                    reader);   \
  }

#endif
