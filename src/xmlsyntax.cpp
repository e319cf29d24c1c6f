#include "xmlsyntax.h"

#include <xercesc/util/XMLChar.hpp>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <algorithm>
#include <cstring>
#include <string_view>
#include <unordered_set>
#include <vector>

using xercesc::XMLChar1_0;

namespace Vemo {
namespace DbgData {

namespace {

typedef const unsigned char* Ptr;

// Name characters by the XML library's XML 1.0 tables; a character beyond
// the basic plane is tested as its surrogate pair, as the library sees it.
bool isNameCharacter(char32_t c, bool first) {
  if (c < 0x10000) {
    const XMLCh unit = static_cast<XMLCh>(c);
    return first ? XMLChar1_0::isFirstNameChar(unit)
                 : XMLChar1_0::isNameChar(unit);
  }
  const XMLCh high = static_cast<XMLCh>(0xD800 + ((c - 0x10000) >> 10));
  const XMLCh low = static_cast<XMLCh>(0xDC00 + ((c - 0x10000) & 0x3FF));
  return first ? XMLChar1_0::isFirstNameChar(high, low)
               : XMLChar1_0::isNameChar(high, low);
}

// The same for ASCII, as tables; and the byte classes of the scanner.
struct Tables {
  bool nameFirst[128];
  bool nameRest[128];
  // Bytes that end a run of plain text in element content: '<', '&', ']',
  // controls other than tab, line feed and carriage return, non-ASCII.
  bool contentStop[256];
  // The same inside an attribute value: '<', '&', both quotes, controls,
  // non-ASCII.
  bool valueStop[256];
  Tables() {
    for (int c = 0; c < 128; ++c) {
      nameFirst[c] = isNameCharacter(static_cast<char32_t>(c), true);
      nameRest[c] = isNameCharacter(static_cast<char32_t>(c), false);
    }
    for (int c = 0; c < 256; ++c) {
      const bool other =
          c >= 0x80 || (c < 0x20 && c != '\t' && c != '\n' && c != '\r');
      contentStop[c] = other || c == '<' || c == '&' || c == ']';
      valueStop[c] = other || c == '<' || c == '&' || c == '"' || c == '\'';
    }
  }
};

const Tables& tables() {
  static const Tables instance;
  return instance;
}

// The first byte from p on for which stop is set. stop must hold every
// control byte and every non-ASCII byte besides the ASCII bytes a to d,
// which are looked for sixteen at a time where the processor can.
Ptr skipPlain(Ptr p, Ptr end, const bool* stop, char a, char b, char c,
              char d) {
#if defined(__SSE2__)
  const __m128i ma = _mm_set1_epi8(a), mb = _mm_set1_epi8(b),
                mc = _mm_set1_epi8(c), md = _mm_set1_epi8(d),
                blank = _mm_set1_epi8(0x20);
  while (end - p >= 16) {
    const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    // Signed, bytes from 0x80 on are below 0x20 too.
    const __m128i found = _mm_or_si128(
        _mm_or_si128(
            _mm_or_si128(_mm_cmpeq_epi8(x, ma), _mm_cmpeq_epi8(x, mb)),
            _mm_or_si128(_mm_cmpeq_epi8(x, mc), _mm_cmpeq_epi8(x, md))),
        _mm_cmplt_epi8(x, blank));
    const int mask = _mm_movemask_epi8(found);
    if (mask == 0) {
      p += 16;
      continue;
    }
    p += __builtin_ctz(static_cast<unsigned>(mask));
    if (stop[*p])
      return p;
    ++p; // tab, line feed or carriage return
  }
#else
  (void)a, (void)b, (void)c, (void)d;
#endif
  while (p < end && !stop[*p])
    ++p;
  return p;
}

bool isSpace(unsigned char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Scans one document; stops at the first problem.
class Checker {
public:
  Checker(const char* text, std::size_t size, unsigned maxDepth)
      : m_begin(reinterpret_cast<Ptr>(text)), m_p(m_begin),
        m_end(m_begin + size), m_maxDepth(maxDepth), m_tables(tables()) {}

  bool run();

  std::size_t errorOffset() const { return m_errorOffset; }
  const std::string& message() const { return m_message; }
  bool refused() const { return m_refused; }

private:
  struct Name {
    Ptr start;
    std::size_t size;
    std::string text() const {
      return std::string(reinterpret_cast<const char*>(start), size);
    }
    bool operator==(const Name& other) const {
      return size == other.size && std::memcmp(start, other.start, size) == 0;
    }
    // Byte order, a prefix first.
    bool operator<(const Name& other) const {
      const int order =
          std::memcmp(start, other.start, std::min(size, other.size));
      return order < 0 || (order == 0 && size < other.size);
    }
  };

  bool fail(Ptr at, const std::string& message) {
    m_errorOffset =
        static_cast<std::size_t>((at < m_end ? at : m_end) - m_begin);
    m_message = message;
    return false;
  }
  // Text that is well formed as far as seen, but refused by this reader.
  bool refuse(Ptr at, const std::string& message) {
    m_refused = true;
    return fail(at, message);
  }
  bool failAtEnd(const char* what) {
    return fail(m_end, std::string("the text ends inside ") + what);
  }
  bool startsWith(const char* literal) const {
    const std::size_t length = std::strlen(literal);
    return static_cast<std::size_t>(m_end - m_p) >= length &&
           std::memcmp(m_p, literal, length) == 0;
  }
  // Skips white space; answers whether there was any.
  bool skipSpace() {
    const Ptr start = m_p;
    while (m_p < m_end && isSpace(*m_p))
      ++m_p;
    return m_p != start;
  }

  bool character(const char* where);
  // A name at m_p. Processing instruction targets take characters of the
  // basic plane only, as the XML library's parser reads them.
  bool name(Name* out, const char* what, bool basicPlaneOnly = false);
  bool reference();
  bool quotedValue(Name* out, const char* what);
  bool xmlDeclaration();
  bool comment();
  bool processingInstruction();
  bool cdataSection();
  bool startTag(bool* empty);
  bool endTag();
  bool content();
  bool misc(bool* consumed);

  const Ptr m_begin;
  Ptr m_p;
  const Ptr m_end;
  const unsigned m_maxDepth;
  const Tables& m_tables;
  std::vector<Name> m_open;
  std::vector<Name> m_attributeNames;
  std::unordered_set<std::string_view> m_manyAttributeNames;
  std::size_t m_errorOffset = 0;
  std::string m_message;
  bool m_refused = false;
};

// One character at m_p that is not plain ASCII text: a well-formed UTF-8
// sequence of a character XML allows.
bool Checker::character(const char* where) {
  char32_t c = 0;
  const int length = readUtf8(m_p, m_end, &c);
  if (length < 0)
    return fail(m_p, std::string("ill-formed UTF-8 ") + where);
  if (!isXmlChar(c))
    return fail(m_p, std::string("a character XML does not allow ") + where);
  m_p += length;
  return true;
}

bool Checker::name(Name* out, const char* what, bool basicPlaneOnly) {
  const Ptr start = m_p;
  bool first = true;
  while (m_p < m_end) {
    const unsigned char b = *m_p;
    if (b < 0x80) {
      if (!(first ? m_tables.nameFirst[b] : m_tables.nameRest[b]))
        break;
      ++m_p;
    } else {
      char32_t c = 0;
      const int length = readUtf8(m_p, m_end, &c);
      if (length < 0)
        return fail(m_p, std::string("ill-formed UTF-8 in ") + what);
      if (!isNameCharacter(c, first) || (basicPlaneOnly && c >= 0x10000))
        break;
      m_p += length;
    }
    first = false;
  }
  if (m_p == start) {
    if (m_p >= m_end)
      return failAtEnd(what);
    return fail(m_p, std::string("expected ") + what);
  }
  out->start = start;
  out->size = static_cast<std::size_t>(m_p - start);
  return true;
}

// At '&': a character reference or one of the five predefined entities.
bool Checker::reference() {
  const Ptr at = m_p++;
  if (m_p < m_end && *m_p == '#') {
    ++m_p;
    const bool hex = m_p < m_end && *m_p == 'x';
    if (hex)
      ++m_p;
    char32_t value = 0;
    std::size_t digits = 0;
    for (; m_p < m_end; ++m_p, ++digits) {
      const unsigned char c = *m_p;
      unsigned digit;
      if (c >= '0' && c <= '9')
        digit = c - '0';
      else if (hex && c >= 'a' && c <= 'f')
        digit = c - 'a' + 10;
      else if (hex && c >= 'A' && c <= 'F')
        digit = c - 'A' + 10;
      else
        break;
      if (value <= 0x10FFFF)
        value = value * (hex ? 16 : 10) + digit;
    }
    if (digits == 0 || m_p >= m_end || *m_p != ';')
      return fail(at, "a character reference is &#digits; or &#xhex-digits;");
    ++m_p;
    if (!isXmlChar(value))
      return fail(at, "a character reference to a character XML does not "
                      "allow");
    return true;
  }
  Name entity;
  if (!name(&entity, "an entity name after \"&\""))
    return false;
  if (m_p >= m_end || *m_p != ';')
    return fail(at, "an entity reference must end with \";\"");
  ++m_p;
  static const char* const predefined[] = {"lt", "gt", "amp", "apos", "quot"};
  for (const char* known : predefined)
    if (entity.size == std::strlen(known) &&
        std::memcmp(entity.start, known, entity.size) == 0)
      return true;
  return fail(at, "the entity \"" + entity.text() + "\" is not declared");
}

// A quoted attribute value at m_p; *out covers the text between the quotes.
bool Checker::quotedValue(Name* out, const char* what) {
  if (m_p >= m_end)
    return failAtEnd(what);
  const unsigned char quote = *m_p;
  if (quote != '"' && quote != '\'')
    return fail(m_p, std::string("expected a quoted ") + what);
  out->start = ++m_p;
  for (;;) {
    m_p = skipPlain(m_p, m_end, m_tables.valueStop, '<', '&', '"', '\'');
    if (m_p >= m_end)
      return failAtEnd(what);
    const unsigned char c = *m_p;
    if (c == quote)
      break;
    if (c == '"' || c == '\'')
      ++m_p;
    else if (c == '<')
      return fail(m_p, std::string("\"<\" in ") + what);
    else if (c == '&') {
      if (!reference())
        return false;
    } else if (!character((std::string("in ") + what).c_str()))
      return false;
  }
  out->size = static_cast<std::size_t>(m_p - out->start);
  ++m_p;
  return true;
}

bool Checker::xmlDeclaration() {
  m_p += 5; // "<?xml"
  const auto equals = [this]() {
    skipSpace();
    if (m_p >= m_end || *m_p != '=')
      return fail(m_p, "expected \"=\" in the XML declaration");
    ++m_p;
    skipSpace();
    return true;
  };
  const auto is = [](const Name& value, const char* text) {
    return value.size == std::strlen(text) &&
           std::memcmp(value.start, text, value.size) == 0;
  };
  bool spaced = skipSpace();
  if (!spaced || !startsWith("version"))
    return fail(m_p, "the XML declaration must name the version first");
  m_p += 7;
  Name value;
  if (!equals() || !quotedValue(&value, "XML version"))
    return false;
  if (is(value, "1.1"))
    return refuse(value.start, "XML version 1.1 is not accepted: the text must "
                               "be XML 1.0");
  if (!is(value, "1.0"))
    return fail(value.start,
                "unsupported XML version \"" + value.text() + "\"");
  spaced = skipSpace();
  if (spaced && startsWith("encoding")) {
    m_p += 8;
    if (!equals() || !quotedValue(&value, "encoding name"))
      return false;
    std::string encoding = value.text();
    bool wellFormedName =
        !encoding.empty() && ((encoding[0] >= 'A' && encoding[0] <= 'Z') ||
                              (encoding[0] >= 'a' && encoding[0] <= 'z'));
    for (char& c : encoding) {
      const bool allowed = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                           (c >= '0' && c <= '9') || c == '.' || c == '_' ||
                           c == '-';
      wellFormedName = wellFormedName && allowed;
      if (c >= 'a' && c <= 'z')
        c = static_cast<char>(c - 'a' + 'A');
    }
    if (!wellFormedName)
      return fail(value.start, "malformed encoding name");
    if (encoding != "UTF-8" && encoding != "UTF8")
      return refuse(value.start, "the encoding \"" + value.text() +
                                     "\" is not accepted: the text must be "
                                     "UTF-8");
    spaced = skipSpace();
  }
  if (spaced && startsWith("standalone")) {
    m_p += 10;
    if (!equals() || !quotedValue(&value, "standalone value"))
      return false;
    if (!is(value, "yes") && !is(value, "no"))
      return fail(value.start, "standalone must be \"yes\" or \"no\"");
    skipSpace();
  }
  if (!startsWith("?>"))
    return m_p >= m_end ? failAtEnd("the XML declaration")
                        : fail(m_p, "malformed XML declaration");
  m_p += 2;
  return true;
}

// At "<!--".
bool Checker::comment() {
  m_p += 4;
  for (;;) {
    while (m_p < m_end && *m_p != '-' && *m_p >= 0x20 && *m_p < 0x80)
      ++m_p;
    if (m_p >= m_end)
      return failAtEnd("a comment");
    if (*m_p == '-') {
      if (m_end - m_p >= 2 && m_p[1] == '-') {
        if (m_end - m_p >= 3 && m_p[2] == '>') {
          m_p += 3;
          return true;
        }
        return fail(m_p, "\"--\" inside a comment");
      }
      ++m_p;
    } else if (*m_p < 0x80 && isSpace(*m_p)) {
      ++m_p;
    } else if (!character("in a comment")) {
      return false;
    }
  }
}

// At "<?".
bool Checker::processingInstruction() {
  const Ptr at = m_p;
  m_p += 2;
  Name target;
  if (!name(&target, "a processing instruction target", true))
    return false;
  if (target.size == 3 && (target.start[0] | 0x20) == 'x' &&
      (target.start[1] | 0x20) == 'm' && (target.start[2] | 0x20) == 'l')
    return fail(at, "an XML declaration stands only at the start of the text, "
                    "and no processing instruction is named \"xml\"");
  if (startsWith("?>")) {
    m_p += 2;
    return true;
  }
  if (!skipSpace())
    return m_p >= m_end ? failAtEnd("a processing instruction")
                        : fail(m_p, "malformed processing instruction");
  for (;;) {
    while (m_p < m_end && *m_p != '?' && *m_p >= 0x20 && *m_p < 0x80)
      ++m_p;
    if (m_p >= m_end)
      return failAtEnd("a processing instruction");
    if (startsWith("?>")) {
      m_p += 2;
      return true;
    }
    if (*m_p == '?' || (*m_p < 0x80 && isSpace(*m_p)))
      ++m_p;
    else if (!character("in a processing instruction"))
      return false;
  }
}

// At "<![CDATA[".
bool Checker::cdataSection() {
  m_p += 9;
  for (;;) {
    while (m_p < m_end && *m_p != ']' && *m_p >= 0x20 && *m_p < 0x80)
      ++m_p;
    if (m_p >= m_end)
      return failAtEnd("a CDATA section");
    if (startsWith("]]>")) {
      m_p += 3;
      return true;
    }
    if (*m_p == ']' || (*m_p < 0x80 && isSpace(*m_p)))
      ++m_p;
    else if (!character("in a CDATA section"))
      return false;
  }
}

// At '<' of a start tag.
bool Checker::startTag(bool* empty) {
  const Ptr at = m_p++;
  if (m_open.size() >= m_maxDepth)
    return refuse(at, "elements nested deeper than " +
                          std::to_string(m_maxDepth) + " are not accepted");
  Name element;
  if (!name(&element, "an element name"))
    return false;
  m_attributeNames.clear();
  m_manyAttributeNames.clear();
  // Attributes are mostly in order (writers sort them): while each name
  // comes after the one before, none can repeat an earlier one.
  bool ordered = true;
  for (;;) {
    const bool spaced = skipSpace();
    if (m_p >= m_end)
      return failAtEnd("a start tag");
    if (*m_p == '>') {
      ++m_p;
      *empty = false;
      break;
    }
    if (*m_p == '/') {
      if (m_end - m_p < 2 || m_p[1] != '>')
        return fail(m_p, "expected \"/>\"");
      m_p += 2;
      *empty = true;
      break;
    }
    if (!spaced)
      return fail(m_p, "expected white space, \">\" or \"/>\" in a start tag");
    Name attribute;
    if (!name(&attribute, "an attribute name"))
      return false;
    skipSpace();
    if (m_p >= m_end)
      return failAtEnd("a start tag");
    if (*m_p != '=')
      return fail(m_p, "expected \"=\" after the attribute name");
    ++m_p;
    skipSpace();
    Name value;
    if (!quotedValue(&value, "attribute value"))
      return false;
    // Attribute names are unique within one element.
    const std::string_view key(reinterpret_cast<const char*>(attribute.start),
                               attribute.size);
    bool repeated = false;
    if (ordered) {
      if (m_attributeNames.empty() || m_attributeNames.back() < attribute) {
        m_attributeNames.push_back(attribute);
        continue;
      }
      ordered = false;
      if (m_attributeNames.size() >= 16)
        for (const Name& seen : m_attributeNames)
          m_manyAttributeNames.insert(std::string_view(
              reinterpret_cast<const char*>(seen.start), seen.size));
    }
    if (m_attributeNames.size() < 16) {
      for (const Name& seen : m_attributeNames)
        repeated = repeated || seen == attribute;
      m_attributeNames.push_back(attribute);
      if (m_attributeNames.size() == 16)
        for (const Name& seen : m_attributeNames)
          m_manyAttributeNames.insert(std::string_view(
              reinterpret_cast<const char*>(seen.start), seen.size));
    } else {
      repeated = !m_manyAttributeNames.insert(key).second;
    }
    if (repeated)
      return fail(attribute.start,
                  "the attribute \"" + attribute.text() + "\" is given twice");
  }
  if (!*empty)
    m_open.push_back(element);
  return true;
}

// At "</".
bool Checker::endTag() {
  const Ptr at = m_p;
  m_p += 2;
  Name element;
  if (!name(&element, "an element name"))
    return false;
  skipSpace();
  if (m_p >= m_end)
    return failAtEnd("an end tag");
  if (*m_p != '>')
    return fail(m_p, "expected \">\" to end the end tag");
  ++m_p;
  if (!(element == m_open.back()))
    return fail(at, "the end tag \"" + element.text() +
                        "\" does not match the start tag \"" +
                        m_open.back().text() + "\"");
  m_open.pop_back();
  return true;
}

// Everything inside the document element, up to its end tag.
bool Checker::content() {
  while (!m_open.empty()) {
    m_p = skipPlain(m_p, m_end, m_tables.contentStop, '<', '&', ']', ']');
    if (m_p >= m_end)
      return fail(m_end, "the text ends before the element \"" +
                             m_open.back().text() + "\" is closed");
    const unsigned char c = *m_p;
    if (c == '<') {
      const unsigned char next = m_end - m_p >= 2 ? m_p[1] : 0;
      if (next == '/') {
        if (!endTag())
          return false;
      } else if (next == '!') {
        if (startsWith("<!--")) {
          if (!comment())
            return false;
        } else if (startsWith("<![CDATA[")) {
          if (!cdataSection())
            return false;
        } else {
          return fail(m_p, "unexpected \"<!\" in element content");
        }
      } else if (next == '?') {
        if (!processingInstruction())
          return false;
      } else {
        bool empty = false;
        if (!startTag(&empty))
          return false;
      }
    } else if (c == '&') {
      if (!reference())
        return false;
    } else if (c == ']') {
      if (startsWith("]]>"))
        return fail(m_p, "\"]]>\" in text");
      ++m_p;
    } else if (!character("in text")) {
      return false;
    }
  }
  return true;
}

// White space, a comment or a processing instruction outside the document
// element; *consumed tells whether there was one.
bool Checker::misc(bool* consumed) {
  *consumed = true;
  if (skipSpace())
    return true;
  if (startsWith("<!--"))
    return comment();
  if (startsWith("<?"))
    return processingInstruction();
  *consumed = false;
  return true;
}

bool Checker::run() {
  // Byte order marks and the starts of "<?xml" in the encodings that XML
  // readers recognise without a declaration (UTF-16, UTF-32, EBCDIC): a
  // zero byte never starts UTF-8 text that is XML.
  if (m_end - m_p >= 2 && ((m_p[0] == 0xFE && m_p[1] == 0xFF) ||
                           (m_p[0] == 0xFF && m_p[1] == 0xFE)))
    return refuse(m_p, "UTF-16 text is not accepted: the text must be UTF-8");
  if (std::memchr(m_p, 0, std::min<std::size_t>(4, m_end - m_p)) ||
      startsWith("\x4C\x6F\xA7\x94"))
    return refuse(m_p, "text in another encoding than UTF-8 is not accepted");
  if (startsWith("\xEF\xBB\xBF"))
    m_p += 3;
  if (startsWith("<?xml") &&
      (m_end - m_p == 5 || isSpace(m_p[5]) || m_p[5] == '?'))
    if (!xmlDeclaration())
      return false;

  bool consumed = true;
  while (consumed)
    if (!misc(&consumed))
      return false;
  if (m_p >= m_end)
    return fail(m_p, "no document element");
  if (startsWith("<!DOCTYPE"))
    return refuse(m_p, "a document type declaration is not accepted (nor are "
                       "entity declarations)");
  if (*m_p != '<' || m_end - m_p < 2 || m_p[1] == '!' || m_p[1] == '/')
    return fail(m_p, "expected the document element");
  bool empty = false;
  if (!startTag(&empty) || !content())
    return false;

  for (consumed = true; consumed;)
    if (!misc(&consumed))
      return false;
  if (m_p < m_end)
    return fail(m_p, "content after the document element");
  return true;
}

} // namespace

int readUtf8(const unsigned char* p, const unsigned char* end,
             char32_t* codePoint) {
  const unsigned char lead = p[0];
  if (lead < 0x80) {
    *codePoint = lead;
    return 1;
  }
  int following;
  unsigned char low = 0x80, high = 0xBF; // range of the second byte
  char32_t c;
  if (lead < 0xC2) {
    return -1;
  } else if (lead < 0xE0) {
    following = 1;
    c = lead & 0x1F;
  } else if (lead < 0xF0) {
    following = 2;
    c = lead & 0x0F;
    if (lead == 0xE0)
      low = 0xA0;
    else if (lead == 0xED)
      high = 0x9F;
  } else if (lead < 0xF5) {
    following = 3;
    c = lead & 0x07;
    if (lead == 0xF0)
      low = 0x90;
    else if (lead == 0xF4)
      high = 0x8F;
  } else {
    return -1;
  }
  int length = 1;
  for (int i = 0; i < following; ++i, ++length) {
    if (p + length >= end)
      return -length;
    const unsigned char b = p[length];
    if (b < low || b > high)
      return -length;
    low = 0x80;
    high = 0xBF;
    c = (c << 6) | (b & 0x3F);
  }
  *codePoint = c;
  return length;
}

void appendRepairedUtf8(const char* text, std::size_t size, std::string* out) {
  const Ptr begin = reinterpret_cast<Ptr>(text);
  const Ptr end = begin + size;
  Ptr run = begin;
  for (Ptr p = begin; p < end;) {
    if (*p < 0x80) {
      ++p;
      continue;
    }
    char32_t c;
    const int length = readUtf8(p, end, &c);
    if (length > 0) {
      p += length;
      continue;
    }
    out->append(reinterpret_cast<const char*>(run),
                static_cast<std::size_t>(p - run));
    out->append("\xEF\xBF\xBD");
    p -= length;
    run = p;
  }
  out->append(reinterpret_cast<const char*>(run),
              static_cast<std::size_t>(end - run));
}

bool isXmlName(const char* name, std::size_t size) {
  if (size == 0)
    return false;
  const Tables& t = tables();
  const Ptr begin = reinterpret_cast<Ptr>(name);
  const Ptr end = begin + size;
  Ptr p = begin;
  for (; p < end && *p < 0x80; ++p)
    if (!(p == begin ? t.nameFirst[*p] : t.nameRest[*p]))
      return false;
  if (p == end)
    return true;
  // Beyond ASCII the name is tested as the DOM tests element and attribute
  // names (which, unlike the XML library's parser, refuses characters
  // beyond the basic plane).
  std::vector<XMLCh> units;
  units.reserve(size);
  for (p = begin; p < end;) {
    char32_t c = 0;
    const int length = readUtf8(p, end, &c);
    if (length < 0)
      return false;
    if (c < 0x10000) {
      units.push_back(static_cast<XMLCh>(c));
    } else {
      units.push_back(static_cast<XMLCh>(0xD800 + ((c - 0x10000) >> 10)));
      units.push_back(static_cast<XMLCh>(0xDC00 + ((c - 0x10000) & 0x3FF)));
    }
    p += length;
  }
  return XMLChar1_0::isValidName(units.data(), units.size());
}

bool checkXmlSyntax(const char* text, std::size_t size, unsigned maxDepth,
                    XmlTextError* error) {
  Checker checker(text, size, maxDepth);
  if (checker.run())
    return true;
  if (error) {
    *error = XmlTextError();
    locateXmlOffset(text, size, checker.errorOffset(), &error->line,
                    &error->column);
    error->message =
        checker.refused() ? checker.message() : "not XML: " + checker.message();
  }
  return false;
}

void locateXmlOffset(const char* text, std::size_t size, std::size_t offset,
                     unsigned long* line, unsigned long* column) {
  *line = 1;
  *column = 1;
  const std::size_t stop = offset < size ? offset : size;
  for (std::size_t i = 0; i < stop; ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c == '\n' || c == '\r') {
      ++*line;
      *column = 1;
      if (c == '\r' && i + 1 < stop && text[i + 1] == '\n')
        ++i;
    } else if (c < 0x80 || c >= 0xC0) {
      ++*column;
    }
  }
}

} // namespace DbgData
} // namespace Vemo
