#include "xmllayout.h"

#include "layoutcheck.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstring>

using namespace xercesc;

namespace Vemo {
namespace DbgData {
namespace Tools {

namespace {

const XMLCh kLoadSave[] = u"LS";
const XMLCh kTextId[] = u"text";
const char kContainerName[] = "UserContentContainer";

} // namespace

std::string toUtf8(const XMLCh* text) {
  if (!text)
    return std::string();
  try {
    TranscodeToStr converted(text, "UTF-8");
    return std::string(reinterpret_cast<const char*>(converted.str()),
                       converted.length());
  } catch (...) {
    return "(not representable)";
  }
}

namespace {

// One line: line breaks in a message become blanks.
std::string oneLine(std::string text) {
  for (char& c : text)
    if (c == '\n' || c == '\r')
      c = ' ';
  return text;
}

// Keeps the first error of a parse with its position; warnings are ignored.
class FirstError : public DOMErrorHandler {
public:
  bool handleError(const DOMError& error) override {
    if (error.getSeverity() == DOMError::DOM_SEVERITY_WARNING || m_seen)
      return true;
    m_seen = true;
    m_fatal = error.getSeverity() == DOMError::DOM_SEVERITY_FATAL_ERROR;
    const DOMLocator* where = error.getLocation();
    m_line = where ? where->getLineNumber() : 0;
    m_column = where ? where->getColumnNumber() : 0;
    m_message = oneLine(toUtf8(error.getMessage()));
    return true;
  }

  bool seen() const { return m_seen; }
  bool fatal() const { return m_fatal; }
  std::string describe(const char* what) const {
    std::string text;
    if (m_line > 0)
      text = std::to_string(m_line) + ":" + std::to_string(m_column) + ": ";
    return text + what + ": " + m_message;
  }

private:
  bool m_seen = false;
  bool m_fatal = false;
  XMLFileLoc m_line = 0;
  XMLFileLoc m_column = 0;
  std::string m_message;
};

// Installs an error handler on a parser configuration for the lifetime of
// the object.
class HandlerScope {
public:
  HandlerScope(DOMConfiguration* config, DOMErrorHandler* handler)
      : m_config(config) {
    m_config->setParameter(XMLUni::fgDOMErrorHandler, handler);
  }
  ~HandlerScope() {
    m_config->setParameter(XMLUni::fgDOMErrorHandler,
                           static_cast<const void*>(nullptr));
  }
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

private:
  DOMConfiguration* m_config;
};

struct InputReleaser {
  void operator()(DOMLSInput* input) const { input->release(); }
};
typedef std::unique_ptr<DOMLSInput, InputReleaser> InputPtr;

// An input over bytes that stay owned by the caller.
InputPtr makeInput(const char* bytes, std::size_t length, const XMLCh* id) {
  return InputPtr(new Wrapper4InputSource(
      new MemBufInputSource(reinterpret_cast<const XMLByte*>(bytes), length, id,
                            false),
      true));
}

// Keeps elements and text other than white space (the layout carries all
// data in attributes, so text can only stand where it does not belong, and
// the layout check must see it); drops the blanks of indentation,
// processing instructions and the like. Interrupts the parse at the first
// element nested deeper than the limit, before the XML library spends time
// on such a tree.
class ElementsAndText : public DOMLSParserFilter {
public:
  explicit ElementsAndText(unsigned maxDepth) : m_maxDepth(maxDepth) {}

  FilterAction startElement(DOMElement*) override {
    if (++m_depth <= m_maxDepth)
      return FILTER_ACCEPT;
    m_tooDeep = true;
    return FILTER_INTERRUPT;
  }
  FilterAction acceptNode(DOMNode* node) override {
    switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
      --m_depth;
      return FILTER_ACCEPT;
    case DOMNode::CDATA_SECTION_NODE:
      return FILTER_ACCEPT;
    case DOMNode::TEXT_NODE:
      return isBlank(node->getNodeValue()) ? FILTER_REJECT : FILTER_ACCEPT;
    default:
      return FILTER_REJECT;
    }
  }
  DOMNodeFilter::ShowType getWhatToShow() const override {
    return DOMNodeFilter::SHOW_ALL;
  }

  bool tooDeep() const { return m_tooDeep; }

private:
  static bool isBlank(const XMLCh* text) {
    for (; text && *text; ++text)
      if (*text != ' ' && *text != '\t' && *text != '\n' && *text != '\r')
        return false;
    return true;
  }

  const unsigned m_maxDepth;
  unsigned m_depth = 0;
  bool m_tooDeep = false;
};

// Installs a filter on a parser for the lifetime of the object.
class FilterScope {
public:
  FilterScope(DOMLSParser* parser, DOMLSParserFilter* filter)
      : m_parser(parser) {
    m_parser->setFilter(filter);
  }
  ~FilterScope() { m_parser->setFilter(nullptr); }
  FilterScope(const FilterScope&) = delete;
  FilterScope& operator=(const FilterScope&) = delete;

private:
  DOMLSParser* m_parser;
};

} // namespace

void LayoutReader::ParserReleaser::operator()(DOMLSParser* parser) const {
  parser->release();
}

LayoutReader::LayoutReader() {
  try {
    DOMImplementation* implementation =
        DOMImplementationRegistry::getDOMImplementation(kLoadSave);
    if (!implementation) {
      m_setupProblem = "no DOM implementation for reading XML text";
      return;
    }
    m_parser.reset(
        static_cast<DOMImplementationLS*>(implementation)
            ->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr));
    DOMConfiguration* config = m_parser->getDomConfig();
    // No DTD, no entity and no schema from anywhere.
    config->setParameter(XMLUni::fgDOMNamespaces, false);
    config->setParameter(XMLUni::fgDOMValidate, false);
    config->setParameter(XMLUni::fgXercesLoadSchema, false);
    config->setParameter(XMLUni::fgXercesLoadExternalDTD, false);
    config->setParameter(XMLUni::fgDOMDisallowDoctype, true);
    config->setParameter(XMLUni::fgXercesDisableDefaultEntityResolution, true);
    config->setParameter(XMLUni::fgDOMComments, false);
  } catch (const XMLException& e) {
    m_setupProblem = oneLine(toUtf8(e.getMessage()));
  } catch (const DOMException& e) {
    m_setupProblem = oneLine(toUtf8(e.getMessage()));
  } catch (const OutOfMemoryException&) {
    m_setupProblem = "out of memory";
  }
  if (!m_setupProblem.empty())
    m_parser.reset();
}

LayoutReader::~LayoutReader() = default;

DOMDocument* LayoutReader::read(const std::string& text, std::string* problem) {
  if (!m_parser) {
    *problem = m_setupProblem;
    return nullptr;
  }
  // The parser owns every document it made until its pool is reset: release
  // the previous read's, so that a reader used many times stays small.
  m_parser->resetDocumentPool();
  FirstError firstError;
  ElementsAndText filter(kMaxLayoutDepth);
  const std::string tooDeep = "elements nested deeper than " +
                              std::to_string(kMaxLayoutDepth) +
                              " are not accepted";
  DOMDocument* document = nullptr;
  try {
    HandlerScope handler(m_parser->getDomConfig(), &firstError);
    FilterScope filtering(m_parser.get(), &filter);
    InputPtr input = makeInput(text.data(), text.size(), kTextId);
    document = m_parser->parse(input.get());
  } catch (const DOMLSException& e) {
    // Also the way an interrupting filter ends the parse.
    *problem = filter.tooDeep() ? tooDeep
               : firstError.seen()
                   ? firstError.describe("not XML")
                   : "not XML: " + oneLine(toUtf8(e.getMessage()));
    return nullptr;
  } catch (const DOMException& e) {
    *problem = "not XML: " + oneLine(toUtf8(e.getMessage()));
    return nullptr;
  } catch (const XMLException& e) {
    *problem = "not XML: " + oneLine(toUtf8(e.getMessage()));
    return nullptr;
  } catch (const OutOfMemoryException&) {
    *problem = "out of memory";
    return nullptr;
  }
  if (filter.tooDeep()) {
    *problem = tooDeep;
    return nullptr;
  }

  const DOMElement* root = document ? document->getDocumentElement() : nullptr;
  if (!root || (firstError.seen() && firstError.fatal())) {
    *problem = firstError.seen() ? firstError.describe("not XML")
                                 : "not XML: no document element";
    return nullptr;
  }
  const std::string rootName = toUtf8(root->getTagName());
  if (rootName != kContainerName) {
    *problem = "the document element is \"" + rootName + "\", not \"" +
               kContainerName + "\"";
    return nullptr;
  }
  if (firstError.seen()) {
    *problem = firstError.describe("not XML");
    return nullptr;
  }
  std::string layoutProblem;
  if (!checkDocumentLayout(root, &layoutProblem)) {
    *problem = "not the layout of serialized data: " + layoutProblem;
    return nullptr;
  }
  return document;
}

} // namespace Tools
} // namespace DbgData
} // namespace Vemo
