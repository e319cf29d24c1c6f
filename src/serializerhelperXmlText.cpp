#include "serializerhelperXmlText.h"

#include "dbgdatakey.h"
#include "valuetext.h"
#include "valuetypes.h"
#include "xmlsyntax.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Vemo {
namespace DbgData {

namespace {

const char kDeclaration[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>";
const std::size_t kNameCacheSize = 256;
// Elements with more attributes than this find a key through a hash index.
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

// Appends value to out as the XML library's text writer writes an attribute
// value; false for a character XML 1.0 cannot carry.
bool appendEscaped(const char* value, std::size_t size, std::string& out) {
  const Ptr begin = reinterpret_cast<Ptr>(value);
  const Ptr end = begin + size;
  Ptr p = begin;
  while (p < end) {
    const Ptr run = p;
    while (p < end && !kEscape.special[*p])
      ++p;
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
bool nameLess(const char* a, std::size_t aSize, const char* b,
              std::size_t bSize) {
  const std::size_t common = std::min(aSize, bSize);
  for (std::size_t i = 0; i < common; ++i) {
    const unsigned char ca = static_cast<unsigned char>(a[i]);
    const unsigned char cb = static_cast<unsigned char>(b[i]);
    if (ca == cb)
      continue;
    if (ca >= 0xF0 && (cb == 0xEE || cb == 0xEF))
      return true;
    if (cb >= 0xF0 && (ca == 0xEE || ca == 0xEF))
      return false;
    return ca < cb;
  }
  return aSize < bSize;
}

std::size_t cacheSlot(const char* text, std::size_t size) {
  if (size == 0)
    return 0;
  const unsigned char first = static_cast<unsigned char>(text[0]);
  const unsigned char last = static_cast<unsigned char>(text[size - 1]);
  const unsigned char middle = static_cast<unsigned char>(text[size / 2]);
  return (size * 131 + first * 31 + middle * 7 + last) % kNameCacheSize;
}

// Writes into a buffer sized beforehand.
struct Cursor {
  char* p;
  void put(const char* text, std::size_t size) {
    std::memcpy(p, text, size);
    p += size;
  }
  void put(char c) { *p++ = c; }
  void blanks(std::size_t count) {
    std::memset(p, ' ', count);
    p += count;
  }
};

} // namespace

struct SerializerHelperXmlText::KeyIndex {
  std::unordered_map<std::string, std::uint32_t> attributes;
};

SerializerHelperXmlText::SerializerHelperXmlText(bool indent)
    : m_indent(indent) {
  reset();
}

SerializerHelperXmlText::~SerializerHelperXmlText() = default;

void SerializerHelperXmlText::reset() {
  m_elements.clear();
  m_attributes.clear();
  m_pool.clear();
  m_focus.clear();
  m_nameCache.assign(kNameCacheSize, NameCacheEntry{std::string(), {0, 0}});
  m_keyIndexes.clear();
  m_text.clear();
  m_textValid = false;
  const NameRef root = poolName("UserContentContainer");
  m_elements.push_back(
      Element{root.offset, root.size, 0, None, None, 0, None, false});
  m_focus.push_back(0);
}

SerializerHelperXmlText::NameRef
SerializerHelperXmlText::poolName(const std::string& text) {
  const std::size_t size = textLength(text);
  NameCacheEntry& entry = m_nameCache[cacheSlot(text.data(), size)];
  if (entry.text.size() == size &&
      std::memcmp(entry.text.data(), text.data(), size) == 0)
    return entry.name;

  NameRef name{0, 0};
  const std::size_t mark = m_pool.size();
  appendRepairedUtf8(text.data(), size, &m_pool);
  if (isXmlName(m_pool.data() + mark, m_pool.size() - mark) &&
      m_pool.size() <= std::numeric_limits<std::uint32_t>::max()) {
    name.offset = static_cast<std::uint32_t>(mark);
    name.size = static_cast<std::uint32_t>(m_pool.size() - mark);
  } else {
    m_pool.resize(mark);
  }
  entry.text.assign(text.data(), size);
  entry.name = name;
  return name;
}

std::uint32_t SerializerHelperXmlText::appendElement(std::uint32_t parent,
                                                     NameRef name) {
  const std::uint32_t index = static_cast<std::uint32_t>(m_elements.size());
  Element& parentElement = m_elements[parent];
  parentElement.hasChildren = true;
  if (parentElement.values == None && name.size == 6 &&
      std::memcmp(m_pool.data() + name.offset, "values", 6) == 0)
    parentElement.values = index;
  const std::uint32_t depth = parentElement.depth + 1;
  m_elements.push_back(
      Element{name.offset, name.size, depth, None, None, 0, None, false});
  return index;
}

bool SerializerHelperXmlText::pushSection(const std::string& name) {
  if (m_focus.empty() ||
      m_elements.size() >= std::numeric_limits<std::uint32_t>::max() - 3)
    return false;
  const NameRef element = poolName(name);
  if (element.size == 0)
    return false;
  m_textValid = false;
  const std::uint32_t index = appendElement(m_focus.back(), element);
  m_focus.push_back(index);
  if (name == "DataElement") {
    static const std::string kAttributes("attributes");
    static const std::string kValues("values");
    appendElement(index, poolName(kAttributes));
    appendElement(index, poolName(kValues));
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
  const NameRef name = poolName(key);
  if (name.size == 0)
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
  const char* const nameText = m_pool.data() + name.offset;

  Element& target = m_elements[element];
  std::uint32_t existing = None;
  KeyIndex* index = nullptr;
  if (target.attributeCount < kLinearKeySearch) {
    for (std::uint32_t a = target.firstAttribute; a != None;
         a = m_attributes[a].next) {
      const Attribute& attribute = m_attributes[a];
      if (attribute.nameSize == name.size &&
          (attribute.name == name.offset ||
           std::memcmp(m_pool.data() + attribute.name, nameText, name.size) ==
               0)) {
        existing = a;
        break;
      }
    }
  } else {
    std::unique_ptr<KeyIndex>& slot = m_keyIndexes[element];
    if (!slot) {
      slot.reset(new KeyIndex);
      for (std::uint32_t a = target.firstAttribute; a != None;
           a = m_attributes[a].next)
        slot->attributes.emplace(
            std::string(m_pool.data() + m_attributes[a].name,
                        m_attributes[a].nameSize),
            a);
    }
    index = slot.get();
    const auto found = index->attributes.find(std::string(nameText, name.size));
    if (found != index->attributes.end())
      existing = found->second;
  }

  if (existing != None) {
    // The attribute keeps its place and takes the new value.
    m_attributes[existing].value = valueOffset;
    m_attributes[existing].valueSize = valueSize;
    return true;
  }
  const std::uint32_t added = static_cast<std::uint32_t>(m_attributes.size());
  m_attributes.push_back(
      Attribute{name.offset, name.size, valueOffset, valueSize, None});
  if (target.lastAttribute == None)
    target.firstAttribute = added;
  else
    m_attributes[target.lastAttribute].next = added;
  target.lastAttribute = added;
  ++target.attributeCount;
  if (index)
    index->attributes.emplace(std::string(nameText, name.size), added);
  return true;
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
  return setValue(key, value.data(), textLength(value));
}

bool SerializerHelperXmlText::setClassNameAndSubKey(
    const std::string& className, const std::string& subKey) {
  if (m_focus.empty())
    return false;
  static const std::string kClassName("ClassName");
  static const std::string kSubKey("SubKey");
  return setAttribute(m_focus.back(), kClassName, className.data(),
                      textLength(className)) &&
         setAttribute(m_focus.back(), kSubKey, subKey.data(),
                      textLength(subKey));
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

void SerializerHelperXmlText::writeText() const {
  // The exact size first, so that the text is written in one buffer. With
  // indentation, an element of depth d starts on a new line (preceded by an
  // empty line at depth 1) indented by 2d blanks, and so does the end tag of
  // an element with children (preceded by an empty line for the document
  // element's); the document ends with a line break.
  const std::size_t declaration = sizeof(kDeclaration) - 1;
  std::size_t total = declaration + (m_indent ? 2 : 0);
  for (const Element& element : m_elements) {
    total += 1 + element.nameSize;
    for (std::uint32_t a = element.firstAttribute; a != None;
         a = m_attributes[a].next)
      total += 4 + m_attributes[a].nameSize + m_attributes[a].valueSize;
    total += element.hasChildren ? 4 + element.nameSize : 2;
    if (m_indent) {
      if (element.depth > 0)
        total += 1 + (element.depth == 1) + 2 * element.depth;
      if (element.hasChildren)
        total += 1 + (element.depth == 0) + 2 * element.depth;
    }
  }
  m_text.resize(total);
  Cursor out{&m_text[0]};
  const char* const pool = m_pool.data();
  const auto closeElement = [&](const Element& element) {
    if (m_indent) {
      out.put('\n');
      if (element.depth == 0)
        out.put('\n');
      out.blanks(2 * element.depth);
    }
    out.put("</", 2);
    out.put(pool + element.name, element.nameSize);
    out.put('>');
  };

  out.put(kDeclaration, declaration);
  if (m_indent)
    out.put('\n');
  m_openElements.clear();
  for (const Element& element : m_elements) {
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
    out.put('<');
    out.put(pool + element.name, element.nameSize);
    // Attributes in the DOM's order.
    m_sorted.clear();
    for (std::uint32_t a = element.firstAttribute; a != None;
         a = m_attributes[a].next)
      m_sorted.push_back(a);
    if (m_sorted.size() > 1) {
      const auto less = [&](std::uint32_t x, std::uint32_t y) {
        const Attribute& ax = m_attributes[x];
        const Attribute& ay = m_attributes[y];
        return nameLess(pool + ax.name, ax.nameSize, pool + ay.name,
                        ay.nameSize);
      };
      if (m_sorted.size() <= 16) {
        for (std::size_t i = 1; i < m_sorted.size(); ++i)
          for (std::size_t j = i; j > 0 && less(m_sorted[j], m_sorted[j - 1]);
               --j)
            std::swap(m_sorted[j], m_sorted[j - 1]);
      } else {
        std::sort(m_sorted.begin(), m_sorted.end(), less);
      }
    }
    for (std::uint32_t a : m_sorted) {
      const Attribute& attribute = m_attributes[a];
      out.put(' ');
      out.put(pool + attribute.name, attribute.nameSize);
      out.put("=\"", 2);
      out.put(pool + attribute.value, attribute.valueSize);
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
}

} // namespace DbgData
} // namespace Vemo
