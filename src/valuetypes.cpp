#include "valuetypes.h"

#include "ddfatalerror.h"
#include "hexdumphelper.h"
#include "serializerhelper.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <istream>
#include <ostream>
#include <sstream>

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSourceName = "src/valuetypes.cpp";

// Appends value in the given base (lower-case digits, no prefix).
template <class T>
void appendNumber(std::string& text, T value, int base = 10) {
  char digits[72];
  const std::to_chars_result result =
      std::to_chars(digits, digits + sizeof digits, value, base);
  text.append(digits, result.ptr);
}

// Appends value as an output stream with showbase, hex, internal adjustment,
// fill '0' and the given field width writes it: "0x" then the digits,
// zero-padded between prefix and digits up to the width. Zero gets no prefix
// and so comes out as zeros filling the whole field.
void appendPaddedHex(std::string& text, std::uint64_t value,
                     std::string::size_type width) {
  if (value == 0) {
    text.append(std::max<std::string::size_type>(width, 1), '0');
    return;
  }
  char digits[16];
  const std::to_chars_result result =
      std::to_chars(digits, digits + sizeof digits, value, 16);
  const std::string::size_type count = result.ptr - digits;
  text += "0x";
  if (count + 2 < width)
    text.append(width - 2 - count, '0');
  text.append(digits, count);
}

// Reads one value; on failure the part keeps its default (the stream would
// store 0 or a saturated value, which is not what the caller wants), and the
// failed stream makes every later part keep its default too.
template <class T> void readPart(std::istream& in, T& part) {
  T value{};
  if (in >> value)
    part = value;
}

// The text between the first opening and the first closing marker, starting
// skip characters after the opening marker's start. Empty when a marker is
// missing or the closing marker comes too early.
std::string framedText(const std::string& text, const char* opening,
                       const char* closing, std::string::size_type skip) {
  const std::string::size_type open = text.find(opening);
  const std::string::size_type close = text.find(closing);
  if (open == std::string::npos || close == std::string::npos ||
      close < open + skip)
    return std::string();
  return text.substr(open + skip, close - (open + skip));
}

// A cursor over the exact text that Address::serialize and Scope::serialize
// write: single blanks, numbers without sign or prefix where the writer
// puts none. Reading that form needs no stream; any other text (more
// blanks, other white space, signs, prefixes, numbers out of range, text
// around the frame) makes a step fail, and the caller then reads it through
// the stream, whose results the fast steps match on the exact form.
struct StoredText {
  const char* p;
  const char* end;

  bool literal(const char* text, std::size_t size) {
    if (static_cast<std::size_t>(end - p) < size ||
        std::memcmp(p, text, size) != 0)
      return false;
    p += size;
    return true;
  }
  template <std::size_t N> bool literal(const char (&text)[N]) {
    return literal(text, N - 1);
  }
  template <class T> bool number(T& value, int base) {
    const std::from_chars_result result = std::from_chars(p, end, value, base);
    if (result.ec != std::errc() || result.ptr == p)
      return false;
    p = result.ptr;
    return true;
  }
  // Mode, width, segment, offset and aux of "Address( m w s o a )Address".
  bool address(AddressType& mode, AddressSize& width,
               unsigned long long& segment, unsigned long long& offset,
               unsigned long long& aux) {
    return literal("Address( ") && number(mode, 10) && literal(" ") &&
           number(width, 10) && literal(" ") && number(segment, 16) &&
           literal(" ") && number(offset, 16) && literal(" ") &&
           number(aux, 16) && literal(" )Address");
  }
  // A word of hexadecimal digits followed by a blank.
  bool hexWord(std::string& word) {
    const char* start = p;
    const auto isHexDigit = [](char c) {
      return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') ||
             (c >= 'A' && c <= 'F');
    };
    while (p != end && isHexDigit(*p))
      ++p;
    if (p == start || p == end || *p != ' ')
      return false;
    word.assign(start, p);
    return true;
  }
};

// The key under which a StringVector stores item index: "<name>_0",
// "<name>_0x1", ... (a stream with showbase writes 0 without prefix).
std::string itemKey(const std::string& name, unsigned long index) {
  std::string key = name;
  key += index == 0 ? "_0" : "_0x";
  if (index != 0)
    appendNumber(key, index, 16);
  return key;
}

} // namespace

// ---------------------------------------------------------------------------
// Address

Address* Address::clone() const { return new Address(*this); }

int Address::compare(const Address& other) const {
  if (m_segment != other.m_segment)
    return m_segment < other.m_segment ? -1 : 1;
  if (m_offset != other.m_offset)
    return m_offset < other.m_offset ? -1 : 1;
  if (m_aux != other.m_aux)
    return m_aux < other.m_aux ? -1 : 1;
  return 0;
}

void Address::print(std::string& text) const {
  text.clear();
  if (m_mode == 2) {
    appendPaddedHex(text, m_segment, 6);
    text += ':';
  }
  switch (m_bitWidth) {
  case 8:
    appendPaddedHex(text, m_offset & 0xFFu, 4);
    break;
  case 16:
    appendPaddedHex(text, m_offset & 0xFFFFu, 6);
    break;
  case 32:
    appendPaddedHex(text, m_offset & 0xFFFFFFFFu, 10);
    break;
  case 64:
    appendPaddedHex(text, m_offset, 18);
    break;
  default:
    // Widths other than these show no offset.
    break;
  }
}

void Address::serialize(std::string& text) const {
  text = "Address( ";
  appendNumber(text, m_mode);
  text += ' ';
  appendNumber(text, m_bitWidth);
  text += ' ';
  appendNumber(text, m_segment, 16);
  text += ' ';
  appendNumber(text, m_offset, 16);
  text += ' ';
  appendNumber(text, m_aux, 16);
  text += " )Address";
}

bool Address::deserialize(const std::string& text) {
  Address parsed;
  StoredText stored{text.data(), text.data() + text.size()};
  if (!stored.address(parsed.m_mode, parsed.m_bitWidth, parsed.m_segment,
                      parsed.m_offset, parsed.m_aux) ||
      stored.p != stored.end) {
    parsed = Address();
    std::istringstream in(framedText(text, "Address(", ")Address", 8));
    readPart(in, parsed.m_mode);
    readPart(in, parsed.m_bitWidth);
    in >> std::hex;
    readPart(in, parsed.m_segment);
    readPart(in, parsed.m_offset);
    readPart(in, parsed.m_aux);
  }
  if (parsed.m_mode >= 4 || parsed.m_bitWidth < 8 || parsed.m_bitWidth > 128)
    return false;
  *this = parsed;
  return true;
}

Address& Address::operator=(const Address& other) {
  m_segment = other.m_segment;
  m_offset = other.m_offset;
  m_aux = other.m_aux;
  m_mode = other.m_mode;
  m_bitWidth = other.m_bitWidth;
  return *this;
}

// Mode and width take no part in comparison.
bool Address::operator==(const Address& other) const {
  return compare(other) == 0;
}
bool Address::operator<(const Address& other) const {
  return compare(other) == -1;
}
bool Address::operator>(const Address& other) const {
  return compare(other) == 1;
}
bool Address::operator<=(const Address& other) const {
  return compare(other) <= 0;
}
bool Address::operator>=(const Address& other) const {
  return compare(other) >= 0;
}
bool Address::operator!=(const Address& other) const {
  return compare(other) != 0;
}

// ---------------------------------------------------------------------------
// Scope

Scope* Scope::clone() const { return new Scope(*this); }

void Scope::print(std::string& text) const {
  m_address.print(text);
  text += ' ';
  if (m_key.empty()) {
    text += "<empty> ";
  } else {
    text += m_key.toString();
    text += ' ';
  }
  appendNumber(text, m_number1);
  text += ' ';
  appendNumber(text, m_number2);
}

void Scope::serialize(std::string& text) const {
  std::string addressText;
  m_address.serialize(addressText);
  // The key text goes as hex, its terminating NUL included, so that its
  // blanks and brackets cannot break the blank-separated form.
  const std::string keyText = m_key.toString();
  std::string keyHex;
  HexDumpHelper::convertBinToHex(
      reinterpret_cast<const unsigned char*>(keyText.c_str()),
      static_cast<unsigned int>(keyText.size() + 1), keyHex);
  text = "Scope( ";
  text += addressText;
  text += ' ';
  text += keyHex;
  text += ' ';
  appendNumber(text, m_number1);
  text += ' ';
  appendNumber(text, m_number2);
  text += " )Scope";
}

bool Scope::deserialize(const std::string& text) {
  Address address;
  std::string keyHex;
  unsigned long number1 = 0;
  unsigned long number2 = 0;
  AddressType mode = 0;
  AddressSize width = 0;
  unsigned long long segment = 0, offset = 0, aux = 0;
  StoredText form{text.data(), text.data() + text.size()};
  if (form.literal("Scope( ") &&
      form.address(mode, width, segment, offset, aux) && form.literal(" ") &&
      form.hexWord(keyHex) && form.literal(" ") && form.number(number1, 10) &&
      form.literal(" ") && form.number(number2, 10) &&
      form.literal(" )Scope") && form.p == form.end) {
    // An address out of range is left at its default, as the stream's
    // reading leaves it.
    if (mode < 4 && width >= 8 && width <= 128)
      address = Address(segment, offset, aux, mode, width);
  } else {
    keyHex.clear();
    number1 = number2 = 0;
    // Seven characters: "Scope(" and the blank behind it.
    std::istringstream in(framedText(text, "Scope(", ")Scope", 7));
    in >> address;
    readPart(in, keyHex);
    readPart(in, number1);
    readPart(in, number2);
  }

  // An odd-length word does not decode and gives the empty key. A text that
  // lacks its NUL gives all decoded bytes.
  std::vector<unsigned char> bytes(keyHex.size() / 2);
  std::string keyText;
  if (HexDumpHelper::convertHexToBin(keyHex, bytes.data())) {
    const auto end = std::find(bytes.begin(), bytes.end(), 0);
    keyText.assign(bytes.begin(), end);
  }

  m_address = address;
  m_key = keyText;
  m_number1 = number1;
  m_number2 = number2;
  return true;
}

Scope& Scope::operator=(const Scope& other) {
  m_address = other.m_address;
  m_key = other.m_key;
  m_number1 = other.m_number1;
  m_number2 = other.m_number2;
  return *this;
}

bool Scope::operator==(const Scope& other) const {
  return m_address.compare(other.m_address) == 0 && m_key == other.m_key &&
         m_number1 == other.m_number1 && m_number2 == other.m_number2;
}

bool Scope::operator!=(const Scope& other) const { return !(*this == other); }

// ---------------------------------------------------------------------------
// StringVector

bool readListCount(const IDeserializerHelper* reader,
                   const std::string& countKey, unsigned long* count) {
  *count = 0;
  unsigned long stored = 0;
  const bool found = reader->getInt(countKey, &stored);
  const IValueCount* values = dynamic_cast<const IValueCount*>(reader);
  const unsigned long limit =
      values ? values->getValueCount() + kMissingListItems : kMaxListItems;
  if (stored > limit)
    return false;
  *count = stored;
  return found;
}

StringVector* StringVector::clone() const {
  StringVector* copy = new StringVector;
  for (const std::string& item : m_items)
    copy->addItem(item);
  return copy;
}

bool StringVector::deserialize(const std::string& name,
                               IDeserializerHelper* reader) {
  if (reader == nullptr)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  m_items.clear();
  unsigned long count = 0;
  bool result = readListCount(reader, name + "_Size", &count);
  // Every index below the stored count gets an item, read or not, so that
  // the list keeps its stored length.
  for (unsigned long i = 0; i < count; ++i) {
    std::string item;
    result = reader->getString(itemKey(name, i), &item) && result;
    addItem(item);
  }
  return result;
}

bool StringVector::serialize(const std::string& name,
                             ISerializerHelper* writer) const {
  if (writer == nullptr)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  bool result = writer->setInt(name + "_Size",
                               static_cast<unsigned long>(m_items.size()));
  for (unsigned long i = 0; i < m_items.size(); ++i)
    result = writer->setString(itemKey(name, i), m_items[i]) && result;
  return result;
}

StringVector& StringVector::operator=(const StringVector& other) {
  m_items = other.m_items;
  return *this;
}

bool StringVector::operator==(const StringVector& other) const {
  return m_items == other.m_items;
}

bool StringVector::operator!=(const StringVector& other) const {
  return !(*this == other);
}

void StringVector::addItem(const std::string& item) { m_items.push_back(item); }

const std::string& StringVector::getItem(unsigned long index) const {
  return m_items[index];
}

unsigned long StringVector::getSize() const { return m_items.size(); }

unsigned long StringVector::find(const std::string& item) const {
  for (unsigned long i = 0; i < m_items.size(); ++i)
    if (m_items[i] == item)
      return i;
  return ~0ul;
}

// ---------------------------------------------------------------------------
// Stream operators

std::ostream& operator<<(std::ostream& out, const Address& address) {
  std::string text;
  address.serialize(text);
  return out << text;
}

std::ostream& operator<<(std::ostream& out, const Scope& scope) {
  std::string text;
  scope.serialize(text);
  return out << text;
}

std::ostream& operator<<(std::ostream& out, const StringVector& vector) {
  for (unsigned long i = 0; i < vector.getSize(); ++i) {
    if (i != 0)
      out << ", ";
    out << '"' << vector.getItem(i) << '"';
  }
  return out;
}

// The stream state reflects the reading of the words only: a refused address
// (such as the default one, whose mode is "not set") leaves the stream good,
// so that whatever follows it can still be read.
std::istream& operator>>(std::istream& in, Address& address) {
  std::string joined;
  std::string word;
  for (int i = 0; i < 7 && in >> word; ++i) {
    if (i != 0)
      joined += ' ';
    joined += word;
  }
  address.deserialize(joined);
  return in;
}

std::istream& operator>>(std::istream& in, Scope& scope) {
  // One word only, although a scope's text holds blanks (kept as it is).
  std::string word;
  in >> word;
  scope.deserialize(word);
  return in;
}

} // namespace DbgData
} // namespace Vemo
