// XML text on both sides of the DOM: for owners of SerializerHelperDOM and
// DeserializerHelperDOM that store or send the tree as text. The writer and
// reader themselves only deal with DOM trees.
//
// Nothing here throws: failures are answered with false and described by an
// XmlTextError.
#ifndef DBGDATA_XMLTEXT_H
#define DBGDATA_XMLTEXT_H

#include <xercesc/util/XercesDefs.hpp>

#include <string>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {

// Keeps the XML library initialised while the object lives. Instances may
// nest; the library counts them. Every DOM object must be gone before the
// last instance is.
class XmlPlatform {
public:
  XmlPlatform();
  ~XmlPlatform();
  XmlPlatform(const XmlPlatform&) = delete;
  XmlPlatform& operator=(const XmlPlatform&) = delete;

  // False when the library could not be initialised (see getError()).
  bool isReady() const { return m_ready; }
  const std::string& getError() const { return m_error; }

private:
  bool m_ready = false;
  std::string m_error;
};

// Where and why reading or writing XML text failed. Line and column are 1
// based; 0 when the failure has no position.
struct XmlTextError {
  unsigned long line = 0;
  unsigned long column = 0;
  std::string message;
};

// Writes node (a document, or a node of one) as UTF-8 XML text into *text.
// With prettyPrint, elements are indented one per line. On failure answers
// false, leaves *text unchanged and fills *error when given.
bool writeXmlText(const xercesc::DOMNode* node, bool prettyPrint,
                  std::string* text, XmlTextError* error = nullptr);

// Removes every text node below node that holds nothing but whitespace, such
// as the indentation of pretty-printed text, which the reader would take for
// list children.
void removeWhitespaceText(xercesc::DOMNode* node);

// A document read from XML text; owns the document. Documents are read
// without validation, namespaces or external entities.
class XmlTextDocument {
public:
  XmlTextDocument() = default;
  ~XmlTextDocument();
  XmlTextDocument(const XmlTextDocument&) = delete;
  XmlTextDocument& operator=(const XmlTextDocument&) = delete;

  // Reads text, replacing the document held. With dropWhitespace the
  // whitespace-only text nodes are removed (removeWhitespaceText). On
  // failure answers false, holds no document and describes the first error.
  bool parse(const std::string& text, bool dropWhitespace = true);

  // The document (owned by this object), or null.
  xercesc::DOMDocument* getDocument() const { return m_document; }
  // Its document element, or null.
  const xercesc::DOMElement* getDocumentElement() const;
  const XmlTextError& getError() const { return m_error; }

private:
  void release();

  xercesc::DOMDocument* m_document = nullptr;
  XmlTextError m_error;
};

} // namespace DbgData
} // namespace Vemo

#endif
