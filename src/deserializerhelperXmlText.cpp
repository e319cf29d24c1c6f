#include "deserializerhelperXmlText.h"

#include "dbgdatakey.h"
#include "ddfatalerror.h"
#include "layoutcheck.h"
#include "valuetext.h"
#include "valuetypes.h"
#include "xmlsyntax.h"

#include <pugixml.hpp>

#include <cstdlib>
#include <cstring>
#include <string_view>
#include <unordered_map>

namespace Vemo {
namespace DbgData {

namespace {

const char* const kSourceName = "src/deserializerhelperXmlText";

// "values" elements with more attributes than this find a key through an
// index.
const unsigned kLinearKeySearch = 32;

void requireOutput(const void* out, unsigned long line) {
  if (!out)
    throwDDFatalError("Bad Pointer!", kSourceName, line);
}

bool isWhitespace(const char* text) {
  for (; *text; ++text)
    if (*text != ' ' && *text != '\t' && *text != '\n' && *text != '\r')
      return false;
  return true;
}

// The nodes the reader sees: elements, CDATA sections and text other than
// white space (as the DOM keeps them after XmlTextDocument::parse).
bool counts(pugi::xml_node node) {
  switch (node.type()) {
  case pugi::node_element:
  case pugi::node_cdata:
    return true;
  case pugi::node_pcdata:
    return !isWhitespace(node.value());
  default:
    return false;
  }
}

pugi::xml_node skip(pugi::xml_node node) {
  while (node && !counts(node))
    node = node.next_sibling();
  return node;
}

pugi::xml_node firstCounted(pugi::xml_node node) {
  return skip(node.first_child());
}

pugi::xml_node nextCounted(pugi::xml_node node) {
  return skip(node.next_sibling());
}

// nodeName (NUL-terminated) equals the size bytes of name (which hold no
// zero byte): a shorter nodeName differs at its terminator at the latest.
inline bool nameIs(const char* nodeName, const char* name, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i)
    if (nodeName[i] != name[i])
      return false;
  return nodeName[size] == '\0';
}

// A name as the DOM reader looks it up: up to its first zero byte, with
// ill-formed UTF-8 replaced as the transcoder replaces it.
std::string_view lookupName(const std::string& name, std::string* scratch) {
  const char* const text = name.data();
  const std::size_t size = name.size();
  std::size_t i = 0;
  while (i < size && static_cast<unsigned char>(text[i] - 1) < 0x7F)
    ++i; // bytes 0x01 to 0x7F
  if (i == size)
    return std::string_view(text, size);
  if (text[i] == '\0')
    return std::string_view(text, i);
  std::size_t end = i;
  while (end < size && text[end] != '\0')
    ++end;
  scratch->clear();
  appendRepairedUtf8(text, end, scratch);
  return *scratch;
}

// A name's size and first seven bytes: two names with different tags
// differ, so that a search compares whole names only on equal tags.
inline std::uint64_t nameTag(const char* name, std::size_t size) {
  std::uint64_t tag = 0;
  for (std::size_t i = 0; i < 7 && i < size; ++i)
    tag |= std::uint64_t(static_cast<unsigned char>(name[i])) << (8 * i + 8);
  return tag | (size < 0xFF ? size : 0xFF);
}

// The document for the layout check.
struct PugiTree {
  typedef pugi::xml_node Node;
  Node firstChild(Node node) const { return firstCounted(node); }
  Node nextSibling(Node node) const { return nextCounted(node); }
  bool isElement(Node node) const { return node.type() == pugi::node_element; }
  bool nameIs(Node node, const char* name) const {
    return DbgData::nameIs(node.name(), name, std::strlen(name));
  }
  const char* attribute(Node node, const char* name) const {
    return node.attribute(name).value();
  }
};

bool isObjectSection(pugi::xml_node node) {
  if (node.type() != pugi::node_element)
    return false;
  const char* name = node.name();
  return std::strcmp(name, "DataElement") == 0 ||
         std::strcmp(name, "DataList") == 0 ||
         std::strcmp(name, "DataListWC") == 0;
}

} // namespace

struct DeserializerHelperXmlText::Document {
  pugi::xml_document xml;
  pugi::xml_node root;
  std::vector<pugi::xml_node> objects;
  // The attributes of the "values" element read last, with the tags of
  // their names; by name as well when there are many of them.
  pugi::xml_node cached;
  struct Attribute {
    std::uint64_t tag;
    const char* name;
    const char* value;
  };
  std::vector<Attribute> attributes;
  std::unordered_map<std::string_view, const char*> index;
};

DeserializerHelperXmlText::DeserializerHelperXmlText() = default;

DeserializerHelperXmlText::~DeserializerHelperXmlText() = default;

void DeserializerHelperXmlText::clear() {
  m_document.reset();
  m_focus.clear();
  m_cursors.clear();
}

bool DeserializerHelperXmlText::parse(const std::string& text,
                                      XmlTextError* error) {
  clear();
  XmlTextError local;
  XmlTextError& problem = error ? *error : local;
  problem = XmlTextError();
  if (!checkXmlSyntax(text.data(), text.size(), kMaxLayoutDepth, &problem))
    return false;

  std::unique_ptr<Document> document(new Document);
  const pugi::xml_parse_result parsed = document->xml.load_buffer(
      text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!parsed) {
    // Not expected after the syntax check; told all the same.
    locateXmlOffset(text.data(), text.size(),
                    static_cast<std::size_t>(parsed.offset), &problem.line,
                    &problem.column);
    problem.message = std::string("not XML: ") + parsed.description();
    return false;
  }
  document->root = document->xml.document_element();

  PugiTree tree;
  pugi::xml_node where;
  std::string message;
  if (!checkObjectLayout(tree, document->root, &where, &message)) {
    // An element's position is that of its name, after the '<'.
    std::ptrdiff_t offset = where.offset_debug();
    if (where.type() == pugi::node_element && offset > 0)
      --offset;
    locateXmlOffset(text.data(), text.size(),
                    offset < 0 ? 0 : static_cast<std::size_t>(offset),
                    &problem.line, &problem.column);
    problem.message = "not the layout of serialized data: " + message;
    return false;
  }

  for (pugi::xml_node child = document->root.first_child(); child;
       child = child.next_sibling())
    if (isObjectSection(child))
      document->objects.push_back(child);
  m_document = std::move(document);
  m_focus.push_back(
      Focus{m_document->root.internal_object(), nullptr, nullptr, false});
  return true;
}

std::size_t DeserializerHelperXmlText::getObjectCount() const {
  return m_document ? m_document->objects.size() : 0;
}

bool DeserializerHelperXmlText::selectObject(std::size_t index) {
  if (!m_document || index >= m_document->objects.size())
    return false;
  m_focus.clear();
  m_cursors.clear();
  m_focus.push_back(Focus{m_document->root.internal_object(),
                          m_document->objects[index].internal_object(), nullptr,
                          false});
  return true;
}

std::string DeserializerHelperXmlText::getDocumentElementName() const {
  return m_document ? m_document->root.name() : std::string();
}

// ---------------------------------------------------------------------------
// Sections

DeserializerHelperXmlText::Node
DeserializerHelperXmlText::firstChild(const Focus& focus) const {
  if (focus.only)
    return focus.only;
  return firstCounted(pugi::xml_node(focus.node)).internal_object();
}

DeserializerHelperXmlText::Node
DeserializerHelperXmlText::findChild(const Focus& focus,
                                     const std::string& name) const {
  std::string scratch;
  const std::string_view wanted = lookupName(name, &scratch);
  if (focus.only) {
    const pugi::xml_node only(focus.only);
    return only.type() == pugi::node_element &&
                   nameIs(only.name(), wanted.data(), wanted.size())
               ? focus.only
               : nullptr;
  }
  for (pugi::xml_node child = pugi::xml_node(focus.node).first_child(); child;
       child = child.next_sibling())
    if (child.type() == pugi::node_element &&
        nameIs(child.name(), wanted.data(), wanted.size()))
      return child.internal_object();
  return nullptr;
}

bool DeserializerHelperXmlText::enter(Node node) {
  if (!node)
    return false;
  m_focus.push_back(Focus{node, nullptr, nullptr, false});
  return true;
}

bool DeserializerHelperXmlText::pushSection(const std::string& name) {
  return !m_focus.empty() && enter(findChild(m_focus.back(), name));
}

bool DeserializerHelperXmlText::pushListSection(const std::string& name) {
  if (!pushSection(name))
    return false;
  m_cursors.push_back(Cursor{nullptr, false});
  return true;
}

bool DeserializerHelperXmlText::pushFirstChildSection() {
  if (m_cursors.empty())
    return false;
  Cursor& cursor = m_cursors.back();
  cursor.node = m_focus.empty() ? nullptr : firstChild(m_focus.back());
  cursor.single = !m_focus.empty() && m_focus.back().only;
  return enter(cursor.node);
}

bool DeserializerHelperXmlText::pushNextChildSection() {
  if (m_cursors.empty() || !m_cursors.back().node)
    return false;
  Cursor& cursor = m_cursors.back();
  cursor.node =
      cursor.single
          ? nullptr
          : nextCounted(pugi::xml_node(cursor.node)).internal_object();
  return enter(cursor.node);
}

bool DeserializerHelperXmlText::popSection() {
  if (m_focus.empty())
    return false;
  m_focus.pop_back();
  return true;
}

bool DeserializerHelperXmlText::popListSection() {
  if (m_cursors.empty())
    return false;
  m_cursors.pop_back();
  return popSection();
}

// ---------------------------------------------------------------------------
// Values

DeserializerHelperXmlText::Node DeserializerHelperXmlText::valuesNode() const {
  if (m_focus.empty())
    return nullptr;
  const Focus& focus = m_focus.back();
  if (!focus.valuesKnown) {
    static const std::string kValues("values");
    focus.values = findChild(focus, kValues);
    focus.valuesKnown = true;
  }
  return focus.values;
}

unsigned long DeserializerHelperXmlText::getValueCount() const {
  unsigned long count = 0;
  for (pugi::xml_attribute attribute =
           pugi::xml_node(valuesNode()).first_attribute();
       attribute; attribute = attribute.next_attribute())
    ++count;
  return count;
}

const char* DeserializerHelperXmlText::valueText(const std::string& key) const {
  const pugi::xml_node values(valuesNode());
  if (!values)
    return nullptr;
  std::string scratch;
  const std::string_view wanted = lookupName(key, &scratch);

  Document& document = *m_document;
  if (document.cached != values) {
    document.cached = values;
    document.attributes.clear();
    document.index.clear();
    for (pugi::xml_attribute attribute = values.first_attribute(); attribute;
         attribute = attribute.next_attribute())
      document.attributes.push_back(Document::Attribute{
          nameTag(attribute.name(), std::strlen(attribute.name())),
          attribute.name(), attribute.value()});
    if (document.attributes.size() > kLinearKeySearch)
      for (const auto& attribute : document.attributes)
        document.index.emplace(attribute.name, attribute.value);
  }
  if (document.index.empty()) {
    const std::uint64_t tag = nameTag(wanted.data(), wanted.size());
    for (const auto& attribute : document.attributes)
      if (attribute.tag == tag &&
          nameIs(attribute.name, wanted.data(), wanted.size()))
        return attribute.value;
    return "";
  }
  const auto found = document.index.find(wanted);
  return found == document.index.end() ? "" : found->second;
}

bool DeserializerHelperXmlText::getNameAndSubKey(std::string* className,
                                                 std::string* subKey) const {
  requireOutput(className, __LINE__);
  const pugi::xml_node node(m_focus.empty() ? nullptr : m_focus.back().node);
  if (node.type() != pugi::node_element) {
    className->clear();
    return false;
  }
  className->assign(node.attribute("ClassName").value());
  requireOutput(subKey, __LINE__);
  subKey->assign(node.attribute("SubKey").value());
  return true;
}

bool DeserializerHelperXmlText::getBool(const std::string& key,
                                        bool* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  *out = text && std::strcmp(text, "true") == 0;
  return text != nullptr;
}

template <class Int>
bool DeserializerHelperXmlText::getIntValue(const std::string& key,
                                            Int* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  if (!text) {
    *out = 0;
    return false;
  }
  readIntegerText(text, out);
  return true;
}

bool DeserializerHelperXmlText::getInt(const std::string& key, int* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getInt(const std::string& key,
                                       unsigned int* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getInt(const std::string& key,
                                       long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getInt(const std::string& key,
                                       unsigned long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getInt(const std::string& key,
                                       long long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getInt(const std::string& key,
                                       unsigned long long* out) const {
  return getIntValue(key, out);
}

bool DeserializerHelperXmlText::getFloat(const std::string& key,
                                         double* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  *out = text ? std::atof(text) : 0.0;
  return text != nullptr;
}

bool DeserializerHelperXmlText::getString(const std::string& key,
                                          std::string* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  if (!text)
    return false;
  out->assign(text);
  return true;
}

bool DeserializerHelperXmlText::getAddress(const std::string& key,
                                           Address* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  if (!text)
    return false;
  out->deserialize(text);
  return true;
}

bool DeserializerHelperXmlText::getScope(const std::string& key,
                                         Scope* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  if (!text)
    return false;
  out->deserialize(text);
  return true;
}

bool DeserializerHelperXmlText::getDbgDataKey(const std::string& key,
                                              DbgDataKey* out) const {
  requireOutput(out, __LINE__);
  const char* text = valueText(key);
  if (!text)
    return false;
  *out = std::string(text);
  return true;
}

} // namespace DbgData
} // namespace Vemo
