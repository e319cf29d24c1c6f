// SerializerHelperDOM: the writer that builds an XML DOM document.
//
// Every serialized object becomes an element below the document element
// "UserContentContainer"; sections are child elements, the class name and
// sub key are attributes of the object's own element, and member values are
// attributes of its "values" child (or of the current element when it has
// none). Turning the tree into XML text is left to the tree's owner.
//
// Also declares A2X and X2A, the owning transcoders between the program's
// narrow strings and the DOM's 16-bit strings, shared with the reader.
#ifndef DBGDATA_SERIALIZERHELPERDOM_H
#define DBGDATA_SERIALIZERHELPERDOM_H

#include "serializerhelper.h"

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <string>
#include <vector>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {

// A narrow, NUL-terminated text as a DOM string, owned for the lifetime of
// the object. Texts made only of ASCII characters are widened directly into
// an inline buffer, which gives the same result as the transcoder for every
// ASCII-compatible code page; other texts go through XMLString::transcode
// and are freed with XMLString::release.
class A2X {
public:
  explicit A2X(const char* pszAnsiStr);
  explicit A2X(const std::string& ansiStr) : A2X(ansiStr.c_str()) {}
  ~A2X();
  A2X(const A2X&) = delete;
  A2X& operator=(const A2X&) = delete;

  const XMLCh* get() const { return _psxXmlStr; }

private:
  static const std::size_t InlineSize = 64;
  XMLCh _inline[InlineSize];
  XMLCh* _psxXmlStr;
  bool _bTranscoded;
};

// A DOM string as a narrow, NUL-terminated text, owned for the lifetime of
// the object; the reverse of A2X, with the same ASCII shortcut.
class X2A {
public:
  explicit X2A(const XMLCh* psxXmlStr);
  ~X2A();
  X2A(const X2A&) = delete;
  X2A& operator=(const X2A&) = delete;

  const char* get() const { return _pszAnsiStr; }

private:
  static const std::size_t InlineSize = 128;
  char _inline[InlineSize];
  char* _pszAnsiStr;
  bool _bTranscoded;
};

// An ASCII literal as a DOM string, converted at compile time; used for the
// fixed element and attribute names so they are not transcoded per call.
template <std::size_t N> struct XmlLiteral {
  XMLCh text[N];
  constexpr explicit XmlLiteral(const char (&ascii)[N]) : text() {
    for (std::size_t i = 0; i < N; ++i)
      text[i] = static_cast<XMLCh>(ascii[i]);
  }
  constexpr const XMLCh* get() const { return text; }
};

// First child of parent (of any node type) whose node name equals name; null
// when there is none or parent is null.
xercesc::DOMNode* findChildNamed(const xercesc::DOMNode* parent,
                                 const XMLCh* name);
// First child of parent with node name name that is an element whose
// attribute "SubKey" equals subKey; null when there is none.
xercesc::DOMNode* findChildNamed(const xercesc::DOMNode* parent,
                                 const XMLCh* name, const XMLCh* subKey);

// The XML writer. The constructor calls initDOM(), so the XML library must
// have been initialised (XMLPlatformUtils::Initialize) before a writer is
// made, and it must outlive the writer. The writer owns its document: the
// destructor and cleanupDOM() release it, so owners turn the tree into text
// (through getDocument() or getFocusNode()) before that. resetDOM() starts a
// fresh document, so one writer can serve several rounds.
//
// No exception of the XML library leaves the writer: a DOM operation that
// throws makes the writer operation answer false (or null).
class SerializerHelperDOM : public ISerializerHelper {
public:
  SerializerHelperDOM();
  ~SerializerHelperDOM() override;
  SerializerHelperDOM(const SerializerHelperDOM&) = delete;
  SerializerHelperDOM& operator=(const SerializerHelperDOM&) = delete;

  // Attributes "ClassName" and then (when that worked) "SubKey" of the
  // current element itself.
  bool setClassNameAndSubKey(const std::string& className,
                             const std::string& subKey) override;
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
  bool pushSection(const std::string& name) override;
  // setFocusToParent(); false (and nothing happens) on an empty stack.
  bool popSection() override;

  // cleanupDOM() followed by initDOM().
  virtual void resetDOM();
  // A new empty document whose root element is the current node; a document
  // still held is released first. No DOM implementation, document or root
  // element is a fatal error ("Bad Pointer!").
  virtual void initDOM();
  // Releases the document and empties the focus stack.
  virtual void cleanupDOM();
  // New element named name appended to the current node; null when there is
  // no current node or the DOM refuses. The document owns the node.
  virtual xercesc::DOMNode* insertGroupNode(const std::string& name);
  // First child of the current node with this node name, or null.
  virtual xercesc::DOMNode* findSubNode(const std::string& name) const;
  // First child of the current node with this node name whose attribute
  // "SubKey" equals subKey, or null.
  virtual xercesc::DOMNode* findSubNode(const std::string& name,
                                        const std::string& subKey) const;
  // Makes node the current node; false (and nothing happens) for null.
  virtual bool setFocusToChild(xercesc::DOMNode* node);
  // Returns to the previous current node; false on an empty stack.
  virtual bool setFocusToParent();
  // The current node, or null when the focus stack is empty.
  virtual xercesc::DOMNode* getFocusNode() const;

  // Sets attribute key to value on node (on the current node when node is
  // null); false when that is not an element or the DOM refuses.
  bool setStringHelper(const std::string& key, const std::string& value,
                       xercesc::DOMNode* node);

  // The document being built (owned by the writer), or null after cleanup.
  xercesc::DOMDocument* getDocument() const { return document; }

protected:
  xercesc::DOMDocument* document = nullptr;
  xercesc::DOMNode* rootElement = nullptr;
  std::vector<xercesc::DOMNode*> focusStack;

private:
  // The "values" child of the current node (or null): where values go.
  xercesc::DOMNode* valueTarget() const;
  // The attribute name on node (the current node when null) set to value.
  bool setAttributeText(xercesc::DOMNode* node, const XMLCh* name,
                        const char* value);
  bool setValueText(const std::string& key, const char* value);
  // New element named name appended to parent, or null.
  xercesc::DOMElement* appendElement(xercesc::DOMNode* parent,
                                     const XMLCh* name);
};

} // namespace DbgData
} // namespace Vemo

#endif
