// SerializerHelperXmlText: the writer that produces the XML text of the
// layout directly, without a DOM document.
//
// The text is, byte for byte, what writeXmlText makes of the document that
// SerializerHelperDOM builds for the same calls: the same XML declaration,
// attributes in the DOM's order (sorted by name), the same escaping ("&amp;"
// "&lt;" "&quot;" "&#x9;" "&#xA;" "&#xD;"; ">" and "'" as they are; UTF-8 as
// it is, an ill-formed UTF-8 part as U+FFFD) and, when indenting, the same
// line breaks and indentation. Every operation answers what the DOM writer
// answers, with one exception: a value, class name or sub key holding a
// character that XML 1.0 cannot carry (a control character other than tab,
// line feed and carriage return, U+FFFE or U+FFFF) answers false and is not
// written, where the DOM writer takes it and writeXmlText then fails for the
// whole document.
//
// Strings are taken up to their first zero byte, as the DOM writer's
// transcoding takes them.
#ifndef DBGDATA_SERIALIZERHELPERXMLTEXT_H
#define DBGDATA_SERIALIZERHELPERXMLTEXT_H

#include "serializerhelper.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace Vemo {
namespace DbgData {

class SerializerHelperXmlText : public ISerializerHelper {
public:
  // A writer holding an empty document: the document element
  // "UserContentContainer" is the current node. With indent the text is
  // pretty-printed as writeXmlText(..., true, ...) prints it.
  explicit SerializerHelperXmlText(bool indent = false);
  ~SerializerHelperXmlText() override;
  SerializerHelperXmlText(const SerializerHelperXmlText&) = delete;
  SerializerHelperXmlText& operator=(const SerializerHelperXmlText&) = delete;

  // Attributes "ClassName" and then (when that worked) "SubKey" of the
  // current element itself.
  bool setClassNameAndSubKey(const std::string& className,
                             const std::string& subKey) override;
  // Values are attributes of the current element's first "values" child,
  // or of the current element when it has none; a key written twice keeps
  // the last value. False (and nothing written) when there is no current
  // element, the key is no XML name or the value cannot be carried.
  bool setBool(const std::string& key, bool value) override;
  bool setInt(const std::string& key, int value) override;
  bool setInt(const std::string& key, unsigned int value) override;
  bool setInt(const std::string& key, long value) override;
  bool setInt(const std::string& key, unsigned long value) override;
  bool setInt(const std::string& key, long long value) override;
  bool setInt(const std::string& key, unsigned long long value) override;
  bool setFloat(const std::string& key, double value) override;
  bool setString(const std::string& key, const std::string& value) override;
  bool setAddress(const std::string& key, const Address& value) override;
  bool setScope(const std::string& key, const Scope& value) override;
  bool setDbgDataKey(const std::string& key, const DbgDataKey& value) override;
  // Appends an element to the current one and makes it current; a
  // "DataElement" also gets the empty children "attributes" and "values".
  // False (and nothing happens) when name is no XML name or there is no
  // current element.
  bool pushSection(const std::string& name) override;
  // Returns to the parent element; false (and nothing happens) when there
  // is no current element. Popping the document element leaves none.
  bool popSection() override;

  // The document written so far, complete with its XML declaration and the
  // document element closed. Valid until the next write or reset().
  const std::string& getText() const;
  // Starts a new, empty document.
  void reset();

private:
  static constexpr std::uint32_t None = 0xFFFFFFFFu;

  // Elements are kept in document order (the order they are made in is a
  // preorder walk of the tree), attributes as lists per element: a short
  // list in the DOM's order (by name) as keys come, a long one in the order
  // its keys came until writing the text sorts it. Names are interned: each
  // distinct name is pooled once and known by its index.
  //
  // Escaped values are pooled as they are set. Writing the text moves them
  // into it: from then on a value is read from where it stands in the text,
  // and the pool is let go, so that the writer holds each value once.
  //
  // Elements and attributes are made in place by their constructors: a
  // temporary copied into the vector is stored in pieces and loaded whole,
  // which stalls the processor.
  struct Element {
    Element(std::uint32_t name, std::uint32_t depth)
        : textOffset(0), name(name), depth(depth), firstAttribute(None),
          lastAttribute(None), attributeCount(0), attributeBytes(0),
          values(None), hasChildren(false) {}
    // Where the element's attributes start in m_text (after "<name"), once
    // a text holds it.
    std::uint64_t textOffset;
    std::uint32_t name;
    std::uint32_t depth; // 0 for the document element
    std::uint32_t firstAttribute;
    std::uint32_t lastAttribute;
    std::uint32_t attributeCount;
    std::uint32_t attributeBytes; // of all ' name="value"' texts
    std::uint32_t values;         // the first child named "values", or None
    bool hasChildren;
  };
  struct Attribute {
    Attribute(std::uint32_t name, std::uint32_t value, std::uint32_t valueSize,
              std::uint32_t next)
        : name(name), inText(0), value(value), valueSize(valueSize),
          next(next) {}
    // Names number fewer than 2^31: each takes at least ten bytes of a
    // pool that stays below 4 GiB.
    std::uint32_t name : 31;
    std::uint32_t inText : 1;
    // Offset in m_pool or, when inText, from the element's textOffset.
    std::uint32_t value;
    std::uint32_t valueSize;
    std::uint32_t next;
  };
  // In the pool a name stands as "<name</name> name=\"", the three forms
  // in which the text carries it.
  struct Name {
    std::uint32_t offset; // of the block in m_namePool
    std::uint32_t size;   // of the name
    // The first eight bytes, ordered as the DOM orders names: two names
    // whose keys differ are ordered by their keys.
    std::uint64_t sortKey;
    // The name's place among all names in the DOM's order; known for the
    // names made before the last text.
    std::uint32_t rank;
    // The attribute of this name in m_stampedElement, if it has one:
    // stampElement equals m_stampedElement exactly then.
    std::uint32_t stampElement;
    std::uint32_t stampAttribute;
  };
  // A text looked up lately, when it is at most kCachedText bytes long: the
  // text as given, and its name's index (None: no XML name).
  static constexpr std::size_t kCachedText = 32;
  struct NameCacheEntry {
    std::uint32_t size; // None: the entry is empty
    std::uint32_t name;
    char text[kCachedText];
  };

  // The index of a name (taken up to its first zero byte, ill-formed UTF-8
  // repaired), through a small cache; None when it is no XML name.
  std::uint32_t internName(const std::string& text);
  bool nameLess(std::uint32_t a, std::uint32_t b) const;
  std::uint32_t appendElement(std::uint32_t parent, std::uint32_t name);
  // Sets attribute key of element to value.
  bool setAttribute(std::uint32_t element, const std::string& key,
                    const char* value, std::size_t size);
  bool setValue(const std::string& key, const char* value, std::size_t size);
  // Makes element the one whose keys the names' stamps tell.
  void stampKeysOf(std::uint32_t element);
  bool setValue(const std::string& key, const std::string& value);
  // Ranks the names made since the last text.
  void rankNames() const;
  // Links the attributes of element in the DOM's order.
  void sortAttributes(Element& element) const;
  void writeText() const;

  bool m_indent;
  // Writing the text reorders the lists and moves the values: what the
  // writer holds stays the same.
  mutable std::vector<Element> m_elements;
  mutable std::vector<Attribute> m_attributes;
  mutable std::vector<Name> m_names;
  std::string m_namePool;
  std::unordered_map<std::string, std::uint32_t> m_nameIndex;
  mutable std::string m_pool;
  std::vector<std::uint32_t> m_focus;
  std::vector<NameCacheEntry> m_nameCache;
  std::uint32_t m_valuesName = None;
  // Key lookup for an element with many attributes: the names stamp where
  // that element has them. One element at a time is stamped, the last one
  // written to; values of an element are written one after the other, so
  // the stamps are made again only when an earlier element is written to
  // again after another one.
  std::uint32_t m_stampedElement = None;
  mutable std::uint32_t m_rankedNames = 0;
  mutable std::string m_text;
  mutable bool m_textValid = false;
  mutable std::vector<std::uint32_t> m_sorted;
  mutable std::vector<std::uint32_t> m_openElements;
};

} // namespace DbgData
} // namespace Vemo

#endif
