// XML text both ways: the text path without a DOM (SerializerHelperXmlText,
// DeserializerHelperXmlText) against the DOM path (SerializerHelperDOM with
// writeXmlText; XmlTextDocument::parse with DeserializerHelperDOM), with
// floors: the text dump writer for writing, a bare pugixml parse of the same
// text for reading. Also the heap each path holds per object.
//
// Every case runs on each workload of xmlWorkloads(): the register trees of
// the other cases, and whatever joins the list (a heavy class is one more
// line there). Each case checks once, outside the timing, that both paths
// give the same text and read back equal trees.
#include "benchtree.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "deserializerhelperXmlText.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"
#include "serializerhelperXmlText.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <pugixml.hpp>

#include <malloc.h>

#include <functional>
#include <map>

using namespace Vemo::DbgData;

namespace Bench {

namespace {

struct XmlWorkload {
  std::string name; // the case's argument, e.g. "XmlWrite_Fast/1000"
  long objects;     // data objects in the tree
  std::function<std::unique_ptr<DebuggerData>()> build;
};

const std::vector<XmlWorkload>& workloads() {
  static const std::vector<XmlWorkload> list = [] {
    std::vector<XmlWorkload> all;
    for (long n : {kSmallN, kMediumN, kLargeN})
      all.push_back(
          {std::to_string(n), objectCount(n),
           [n]() -> std::unique_ptr<DebuggerData> { return buildTree(n); }});
    all.push_back({"MemoryItem1MiB", 1, [] {
                     return std::unique_ptr<DebuggerData>(
                         buildMemoryItem(1L << 20));
                   }});
    all.push_back(
        {"Symbols10000", 1 + kMediumN,
         [] { return std::unique_ptr<DebuggerData>(buildSymbols(kMediumN)); }});
    all.push_back(
        {"Threads10000", 2 + kMediumN,
         [] { return std::unique_ptr<DebuggerData>(buildThreads(kMediumN)); }});
    return all;
  }();
  return list;
}

// The tree and its XML text (compact), made once per workload.
struct Prepared {
  std::unique_ptr<DebuggerData> tree;
  std::string text;
};

const Prepared& prepared(const XmlWorkload& workload) {
  static std::map<std::string, Prepared> made;
  Prepared& entry = made[workload.name];
  if (!entry.tree) {
    initialiseLibrary();
    entry.tree = workload.build();
    SerializerHelperXmlText writer;
    entry.tree->serialize(&writer);
    entry.text = writer.getText();
  }
  return entry;
}

std::string domText(const DebuggerData& tree) {
  SerializerHelperDOM writer;
  tree.serialize(&writer);
  std::string text;
  writeXmlText(writer.getDocument(), false, &text);
  return text;
}

std::unique_ptr<DebuggerData> readFast(const std::string& text) {
  DeserializerHelperXmlText reader;
  if (!reader.parse(text))
    return nullptr;
  return std::unique_ptr<DebuggerData>(getDeserializer()->deserialize(&reader));
}

std::unique_ptr<DebuggerData> readDom(const std::string& text) {
  XmlTextDocument document;
  if (!document.parse(text))
    return nullptr;
  DeserializerHelperDOM reader(document.getDocumentElement());
  return std::unique_ptr<DebuggerData>(getDeserializer()->deserialize(&reader));
}

std::string fastText(const DebuggerData& tree, bool indent) {
  SerializerHelperXmlText writer(indent);
  tree.serialize(&writer);
  return writer.getText();
}

// Both paths write the same text and read it back into equal trees (with
// the same engine data and special items: the same text again).
bool pathsAgree(const XmlWorkload& workload) {
  static std::map<std::string, bool> answers;
  const auto found = answers.find(workload.name);
  if (found != answers.end())
    return found->second;
  const Prepared& data = prepared(workload);
  bool same = data.text == domText(*data.tree);
  for (const auto& read : {readFast, readDom}) {
    const std::unique_ptr<DebuggerData> copy = read(data.text);
    same = same && copy && *copy == *data.tree &&
           fastText(*copy, false) == data.text;
  }
  return answers[workload.name] = same;
}

void setCounters(benchmark::State& state, const XmlWorkload& workload) {
  state.counters["objects"] = static_cast<double>(workload.objects);
}

// ---------------------------------------------------------------------------
// Cases

void writeFast(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  if (!checkOnce(state, pathsAgree(workload), "XML text " + workload.name))
    return;
  for (auto _ : state) {
    SerializerHelperXmlText writer;
    data.tree->serialize(&writer);
    benchmark::DoNotOptimize(writer.getText().data());
  }
  setCounters(state, workload);
}

void writeDom(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  if (!checkOnce(state, pathsAgree(workload), "XML text " + workload.name))
    return;
  for (auto _ : state) {
    SerializerHelperDOM writer;
    data.tree->serialize(&writer);
    std::string text;
    writeXmlText(writer.getDocument(), false, &text);
    benchmark::DoNotOptimize(text.data());
  }
  setCounters(state, workload);
}

void writeTextDump(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  for (auto _ : state) {
    SerializerHelperString writer;
    data.tree->serialize(&writer);
    benchmark::DoNotOptimize(writer.getText().data());
  }
  setCounters(state, workload);
}

// The trees read back are deleted inside the timing on both paths.
void readFastCase(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  if (!checkOnce(state, pathsAgree(workload), "XML text " + workload.name))
    return;
  for (auto _ : state)
    benchmark::DoNotOptimize(readFast(data.text).get());
  setCounters(state, workload);
}

void readDomCase(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  if (!checkOnce(state, pathsAgree(workload), "XML text " + workload.name))
    return;
  for (auto _ : state)
    benchmark::DoNotOptimize(readDom(data.text).get());
  setCounters(state, workload);
}

void readPugixml(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  for (auto _ : state) {
    pugi::xml_document document;
    const pugi::xml_parse_result parsed =
        document.load_buffer(data.text.data(), data.text.size(),
                             pugi::parse_default, pugi::encoding_utf8);
    benchmark::DoNotOptimize(parsed.status);
  }
  setCounters(state, workload);
}

// Heap in use per object while each path holds its result: the writer with
// its text; the DOM writer's document with the text written from it; the
// text reader's document after parse(); the DOM document that
// XmlTextDocument::parse makes. The trees read back are left out: they are
// the same on both paths.
std::size_t heapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void heap(benchmark::State& state, const XmlWorkload& workload) {
  const Prepared& data = prepared(workload);
  double fastWrite = 0, domWrite = 0, fastRead = 0, domRead = 0;
  const auto perObject = [&](std::size_t before, std::size_t after) {
    return after > before ? double(after - before) / double(workload.objects)
                          : 0.0;
  };
  for (auto _ : state) {
    std::size_t start = heapInUse();
    {
      SerializerHelperXmlText writer;
      data.tree->serialize(&writer);
      writer.getText();
      fastWrite = perObject(start, heapInUse());
    }
    start = heapInUse();
    {
      SerializerHelperDOM writer;
      data.tree->serialize(&writer);
      std::string text;
      writeXmlText(writer.getDocument(), false, &text);
      domWrite = perObject(start, heapInUse());
    }
    start = heapInUse();
    {
      DeserializerHelperXmlText reader;
      reader.parse(data.text);
      fastRead = perObject(start, heapInUse());
    }
    start = heapInUse();
    {
      XmlTextDocument document;
      document.parse(data.text);
      domRead = perObject(start, heapInUse());
    }
  }
  state.counters["fast write"] = fastWrite;
  state.counters["DOM write"] = domWrite;
  state.counters["fast read"] = fastRead;
  state.counters["DOM read"] = domRead;
  state.counters["text"] = double(data.text.size()) / double(workload.objects);
  setCounters(state, workload);
}

const bool s_registered = [] {
  typedef void (*Case)(benchmark::State&, const XmlWorkload&);
  const std::pair<const char*, Case> cases[] = {
      {"XmlWrite_Fast", &writeFast},         {"XmlWrite_Dom", &writeDom},
      {"XmlWrite_TextDump", &writeTextDump}, {"XmlRead_Fast", &readFastCase},
      {"XmlRead_Dom", &readDomCase},         {"XmlRead_Pugixml", &readPugixml},
  };
  for (const XmlWorkload& workload : workloads()) {
    for (const auto& c : cases) {
      const Case run = c.second;
      benchmark::RegisterBenchmark(
          (std::string(c.first) + "/" + workload.name).c_str(),
          [run, &workload](benchmark::State& state) { run(state, workload); })
          ->Unit(benchmark::kMicrosecond)
          ->Apply(withMinimum);
    }
    benchmark::RegisterBenchmark(
        ("XmlHeap/" + workload.name).c_str(),
        [&workload](benchmark::State& state) { heap(state, workload); })
        ->Iterations(1)
        ->Repetitions(1)
        ->Unit(benchmark::kMillisecond);
  }
  return true;
}();

} // namespace

std::vector<std::string> xmlWorkloadNames() {
  std::vector<std::string> names;
  for (const XmlWorkload& workload : workloads())
    names.push_back(workload.name);
  return names;
}

} // namespace Bench
