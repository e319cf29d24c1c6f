// DeserializerHelperDOM: the reader over a DOM element in the layout that
// SerializerHelperDOM writes.
//
// Sections are child elements found by name; values are attributes of the
// current element's "values" child. The reader walks a document that its
// caller owns and releases nothing.
#ifndef DBGDATA_DESERIALIZERHELPERDOM_H
#define DBGDATA_DESERIALIZERHELPERDOM_H

#include "serializerhelper.h"

#include <xercesc/util/XercesDefs.hpp>

#include <string>
#include <vector>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {

class DeserializerHelperDOM : public IDeserializerHelper, public IValueCount {
public:
  // A reader with no element yet: every read answers false until initDOM().
  DeserializerHelperDOM() = default;
  // initDOM(element).
  explicit DeserializerHelperDOM(const xercesc::DOMElement* element);
  ~DeserializerHelperDOM() override;
  DeserializerHelperDOM(const DeserializerHelperDOM&) = delete;
  DeserializerHelperDOM& operator=(const DeserializerHelperDOM&) = delete;

  // Attribute "ClassName" of the current element and, when that was read,
  // attribute "SubKey".
  bool getNameAndSubKey(std::string* className,
                        std::string* subKey) const override;
  // The value reads below look at the attribute key of the current node's
  // "values" child. Without that child a number or bool reads as 0 (false)
  // and a string, address, scope or key stays unchanged; the answer is
  // false. An attribute the element lacks reads as empty text and counts as
  // found.

  // True exactly for the text "true".
  bool getBool(const std::string& key, bool* out) const override;
  // Decimal text; text that does not parse leaves *out unchanged.
  bool getInt(const std::string& key, int* out) const override;
  bool getInt(const std::string& key, unsigned int* out) const override;
  bool getInt(const std::string& key, long* out) const override;
  bool getInt(const std::string& key, unsigned long* out) const override;
  bool getInt(const std::string& key, long long* out) const override;
  bool getInt(const std::string& key, unsigned long long* out) const override;
  // atof of the text.
  bool getFloat(const std::string& key, double* out) const override;
  bool getString(const std::string& key, std::string* out) const override;
  bool getAddress(const std::string& key, Address* out) const override;
  bool getScope(const std::string& key, Scope* out) const override;
  bool getDbgDataKey(const std::string& key, DbgDataKey* out) const override;

  // Makes the first child named name current; false when there is none.
  bool pushSection(const std::string& name) override;
  // pushSection(name) plus a new child cursor standing before the first
  // child; false (and no cursor) when the section is missing.
  bool pushListSection(const std::string& name) override;
  // Puts the top cursor on the first child node of the current node (of
  // whatever node type) and makes it current; false when there is none or
  // no list section is open.
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

  // cleanupDOM() followed by initDOM(element).
  virtual void resetDOM(const xercesc::DOMElement* element);
  // Makes element the only entry of the focus stack and its owner document
  // the document read. A null element or one without an owner document is
  // a fatal error ("Bad Pointer!").
  virtual void initDOM(const xercesc::DOMElement* element);
  // Forgets document and element and empties both stacks.
  virtual void cleanupDOM();
  // First child of the current node with this node name, or null.
  virtual const xercesc::DOMNode* findSubNode(const std::string& name) const;
  // First child element of the current node with this node name whose
  // attribute "SubKey" equals subKey, or null.
  virtual const xercesc::DOMNode* findSubNode(const std::string& name,
                                              const std::string& subKey) const;
  // Makes node the current node; false (and nothing happens) for null.
  virtual bool setFocusToChild(const xercesc::DOMNode* node);
  // Returns to the previous current node; false on an empty stack.
  virtual bool setFocusToParent();
  // The current node, or null when the focus stack is empty.
  virtual const xercesc::DOMNode* getFocusNode() const;

  // Reads attribute key of node (of the current node when node is null)
  // into *out and answers true. When that node is not an element, prints a
  // "<not found!>" line to the standard error stream, empties *out and
  // answers false. A null out is a fatal error ("Bad Pointer!").
  bool getStringHelper(const std::string& key, std::string* out,
                       const xercesc::DOMNode* node) const;

protected:
  const xercesc::DOMDocument* document = nullptr;
  const xercesc::DOMElement* rootElement = nullptr;
  std::vector<const xercesc::DOMNode*> focusStack;
  // One per open list section: the child the cursor stands on, null before
  // the first one and after the last one.
  std::vector<const xercesc::DOMNode*> childCursors;

private:
  // The current node's first "values" child, or null. Every value of a
  // section is read from it, so it is looked up once while a node is
  // current; every change of the current node forgets it.
  const xercesc::DOMNode* valuesNode() const;
  void forgetValuesNode();
  mutable const xercesc::DOMNode* m_valuesOf = nullptr;
  mutable const xercesc::DOMNode* m_values = nullptr;

  // The text of attribute key of the "values" child into *text; false when
  // there is no such child or it cannot be read.
  bool getValueText(const std::string& key, std::string* text) const;
  template <class Int> bool getIntValue(const std::string& key, Int* out) const;
  // getStringHelper with the attribute's name as a DOM string; key is the
  // same name for the message.
  bool readAttribute(const XMLCh* name, const char* key, std::string* out,
                     const xercesc::DOMNode* node) const;
};

} // namespace DbgData
} // namespace Vemo

#endif
