// Feeds arbitrary XML text through the real data path: the layout check of
// the command-line tool, the deserializer over the DOM, and then, on every
// object read, two more rounds through the DOM writer and reader. Text that
// reaches an object must give a tree that is stable from its first rewrite
// on: the second and third generations compare equal and dump the same
// text. (The first generation may differ from the second where writing
// converts one way, as console lines do with control characters.)
#include "ddmanager.h"
#include "debuggerdata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"
#include "xmllayout.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

using namespace Vemo::DbgData;

namespace {

std::string dumpOf(const DebuggerData& object) {
  SerializerHelperString writer;
  object.serialize(&writer);
  return writer.getText();
}

// Writes object into a fresh document and reads it back.
std::unique_ptr<DebuggerData> rewrite(const DebuggerData& object) {
  SerializerHelperDOM writer;
  if (!object.serialize(&writer) && !writer.getDocument())
    return nullptr;
  DeserializerHelperDOM reader(writer.getDocument()->getDocumentElement());
  return std::unique_ptr<DebuggerData>(getDeserializer()->deserialize(&reader));
}

bool isObjectSection(const xercesc::DOMNode* node) {
  static constexpr XmlLiteral kDataElement("DataElement");
  static constexpr XmlLiteral kDataList("DataList");
  static constexpr XmlLiteral kDataListWC("DataListWC");
  if (node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE)
    return false;
  const XMLCh* name = node->getNodeName();
  return xercesc::XMLString::equals(name, kDataElement.get()) ||
         xercesc::XMLString::equals(name, kDataList.get()) ||
         xercesc::XMLString::equals(name, kDataListWC.get());
}

[[noreturn]] void fail(const char* what, const DebuggerData& object) {
  std::fprintf(stderr, "fuzz_xml: %s for class %s\n", what,
               object.getClassName().c_str());
  __builtin_trap();
}

void checkStable(const DebuggerData& first) {
  std::unique_ptr<DebuggerData> second = rewrite(first);
  if (!second)
    fail("the first rewrite reads back nothing", first);
  std::unique_ptr<DebuggerData> third = rewrite(*second);
  if (!third)
    fail("the second rewrite reads back nothing", *second);
  if (!(*second == *third))
    fail("the rewritten tree changes on a second rewrite", *second);
  if (dumpOf(*second) != dumpOf(*third))
    fail("the rewritten dump changes on a second rewrite", *second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  static XmlPlatform platform;
  static const bool initialised = (st_ddmanager.init(), true);
  static Tools::LayoutReader layout;
  (void)initialised;
  if (!platform.isReady())
    __builtin_trap();

  const std::string text(reinterpret_cast<const char*>(data), size);
  std::string problem;
  xercesc::DOMDocument* document = layout.read(text, &problem);
  if (!document)
    return 0;

  // The deserializer reads the first object section under its current node,
  // so each object in turn is made the container's only child.
  xercesc::DOMElement* container = document->getDocumentElement();
  std::vector<xercesc::DOMNode*> objects;
  // The layout check lets other nodes stand between the objects; as the
  // dump command does, only object sections are read.
  while (xercesc::DOMNode* child = container->getFirstChild()) {
    container->removeChild(child); // still the document's
    if (isObjectSection(child))
      objects.push_back(child);
  }
  for (xercesc::DOMNode* node : objects) {
    container->appendChild(node);
    DeserializerHelperDOM reader(container);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    container->removeChild(node);
    if (object)
      checkStable(*object);
  }
  return 0;
}
