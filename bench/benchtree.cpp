#include "benchtree.h"

#include "ddmanager.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

using namespace Vemo::DbgData;

namespace Bench {

namespace {

// Objects the factory makes, cast to the class asked for. The benchmark
// cannot run without them, so a failure ends it at once.
template <class T> T* make(const char* className, const std::string& subKey) {
  DebuggerData* object = st_ddmanager.factory(className, subKey);
  if (!object || !object->isKindOf(T::staticRtti())) {
    std::fprintf(stderr, "the factory cannot make a %s\n", className);
    std::exit(1);
  }
  return static_cast<T*>(object);
}

// The engine data every register carries.
RegisterItem* makeEngineData() {
  RegisterItem* engine = make<RegisterItem>("RegisterItem", "Internal");
  engine->setName("Internal");
  engine->setValue("0x12345678");
  engine->setDescription("Description: ZMT specific engine data");
  engine->setExpression("expression");
  engine->setType(2);
  engine->setFlags(1);
  return engine;
}

RegisterItem* makeRegister(long index) {
  const std::string number = std::to_string(index);
  RegisterItem* item = make<RegisterItem>("RegisterItem", "r" + number);
  char value[24];
  std::snprintf(value, sizeof value, "0x%016lx",
                static_cast<unsigned long>(index) * 0x9E3779B1ul);
  item->setName("r" + number);
  item->setValue(value);
  item->setDescription("General purpose register " + number);
  item->setExpression("$r" + number);
  item->setType(static_cast<int>(index % 24));
  item->setFlags(static_cast<int>(index % 8) - 2); // some negative flags
  item->setEngineData(makeEngineData());
  return item;
}

} // namespace

void initialiseLibrary() {
  // Never released: DOM documents of the cases may live until exit.
  static XmlPlatform* const platform = new XmlPlatform;
  if (!platform->isReady()) {
    std::fprintf(stderr, "XML library: %s\n", platform->getError().c_str());
    std::exit(1);
  }
  static const bool initialised = [] {
    st_ddmanager.init();
    return true;
  }();
  (void)initialised;
}

std::unique_ptr<DataListWC> buildTree(long n) {
  std::unique_ptr<DataListWC> root(make<DataListWC>("DataListWC", "Registers"));
  RegisterGroup* content = make<RegisterGroup>("RegisterGroup", "Content");
  content->setName("General purpose registers");
  root->setContent(content);
  for (long first = 0; first < n; first += kGroupSize) {
    DataList* group = make<DataList>(
        "DataList", "Group" + std::to_string(first / kGroupSize));
    for (long i = first; i < first + kGroupSize && i < n; ++i)
      group->appendChild(makeRegister(i));
    group->setSpecialItem(group->getConstList()->front());
    root->appendChild(group);
  }
  if (!root->getConstList()->empty())
    root->setSpecialItem(root->getConstList()->front());
  return root;
}

const DataListWC& sharedTree(long n) {
  static std::map<long, std::unique_ptr<DataListWC>> trees;
  std::unique_ptr<DataListWC>& tree = trees[n];
  if (!tree)
    tree = buildTree(n);
  return *tree;
}

long objectCount(long n) {
  const long groups = (n + kGroupSize - 1) / kGroupSize;
  return 2 + groups + 2 * n;
}

const DataList& groupOf(const DebuggerData* child) {
  return *static_cast<const DataList*>(child);
}

const RegisterItem& registerOf(const DebuggerData* child) {
  return *static_cast<const RegisterItem*>(child);
}

void measureHeap(benchmark::State& state,
                 const std::function<std::unique_ptr<DebuggerData>()>& build,
                 double units) {
  initialiseLibrary();
  HeapInUse object, document, readBack;
  for (auto _ : state) {
    HeapCounting counting;
    std::unique_ptr<DebuggerData> built = build();
    object = counting.inUse();
    SerializerHelperDOM writer;
    built->serialize(&writer);
    document = counting.inUse();
    DeserializerHelperDOM reader(writer.getDocument()->getDocumentElement());
    std::unique_ptr<DebuggerData> copy(getDeserializer()->deserialize(&reader));
    readBack = counting.inUse();
    if (!checkOnce(state, copy && *copy == *built, "read back"))
      return;
  }
  const auto set = [&](const std::string& name, double before, double after) {
    state.counters[name] = (after - before) / units;
  };
  set("object", 0, object.bytes);
  set("object blocks", 0, object.blocks);
  set("DOM document", object.bytes, document.bytes);
  set("DOM blocks", object.blocks, document.blocks);
  set("read back", document.bytes, readBack.bytes);
  set("read back blocks", document.blocks, readBack.blocks);
}

bool checkOnce(benchmark::State& state, bool ok, const std::string& what) {
  if (!ok)
    state.SkipWithError(("output differs from the library's: " + what).c_str());
  return ok;
}

void withMinimum(benchmark::internal::Benchmark* b) {
  b->ComputeStatistics("min", [](const std::vector<double>& values) {
    return values.empty() ? 0.0
                          : *std::min_element(values.begin(), values.end());
  });
}

void scalingSizes(benchmark::internal::Benchmark* b) {
  b->Arg(kSmallN)->Arg(kMediumN)->Arg(kLargeN);
  b->Unit(benchmark::kMicrosecond);
  withMinimum(b);
}

} // namespace Bench
