// Runs a libFuzzer target without libFuzzer, for the test suite: every file
// of a corpus directory, then a fixed number of inputs made from them by
// random edits (the same ones in every run: the generator has a fixed
// seed). The edits splice in the tokens of a dictionary file in libFuzzer's
// format when one is given.
//
// Usage: replay CORPUS_DIR COUNT [DICTIONARY]
// With the environment variable DBGDATA_REPLAY_INPUT set to a file name,
// each input is written there before it runs, so that the one that failed
// is left behind.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size);

namespace {

std::string readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// The quoted tokens of a dictionary, with \xNN, \\ and \" escapes.
std::vector<std::string> readDictionary(const std::string& path) {
  std::vector<std::string> tokens;
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) {
    const std::size_t open = line.find('"');
    const std::size_t close = line.rfind('"');
    if (line.empty() || line[0] == '#' || open == std::string::npos ||
        close <= open)
      continue;
    std::string token;
    for (std::size_t i = open + 1; i < close; ++i) {
      if (line[i] == '\\' && i + 1 < close && line[i + 1] == 'x' &&
          i + 3 < close) {
        token +=
            static_cast<char>(std::stoi(line.substr(i + 2, 2), nullptr, 16));
        i += 3;
      } else if (line[i] == '\\' && i + 1 < close) {
        token += line[++i];
      } else {
        token += line[i];
      }
    }
    tokens.push_back(token);
  }
  return tokens;
}

struct Random {
  std::uint64_t state = 0x9E3779B97F4A7C15ull;
  std::uint64_t next() {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return state;
  }
  std::size_t below(std::size_t bound) { return bound ? next() % bound : 0; }
};

std::string mutate(const std::vector<std::string>& corpus,
                   const std::vector<std::string>& tokens, Random& random) {
  std::string text = corpus[random.below(corpus.size())];
  const std::size_t edits = 1 + random.below(4);
  for (std::size_t e = 0; e < edits; ++e) {
    const std::size_t at = random.below(text.size() + 1);
    switch (random.below(5)) {
    case 0: // one byte changed
      if (!text.empty())
        text[random.below(text.size())] = static_cast<char>(random.next());
      break;
    case 1: // a token put in
      if (!tokens.empty())
        text.insert(at, tokens[random.below(tokens.size())]);
      break;
    case 2: // a piece taken out
      text.erase(at, random.below(16));
      break;
    case 3: // a piece repeated
      text.insert(at, text.substr(at, random.below(64)));
      break;
    default: { // a piece of another input
      const std::string& other = corpus[random.below(corpus.size())];
      const std::size_t from = random.below(other.size() + 1);
      text.insert(at, other.substr(from, random.below(128)));
    }
    }
  }
  return text;
}

void run(const std::string& text) {
  if (const char* keep = std::getenv("DBGDATA_REPLAY_INPUT"))
    std::ofstream(keep, std::ios::binary) << text;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()),
                         text.size());
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s CORPUS_DIR COUNT [DICTIONARY]\n", argv[0]);
    return 2;
  }
  std::vector<std::string> corpus;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
    if (entry.is_regular_file())
      corpus.push_back(readFile(entry.path()));
  if (corpus.empty()) {
    std::fprintf(stderr, "%s: no inputs in %s\n", argv[0], argv[1]);
    return 2;
  }
  const std::vector<std::string> tokens =
      argc > 3 ? readDictionary(argv[3]) : std::vector<std::string>();
  for (const std::string& text : corpus)
    run(text);
  Random random;
  const long count = std::atol(argv[2]);
  for (long i = 0; i < count; ++i)
    run(mutate(corpus, tokens, random));
  std::printf("%zu corpus inputs and %ld edited ones ran\n", corpus.size(),
              count);
  return 0;
}
