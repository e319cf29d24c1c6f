// DOM write and DOM read: the library's XML writer and reader (with the
// shared deserializer) against direct Xerces code that builds, or walks, the
// same document.
//
// Two baselines per direction:
// - "Direct": the floor. Keys and values are converted per call, as the
//   library must, with the cheapest correct conversion (directxml.h: ASCII
//   widened or narrowed in a loop, anything else through the XML library's
//   transcoder). The layout's own names are constants.
// - "Transcode": the same walk, converting every key and value with
//   XMLString::transcode and XMLString::release.
#include "benchtree.h"
#include "directxml.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <charconv>
#include <cstring>
#include <map>
#include <vector>

using namespace Vemo::DbgData;
using namespace xercesc;

namespace Bench {

namespace {

// ---------------------------------------------------------------------------
// Direct writer: the tree's layout spelled out with Xerces calls.

template <class ToXml> class DirectWriter {
public:
  DOMDocument* write(const DataListWC& root) {
    static DOMImplementation* const implementation =
        DOMImplementationRegistry::getDOMImplementation(kCore.get());
    DOMDocument* document = implementation->createDocument(
        nullptr, kRootName.get(), nullptr, XMLPlatformUtils::fgMemoryManager);
    m_document = document;
    writeRoot(document->getDocumentElement(), root);
    return document;
  }

private:
  DOMElement* element(DOMNode* parent, const XMLCh* name) {
    DOMElement* child = m_document->createElement(name);
    parent->appendChild(child);
    return child;
  }
  void attribute(DOMElement* element, const XMLCh* name,
                 const std::string& value) {
    element->setAttribute(name, ToXml(value).get());
  }
  void value(DOMElement* values, const char* key, const std::string& text) {
    values->setAttribute(ToXml(key, std::strlen(key)).get(), ToXml(text).get());
  }
  void value(DOMElement* values, const char* key, int number) {
    char digits[16];
    *std::to_chars(digits, digits + sizeof digits - 1, number).ptr = '\0';
    values->setAttribute(ToXml(key, std::strlen(key)).get(),
                         ToXml(digits, std::strlen(digits)).get());
  }
  // The element of an object with its class name and sub key.
  DOMElement* object(DOMNode* parent, const XMLCh* section,
                     const DebuggerData& data) {
    DOMElement* element = this->element(parent, section);
    attribute(element, kClassName.get(), data.getClassName());
    attribute(element, kSubKey.get(), data.getSubKey());
    return element;
  }
  // A leaf's element with its "attributes" and "values" children; answers
  // the "values" child.
  DOMElement* leaf(DOMNode* parent, const DataElement& data,
                   DOMElement** leafElement) {
    *leafElement = object(parent, kDataElement.get(), data);
    element(*leafElement, kAttributes.get());
    return element(*leafElement, kValues.get());
  }
  void writeRegister(DOMNode* parent, const RegisterItem& item) {
    DOMElement* itemElement;
    DOMElement* values = leaf(parent, item, &itemElement);
    if (const DebuggerData* engine = item.getEngineData())
      writeRegister(element(itemElement, kEngineData.get()),
                    registerOf(engine));
    value(values, "Name", item.getName());
    value(values, "Value", item.getValue());
    value(values, "Description", item.getDescription());
    value(values, "Expression", item.getExpression());
    value(values, "Type", item.getType());
    value(values, "Flags", item.getFlags());
  }
  // Class name, sub key and special item of a list; answers its "List".
  DOMElement* listHead(DOMElement* listElement, const DataList& list) {
    if (const DebuggerData* special = list.getSpecialItem())
      value(element(listElement, kValues.get()), "SpecialItemSubKey",
            special->getSubKey());
    return element(listElement, kList.get());
  }
  void writeGroup(DOMNode* parent, const DataList& group) {
    DOMElement* children =
        listHead(object(parent, kDataList.get(), group), group);
    for (const DebuggerData* child : *group.getConstList())
      writeRegister(element(children, kChild.get()), registerOf(child));
  }
  void writeRoot(DOMNode* parent, const DataListWC& root) {
    DOMElement* rootElement = object(parent, kDataListWC.get(), root);
    DOMElement* children = listHead(rootElement, root);
    for (const DebuggerData* child : *root.getConstList())
      writeGroup(element(children, kChild.get()), groupOf(child));
    const auto& content = *static_cast<const RegisterGroup*>(root.getContent());
    DOMElement* contentElement;
    DOMElement* values =
        leaf(element(rootElement, kContent.get()), content, &contentElement);
    value(values, "Name", content.getName());
  }

  DOMDocument* m_document = nullptr;
};

// ---------------------------------------------------------------------------
// Direct reader: walks the layout and fills plain structs.

struct PlainRegister {
  std::string className, subKey, name, value, description, expression;
  int type = 0;
  int flags = 0;
  std::unique_ptr<PlainRegister> engine;
};
struct PlainGroup {
  std::string className, subKey, special;
  std::vector<PlainRegister> registers;
};
struct PlainTree {
  std::string className, subKey, special;
  std::vector<PlainGroup> groups;
  std::string contentClassName, contentSubKey, contentName;
};

template <class ToXml, class FromXml> class DirectReader {
public:
  void read(const DOMElement* container, PlainTree& tree) {
    const DOMElement* root = child(container, kDataListWC.get());
    names(root, tree.className, tree.subKey);
    for (const DOMNode* node = root->getFirstChild(); node;
         node = node->getNextSibling()) {
      const XMLCh* name = node->getNodeName();
      if (XMLString::equals(name, kValues.get())) {
        text(node, "SpecialItemSubKey", tree.special);
      } else if (XMLString::equals(name, kList.get())) {
        for (const DOMNode* wrapper = node->getFirstChild(); wrapper;
             wrapper = wrapper->getNextSibling()) {
          tree.groups.emplace_back();
          readGroup(child(wrapper, kDataList.get()), tree.groups.back());
        }
      } else if (XMLString::equals(name, kContent.get())) {
        const DOMElement* content = child(node, kDataElement.get());
        names(content, tree.contentClassName, tree.contentSubKey);
        text(child(content, kValues.get()), "Name", tree.contentName);
      }
    }
  }

private:
  static const DOMElement* child(const DOMNode* parent, const XMLCh* name) {
    for (const DOMNode* node = parent->getFirstChild(); node;
         node = node->getNextSibling())
      if (XMLString::equals(node->getNodeName(), name))
        return static_cast<const DOMElement*>(node);
    return nullptr;
  }
  static void names(const DOMElement* element, std::string& className,
                    std::string& subKey) {
    FromXml::assign(element->getAttribute(kClassName.get()), className);
    FromXml::assign(element->getAttribute(kSubKey.get()), subKey);
  }
  static void text(const DOMNode* values, const char* key, std::string& out) {
    FromXml::assign(static_cast<const DOMElement*>(values)->getAttribute(
                        ToXml(key, std::strlen(key)).get()),
                    out);
  }
  static void number(const DOMNode* values, const char* key, int& out) {
    std::string digits;
    text(values, key, digits);
    std::from_chars(digits.data(), digits.data() + digits.size(), out);
  }
  void readRegister(const DOMElement* element, PlainRegister& item) {
    names(element, item.className, item.subKey);
    const DOMNode* values = nullptr;
    for (const DOMNode* node = element->getFirstChild(); node;
         node = node->getNextSibling()) {
      const XMLCh* name = node->getNodeName();
      if (XMLString::equals(name, kValues.get())) {
        values = node;
      } else if (XMLString::equals(name, kEngineData.get())) {
        item.engine.reset(new PlainRegister);
        readRegister(child(node, kDataElement.get()), *item.engine);
      }
    }
    text(values, "Name", item.name);
    text(values, "Value", item.value);
    text(values, "Description", item.description);
    text(values, "Expression", item.expression);
    number(values, "Type", item.type);
    number(values, "Flags", item.flags);
  }
  void readGroup(const DOMElement* element, PlainGroup& group) {
    names(element, group.className, group.subKey);
    for (const DOMNode* node = element->getFirstChild(); node;
         node = node->getNextSibling()) {
      const XMLCh* name = node->getNodeName();
      if (XMLString::equals(name, kValues.get())) {
        text(node, "SpecialItemSubKey", group.special);
      } else if (XMLString::equals(name, kList.get())) {
        for (const DOMNode* wrapper = node->getFirstChild(); wrapper;
             wrapper = wrapper->getNextSibling()) {
          group.registers.emplace_back();
          readRegister(child(wrapper, kDataElement.get()),
                       group.registers.back());
        }
      }
    }
  }
};

// ---------------------------------------------------------------------------
// Checks, made once per size outside the timed loops

bool sameRegister(const PlainRegister& plain, const DebuggerData* object) {
  const RegisterItem& item = registerOf(object);
  const bool sameEngine =
      plain.engine ? item.getEngineData() &&
                         sameRegister(*plain.engine, item.getEngineData())
                   : !item.getEngineData();
  return sameEngine && plain.className == item.getClassName() &&
         plain.subKey == item.getSubKey() && plain.name == item.getName() &&
         plain.value == item.getValue() &&
         plain.description == item.getDescription() &&
         plain.expression == item.getExpression() &&
         plain.type == item.getType() && plain.flags == item.getFlags();
}

std::string specialOf(const DebuggerData& list) {
  return list.getSpecialItem() ? list.getSpecialItem()->getSubKey() : "";
}

bool samePlainGroup(const PlainGroup& plain, const DebuggerData* object) {
  const DataList& group = groupOf(object);
  if (plain.className != group.getClassName() ||
      plain.subKey != group.getSubKey() || plain.special != specialOf(group) ||
      plain.registers.size() != group.getConstList()->size())
    return false;
  auto item = group.getConstList()->begin();
  for (const PlainRegister& reg : plain.registers)
    if (!sameRegister(reg, *item++))
      return false;
  return true;
}

// Every field, the engine data and the special items included (operator==
// of the library leaves those out on purpose).
bool samePlainTree(const PlainTree& plain, const DataListWC& tree) {
  const auto* content = static_cast<const RegisterGroup*>(tree.getContent());
  if (plain.className != tree.getClassName() ||
      plain.subKey != tree.getSubKey() || plain.special != specialOf(tree) ||
      !content || plain.contentClassName != content->getClassName() ||
      plain.contentSubKey != content->getSubKey() ||
      plain.contentName != content->getName() ||
      plain.groups.size() != tree.getConstList()->size())
    return false;
  auto group = tree.getConstList()->begin();
  for (const PlainGroup& plainGroup : plain.groups)
    if (!samePlainGroup(plainGroup, *group++))
      return false;
  return true;
}

// The tree of n registers written by the library, kept for the read cases.
const SerializerHelperDOM& writtenTree(long n) {
  static std::map<long, std::unique_ptr<SerializerHelperDOM>> documents;
  std::unique_ptr<SerializerHelperDOM>& writer = documents[n];
  if (!writer) {
    writer.reset(new SerializerHelperDOM);
    sharedTree(n).serialize(writer.get());
  }
  return *writer;
}

const DOMElement* writtenRoot(long n) {
  return writtenTree(n).getDocument()->getDocumentElement();
}

template <class ToXml> bool directWriteMatches(long n) {
  DOMDocument* document = DirectWriter<ToXml>().write(sharedTree(n));
  const bool same =
      xmlTextOf(document) == xmlTextOf(writtenTree(n).getDocument());
  document->release();
  return same;
}

template <class ToXml, class FromXml> bool directReadMatches(long n) {
  PlainTree plain;
  DirectReader<ToXml, FromXml>().read(writtenRoot(n), plain);
  return samePlainTree(plain, sharedTree(n));
}

bool libraryReadMatches(long n) {
  DeserializerHelperDOM reader(writtenRoot(n));
  std::unique_ptr<DebuggerData> object(getDeserializer()->deserialize(&reader));
  if (!object || !object->isKindOf(DataListWC::staticRtti()))
    return false;
  const auto& tree = static_cast<const DataListWC&>(*object);
  // Through plain structs, so that engine data and special items count.
  PlainTree plain;
  DirectReader<WidenedText, Narrowing>().read(writtenRoot(n), plain);
  return tree == sharedTree(n) && samePlainTree(plain, tree);
}

void setCounters(benchmark::State& state, long n) {
  state.counters["registers"] = static_cast<double>(n);
  state.counters["objects"] = static_cast<double>(objectCount(n));
}

// ---------------------------------------------------------------------------
// Cases

void DomWrite_Library(benchmark::State& state) {
  initialiseLibrary();
  const long n = state.range(0);
  const DataListWC& tree = sharedTree(n);
  writtenTree(n); // the reference document exists before timing
  for (auto _ : state) {
    SerializerHelperDOM writer;
    benchmark::DoNotOptimize(tree.serialize(&writer));
  }
  setCounters(state, n);
}

template <class ToXml>
void directWrite(benchmark::State& state, const char* what) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state, verifiedOnce(what, n, directWriteMatches<ToXml>), what))
    return;
  const DataListWC& tree = sharedTree(n);
  for (auto _ : state) {
    DOMDocument* document = DirectWriter<ToXml>().write(tree);
    benchmark::DoNotOptimize(document);
    document->release();
  }
  setCounters(state, n);
}

void DomWrite_Direct(benchmark::State& state) {
  directWrite<WidenedText>(state, "direct DOM write");
}

void DomWrite_Transcode(benchmark::State& state) {
  directWrite<TranscodedText>(state, "transcoding DOM write");
}

void DomRead_Library(benchmark::State& state) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state, verifiedOnce("library read", n, libraryReadMatches),
                 "library read"))
    return;
  const DOMElement* root = writtenRoot(n);
  for (auto _ : state) {
    DeserializerHelperDOM reader(root);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    benchmark::DoNotOptimize(object.get());
  }
  setCounters(state, n);
}

template <class ToXml, class FromXml>
void directRead(benchmark::State& state, const char* what) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state,
                 verifiedOnce(what, n, directReadMatches<ToXml, FromXml>),
                 what))
    return;
  const DOMElement* root = writtenRoot(n);
  for (auto _ : state) {
    PlainTree plain;
    DirectReader<ToXml, FromXml>().read(root, plain);
    benchmark::DoNotOptimize(plain.groups.data());
  }
  setCounters(state, n);
}

void DomRead_Direct(benchmark::State& state) {
  directRead<WidenedText, Narrowing>(state, "direct DOM read");
}

void DomRead_Transcode(benchmark::State& state) {
  directRead<TranscodedText, Transcoding>(state, "transcoding DOM read");
}

} // namespace

BENCHMARK(DomWrite_Library)->Apply(scalingSizes);
BENCHMARK(DomWrite_Direct)->Apply(scalingSizes);
BENCHMARK(DomWrite_Transcode)
    ->Arg(kMediumN)
    ->Unit(benchmark::kMicrosecond)
    ->Apply(withMinimum);
BENCHMARK(DomRead_Library)->Apply(scalingSizes);
BENCHMARK(DomRead_Direct)->Apply(scalingSizes);
BENCHMARK(DomRead_Transcode)
    ->Arg(kMediumN)
    ->Unit(benchmark::kMicrosecond)
    ->Apply(withMinimum);

} // namespace Bench
