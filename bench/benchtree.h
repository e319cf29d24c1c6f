// The object tree the benchmarks work on, and what the cases share.
//
// The tree is a register view as an engine reports it: a DataListWC
// "Registers" whose content is a RegisterGroup, holding one nested DataList
// per group of 100 registers; every RegisterItem carries engine data (a
// RegisterItem "Internal", as the self-check attaches it). Each list marks
// its first child as its special item, so the "values" section of lists is
// exercised too.
#ifndef DBGDATA_BENCH_BENCHTREE_H
#define DBGDATA_BENCH_BENCHTREE_H

#include "ddmanager.h"
#include "debuggerdata.h"
#include "memorydata.h"
#include "registerdata.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Bench {

using Vemo::DbgData::DataElement;
using Vemo::DbgData::DataList;
using Vemo::DbgData::DataListWC;
using Vemo::DbgData::DebuggerData;
using Vemo::DbgData::MemoryItem;
using Vemo::DbgData::RegisterGroup;
using Vemo::DbgData::RegisterItem;

// Registers per nested list.
constexpr long kGroupSize = 100;

// Sizes of the tree (number of registers) that the scaling cases run at.
constexpr long kSmallN = 1000;
constexpr long kMediumN = 10000;
constexpr long kLargeN = 100000;

// Sizes of the memory item (bytes) that its cases run at: 1 KiB, 32 KiB,
// 1 MiB.
constexpr long kMemorySizes[] = {1L << 10, 1L << 15, 1L << 20};

// A data object from the factory, as the reader makes them, of the class
// asked for. The benchmark cannot run without it, so a failure ends the
// program.
template <class T>
std::unique_ptr<T> makeObject(const char* className,
                              const std::string& subKey) {
  DebuggerData* object = Vemo::DbgData::st_ddmanager.factory(className, subKey);
  if (!object || !object->isKindOf(T::staticRtti())) {
    std::fprintf(stderr, "the factory cannot make a %s\n", className);
    std::exit(1);
  }
  return std::unique_ptr<T>(static_cast<T*>(object));
}

// Initialises the XML library and the data manager once, before any case
// runs, and keeps the XML library up until the program ends.
void initialiseLibrary();

// A fresh tree of n registers (n a multiple of kGroupSize), owned by the
// caller.
std::unique_ptr<DataListWC> buildTree(long n);

// The tree of n registers, built once and kept for the whole run: the cases
// that only read the tree share it.
const DataListWC& sharedTree(long n);

// The heavy classes' objects, fresh and owned by the caller: a memory item
// of that many pseudo-random bytes; a "GlobalSymbols" list of n symbols; a
// "Threads" list with its content and n threads, each a member of three
// OpenMP teams (bench/heavy_bench.cpp, bench/list_bench.cpp).
std::unique_ptr<MemoryItem> buildMemoryItem(long bytes);
std::unique_ptr<DataListWC> buildSymbols(long n);
std::unique_ptr<DataListWC> buildThreads(long n);

// Number of data objects in a tree of n registers: the root list, its
// content, the nested lists, the registers and their engine data.
long objectCount(long n);

// The nested lists and the registers of a tree, by their known layout.
const DataList& groupOf(const DebuggerData* child);
const RegisterItem& registerOf(const DebuggerData* child);

// Heap the program holds from operator new: the usable size of the blocks
// and their number, both counted from when the HeapCounting object was made
// (blocks given back during that time count negative, whenever they were
// taken). One object at a time; it runs single-threaded.
struct HeapInUse {
  double bytes = 0;
  double blocks = 0;
};
class HeapCounting {
public:
  HeapCounting();
  ~HeapCounting();
  HeapCounting(const HeapCounting&) = delete;
  HeapCounting& operator=(const HeapCounting&) = delete;
  HeapInUse inUse() const;
};

// Builds an object with build(), writes it into a DOM document with the
// library's writer and reads that back with the deserializer, and sets the
// case's counters to what each of the three steps added to the heap, in
// bytes ("object", "DOM document", "read back") and blocks ("... blocks"),
// divided by units. Run it once (Iterations(1)).
void measureHeap(benchmark::State& state,
                 const std::function<std::unique_ptr<DebuggerData>()>& build,
                 double units);

// Marks the case as failed (its figures are then left out of the summary)
// and answers false when ok is false.
bool checkOnce(benchmark::State& state, bool ok, const std::string& what);

// Adds the statistic "min" to a case's repetitions: the summary compares
// the fastest repetition of each side, since on a shared machine outside
// work only ever adds time.
void withMinimum(benchmark::internal::Benchmark* b);

// The registered sizes of a scaling case (kSmallN, kMediumN, kLargeN), in
// microseconds, with the statistic of withMinimum.
void scalingSizes(benchmark::internal::Benchmark* b);

// The workloads of the XML text cases (xmltext_bench.cpp), by the argument
// their cases carry: "1000", "10000" and "100000" for the register trees,
// then any heavy class added to the list.
std::vector<std::string> xmlWorkloadNames();

} // namespace Bench

#endif
