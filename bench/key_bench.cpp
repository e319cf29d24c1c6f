// Full keys: parsing text into a DbgDataKey, its text form, the deepest
// builder and parseFullKey, against splitting (or joining) the same text on
// "/" with a vector of strings.
#include "benchtree.h"

#include "dbgdatakey.h"
#include "ddmanager.h"

#include <string>
#include <vector>

using namespace Vemo::DbgData;

namespace Bench {

namespace {

// The sub keys of a register of a stack frame, and its full key: the deepest
// place a builder makes (14 elements).
const char* const kSubKeys[] = {"0", "1", "4711", "12", "3", "General", "rax"};
const std::string kKeyText = "/Root/ParallelJob[]/0/Jobs[]/1/Process[]/4711/"
                             "Threads[]/12/StackFrames[]/3/CtxtRegGrps[]/"
                             "General/rax";

void split(const std::string& text, std::vector<std::string>& parts) {
  std::string::size_type pos = 0;
  while (pos < text.size()) {
    std::string::size_type next = text.find('/', pos);
    if (next == std::string::npos)
      next = text.size();
    if (next > pos)
      parts.emplace_back(text, pos, next - pos);
    pos = next + 1;
  }
}

// The text form, with a "/" inside an element escaped as the key does.
void join(const std::vector<std::string>& parts, std::string& text) {
  for (const std::string& part : parts) {
    text += '/';
    if (part.find('/') == std::string::npos) {
      text += part;
      continue;
    }
    for (char c : part) {
      if (c == '/')
        text += '\\';
      text += c;
    }
  }
}

void buildVector(std::vector<std::string>& parts) {
  parts.emplace_back("Root");
  parts.emplace_back("ParallelJob[]");
  parts.emplace_back(kSubKeys[0]);
  parts.emplace_back("Jobs[]");
  parts.emplace_back(kSubKeys[1]);
  parts.emplace_back("Process[]");
  parts.emplace_back(kSubKeys[2]);
  parts.emplace_back("Threads[]");
  parts.emplace_back(kSubKeys[3]);
  parts.emplace_back("StackFrames[]");
  parts.emplace_back(kSubKeys[4]);
  parts.emplace_back("CtxtRegGrps[]");
  parts.emplace_back(kSubKeys[5]);
  parts.emplace_back(kSubKeys[6]);
}

const std::vector<std::string>& expectedParts() {
  static const std::vector<std::string> parts = [] {
    std::vector<std::string> made;
    split(kKeyText, made);
    return made;
  }();
  return parts;
}

void KeyParse_Library(benchmark::State& state) {
  if (!checkOnce(state, DbgDataKey(kKeyText).elements() == expectedParts(),
                 "key parse"))
    return;
  for (auto _ : state) {
    DbgDataKey key(kKeyText);
    benchmark::DoNotOptimize(key.elements().data());
  }
}

void KeyParse_Split(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::string> parts;
    split(kKeyText, parts);
    benchmark::DoNotOptimize(parts.data());
  }
}

void KeyToString_Library(benchmark::State& state) {
  const DbgDataKey key(kKeyText);
  for (auto _ : state) {
    std::string text = key.toString();
    benchmark::DoNotOptimize(text.data());
  }
}

void KeyToString_Join(benchmark::State& state) {
  const std::vector<std::string>& parts = expectedParts();
  std::string joined;
  join(parts, joined);
  if (!checkOnce(state, joined == DbgDataKey(kKeyText).toString(), "key text"))
    return;
  for (auto _ : state) {
    std::string text;
    join(parts, text);
    benchmark::DoNotOptimize(text.data());
  }
}

bool buildRegisterKey(DbgDataKey& key) {
  return st_ddmanager.createFullKeyStackFrameRegister(
      key, kSubKeys[0], kSubKeys[1], kSubKeys[2], kSubKeys[3], kSubKeys[4],
      kSubKeys[5], kSubKeys[6]);
}

void KeyBuild_Library(benchmark::State& state) {
  // The sub keys arrive as strings, made outside the timed loop.
  const std::string s[7] = {kSubKeys[0], kSubKeys[1], kSubKeys[2], kSubKeys[3],
                            kSubKeys[4], kSubKeys[5], kSubKeys[6]};
  for (auto _ : state) {
    DbgDataKey key;
    st_ddmanager.createFullKeyStackFrameRegister(key, s[0], s[1], s[2], s[3],
                                                 s[4], s[5], s[6]);
    benchmark::DoNotOptimize(key.elements().data());
  }
}

void KeyBuild_Vector(benchmark::State& state) {
  DbgDataKey built;
  buildRegisterKey(built);
  std::vector<std::string> parts;
  buildVector(parts);
  if (!checkOnce(state, built.elements() == parts && parts == expectedParts(),
                 "key builder"))
    return;
  for (auto _ : state) {
    std::vector<std::string> made;
    buildVector(made);
    benchmark::DoNotOptimize(made.data());
  }
}

void ParseFullKey_Library(benchmark::State& state) {
  DbgDataManager::DataHierarchy checked;
  if (!checkOnce(state,
                 st_ddmanager.parseFullKey(kKeyText, checked) &&
                     checked.key.elements() == expectedParts() &&
                     checked.itemPositions.size() == 7,
                 "parseFullKey"))
    return;
  for (auto _ : state) {
    DbgDataManager::DataHierarchy result;
    benchmark::DoNotOptimize(st_ddmanager.parseFullKey(kKeyText, result));
  }
}

} // namespace

BENCHMARK(KeyParse_Library)->Apply(withMinimum);
BENCHMARK(KeyParse_Split)->Apply(withMinimum);
BENCHMARK(KeyToString_Library)->Apply(withMinimum);
BENCHMARK(KeyToString_Join)->Apply(withMinimum);
BENCHMARK(KeyBuild_Library)->Apply(withMinimum);
BENCHMARK(KeyBuild_Vector)->Apply(withMinimum);
BENCHMARK(ParseFullKey_Library)->Apply(withMinimum);

} // namespace Bench
