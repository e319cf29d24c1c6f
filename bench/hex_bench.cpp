// The hex codec on 1 MiB: the library's converters against a plain
// table-driven loop over the same bytes, and against memcpy of the output's
// size (the cost of merely writing the output).
#include "benchtree.h"

#include "hexdumphelper.h"

#include <cstring>
#include <string>
#include <vector>

using Vemo::DbgData::HexDumpHelper;

namespace Bench {

namespace {

constexpr std::size_t kBytes = 1 << 20;

const std::vector<unsigned char>& sampleBytes() {
  static const std::vector<unsigned char> bytes = [] {
    std::vector<unsigned char> made(kBytes);
    unsigned state = 12345;
    for (unsigned char& byte : made) {
      state = state * 1103515245u + 12345u;
      byte = static_cast<unsigned char>(state >> 16);
    }
    return made;
  }();
  return bytes;
}

const std::string& sampleText() {
  static const std::string text = [] {
    std::string made;
    HexDumpHelper::convertBinToHex(sampleBytes().data(), kBytes, made);
    return made;
  }();
  return text;
}

// The output buffers, shared by every case: where a buffer lands (huge
// pages or not, its distance to the input) changes the time of these loops
// by up to a half, so all sides write into the same memory.
std::string& outputText() {
  static std::string text;
  return text;
}

std::vector<unsigned char>& outputBytes() {
  static std::vector<unsigned char> bytes(kBytes);
  return bytes;
}

// Two digits per byte value, in one table.
struct PairTable {
  char pairs[256][2];
  PairTable() {
    const char* digits = "0123456789ABCDEF";
    for (int b = 0; b < 256; ++b) {
      pairs[b][0] = digits[b >> 4];
      pairs[b][1] = digits[b & 15];
    }
  }
};

// Nibble value of every character; non-digits are 0.
struct NibbleTable {
  unsigned char values[256] = {};
  NibbleTable() {
    for (int c = '0'; c <= '9'; ++c)
      values[c] = static_cast<unsigned char>(c - '0');
    for (int c = 'A'; c <= 'F'; ++c)
      values[c] = values[c + ('a' - 'A')] =
          static_cast<unsigned char>(c - 'A' + 10);
  }
};

void tableEncode(const unsigned char* data, std::size_t size,
                 std::string& text) {
  static const PairTable table;
  text.resize(2 * size);
  char* out = &text[0];
  for (std::size_t i = 0; i < size; ++i) {
    std::memcpy(out + 2 * i, table.pairs[data[i]], 2);
  }
}

void tableDecode(const std::string& text, unsigned char* out) {
  static const NibbleTable table;
  const unsigned char* in = reinterpret_cast<const unsigned char*>(text.data());
  const std::size_t size = text.size() / 2;
  for (std::size_t i = 0; i < size; ++i)
    out[i] = static_cast<unsigned char>(table.values[in[2 * i]] << 4 |
                                        table.values[in[2 * i + 1]]);
}

void setCounters(benchmark::State& state, std::size_t inputBytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(inputBytes));
}

void HexEncode_Library(benchmark::State& state) {
  const std::vector<unsigned char>& bytes = sampleBytes();
  std::string& text = outputText();
  for (auto _ : state) {
    HexDumpHelper::convertBinToHex(bytes.data(), kBytes, text);
    benchmark::DoNotOptimize(text.data());
  }
  setCounters(state, kBytes);
}

void HexEncode_Table(benchmark::State& state) {
  const std::vector<unsigned char>& bytes = sampleBytes();
  std::string& text = outputText();
  tableEncode(bytes.data(), kBytes, text);
  if (!checkOnce(state, text == sampleText(), "hex encoding"))
    return;
  for (auto _ : state) {
    text.clear(); // as the library does: the text is rebuilt every time
    tableEncode(bytes.data(), kBytes, text);
    benchmark::DoNotOptimize(text.data());
  }
  setCounters(state, kBytes);
}

void HexEncode_Memcpy(benchmark::State& state) {
  const std::string& source = sampleText();
  std::string& text = outputText();
  text.resize(source.size());
  for (auto _ : state) {
    std::memcpy(&text[0], source.data(), source.size());
    benchmark::DoNotOptimize(text.data());
    benchmark::ClobberMemory();
  }
  setCounters(state, kBytes);
}

void HexDecode_Library(benchmark::State& state) {
  const std::string& text = sampleText();
  std::vector<unsigned char>& bytes = outputBytes();
  for (auto _ : state) {
    HexDumpHelper::convertHexToBin(text, bytes.data());
    benchmark::DoNotOptimize(bytes.data());
    benchmark::ClobberMemory();
  }
  setCounters(state, text.size());
}

void HexDecode_Table(benchmark::State& state) {
  const std::string& text = sampleText();
  std::vector<unsigned char>& bytes = outputBytes();
  tableDecode(text, bytes.data());
  std::vector<unsigned char> decoded(kBytes);
  HexDumpHelper::convertHexToBin(text, decoded.data());
  if (!checkOnce(state, bytes == decoded && bytes == sampleBytes(),
                 "hex decoding"))
    return;
  for (auto _ : state) {
    tableDecode(text, bytes.data());
    benchmark::DoNotOptimize(bytes.data());
    benchmark::ClobberMemory();
  }
  setCounters(state, text.size());
}

void HexDecode_Memcpy(benchmark::State& state) {
  const std::vector<unsigned char>& source = sampleBytes();
  std::vector<unsigned char>& bytes = outputBytes();
  for (auto _ : state) {
    std::memcpy(bytes.data(), source.data(), kBytes);
    benchmark::DoNotOptimize(bytes.data());
    benchmark::ClobberMemory();
  }
  setCounters(state, 2 * kBytes);
}

} // namespace

BENCHMARK(HexEncode_Library)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);
BENCHMARK(HexEncode_Table)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);
BENCHMARK(HexEncode_Memcpy)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);
BENCHMARK(HexDecode_Library)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);
BENCHMARK(HexDecode_Table)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);
BENCHMARK(HexDecode_Memcpy)->Unit(benchmark::kMicrosecond)->Apply(withMinimum);

} // namespace Bench
