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

#include "debuggerdata.h"
#include "registerdata.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Bench {

using Vemo::DbgData::DataElement;
using Vemo::DbgData::DataList;
using Vemo::DbgData::DataListWC;
using Vemo::DbgData::DebuggerData;
using Vemo::DbgData::RegisterGroup;
using Vemo::DbgData::RegisterItem;

// Registers per nested list.
constexpr long kGroupSize = 100;

// Sizes of the tree (number of registers) that the scaling cases run at.
constexpr long kSmallN = 1000;
constexpr long kMediumN = 10000;
constexpr long kLargeN = 100000;

// Initialises the XML library and the data manager once, before any case
// runs, and keeps the XML library up until the program ends.
void initialiseLibrary();

// A fresh tree of n registers (n a multiple of kGroupSize), owned by the
// caller.
std::unique_ptr<DataListWC> buildTree(long n);

// The tree of n registers, built once and kept for the whole run: the cases
// that only read the tree share it.
const DataListWC& sharedTree(long n);

// Number of data objects in a tree of n registers: the root list, its
// content, the nested lists, the registers and their engine data.
long objectCount(long n);

// The nested lists and the registers of a tree, by their known layout.
const DataList& groupOf(const DebuggerData* child);
const RegisterItem& registerOf(const DebuggerData* child);

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
