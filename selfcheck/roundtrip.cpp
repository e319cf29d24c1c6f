// The serialization round trip of the self-check and the driver's loop over
// every class and every full key.
#include "selfcheck.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "deserializerhelperXmlText.h"
#include "serializerhelperDOM.h"
#include "serializerhelperXmlText.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <initializer_list>
#include <map>
#include <memory>

using namespace Vemo::DbgData;

namespace {

// The sub key of every sample object.
const char* const kSampleSubKey = "SelfCheck";

std::map<DebuggerDataID, SelfCheckFill>& fillRegistry() {
  // Built on first use, so that registrations from any source file's static
  // initialisation find it ready.
  static std::map<DebuggerDataID, SelfCheckFill> registry;
  return registry;
}

// Gives a sample object its values: the class's own fill, or, for a leaf of
// a class without one, the standard engine data only.
void fillSample(DebuggerData* object, const std::string& className) {
  DebuggerDataID id;
  SelfCheckFill fill =
      st_ddmanager.getClassId(className, &id) ? findSelfCheckFill(id) : nullptr;
  if (fill)
    fill(object);
  else if (object->isKindOf(DataElement::staticRtti()))
    attachEngineData(static_cast<DataElement*>(object));
}

// True when parent has a child element that the deserializer takes for an
// object section. Without one the deserializer stops the process, so a
// writer that wrote no object is reported instead.
bool holdsObjectSection(const xercesc::DOMElement* parent) {
  static constexpr XmlLiteral kDataList("DataList");
  static constexpr XmlLiteral kDataListWC("DataListWC");
  static constexpr XmlLiteral kDataElement("DataElement");
  for (const XMLCh* name :
       {kDataList.get(), kDataListWC.get(), kDataElement.get()}) {
    const xercesc::DOMNode* node = findChildNamed(parent, name);
    if (node && node->getNodeType() == xercesc::DOMNode::ELEMENT_NODE)
      return true;
  }
  return false;
}

// Reads the object written by one of the XML writers with g_desHlp: a DOM
// reader takes the DOM writer's document element directly, or the text of
// the text writer parsed into a DOM document; the text reader takes the
// text, or the DOM writer's document written as text. False when the reader
// is none of the two or the object cannot be read.
bool readBack(SerializerHelperDOM* domWriter,
              SerializerHelperXmlText* textWriter,
              std::unique_ptr<DebuggerData>* copy) {
  auto* domReader = dynamic_cast<DeserializerHelperDOM*>(g_desHlp);
  auto* textReader = dynamic_cast<DeserializerHelperXmlText*>(g_desHlp);
  std::string text;
  if (textWriter)
    text = textWriter->getText();
  else if (textReader && !writeXmlText(domWriter->getDocument(), false, &text))
    return false;

  if (textReader) {
    if (!textReader->parse(text))
      return false;
    copy->reset(getDeserializer()->deserialize(textReader));
    return *copy != nullptr;
  }
  if (!domReader)
    return false;
  XmlTextDocument parsed;
  const xercesc::DOMDocument* document = nullptr;
  if (textWriter) {
    if (!parsed.parse(text))
      return false;
    document = parsed.getDocument();
  } else {
    document = domWriter->getDocument();
  }
  const xercesc::DOMElement* container =
      document ? document->getDocumentElement() : nullptr;
  if (!holdsObjectSection(container))
    return false;
  domReader->resetDOM(container);
  copy->reset(getDeserializer()->deserialize(domReader));
  domReader->cleanupDOM();
  return *copy != nullptr;
}

std::size_t childCount(DebuggerData& list) {
  const DebuggerDataList* children = list.getList();
  return children ? children->size() : 0;
}

// Sets g_serHlp and g_desHlp for the lifetime of the object and puts the
// previous values back afterwards, so that they never point at helpers that
// are gone.
class HelperScope {
public:
  HelperScope(ISerializerHelper* writer, IDeserializerHelper* reader)
      : m_writer(g_serHlp), m_reader(g_desHlp) {
    g_serHlp = writer;
    g_desHlp = reader;
  }
  ~HelperScope() {
    g_serHlp = m_writer;
    g_desHlp = m_reader;
  }
  HelperScope(const HelperScope&) = delete;
  HelperScope& operator=(const HelperScope&) = delete;

private:
  ISerializerHelper* m_writer;
  IDeserializerHelper* m_reader;
};

// Installs a plug-in data factory on the shared deserializer for the
// lifetime of the object and puts the previous one back afterwards.
class PlugInDataFactoryScope {
public:
  explicit PlugInDataFactoryScope(IPlugInDataFactory* factory)
      : m_previous(getDeserializer()->getPlugInDataFactory()) {
    getDeserializer()->setPlugInDataFactory(factory);
  }
  ~PlugInDataFactoryScope() {
    getDeserializer()->setPlugInDataFactory(m_previous);
  }
  PlugInDataFactoryScope(const PlugInDataFactoryScope&) = delete;
  PlugInDataFactoryScope& operator=(const PlugInDataFactoryScope&) = delete;

private:
  IPlugInDataFactory* m_previous;
};

} // namespace

bool registerSelfCheckFill(DebuggerDataID id, SelfCheckFill fill) {
  DD_ASSERT(fill);
  const bool inserted = fillRegistry().emplace(id, fill).second;
  DD_ASSERT(inserted);
  return true;
}

SelfCheckFill findSelfCheckFill(DebuggerDataID id) {
  const auto found = fillRegistry().find(id);
  return found == fillRegistry().end() ? nullptr : found->second;
}

bool runSerializationRoundTrip(const std::string& className) {
  // 1. Create.
  std::unique_ptr<DebuggerData> object(
      st_ddmanager.factory(className, kSampleSubKey));
  if (!object) {
    error_cannot_create(className);
    return false;
  }
  // 2. Fill.
  fillSample(object.get(), className);

  // 3. Write into a fresh document.
  auto* domWriter = dynamic_cast<SerializerHelperDOM*>(g_serHlp);
  auto* textWriter = dynamic_cast<SerializerHelperXmlText*>(g_serHlp);
  if (domWriter)
    domWriter->resetDOM();
  else if (textWriter)
    textWriter->reset();
  if ((!domWriter && !textWriter) || !object->serialize(g_serHlp)) {
    error_serialization(className);
    return false;
  }

  // 4. Read back. The deserializer reads the object section found among the
  // children of the reader's current node: the document element.
  std::unique_ptr<DebuggerData> copy;
  bool read;
  {
    // The sample plug-in item's plug-in data is the self-check's own.
    PlugInDataFactoryScope plugInData(getSelfCheckPlugInDataFactory());
    read = readBack(domWriter, textWriter, &copy);
  }
  if (!read) {
    error_deserialization(className);
    return false;
  }

  // 5. Children of lists.
  if (object->isKindOf(DataList::staticRtti()) &&
      childCount(*object) != childCount(*copy)) {
    error_deserialization_listsize(className);
    return false;
  }
  // 6. Content: the filled object's comparison with the copy.
  if (!(*object == *copy)) {
    error_content_corrupt(className);
    return false;
  }
  // 7.
  report_ok(className);
  return true;
}

int runSelfCheck() {
  // The platform outlives the helpers made here (destroyed in reverse).
  XmlPlatform platform;
  int errors = 0;

  if (g_runSerializationTest) {
    std::unique_ptr<SerializerHelperDOM> ownWriter;
    std::unique_ptr<DeserializerHelperDOM> ownReader;
    if (!g_serHlp && platform.isReady())
      ownWriter.reset(new SerializerHelperDOM());
    if (!g_desHlp)
      ownReader.reset(new DeserializerHelperDOM());
    HelperScope helpers(ownWriter ? ownWriter.get() : g_serHlp,
                        ownReader ? ownReader.get() : g_desHlp);

    // Every class row but "Undefined"; rows the factory cannot make (no
    // identity, or an abstract class) are not classes to check.
    for (int row = DDID_DebuggerData; row < DDID_Undefined; ++row) {
      const auto id = static_cast<DebuggerDataID>(row);
      const std::unique_ptr<DebuggerData> probe(st_ddmanager.factory(id, ""));
      if (!probe)
        continue;
      if (!runSerializationRoundTrip(DbgDataManager::getClassName(id)))
        ++errors;
    }
  }

  if (g_runFullKeyTest) {
    std::size_t count = 0;
    const SelfCheckFullKeyCheck* checks = getSelfCheckFullKeyChecks(&count);
    for (std::size_t i = 0; i < count; ++i) {
      if (!checks[i].check())
        ++errors;
    }
  }
  return errors;
}
