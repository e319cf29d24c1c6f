// Long lists of many-valued items: a symbol list (a DataListWC of
// SymbolItems, five strings each) and a thread list (a DataListWC of
// ThreadItems with a ThreadListContent; sixteen values each, a scope and
// three OpenMP memberships among them). The library's writer and reader
// against direct Xerces code that builds, or walks, the same document, as
// the register cases do (dom_bench.cpp).
#include "benchtree.h"
#include "directxml.h"

#include "debuggeedata.h"
#include "debuginfodata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"

#include <xercesc/dom/DOM.hpp>

#include <cstdio>
#include <map>
#include <vector>

using namespace Vemo::DbgData;
using namespace xercesc;

namespace Bench {

namespace {

std::string numbered(const char* prefix, long number) {
  return prefix + std::to_string(number);
}

template <class T> const T& itemOf(const DebuggerData* child) {
  return *static_cast<const T*>(child);
}

// ---------------------------------------------------------------------------
// The two lists

SymbolItem* makeSymbol(long index) {
  const std::string name = numbered("variable_", index);
  SymbolItem* symbol = makeObject<SymbolItem>("SymbolItem", name).release();
  const std::string function = numbered("function_", index / 10);
  char address[24];
  std::snprintf(address, sizeof address, "0x%08lx",
                0x402000ul + 16ul * static_cast<unsigned long>(index));
  symbol->setExpression(function + "::" + name);
  symbol->setAddressText(address);
  symbol->setSymbolName(name);
  symbol->setModuleName(numbered("module_", index % 50) + ".o");
  symbol->setFunctionName(function);
  return symbol;
}

} // namespace

std::unique_ptr<DataListWC> buildSymbols(long n) {
  std::unique_ptr<DataListWC> list =
      makeObject<DataListWC>("DataListWC", "GlobalSymbols");
  for (long i = 0; i < n; ++i)
    list->appendChild(makeSymbol(i));
  return list;
}

namespace {

ThreadItem* makeThread(long index) {
  const std::string id = std::to_string(index + 1);
  ThreadItem* thread = makeObject<ThreadItem>("ThreadItem", id).release();
  char libraryId[24];
  std::snprintf(libraryId, sizeof libraryId, "0x%012lx",
                0x7f3a2c000700ul +
                    0x800000ul * static_cast<unsigned long>(index));
  const unsigned long line = 100 + static_cast<unsigned long>(index % 400);
  thread->setDebuggerId(id);
  thread->setOsId(std::to_string(4000 + index));
  thread->setNameId(numbered("worker-", index));
  thread->setLibraryId(libraryId);
  thread->setLocation("worker.c:" + std::to_string(line));
  thread->setType(static_cast<ThreadItem::ThreadType>(2));
  thread->setScope(
      Scope(Address(0, 0x402000 + 8 * line, 0, 1, 64),
            DbgDataKey("/Root/ParallelJob[]/0/Jobs[]/1/DebugInfo/Sources[]/"
                       "worker.c"),
            line, 5));
  thread->setOMPId(numbered("omp-", index));
  thread->setOMPType(static_cast<ThreadItem::_ompThrdType>(1));
  thread->setOMPState(static_cast<ThreadItem::_ompThrdState>(index % 5));
  thread->setOMPTeamId(numbered("team-", index / 8));
  thread->setOMPThreadNum(static_cast<unsigned long>(index % 8));
  thread->setOMPBlockerId(index % 3 == 0 ? numbered("lock-", index % 7) : "");
  StringVector memberships;
  memberships.addItem("team-0");
  memberships.addItem(numbered("team-", index / 64));
  memberships.addItem(numbered("team-", index / 8));
  thread->setOMPMemberships(memberships);
  thread->setExecutionAttribute(index % 10 == 0 ? "frozen" : "running");
  thread->setExecAttrFlag(
      static_cast<ThreadItem::_threadExecAttribute>(index % 10 == 0));
  return thread;
}

// The first thread is the current one: the list's special item.
} // namespace

std::unique_ptr<DataListWC> buildThreads(long n) {
  std::unique_ptr<DataListWC> list =
      makeObject<DataListWC>("DataListWC", "Threads");
  std::unique_ptr<ThreadListContent> content =
      makeObject<ThreadListContent>("ThreadListContent", "Content");
  content->setWithThreadLibrarySupport(true);
  list->setContent(content.release());
  for (long i = 0; i < n; ++i)
    list->appendChild(makeThread(i));
  if (n > 0)
    list->setSpecialItem(list->getConstList()->front());
  return list;
}

namespace {

// Lists built once per size and kept, with the documents the library
// writes of them (for the read cases).
struct Shared {
  std::unique_ptr<DataListWC> list;
  std::unique_ptr<SerializerHelperDOM> written;
};

template <std::unique_ptr<DataListWC> (*Build)(long)> Shared& shared(long n) {
  static std::map<long, Shared> lists;
  Shared& entry = lists[n];
  if (!entry.list) {
    entry.list = Build(n);
    entry.written.reset(new SerializerHelperDOM);
    entry.list->serialize(entry.written.get());
  }
  return entry;
}

const DOMElement* documentElementOf(const Shared& entry) {
  return entry.written->getDocument()->getDocumentElement();
}

// ---------------------------------------------------------------------------
// Direct writer

class DirectWriter {
public:
  // The list's element, its special item, the "List" of its children
  // written by writeItem, and its content written by writeContent.
  template <class WriteItem, class WriteContent>
  DOMDocument* write(const DataListWC& list, WriteItem writeItem,
                     WriteContent writeContent) {
    m_document = newDocument();
    DOMElement* listElement = objectElement<WidenedText>(
        m_document, m_document->getDocumentElement(), kDataListWC.get(),
        list.getClassName(), list.getSubKey());
    if (const DebuggerData* special = list.getSpecialItem())
      value(element(listElement, kValues.get()), "SpecialItemSubKey",
            special->getSubKey());
    DOMElement* children = element(listElement, kList.get());
    for (const DebuggerData* child : *list.getConstList())
      writeItem(*this, element(children, kChild.get()), child);
    if (const DataElement* content = list.getContent())
      writeContent(*this, element(listElement, kContent.get()), content);
    return m_document;
  }

  DOMElement* element(DOMNode* parent, const XMLCh* name) {
    return appendElement(m_document, parent, name);
  }
  // An item's element with its "attributes" and "values"; answers the
  // "values" child.
  DOMElement* leaf(DOMNode* parent, const DebuggerData& item) {
    DOMElement* itemElement =
        objectElement<WidenedText>(m_document, parent, kDataElement.get(),
                                   item.getClassName(), item.getSubKey());
    element(itemElement, kAttributes.get());
    return element(itemElement, kValues.get());
  }
  void value(DOMElement* values, const char* key, const std::string& text) {
    values->setAttribute(WidenedText(key).get(), WidenedText(text).get());
  }
  void value(DOMElement* values, const std::string& key,
             const std::string& text) {
    values->setAttribute(WidenedText(key).get(), WidenedText(text).get());
  }
  template <class Int> void number(DOMElement* values, const char* key, Int n) {
    values->setAttribute(WidenedText(key).get(),
                         WidenedText(Digits(n).text).get());
  }

private:
  DOMDocument* m_document = nullptr;
};

void writeSymbol(DirectWriter& out, DOMElement* parent,
                 const DebuggerData* child) {
  const SymbolItem& symbol = itemOf<SymbolItem>(child);
  DOMElement* values = out.leaf(parent, symbol);
  out.value(values, "Expression", symbol.getExpression());
  out.value(values, "AddressText", symbol.getAddressText());
  out.value(values, "SymbolName", symbol.getSymbolName());
  out.value(values, "ModuleName", symbol.getModuleName());
  out.value(values, "FunctionName", symbol.getFunctionName());
}

void noContent(DirectWriter&, DOMElement*, const DataElement*) {}

// A string list's keys: "<name>_Size", then "<name>_0", "<name>_0x1", ...
std::string itemKey(const char* name, unsigned long index) {
  std::string key = name;
  if (index == 0) {
    key += "_0";
  } else {
    key += "_0x";
    appendHex(key, index);
  }
  return key;
}

void writeThread(DirectWriter& out, DOMElement* parent,
                 const DebuggerData* child) {
  const ThreadItem& thread = itemOf<ThreadItem>(child);
  DOMElement* values = out.leaf(parent, thread);
  out.value(values, "DbgID", thread.getDebuggerId());
  out.value(values, "OsID", thread.getOsId());
  out.value(values, "NameID", thread.getNameId());
  out.value(values, "LibID", thread.getLibraryId());
  out.value(values, "Location", thread.getLocation());
  out.number(values, "Type", static_cast<int>(thread.getType()));
  out.value(values, "Scope", scopeText(thread.getScope()));
  out.value(values, "OMPID", thread.getOMPId());
  out.number(values, "OMPType",
             static_cast<unsigned long>(thread.getOMPType()));
  out.number(values, "OMPState",
             static_cast<unsigned long>(thread.getOMPState()));
  out.value(values, "OMPTeamId", thread.getOMPTeamId());
  out.number(values, "OMPThreadNum", thread.getOMPThreadNum());
  out.value(values, "OMPBlockerId", thread.getOMPBlockerId());
  const StringVector& memberships = thread.getOMPMemberships();
  out.number(values, "OMPMemberships_Size", memberships.getSize());
  for (unsigned long i = 0; i < memberships.getSize(); ++i)
    out.value(values, itemKey("OMPMemberships", i), memberships.getItem(i));
  out.value(values, "ExecutionAttribute", thread.getExecutionAttribute());
  out.number(values, "ExecAttrFlag",
             static_cast<int>(thread.getExecAttrFlag()));
}

void writeThreadContent(DirectWriter& out, DOMElement* parent,
                        const DataElement* content) {
  const auto& threads = static_cast<const ThreadListContent&>(*content);
  out.value(out.leaf(parent, threads), "WithThreadLibrarySupport",
            threads.getWithThreadLibrarySupport() ? "true" : "false");
}

// ---------------------------------------------------------------------------
// Direct reader: walks the layout and fills plain structs.

struct PlainSymbol {
  std::string className, subKey, expression, addressText, symbolName,
      moduleName, functionName;
};

struct PlainThread {
  std::string className, subKey, debuggerId, osId, nameId, libraryId, location,
      ompId, ompTeamId, ompBlockerId, executionAttribute;
  int type = 0, ompType = 0, ompState = 0, execAttrFlag = 0;
  unsigned long ompThreadNum = 0;
  Scope scope;
  std::vector<std::string> memberships;
};

struct PlainContent {
  std::string className, subKey;
  bool withThreadLibrarySupport = false;
};

template <class Item> struct PlainList {
  std::string className, subKey, special;
  std::vector<Item> items;
  bool hasContent = false;
  PlainContent content;
};

void names(const DOMElement* element, std::string& className,
           std::string& subKey) {
  Narrowing::assign(element->getAttribute(kClassName.get()), className);
  Narrowing::assign(element->getAttribute(kSubKey.get()), subKey);
}

void text(const DOMElement* values, const char* key, std::string& out) {
  Narrowing::assign(values->getAttribute(WidenedText(key).get()), out);
}

void text(const DOMElement* values, const std::string& key, std::string& out) {
  Narrowing::assign(values->getAttribute(WidenedText(key).get()), out);
}

template <class Int> Int number(const DOMElement* values, const char* key) {
  std::string digits;
  text(values, key, digits);
  return numberOf<Int>(digits);
}

// The object element below a "Child" or "Content" wrapper, its names read,
// and its "values" child.
const DOMElement* valuesOfItem(const DOMNode* wrapper, std::string& className,
                               std::string& subKey) {
  const DOMElement* item = childNamed(wrapper, kDataElement.get());
  names(item, className, subKey);
  return childNamed(item, kValues.get());
}

void readSymbol(const DOMNode* wrapper, PlainSymbol& symbol) {
  const DOMElement* values =
      valuesOfItem(wrapper, symbol.className, symbol.subKey);
  text(values, "Expression", symbol.expression);
  text(values, "AddressText", symbol.addressText);
  text(values, "SymbolName", symbol.symbolName);
  text(values, "ModuleName", symbol.moduleName);
  text(values, "FunctionName", symbol.functionName);
}

void readThread(const DOMNode* wrapper, PlainThread& thread) {
  const DOMElement* values =
      valuesOfItem(wrapper, thread.className, thread.subKey);
  text(values, "DbgID", thread.debuggerId);
  text(values, "OsID", thread.osId);
  text(values, "NameID", thread.nameId);
  text(values, "LibID", thread.libraryId);
  text(values, "Location", thread.location);
  thread.type = number<int>(values, "Type");
  std::string scope;
  text(values, "Scope", scope);
  parseScope(scope, thread.scope);
  text(values, "OMPID", thread.ompId);
  thread.ompType = static_cast<int>(number<unsigned long>(values, "OMPType"));
  thread.ompState = static_cast<int>(number<unsigned long>(values, "OMPState"));
  text(values, "OMPTeamId", thread.ompTeamId);
  thread.ompThreadNum = number<unsigned long>(values, "OMPThreadNum");
  text(values, "OMPBlockerId", thread.ompBlockerId);
  const unsigned long count =
      number<unsigned long>(values, "OMPMemberships_Size");
  thread.memberships.resize(count); // bounded by the document's sizes here
  for (unsigned long i = 0; i < count; ++i)
    text(values, itemKey("OMPMemberships", i), thread.memberships[i]);
  text(values, "ExecutionAttribute", thread.executionAttribute);
  thread.execAttrFlag = number<int>(values, "ExecAttrFlag");
}

template <class Item> void readContent(const DOMNode*, PlainList<Item>&) {}

void readContent(const DOMNode* wrapper, PlainList<PlainThread>& list) {
  list.hasContent = true;
  const DOMElement* values =
      valuesOfItem(wrapper, list.content.className, list.content.subKey);
  std::string flag;
  text(values, "WithThreadLibrarySupport", flag);
  list.content.withThreadLibrarySupport = flag == "true";
}

template <class Item, class ReadItem>
void readList(const DOMElement* container, PlainList<Item>& list,
              ReadItem readItem) {
  const DOMElement* root = childNamed(container, kDataListWC.get());
  names(root, list.className, list.subKey);
  for (const DOMNode* node = root->getFirstChild(); node;
       node = node->getNextSibling()) {
    const XMLCh* name = node->getNodeName();
    if (XMLString::equals(name, kValues.get())) {
      text(static_cast<const DOMElement*>(node), "SpecialItemSubKey",
           list.special);
    } else if (XMLString::equals(name, kList.get())) {
      for (const DOMNode* wrapper = node->getFirstChild(); wrapper;
           wrapper = wrapper->getNextSibling()) {
        list.items.emplace_back();
        readItem(wrapper, list.items.back());
      }
    } else if (XMLString::equals(name, kContent.get())) {
      readContent(node, list);
    }
  }
}

// ---------------------------------------------------------------------------
// Checks, made once per size outside the timed loops

bool same(const PlainSymbol& plain, const DebuggerData* child) {
  const SymbolItem& symbol = itemOf<SymbolItem>(child);
  return plain.className == symbol.getClassName() &&
         plain.subKey == symbol.getSubKey() &&
         plain.expression == symbol.getExpression() &&
         plain.addressText == symbol.getAddressText() &&
         plain.symbolName == symbol.getSymbolName() &&
         plain.moduleName == symbol.getModuleName() &&
         plain.functionName == symbol.getFunctionName();
}

bool same(const PlainThread& plain, const DebuggerData* child) {
  const ThreadItem& thread = itemOf<ThreadItem>(child);
  const StringVector& memberships = thread.getOMPMemberships();
  if (plain.memberships.size() != memberships.getSize())
    return false;
  for (unsigned long i = 0; i < memberships.getSize(); ++i)
    if (plain.memberships[i] != memberships.getItem(i))
      return false;
  const Address& address = thread.getScope().getAddress();
  return plain.className == thread.getClassName() &&
         plain.subKey == thread.getSubKey() &&
         plain.debuggerId == thread.getDebuggerId() &&
         plain.osId == thread.getOsId() && plain.nameId == thread.getNameId() &&
         plain.libraryId == thread.getLibraryId() &&
         plain.location == thread.getLocation() &&
         plain.type == thread.getType() && plain.scope == thread.getScope() &&
         plain.scope.getAddress().getMode() == address.getMode() &&
         plain.scope.getAddress().getBitWidth() == address.getBitWidth() &&
         plain.ompId == thread.getOMPId() &&
         plain.ompType == thread.getOMPType() &&
         plain.ompState == thread.getOMPState() &&
         plain.ompTeamId == thread.getOMPTeamId() &&
         plain.ompThreadNum == thread.getOMPThreadNum() &&
         plain.ompBlockerId == thread.getOMPBlockerId() &&
         plain.executionAttribute == thread.getExecutionAttribute() &&
         plain.execAttrFlag == thread.getExecAttrFlag();
}

bool sameContent(const PlainList<PlainSymbol>& plain, const DataListWC& list) {
  return !plain.hasContent && !list.getContent();
}

bool sameContent(const PlainList<PlainThread>& plain, const DataListWC& list) {
  const DataElement* content = list.getContent();
  if (!plain.hasContent || !content ||
      !content->isKindOf(ThreadListContent::staticRtti()))
    return false;
  const auto& threads = static_cast<const ThreadListContent&>(*content);
  return plain.content.className == threads.getClassName() &&
         plain.content.subKey == threads.getSubKey() &&
         plain.content.withThreadLibrarySupport ==
             threads.getWithThreadLibrarySupport();
}

// Every field, the special item included (operator== of the library
// leaves it out).
template <class Item>
bool samePlainList(const PlainList<Item>& plain, const DataListWC& list) {
  const DebuggerData* special = list.getSpecialItem();
  if (plain.className != list.getClassName() ||
      plain.subKey != list.getSubKey() ||
      plain.special != (special ? special->getSubKey() : "") ||
      plain.items.size() != list.getConstList()->size() ||
      !sameContent(plain, list))
    return false;
  auto child = list.getConstList()->begin();
  for (const Item& item : plain.items)
    if (!same(item, *child++))
      return false;
  return true;
}

// What a kind of list needs: how to build it, and the direct writer's and
// reader's parts for its items and content.
struct Symbols {
  typedef PlainSymbol Plain;
  static Shared& of(long n) { return shared<buildSymbols>(n); }
  static DOMDocument* write(const DataListWC& list) {
    return DirectWriter().write(list, writeSymbol, noContent);
  }
  static void read(const DOMElement* root, PlainList<Plain>& list) {
    readList(root, list, readSymbol);
  }
};

struct Threads {
  typedef PlainThread Plain;
  static Shared& of(long n) { return shared<buildThreads>(n); }
  static DOMDocument* write(const DataListWC& list) {
    return DirectWriter().write(list, writeThread, writeThreadContent);
  }
  static void read(const DOMElement* root, PlainList<Plain>& list) {
    readList(root, list, readThread);
  }
};

template <class Kind> bool directWriteMatches(long n) {
  const Shared& entry = Kind::of(n);
  DOMDocument* document = Kind::write(*entry.list);
  const bool same =
      xmlTextOf(document) == xmlTextOf(entry.written->getDocument());
  document->release();
  return same;
}

template <class Kind> bool directReadMatches(long n) {
  const Shared& entry = Kind::of(n);
  PlainList<typename Kind::Plain> plain;
  Kind::read(documentElementOf(entry), plain);
  return samePlainList(plain, *entry.list);
}

template <class Kind> bool libraryReadMatches(long n) {
  const Shared& entry = Kind::of(n);
  DeserializerHelperDOM reader(documentElementOf(entry));
  std::unique_ptr<DebuggerData> object(getDeserializer()->deserialize(&reader));
  if (!object || !object->isKindOf(DataListWC::staticRtti()))
    return false;
  const auto& list = static_cast<const DataListWC&>(*object);
  PlainList<typename Kind::Plain> plain;
  Kind::read(documentElementOf(entry), plain);
  return list == *entry.list && samePlainList(plain, list);
}

void setCounters(benchmark::State& state, long n) {
  state.counters["items"] = static_cast<double>(n);
}

// ---------------------------------------------------------------------------
// Cases

template <class Kind> void libraryWrite(benchmark::State& state) {
  initialiseLibrary();
  const long n = state.range(0);
  const DataListWC& list = *Kind::of(n).list;
  for (auto _ : state) {
    SerializerHelperDOM writer;
    benchmark::DoNotOptimize(list.serialize(&writer));
  }
  setCounters(state, n);
}

template <class Kind>
void directWrite(benchmark::State& state, const char* what) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state, verifiedOnce(what, n, directWriteMatches<Kind>), what))
    return;
  const DataListWC& list = *Kind::of(n).list;
  for (auto _ : state) {
    DOMDocument* document = Kind::write(list);
    benchmark::DoNotOptimize(document);
    document->release();
  }
  setCounters(state, n);
}

template <class Kind>
void libraryRead(benchmark::State& state, const char* what) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state, verifiedOnce(what, n, libraryReadMatches<Kind>), what))
    return;
  const DOMElement* root = documentElementOf(Kind::of(n));
  for (auto _ : state) {
    DeserializerHelperDOM reader(root);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    benchmark::DoNotOptimize(object.get());
  }
  setCounters(state, n);
}

template <class Kind>
void directRead(benchmark::State& state, const char* what) {
  initialiseLibrary();
  const long n = state.range(0);
  if (!checkOnce(state, verifiedOnce(what, n, directReadMatches<Kind>), what))
    return;
  const DOMElement* root = documentElementOf(Kind::of(n));
  for (auto _ : state) {
    PlainList<typename Kind::Plain> plain;
    Kind::read(root, plain);
    benchmark::DoNotOptimize(plain.items.data());
  }
  setCounters(state, n);
}

void SymbolsWrite_Library(benchmark::State& state) {
  libraryWrite<Symbols>(state);
}
void SymbolsWrite_Direct(benchmark::State& state) {
  directWrite<Symbols>(state, "direct symbol list write");
}
void SymbolsRead_Library(benchmark::State& state) {
  libraryRead<Symbols>(state, "library symbol list read");
}
void SymbolsRead_Direct(benchmark::State& state) {
  directRead<Symbols>(state, "direct symbol list read");
}
void ThreadsWrite_Library(benchmark::State& state) {
  libraryWrite<Threads>(state);
}
void ThreadsWrite_Direct(benchmark::State& state) {
  directWrite<Threads>(state, "direct thread list write");
}
void ThreadsRead_Library(benchmark::State& state) {
  libraryRead<Threads>(state, "library thread list read");
}
void ThreadsRead_Direct(benchmark::State& state) {
  directRead<Threads>(state, "direct thread list read");
}

// ---------------------------------------------------------------------------
// Heap per symbol and per thread

void HeapPer_Symbol(benchmark::State& state) {
  const long n = state.range(0);
  measureHeap(
      state, [n] { return buildSymbols(n); }, double(n));
}

void HeapPer_Thread(benchmark::State& state) {
  const long n = state.range(0);
  measureHeap(
      state, [n] { return buildThreads(n); }, double(n));
}

void heapSizes(benchmark::internal::Benchmark* b) {
  b->Arg(kSmallN)->Arg(kMediumN)->Arg(kLargeN);
  b->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(SymbolsWrite_Library)->Apply(scalingSizes);
BENCHMARK(SymbolsWrite_Direct)->Apply(scalingSizes);
BENCHMARK(SymbolsRead_Library)->Apply(scalingSizes);
BENCHMARK(SymbolsRead_Direct)->Apply(scalingSizes);
BENCHMARK(ThreadsWrite_Library)->Apply(scalingSizes);
BENCHMARK(ThreadsWrite_Direct)->Apply(scalingSizes);
BENCHMARK(ThreadsRead_Library)->Apply(scalingSizes);
BENCHMARK(ThreadsRead_Direct)->Apply(scalingSizes);
BENCHMARK(HeapPer_Symbol)->Apply(heapSizes);
BENCHMARK(HeapPer_Thread)->Apply(heapSizes);

} // namespace Bench
