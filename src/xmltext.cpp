#include "xmltext.h"

#include "serializerhelperDOM.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>

using namespace xercesc;

namespace Vemo {
namespace DbgData {

namespace {

constexpr XmlLiteral kLoadSave("LS");

// Entity expansions allowed per document: ample for data objects, a bound
// for documents built to blow up.
const XMLSize_t kEntityExpansionLimit = 10000;

std::string narrow(const XMLCh* text) {
  if (!text)
    return std::string();
  X2A converted(text);
  return converted.get();
}

// Releases DOM library objects that follow the release() protocol.
struct Releaser {
  template <class T> void operator()(T* object) const { object->release(); }
};

// Keeps the first error or fatal error of a parse; warnings are ignored.
class FirstErrorHandler : public ErrorHandler {
public:
  explicit FirstErrorHandler(XmlTextError& error) : m_error(error) {}

  void warning(const SAXParseException&) override {}
  void error(const SAXParseException& e) override { keep(e); }
  void fatalError(const SAXParseException& e) override { keep(e); }
  void resetErrors() override { m_seen = false; }

  bool seen() const { return m_seen; }

private:
  void keep(const SAXParseException& e) {
    if (m_seen)
      return;
    m_seen = true;
    m_error.line = static_cast<unsigned long>(e.getLineNumber());
    m_error.column = static_cast<unsigned long>(e.getColumnNumber());
    m_error.message = narrow(e.getMessage());
  }

  XmlTextError& m_error;
  bool m_seen = false;
};

// Keeps the message of the first error the text writer reports.
class WriteErrorHandler : public DOMErrorHandler {
public:
  bool handleError(const DOMError& domError) override {
    if (m_message.empty())
      m_message = narrow(domError.getMessage());
    return false; // stop writing
  }
  const std::string& message() const { return m_message; }

private:
  std::string m_message;
};

void setError(XmlTextError* error, const std::string& message) {
  if (!error)
    return;
  *error = XmlTextError();
  error->message = message.empty() ? "XML text could not be written" : message;
}

} // namespace

// ---------------------------------------------------------------------------
// XmlPlatform

XmlPlatform::XmlPlatform() {
  try {
    XMLPlatformUtils::Initialize();
    m_ready = true;
  } catch (const XMLException& e) {
    m_error = narrow(e.getMessage());
  }
}

XmlPlatform::~XmlPlatform() {
  if (m_ready)
    XMLPlatformUtils::Terminate();
}

// ---------------------------------------------------------------------------
// Writing

bool writeXmlText(const DOMNode* node, bool prettyPrint, std::string* text,
                  XmlTextError* error) {
  if (!node || !text) {
    setError(error, "no node or no output");
    return false;
  }
  WriteErrorHandler handler;
  try {
    DOMImplementation* implementation =
        DOMImplementationRegistry::getDOMImplementation(kLoadSave.get());
    if (!implementation) {
      setError(error, "no DOM implementation for writing text");
      return false;
    }
    auto* loadSave = static_cast<DOMImplementationLS*>(implementation);
    std::unique_ptr<DOMLSSerializer, Releaser> serializer(
        loadSave->createLSSerializer());
    std::unique_ptr<DOMLSOutput, Releaser> output(loadSave->createLSOutput());
    DOMConfiguration* config = serializer->getDomConfig();
    config->setParameter(XMLUni::fgDOMErrorHandler, &handler);
    if (prettyPrint &&
        config->canSetParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true))
      config->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(XMLUni::fgUTF8EncodingString);
    if (!serializer->write(node, output.get())) {
      setError(error, handler.message());
      return false;
    }
    text->assign(reinterpret_cast<const char*>(target.getRawBuffer()),
                 target.getLen());
    return true;
  } catch (const XMLException& e) {
    setError(error, narrow(e.getMessage()));
  } catch (const DOMException& e) {
    setError(error, narrow(e.getMessage()));
  } catch (const OutOfMemoryException&) {
    setError(error, "out of memory");
  }
  return false;
}

static bool isWhitespaceText(const DOMNode* node) {
  if (node->getNodeType() != DOMNode::TEXT_NODE)
    return false;
  for (const XMLCh* c = node->getNodeValue(); c && *c; ++c) {
    if (*c != ' ' && *c != '\t' && *c != '\n' && *c != '\r')
      return false;
  }
  return true;
}

void removeWhitespaceText(DOMNode* node) {
  if (!node)
    return;
  DOMNode* child = node->getFirstChild();
  while (child) {
    DOMNode* next = child->getNextSibling();
    if (isWhitespaceText(child))
      node->removeChild(child)->release();
    else
      removeWhitespaceText(child);
    child = next;
  }
}

// ---------------------------------------------------------------------------
// Reading

XmlTextDocument::~XmlTextDocument() { release(); }

void XmlTextDocument::release() {
  if (m_document)
    m_document->release();
  m_document = nullptr;
}

const DOMElement* XmlTextDocument::getDocumentElement() const {
  return m_document ? m_document->getDocumentElement() : nullptr;
}

bool XmlTextDocument::parse(const std::string& text, bool dropWhitespace) {
  release();
  m_error = XmlTextError();
  FirstErrorHandler handler(m_error);
  try {
    SecurityManager security;
    security.setEntityExpansionLimit(kEntityExpansionLimit);
    XercesDOMParser parser;
    parser.setValidationScheme(XercesDOMParser::Val_Never);
    parser.setDoNamespaces(false);
    parser.setDoSchema(false);
    parser.setLoadExternalDTD(false);
    parser.setDisableDefaultEntityResolution(true);
    parser.setCreateEntityReferenceNodes(false);
    parser.setSecurityManager(&security);
    parser.setErrorHandler(&handler);
    MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                             text.size(), "text");
    parser.parse(source);
    if (handler.seen() || parser.getErrorCount() > 0)
      return false;
    m_document = parser.adoptDocument();
  } catch (const XMLException& e) {
    m_error.message = narrow(e.getMessage());
    return false;
  } catch (const DOMException& e) {
    m_error.message = narrow(e.getMessage());
    return false;
  } catch (const OutOfMemoryException&) {
    m_error.message = "out of memory";
    return false;
  }
  if (!m_document || !m_document->getDocumentElement()) {
    release();
    m_error.message = "no document element";
    return false;
  }
  if (dropWhitespace)
    removeWhitespaceText(m_document->getDocumentElement());
  return true;
}

} // namespace DbgData
} // namespace Vemo
