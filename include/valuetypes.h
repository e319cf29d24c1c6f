// Value types carried as members by many data classes: Address, Scope and
// StringVector, each with its own text forms.
#ifndef DBGDATA_VALUETYPES_H
#define DBGDATA_VALUETYPES_H

#include "dbgdatakey.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Vemo {
namespace DbgData {

class ISerializerHelper;
class IDeserializerHelper;

// Addressing mode of an Address: 0 to 3 are modes, 4 means "not set".
typedef std::uint32_t AddressType;
// Width in bits of an Address's offset.
typedef std::int32_t AddressSize;

// A target address with its addressing mode and offset width.
// Ordering and equality look at segment, offset and aux only: mode and width
// take no part, so two addresses differing only in those are equal.
class Address {
public:
  Address() = default;
  Address(unsigned long long segment, unsigned long long offset,
          unsigned long long aux, AddressType mode, AddressSize bitWidth)
      : m_segment(segment), m_offset(offset), m_aux(aux), m_mode(mode),
        m_bitWidth(bitWidth) {}
  Address(const Address&) = default;
  virtual ~Address() = default;

  // New copy owned by the caller.
  virtual Address* clone() const;
  // -1, 0 or 1 by segment, then offset, then aux.
  virtual int compare(const Address& other) const;
  // Display text for people (mode 2 shows the segment; aux is never shown).
  virtual void print(std::string& text) const;
  // Storage text "Address( mode width segment offset aux )Address".
  virtual void serialize(std::string& text) const;
  // Accepts a storage text with mode below 4 and width 8..128; otherwise
  // answers false and leaves the address unchanged.
  virtual bool deserialize(const std::string& text);

  virtual Address& operator=(const Address& other);
  virtual bool operator==(const Address& other) const;
  virtual bool operator<(const Address& other) const;
  virtual bool operator>(const Address& other) const;
  virtual bool operator<=(const Address& other) const;
  virtual bool operator>=(const Address& other) const;
  virtual bool operator!=(const Address& other) const;

  // The getters answer references into the address, so that data classes
  // can pass them through unchanged.
  const unsigned long long& getSegment() const { return m_segment; }
  void setSegment(unsigned long long v) { m_segment = v; }
  const unsigned long long& getOffset() const { return m_offset; }
  void setOffset(unsigned long long v) { m_offset = v; }
  const unsigned long long& getAux() const { return m_aux; }
  void setAux(unsigned long long v) { m_aux = v; }
  // 0 to 3 are modes, 4 means "not set"; mode 2 is the segmented form.
  const AddressType& getMode() const { return m_mode; }
  void setMode(AddressType v) { m_mode = v; }
  // Width of the offset in bits.
  const AddressSize& getBitWidth() const { return m_bitWidth; }
  void setBitWidth(AddressSize v) { m_bitWidth = v; }

private:
  unsigned long long m_segment = 0;
  unsigned long long m_offset = 0;
  unsigned long long m_aux = 0;
  AddressType m_mode = 4;
  AddressSize m_bitWidth = 32;
};

// A position: an address, the full key of the object it belongs to, and two
// numbers (for source positions: line and column).
class Scope {
public:
  Scope() = default;
  Scope(const Address& address, const DbgDataKey& key, unsigned long number1,
        unsigned long number2)
      : m_address(address), m_key(key), m_number1(number1), m_number2(number2) {
  }
  Scope(const Scope&) = default;
  virtual ~Scope() = default;

  virtual Scope* clone() const;
  virtual void print(std::string& text) const;
  // "Scope( <address text> <hex of key text and its NUL> n1 n2 )Scope".
  virtual void serialize(std::string& text) const;
  // Always answers true; parts that do not parse come out as defaults.
  virtual bool deserialize(const std::string& text);
  virtual Scope& operator=(const Scope& other);
  virtual bool operator==(const Scope& other) const;
  virtual bool operator!=(const Scope& other) const;

  const Address& getAddress() const { return m_address; }
  void setAddress(const Address& v) { m_address = v; }
  const DbgDataKey& getKey() const { return m_key; }
  void setKey(const DbgDataKey& v) { m_key = v; }
  const unsigned long& getNumber1() const { return m_number1; }
  void setNumber1(unsigned long v) { m_number1 = v; }
  const unsigned long& getNumber2() const { return m_number2; }
  void setNumber2(unsigned long v) { m_number2 = v; }

private:
  Address m_address;
  DbgDataKey m_key;
  unsigned long m_number1 = 0;
  unsigned long m_number2 = 0;
};

// An ordered list of strings, stored through a writer as "<name>_Size" and
// one entry per item ("<name>_0", "<name>_0x1", ...).
class StringVector {
public:
  StringVector() = default;
  StringVector(const StringVector&) = default;
  virtual ~StringVector() = default;

  virtual StringVector* clone() const;
  virtual bool deserialize(const std::string& name,
                           IDeserializerHelper* reader);
  virtual bool serialize(const std::string& name,
                         ISerializerHelper* writer) const;
  virtual StringVector& operator=(const StringVector& other);
  virtual bool operator==(const StringVector& other) const;
  virtual bool operator!=(const StringVector& other) const;
  virtual void addItem(const std::string& item);
  // No range check: the index must be below getSize().
  virtual const std::string& getItem(unsigned long index) const;
  virtual unsigned long getSize() const;
  // Index of the first equal item, or all bits set when there is none.
  virtual unsigned long find(const std::string& item) const;

private:
  std::vector<std::string> m_items;
};

std::ostream& operator<<(std::ostream& out, const Address& address);
std::ostream& operator<<(std::ostream& out, const Scope& scope);
// Reads a list's stored length from countKey into *count, for a list whose
// items are values of the current section. A list keeps its stored length
// when some items are missing (they read as empty), but only within reason:
// the count is refused (false, *count set to 0) when it exceeds the values
// the section holds by more than kMissingListItems, or, with a reader that
// cannot count its values (no IValueCount), when it exceeds kMaxListItems.
// Otherwise the answer is the reader's answer for the key.
constexpr unsigned long kMissingListItems = 16;
constexpr unsigned long kMaxListItems = 1ul << 20;
bool readListCount(const IDeserializerHelper* reader,
                   const std::string& countKey, unsigned long* count);

std::ostream& operator<<(std::ostream& out, const StringVector& vector);
// Reads the seven words of an address's storage text.
std::istream& operator>>(std::istream& in, Address& address);
// Reads one word only; since a scope's storage text holds blanks, this
// resets the scope to defaults. Read scopes with deserialize() instead.
std::istream& operator>>(std::istream& in, Scope& scope);

} // namespace DbgData
} // namespace Vemo

#endif
