#include "dbgdatakey.h"

#include "Common/DDAssert.h"

#include <istream>
#include <ostream>

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSeparator = "/";
const char* const kEscape = "\\";

// The half-open range [from, end) of a key with the given size, where an end
// of 0 stands for the size. Positions past the end are clamped so that a
// range never reaches outside the elements.
void clampRange(unsigned long size, unsigned long& from, unsigned long& end) {
  if (end == 0 || end > size)
    end = size;
  if (from > end)
    from = end;
}

// Replaces every occurrence of pattern in text by replacement, scanning left
// to right without rescanning inserted text. An empty pattern changes nothing.
std::string replaceAll(const std::string& text, const std::string& pattern,
                       const std::string& replacement) {
  if (pattern.empty())
    return text;
  std::string result;
  result.reserve(text.size());
  std::string::size_type pos = 0;
  for (;;) {
    const std::string::size_type hit = text.find(pattern, pos);
    if (hit == std::string::npos)
      break;
    result.append(text, pos, hit - pos);
    result += replacement;
    pos = hit + pattern.size();
  }
  result.append(text, pos, std::string::npos);
  return result;
}

// The elements of a key's text, appended to elements: the text is cut at
// each separator, except where escape plus separator stands for a separator
// inside an element. The leading separator is optional, and empty elements
// ("//", a trailing "/") are dropped.
void splitAtSeparator(const std::string& text, const std::string& separator,
                      const std::string& escape,
                      std::vector<std::string>& elements) {
  std::string current;
  const std::string escapedSeparator = escape + separator;
  const std::string::size_type sepLen = separator.size();
  const std::string::size_type escLen = escapedSeparator.size();
  std::string::size_type pos = 0;
  if (sepLen > 0 && text.compare(0, sepLen, separator) == 0)
    pos = sepLen;
  while (pos < text.size()) {
    if (sepLen > 0 && text.compare(pos, sepLen, separator) == 0) {
      if (!current.empty())
        elements.push_back(current);
      current.clear();
      pos += sepLen;
    } else if (sepLen > 0 && text.compare(pos, escLen, escapedSeparator) == 0) {
      current += separator;
      pos += escLen;
    } else {
      current += text[pos];
      ++pos;
    }
  }
  if (!current.empty())
    elements.push_back(current);
}

// The same for a separator and an escape of one character each (a key's
// "/" and backslash), a run of text at a time. An escape character can only
// be taken together with the separator that follows it, so a separator is
// escaped exactly when the character before it is the escape.
void splitAtSeparatorCharacter(const std::string& text, char separator,
                               char escape,
                               std::vector<std::string>& elements) {
  std::string::size_type pos = !text.empty() && text[0] == separator ? 1 : 0;
  // The start of an element that holds an escaped separator.
  std::string pending;
  for (;;) {
    const std::string::size_type hit = text.find(separator, pos);
    const std::string::size_type end =
        hit == std::string::npos ? text.size() : hit;
    if (hit != std::string::npos && hit > pos && text[hit - 1] == escape) {
      pending.append(text, pos, hit - 1 - pos);
      pending += separator;
    } else if (pending.empty()) {
      if (end > pos)
        elements.emplace_back(text, pos, end - pos);
    } else {
      pending.append(text, pos, end - pos);
      elements.push_back(std::move(pending));
      pending.clear();
    }
    if (hit == std::string::npos)
      return;
    pos = hit + 1;
  }
}

} // namespace

DbgDataKey::DbgDataKey() : m_separator(kSeparator), m_escape(kEscape) {}

DbgDataKey::DbgDataKey(const std::string& text)
    : m_separator(kSeparator), m_escape(kEscape) {
  parseString(text);
}

DbgDataKey::DbgDataKey(const char* text)
    : m_separator(kSeparator), m_escape(kEscape) {
  if (text != nullptr)
    parseString(text);
}

DbgDataKey::DbgDataKey(const DbgDataKey& other, unsigned long from,
                       unsigned long end)
    : m_separator(kSeparator), m_escape(kEscape) {
  copy(other, from, end);
}

DbgDataKey& DbgDataKey::operator=(const std::string& text) {
  parseString(text);
  return *this;
}

void DbgDataKey::copy(const DbgDataKey& other, unsigned long from,
                      unsigned long end) {
  clampRange(other.size(), from, end);
  // Built aside first: other may be this key.
  std::vector<std::string> elements(other.m_elements.begin() + from,
                                    other.m_elements.begin() + end);
  m_separator = other.m_separator;
  m_escape = other.m_escape;
  m_elements.swap(elements);
}

DbgDataKey& DbgDataKey::append(const std::string& element) {
  m_elements.push_back(element);
  return *this;
}

DbgDataKey& DbgDataKey::append(const DbgDataKey& other, unsigned long from,
                               unsigned long end) {
  clampRange(other.size(), from, end);
  if (&other == this) {
    // Inserting a vector's own range into itself is not allowed.
    const std::vector<std::string> own(m_elements.begin() + from,
                                       m_elements.begin() + end);
    m_elements.insert(m_elements.end(), own.begin(), own.end());
  } else {
    m_elements.insert(m_elements.end(), other.m_elements.begin() + from,
                      other.m_elements.begin() + end);
  }
  return *this;
}

DbgDataKey& DbgDataKey::operator+=(const std::string& element) {
  return append(element);
}

DbgDataKey& DbgDataKey::operator+=(const DbgDataKey& other) {
  return append(other);
}

DbgDataKey& DbgDataKey::operator<<(const std::string& element) {
  return append(element);
}

DbgDataKey& DbgDataKey::operator<<(const char* element) {
  m_elements.emplace_back(element != nullptr ? element : "");
  return *this;
}

DbgDataKey DbgDataKey::operator+(const std::string& element) const {
  DbgDataKey result(*this);
  result.append(element);
  return result;
}

DbgDataKey DbgDataKey::operator+(const DbgDataKey& other) const {
  DbgDataKey result(*this);
  result.append(other);
  return result;
}

void DbgDataKey::removeLast(unsigned long n) {
  if (n >= m_elements.size())
    m_elements.clear();
  else
    m_elements.resize(m_elements.size() - n);
}

bool DbgDataKey::find(const std::string& element) const {
  for (const std::string& own : m_elements)
    if (own == element)
      return true;
  return false;
}

bool DbgDataKey::find(const DbgDataKey& sub) const {
  DD_ASSERT(!sub.empty());
  // Only the first occurrence of sub's first element is tried.
  std::vector<std::string>::size_type start = 0;
  while (start < m_elements.size() && m_elements[start] != sub.m_elements[0])
    ++start;
  if (start == m_elements.size())
    return false;
  if (sub.size() > m_elements.size() - start)
    return false;
  for (std::vector<std::string>::size_type i = 1; i < sub.size(); ++i)
    if (m_elements[start + i] != sub.m_elements[i])
      return false;
  return true;
}

bool DbgDataKey::operator==(const DbgDataKey& other) const {
  if (m_elements.size() != other.m_elements.size())
    return false;
  // From the last element backwards: keys of one hierarchy share their
  // beginning, so a difference shows up sooner at the end.
  for (std::vector<std::string>::size_type i = m_elements.size(); i > 0; --i)
    if (m_elements[i - 1] != other.m_elements[i - 1])
      return false;
  return true;
}

std::string DbgDataKey::toString() const {
  std::string::size_type length = 0;
  for (const std::string& element : m_elements)
    length += m_separator.size() + element.size();
  std::string text;
  text.reserve(length);
  for (const std::string& element : m_elements) {
    text += m_separator;
    // Most elements hold no separator: they are copied as they are, without
    // building an escaped copy first.
    if (element.find(m_separator) == std::string::npos)
      text += element;
    else
      text += escapeSeparators(element);
  }
  return text;
}

std::string DbgDataKey::escapeSeparators(const std::string& element) const {
  return replaceAll(element, m_separator, m_escape + m_separator);
}

std::string DbgDataKey::unescapeSeparators(const std::string& element) const {
  return replaceAll(element, m_escape + m_separator, m_separator);
}

std::uint32_t DbgDataKey::parseString(const std::string& text) {
  m_elements.clear();
  if (m_separator.size() == 1 && m_escape.size() == 1)
    splitAtSeparatorCharacter(text, m_separator[0], m_escape[0], m_elements);
  else
    splitAtSeparator(text, m_separator, m_escape, m_elements);
  return static_cast<std::uint32_t>(m_elements.size());
}

std::ostream& operator<<(std::ostream& out, const DbgDataKey& key) {
  return out << key.toString();
}

// A text that yields no element puts the stream back where it stood, so that
// the caller can read it as something else. When there was no text at all
// (end of stream), the stream is put back and then marked failed, so that
// reading loops end.
std::istream& operator>>(std::istream& in, DbgDataKey& key) {
  if (!in.good()) {
    in.setstate(std::ios::failbit);
    return in;
  }
  // -1 for a stream that cannot tell its position: then no rewind is made.
  const std::streampos start = in.tellg();
  std::string text;
  bool gotText = false;
  in >> std::ws;
  if (in.peek() == '"') {
    // Quoted: everything up to the closing quote or the end of the stream.
    in.get();
    std::getline(in, text, '"');
    gotText = true;
  } else {
    gotText = static_cast<bool>(in >> text);
  }
  key.parseString(text);
  if (key.empty()) {
    if (start != std::streampos(-1)) {
      in.clear();
      in.seekg(start);
    }
    if (!gotText)
      in.setstate(std::ios::failbit);
  }
  return in;
}

} // namespace DbgData
} // namespace Vemo
