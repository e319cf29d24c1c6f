// The two classes whose size lies in one value: a MemoryItem (its bytes
// travel as one hex text) and a SourceItem (one 64-bit value per line, as
// one hex text), each alone in a document. The library's writer and reader
// against direct Xerces code making the same calls, with the hex codec
// (HexDumpHelper) doing the bytes.
#include "benchtree.h"
#include "directxml.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "hexdumphelper.h"
#include "memorydata.h"
#include "serializerhelperDOM.h"
#include "sourcedata.h"

#include <xercesc/dom/DOM.hpp>

#include <algorithm>
#include <map>
#include <vector>

using namespace Vemo::DbgData;
using namespace xercesc;

namespace Bench {

namespace {

// Pseudo-random 64-bit numbers, the same on every run.
std::uint64_t mixed(std::uint64_t index) {
  std::uint64_t x = (index + 1) * 0x9E3779B97F4A7C15ull;
  x ^= x >> 31;
  x *= 0xBF58476D1CE4E5B9ull;
  return x ^ (x >> 29);
}

// One value of an element's "values" child.
void setValue(DOMElement* values, const char* key, const std::string& text) {
  values->setAttribute(WidenedText(key).get(), WidenedText(text).get());
}
void setValue(DOMElement* values, const char* key, const char* text) {
  values->setAttribute(WidenedText(key).get(), WidenedText(text).get());
}
void getValue(const DOMElement* values, const char* key, std::string& text) {
  Narrowing::assign(values->getAttribute(WidenedText(key).get()), text);
}

// The element of the document's only object.
const DOMElement* itemElement(const DOMElement* container) {
  return childNamed(container, kDataElement.get());
}

// A document written by the library, kept for the read cases.
struct Written {
  std::unique_ptr<SerializerHelperDOM> writer;
  const DOMElement* root() const {
    return writer->getDocument()->getDocumentElement();
  }
};

template <class Object>
const DOMElement* writtenBy(std::map<long, Written>& documents, long n,
                            const Object& object) {
  Written& written = documents[n];
  if (!written.writer) {
    written.writer.reset(new SerializerHelperDOM);
    object.serialize(written.writer.get());
  }
  return written.root();
}

// The library's reader on a document: the object it makes, or null.
template <class T> std::unique_ptr<T> libraryRead(const DOMElement* root) {
  DeserializerHelperDOM reader(root);
  std::unique_ptr<DebuggerData> object(getDeserializer()->deserialize(&reader));
  if (!object || !object->isKindOf(T::staticRtti()))
    return nullptr;
  return std::unique_ptr<T>(static_cast<T*>(object.release()));
}

// ---------------------------------------------------------------------------
// MemoryItem

} // namespace

std::unique_ptr<MemoryItem> buildMemoryItem(long bytes) {
  const unsigned long long start = 0x7ffd40000000ull;
  std::unique_ptr<MemoryItem> item =
      makeObject<MemoryItem>("MemoryItem", "0x7ffd40000000");
  std::vector<unsigned char> data(static_cast<std::size_t>(bytes));
  for (std::size_t i = 0; i < data.size(); ++i)
    data[i] = static_cast<unsigned char>(mixed(i) >> 56);
  item->setByteArray(data.data(), static_cast<unsigned int>(data.size()));
  item->setAddress(Address(0, start, 0, 1, 64));
  return item;
}

namespace {

const MemoryItem& sharedMemoryItem(long bytes) {
  static std::map<long, std::unique_ptr<MemoryItem>> items;
  std::unique_ptr<MemoryItem>& item = items[bytes];
  if (!item)
    item = buildMemoryItem(bytes);
  return *item;
}

const DOMElement* writtenMemoryItem(long bytes) {
  static std::map<long, Written> documents;
  return writtenBy(documents, bytes, sharedMemoryItem(bytes));
}

DOMDocument* directWriteMemoryItem(const MemoryItem& item) {
  DOMDocument* document = newDocument();
  DOMElement* element = objectElement<WidenedText>(
      document, document->getDocumentElement(), kDataElement.get(),
      item.getClassName(), item.getSubKey());
  appendElement(document, element, kAttributes.get());
  DOMElement* values = appendElement(document, element, kValues.get());
  setValue(values, "ArraySize", Digits(item.getArraySize()).text);
  std::string hex;
  HexDumpHelper::convertBinToHex(item.getByteArray(), item.getArraySize(), hex);
  setValue(values, "ByteArray", hex);
  setValue(values, "Address", addressText(item.getAddress()));
  return document;
}

struct PlainMemoryItem {
  std::string className, subKey;
  std::vector<unsigned char> bytes;
  Address address;
};

void directReadMemoryItem(const DOMElement* container, PlainMemoryItem& item) {
  const DOMElement* element = itemElement(container);
  Narrowing::assign(element->getAttribute(kClassName.get()), item.className);
  Narrowing::assign(element->getAttribute(kSubKey.get()), item.subKey);
  const DOMElement* values = childNamed(element, kValues.get());
  std::string text;
  getValue(values, "ArraySize", text);
  const unsigned int size = numberOf<unsigned int>(text);
  getValue(values, "ByteArray", text);
  // A size its text does not back is refused, as the library does.
  if (size <= text.size() / 2) {
    item.bytes.resize(size);
    HexDumpHelper::convertHexToBin(text.data(), 2 * std::size_t(size),
                                   item.bytes.data());
  }
  getValue(values, "Address", text);
  const char* address = text.c_str();
  parseAddress(address, address + text.size(), item.address);
}

bool sameMemoryItem(const PlainMemoryItem& plain, const MemoryItem& item) {
  return plain.className == item.getClassName() &&
         plain.subKey == item.getSubKey() &&
         plain.bytes.size() == item.getArraySize() &&
         std::equal(plain.bytes.begin(), plain.bytes.end(),
                    item.getByteArray()) &&
         plain.address == item.getAddress() &&
         plain.address.getMode() == item.getAddress().getMode() &&
         plain.address.getBitWidth() == item.getAddress().getBitWidth();
}

bool directMemoryWriteMatches(long bytes) {
  DOMDocument* document = directWriteMemoryItem(sharedMemoryItem(bytes));
  const bool same = xmlTextOf(document) ==
                    xmlTextOf(writtenMemoryItem(bytes)->getOwnerDocument());
  document->release();
  return same;
}

bool directMemoryReadMatches(long bytes) {
  PlainMemoryItem plain;
  directReadMemoryItem(writtenMemoryItem(bytes), plain);
  return sameMemoryItem(plain, sharedMemoryItem(bytes));
}

// Equal by operator== (which leaves the bytes out) and byte for byte.
bool libraryMemoryReadMatches(long bytes) {
  const std::unique_ptr<MemoryItem> item =
      libraryRead<MemoryItem>(writtenMemoryItem(bytes));
  const MemoryItem& original = sharedMemoryItem(bytes);
  if (!item || !(*item == original))
    return false;
  PlainMemoryItem plain;
  directReadMemoryItem(writtenMemoryItem(bytes), plain);
  return sameMemoryItem(plain, *item);
}

void setMemoryCounters(benchmark::State& state, long bytes) {
  state.counters["bytes"] = static_cast<double>(bytes);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          bytes);
}

void MemoryItemWrite_Library(benchmark::State& state) {
  initialiseLibrary();
  const long bytes = state.range(0);
  const MemoryItem& item = sharedMemoryItem(bytes);
  writtenMemoryItem(bytes);
  for (auto _ : state) {
    SerializerHelperDOM writer;
    benchmark::DoNotOptimize(item.serialize(&writer));
  }
  setMemoryCounters(state, bytes);
}

void MemoryItemWrite_Direct(benchmark::State& state) {
  initialiseLibrary();
  const long bytes = state.range(0);
  if (!checkOnce(state,
                 verifiedOnce("memory write", bytes, directMemoryWriteMatches),
                 "direct memory item write"))
    return;
  const MemoryItem& item = sharedMemoryItem(bytes);
  for (auto _ : state) {
    DOMDocument* document = directWriteMemoryItem(item);
    benchmark::DoNotOptimize(document);
    document->release();
  }
  setMemoryCounters(state, bytes);
}

void MemoryItemRead_Library(benchmark::State& state) {
  initialiseLibrary();
  const long bytes = state.range(0);
  if (!checkOnce(
          state,
          verifiedOnce("library memory read", bytes, libraryMemoryReadMatches),
          "library memory item read"))
    return;
  const DOMElement* root = writtenMemoryItem(bytes);
  for (auto _ : state) {
    DeserializerHelperDOM reader(root);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    benchmark::DoNotOptimize(object.get());
  }
  setMemoryCounters(state, bytes);
}

void MemoryItemRead_Direct(benchmark::State& state) {
  initialiseLibrary();
  const long bytes = state.range(0);
  if (!checkOnce(state,
                 verifiedOnce("memory read", bytes, directMemoryReadMatches),
                 "direct memory item read"))
    return;
  const DOMElement* root = writtenMemoryItem(bytes);
  for (auto _ : state) {
    PlainMemoryItem plain;
    directReadMemoryItem(root, plain);
    benchmark::DoNotOptimize(plain.bytes.data());
  }
  setMemoryCounters(state, bytes);
}

// ---------------------------------------------------------------------------
// SourceItem

std::unique_ptr<SourceItem> buildSourceItem(long lines) {
  std::unique_ptr<SourceItem> item = makeObject<SourceItem>(
      "SourceItem", "/home/user/project/src/interpreter/evaluate.c");
  item->setSourceFileName("/home/user/project/src/interpreter/evaluate.c");
  item->setValid(true);
  item->setNoOfLines(static_cast<unsigned long>(lines));
  for (long line = 1; line <= lines; ++line)
    item->setLineValue(static_cast<unsigned long>(line),
                       static_cast<unsigned long>(mixed(line)));
  return item;
}

const SourceItem& sharedSourceItem(long lines) {
  static std::map<long, std::unique_ptr<SourceItem>> items;
  std::unique_ptr<SourceItem>& item = items[lines];
  if (!item)
    item = buildSourceItem(lines);
  return *item;
}

const DOMElement* writtenSourceItem(long lines) {
  static std::map<long, Written> documents;
  return writtenBy(documents, lines, sharedSourceItem(lines));
}

// The line values as bytes, least significant first, for the hex codec.
std::vector<unsigned char> lineBytes(const SourceItem& item) {
  const unsigned long count = item.getNoOfLines();
  std::vector<unsigned char> bytes(8 * static_cast<std::size_t>(count));
  unsigned char* out = bytes.data();
  for (unsigned long line = 1; line <= count; ++line) {
    const unsigned long value = item.getLineValue(line);
    for (unsigned shift = 0; shift < 64; shift += 8)
      *out++ = static_cast<unsigned char>(value >> shift);
  }
  return bytes;
}

DOMDocument* directWriteSourceItem(const SourceItem& item) {
  DOMDocument* document = newDocument();
  DOMElement* element = objectElement<WidenedText>(
      document, document->getDocumentElement(), kDataElement.get(),
      item.getClassName(), item.getSubKey());
  appendElement(document, element, kAttributes.get());
  DOMElement* values = appendElement(document, element, kValues.get());
  setValue(values, "SourceFileName", item.getSourceFileName());
  setValue(values, "NoOfLines", Digits(item.getNoOfLines()).text);
  setValue(values, "Valid", item.getValid() ? "true" : "false");
  if (item.getNoOfLines() > 0) {
    const std::vector<unsigned char> bytes = lineBytes(item);
    std::string hex;
    HexDumpHelper::convertBinToHex(
        bytes.data(), static_cast<unsigned int>(bytes.size()), hex);
    setValue(values, "ByteArray", hex);
  }
  return document;
}

struct PlainSourceItem {
  std::string className, subKey, fileName;
  bool valid = false;
  std::vector<unsigned long> lines;
};

void directReadSourceItem(const DOMElement* container, PlainSourceItem& item) {
  const DOMElement* element = itemElement(container);
  Narrowing::assign(element->getAttribute(kClassName.get()), item.className);
  Narrowing::assign(element->getAttribute(kSubKey.get()), item.subKey);
  const DOMElement* values = childNamed(element, kValues.get());
  getValue(values, "SourceFileName", item.fileName);
  std::string text;
  getValue(values, "NoOfLines", text);
  const unsigned long count = numberOf<unsigned long>(text);
  getValue(values, "Valid", text);
  item.valid = text == "true";
  if (count == 0)
    return;
  getValue(values, "ByteArray", text);
  // As the library: a count the text does not back is refused.
  if (text.size() / 16 < count)
    return;
  std::vector<unsigned char> bytes(8 * static_cast<std::size_t>(count));
  HexDumpHelper::convertHexToBin(text.data(), 2 * bytes.size(), bytes.data());
  item.lines.resize(count);
  const unsigned char* in = bytes.data();
  for (unsigned long& value : item.lines) {
    value = 0;
    for (int byte = 7; byte >= 0; --byte)
      value = value << 8 | in[byte];
    in += 8;
  }
}

bool sameSourceItem(const PlainSourceItem& plain, const SourceItem& item) {
  if (plain.className != item.getClassName() ||
      plain.subKey != item.getSubKey() ||
      plain.fileName != item.getSourceFileName() ||
      plain.valid != item.getValid() ||
      plain.lines.size() != item.getNoOfLines())
    return false;
  for (unsigned long line = 1; line <= item.getNoOfLines(); ++line)
    if (plain.lines[line - 1] != item.getLineValue(line))
      return false;
  return true;
}

bool directSourceWriteMatches(long lines) {
  DOMDocument* document = directWriteSourceItem(sharedSourceItem(lines));
  const bool same = xmlTextOf(document) ==
                    xmlTextOf(writtenSourceItem(lines)->getOwnerDocument());
  document->release();
  return same;
}

bool directSourceReadMatches(long lines) {
  PlainSourceItem plain;
  directReadSourceItem(writtenSourceItem(lines), plain);
  return sameSourceItem(plain, sharedSourceItem(lines));
}

// Equal by operator== and value by value: Valid and the line values are
// left out of operator==.
bool librarySourceReadMatches(long lines) {
  const std::unique_ptr<SourceItem> item =
      libraryRead<SourceItem>(writtenSourceItem(lines));
  const SourceItem& original = sharedSourceItem(lines);
  if (!item || !(*item == original))
    return false;
  PlainSourceItem plain;
  directReadSourceItem(writtenSourceItem(lines), plain);
  return sameSourceItem(plain, *item) && sameSourceItem(plain, original);
}

void setSourceCounters(benchmark::State& state, long lines) {
  state.counters["lines"] = static_cast<double>(lines);
}

void SourceItemWrite_Library(benchmark::State& state) {
  initialiseLibrary();
  const long lines = state.range(0);
  const SourceItem& item = sharedSourceItem(lines);
  writtenSourceItem(lines);
  for (auto _ : state) {
    SerializerHelperDOM writer;
    benchmark::DoNotOptimize(item.serialize(&writer));
  }
  setSourceCounters(state, lines);
}

void SourceItemWrite_Direct(benchmark::State& state) {
  initialiseLibrary();
  const long lines = state.range(0);
  if (!checkOnce(state,
                 verifiedOnce("source write", lines, directSourceWriteMatches),
                 "direct source item write"))
    return;
  const SourceItem& item = sharedSourceItem(lines);
  for (auto _ : state) {
    DOMDocument* document = directWriteSourceItem(item);
    benchmark::DoNotOptimize(document);
    document->release();
  }
  setSourceCounters(state, lines);
}

void SourceItemRead_Library(benchmark::State& state) {
  initialiseLibrary();
  const long lines = state.range(0);
  if (!checkOnce(
          state,
          verifiedOnce("library source read", lines, librarySourceReadMatches),
          "library source item read"))
    return;
  const DOMElement* root = writtenSourceItem(lines);
  for (auto _ : state) {
    DeserializerHelperDOM reader(root);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    benchmark::DoNotOptimize(object.get());
  }
  setSourceCounters(state, lines);
}

void SourceItemRead_Direct(benchmark::State& state) {
  initialiseLibrary();
  const long lines = state.range(0);
  if (!checkOnce(state,
                 verifiedOnce("source read", lines, directSourceReadMatches),
                 "direct source item read"))
    return;
  const DOMElement* root = writtenSourceItem(lines);
  for (auto _ : state) {
    PlainSourceItem plain;
    directReadSourceItem(root, plain);
    benchmark::DoNotOptimize(plain.lines.data());
  }
  setSourceCounters(state, lines);
}

// ---------------------------------------------------------------------------
// Heap per byte of memory and per source line

void HeapPer_MemoryByte(benchmark::State& state) {
  const long bytes = state.range(0);
  measureHeap(
      state, [bytes] { return buildMemoryItem(bytes); }, double(bytes));
}

void HeapPer_SourceLine(benchmark::State& state) {
  const long lines = state.range(0);
  measureHeap(
      state, [lines] { return buildSourceItem(lines); }, double(lines));
}

void memorySizes(benchmark::internal::Benchmark* b) {
  for (long bytes : kMemorySizes)
    b->Arg(bytes);
  b->Unit(benchmark::kMicrosecond);
  withMinimum(b);
}

void heapSizes(benchmark::internal::Benchmark* b) {
  b->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(MemoryItemWrite_Library)->Apply(memorySizes);
BENCHMARK(MemoryItemWrite_Direct)->Apply(memorySizes);
BENCHMARK(MemoryItemRead_Library)->Apply(memorySizes);
BENCHMARK(MemoryItemRead_Direct)->Apply(memorySizes);
BENCHMARK(SourceItemWrite_Library)->Apply(scalingSizes);
BENCHMARK(SourceItemWrite_Direct)->Apply(scalingSizes);
BENCHMARK(SourceItemRead_Library)->Apply(scalingSizes);
BENCHMARK(SourceItemRead_Direct)->Apply(scalingSizes);
BENCHMARK(HeapPer_MemoryByte)
    ->Arg(kMemorySizes[0])
    ->Arg(kMemorySizes[1])
    ->Arg(kMemorySizes[2])
    ->Apply(heapSizes);
BENCHMARK(HeapPer_SourceLine)
    ->Arg(kSmallN)
    ->Arg(kMediumN)
    ->Arg(kLargeN)
    ->Apply(heapSizes);

} // namespace Bench
