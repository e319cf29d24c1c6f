#include "layoutcheck.h"

#include "ddmanager.h"
#include "debuggerdata.h"
#include "serializerhelperDOM.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/TransService.hpp>

#include <memory>

using namespace xercesc;

namespace Vemo {
namespace DbgData {

namespace LayoutCheckDetail {

const char* const kSectionNames[3] = {"DataList", "DataListWC", "DataElement"};
const char* const kInnerSectionNames[4] = {"EngineData", "Child", "Content",
                                           "List"};

} // namespace LayoutCheckDetail

bool LayoutFactoryProbe::makes(LayoutSection section, const char* className) {
  // Most objects are of the class asked for last.
  if (!m_answers.empty() && m_answers[m_last].section == section &&
      m_answers[m_last].className == className)
    return m_answers[m_last].made;
  for (std::size_t i = 0; i < m_answers.size(); ++i) {
    if (m_answers[i].section == section &&
        m_answers[i].className == className) {
      m_last = i;
      return m_answers[i].made;
    }
  }
  // As the deserializer decides it: lists are of the generic list classes
  // only, and the object must be of its section's kind.
  static const char* const requiredClassNames[] = {"DataList", "DataListWC",
                                                   nullptr};
  static const RTTITempl<DebuggerData>* (*const kinds[])() = {
      &DataList::staticRtti, &DataListWC::staticRtti, &DataElement::staticRtti};
  bool made = false;
  const char* required = requiredClassNames[section];
  if (!required || std::strcmp(required, className) == 0) {
    const std::unique_ptr<DebuggerData> object(
        st_ddmanager.factory(className, std::string()));
    made = object && object->isKindOf(kinds[section]());
  }
  m_last = m_answers.size();
  m_answers.push_back(Answer{section, className, made});
  return made;
}

namespace {

// The UTF-8 form of a DOM string, whatever the locale.
std::string utf8(const XMLCh* text) {
  if (!text)
    return std::string();
  try {
    TranscodeToStr converted(text, "UTF-8");
    return std::string(reinterpret_cast<const char*>(converted.str()),
                       converted.length());
  } catch (...) {
    return "?";
  }
}

bool isWhitespaceText(const DOMNode* node) {
  for (const XMLCh* c = node->getNodeValue(); c && *c; ++c)
    if (*c != ' ' && *c != '\t' && *c != '\n' && *c != '\r')
      return false;
  return true;
}

// A DOM document as the check sees it: elements, and text other than white
// space (CDATA sections included); comments and processing instructions are
// not there for the check.
struct DomTree {
  typedef const DOMNode* Node;

  static bool counts(Node node) {
    switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
    case DOMNode::CDATA_SECTION_NODE:
      return true;
    case DOMNode::TEXT_NODE:
      return !isWhitespaceText(node);
    default:
      return false;
    }
  }
  static Node skip(Node node) {
    while (node && !counts(node))
      node = node->getNextSibling();
    return node;
  }
  Node firstChild(Node node) const { return skip(node->getFirstChild()); }
  Node nextSibling(Node node) const { return skip(node->getNextSibling()); }
  bool isElement(Node node) const {
    return node->getNodeType() == DOMNode::ELEMENT_NODE;
  }
  bool nameIs(Node node, const char* name) const {
    A2X xmlName(name);
    return XMLString::equals(node->getNodeName(), xmlName.get());
  }
  const char* attribute(Node node, const char* name) const {
    A2X xmlName(name);
    m_attribute =
        utf8(static_cast<const DOMElement*>(node)->getAttribute(xmlName.get()));
    return m_attribute.c_str();
  }

  mutable std::string m_attribute;
};

// "/UserContentContainer/DataList[1]/List/Child[2]": each element with its
// position among the siblings of its name when it has such siblings.
std::string pathOf(const DOMNode* node) {
  std::string path;
  for (; node && node->getNodeType() != DOMNode::DOCUMENT_NODE;
       node = node->getParentNode()) {
    std::string step = node->getNodeType() == DOMNode::ELEMENT_NODE
                           ? utf8(node->getNodeName())
                           : std::string("text()");
    const DOMNode* parent = node->getParentNode();
    if (parent && node->getNodeType() == DOMNode::ELEMENT_NODE) {
      unsigned position = 0, count = 0;
      for (const DOMNode* sibling = parent->getFirstChild(); sibling;
           sibling = sibling->getNextSibling()) {
        if (sibling->getNodeType() == DOMNode::ELEMENT_NODE &&
            XMLString::equals(sibling->getNodeName(), node->getNodeName())) {
          ++count;
          if (sibling == node)
            position = count;
        }
      }
      if (count > 1)
        step += "[" + std::to_string(position) + "]";
    }
    path = "/" + step + path;
  }
  return path;
}

} // namespace

bool checkDocumentLayout(const DOMElement* root, std::string* problem) {
  if (!root) {
    *problem = "no document element";
    return false;
  }
  DomTree tree;
  DomTree::Node where = nullptr;
  std::string message;
  if (checkObjectLayout(tree, static_cast<const DOMNode*>(root), &where,
                        &message))
    return true;
  *problem = message + " (at " + pathOf(where) + ")";
  return false;
}

} // namespace DbgData
} // namespace Vemo
