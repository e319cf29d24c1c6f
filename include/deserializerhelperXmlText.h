// DeserializerHelperXmlText: the reader of XML text in the layout that the
// XML writers produce, without a DOM document of the XML library.
//
// parse() reads the text into a document of its own and checks it before
// any of it reaches the Deserializer: the text must be a well-formed XML
// 1.0 document in UTF-8 without a document type declaration, nested at most
// kMaxLayoutDepth elements deep, and every data object below the document
// element must be readable without the deserializer's fatal-error routine
// (checkObjectLayout). What fails is told as one XmlTextError with line and
// column; nothing in text makes this reader or the deserializer stop the
// process.
//
// After parse() the reader answers every call as DeserializerHelperDOM
// answers it over the DOM document that XmlTextDocument::parse makes of the
// same text: sections are child elements found by name, values are
// attributes of the current element's first "values" child, and a list's
// children are the element's child nodes. The reader sees elements and text
// other than white space; comments and processing instructions are not
// there for it (as in the dbgdata tool's reading of XML documents).
#ifndef DBGDATA_DESERIALIZERHELPERXMLTEXT_H
#define DBGDATA_DESERIALIZERHELPERXMLTEXT_H

#include "serializerhelper.h"
#include "xmltext.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace pugi {
struct xml_node_struct;
}

namespace Vemo {
namespace DbgData {

class DeserializerHelperXmlText : public IDeserializerHelper,
                                  public IValueCount {
public:
  // A reader without a document: every read answers false until parse().
  DeserializerHelperXmlText();
  ~DeserializerHelperXmlText() override;
  DeserializerHelperXmlText(const DeserializerHelperXmlText&) = delete;
  DeserializerHelperXmlText&
  operator=(const DeserializerHelperXmlText&) = delete;

  // Reads and checks text, replacing the document held. On success the
  // document element is the current node, so that
  // getDeserializer()->deserialize(this) reads the first object below it.
  // On failure answers false, holds no document and fills *error (when
  // given) with the first problem; there is then no current node, and a
  // deserializer handed the reader would find no object and stop the
  // process, so objects are read only after parse() answered true.
  bool parse(const std::string& text, XmlTextError* error = nullptr);

  // The number of object sections ("DataElement", "DataList" and
  // "DataListWC" elements) directly below the document element; 0 without
  // a document.
  std::size_t getObjectCount() const;
  // Makes the current node the document element as if its index-th object
  // section were its only child, so that the next deserialize() reads that
  // object. False (and nothing changes) without such an object.
  bool selectObject(std::size_t index);
  // The name of the document element; empty without a document.
  std::string getDocumentElementName() const;

  // Attribute "ClassName" of the current element and, when that was read,
  // attribute "SubKey"; a node that is no element reads as empty text and
  // answers false.
  bool getNameAndSubKey(std::string* className,
                        std::string* subKey) const override;
  // The value reads look at the attribute key of the current node's first
  // "values" child. Without that child a number or bool reads as 0 (false)
  // and a string, address, scope or key stays unchanged; the answer is
  // false. An attribute the element lacks reads as empty text and counts as
  // found. Conversions are those of DeserializerHelperDOM.
  bool getBool(const std::string& key, bool* out) const override;
  bool getInt(const std::string& key, int* out) const override;
  bool getInt(const std::string& key, unsigned int* out) const override;
  bool getInt(const std::string& key, long* out) const override;
  bool getInt(const std::string& key, unsigned long* out) const override;
  bool getInt(const std::string& key, long long* out) const override;
  bool getInt(const std::string& key, unsigned long long* out) const override;
  bool getFloat(const std::string& key, double* out) const override;
  bool getString(const std::string& key, std::string* out) const override;
  bool getAddress(const std::string& key, Address* out) const override;
  bool getScope(const std::string& key, Scope* out) const override;
  bool getDbgDataKey(const std::string& key, DbgDataKey* out) const override;

  // Makes the first child element named name current; false when none.
  bool pushSection(const std::string& name) override;
  // pushSection(name) plus a child cursor standing before the first child;
  // false (and no cursor) when the section is missing.
  bool pushListSection(const std::string& name) override;
  // Puts the top cursor on the first child node of the current node and
  // makes it current; false when there is none or no list section is open.
  bool pushFirstChildSection() override;
  // Moves the top cursor to the next sibling of the node it stands on (also
  // when that is null) and makes it current when there is one.
  bool pushNextChildSection() override;
  // Leaves the current node; false (and nothing happens) on an empty stack.
  bool popSection() override;
  // Leaves the list section and drops its cursor; false (and nothing
  // happens) when no list section is open.
  bool popListSection() override;

  // The number of attributes of the current node's "values" child.
  unsigned long getValueCount() const override;

private:
  typedef pugi::xml_node_struct* Node;
  struct Document;
  // An entered node; with only set, the document element seen with that
  // one child (selectObject). The node's first "values" child is looked up
  // once.
  struct Focus {
    Node node;
    Node only;
    mutable Node values;
    mutable bool valuesKnown;
  };

  void clear();
  Node firstChild(const Focus& focus) const;
  Node findChild(const Focus& focus, const std::string& name) const;
  bool enter(Node node);
  // The current node's first "values" child, or null.
  Node valuesNode() const;
  // The text of attribute key of the current node's "values" child; null
  // when there is no such child, "" when it lacks the attribute.
  const char* valueText(const std::string& key) const;
  template <class Int> bool getIntValue(const std::string& key, Int* out) const;

  // One per open list section: the child it stands on, null before the
  // first one and after the last one; single when the section shows one
  // child only.
  struct Cursor {
    Node node;
    bool single;
  };

  std::unique_ptr<Document> m_document;
  std::vector<Focus> m_focus;
  std::vector<Cursor> m_cursors;
};

} // namespace DbgData
} // namespace Vemo

#endif
