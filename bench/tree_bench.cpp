// Cases on the object tree itself: the text dump (against appending the same
// text directly), clone and comparison (reported per object), and the heap
// that the tree, its DOM document and its text take (counted by
// heapcount.cpp).
#include "benchtree.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"

#include <xercesc/dom/DOM.hpp>

#include <charconv>
#include <map>

using namespace Vemo::DbgData;

namespace Bench {

namespace {

// ---------------------------------------------------------------------------
// Text dump spelled out for the tree's layout

class DirectDump {
public:
  const std::string& dump(const DataListWC& root) {
    open("DataListWC");
    names(root);
    listBody(root);
    for (const DebuggerData* child : *root.getConstList()) {
      open("Child");
      writeGroup(groupOf(child));
      close();
    }
    close(); // List
    open("Content");
    const auto& content = *static_cast<const RegisterGroup*>(root.getContent());
    open("DataElement");
    names(content);
    line("Name", content.getName());
    close();
    close(); // Content
    close(); // DataListWC
    return m_text;
  }

private:
  void blanks() { m_text.append(m_indent, ' '); }
  void open(const char* name) {
    blanks();
    m_text += name;
    m_text += " {\n";
    m_indent += 2;
  }
  void close() {
    m_indent -= 2;
    blanks();
    m_text += "}\n";
  }
  void line(const char* key, const char* value, std::size_t length) {
    blanks();
    m_text += key;
    m_text += '=';
    m_text.append(value, length);
    m_text += '\n';
  }
  void line(const char* key, const std::string& value) {
    line(key, value.data(), value.size());
  }
  void line(const char* key, int value) {
    char digits[16];
    const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    line(key, digits, end - digits);
  }
  void names(const DebuggerData& object) {
    line("ClassName", object.getClassName());
    line("SubKey", object.getSubKey());
  }
  // The special item and the opening of "List" (left open).
  void listBody(const DataList& list) {
    if (const DebuggerData* special = list.getSpecialItem()) {
      open("values");
      line("SpecialItemSubKey", special->getSubKey());
      close();
    }
    open("List");
  }
  void writeRegister(const RegisterItem& item) {
    open("DataElement");
    names(item);
    if (const DebuggerData* engine = item.getEngineData()) {
      open("EngineData");
      writeRegister(registerOf(engine));
      close();
    }
    line("Name", item.getName());
    line("Value", item.getValue());
    line("Description", item.getDescription());
    line("Expression", item.getExpression());
    line("Type", item.getType());
    line("Flags", item.getFlags());
    close();
  }
  void writeGroup(const DataList& group) {
    open("DataList");
    names(group);
    listBody(group);
    for (const DebuggerData* child : *group.getConstList()) {
      open("Child");
      writeRegister(registerOf(child));
      close();
    }
    close(); // List
    close(); // DataList
  }

  std::string m_text;
  unsigned m_indent = 0;
};

void setCounters(benchmark::State& state, long n) {
  state.counters["registers"] = static_cast<double>(n);
  state.counters["objects"] = static_cast<double>(objectCount(n));
}

bool directDumpMatches(long n) {
  SerializerHelperString writer;
  sharedTree(n).serialize(&writer);
  return DirectDump().dump(sharedTree(n)) == writer.getText();
}

// ---------------------------------------------------------------------------
// Cases

void TextDump_Library(benchmark::State& state) {
  const long n = state.range(0);
  const DataListWC& tree = sharedTree(n);
  for (auto _ : state) {
    SerializerHelperString writer;
    tree.serialize(&writer);
    benchmark::DoNotOptimize(writer.getText().data());
  }
  setCounters(state, n);
}

void TextDump_Direct(benchmark::State& state) {
  const long n = state.range(0);
  static std::map<long, bool> verified;
  if (!verified.count(n))
    verified[n] = directDumpMatches(n);
  if (!checkOnce(state, verified[n], "text dump"))
    return;
  const DataListWC& tree = sharedTree(n);
  for (auto _ : state) {
    DirectDump dump;
    benchmark::DoNotOptimize(dump.dump(tree).data());
  }
  setCounters(state, n);
}

// The copy is deleted outside the timed part.
void Clone(benchmark::State& state) {
  const long n = state.range(0);
  const DataListWC& tree = sharedTree(n);
  for (auto _ : state) {
    std::unique_ptr<DebuggerData> copy(tree.clone());
    benchmark::DoNotOptimize(copy.get());
    state.PauseTiming();
    copy.reset();
    state.ResumeTiming();
  }
  setCounters(state, n);
}

void Compare(benchmark::State& state) {
  const long n = state.range(0);
  const DataListWC& tree = sharedTree(n);
  const std::unique_ptr<DebuggerData> copy(tree.clone());
  if (!checkOnce(state, copy && tree == *copy, "clone compares unequal"))
    return;
  for (auto _ : state)
    benchmark::DoNotOptimize(tree == *copy);
  setCounters(state, n);
}

// ---------------------------------------------------------------------------
// Heap per register for the largest tree

double perRegister(double before, double after, long n) {
  return after > before ? (after - before) / double(n) : 0.0;
}

void Memory(benchmark::State& state) {
  const long n = state.range(0);
  double tree = 0, dom = 0, readBack = 0, text = 0;
  for (auto _ : state) {
    HeapCounting counting;
    const auto heapInUse = [&counting] { return counting.inUse().bytes; };
    const double start = heapInUse();
    std::unique_ptr<DataListWC> built = buildTree(n);
    const double afterTree = heapInUse();
    {
      SerializerHelperDOM writer;
      built->serialize(&writer);
      const double afterDom = heapInUse();
      DeserializerHelperDOM reader(writer.getDocument()->getDocumentElement());
      std::unique_ptr<DebuggerData> copy(
          getDeserializer()->deserialize(&reader));
      const double afterRead = heapInUse();
      tree = perRegister(start, afterTree, n);
      dom = perRegister(afterTree, afterDom, n);
      readBack = perRegister(afterDom, afterRead, n);
    }
    const double beforeText = heapInUse();
    {
      SerializerHelperString writer;
      built->serialize(&writer);
      text = perRegister(beforeText, heapInUse(), n);
    }
  }
  state.counters["tree"] = tree;
  state.counters["DOM document"] = dom;
  state.counters["tree read back"] = readBack;
  state.counters["text dump"] = text;
  state.counters["peak while writing XML"] = tree + dom;
  state.counters["peak while reading XML"] = tree + dom + readBack;
  setCounters(state, n);
}

} // namespace

BENCHMARK(TextDump_Library)->Apply(scalingSizes);
BENCHMARK(TextDump_Direct)->Apply(scalingSizes);
BENCHMARK(Clone)->Apply(scalingSizes);
BENCHMARK(Compare)->Apply(scalingSizes);
BENCHMARK(Memory)->Arg(kLargeN)->Iterations(1)->Repetitions(1)->Unit(
    benchmark::kMillisecond);

} // namespace Bench
