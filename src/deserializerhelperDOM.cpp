#include "deserializerhelperDOM.h"

#include "dbgdatakey.h"
#include "ddfatalerror.h"
#include "serializerhelperDOM.h"
#include "valuetext.h"
#include "valuetypes.h"

#include <xercesc/dom/DOM.hpp>

#include <cstdlib>
#include <iostream>

using namespace xercesc;

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSourceName = "src/deserializerhelperDOM";

constexpr XmlLiteral kValues("values");
constexpr XmlLiteral kClassName("ClassName");
constexpr XmlLiteral kSubKey("SubKey");

void requireOutput(const void* out, unsigned long line) {
  if (!out)
    throwDDFatalError("Bad Pointer!", kSourceName, line);
}

// A DOM string as narrow text in *out: ASCII straight into the string
// (short text through a buffer on the stack, checked and narrowed in one
// pass), other text through the transcoder (X2A).
void assignNarrow(const XMLCh* text, std::string* out) {
  char buffer[128];
  std::size_t length = 0;
  while (length < sizeof buffer && text[length] != 0 && text[length] < 0x80) {
    buffer[length] = static_cast<char>(text[length]);
    ++length;
  }
  if (length < sizeof buffer && text[length] == 0) {
    out->assign(buffer, length);
    return;
  }
  while (text[length] != 0 && text[length] < 0x80)
    ++length;
  if (text[length] != 0) {
    const X2A narrow(text);
    out->assign(narrow.get());
    return;
  }
  out->resize(length);
  char* const chars = &(*out)[0];
  for (std::size_t i = 0; i < length; ++i)
    chars[i] = static_cast<char>(text[i]);
}

} // namespace

DeserializerHelperDOM::DeserializerHelperDOM(const DOMElement* element) {
  initDOM(element);
}

DeserializerHelperDOM::~DeserializerHelperDOM() { cleanupDOM(); }

// ---------------------------------------------------------------------------
// Document and focus

void DeserializerHelperDOM::resetDOM(const DOMElement* element) {
  cleanupDOM();
  initDOM(element);
}

void DeserializerHelperDOM::initDOM(const DOMElement* element) {
  if (!element)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  const DOMDocument* owner = element->getOwnerDocument();
  if (!owner)
    throwDDFatalError("Bad Pointer!", kSourceName, __LINE__);
  forgetValuesNode();
  document = owner;
  rootElement = element;
  focusStack.clear();
  childCursors.clear();
  setFocusToChild(element);
}

void DeserializerHelperDOM::cleanupDOM() {
  forgetValuesNode();
  document = nullptr;
  rootElement = nullptr;
  focusStack.clear();
  childCursors.clear();
}

const DOMNode*
DeserializerHelperDOM::findSubNode(const std::string& name) const {
  A2X xmlName(name);
  return findChildNamed(getFocusNode(), xmlName.get());
}

const DOMNode*
DeserializerHelperDOM::findSubNode(const std::string& name,
                                   const std::string& subKey) const {
  A2X xmlName(name);
  A2X xmlSubKey(subKey);
  return findChildNamed(getFocusNode(), xmlName.get(), xmlSubKey.get());
}

bool DeserializerHelperDOM::setFocusToChild(const DOMNode* node) {
  if (!node)
    return false;
  forgetValuesNode();
  focusStack.push_back(node);
  return true;
}

bool DeserializerHelperDOM::setFocusToParent() {
  if (focusStack.empty())
    return false;
  forgetValuesNode();
  focusStack.pop_back();
  return true;
}

const DOMNode* DeserializerHelperDOM::getFocusNode() const {
  return focusStack.empty() ? nullptr : focusStack.back();
}

// ---------------------------------------------------------------------------
// Sections

bool DeserializerHelperDOM::pushSection(const std::string& name) {
  return setFocusToChild(findSubNode(name));
}

bool DeserializerHelperDOM::pushListSection(const std::string& name) {
  if (!pushSection(name))
    return false;
  childCursors.push_back(nullptr);
  return true;
}

bool DeserializerHelperDOM::pushFirstChildSection() {
  if (childCursors.empty())
    return false;
  const DOMNode* current = getFocusNode();
  childCursors.back() = current ? current->getFirstChild() : nullptr;
  return setFocusToChild(childCursors.back());
}

bool DeserializerHelperDOM::pushNextChildSection() {
  if (childCursors.empty() || !childCursors.back())
    return false;
  childCursors.back() = childCursors.back()->getNextSibling();
  return setFocusToChild(childCursors.back());
}

bool DeserializerHelperDOM::popSection() { return setFocusToParent(); }

bool DeserializerHelperDOM::popListSection() {
  if (childCursors.empty())
    return false;
  childCursors.pop_back();
  return setFocusToParent();
}

// ---------------------------------------------------------------------------
// Values

bool DeserializerHelperDOM::getStringHelper(const std::string& key,
                                            std::string* out,
                                            const DOMNode* node) const {
  const A2X name(key);
  return readAttribute(name.get(), key.c_str(), out, node);
}

bool DeserializerHelperDOM::readAttribute(const XMLCh* name, const char* key,
                                          std::string* out,
                                          const DOMNode* node) const {
  requireOutput(out, __LINE__);
  const DOMNode* target = node ? node : getFocusNode();
  if (target && target->getNodeType() == DOMNode::ELEMENT_NODE) {
    assignNarrow(static_cast<const DOMElement*>(target)->getAttribute(name),
                 out);
    return true;
  }
  std::cerr << "SerializerHelperDOM::setStringHelper(" << key << ", "
            << "<not found!>"
            << ", " << static_cast<const void*>(target) << ");" << std::endl;
  out->clear();
  return false;
}

bool DeserializerHelperDOM::getValueText(const std::string& key,
                                         std::string* text) const {
  const DOMNode* values = valuesNode();
  return values && getStringHelper(key, text, values);
}

const DOMNode* DeserializerHelperDOM::valuesNode() const {
  const DOMNode* focus = getFocusNode();
  if (focus != m_valuesOf) {
    m_valuesOf = focus;
    m_values = findChildNamed(focus, kValues.get());
  }
  return m_values;
}

void DeserializerHelperDOM::forgetValuesNode() {
  m_valuesOf = nullptr;
  m_values = nullptr;
}

unsigned long DeserializerHelperDOM::getValueCount() const {
  const DOMNode* values = valuesNode();
  const DOMNamedNodeMap* attributes =
      values ? values->getAttributes() : nullptr;
  return attributes ? static_cast<unsigned long>(attributes->getLength()) : 0;
}

bool DeserializerHelperDOM::getNameAndSubKey(std::string* className,
                                             std::string* subKey) const {
  return readAttribute(kClassName.get(), "ClassName", className, nullptr) &&
         readAttribute(kSubKey.get(), "SubKey", subKey, nullptr);
}

bool DeserializerHelperDOM::getBool(const std::string& key, bool* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  const bool found = getValueText(key, &text);
  *out = found && text == "true";
  return found;
}

template <class Int>
bool DeserializerHelperDOM::getIntValue(const std::string& key,
                                        Int* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  if (!getValueText(key, &text)) {
    *out = 0;
    return false;
  }
  readIntegerText(text, out);
  return true;
}

bool DeserializerHelperDOM::getInt(const std::string& key, int* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getInt(const std::string& key,
                                   unsigned int* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getInt(const std::string& key, long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getInt(const std::string& key,
                                   unsigned long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getInt(const std::string& key,
                                   long long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getInt(const std::string& key,
                                   unsigned long long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperDOM::getFloat(const std::string& key,
                                     double* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  const bool found = getValueText(key, &text);
  *out = found ? std::atof(text.c_str()) : 0.0;
  return found;
}

bool DeserializerHelperDOM::getString(const std::string& key,
                                      std::string* out) const {
  requireOutput(out, __LINE__);
  const DOMNode* values = valuesNode();
  return values && getStringHelper(key, out, values);
}

bool DeserializerHelperDOM::getAddress(const std::string& key,
                                       Address* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  if (!getValueText(key, &text))
    return false;
  out->deserialize(text);
  return true;
}

bool DeserializerHelperDOM::getScope(const std::string& key, Scope* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  if (!getValueText(key, &text))
    return false;
  out->deserialize(text);
  return true;
}

bool DeserializerHelperDOM::getDbgDataKey(const std::string& key,
                                          DbgDataKey* out) const {
  requireOutput(out, __LINE__);
  std::string text;
  if (!getValueText(key, &text))
    return false;
  *out = text;
  return true;
}

} // namespace DbgData
} // namespace Vemo
