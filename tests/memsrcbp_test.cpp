// Memory, source and breakpoint classes: keys, write order, defaults and
// copying by table, then their particulars: byte arrays and line values as
// hex text, bad counts from outside, the clone of a source item, Pending, the
// Kind predicates and the search of a breakpoint's resolved locations.
#include "breakpointdata.h"
#include "deserializerhelperDOM.h"
#include "memorydata.h"
#include "registerdata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "sourcedata.h"
#include "testsupport.h"
#include "testsupport_classes.h"
#include "testsupport_xml.h"
#include "xmltext.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdio>

using namespace Vemo::DbgData;
using TestSupport::ClassCase;
using TestSupport::dumpText;
using TestSupport::make;
using TestSupport::on;

namespace {

// The dump line of an address or a location with the given parts.
std::string address(const char* parts) {
  return std::string("Address=Address( ") + parts + " )Address";
}
std::string location(const char* parts) {
  return std::string("Location=Scope( Address( ") + parts + " )Scope";
}
const std::string kNoLocation = location("4 32 0 0 0 )Address 00 0 0");

template <class T> std::function<void(DebuggerData&)> with(void (*f)(T&)) {
  return [f](DebuggerData& o) { f(static_cast<T&>(o)); };
}

using MA = MemoryAddress;
using SI = SourceItem;
using BP = BreakPointItem;
using BZ = BreakPointInternalZMT;
using BK = BreakPointInternalKYR;
using WZ = WatchPointInternalZMT;
using WK = WatchPointInternalKYR;

const std::vector<ClassCase>& classCases() {
  using TestSupport::NotCloned;
  using TestSupport::NotCompared;
  const Scope scope(Address(0, 0x401000, 0, 1, 32), DbgDataKey("/s"), 12, 3);
  const std::string scopeLine =
      location("1 32 0 401000 0 )Address 2F7300 12 3");
  // clang-format off
  static const std::vector<ClassCase> cases = {
      {"MemoryListContent", {}, {}},
      {"MemoryItem", {"ArraySize=0", "ByteArray=", address("4 32 0 0 0")},
       {{with<MemoryItem>([](MemoryItem& m) {
           unsigned char bytes[] = {0xAB, 0x0C};
           m.setByteArray(bytes, 2);
         }), "ByteArray=AB0C"},
        {on(&MemoryItem::setAddress, Address(0, 0x10, 0, 1, 64)),
         address("1 64 0 10 0")}}},
      {"MemoryAddress", {address("4 32 0 0 0"), "AccessSize=1"},
       {{on(&MA::setAccessSize, static_cast<AccessSize>(-4)), "AccessSize=-4"},
        {on(&MA::setSegment, 0x20ull), address("4 32 20 0 0")},
        {on(&MA::setOffset, 0x1000ull), address("4 32 0 1000 0")},
        {on(&MA::setLength, 0x30ull), address("4 32 0 0 30")},
        // Addresses differing only in mode or width are equal.
        {on(&MA::setType, AddressType(2)), address("2 32 0 0 0"), NotCompared},
        {on(&MA::setSize, AddressSize(64)), address("4 64 0 0 0"), NotCompared}}},
      {"SourceListContent", {}, {}},
      {"SourceItem", {"SourceFileName=", "NoOfLines=0", "Valid=false"},
       {{on(&SI::setSourceFileName, "a.c"), "SourceFileName=a.c"},
        {on(&SI::setNoOfLines, 2ul), "NoOfLines=2"},
        {on(&SI::setValid, true), "Valid=true", NotCloned},
        {with<SI>([](SI& s) { s.setNoOfLines(2); s.setLineValue(1, 0x12); }),
         "ByteArray=12000000000000000000000000000000"},
        // The last line is the one a clone leaves out.
        {with<SI>([](SI& s) { s.setNoOfLines(2); s.setLineValue(2, 0x12); }),
         "ByteArray=00000000000000001200000000000000", NotCloned}}},
      {"SourceScope", {kNoLocation},
       {{on(&SourceScope::setLocation, scope), scopeLine},
        {on(&SourceScope::setSrcLine, 7ul),
         location("4 32 0 0 0 )Address 00 7 0")}}},
      {"BreakPointListContent", {}, {}},
      {"BreakPointItem",
       {"ID=-1", "Kind=0", kNoLocation, "Condition=", "Action=",
        "Continue=false", "Enabled=true", "Pending=false", "MaxSkips=0",
        "CurSkips=0", "DisplayText=", "ExpStr=", "Triggered=false",
        "ConditionStyle=0", "PassCountStyle=0"},
       {{on(&BP::setId, 3), "ID=3"},
        {on(&BP::setKind, 0xAul), "Kind=10"},
        {on(&BP::setLocation, scope), scopeLine},
        {on(&BP::setSrcLine, 40u), location("4 32 0 0 0 )Address 00 40 0")},
        {on(&BP::setSrcColumn, 9u), location("4 32 0 0 0 )Address 00 0 9")},
        {on(&BP::setSrcFullKey, DbgDataKey("/R")),
         location("4 32 0 0 0 )Address 2F5200 0 0")},
        {on(&BP::setAddress, Address(0, 0x10, 0, 0, 64)),
         location("0 64 0 10 0 )Address 00 0 0")},
        {on(&BP::setCondition, "i>1"), "Condition=i>1"},
        {on(&BP::setAction, "bt"), "Action=bt"},
        {on(&BP::setContinue, true), "Continue=true"},
        {on(&BP::setEnabled, false), "Enabled=false"},
        {on(&BP::setPending, true), "Pending=true", NotCompared},
        {on(&BP::setMaxSkips, 4u), "MaxSkips=4"},
        {on(&BP::setCurSkips, 2u), "CurSkips=2"},
        {on(&BP::setDisplayText, "d"), "DisplayText=d"},
        {on(&BP::setExpStr, "x"), "ExpStr=x"},
        {on(&BP::setTriggered, true), "Triggered=true"},
        // Written as unsigned long: a negative value goes out sign-widened.
        {on(&BP::setConditionStyle, static_cast<DDConditionStyle>(-1)),
         "ConditionStyle=18446744073709551615"},
        {on(&BP::setPassCountStyle, static_cast<DDPassCountStyle>(2)),
         "PassCountStyle=2"}}},
      {"BreakPointInternalZMT",
       {"SymbolName=", "IsHardwareBP=false", "HardwareBPId=0"},
       {{on(&BZ::setSymbolName, "f"), "SymbolName=f"},
        {on(&BZ::setIsHardwareBP, true), "IsHardwareBP=true"},
        {on(&BZ::setHardwareBPId, -2), "HardwareBPId=-2"}}},
      {"BreakPointInternalKYR",
       {"Synchronized=false", "ThreadFilter=", "StoppingThreads="},
       {{on(&BK::setSynchronized, true), "Synchronized=true"},
        {on(&BK::setThreadFilter, "1"), "ThreadFilter=1"},
        {on(&BK::setStoppingThreads, "2"), "StoppingThreads=2"}}},
      {"WatchPointInternalZMT",
       {"SymbolName=", "Access=0", "Mask=", "OverlayID=0", "Length=",
        "IsHardwareBP=false", "HardwareBPId=0"},
       {{on(&WZ::setSymbolName, "v"), "SymbolName=v"},
        // Written as unsigned int.
        {on(&WZ::setAccess, static_cast<WPAccess>(-1)), "Access=4294967295"},
        {on(&WZ::setMask, "ff"), "Mask=ff"},
        {on(&WZ::setOverlayID, 5), "OverlayID=5"},
        {on(&WZ::setLength, "4*n"), "Length=4*n"},
        {on(&WZ::setIsHardwareBP, true), "IsHardwareBP=true"},
        {on(&WZ::setHardwareBPId, 6), "HardwareBPId=6"}}},
      {"WatchPointInternalKYR",
       {"ThreadFilter=", "Access=0", "WithinFunction=", "OverlayID=0",
        "Length=", "IsHardwareBP=false"},
       {{on(&WK::setThreadFilter, "t"), "ThreadFilter=t"},
        {on(&WK::setAccess, static_cast<WPAccessKYR>(-2)), "Access=4294967294"},
        {on(&WK::setWithinFunction, "g"), "WithinFunction=g"},
        {on(&WK::setOverlayID, -1), "OverlayID=-1"},
        {on(&WK::setLength, "8"), "Length=8"},
        {on(&WK::setIsHardwareBP, true), "IsHardwareBP=true"}}},
  };
  // clang-format on
  return cases;
}

// Reads object's own keys from the given "values" attributes and answers
// deserializeMembers' result.
bool readMembers(DebuggerData& object, const std::string& attributes) {
  XmlTextDocument parsed;
  EXPECT_TRUE(parsed.parse(
      "<R><DataElement ClassName=\"" + object.getClassName() +
          "\" SubKey=\"k\"><values " + attributes + "/></DataElement></R>",
      false));
  DeserializerHelperDOM reader(parsed.getDocumentElement());
  EXPECT_TRUE(reader.pushSection("DataElement"));
  return object.deserializeMembers(&reader);
}

std::vector<unsigned long> linesOf(const SourceItem& item) {
  std::vector<unsigned long> lines;
  for (unsigned long line = 1; line <= item.getNoOfLines(); ++line)
    lines.push_back(item.getLineValue(line));
  return lines;
}

template <class T> std::unique_ptr<T> copyOf(const T& object) {
  return std::unique_ptr<T>(static_cast<T*>(object.clone()));
}

} // namespace

TEST(MemSrcBpClasses, DefaultsKeysAndWriteOrder) {
  TestSupport::checkDefaultsKeysAndWriteOrder(classCases());
}

TEST(MemSrcBpClasses, EveryFieldIsComparedClonedAssignedAndWritten) {
  TestSupport::checkFieldsCompareCloneAssignAndWrite(classCases());
}

TEST(MemSrcBpClassesDeathTest, AssigningAcrossClassesAborts) {
  TestSupport::checkAssigningAcrossClassesAborts(classCases());
}

TEST(MemoryItem, OwnsItsBytesWhichAreNotCompared) {
  auto item = make<MemoryItem>("MemoryItem", "m");
  unsigned char bytes[] = {1, 2, 3};
  item->setByteArray(bytes, 3);
  bytes[0] = 9; // the item holds a copy
  EXPECT_EQ(item->getByteArray()[0], 1);
  EXPECT_NE(item->getByteArray(), bytes);

  auto other = make<MemoryItem>("MemoryItem", "m");
  other->setByteArray(bytes, 3);
  EXPECT_TRUE(*item == *other); // same size and address, other bytes

  auto copy = copyOf(*item);
  *other = *item;
  for (const MemoryItem* c : {copy.get(), other.get()}) {
    ASSERT_EQ(c->getArraySize(), 3u);
    EXPECT_NE(c->getByteArray(), item->getByteArray());
    EXPECT_EQ(c->getByteArray()[0], 1);
  }

  item->setByteArray(nullptr, 0);
  EXPECT_EQ(item->getByteArray(), nullptr);
  // An empty item writes all three keys, the bytes empty, and answers false.
  SerializerHelperDOM writer;
  EXPECT_FALSE(item->serialize(&writer));
  EXPECT_NE(dumpText(*item).find("  ArraySize=0\n  ByteArray=\n  Address="),
            std::string::npos);
}

TEST(MemoryItem, ByteCountsTheTextDoesNotBackAreRefused) {
  struct Case {
    const char* attributes;
    bool result;
    std::vector<unsigned char> bytes;
  };
  const Case cases[] = {
      {"ArraySize=\"3\" ByteArray=\"00ff7A\"", true, {0x00, 0xFF, 0x7A}},
      {"ArraySize=\"2\" ByteArray=\"0102030405\"", true, {1, 2}},
      {"ArraySize=\"2\" ByteArray=\"ABC\"", false, {0, 0}}, // odd: zeros
      {"ArraySize=\"3\" ByteArray=\"ABCD\"", false, {}},
      {"ArraySize=\"4294967295\" ByteArray=\"AB\"", false, {}},
      {"ArraySize=\"0\" ByteArray=\"\"", true, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.attributes);
    auto item = make<MemoryItem>("MemoryItem", "m");
    EXPECT_EQ(readMembers(*item, c.attributes), c.result);
    ASSERT_EQ(item->getArraySize(), c.bytes.size());
    EXPECT_EQ(item->getByteArray() == nullptr, c.bytes.empty());
    for (std::size_t i = 0; i < c.bytes.size(); ++i)
      EXPECT_EQ(item->getByteArray()[i], c.bytes[i]) << i;
  }
}

TEST(MemoryAddress, PartGettersReadTheirOwnPart) {
  MemoryAddress address;
  address.setAddress(Address(1, 2, 3, 2, 16));
  EXPECT_EQ(&address.getLength(), &address.getAddress().getAux());
  EXPECT_EQ(address.getSegment() * 100 + address.getOffset() * 10 +
                address.getLength(),
            123u);
  EXPECT_EQ(address.getType() * 100 + address.getSize(), 216u);
}

TEST(SourceItem, LinesAsHexTextOnlyWhenThereAreLines) {
  auto item = make<SourceItem>("SourceItem", "s");
  EXPECT_EQ(item->getLineValue(0) + item->getLineValue(1), 0u);
  item->setLineValue(1, 5); // out of range: ignored
  EXPECT_EQ(dumpText(*item).find("ByteArray"), std::string::npos);

  item->setNoOfLines(2);
  item->setLineValue(1, 0x12345678);
  item->setLineValue(2, 0x87654321);
  item->setLineValue(3, 7); // ignored
  EXPECT_NE(dumpText(*item).find("  Valid=false\n  ByteArray="
                                 "78563412000000002143658700000000\n}"),
            std::string::npos);
  auto back = TestSupport::xmlRoundTrip(*item, true);
  ASSERT_TRUE(back);
  EXPECT_TRUE(*back == *item);
  EXPECT_EQ(linesOf(static_cast<SourceItem&>(*back)),
            (std::vector<unsigned long>{0x12345678, 0x87654321}));

  item->setNoOfLines(1); // shrinking drops the tail
  item->setNoOfLines(2);
  EXPECT_EQ(linesOf(*item), (std::vector<unsigned long>{0x12345678, 0}));
}

TEST(SourceItem, CloneLeavesOutTheLastLineAndValidAssignmentDoesNot) {
  auto item = make<SourceItem>("SourceItem", "s");
  item->setSourceFileName("a.c");
  item->setNoOfLines(3);
  for (unsigned long line = 1; line <= 3; ++line)
    item->setLineValue(line, line + 4);
  item->setValid(true);

  auto clone = copyOf(*item);
  EXPECT_EQ(clone->getSourceFileName(), "a.c");
  EXPECT_EQ(linesOf(*clone), (std::vector<unsigned long>{5, 6, 0}));
  EXPECT_FALSE(clone->getValid());
  EXPECT_FALSE(*clone == *item);

  auto assigned = make<SourceItem>("SourceItem", "s");
  *assigned = *item;
  EXPECT_EQ(linesOf(*assigned), (std::vector<unsigned long>{5, 6, 7}));
  EXPECT_TRUE(assigned->getValid());
  EXPECT_TRUE(*assigned == *item);

  item->setNoOfLines(1); // a single line: nothing is copied
  EXPECT_EQ(linesOf(*copyOf(*item)), (std::vector<unsigned long>{0}));
}

TEST(SourceItem, LineCountsTheTextDoesNotBackAreBoundedOrRefused) {
  struct Case {
    std::string attributes;
    bool result;
    std::vector<unsigned long> lines;
  };
  const std::string line1 = "7856341200000000", line2 = "2143658700000000";
  // clang-format off
  const Case cases[] = {
      {"NoOfLines=\"2\" ByteArray=\"" + line1 + line2 + "\"", true, {0x12345678, 0x87654321}},
      // Longer: only NoOfLines values; shorter: the rest stays 0; odd:
      // nothing is decoded.
      {"NoOfLines=\"1\" ByteArray=\"" + line1 + line2 + "\"", true, {0x12345678}},
      {"NoOfLines=\"3\"", false, {0, 0, 0}},
      {"NoOfLines=\"2\" ByteArray=\"" + line1 + "7856\"", false, {0x12345678, 0x5678}},
      {"NoOfLines=\"2\" ByteArray=\"" + line1 + line2 + "A\"", false, {0, 0}},
      {"NoOfLines=\"0\" ByteArray=\"" + line1 + "\"", true, {}},
      {"NoOfLines=\"18446744073709551615\" ByteArray=\"" + line1 + "\"", false, {}},
      {"NoOfLines=\"65537\"", false, {}},
  };
  // clang-format on
  for (const Case& c : cases) {
    SCOPED_TRACE(c.attributes);
    auto item = make<SourceItem>("SourceItem", "s");
    EXPECT_EQ(readMembers(*item, c.attributes + " Valid=\"true\""), c.result);
    EXPECT_EQ(linesOf(*item), c.lines);
    EXPECT_TRUE(item->getValid()); // read whatever else failed
  }

  // Beyond the bound, a text holding every line is taken.
  const unsigned long many = SourceItem::kUnbackedLinesLimit + 1;
  std::string text(16 * many, '0');
  text.replace(16 * (many - 1), 2, "2A");
  auto item = make<SourceItem>("SourceItem", "s");
  EXPECT_TRUE(readMembers(*item, "NoOfLines=\"" + std::to_string(many) +
                                     "\" ByteArray=\"" + text + "\""));
  EXPECT_EQ(item->getNoOfLines(), many);
  EXPECT_EQ(item->getLineValue(many), 0x2Au);
}

// The values travel a few hundred lines at a time; every line keeps its
// place across those rounds, a text ending inside a later round fills the
// lines it reaches and a partial value takes the digits there are.
TEST(SourceItem, ManyLinesKeepTheirPlacesInTheText) {
  const unsigned long count = 600;
  SourceLineValues values;
  std::string expected;
  for (unsigned long i = 0; i < count; ++i) {
    values.values.push_back(0x0123456789ABCDEFul * (i + 1) + i);
    for (unsigned shift = 0; shift < 64; shift += 8) {
      char digits[3];
      std::snprintf(digits, sizeof digits, "%02X",
                    static_cast<unsigned>(values.values[i] >> shift & 0xFF));
      expected += digits;
    }
  }
  ASSERT_EQ(values.toHex(), expected);

  SourceLineValues back;
  EXPECT_TRUE(back.assignHex(expected, count));
  EXPECT_EQ(back.values, values.values);

  // Cut after 513 whole lines and three bytes of the next one.
  const std::size_t cut = 16 * 513 + 6;
  EXPECT_FALSE(back.assignHex(expected.substr(0, cut), count));
  ASSERT_EQ(back.values.size(), count);
  EXPECT_TRUE(std::equal(values.values.begin(), values.values.begin() + 513,
                         back.values.begin()));
  EXPECT_EQ(back.values[513], values.values[513] & 0xFFFFFFul);
  EXPECT_EQ(std::count(back.values.begin() + 514, back.values.end(), 0ul),
            long(count - 514));
}

TEST(BreakPointItem, KindPredicatesNeedAllTheirBits) {
  struct Case {
    unsigned long kind;
    bool code, data, sync, hwData;
  };
  const Case cases[] = {
      {0x0, false, false, false, false}, {0x1, true, false, false, false},
      {0x2, false, true, false, false},  {0x3, true, true, false, false},
      {0x4, false, false, false, false}, {0x5, true, false, true, false},
      {0x8, false, false, false, false}, {0xA, false, true, false, true},
      {~0ul, true, true, true, true},
  };
  BreakPointItem bp;
  for (const Case& c : cases) {
    bp.setKind(c.kind);
    EXPECT_EQ(bp.isCodeBreakPoint(), c.code) << c.kind;
    EXPECT_EQ(bp.isDataBreakPoint(), c.data) << c.kind;
    EXPECT_EQ(bp.isSyncBreakPoint(), c.sync) << c.kind;
    EXPECT_EQ(bp.isHWDataBreakPoint(), c.hwData) << c.kind;
  }
  bp.setMaxSkips(2);
  bp.setCurSkips(2);
  bp.incCurSkips(); // not limited by MaxSkips
  EXPECT_EQ(bp.getCurSkips(), 3u);
  bp.setCurSkips(UINT_MAX);
  bp.incCurSkips();
  EXPECT_EQ(bp.getCurSkips(), 0u);
}

TEST(BreakPointItem, EngineSamplesSurviveTheRoundTripWithPendingAndStyles) {
  using Fill = void (*)(BreakPointItem*);
  const std::pair<Fill, const char*> fills[] = {
      {&fillBreakPointItemZMT, "BreakPointInternalZMT"},
      {&fillBreakPointItemKYR, "BreakPointInternalKYR"},
      {&fillWatchPointItem, "WatchPointInternalZMT"},
  };
  for (const auto& fill : fills) {
    SCOPED_TRACE(fill.second);
    auto bp = make<BreakPointItem>("BreakPointItem", "1");
    fill.first(bp.get());
    bp->setConditionStyle(static_cast<DDConditionStyle>(-1));
    ASSERT_TRUE(bp->getEngineData());
    EXPECT_EQ(bp->getEngineData()->getClassName(), fill.second);
    auto back = TestSupport::xmlRoundTrip(*bp, true);
    ASSERT_TRUE(back && back->getEngineData());
    const auto& copy = static_cast<const BreakPointItem&>(*back);
    EXPECT_TRUE(copy == *bp);
    EXPECT_TRUE(*copy.getEngineData() == *bp->getEngineData());
    EXPECT_TRUE(copy.getPending());
    EXPECT_EQ(copy.getSrcLine(), 40u);
    EXPECT_EQ(copy.getConditionStyle(), -1);
  }
}

TEST(BreakPointInternalKYR, LocationSearchStopsAtTheFirstStranger) {
  const auto scopeAt = [](unsigned long long offset) {
    auto scope = make<SourceScope>("SourceScope", std::to_string(offset));
    scope->setAddress(Address(0, offset, 0, 1, 32));
    return scope.release();
  };
  const Address wanted(0, 0x20, 0, 3, 64); // mode and width do not count
  BreakPointInternalKYR internal;
  EXPECT_FALSE(internal.locListContainsAddr(wanted)); // no engine data

  auto* notAList = new RegisterItem();
  internal.setEngineData(notAList);
  EXPECT_FALSE(internal.locListContainsAddr(wanted));
  delete notAList;

  auto* list = new DataListWC(); // a kind of DataList
  internal.setEngineData(list);
  EXPECT_FALSE(internal.locListContainsAddr(wanted)); // empty
  list->appendChild(scopeAt(0x10));
  list->appendChild(scopeAt(0x20));
  EXPECT_TRUE(internal.locListContainsAddr(wanted));
  EXPECT_FALSE(internal.locListContainsAddr(Address(0, 0x30, 0, 1, 32)));

  list->getList()->push_front(new RegisterItem());
  EXPECT_FALSE(internal.locListContainsAddr(wanted));
  delete list->getList()->front();
  list->getList()->front() = nullptr; // a missing child ends the walk too
  EXPECT_FALSE(internal.locListContainsAddr(wanted));
}
