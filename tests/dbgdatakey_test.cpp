// Tests of the full key: its text form, ranges, search and streaming.
#include "dbgdatakey.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

using Vemo::DbgData::DbgDataKey;
using Elements = std::vector<std::string>;

namespace {

DbgDataKey keyOf(const Elements& elements) {
  DbgDataKey key;
  for (const std::string& element : elements)
    key.append(element);
  return key;
}

TEST(DbgDataKeyTest, ParseStringTable) {
  struct Case {
    const char* text;
    Elements elements;
  };
  const Case cases[] = {
      {"", {}},
      {"/", {}},
      {"///", {}},
      {"Root/A", {"Root", "A"}},
      {"/Root/A", {"Root", "A"}},
      {"/Root//A/", {"Root", "A"}},
      {"/Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]",
       {"Root", "ParallelJob[]", "0", "Jobs[]", "1", "Events",
        "BreakPoints[]"}},
      // Escape plus separator is the only escape sequence.
      {"a\\/b", {"a/b"}},
      {"\\/", {"/"}},
      {"/a\\b", {"a\\b"}},
      {"/a\\", {"a\\"}},
      {"a\\\\/b", {"a\\/b"}},
      {"/ a b /c", {" a b ", "c"}},
  };
  for (const Case& c : cases) {
    DbgDataKey key;
    EXPECT_EQ(key.parseString(c.text), c.elements.size()) << c.text;
    EXPECT_EQ(key.elements(), c.elements) << c.text;
    EXPECT_EQ(DbgDataKey(c.text).elements(), c.elements) << c.text;
    EXPECT_EQ(DbgDataKey(std::string(c.text)).elements(), c.elements);
  }
}

TEST(DbgDataKeyTest, TextFormEscapesOnlySeparators) {
  const DbgDataKey key = keyOf({"Root", "a/b", "c\\d", "x y"});
  EXPECT_EQ(key.toString(), "/Root/a\\/b/c\\d/x y");
  EXPECT_EQ(DbgDataKey(key.toString()), key);
  EXPECT_EQ(DbgDataKey().toString(), "");
  EXPECT_EQ(key.escapeSeparators("/a//b\\"), "\\/a\\/\\/b\\");
  EXPECT_EQ(key.unescapeSeparators("\\/a\\/\\/b\\"), "/a//b\\");

  std::ostringstream out;
  out << key;
  EXPECT_EQ(out.str(), key.toString());
}

TEST(DbgDataKeyTest, RangesCopyAndAppend) {
  const DbgDataKey abcd = keyOf({"a", "b", "c", "d"});
  struct Case {
    unsigned long from, end;
    Elements elements;
  };
  const Case cases[] = {
      {0, 0, {"a", "b", "c", "d"}},
      {1, 0, {"b", "c", "d"}},
      {1, 3, {"b", "c"}}, // the end is a position, not a count
      {2, 2, {}},
      {3, 1, {}},
      {2, 99, {"c", "d"}},
      {99, 0, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.from) + ".." + std::to_string(c.end));
    EXPECT_EQ(DbgDataKey(abcd, c.from, c.end).elements(), c.elements);
    DbgDataKey copied("x"), appended("x");
    copied.copy(abcd, c.from, c.end);
    EXPECT_EQ(copied.elements(), c.elements);
    appended.append(abcd, c.from, c.end);
    EXPECT_EQ(appended, DbgDataKey("x") + DbgDataKey(abcd, c.from, c.end));
  }

  DbgDataKey self = keyOf({"a", "b"});
  self += self;
  EXPECT_EQ(self.elements(), (Elements{"a", "b", "a", "b"}));
  self.copy(self, 1, 3);
  EXPECT_EQ(self.elements(), (Elements{"b", "a"}));

  DbgDataKey chained;
  chained << "Root" << std::string("a/b") += "c";
  const DbgDataKey sum = chained + "d" + keyOf({"e", "f"});
  EXPECT_EQ(sum.elements(), (Elements{"Root", "a/b", "c", "d", "e", "f"}));
  EXPECT_EQ(chained.size(), 3u);
  EXPECT_EQ(sum.getLast(), "f");
}

TEST(DbgDataKeyTest, RemoveLastFindAndEquality) {
  DbgDataKey key = keyOf({"a", "b", "c"});
  key.removeLast(0);
  EXPECT_EQ(key.size(), 3u);
  key.removeLast(1);
  EXPECT_EQ(key.elements(), (Elements{"a", "b"}));
  key.removeLast(5);
  EXPECT_TRUE(key.empty());

  const DbgDataKey xyxz = keyOf({"X", "Y", "X", "Z"});
  EXPECT_TRUE(xyxz.find("Z"));
  EXPECT_FALSE(xyxz.find("x"));
  EXPECT_TRUE(xyxz.find(keyOf({"X", "Y"})));
  EXPECT_TRUE(xyxz.find(keyOf({"Y", "X", "Z"})));
  // Only the first occurrence of the first element is tried.
  EXPECT_FALSE(xyxz.find(keyOf({"X", "Z"})));
  EXPECT_FALSE(xyxz.find(keyOf({"Z", "X"})));
  EXPECT_FALSE(xyxz.find(keyOf({"Q"})));

  EXPECT_EQ(keyOf({"a", "b"}), DbgDataKey("/a/b"));
  EXPECT_NE(keyOf({"a", "b"}), DbgDataKey("/a/c"));
  EXPECT_NE(keyOf({"a", "b"}), DbgDataKey("/a/b/c"));
  EXPECT_NE(keyOf({"a/b"}), DbgDataKey("/a/b"));
}

TEST(DbgDataKeyTest, StreamReading) {
  std::istringstream in("  \"/Root/a b\"/x  /c/d next \"unterminated tail");
  DbgDataKey quoted, after, plain, tail;
  std::string word;
  in >> quoted >> after >> plain >> word >> tail;
  EXPECT_EQ(quoted.elements(), (Elements{"Root", "a b"}));
  // The text after a closing quote is a word of its own.
  EXPECT_EQ(after.elements(), Elements{"x"});
  EXPECT_EQ(plain.elements(), (Elements{"c", "d"}));
  EXPECT_EQ(word, "next");
  EXPECT_EQ(tail.elements(), Elements{"unterminated tail"});
  EXPECT_FALSE(in.fail());

  // A text without elements puts the stream back where it stood.
  std::istringstream empties(" \"\" z");
  empties >> quoted;
  EXPECT_TRUE(quoted.empty() && empties.good());
  empties >> word;
  EXPECT_EQ(word, "\"\"");
  // Nothing left at all: put back, and failed, so that reading loops end.
  std::istringstream blank("last   ");
  blank >> word >> plain;
  EXPECT_TRUE(plain.empty() && blank.fail());
  blank.clear();
  EXPECT_EQ(blank.tellg(), std::streampos(4));
}

// Random and hostile texts: parsing gives no empty element, and the text
// form of a parsed key parses back to the same key; a stream read either
// gives a key or leaves the position unchanged.
TEST(DbgDataKeyTest, RobustAgainstRandomText) {
  const char alphabet[] = {'/', '\\', '"', ' ',  '\t',   '\n',   'a',
                           'Z', '[',  ']', '\0', '\x7f', '\xff', '0'};
  std::mt19937 random(20240611);
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 24, ' ');
    for (char& c : text)
      c = alphabet[random() % sizeof alphabet];

    DbgDataKey key;
    const std::uint32_t count = key.parseString(text);
    ASSERT_EQ(count, key.size());
    for (const std::string& element : key.elements())
      ASSERT_FALSE(element.empty());
    ASSERT_EQ(DbgDataKey(key.toString()), key) << text;

    std::istringstream in(text);
    DbgDataKey streamed("previous");
    while (in.good()) {
      const std::streampos before = in.tellg();
      in >> streamed;
      if (streamed.empty()) {
        in.clear();
        ASSERT_EQ(in.tellg(), before);
        in.ignore(1); // step over the text that gave nothing
      }
    }
  }
}

} // namespace
