#include "serializerhelperDOM.h"

#include "../Common/DDAssert.h"
#include "dbgdatakey.h"
#include "ddfatalerror.h"
#include "valuetypes.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include <charconv>
#include <cstdio>
#include <type_traits>

using namespace xercesc;

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSourceName = "src/serializerhelperDOM";

constexpr XmlLiteral kCore("Core");
constexpr XmlLiteral kUserContentContainer("UserContentContainer");
constexpr XmlLiteral kAttributes("attributes");
constexpr XmlLiteral kValues("values");
constexpr XmlLiteral kClassName("ClassName");
constexpr XmlLiteral kSubKey("SubKey");

// Runs a DOM operation; the exceptions of the XML library become the
// fallback answer, so that none of them leaves the writer.
template <class Result, class Operation>
Result withoutXmlExceptions(Result fallback, Operation operation) {
  try {
    return operation();
  } catch (const DOMException&) {
  } catch (const OutOfMemoryException&) {
  } catch (const XMLException&) {
  }
  return fallback;
}

DOMElement* asElement(DOMNode* node) {
  return node && node->getNodeType() == DOMNode::ELEMENT_NODE
             ? static_cast<DOMElement*>(node)
             : nullptr;
}

// Decimal text of an integer, as printf's %d family writes it.
template <class Int> struct DecimalText {
  char text[24];
  explicit DecimalText(Int value) {
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof(text) - 1, value);
    *end.ptr = '\0';
  }
};

} // namespace

// ---------------------------------------------------------------------------
// Transcoders

// Both converters copy ASCII in a loop, whatever its length, into the
// inline buffer or a buffer of the XML library's memory manager (which
// XMLString::release frees, as it frees what transcode makes); only text
// with other characters goes through the XML library's transcoder.
namespace {

template <class Out, class In>
Out* copyAscii(const In* text, Out* inlineBuffer, std::size_t inlineSize) {
  std::size_t length = 0;
  while (text[length] != 0) {
    if (static_cast<std::make_unsigned_t<In>>(text[length]) >= 0x80)
      return nullptr;
    ++length;
  }
  Out* out = inlineBuffer;
  if (length >= inlineSize)
    out = static_cast<Out*>(XMLPlatformUtils::fgMemoryManager->allocate(
        (length + 1) * sizeof(Out)));
  for (std::size_t i = 0; i <= length; ++i)
    out[i] = static_cast<Out>(text[i]);
  return out;
}

} // namespace

A2X::A2X(const char* pszAnsiStr) : _psxXmlStr(nullptr), _bTranscoded(false) {
  DD_ASSERT(pszAnsiStr);
  _psxXmlStr = copyAscii(pszAnsiStr, _inline, InlineSize);
  if (!_psxXmlStr)
    _psxXmlStr = XMLString::transcode(pszAnsiStr);
  _bTranscoded = _psxXmlStr != _inline;
  DD_ASSERT(_psxXmlStr);
}

A2X::~A2X() {
  if (_bTranscoded)
    XMLString::release(&_psxXmlStr);
}

X2A::X2A(const XMLCh* psxXmlStr) : _pszAnsiStr(nullptr), _bTranscoded(false) {
  DD_ASSERT(psxXmlStr);
  _pszAnsiStr = copyAscii(psxXmlStr, _inline, InlineSize);
  if (!_pszAnsiStr)
    _pszAnsiStr = XMLString::transcode(psxXmlStr);
  _bTranscoded = _pszAnsiStr != _inline;
  DD_ASSERT(_pszAnsiStr);
}

X2A::~X2A() {
  if (_bTranscoded)
    XMLString::release(&_pszAnsiStr);
}

// ---------------------------------------------------------------------------
// Child lookup shared with the reader

DOMNode* findChildNamed(const DOMNode* parent, const XMLCh* name) {
  if (!parent)
    return nullptr;
  for (DOMNode* child = parent->getFirstChild(); child;
       child = child->getNextSibling()) {
    if (XMLString::equals(child->getNodeName(), name))
      return child;
  }
  return nullptr;
}

DOMNode* findChildNamed(const DOMNode* parent, const XMLCh* name,
                        const XMLCh* subKey) {
  if (!parent)
    return nullptr;
  for (DOMNode* child = parent->getFirstChild(); child;
       child = child->getNextSibling()) {
    const DOMElement* element = asElement(child);
    if (element && XMLString::equals(child->getNodeName(), name) &&
        XMLString::equals(element->getAttribute(kSubKey.get()), subKey))
      return child;
  }
  return nullptr;
}

// ---------------------------------------------------------------------------
// SerializerHelperDOM

SerializerHelperDOM::SerializerHelperDOM() { initDOM(); }

SerializerHelperDOM::~SerializerHelperDOM() { cleanupDOM(); }

void SerializerHelperDOM::resetDOM() {
  cleanupDOM();
  initDOM();
}

void SerializerHelperDOM::initDOM() {
  if (document)
    cleanupDOM();
  DOMImplementation* implementation =
      DOMImplementationRegistry::getDOMImplementation(kCore.get());
  if (!implementation)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  document = withoutXmlExceptions<DOMDocument*>(nullptr, [&] {
    return implementation->createDocument(nullptr, kUserContentContainer.get(),
                                          nullptr,
                                          XMLPlatformUtils::fgMemoryManager);
  });
  if (!document)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  rootElement = document->getDocumentElement();
  if (!rootElement)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  focusStack.clear();
  setFocusToChild(rootElement);
}

void SerializerHelperDOM::cleanupDOM() {
  if (document) {
    withoutXmlExceptions(false, [&] {
      document->release();
      return true;
    });
  }
  document = nullptr;
  rootElement = nullptr;
  focusStack.clear();
}

DOMElement* SerializerHelperDOM::appendElement(DOMNode* parent,
                                               const XMLCh* name) {
  if (!document || !parent)
    return nullptr;
  return withoutXmlExceptions<DOMElement*>(nullptr, [&] {
    DOMElement* element = document->createElement(name);
    parent->appendChild(element);
    return element;
  });
}

DOMNode* SerializerHelperDOM::insertGroupNode(const std::string& name) {
  A2X xmlName(name);
  return appendElement(getFocusNode(), xmlName.get());
}

DOMNode* SerializerHelperDOM::findSubNode(const std::string& name) const {
  A2X xmlName(name);
  return findChildNamed(getFocusNode(), xmlName.get());
}

DOMNode* SerializerHelperDOM::findSubNode(const std::string& name,
                                          const std::string& subKey) const {
  A2X xmlName(name);
  A2X xmlSubKey(subKey);
  return findChildNamed(getFocusNode(), xmlName.get(), xmlSubKey.get());
}

bool SerializerHelperDOM::setFocusToChild(DOMNode* node) {
  if (!node)
    return false;
  focusStack.push_back(node);
  return true;
}

bool SerializerHelperDOM::setFocusToParent() {
  if (focusStack.empty())
    return false;
  focusStack.pop_back();
  return true;
}

DOMNode* SerializerHelperDOM::getFocusNode() const {
  return focusStack.empty() ? nullptr : focusStack.back();
}

bool SerializerHelperDOM::pushSection(const std::string& name) {
  DOMNode* section = insertGroupNode(name);
  if (!section)
    return false;
  setFocusToChild(section);
  if (name != "DataElement")
    return true;
  const bool attributesMade = appendElement(section, kAttributes.get());
  const bool valuesMade = appendElement(section, kValues.get());
  return attributesMade && valuesMade;
}

bool SerializerHelperDOM::popSection() { return setFocusToParent(); }

// ---------------------------------------------------------------------------
// Values

bool SerializerHelperDOM::setAttributeText(DOMNode* node, const XMLCh* name,
                                           const char* value) {
  DOMElement* element = asElement(node ? node : getFocusNode());
  if (!element)
    return false;
  return withoutXmlExceptions(false, [&] {
    A2X xmlValue(value);
    element->setAttribute(name, xmlValue.get());
    return true;
  });
}

bool SerializerHelperDOM::setStringHelper(const std::string& key,
                                          const std::string& value,
                                          DOMNode* node) {
  A2X xmlKey(key);
  return setAttributeText(node, xmlKey.get(), value.c_str());
}

DOMNode* SerializerHelperDOM::valueTarget() const {
  return findChildNamed(getFocusNode(), kValues.get());
}

bool SerializerHelperDOM::setValueText(const std::string& key,
                                       const char* value) {
  A2X xmlKey(key);
  return setAttributeText(valueTarget(), xmlKey.get(), value);
}

bool SerializerHelperDOM::setClassNameAndSubKey(const std::string& className,
                                                const std::string& subKey) {
  return setAttributeText(nullptr, kClassName.get(), className.c_str()) &&
         setAttributeText(nullptr, kSubKey.get(), subKey.c_str());
}

bool SerializerHelperDOM::setBool(const std::string& key, bool value) {
  return setValueText(key, value ? "true" : "false");
}

bool SerializerHelperDOM::setInt(const std::string& key, int value) {
  return setValueText(key, DecimalText<int>(value).text);
}

bool SerializerHelperDOM::setInt(const std::string& key, unsigned int value) {
  return setValueText(key, DecimalText<unsigned int>(value).text);
}

bool SerializerHelperDOM::setInt(const std::string& key, long value) {
  return setValueText(key, DecimalText<long>(value).text);
}

bool SerializerHelperDOM::setInt(const std::string& key, unsigned long value) {
  return setValueText(key, DecimalText<unsigned long>(value).text);
}

bool SerializerHelperDOM::setInt(const std::string& key, long long value) {
  return setValueText(key, DecimalText<long long>(value).text);
}

bool SerializerHelperDOM::setInt(const std::string& key,
                                 unsigned long long value) {
  return setValueText(key, DecimalText<unsigned long long>(value).text);
}

bool SerializerHelperDOM::setFloat(const std::string& key, double value) {
  // Large magnitudes print every integer digit: up to 309 of them.
  char text[400];
  std::snprintf(text, sizeof(text), "%f", value);
  return setValueText(key, text);
}

bool SerializerHelperDOM::setString(const std::string& key,
                                    const std::string& value) {
  return setValueText(key, value.c_str());
}

bool SerializerHelperDOM::setAddress(const std::string& key,
                                     const Address& value) {
  std::string text;
  value.serialize(text);
  return setValueText(key, text.c_str());
}

bool SerializerHelperDOM::setScope(const std::string& key, const Scope& value) {
  std::string text;
  value.serialize(text);
  return setValueText(key, text.c_str());
}

bool SerializerHelperDOM::setDbgDataKey(const std::string& key,
                                        const DbgDataKey& value) {
  return setValueText(key, value.toString().c_str());
}

} // namespace DbgData
} // namespace Vemo
