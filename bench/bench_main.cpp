// The benchmark program's entry: runs the cases with the usual Google
// Benchmark output (and --benchmark_out files), keeps every result, and ends
// with one table of library/baseline ratios against their targets.
#include "benchtree.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace Bench {

namespace {

// CPU time per iteration of one case, in nanoseconds, and its counters:
// the fastest repetition (the "min" statistic when the repetitions were
// reported as aggregates only).
struct Result {
  std::vector<double> iterations; // one per repetition reported
  double minimum = -1;            // the "min" aggregate, when reported
  std::map<std::string, double> counters;
  bool failed = false;

  double nanoseconds() const {
    if (minimum >= 0)
      return minimum;
    if (iterations.empty())
      return -1;
    return *std::min_element(iterations.begin(), iterations.end());
  }
};

double toNanoseconds(double time, benchmark::TimeUnit unit) {
  return time * 1e9 / benchmark::GetTimeUnitMultiplier(unit);
}

// The console output as usual, and every run kept for the summary.
class SummaryReporter : public benchmark::ConsoleReporter {
public:
  explicit SummaryReporter(OutputOptions options) : ConsoleReporter(options) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      keep(run);
    ConsoleReporter::ReportRuns(runs);
  }

  // Whether the case ran and reported an error.
  bool failed(const std::string& name) const {
    const auto found = m_results.find(name);
    return found != m_results.end() && found->second.failed;
  }

  // The first usable result whose name starts with prefix.
  const Result* findPrefix(const std::string& prefix) const {
    for (auto it = m_results.lower_bound(prefix);
         it != m_results.end() &&
         it->first.compare(0, prefix.size(), prefix) == 0;
         ++it)
      if (const Result* result = find(it->first))
        return result;
    return nullptr;
  }

  const Result* find(const std::string& name) const {
    const auto found = m_results.find(name);
    if (found == m_results.end() || found->second.failed ||
        found->second.nanoseconds() < 0)
      return nullptr;
    return &found->second;
  }

private:
  void keep(const Run& run) {
    Result& result = m_results[run.run_name.str()];
    if (run.error_occurred) {
      result.failed = true;
      return;
    }
    const double ns = toNanoseconds(run.GetAdjustedCPUTime(), run.time_unit);
    if (run.run_type == Run::RT_Aggregate) {
      if (run.aggregate_name == "min")
        result.minimum = ns;
      else
        return;
    } else {
      result.iterations.push_back(ns);
    }
    for (const auto& counter : run.counters)
      result.counters[counter.first] = counter.second.value;
  }

  std::map<std::string, Result> m_results;
};

// One line of the table: ratio = (library / libraryPer) / (baseline /
// baselinePer), against target (0: reported without a target).
struct Row {
  std::string label;
  std::string library;
  std::string baseline;
  double target;
  double libraryPer = 1;
  double baselinePer = 1;
  // When set, each side is divided by its own time for these cases first:
  // ratio = (library / libraryBase) / (baseline / baselineBase), how much
  // more the library's time grows than the baseline's.
  std::string libraryBase = {};
  std::string baselineBase = {};
};

std::string timeText(double ns) {
  char text[32];
  if (ns >= 1e6)
    std::snprintf(text, sizeof text, "%9.2f ms", ns / 1e6);
  else if (ns >= 1e3)
    std::snprintf(text, sizeof text, "%9.2f us", ns / 1e3);
  else
    std::snprintf(text, sizeof text, "%9.2f ns", ns);
  return text;
}

std::string sizeName(long n) { return std::to_string(n); }

// A size a case runs at: its argument and how the tables name it.
struct Size {
  long arg;
  std::string label;
};

const std::vector<Size>& treeSizes() {
  static const std::vector<Size> sizes = {
      {kSmallN, "N=1000"}, {kMediumN, "N=10000"}, {kLargeN, "N=100000"}};
  return sizes;
}

const std::vector<Size>& lineSizes() {
  static const std::vector<Size> sizes = {{kSmallN, "1000 lines"},
                                          {kMediumN, "10000 lines"},
                                          {kLargeN, "100000 lines"}};
  return sizes;
}

const std::vector<Size>& memorySizes() {
  static const std::vector<Size> sizes = {{kMemorySizes[0], "1 KiB"},
                                          {kMemorySizes[1], "32 KiB"},
                                          {kMemorySizes[2], "1 MiB"}};
  return sizes;
}

// One row per size: library case against baseline case at that size.
void addPerSize(std::vector<Row>& rows, const std::string& label,
                const std::string& library, const std::string& baseline,
                double target, const std::vector<Size>& sizes = treeSizes()) {
  for (const Size& size : sizes) {
    const std::string arg = "/" + sizeName(size.arg);
    rows.push_back(
        {label + " " + size.label, library + arg, baseline + arg, target});
  }
}

// Time per unit (register, item, line, byte) at the largest size against
// the smallest.
void addScaling(std::vector<Row>& rows, const std::string& label,
                const std::string& name, double target,
                const std::vector<Size>& sizes = treeSizes()) {
  const long small = sizes.front().arg, large = sizes.back().arg;
  rows.push_back({label, name + "/" + sizeName(large),
                  name + "/" + sizeName(small), target, double(large),
                  double(small)});
}

std::vector<Row> ratioRows() {
  std::vector<Row> rows;
  addPerSize(rows, "DOM write", "DomWrite_Library", "DomWrite_Direct", 1.15);
  rows.push_back({"DOM write N=10000 vs transcode", "DomWrite_Library/10000",
                  "DomWrite_Transcode/10000", 1.15});
  addPerSize(rows, "DOM read", "DomRead_Library", "DomRead_Direct", 1.25);
  rows.push_back({"DOM read N=10000 vs transcode", "DomRead_Library/10000",
                  "DomRead_Transcode/10000", 1.25});
  addPerSize(rows, "Text dump", "TextDump_Library", "TextDump_Direct", 1.3);
  rows.push_back(
      {"Hex encode 1 MiB", "HexEncode_Library", "HexEncode_Table", 1.1});
  rows.push_back(
      {"Hex encode vs memcpy", "HexEncode_Library", "HexEncode_Memcpy", 0});
  rows.push_back(
      {"Hex decode 1 MiB", "HexDecode_Library", "HexDecode_Table", 1.1});
  rows.push_back(
      {"Hex decode vs memcpy", "HexDecode_Library", "HexDecode_Memcpy", 0});
  rows.push_back({"Key parse", "KeyParse_Library", "KeyParse_Split", 1.5});
  rows.push_back(
      {"Key toString", "KeyToString_Library", "KeyToString_Join", 1.5});
  rows.push_back(
      {"Key builder (7 sub keys)", "KeyBuild_Library", "KeyBuild_Vector", 1.5});
  rows.push_back(
      {"parseFullKey", "ParseFullKey_Library", "KeyParse_Split", 3.0});
  addScaling(rows, "Scaling DOM write 1e5/1e3", "DomWrite_Library", 1.3);
  addScaling(rows, "Scaling DOM read 1e5/1e3", "DomRead_Library", 1.3);
  // The same for the baselines: how much of the growth the DOM itself brings.
  addScaling(rows, "  direct DOM write 1e5/1e3", "DomWrite_Direct", 0);
  addScaling(rows, "  direct DOM read 1e5/1e3", "DomRead_Direct", 0);

  // XML text without a DOM, per workload: against the DOM path (target: 5
  // times faster), and against the floors.
  for (const std::string& name : xmlWorkloadNames()) {
    const std::string arg = "/" + name;
    rows.push_back({"XML write fast/DOM " + name, "XmlWrite_Fast" + arg,
                    "XmlWrite_Dom" + arg, 0.2});
    rows.push_back({"XML write fast/dump " + name, "XmlWrite_Fast" + arg,
                    "XmlWrite_TextDump" + arg, 1.5});
    rows.push_back({"XML read fast/DOM " + name, "XmlRead_Fast" + arg,
                    "XmlRead_Dom" + arg, 0.2});
    rows.push_back({"XML read fast/pugixml " + name, "XmlRead_Fast" + arg,
                    "XmlRead_Pugixml" + arg, 0});
  }
  // Per-object cost from 1e3 to 1e5 registers: the growth of each fast
  // path's time against the growth of its floor's.
  const std::string small = "/" + sizeName(kSmallN);
  const std::string large = "/" + sizeName(kLargeN);
  const double per = double(kLargeN) / double(kSmallN);
  rows.push_back({"Scaling XML write vs dump's", "XmlWrite_Fast" + large,
                  "XmlWrite_TextDump" + large, 1.3, per, per,
                  "XmlWrite_Fast" + small, "XmlWrite_TextDump" + small});
  rows.push_back({"Scaling XML read vs pugixml's", "XmlRead_Fast" + large,
                  "XmlRead_Pugixml" + large, 1.3, per, per,
                  "XmlRead_Fast" + small, "XmlRead_Pugixml" + small});
  // The heavy classes.
  addPerSize(rows, "Memory item write", "MemoryItemWrite_Library",
             "MemoryItemWrite_Direct", 1.15, memorySizes());
  addPerSize(rows, "Memory item read", "MemoryItemRead_Library",
             "MemoryItemRead_Direct", 1.25, memorySizes());
  addPerSize(rows, "Source item write", "SourceItemWrite_Library",
             "SourceItemWrite_Direct", 1.15, lineSizes());
  addPerSize(rows, "Source item read", "SourceItemRead_Library",
             "SourceItemRead_Direct", 1.25, lineSizes());
  addPerSize(rows, "Symbol list write", "SymbolsWrite_Library",
             "SymbolsWrite_Direct", 1.15);
  addPerSize(rows, "Symbol list read", "SymbolsRead_Library",
             "SymbolsRead_Direct", 1.25);
  addPerSize(rows, "Thread list write", "ThreadsWrite_Library",
             "ThreadsWrite_Direct", 1.15);
  addPerSize(rows, "Thread list read", "ThreadsRead_Library",
             "ThreadsRead_Direct", 1.25);
  addScaling(rows, "Scaling memory write 1M/1K", "MemoryItemWrite_Library", 1.3,
             memorySizes());
  addScaling(rows, "Scaling memory read 1M/1K", "MemoryItemRead_Library", 1.3,
             memorySizes());
  addScaling(rows, "Scaling source write 1e5/1e3", "SourceItemWrite_Library",
             1.3, lineSizes());
  addScaling(rows, "Scaling source read 1e5/1e3", "SourceItemRead_Library", 1.3,
             lineSizes());
  addScaling(rows, "Scaling symbol write 1e5/1e3", "SymbolsWrite_Library", 1.3);
  addScaling(rows, "Scaling symbol read 1e5/1e3", "SymbolsRead_Library", 1.3);
  addScaling(rows, "Scaling thread write 1e5/1e3", "ThreadsWrite_Library", 1.3);
  addScaling(rows, "Scaling thread read 1e5/1e3", "ThreadsRead_Library", 1.3);
  addScaling(rows, "  direct symbol write 1e5/1e3", "SymbolsWrite_Direct", 0);
  addScaling(rows, "  direct symbol read 1e5/1e3", "SymbolsRead_Direct", 0);
  addScaling(rows, "  direct thread write 1e5/1e3", "ThreadsWrite_Direct", 0);
  addScaling(rows, "  direct thread read 1e5/1e3", "ThreadsRead_Direct", 0);
  return rows;
}

void printRatios(const SummaryReporter& results) {
  std::printf("\n%-32s %12s %12s %7s %7s  %s\n", "Case", "Library", "Baseline",
              "Ratio", "Target", "Result");
  for (const Row& row : ratioRows()) {
    const Result* library = results.find(row.library);
    const Result* baseline = results.find(row.baseline);
    const Result* libraryBase =
        row.libraryBase.empty() ? nullptr : results.find(row.libraryBase);
    const Result* baselineBase =
        row.baselineBase.empty() ? nullptr : results.find(row.baselineBase);
    const bool scaled = !row.libraryBase.empty();
    if (!library || !baseline || (scaled && (!libraryBase || !baselineBase))) {
      if (results.failed(row.library) || results.failed(row.baseline))
        std::printf("%-32s %12s %12s %7s %7s  %s\n", row.label.c_str(), "-",
                    "-", "-", "-", "FAILED");
      continue;
    }
    const double lib = library->nanoseconds() / row.libraryPer;
    const double base = baseline->nanoseconds() / row.baselinePer;
    double ratio = lib / base;
    if (scaled)
      ratio /= libraryBase->nanoseconds() / baselineBase->nanoseconds();
    char target[16] = "-";
    const char* verdict = "report";
    if (row.target > 0) {
      std::snprintf(target, sizeof target, "%.2f", row.target);
      verdict = ratio <= row.target ? "PASS" : "MISS";
    }
    std::printf("%-32s %12s %12s %7.3f %7s  %s\n", row.label.c_str(),
                timeText(lib).c_str(), timeText(base).c_str(), ratio, target,
                verdict);
  }
}

// Per-object figures: CPU time divided by the case's "objects" counter.
void printPerObject(const SummaryReporter& results) {
  bool header = false;
  for (const char* name : {"Clone", "Compare", "DomWrite_Library",
                           "DomRead_Library", "TextDump_Library",
                           "XmlWrite_Fast", "XmlWrite_Dom", "XmlWrite_TextDump",
                           "XmlRead_Fast", "XmlRead_Dom", "XmlRead_Pugixml"}) {
    for (long n : {kSmallN, kMediumN, kLargeN}) {
      const std::string full = std::string(name) + "/" + sizeName(n);
      const Result* result = results.find(full);
      if (!result || !result->counters.count("objects"))
        continue;
      if (!header) {
        std::printf("\n%-32s %12s %12s\n", "Per object (all data objects)",
                    "Time", "ns/object");
        header = true;
      }
      const double ns = result->nanoseconds();
      std::printf("%-32s %12s %12.1f\n", full.c_str(), timeText(ns).c_str(),
                  ns / result->counters.at("objects"));
    }
  }
}

// A case of the heavy classes whose time and heap are reported per unit.
struct UnitCase {
  const char* label;
  const char* timeCase;  // its DOM write or read case
  const char* heapCase;  // its heap case (null: none)
  const char* heapLabel; // how the heap table names it
  const std::vector<Size>& (*sizes)();
};

const UnitCase kUnitCases[] = {
    {"memory write, per byte", "MemoryItemWrite_Library", "HeapPer_MemoryByte",
     "memory item, per byte", memorySizes},
    {"memory read, per byte", "MemoryItemRead_Library", nullptr, nullptr,
     memorySizes},
    {"source write, per line", "SourceItemWrite_Library", "HeapPer_SourceLine",
     "source item, per line", lineSizes},
    {"source read, per line", "SourceItemRead_Library", nullptr, nullptr,
     lineSizes},
    {"symbol list write, per symbol", "SymbolsWrite_Library", "HeapPer_Symbol",
     "symbol list, per symbol", treeSizes},
    {"symbol list read, per symbol", "SymbolsRead_Library", nullptr, nullptr,
     treeSizes},
    {"thread list write, per thread", "ThreadsWrite_Library", "HeapPer_Thread",
     "thread list, per thread", treeSizes},
    {"thread list read, per thread", "ThreadsRead_Library", nullptr, nullptr,
     treeSizes},
};

// Time per byte, line or item of the heavy classes at each size.
void printPerUnit(const SummaryReporter& results) {
  bool header = false;
  for (const UnitCase& unit : kUnitCases) {
    std::string line;
    bool any = false;
    for (const Size& size : unit.sizes()) {
      const Result* result =
          results.find(std::string(unit.timeCase) + "/" + sizeName(size.arg));
      char cell[40] = "           -";
      if (result) {
        std::snprintf(cell, sizeof cell, " %9.2f ns",
                      result->nanoseconds() / double(size.arg));
        any = true;
      }
      line += cell;
    }
    if (!any)
      continue;
    if (!header) {
      std::printf("\n%-32s %12s %12s %12s\n", "Time per unit (sizes as above)",
                  "small", "medium", "large");
      header = true;
    }
    std::printf("%-32s%s\n", unit.label, line.c_str());
  }
}

// Heap per byte, line or item of the heavy classes at each size: what the
// object, its DOM document and the object read back hold.
void printHeapPerUnit(const SummaryReporter& results) {
  bool header = false;
  for (const UnitCase& unit : kUnitCases) {
    if (!unit.heapCase)
      continue;
    for (const char* part : {"object", "DOM document", "read back"}) {
      const std::string blocksName = std::string(part) == "DOM document"
                                         ? "DOM blocks"
                                         : std::string(part) + " blocks";
      std::string line;
      bool any = false;
      for (const Size& size : unit.sizes()) {
        const Result* result = results.findPrefix(
            std::string(unit.heapCase) + "/" + sizeName(size.arg) + "/");
        char cell[40] = "                    -";
        if (result && result->counters.count(part)) {
          std::snprintf(cell, sizeof cell, " %10.1f B (%6.3f)",
                        result->counters.at(part),
                        result->counters.count(blocksName)
                            ? result->counters.at(blocksName)
                            : 0.0);
          any = true;
        }
        line += cell;
      }
      if (!any)
        continue;
      if (!header) {
        std::printf("\nHeap per unit, usable bytes of operator new blocks "
                    "(and blocks):\n%-38s %21s %21s %21s\n",
                    "", "small", "medium", "large");
        header = true;
      }
      std::printf("%-38s%s\n",
                  (std::string(unit.heapLabel) + ": " + part).c_str(),
                  line.c_str());
    }
  }
}

void printMemory(const SummaryReporter& results) {
  // The case runs once, so its name carries "/iterations:1/repeats:1".
  const Result* found = results.findPrefix("Memory/" + sizeName(kLargeN) + "/");
  if (!found)
    return;
  std::printf("\nHeap in use per register, N=%ld (operator new blocks; one "
              "register = a RegisterItem with its engine data, %.2f data "
              "objects):\n",
              kLargeN, double(objectCount(kLargeN)) / kLargeN);
  for (const auto& counter : found->counters)
    if (counter.first != "objects" && counter.first != "registers")
      std::printf("  %-28s %10.0f bytes\n", counter.first.c_str(),
                  counter.second);
}

// Heap per object of the XML text path against the DOM path, in the style
// of the ratio table (target: a quarter).
void printXmlHeap(const SummaryReporter& results) {
  bool header = false;
  for (const std::string& name : xmlWorkloadNames()) {
    const Result* found = results.findPrefix("XmlHeap/" + name + "/");
    if (!found)
      continue;
    if (!header) {
      std::printf("\nHeap per data object held by each XML path (mallinfo2 "
                  "deltas):\n%-32s %12s %12s %7s %7s  %s\n",
                  "Case", "Fast", "DOM", "Ratio", "Target", "Result");
      header = true;
    }
    const auto& counters = found->counters;
    for (const char* side : {"write", "read"}) {
      const double fast = counters.at(std::string("fast ") + side);
      const double dom = counters.at(std::string("DOM ") + side);
      const double ratio = dom > 0 ? fast / dom : 0;
      char fastText[32], domText[32];
      std::snprintf(fastText, sizeof fastText, "%9.0f B", fast);
      std::snprintf(domText, sizeof domText, "%9.0f B", dom);
      std::printf("%-32s %12s %12s %7.3f %7.2f  %s\n",
                  ("XML " + std::string(side) + " heap " + name).c_str(),
                  fastText, domText, ratio, 0.25,
                  ratio <= 0.25 ? "PASS" : "MISS");
    }
    std::printf("%-32s %10.0f B\n", ("  XML text " + name).c_str(),
                counters.at("text"));
  }
}

} // namespace

} // namespace Bench

int main(int argc, char** argv) {
  // Every block from the heap, and freed memory kept there: otherwise large
  // buffers (DOM pages, a text dump of 100 MB) are fresh mappings whose
  // page faults, and whether the kernel backs them with huge pages, swing
  // the timings of a case by a factor of two from one run to the next.
  // Both sides of every comparison run under the same policy.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, -1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  Bench::initialiseLibrary();
  // Colours only on a terminal (the --benchmark_color flag applies to the
  // library's own reporter, which this one replaces).
  Bench::SummaryReporter reporter(
      isatty(STDOUT_FILENO) ? benchmark::ConsoleReporter::OO_ColorTabular
                            : benchmark::ConsoleReporter::OO_Tabular);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  Bench::printRatios(reporter);
  Bench::printPerObject(reporter);
  Bench::printMemory(reporter);
  Bench::printXmlHeap(reporter);
  Bench::printPerUnit(reporter);
  Bench::printHeapPerUnit(reporter);
  benchmark::Shutdown();
  return 0;
}
