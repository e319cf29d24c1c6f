// DbgDataKey: the full key naming a data object's place in the hierarchy.
//
// A key is a sequence of sub keys, root first. Its text form writes each
// element behind a "/" and escapes a "/" inside an element as "\/".
#ifndef DBGDATA_DBGDATAKEY_H
#define DBGDATA_DBGDATAKEY_H

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Vemo {
namespace DbgData {

// Places of the data hierarchy; the enumerators live with the name tables
// (ddmanager.h). Declared here so that a key can append a place's name.
enum DDHierarchyID : std::int32_t;

class DbgDataKey {
public:
  DbgDataKey();
  explicit DbgDataKey(const std::string& text);
  explicit DbgDataKey(const char* text);
  // Elements [from, end) of other; end 0 means "through the last element".
  DbgDataKey(const DbgDataKey& other, unsigned long from, unsigned long end);
  DbgDataKey(const DbgDataKey&) = default;
  DbgDataKey(DbgDataKey&&) noexcept = default;
  ~DbgDataKey() = default;

  DbgDataKey& operator=(const std::string& text);
  DbgDataKey& operator=(const DbgDataKey&) = default;
  DbgDataKey& operator=(DbgDataKey&&) noexcept = default;

  // Takes over other's separator and escape and its elements [from, end);
  // end is a position, not a count, and 0 means "through the last element".
  void copy(const DbgDataKey& other, unsigned long from, unsigned long end);

  // Appends one element verbatim: no splitting, no unescaping.
  DbgDataKey& append(const std::string& element);
  // Appends other's elements [from, end), with end as for copy().
  DbgDataKey& append(const DbgDataKey& other, unsigned long from = 0,
                     unsigned long end = 0);

  DbgDataKey& operator+=(const std::string& element);
  DbgDataKey& operator+=(const DbgDataKey& other);
  DbgDataKey& operator<<(const std::string& element);
  DbgDataKey& operator<<(const char* element);
  // Appends the hierarchy name of a place (defined with the name tables).
  DbgDataKey& operator<<(DDHierarchyID place);

  DbgDataKey operator+(const std::string& element) const;
  DbgDataKey operator+(const DbgDataKey& other) const;

  // Removes the last n elements, all of them when n >= size().
  void removeLast(unsigned long n);

  // No range check: the index must be below size().
  const std::string& operator[](unsigned int index) const {
    return m_elements[index];
  }
  // The key must not be empty.
  const std::string& getLast() const { return m_elements.back(); }
  unsigned long size() const { return m_elements.size(); }
  bool empty() const { return m_elements.empty(); }
  const std::vector<std::string>& elements() const { return m_elements; }

  // True when some element equals the text exactly.
  bool find(const std::string& element) const;
  // True when sub's elements follow each other in this key, starting at the
  // first occurrence of sub's first element (later occurrences are not
  // tried). sub must not be empty.
  bool find(const DbgDataKey& sub) const;

  bool operator==(const DbgDataKey& other) const;
  bool operator!=(const DbgDataKey& other) const { return !(*this == other); }

  std::string toString() const;
  std::string escapeSeparators(const std::string& element) const;
  std::string unescapeSeparators(const std::string& element) const;

  // Replaces the elements with those of the text; answers their count.
  std::uint32_t parseString(const std::string& text);

private:
  std::vector<std::string> m_elements;
  std::string m_separator;
  std::string m_escape;
};

// Writes toString(), without quotes.
std::ostream& operator<<(std::ostream& out, const DbgDataKey& key);
// Reads a double-quoted text (which may hold blanks) or one word; when the
// text gives no element the stream is moved back to where it stood.
std::istream& operator>>(std::istream& in, DbgDataKey& key);

} // namespace DbgData
} // namespace Vemo

#endif
