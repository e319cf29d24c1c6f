#include "serializerhelperXmlText.h"

#include "dbgdatakey.h"
#include "valuetext.h"
#include "valuetypes.h"
#include "xmlsyntax.h"

#include <algorithm>
#include <cstring>
#include <limits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace Vemo {
namespace DbgData {

namespace {

const char kDeclaration[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>";
// The name cache: sets of two entries, the one used last first.
const std::size_t kNameCacheSets = 256;
// Elements with more attributes than this find a key through the names'
// stamps rather than by a walk along their list.
const std::uint32_t kLinearKeySearch = 12;

typedef const unsigned char* Ptr;

// Bytes an attribute value cannot carry as they are: '&', '<', '"', every
// control character and every non-ASCII byte (checked as UTF-8).
struct EscapeTable {
  bool special[256];
  EscapeTable() {
    for (int c = 0; c < 256; ++c)
      special[c] = c < 0x20 || c >= 0x80 || c == '&' || c == '<' || c == '"';
  }
};
const EscapeTable kEscape;

// The first byte from p on that needs escaping (or end). Sixteen bytes (with
// SSE2), then eight at a time while none of them is below 0x20, at or above
// 0x80, '&', '<' or '"': long values (hex dumps) are mostly such bytes, and
// so are most short ones.
Ptr skipPlain(Ptr p, Ptr end) {
#if defined(__SSE2__)
  // As signed bytes, the control characters and every byte from 0x80 up
  // are the ones below 0x20.
  const __m128i blank = _mm_set1_epi8(0x20);
  const __m128i amp = _mm_set1_epi8('&');
  const __m128i lt = _mm_set1_epi8('<');
  const __m128i quot = _mm_set1_epi8('"');
  const auto hits = [&](Ptr at) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    return _mm_or_si128(
        _mm_or_si128(_mm_cmplt_epi8(bytes, blank), _mm_cmpeq_epi8(bytes, amp)),
        _mm_or_si128(_mm_cmpeq_epi8(bytes, lt), _mm_cmpeq_epi8(bytes, quot)));
  };
  // Sixty-four bytes a round while they are all plain, then sixteen.
  while (end - p >= 64) {
    const __m128i any = _mm_or_si128(_mm_or_si128(hits(p), hits(p + 16)),
                                     _mm_or_si128(hits(p + 32), hits(p + 48)));
    if (_mm_movemask_epi8(any) != 0)
      break;
    p += 64;
  }
  while (end - p >= 16) {
    const int mask = _mm_movemask_epi8(hits(p));
    if (mask != 0)
      return p + __builtin_ctz(static_cast<unsigned>(mask));
    p += 16;
  }
#endif
  constexpr std::uint64_t kOnes = 0x0101010101010101ull;
  constexpr std::uint64_t kHighs = 0x8080808080808080ull;
  const auto hasZeroByte = [](std::uint64_t x) {
    return (x - kOnes) & ~x & kHighs;
  };
  while (end - p >= 8) {
    std::uint64_t x;
    std::memcpy(&x, p, 8);
    const std::uint64_t found =
        (x & kHighs) | ((x - 0x20 * kOnes) & ~x & kHighs) |
        hasZeroByte(x ^ ('&' * kOnes)) | hasZeroByte(x ^ ('<' * kOnes)) |
        hasZeroByte(x ^ ('"' * kOnes));
    if (found)
      break;
    p += 8;
  }
  while (p < end && !kEscape.special[*p])
    ++p;
  return p;
}

// Appends value, up to its first zero byte, to out as the XML library's text
// writer writes an attribute value; false for a character XML 1.0 cannot
// carry.
bool appendEscaped(const char* value, std::size_t size, std::string& out) {
  const Ptr begin = reinterpret_cast<Ptr>(value);
  const Ptr end = begin + size;
  Ptr p = begin;
  while (p < end) {
    const Ptr run = p;
    p = skipPlain(p, end);
    out.append(reinterpret_cast<const char*>(run),
               static_cast<std::size_t>(p - run));
    if (p >= end)
      break;
    switch (*p) {
    case '&':
      out.append("&amp;", 5);
      ++p;
      continue;
    case '<':
      out.append("&lt;", 4);
      ++p;
      continue;
    case '"':
      out.append("&quot;", 6);
      ++p;
      continue;
    case '\t':
      out.append("&#x9;", 5);
      ++p;
      continue;
    case '\n':
      out.append("&#xA;", 5);
      ++p;
      continue;
    case '\r':
      out.append("&#xD;", 5);
      ++p;
      continue;
    case '\0':
      return true; // the end of the text as the DOM takes it
    default:
      break;
    }
    if (*p < 0x80)
      return false; // another control character
    char32_t c = 0;
    const int length = readUtf8(p, end, &c);
    if (length > 0) {
      if (!isXmlChar(c))
        return false;
      out.append(reinterpret_cast<const char*>(p),
                 static_cast<std::size_t>(length));
      p += length;
    } else {
      out.append("\xEF\xBF\xBD", 3);
      p -= length;
    }
  }
  return true;
}

// Length of text up to its first zero byte.
std::size_t textLength(const std::string& text) {
  const void* zero = std::memchr(text.data(), 0, text.size());
  return zero ? static_cast<std::size_t>(static_cast<const char*>(zero) -
                                         text.data())
              : text.size();
}

// Order of names in the DOM's attribute map: by UTF-16 code units. That is
// the order of UTF-8 bytes, except that characters beyond the basic plane
// (lead bytes F0 to F4) come before U+E000 to U+FFFF (lead bytes EE, EF).
// Mapped through this table, the bytes at the first place where two names
// differ (both lead bytes, or both continuation bytes) compare as UTF-16.
struct SortBytes {
  unsigned char order[256];
  SortBytes() {
    for (int b = 0; b < 256; ++b)
      order[b] = static_cast<unsigned char>(b);
    for (int b = 0xF0; b <= 0xF4; ++b)
      order[b] = static_cast<unsigned char>(b - 0xF0 + 0xEE);
    order[0xEE] = 0xF3;
    order[0xEF] = 0xF4;
  }
};
const SortBytes kSortBytes;

std::uint64_t sortKeyOf(const char* name, std::size_t size) {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < 8; ++i)
    key =
        (key << 8) |
        (i < size ? kSortBytes.order[static_cast<unsigned char>(name[i])] : 0);
  return key;
}

// Whether the size bytes at a and b are the same: short texts (names) are
// compared in two or three overlapping loads rather than through a call.
inline bool sameBytes(const char* a, const char* b, std::size_t size) {
  if (size >= 8) {
    if (size > 24)
      return std::memcmp(a, b, size) == 0;
    std::uint64_t x[3], y[3];
    std::memcpy(&x[0], a, 8);
    std::memcpy(&y[0], b, 8);
    std::memcpy(&x[1], a + size - 8, 8);
    std::memcpy(&y[1], b + size - 8, 8);
    x[2] = y[2] = 0;
    if (size > 16) {
      std::memcpy(&x[2], a + 8, 8);
      std::memcpy(&y[2], b + 8, 8);
    }
    return ((x[0] ^ y[0]) | (x[1] ^ y[1]) | (x[2] ^ y[2])) == 0;
  }
  if (size >= 4) {
    std::uint32_t x[2], y[2];
    std::memcpy(&x[0], a, 4);
    std::memcpy(&y[0], b, 4);
    std::memcpy(&x[1], a + size - 4, 4);
    std::memcpy(&y[1], b + size - 4, 4);
    return ((x[0] ^ y[0]) | (x[1] ^ y[1])) == 0;
  }
  for (std::size_t i = 0; i < size; ++i)
    if (a[i] != b[i])
      return false;
  return true;
}

// The set of the name cache for a text: a hash of its size and its first and
// last eight bytes.
std::size_t cacheSet(const char* text, std::size_t size) {
  std::uint64_t head = 0, tail = 0;
  if (size >= 8) {
    std::memcpy(&head, text, 8);
    std::memcpy(&tail, text + size - 8, 8);
  } else if (size >= 4) {
    std::uint32_t first, last;
    std::memcpy(&first, text, 4);
    std::memcpy(&last, text + size - 4, 4);
    head = first | std::uint64_t(last) << 32;
  } else if (size > 0) {
    const auto byte = [text](std::size_t i) {
      return std::uint64_t(static_cast<unsigned char>(text[i]));
    };
    head = byte(0) | byte(size / 2) << 8 | byte(size - 1) << 16;
  }
  const std::uint64_t hash = (head * 0x9E3779B97F4A7C15ull) ^
                             (tail * 0xC2B2AE3D27D4EB4Full) ^
                             (size * 0x165667B19E3779F9ull);
  return static_cast<std::size_t>(hash >> 56) % kNameCacheSets;
}

// Writes into a buffer sized beforehand. Short pieces (most of them) are
// copied with two fixed-size moves that may overlap, rather than a call.
struct Cursor {
  char* p;
  void put(const char* text, std::size_t size) {
    if (size >= 8 && size <= 16) {
      std::memcpy(p, text, 8);
      std::memcpy(p + size - 8, text + size - 8, 8);
    } else if (size >= 4 && size < 8) {
      std::memcpy(p, text, 4);
      std::memcpy(p + size - 4, text + size - 4, 4);
    } else if (size < 4) {
      for (std::size_t i = 0; i < size; ++i)
        p[i] = text[i];
    } else {
      std::memcpy(p, text, size);
    }
    p += size;
  }
  void put(char c) { *p++ = c; }
  void blanks(std::size_t count) {
    std::memset(p, ' ', count);
    p += count;
  }
};

} // namespace

SerializerHelperXmlText::SerializerHelperXmlText(bool indent)
    : m_indent(indent) {
  reset();
}

SerializerHelperXmlText::~SerializerHelperXmlText() = default;

void SerializerHelperXmlText::reset() {
  m_elements.clear();
  m_attributes.clear();
  m_names.clear();
  m_namePool.clear();
  m_nameIndex.clear();
  std::string().swap(m_pool);
  m_focus.clear();
  m_nameCache.assign(2 * kNameCacheSets, NameCacheEntry{None, None, {}});
  m_stampedElement = None;
  m_rankedNames = 0;
  std::string().swap(m_text);
  m_textValid = false;
  static const std::string kValues("values");
  static const std::string kRoot("UserContentContainer");
  m_valuesName = internName(kValues);
  m_elements.emplace_back(internName(kRoot), 0);
  m_focus.push_back(0);
}

std::uint32_t SerializerHelperXmlText::internName(const std::string& text) {
  const std::size_t size = text.size();
  NameCacheEntry* const set = &m_nameCache[2 * cacheSet(text.data(), size)];
  if (size <= kCachedText) {
    if (set[0].size == size && sameBytes(set[0].text, text.data(), size))
      return set[0].name;
    if (set[1].size == size && sameBytes(set[1].text, text.data(), size)) {
      std::swap(set[0], set[1]);
      return set[0].name;
    }
  }

  std::string name;
  appendRepairedUtf8(text.data(), textLength(text), &name);
  std::uint32_t index = None;
  if (isXmlName(name.data(), name.size())) {
    const auto found = m_nameIndex.find(name);
    if (found != m_nameIndex.end()) {
      index = found->second;
    } else if (m_namePool.size() + 3 * name.size() + 7 <=
               std::numeric_limits<std::uint32_t>::max()) {
      index = static_cast<std::uint32_t>(m_names.size());
      m_names.push_back(Name{static_cast<std::uint32_t>(m_namePool.size()),
                             static_cast<std::uint32_t>(name.size()),
                             sortKeyOf(name.data(), name.size()), None, None,
                             None});
      m_namePool += '<';
      m_namePool += name;
      m_namePool += "</";
      m_namePool += name;
      m_namePool += "> ";
      m_namePool += name;
      m_namePool += "=\"";
      m_nameIndex.emplace(std::move(name), index);
    }
  }
  // The text becomes the first entry of its set, the first one the second.
  if (size <= kCachedText) {
    set[1] = set[0];
    set[0].size = static_cast<std::uint32_t>(size);
    set[0].name = index;
    std::memcpy(set[0].text, text.data(), size);
  }
  return index;
}

bool SerializerHelperXmlText::nameLess(std::uint32_t a, std::uint32_t b) const {
  const Name& x = m_names[a];
  const Name& y = m_names[b];
  if (x.sortKey != y.sortKey)
    return x.sortKey < y.sortKey;
  const char* const pool = m_namePool.data();
  const std::size_t common = std::min(x.size, y.size);
  for (std::size_t i = 8; i < common; ++i) {
    const unsigned char cx = static_cast<unsigned char>(pool[x.offset + 1 + i]);
    const unsigned char cy = static_cast<unsigned char>(pool[y.offset + 1 + i]);
    if (cx != cy)
      return kSortBytes.order[cx] < kSortBytes.order[cy];
  }
  return x.size < y.size;
}

std::uint32_t SerializerHelperXmlText::appendElement(std::uint32_t parent,
                                                     std::uint32_t name) {
  const std::uint32_t index = static_cast<std::uint32_t>(m_elements.size());
  Element& parentElement = m_elements[parent];
  parentElement.hasChildren = true;
  if (parentElement.values == None && name == m_valuesName)
    parentElement.values = index;
  const std::uint32_t depth = parentElement.depth + 1;
  m_elements.emplace_back(name, depth);
  return index;
}

bool SerializerHelperXmlText::pushSection(const std::string& name) {
  if (m_focus.empty() ||
      m_elements.size() >= std::numeric_limits<std::uint32_t>::max() - 3)
    return false;
  const std::uint32_t element = internName(name);
  if (element == None)
    return false;
  m_textValid = false;
  const std::uint32_t index = appendElement(m_focus.back(), element);
  m_focus.push_back(index);
  if (name == "DataElement") {
    static const std::string kAttributes("attributes");
    appendElement(index, internName(kAttributes));
    appendElement(index, m_valuesName);
  }
  return true;
}

bool SerializerHelperXmlText::popSection() {
  if (m_focus.empty())
    return false;
  m_focus.pop_back();
  return true;
}

bool SerializerHelperXmlText::setAttribute(std::uint32_t element,
                                           const std::string& key,
                                           const char* value,
                                           std::size_t size) {
  const std::uint32_t name = internName(key);
  if (name == None)
    return false;
  const std::size_t mark = m_pool.size();
  if (!appendEscaped(value, size, m_pool) ||
      m_pool.size() > std::numeric_limits<std::uint32_t>::max() ||
      m_attributes.size() >= std::numeric_limits<std::uint32_t>::max() - 1) {
    m_pool.resize(mark);
    return false;
  }
  m_textValid = false;
  const std::uint32_t valueOffset = static_cast<std::uint32_t>(mark);
  const std::uint32_t valueSize =
      static_cast<std::uint32_t>(m_pool.size() - mark);

  Element& target = m_elements[element];
  // The attributes' text of one element stays countable in 32 bits.
  if (std::uint64_t(target.attributeBytes) + 4 + m_names[name].size +
          valueSize >
      std::numeric_limits<std::uint32_t>::max()) {
    m_pool.resize(mark);
    return false;
  }
  if (target.attributeCount < kLinearKeySearch) {
    // A short list is kept in the DOM's order: the key is either there or
    // its place is found on the way.
    std::uint32_t before = None;
    std::uint32_t a = target.firstAttribute;
    for (; a != None; before = a, a = m_attributes[a].next) {
      Attribute& attribute = m_attributes[a];
      if (attribute.name == name) {
        target.attributeBytes += valueSize - attribute.valueSize;
        attribute.value = valueOffset;
        attribute.valueSize = valueSize;
        attribute.inText = 0;
        return true;
      }
      if (nameLess(name, attribute.name))
        break;
    }
    const std::uint32_t added = static_cast<std::uint32_t>(m_attributes.size());
    m_attributes.emplace_back(name, valueOffset, valueSize, a);
    if (before == None)
      target.firstAttribute = added;
    else
      m_attributes[before].next = added;
    if (a == None)
      target.lastAttribute = added;
  } else {
    // A long one finds a key through the names' stamps and gets new keys at
    // its end; the text sorts it.
    stampKeysOf(element);
    Name& stamp = m_names[name];
    if (stamp.stampElement == element) {
      Attribute& attribute = m_attributes[stamp.stampAttribute];
      target.attributeBytes += valueSize - attribute.valueSize;
      attribute.value = valueOffset;
      attribute.valueSize = valueSize;
      attribute.inText = 0;
      return true;
    }
    const std::uint32_t added = static_cast<std::uint32_t>(m_attributes.size());
    m_attributes.emplace_back(name, valueOffset, valueSize, None);
    m_attributes[target.lastAttribute].next = added;
    target.lastAttribute = added;
    stamp.stampElement = element;
    stamp.stampAttribute = added;
  }
  ++target.attributeCount;
  target.attributeBytes += 4 + m_names[name].size + valueSize;
  return true;
}

void SerializerHelperXmlText::stampKeysOf(std::uint32_t element) {
  if (m_stampedElement == element)
    return;
  m_stampedElement = element;
  for (std::uint32_t a = m_elements[element].firstAttribute; a != None;
       a = m_attributes[a].next) {
    Name& name = m_names[m_attributes[a].name];
    name.stampElement = element;
    name.stampAttribute = a;
  }
}

bool SerializerHelperXmlText::setValue(const std::string& key,
                                       const char* value, std::size_t size) {
  if (m_focus.empty())
    return false;
  const Element& current = m_elements[m_focus.back()];
  return setAttribute(current.values != None ? current.values : m_focus.back(),
                      key, value, size);
}

bool SerializerHelperXmlText::setValue(const std::string& key,
                                       const std::string& value) {
  return setValue(key, value.data(), value.size());
}

bool SerializerHelperXmlText::setClassNameAndSubKey(
    const std::string& className, const std::string& subKey) {
  if (m_focus.empty())
    return false;
  static const std::string kClassName("ClassName");
  static const std::string kSubKey("SubKey");
  return setAttribute(m_focus.back(), kClassName, className.data(),
                      className.size()) &&
         setAttribute(m_focus.back(), kSubKey, subKey.data(), subKey.size());
}

bool SerializerHelperXmlText::setBool(const std::string& key, bool value) {
  return value ? setValue(key, "true", 4) : setValue(key, "false", 5);
}

bool SerializerHelperXmlText::setInt(const std::string& key, int value) {
  const DecimalText<int> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setInt(const std::string& key,
                                     unsigned int value) {
  const DecimalText<unsigned int> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setInt(const std::string& key, long value) {
  const DecimalText<long> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setInt(const std::string& key,
                                     unsigned long value) {
  const DecimalText<unsigned long> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setInt(const std::string& key, long long value) {
  const DecimalText<long long> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setInt(const std::string& key,
                                     unsigned long long value) {
  const DecimalText<unsigned long long> text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setFloat(const std::string& key, double value) {
  const FloatText text(value);
  return setValue(key, text.text, text.size);
}

bool SerializerHelperXmlText::setString(const std::string& key,
                                        const std::string& value) {
  return setValue(key, value);
}

bool SerializerHelperXmlText::setAddress(const std::string& key,
                                         const Address& value) {
  std::string text;
  value.serialize(text);
  return setValue(key, text);
}

bool SerializerHelperXmlText::setScope(const std::string& key,
                                       const Scope& value) {
  std::string text;
  value.serialize(text);
  return setValue(key, text);
}

bool SerializerHelperXmlText::setDbgDataKey(const std::string& key,
                                            const DbgDataKey& value) {
  return setValue(key, value.toString());
}

// ---------------------------------------------------------------------------
// Text

const std::string& SerializerHelperXmlText::getText() const {
  if (!m_textValid) {
    writeText();
    m_textValid = true;
  }
  return m_text;
}

void SerializerHelperXmlText::rankNames() const {
  if (m_rankedNames == m_names.size())
    return;
  m_sorted.resize(m_names.size());
  for (std::uint32_t n = 0; n < m_sorted.size(); ++n)
    m_sorted[n] = n;
  std::sort(
      m_sorted.begin(), m_sorted.end(),
      [this](std::uint32_t a, std::uint32_t b) { return nameLess(a, b); });
  for (std::uint32_t r = 0; r < m_sorted.size(); ++r)
    m_names[m_sorted[r]].rank = r;
  m_rankedNames = static_cast<std::uint32_t>(m_names.size());
}

void SerializerHelperXmlText::sortAttributes(Element& element) const {
  // Short lists are kept sorted as they are written; long ones stay sorted
  // once a text sorted them, until a new key comes: checked on the way.
  if (element.attributeCount < kLinearKeySearch)
    return;
  bool sorted = true;
  std::uint32_t lastRank = 0;
  for (std::uint32_t a = element.firstAttribute; a != None;
       a = m_attributes[a].next) {
    const std::uint32_t rank = m_names[m_attributes[a].name].rank;
    if (a != element.firstAttribute && rank < lastRank) {
      sorted = false;
      break;
    }
    lastRank = rank;
  }
  if (sorted)
    return;
  m_sorted.clear();
  for (std::uint32_t a = element.firstAttribute; a != None;
       a = m_attributes[a].next)
    m_sorted.push_back(a);
  std::sort(m_sorted.begin(), m_sorted.end(),
            [this](std::uint32_t x, std::uint32_t y) {
              return m_names[m_attributes[x].name].rank <
                     m_names[m_attributes[y].name].rank;
            });
  element.firstAttribute = m_sorted.front();
  for (std::size_t i = 1; i < m_sorted.size(); ++i)
    m_attributes[m_sorted[i - 1]].next = m_sorted[i];
  m_attributes[m_sorted.back()].next = None;
  element.lastAttribute = m_sorted.back();
}

void SerializerHelperXmlText::writeText() const {
  rankNames();
  // The exact size first, so that the text is written in one buffer. With
  // indentation, an element of depth d starts on a new line (preceded by an
  // empty line at depth 1) indented by 2d blanks, and so does the end tag of
  // an element with children (preceded by an empty line for the document
  // element's); the document ends with a line break.
  const std::size_t declaration = sizeof(kDeclaration) - 1;
  std::size_t total = declaration + (m_indent ? 2 : 0);
  for (const Element& element : m_elements) {
    const std::size_t nameSize = m_names[element.name].size;
    total += 1 + nameSize + element.attributeBytes +
             (element.hasChildren ? 4 + nameSize : 2);
    if (m_indent) {
      if (element.depth > 0)
        total += 1 + (element.depth == 1) + 2 * element.depth;
      if (element.hasChildren)
        total += 1 + (element.depth == 0) + 2 * element.depth;
    }
  }
  // Written into a new buffer: the values set before the last text are
  // taken from that text, the others from the pool. All of them are then
  // known by where they stand in the new text, and the pool is let go.
  std::string text;
  text.resize(total);
  char* const base = &text[0];
  Cursor out{base};
  const char* const names = m_namePool.data();
  const char* const pool = m_pool.data();
  const char* const lastText = m_text.data();
  const auto closeElement = [&](const Element& element) {
    if (m_indent) {
      out.put('\n');
      if (element.depth == 0)
        out.put('\n');
      out.blanks(2 * element.depth);
    }
    const Name& name = m_names[element.name];
    out.put(names + name.offset + 1 + name.size, name.size + 3); // "</name>"
  };

  out.put(kDeclaration, declaration);
  if (m_indent)
    out.put('\n');
  m_openElements.clear();
  for (Element& element : m_elements) {
    while (!m_openElements.empty() &&
           m_elements[m_openElements.back()].depth >= element.depth) {
      closeElement(m_elements[m_openElements.back()]);
      m_openElements.pop_back();
    }
    if (m_indent && element.depth > 0) {
      out.put('\n');
      if (element.depth == 1)
        out.put('\n');
      out.blanks(2 * element.depth);
    }
    const Name& name = m_names[element.name];
    out.put(names + name.offset, name.size + 1); // "<name"
    sortAttributes(element);
    const char* const lastAttributes = lastText + element.textOffset;
    element.textOffset = static_cast<std::uint64_t>(out.p - base);
    for (std::uint32_t a = element.firstAttribute; a != None;
         a = m_attributes[a].next) {
      Attribute& attribute = m_attributes[a];
      const Name& key = m_names[attribute.name];
      out.put(names + key.offset + 2 * key.size + 4,
              key.size + 3); // " name=\""
      const char* const value =
          (attribute.inText ? lastAttributes : pool) + attribute.value;
      attribute.value =
          static_cast<std::uint32_t>(out.p - base - element.textOffset);
      attribute.inText = 1;
      out.put(value, attribute.valueSize);
      out.put('"');
    }
    if (element.hasChildren) {
      out.put('>');
      m_openElements.push_back(
          static_cast<std::uint32_t>(&element - m_elements.data()));
    } else {
      out.put("/>", 2);
    }
  }
  while (!m_openElements.empty()) {
    closeElement(m_elements[m_openElements.back()]);
    m_openElements.pop_back();
  }
  if (m_indent)
    out.put('\n');
  m_text.swap(text);
  std::string().swap(m_pool);
}

} // namespace DbgData
} // namespace Vemo
