#include "xmllayout.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include <cstring>

using namespace xercesc;

namespace Vemo {
namespace DbgData {
namespace Tools {

namespace {

// The layout of SerializerHelperDOM's documents. Sections are local
// elements, so that only "UserContentContainer" may be the document element.
// Every place where the deserializer expects an object holds exactly one,
// and a list's "List" holds nothing but "Child" wrappers: this is what keeps
// the deserializer's fatal errors out of reach. Values are attributes of
// "values" elements, whatever their keys.
const char kSchema[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:element name="UserContentContainer">
    <xs:complexType>
      <xs:group ref="Object" minOccurs="0" maxOccurs="unbounded"/>
    </xs:complexType>
  </xs:element>

  <xs:group name="Object">
    <xs:choice>
      <xs:element name="DataElement" type="DataElementSection"/>
      <xs:element name="DataList" type="DataListSection"/>
      <xs:element name="DataListWC" type="DataListWCSection"/>
    </xs:choice>
  </xs:group>

  <xs:complexType name="OneObject">
    <xs:group ref="Object"/>
  </xs:complexType>

  <xs:complexType name="NoContent"/>

  <xs:complexType name="Values">
    <xs:anyAttribute processContents="skip"/>
  </xs:complexType>

  <xs:complexType name="DataElementSection">
    <xs:sequence>
      <xs:element name="attributes" type="NoContent"/>
      <xs:element name="values" type="Values"/>
      <xs:element name="EngineData" type="OneObject" minOccurs="0"/>
    </xs:sequence>
    <xs:attribute name="ClassName" type="xs:string" use="required"/>
    <xs:attribute name="SubKey" type="xs:string" use="required"/>
  </xs:complexType>

  <xs:complexType name="Children">
    <xs:sequence>
      <xs:element name="Child" type="OneObject"
                  minOccurs="0" maxOccurs="unbounded"/>
    </xs:sequence>
  </xs:complexType>

  <xs:complexType name="DataListSection">
    <xs:sequence>
      <xs:element name="values" type="Values" minOccurs="0"/>
      <xs:element name="List" type="Children"/>
    </xs:sequence>
    <xs:attribute name="ClassName" type="xs:string" use="required"
                  fixed="DataList"/>
    <xs:attribute name="SubKey" type="xs:string" use="required"/>
  </xs:complexType>

  <xs:complexType name="Content">
    <xs:sequence>
      <xs:element name="DataElement" type="DataElementSection"/>
    </xs:sequence>
  </xs:complexType>

  <xs:complexType name="DataListWCSection">
    <xs:sequence>
      <xs:element name="values" type="Values" minOccurs="0"/>
      <xs:element name="List" type="Children"/>
      <xs:element name="Content" type="Content" minOccurs="0"/>
    </xs:sequence>
    <xs:attribute name="ClassName" type="xs:string" use="required"
                  fixed="DataListWC"/>
    <xs:attribute name="SubKey" type="xs:string" use="required"/>
  </xs:complexType>
</xs:schema>
)";

const XMLCh kLoadSave[] = u"LS";
const XMLCh kSchemaId[] = u"layout.xsd";
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
// Parsing goes on after a validity error, so that a document with the
// wrong document element is told as such rather than by the schema's words.
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

// Keeps nothing but elements (drops indentation that is not ignorable,
// processing instructions and the like; the layout carries all data in
// attributes) and interrupts the parse at the first element nested deeper
// than the limit, before the XML library spends time on such a tree.
class ElementsOnly : public DOMLSParserFilter {
public:
  explicit ElementsOnly(unsigned maxDepth) : m_maxDepth(maxDepth) {}

  FilterAction startElement(DOMElement*) override {
    if (++m_depth <= m_maxDepth)
      return FILTER_ACCEPT;
    m_tooDeep = true;
    return FILTER_INTERRUPT;
  }
  FilterAction acceptNode(DOMNode* node) override {
    if (node->getNodeType() != DOMNode::ELEMENT_NODE)
      return FILTER_REJECT;
    --m_depth;
    return FILTER_ACCEPT;
  }
  DOMNodeFilter::ShowType getWhatToShow() const override {
    return DOMNodeFilter::SHOW_ALL;
  }

  bool tooDeep() const { return m_tooDeep; }

private:
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
    config->setParameter(XMLUni::fgDOMNamespaces, true);
    config->setParameter(XMLUni::fgXercesSchema, true);
    config->setParameter(XMLUni::fgDOMValidate, true);
    config->setParameter(XMLUni::fgXercesUseCachedGrammarInParse, true);
    // Only the built-in layout: no schema, DTD or entity from elsewhere.
    config->setParameter(XMLUni::fgXercesLoadSchema, false);
    config->setParameter(XMLUni::fgDOMDisallowDoctype, true);
    config->setParameter(XMLUni::fgXercesDisableDefaultEntityResolution, true);
    config->setParameter(XMLUni::fgDOMComments, false);
    config->setParameter(XMLUni::fgDOMElementContentWhitespace, false);

    FirstError schemaError;
    HandlerScope handler(config, &schemaError);
    InputPtr schema = makeInput(kSchema, sizeof(kSchema) - 1, kSchemaId);
    if (!m_parser->loadGrammar(schema.get(), Grammar::SchemaGrammarType,
                               true) ||
        schemaError.seen())
      m_setupProblem = schemaError.describe("the layout schema is broken");
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
  ElementsOnly filter(kMaxDepth);
  const std::string tooDeep =
      "objects nested deeper than " + std::to_string(kMaxDepth) + " elements";
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
    *problem = firstError.describe("not the layout of serialized data");
    return nullptr;
  }
  return document;
}

} // namespace Tools
} // namespace DbgData
} // namespace Vemo
