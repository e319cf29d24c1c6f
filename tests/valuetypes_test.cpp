// Tests of Address, Scope, StringVector and the hex codec.
#include "hexdumphelper.h"
#include "serializerhelper.h"
#include "serializerhelperString.h"
#include "valuetypes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace Vemo::DbgData;

namespace {

// A reader over a map of key to text, enough for StringVector: it answers
// strings and unsigned longs, and false (with 0) for anything missing.
class MapReader : public IDeserializerHelper {
public:
  std::map<std::string, std::string> values;

  bool getNameAndSubKey(std::string*, std::string*) const override {
    return false;
  }
  bool getBool(const std::string&, bool*) const override { return false; }
  bool getInt(const std::string&, int*) const override { return false; }
  bool getInt(const std::string&, unsigned int*) const override {
    return false;
  }
  bool getInt(const std::string&, long*) const override { return false; }
  bool getInt(const std::string& key, unsigned long* out) const override {
    const auto found = values.find(key);
    *out = found == values.end() ? 0 : std::stoul(found->second);
    return found != values.end();
  }
  bool getInt(const std::string&, long long*) const override { return false; }
  bool getInt(const std::string&, unsigned long long*) const override {
    return false;
  }
  bool getFloat(const std::string&, double*) const override { return false; }
  bool getString(const std::string& key, std::string* out) const override {
    const auto found = values.find(key);
    if (found == values.end())
      return false;
    *out = found->second;
    return true;
  }
  bool getAddress(const std::string&, Address*) const override { return false; }
  bool getScope(const std::string&, Scope*) const override { return false; }
  bool getDbgDataKey(const std::string&, DbgDataKey*) const override {
    return false;
  }
  bool pushSection(const std::string&) override { return false; }
  bool pushListSection(const std::string&) override { return false; }
  bool pushFirstChildSection() override { return false; }
  bool pushNextChildSection() override { return false; }
  bool popSection() override { return false; }
  bool popListSection() override { return false; }
};

std::string serialized(const Address& address) {
  std::string text = "stale";
  address.serialize(text);
  return text;
}

std::string printed(const Address& address) {
  std::string text = "stale";
  address.print(text);
  return text;
}

void expectSame(const Address& actual, const Address& expected) {
  EXPECT_EQ(actual.getSegment(), expected.getSegment());
  EXPECT_EQ(actual.getOffset(), expected.getOffset());
  EXPECT_EQ(actual.getAux(), expected.getAux());
  EXPECT_EQ(actual.getMode(), expected.getMode());
  EXPECT_EQ(actual.getBitWidth(), expected.getBitWidth());
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
}

TEST(AddressTest, ParsingAcceptsOnlyValidModeAndWidth) {
  struct Case {
    const char* text;
    bool accepted;
  };
  const Case cases[] = {
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
      {"Address()Address", false},
      {"", false},
  };
  const Address before(7, 7, 7, 0, 16);
  for (const Case& c : cases) {
    Address address = before;
    EXPECT_EQ(address.deserialize(c.text), c.accepted) << c.text;
    if (!c.accepted)
      expectSame(address, before);
  }

  Address address;
  ASSERT_TRUE(address.deserialize("Address( 2 64 10 1000 fF )Address"));
  expectSame(address, Address(0x10, 0x1000, 0xff, 2, 64));

  // Too few words: the parts that are there count, the rest are defaults.
  ASSERT_TRUE(address.deserialize("Address( 1 16 5 )Address"));
  expectSame(address, Address(5, 0, 0, 1, 16));
  ASSERT_TRUE(address.deserialize("Address( 1 )Address"));
  expectSame(address, Address(0, 0, 0, 1, 32));

  // A default address does not take its own text back, yet stays default.
  Address fresh;
  EXPECT_FALSE(fresh.deserialize(serialized(Address())));
  expectSame(fresh, Address());
}

TEST(AddressTest, ComparisonIgnoresModeAndWidth) {
  const Address base(5, 5, 5, 1, 32);
  struct Case {
    Address other;
    int expected; // base.compare(other)
  };
  const Case cases[] = {
      {Address(5, 5, 5, 3, 64), 0},
      {Address(6, 0, 0, 1, 32), -1},
      {Address(4, 9, 9, 1, 32), 1},
      {Address(5, 6, 0, 1, 32), -1},
      {Address(5, 4, 9, 1, 32), 1},
      {Address(5, 5, 6, 1, 32), -1},
      {Address(5, 5, 4, 1, 32), 1},
      {Address(5, 5, ~0ull, 1, 32), -1}, // unsigned comparison
  };
  for (const Case& c : cases) {
    EXPECT_EQ(base.compare(c.other), c.expected);
    EXPECT_EQ(base == c.other, c.expected == 0);
    EXPECT_EQ(base != c.other, c.expected != 0);
    EXPECT_EQ(base < c.other, c.expected < 0);
    EXPECT_EQ(base > c.other, c.expected > 0);
    EXPECT_EQ(base <= c.other, c.expected <= 0);
    EXPECT_EQ(base >= c.other, c.expected >= 0);
  }

  std::unique_ptr<Address> copy(Address(1, 2, 3, 2, 16).clone());
  expectSame(*copy, Address(1, 2, 3, 2, 16));
  Address assigned;
  assigned = *copy;
  expectSame(assigned, *copy);
}

TEST(AddressTest, DisplayText) {
  struct Case {
    Address address;
    const char* text;
  };
  const Case cases[] = {
      {Address(0x10, 0x1000, 0, 2, 64), "0x0010:0x0000000000001000"},
      {Address(0, 0, 0, 1, 32), "0000000000"},
      {Address(0, 0x401000, 7, 1, 32), "0x00401000"},
      {Address(0, 0x100000001ull, 0, 1, 32), "0x00000001"},
      {Address(0, 0x1234, 0, 0, 8), "0x34"},
      {Address(0, 0x100, 0, 0, 8), "0000"},
      {Address(0, 0x12345, 0, 0, 16), "0x2345"},
      {Address(0, ~0ull, 0, 4, 64), "0xffffffffffffffff"},
      {Address(0x10, 0x5, 0, 3, 16), "0x0005"},
      {Address(0, 0xff, 0, 2, 8), "000000:0xff"},
      {Address(0x123456, 1, 0, 2, 12), "0x123456:"},
      {Address(0, 1, 0, 1, 128), ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(printed(c.address), c.text);
}

TEST(AddressTest, StreamReadsSevenWords) {
  std::istringstream in(
      "Address(  1 32\n0 401000 0 )Address tail Address( 4 32 0 0 0 )Address");
  Address address;
  in >> address;
  expectSame(address, Address(0, 0x401000, 0, 1, 32));
  std::string word;
  in >> word;
  EXPECT_EQ(word, "tail");
  // A refused text leaves the address and the stream as they were.
  in >> address;
  EXPECT_FALSE(in.fail());
  expectSame(address, Address(0, 0x401000, 0, 1, 32));
}

Scope sampleScope() {
  DbgDataKey key;
  key << "a b"
      << "c";
  return Scope(Address(0, 0x401000, 0, 1, 32), key, 12, 3);
}

TEST(ScopeTest, StorageTextAndRoundTrip) {
  std::string text;
  sampleScope().serialize(text);
  // "/a b/c" and its NUL in hex.
  EXPECT_EQ(text, "Scope( Address( 1 32 0 401000 0 )Address "
                  "2F6120622F6300 12 3 )Scope");
  Scope back;
  EXPECT_TRUE(back.deserialize(text));
  EXPECT_EQ(back, sampleScope());
  EXPECT_EQ(back.getKey().toString(), "/a b/c");

  Scope empty;
  empty.serialize(text);
  EXPECT_EQ(text, "Scope( Address( 4 32 0 0 0 )Address 00 0 0 )Scope");
  back = sampleScope();
  EXPECT_TRUE(back.deserialize(text));
  EXPECT_EQ(back, Scope());
  EXPECT_EQ(back.getAddress().getMode(), 4u);

  std::ostringstream out;
  out << sampleScope();
  sampleScope().serialize(text);
  EXPECT_EQ(out.str(), text);
}

TEST(ScopeTest, UnreadablePartsBecomeDefaults) {
  const std::string address = "Address( 1 32 0 401000 0 )Address";
  struct Case {
    std::string text;
    std::string key;
    unsigned long number1, number2;
    bool addressRead;
  };
  const Case cases[] = {
      {"", "", 0, 0, false},
      {"Scope( " + address + " 2F6100 5 6 )", "", 0, 0, false},
      {"Scope()Scope", "", 0, 0, false},
      {")Scope Scope( " + address + " 2F6100 5 6 )Scope", "", 0, 0, false},
      {"Scope( " + address + " 2f6100 5 )Scope", "a", 5, 0, true},
      {"Scope( " + address + " )Scope", "", 0, 0, true},
      {"Scope( " + address + " 2F610 5 6 )Scope", "", 5, 6, true},
      {"Scope( " + address + " 2F61 5 6 )Scope", "a", 5, 6, true},
      {"Scope( " + address + " 2F61002F62 5 6 )Scope", "a", 5, 6, true},
      {"Scope( " + address + " 2F62ZZ x 6 )Scope", "b", 0, 0, true},
      {"Scope( " + address + " ZZ2F62 5 6 )Scope", "", 5, 6, true},
      // The address takes seven words, whatever they are.
      {"Scope( Address( 1 32 )Address 2F6100 5 6 )Scope", "", 0, 0, true},
      {"Scope( Address( 1 32 )Address )Scope", "", 0, 0, true},
      {"Scope( Address( 1 )Scope", "", 0, 0, false},
  };
  for (const Case& c : cases) {
    Scope scope = sampleScope();
    EXPECT_TRUE(scope.deserialize(c.text)) << c.text;
    EXPECT_EQ(scope.getKey().toString(), c.key.empty() ? "" : "/" + c.key)
        << c.text;
    EXPECT_EQ(scope.getNumber1(), c.number1) << c.text;
    EXPECT_EQ(scope.getNumber2(), c.number2) << c.text;
    EXPECT_EQ(scope.getAddress().getMode(), c.addressRead ? 1u : 4u) << c.text;
  }
}

TEST(ScopeTest, StreamReadsOneWordOnly) {
  std::string text;
  sampleScope().serialize(text);
  std::istringstream in(text);
  Scope scope = sampleScope();
  in >> scope;
  EXPECT_EQ(scope, Scope());
  std::string word;
  in >> word;
  EXPECT_EQ(word, "Address(");
}

TEST(ScopeTest, DisplayAndEquality) {
  std::string text;
  sampleScope().print(text);
  EXPECT_EQ(text, "0x00401000 /a b/c 12 3");
  Scope scope(Address(0, 0, 0, 1, 8), DbgDataKey(), 1, 2);
  scope.print(text);
  EXPECT_EQ(text, "0000 <empty> 1 2");

  Scope other = sampleScope();
  Address differentMode = other.getAddress();
  differentMode.setMode(3);
  other.setAddress(differentMode);
  EXPECT_EQ(other, sampleScope());
  other.setNumber2(4);
  EXPECT_NE(other, sampleScope());
  other = sampleScope();
  other.setKey(DbgDataKey("/a b"));
  EXPECT_NE(other, sampleScope());
  std::unique_ptr<Scope> copy(sampleScope().clone());
  EXPECT_EQ(*copy, sampleScope());
}

TEST(StringVectorTest, WritesSizeAndHexIndexedKeys) {
  StringVector vector;
  for (int i = 0; i < 11; ++i)
    vector.addItem("v" + std::to_string(i));
  SerializerHelperString writer;
  EXPECT_TRUE(vector.serialize("items", &writer));
  EXPECT_EQ(writer.getText(),
            "items_Size=11\nitems_0=v0\nitems_0x1=v1\nitems_0x2=v2\n"
            "items_0x3=v3\nitems_0x4=v4\nitems_0x5=v5\nitems_0x6=v6\n"
            "items_0x7=v7\nitems_0x8=v8\nitems_0x9=v9\nitems_0xa=v10\n");
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

  // A damaged count far beyond any real list is refused as a whole; the
  // largest accepted count still keeps every index.
  reader.values["l_Size"] = "9223372036854775808";
  EXPECT_FALSE(vector.deserialize("l", &reader));
  EXPECT_EQ(vector.getSize(), 0u);
  reader.values["l_Size"] = std::to_string(1ul << 20);
  EXPECT_FALSE(vector.deserialize("l", &reader));
  EXPECT_EQ(vector.getSize(), 1ul << 20);
}

TEST(StringVectorTest, QueriesAndText) {
  StringVector vector;
  EXPECT_EQ(vector.find("a"), ~0ul);
  std::ostringstream empty;
  empty << vector;
  EXPECT_EQ(empty.str(), "");

  vector.addItem("a");
  vector.addItem("b");
  vector.addItem("a");
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
  StringVector assigned;
  assigned = *copy;
  EXPECT_EQ(assigned, *copy);
}

TEST(HexDumpHelperTest, EncodesUpperCase) {
  const unsigned char bytes[] = {0, 1, 2,  3,  4,  5,  6,  7,
                                 8, 9, 10, 11, 12, 13, 14, 0xFF};
  std::string text = "untouched";
  EXPECT_FALSE(HexDumpHelper::convertBinToHex(bytes, 0, text));
  EXPECT_EQ(text, "untouched");
  EXPECT_TRUE(HexDumpHelper::convertBinToHex(bytes, sizeof bytes, text));
  EXPECT_EQ(text, "000102030405060708090A0B0C0D0EFF");

  unsigned char back[sizeof bytes];
  EXPECT_TRUE(HexDumpHelper::convertHexToBin(text, back));
  EXPECT_EQ(std::memcmp(back, bytes, sizeof bytes), 0);
}

TEST(HexDumpHelperTest, DecodesWithoutValidation) {
  for (int code = 0; code < 256; ++code) {
    int expected = 0;
    if (code >= '0' && code <= '9')
      expected = code - '0';
    else if (code >= 'a' && code <= 'f')
      expected = code - 'a' + 10;
    else if (code >= 'A' && code <= 'F')
      expected = code - 'A' + 10;
    EXPECT_EQ(HexDumpHelper::_charmap[code], expected) << code;
  }
  EXPECT_STREQ(std::string(HexDumpHelper::_hexmap, 16).c_str(),
               "0123456789ABCDEF");

  struct Case {
    const char* text;
    unsigned char byte;
  };
  const Case cases[] = {{"0G", 0x00},
                        {"G1", 0x01},
                        {"ff", 0xFF},
                        {"Ab", 0xAB},
                        {"\xC1"
                         "1",
                         0x01},
                        {"\xFF\xFF", 0}};
  for (const Case& c : cases) {
    unsigned char out = 0x5A;
    EXPECT_TRUE(HexDumpHelper::convertHexToBin(c.text, &out));
    EXPECT_EQ(out, c.byte) << c.text;
  }

  unsigned char untouched[2] = {0x5A, 0x5A};
  EXPECT_FALSE(HexDumpHelper::convertHexToBin("ABC", untouched));
  EXPECT_EQ(untouched[0], 0x5A);
  EXPECT_TRUE(HexDumpHelper::convertHexToBin("", untouched));
  EXPECT_EQ(untouched[0], 0x5A);
}

// Random and hostile texts for the parsers: no crash, no read or write
// outside the buffers (the sanitizer build checks), and sane answers.
TEST(ValueTypesRobustnessTest, RandomTexts) {
  const std::string pieces[] = {"Address(",
                                ")Address",
                                "Scope(",
                                ")Scope",
                                " ",
                                "  ",
                                "\n",
                                "0",
                                "1",
                                "2",
                                "4",
                                "32",
                                "64",
                                "-1",
                                "128",
                                "ffffffffffffffffffff",
                                "2F",
                                "00",
                                "0",
                                "G",
                                "\xff",
                                "(",
                                ")",
                                "\"",
                                std::string(1, '\0'),
                                "99999999999999999999"};
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (unsigned n = random() % 16; n > 0; --n)
      text += pieces[random() % (sizeof pieces / sizeof pieces[0])];

    Address address(1, 2, 3, 3, 16);
    if (address.deserialize(text)) {
      ASSERT_LT(address.getMode(), 4u) << text;
      ASSERT_GE(address.getBitWidth(), 8) << text;
      ASSERT_LE(address.getBitWidth(), 128) << text;
    } else {
      expectSame(address, Address(1, 2, 3, 3, 16));
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
