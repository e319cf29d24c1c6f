// Tests of Address, Scope, StringVector and the hex codec.
#include "deserializerhelperDOM.h"
#include "hexdumphelper.h"
#include "serializerhelperString.h"
#include "valuetypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace Vemo::DbgData;

namespace {

// A reader over a map of key to text, enough for StringVector: strings and
// unsigned longs, and false (with 0) for anything missing.
class MapReader : public DeserializerHelperDOM {
public:
  using DeserializerHelperDOM::getInt;
  std::map<std::string, std::string> values;

  bool getInt(const std::string& key, unsigned long* out) const override {
    std::string text;
    *out = getString(key, &text) ? std::stoul(text) : 0;
    return !text.empty();
  }
  bool getString(const std::string& key, std::string* out) const override {
    const auto found = values.find(key);
    if (found != values.end())
      *out = found->second;
    return found != values.end();
  }
  unsigned long getValueCount() const override { return values.size(); }
};

// The storage text shows all five fields, so it also serves to compare them.
std::string serialized(const Address& address) {
  std::string text = "stale";
  address.serialize(text);
  return text;
}

TEST(AddressTest, StorageText) {
  EXPECT_EQ(serialized(Address()), "Address( 4 32 0 0 0 )Address");
  EXPECT_EQ(serialized(Address(0, 0x401000, 0, 1, 32)),
            "Address( 1 32 0 401000 0 )Address");
  EXPECT_EQ(serialized(Address(0xABC, ~0ull, 0x12, 3, -5)),
            "Address( 3 -5 abc ffffffffffffffff 12 )Address");
  std::ostringstream out;
  out << Address(1, 2, 3, 0, 8);
  EXPECT_EQ(out.str(), "Address( 0 8 1 2 3 )Address");

  // Reading from a stream takes seven words; a refused text leaves the
  // address and the stream as they were.
  std::istringstream in("Address(  1 32\n0 401000 0 )Address tail "
                        "Address( 4 32 0 0 0 )Address");
  Address address;
  std::string word;
  in >> address >> word >> address;
  EXPECT_EQ(serialized(address), "Address( 1 32 0 401000 0 )Address");
  EXPECT_EQ(word, "tail");
  EXPECT_FALSE(in.fail());
}

TEST(AddressTest, ParsingAcceptsOnlyValidModeAndWidth) {
  const std::pair<const char*, bool> cases[] = {
      {"Address( 1 32 0 401000 0 )Address", true},
      {"Address( 3 8 a b c )Address", true},
      {"Address( 0 128 A B C )Address", true},
      {"junk Address(2 64 10 1000 0)Address junk", true},
      {"Address( 4 32 0 0 0 )Address", false},
      {"Address( 1 7 0 0 0 )Address", false},
      {"Address( 1 129 0 0 0 )Address", false},
      {"Address( 1 -8 0 0 0 )Address", false},
      {"Address( -1 32 0 0 0 )Address", false},
      {"Address( x 32 0 0 0 )Address", false},
      {"Address( 1 32 0 0 0 )", false},
      {"( 1 32 0 0 0 )Address", false},
      {")Address Address( 1 32 0 0 0 )Address", false},
      {"", false},
  };
  const Address before(7, 7, 7, 0, 16);
  for (const auto& c : cases) {
    Address address = before;
    EXPECT_EQ(address.deserialize(c.first), c.second) << c.first;
    if (!c.second) {
      EXPECT_EQ(serialized(address), serialized(before)) << c.first;
    }
  }

  Address address;
  ASSERT_TRUE(address.deserialize("Address( 2 64 10 1000 fF )Address"));
  EXPECT_EQ(serialized(address), "Address( 2 64 10 1000 ff )Address");
  // Too few words: the parts that are there count, the rest are defaults.
  ASSERT_TRUE(address.deserialize("Address( 1 16 5 )Address"));
  EXPECT_EQ(serialized(address), "Address( 1 16 5 0 0 )Address");
  // A default address does not take its own text back.
  EXPECT_FALSE(address.deserialize(serialized(Address())));
}

TEST(AddressTest, ComparisonIgnoresModeAndWidth) {
  const Address base(5, 5, 5, 1, 32);
  const std::pair<Address, int> cases[] = {
      {Address(5, 5, 5, 3, 64), 0}, {Address(6, 0, 0, 1, 32), -1},
      {Address(4, 9, 9, 1, 32), 1}, {Address(5, 6, 0, 1, 32), -1},
      {Address(5, 4, 9, 1, 32), 1}, {Address(5, 5, 6, 1, 32), -1},
      {Address(5, 5, 4, 1, 32), 1}, {Address(5, 5, ~0ull, 1, 32), -1},
  };
  for (const auto& c : cases) {
    const int expected = c.second;
    EXPECT_EQ(base.compare(c.first), expected);
    EXPECT_EQ(base == c.first, expected == 0);
    EXPECT_EQ(base != c.first, expected != 0);
    EXPECT_EQ(base < c.first, expected < 0);
    EXPECT_EQ(base > c.first, expected > 0);
    EXPECT_EQ(base <= c.first, expected <= 0);
    EXPECT_EQ(base >= c.first, expected >= 0);
  }
}

TEST(AddressTest, DisplayText) {
  const std::pair<Address, const char*> cases[] = {
      {Address(0x10, 0x1000, 0, 2, 64), "0x0010:0x0000000000001000"},
      {Address(0, 0, 0, 1, 32), "0000000000"},
      {Address(0, 0x401000, 7, 1, 32), "0x00401000"},
      {Address(0, 0x100000001ull, 0, 1, 32), "0x00000001"},
      {Address(0, 0x1234, 0, 0, 8), "0x34"},
      {Address(0, 0x100, 0, 0, 8), "0000"},
      {Address(0, ~0ull, 0, 4, 64), "0xffffffffffffffff"},
      {Address(0x10, 0x5, 0, 3, 16), "0x0005"},
      {Address(0, 0xff, 0, 2, 8), "000000:0xff"},
      {Address(0x123456, 1, 0, 2, 12), "0x123456:"},
      {Address(0, 1, 0, 1, 128), ""},
  };
  for (const auto& c : cases) {
    std::string text = "stale";
    c.first.print(text);
    EXPECT_EQ(text, c.second);
  }
}

Scope sampleScope() {
  return Scope(Address(0, 0x401000, 0, 1, 32), DbgDataKey("/a b/c"), 12, 3);
}

TEST(ScopeTest, TextsRoundTripStreamsAndEquality) {
  std::string text;
  sampleScope().serialize(text);
  // "/a b/c" and its NUL in hex.
  EXPECT_EQ(text, "Scope( Address( 1 32 0 401000 0 )Address "
                  "2F6120622F6300 12 3 )Scope");
  std::ostringstream out;
  out << sampleScope();
  EXPECT_EQ(out.str(), text);
  Scope back;
  EXPECT_TRUE(back.deserialize(text));
  EXPECT_EQ(back, sampleScope());
  EXPECT_EQ(back.getKey().toString(), "/a b/c");

  // Reading from a stream takes one word only and so resets the scope.
  std::istringstream in(text);
  std::string word;
  in >> back >> word;
  EXPECT_EQ(back, Scope());
  EXPECT_EQ(word, "Address(");

  Scope().serialize(text);
  EXPECT_EQ(text, "Scope( Address( 4 32 0 0 0 )Address 00 0 0 )Scope");

  // Display text, and equality, which ignores address mode and width.
  sampleScope().print(text);
  EXPECT_EQ(text, "0x00401000 /a b/c 12 3");
  Scope(Address(0, 0, 0, 1, 8), DbgDataKey(), 1, 2).print(text);
  EXPECT_EQ(text, "0000 <empty> 1 2");

  Scope other = sampleScope();
  other.setAddress(Address(0, 0x401000, 0, 3, 64));
  EXPECT_EQ(other, sampleScope());
  other.setNumber2(4);
  EXPECT_NE(other, sampleScope());
  other = sampleScope();
  other.setKey(DbgDataKey("/a b"));
  EXPECT_NE(other, sampleScope());
  EXPECT_EQ(*std::unique_ptr<Scope>(sampleScope().clone()), sampleScope());
}

// Key, numbers and address mode of what each text reads as.
TEST(ScopeTest, UnreadablePartsBecomeDefaults) {
  const std::string a = "Scope( Address( 1 32 0 401000 0 )Address ";
  const std::pair<std::string, const char*> cases[] = {
      {"", " 0 0 4"},
      {"Scope( Address( 4 32 0 0 0 )Address 00 0 0 )Scope", " 0 0 4"},
      {a + "2F6100 5 6 )", " 0 0 4"},
      {")Scope " + a + "2F6100 5 6 )Scope", " 0 0 4"},
      {a + "2f6100 5 )Scope", "/a 5 0 1"},
      {a + ")Scope", " 0 0 1"},
      {a + "2F610 5 6 )Scope", " 5 6 1"},
      {a + "2F61 5 6 )Scope", "/a 5 6 1"},
      {a + "2F61002F62 5 6 )Scope", "/a 5 6 1"},
      {a + "2F62ZZ x 6 )Scope", "/b 0 0 1"},
      // The address takes seven words, whatever they are.
      {"Scope( Address( 1 32 )Address 2F6100 5 6 )Scope", " 0 0 1"},
      {"Scope( Address( 1 )Scope", " 0 0 4"},
  };
  for (const auto& c : cases) {
    Scope scope = sampleScope();
    EXPECT_TRUE(scope.deserialize(c.first));
    EXPECT_EQ(scope.getKey().toString() + " " +
                  std::to_string(scope.getNumber1()) + " " +
                  std::to_string(scope.getNumber2()) + " " +
                  std::to_string(scope.getAddress().getMode()),
              c.second)
        << c.first;
  }
}

TEST(StringVectorTest, WritesSizeAndHexIndexedKeysAndAnswersQueries) {
  StringVector vector;
  for (int i = 0; i < 11; ++i)
    vector.addItem("v" + std::to_string(i));
  SerializerHelperString writer;
  EXPECT_TRUE(vector.serialize("items", &writer));
  EXPECT_EQ(writer.getText(),
            "items_Size=11\nitems_0=v0\nitems_0x1=v1\nitems_0x2=v2\n"
            "items_0x3=v3\nitems_0x4=v4\nitems_0x5=v5\nitems_0x6=v6\n"
            "items_0x7=v7\nitems_0x8=v8\nitems_0x9=v9\nitems_0xa=v10\n");

  vector = StringVector();
  EXPECT_EQ(vector.find("a"), ~0ul);
  for (const char* item : {"a", "b", "a"})
    vector.addItem(item);
  EXPECT_EQ(vector.find("a"), 0u);
  EXPECT_EQ(vector.find("b"), 1u);
  EXPECT_EQ(vector.find("c"), ~0ul);
  std::ostringstream out;
  out << vector;
  EXPECT_EQ(out.str(), "\"a\", \"b\", \"a\"");

  std::unique_ptr<StringVector> copy(vector.clone());
  EXPECT_EQ(*copy, vector);
  copy->addItem("x");
  EXPECT_NE(*copy, vector);
}

TEST(StringVectorTest, ReadingKeepsTheStoredCount) {
  MapReader reader;
  reader.values = {{"l_Size", "3"}, {"l_0", "x"}, {"l_0x2", "z"}};
  StringVector vector;
  vector.addItem("old");
  EXPECT_FALSE(vector.deserialize("l", &reader)); // l_0x1 is missing
  ASSERT_EQ(vector.getSize(), 3u);
  EXPECT_EQ(vector.getItem(0), "x");
  EXPECT_EQ(vector.getItem(1), "");
  EXPECT_EQ(vector.getItem(2), "z");
  reader.values["l_0x1"] = "y";
  EXPECT_TRUE(vector.deserialize("l", &reader));
  EXPECT_EQ(vector.getSize(), 3u);

  EXPECT_FALSE(vector.deserialize("missing", &reader));
  EXPECT_EQ(vector.getSize(), 0u);
  reader.values["e_Size"] = "0";
  EXPECT_TRUE(vector.deserialize("e", &reader));

  // A count may pass the values the section holds by a few missing items;
  // beyond that it is refused as a whole, with no item added.
  reader.values = {{"l_Size", std::to_string(1 + kMissingListItems)}};
  EXPECT_FALSE(vector.deserialize("l", &reader)); // every item is missing
  EXPECT_EQ(vector.getSize(), 1 + kMissingListItems);
  for (const char* count : {"18", "1048576", "9223372036854775808"}) {
    reader.values["l_Size"] = count;
    EXPECT_FALSE(vector.deserialize("l", &reader)) << count;
    EXPECT_EQ(vector.getSize(), 0u) << count;
  }
}

TEST(HexDumpHelperTest, EncodesUpperCaseAndDecodesWithoutValidation) {
  const unsigned char bytes[] = {0, 1, 2, 9, 10, 0x5F, 0xA0, 0xFF};
  std::string text = "untouched";
  EXPECT_FALSE(HexDumpHelper::convertBinToHex(bytes, 0, text));
  EXPECT_EQ(text, "untouched");
  EXPECT_TRUE(HexDumpHelper::convertBinToHex(bytes, sizeof bytes, text));
  EXPECT_EQ(text, "000102090A5FA0FF");
  unsigned char back[sizeof bytes];
  EXPECT_TRUE(HexDumpHelper::convertHexToBin(text, back));
  EXPECT_EQ(std::memcmp(back, bytes, sizeof bytes), 0);
  // The raw encoder writes the digits and nothing else, in rounds of four
  // bytes and a tail.
  for (std::size_t size = 0; size <= sizeof bytes; ++size) {
    std::string digits(2 * sizeof bytes + 1, '#');
    HexDumpHelper::encodeDigits(bytes, size, &digits[0]);
    EXPECT_EQ(digits.substr(0, 2 * size), text.substr(0, 2 * size));
    EXPECT_EQ(digits.find_first_not_of('#', 2 * size), std::string::npos);
  }

  // Exactly the 21 non-zero hex digits decode to something other than 0.
  int nonZero = 0;
  for (int code = 0; code < 256; ++code)
    nonZero += HexDumpHelper::_charmap[code] != 0;
  EXPECT_EQ(nonZero, 21);
  const std::pair<const char*, unsigned char> cases[] = {
      {"0G", 0x00}, {"G1", 0x01}, {"ff", 0xFF},       {"Ab", 0xAB},
      {"9:", 0x90}, {"/@", 0x00}, {"\xC1\x31", 0x01}, {"\xFF\xFF", 0}};
  for (const auto& c : cases) {
    unsigned char out = 0x5A;
    EXPECT_TRUE(HexDumpHelper::convertHexToBin(c.first, &out));
    EXPECT_EQ(out, c.second) << c.first;
  }
  unsigned char untouched = 0x5A;
  EXPECT_FALSE(HexDumpHelper::convertHexToBin("ABC", &untouched));
  EXPECT_TRUE(HexDumpHelper::convertHexToBin("", &untouched));
  EXPECT_EQ(untouched, 0x5A);
}

// Random and hostile texts for the parsers: no crash, no read or write
// outside the buffers (the sanitizer build checks), and sane answers.
TEST(ValueTypesRobustnessTest, RandomTexts) {
  // The empty piece stands for a NUL character.
  const char* const pieces[] = {
      "Address(", ")Address", "Scope(",     ")Scope",    " ",    "  ", "\n",
      "0",        "1",        "2",          "4",         "32",   "64", "-1",
      "128",      "2F",       "00",         "G",         "\xff", "(",  ")",
      "\"",       "",         "ffffffffff", "9999999999"};
  std::mt19937 random(7);
  const Address before(1, 2, 3, 3, 16);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (unsigned n = random() % 16; n > 0; --n) {
      const char* piece = pieces[random() % (sizeof pieces / sizeof *pieces)];
      text += *piece ? std::string(piece) : std::string(1, '\0');
    }

    Address address = before;
    if (address.deserialize(text)) {
      ASSERT_LT(address.getMode(), 4u) << text;
      ASSERT_GE(address.getBitWidth(), 8) << text;
      ASSERT_LE(address.getBitWidth(), 128) << text;
    } else {
      ASSERT_EQ(serialized(address), serialized(before)) << text;
    }
    std::string shown;
    address.print(shown);

    Scope scope = sampleScope();
    ASSERT_TRUE(scope.deserialize(text));
    for (const std::string& element : scope.getKey().elements())
      ASSERT_FALSE(element.empty());
    std::istringstream in(text);
    in >> scope >> address;

    std::vector<unsigned char> buffer(text.size() / 2);
    ASSERT_EQ(HexDumpHelper::convertHexToBin(text, buffer.data()),
              text.size() % 2 == 0);
  }
}

} // namespace

// The stored texts of addresses and scopes are read without a stream when
// they have the exact form the writers make, and through a stream otherwise.
// The reference below is the stream reading alone; both must agree on every
// text, exact, damaged or foreign.
namespace {

template <class T> void referencePart(std::istream& in, T& part) {
  T value{};
  if (in >> value)
    part = value;
}

std::string referenceFrame(const std::string& text, const char* opening,
                           const char* closing, std::string::size_type skip) {
  const auto open = text.find(opening);
  const auto close = text.find(closing);
  if (open == std::string::npos || close == std::string::npos ||
      close < open + skip)
    return std::string();
  return text.substr(open + skip, close - (open + skip));
}

bool referenceAddress(const std::string& text, Address* address) {
  std::istringstream in(referenceFrame(text, "Address(", ")Address", 8));
  AddressType mode = 4;
  AddressSize width = 32;
  unsigned long long segment = 0, offset = 0, aux = 0;
  referencePart(in, mode);
  referencePart(in, width);
  in >> std::hex;
  referencePart(in, segment);
  referencePart(in, offset);
  referencePart(in, aux);
  if (mode >= 4 || width < 8 || width > 128)
    return false;
  *address = Address(segment, offset, aux, mode, width);
  return true;
}

std::string referenceScope(const std::string& text) {
  std::istringstream in(referenceFrame(text, "Scope(", ")Scope", 7));
  std::string joined, word, keyHex;
  for (int i = 0; i < 7 && in >> word; ++i)
    joined += (i != 0 ? " " : "") + word;
  Address address;
  referenceAddress(joined, &address);
  unsigned long number1 = 0, number2 = 0;
  referencePart(in, keyHex);
  referencePart(in, number1);
  referencePart(in, number2);
  std::vector<unsigned char> bytes(keyHex.size() / 2);
  std::string keyText;
  if (HexDumpHelper::convertHexToBin(keyHex, bytes.data()))
    keyText.assign(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
  std::string addressText;
  address.serialize(addressText);
  return addressText + "|" + DbgDataKey(keyText).toString() + "|" +
         std::to_string(number1) + "|" + std::to_string(number2);
}

// What a scope read holds, in the reference's terms.
std::string readScope(const std::string& text) {
  Scope scope;
  scope.deserialize(text);
  std::string addressText;
  scope.getAddress().serialize(addressText);
  return addressText + "|" + scope.getKey().toString() + "|" +
         std::to_string(scope.getNumber1()) + "|" +
         std::to_string(scope.getNumber2());
}

std::string mutated(std::string text, std::mt19937& random) {
  static const char kPieces[] = " \t\n+-x0fF9aZ()A";
  const int edits = 1 + random() % 3;
  for (int e = 0; e < edits && !text.empty(); ++e) {
    const std::size_t at = random() % text.size();
    const char piece = kPieces[random() % (sizeof kPieces - 1)];
    switch (random() % 4) {
    case 0:
      text[at] = piece;
      break;
    case 1:
      text.insert(at, 1, piece);
      break;
    case 2:
      text.erase(at, 1);
      break;
    default:
      text.resize(at);
      break;
    }
  }
  return text;
}

} // namespace

TEST(StoredTextTest, FastReadingAgreesWithTheStreamOnEveryText) {
  std::mt19937 random(20261123);
  const Address addresses[] = {Address(),
                               Address(0x10, 0x401000, 0, 2, 64),
                               Address(~0ull, ~0ull, ~0ull, 3, 128),
                               Address(0, 0, 0, 0, 8),
                               Address(1, 2, 3, 4, 32),
                               Address(1, 2, 3, 1, 7)};
  const char* keys[] = {"", "/Root/Stack/f1", "/a b/(x)/c"};
  int exact = 0;
  for (int round = 0; round < 4000; ++round) {
    const Address& address = addresses[round % 6];
    std::string addressText;
    address.serialize(addressText);
    Scope scope(address, DbgDataKey(keys[round % 3]), round * 977ul,
                round % 5 == 0 ? ~0ul : round);
    std::string scopeText;
    scope.serialize(scopeText);
    const bool keep = round % 4 == 0;
    exact += keep;
    for (const std::string& text :
         {keep ? addressText : mutated(addressText, random),
          keep ? scopeText : mutated(scopeText, random)}) {
      SCOPED_TRACE(text);
      Address expected(7, 7, 7, 1, 16), actual(7, 7, 7, 1, 16);
      EXPECT_EQ(actual.deserialize(text), referenceAddress(text, &expected));
      std::string a, b;
      actual.serialize(a);
      expected.serialize(b);
      EXPECT_EQ(a, b);
      EXPECT_EQ(readScope(text), referenceScope(text));
    }
  }
  EXPECT_EQ(exact, 1000);
}
