// Debug info, disassembly, expression evaluation and SIMD evaluation classes:
// keys, write order, defaults and writer operations (the sample values are
// chosen so that a wrong operation shows in the text), the readers that
// differ, the rows that create the classes, and the SIMD row's byte array.
#include "ddmanager.h"
#include "debuginfodata.h"
#include "disassemblerdata.h"
#include "evaldata.h"
#include "serializerhelperString.h"
#include "simdevaldata.h"
#include "symboltoken.h"
#include "testsupport.h"
#include "testsupport_classes.h"
#include "testsupport_xml.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <vector>

using namespace Vemo::DbgData;
using TestSupport::ClassCase;
using TestSupport::dumpText;
using TestSupport::NotCompared;
using TestSupport::on;

namespace {

const std::string kA0 = "Address( 4 32 0 0 0 )Address";
const std::string kS0 = "Scope( " + kA0 + " 00 0 0 )Scope";
const Address kSampleAddress(0, 0x401000, 0, 1, 32);
const std::string kA1 = "Address( 1 32 0 401000 0 )Address";
const unsigned long kTop = 1ul << 63; // shows as -9223372036854775808

template <class E> E enumOf(int value) { return static_cast<E>(value); }

const std::vector<ClassCase>& classCases() {
  static const std::vector<ClassCase> cases = {
      {"DebugInfo", {}, {}},
      {"ModuleListContent", {}, {}},
      {"SymbolItem",
       {"Expression=", "AddressText=", "SymbolName=", "ModuleName=",
        "FunctionName="},
       {{on(&SymbolItem::setExpression, "e"), "Expression=e"},
        {on(&SymbolItem::setAddressText, "0x1"), "AddressText=0x1"},
        {on(&SymbolItem::setSymbolName, "s"), "SymbolName=s"},
        {on(&SymbolItem::setModuleName, "m"), "ModuleName=m"},
        {on(&SymbolItem::setFunctionName, "f"), "FunctionName=f"}}},
      {"SymbolBrowserConfig",
       {"ModuleName=", "PatternString=", "FunctionsOnly=false"},
       {{on(&SymbolBrowserConfig::setModuleName, "m"), "ModuleName=m"},
        {on(&SymbolBrowserConfig::setPatternString, "p*"), "PatternString=p*"},
        {on(&SymbolBrowserConfig::setFunctionsOnly, true),
         "FunctionsOnly=true"}}},
      {"ModuleItem",
       {"SrcFileName=", "SrcFilePath=", "ObjectFile=", "ObjectPath=",
        "FullKey="},
       {{on(&ModuleItem::setSrcFileName, "a.c"), "SrcFileName=a.c"},
        {on(&ModuleItem::setSrcFilePath, "/s"), "SrcFilePath=/s"},
        {on(&ModuleItem::setObjectFile, "a.o"), "ObjectFile=a.o"},
        {on(&ModuleItem::setObjectPath, "/o"), "ObjectPath=/o"},
        {on(&ModuleItem::setFullKey, DbgDataKey("/Root")), "FullKey=/Root"}}},
      {"LoadableItem",
       {"Name=", "FileName=", "Version=", "SymbolFileName=",
        "LoadAddress=" + kA0, "PreferedAddress=" + kA0, "LoadOrder=0",
        "Flags=0"},
       {{on(&LoadableItem::setName, "n"), "Name=n"},
        {on(&LoadableItem::setFileName, "f"), "FileName=f"},
        {on(&LoadableItem::setVersion, "1"), "Version=1"},
        {on(&LoadableItem::setSymbolFileName, "s"), "SymbolFileName=s"},
        {on(&LoadableItem::setLoadAddress, kSampleAddress),
         "LoadAddress=" + kA1},
        {on(&LoadableItem::setPreferedAddress, kSampleAddress),
         "PreferedAddress=" + kA1},
        {on(&LoadableItem::setLoadOrder, 7ul), "LoadOrder=7"},
        {on(&LoadableItem::setFlags, 0x12ul), "Flags=18"}}},
      {"SymbolToken",
       {"TokenType=0", "DisplayText=", "Parameters="},
       {{on(&SymbolToken::setTokenType, enumOf<SymbolToken::_tokenType>(-1)),
         "TokenType=-1"},
        {on(&SymbolToken::setDisplayText, "d"), "DisplayText=d"},
        {on(&SymbolToken::setParameters, "p"), "Parameters=p"}}},
      {"DisAsmListContent",
       {"SrcAnnotationMode=0", "Address=" + kA0},
       {{on(&DisAsmListContent::setSrcAnnotationMode,
            enumOf<DasmSrcAnnotation>(-1)),
         "SrcAnnotationMode=4294967295"},
        {on(&DisAsmListContent::setAddress, kSampleAddress), "Address=" + kA1},
        {on(&DisAsmListContent::setSegment, 0x10ull),
         "Address=Address( 4 32 10 0 0 )Address"},
        {on(&DisAsmListContent::setLength, 0x30ull),
         "Address=Address( 4 32 0 0 30 )Address"},
        // Mode and width take no part in Address equality.
        {on(&DisAsmListContent::setType, AddressType(2)),
         "Address=Address( 2 32 0 0 0 )Address", NotCompared},
        {on(&DisAsmListContent::setSize, AddressSize(64)),
         "Address=Address( 4 64 0 0 0 )Address", NotCompared}}},
      {"DisAsmItem",
       {"Flags=0", "Scope=" + kS0,
        "AddressText=", "SourceText=", "OpcodeText=", "SymbolText="},
       {{on(&DisAsmItem::setFlags, 0x5ul), "Flags=5"},
        {on(&DisAsmItem::setScope, Scope(kSampleAddress, DbgDataKey(), 1, 2)),
         "Scope=Scope( " + kA1 + " 00 1 2 )Scope"},
        {on(&DisAsmItem::setSrcLine, 7ul),
         "Scope=Scope( " + kA0 + " 00 7 0 )Scope"},
        {on(&DisAsmItem::setSrcFullKey, DbgDataKey("/R")),
         "Scope=Scope( " + kA0 + " 2F5200 0 0 )Scope"},
        {on(&DisAsmItem::setAddressText, "a"), "AddressText=a"},
        {on(&DisAsmItem::setSourceText, "s"), "SourceText=s"},
        {on(&DisAsmItem::setOpcodeText, "o"), "OpcodeText=o"},
        {on(&DisAsmItem::setSymbolText, "y"), "SymbolText=y"}}},
      {"DisAsmConfig",
       {"Address=" + kA0, "RequestType=3", "Amount=0", "Flags=0"},
       {{on(&DisAsmConfig::setAddress, kSampleAddress), "Address=" + kA1},
        {on(&DisAsmConfig::setRequestType, enumOf<RequestType>(-1)),
         "RequestType=4294967295"},
        {on(&DisAsmConfig::setAmount, -5), "Amount=-5"},
        {on(&DisAsmConfig::setFlags, 0x11ul), "Flags=17"},
        {on(&DisAsmConfig::setOffset, 0x20ull),
         "Address=Address( 4 32 0 20 0 )Address"}}},
      {"EvalRootContent",
       {"EvalID=0", "Symbol=", "BaseID=0", "BaseSubKey=", "AccessSize=1",
        "AsciiLength=", "Flags=0", "WinID=", "FormatFlags=128"},
       {{on(&EvalRootContent::setEvalID, kTop), "EvalID=-9223372036854775808"},
        {on(&EvalRootContent::setSymbol, "s"), "Symbol=s"},
        {on(&EvalRootContent::setBaseID, kTop), "BaseID=-9223372036854775808"},
        {on(&EvalRootContent::setBaseSubKey, "b"), "BaseSubKey=b"},
        {on(&EvalRootContent::setAccessSize, 8ul), "AccessSize=8"},
        {on(&EvalRootContent::setAsciiLength, "12"), "AsciiLength=12"},
        {on(&EvalRootContent::setFlags, 0x3ul), "Flags=3"},
        {on(&EvalRootContent::setWinID, "w"), "WinID=w"},
        {on(&EvalRootContent::setFormatFlags, 0x81ul), "FormatFlags=129"}}},
      {"EvalLineContent",
       {"Expression=", "Name=", "Value=", "HexValue=", "Type=", "ModValue=",
        "Flags=0", "FormatFlags=128", "FrameId=0"},
       {{on(&EvalLineContent::setExpression, "e"), "Expression=e"},
        {on(&EvalLineContent::setName, "n"), "Name=n"},
        {on(&EvalLineContent::setValue, "1"), "Value=1"},
        {on(&EvalLineContent::setHexValue, "0x1"), "HexValue=0x1"},
        {on(&EvalLineContent::setType, "int"), "Type=int"},
        {on(&EvalLineContent::setModifyValue, "2"), "ModValue=2"},
        {on(&EvalLineContent::setFlags, 0x2ul), "Flags=2"},
        {on(&EvalLineContent::setFormatFlags, 0x82ul), "FormatFlags=130"},
        {on(&EvalLineContent::setFrameId, -5000000000l),
         "FrameId=-5000000000"}}},
      {"EvalLineInternalZMT",
       {"EvalID=0", "PUser=0"},
       {{on(&EvalLineInternalZMT::setEvalID, -5000000000l),
         "EvalID=-5000000000"},
        {on(&EvalLineInternalZMT::setPUser, ~0ull),
         "PUser=18446744073709551615"}}},
      {"SIMDConfig",
       {"RequestType=1", "OperatorType=2", "IterationType=1", "IterationExpr="},
       {{on(&SIMDConfig::setRequestType, enumOf<SIMDRequestType>(-1)),
         "RequestType=4294967295"},
        {on(&SIMDConfig::setOperatorType, enumOf<SIMDOperatorType>(-1)),
         "OperatorType=4294967295"},
        {on(&SIMDConfig::setIterationType, enumOf<SIMDIterationType>(-1)),
         "IterationType=4294967295"},
        {on(&SIMDConfig::setIterationExpr, "i"), "IterationExpr=i"}}},
      {"SIMDEvalRootContent",
       {"EvalID=0", "WinID=", "Info=", "Unions=4", "AsciiLength=", "Flags=0",
        "FormatFlags=32", "NumColumns=0", "NumRows=0", "WindowType=4294967295"},
       {{on(&SIMDEvalRootContent::setEvalID, kTop),
         "EvalID=-9223372036854775808"},
        {on(&SIMDEvalRootContent::setWinID, "w"), "WinID=w"},
        {on(&SIMDEvalRootContent::setInfo, "i"), "Info=i"},
        {on(&SIMDEvalRootContent::setUnions, 8ul), "Unions=8"},
        {on(&SIMDEvalRootContent::setAsciiLength, "16"), "AsciiLength=16"},
        {on(&SIMDEvalRootContent::setFlags, 0x9ul), "Flags=9"},
        {on(&SIMDEvalRootContent::setFormatFlags, 33ul), "FormatFlags=33"},
        {on(&SIMDEvalRootContent::setNumColumns, 4ul), "NumColumns=4"},
        {on(&SIMDEvalRootContent::setNumRows, 2ul), "NumRows=2"},
        {on(&SIMDEvalRootContent::setWindowType,
            enumOf<SIMDEvalRootContent::SIMDWndType>(2)),
         "WindowType=2"}}},
      {"SIMDEvalRowContent",
       {"DisplayExpression=", "EngineExpression=", "Flags=0", "OperatorType=2",
        "FormatFlags=32", "ArraySize=0", "ByteArray=", "EvalID=0",
        "SizeOfArrayElement=0"},
       {{on(&SIMDEvalRowContent::setDisplayExpression, "x"),
         "DisplayExpression=x"},
        {on(&SIMDEvalRowContent::setEngineExpression, "$x"),
         "EngineExpression=$x"},
        {on(&SIMDEvalRowContent::setFlags, 0x1ul), "Flags=1"},
        {on(&SIMDEvalRowContent::setOperatorType, enumOf<SIMDOperatorType>(-1)),
         "OperatorType=4294967295"},
        {on(&SIMDEvalRowContent::setFormatFlags, 34ul), "FormatFlags=34"},
        {[](DebuggerData& o) {
           static const unsigned char bytes[] = {0xab, 0x01};
           static_cast<SIMDEvalRowContent&>(o).setByteArray(bytes, 2);
         },
         "ByteArray=AB01"},
        {on(&SIMDEvalRowContent::setEvalID, -7), "EvalID=4294967289"},
        {on(&SIMDEvalRowContent::setSizeOfArrayElement, 4u),
         "SizeOfArrayElement=4"}}},
      {"SIMDEvalItem",
       {"Value=", "ModValue=", "Flags=0", "FormatFlags=32", "Highlight=false"},
       {{on(&SIMDEvalItem::setValue, "1"), "Value=1"},
        {on(&SIMDEvalItem::setModifyValue, "2"), "ModValue=2"},
        {on(&SIMDEvalItem::setFlags, 0x4ul), "Flags=4"},
        {on(&SIMDEvalItem::setFormatFlags, 40ul), "FormatFlags=40"},
        {on(&SIMDEvalItem::setHighlight, true), "Highlight=true"}}},
  };
  return cases;
}

// The rows of a stack frame's locals make evaluation roots and lines under
// their own class names.
const std::vector<ClassCase> kLocalsCases = {
    {"LocalsRootContent",
     {"EvalID=0", "Symbol=", "BaseID=0", "BaseSubKey=", "AccessSize=1",
      "AsciiLength=", "Flags=0", "WinID=", "FormatFlags=128"},
     {}},
    {"LocalsLineContent",
     {"Expression=", "Name=", "Value=", "HexValue=", "Type=", "ModValue=",
      "Flags=0", "FormatFlags=128", "FrameId=0"},
     {}},
};

// Serves values from a table of texts and records every read as
// "key:type"; a missing value reads as 0 (or empty) and answers false.
class RecordingReader : public IDeserializerHelper {
public:
  std::map<std::string, std::string> values;
  mutable std::string calls;

  // clang-format off
  bool getNameAndSubKey(std::string*, std::string*) const override { return false; }
  bool getBool(const std::string& k, bool* o) const override { return number(k, "bool", o); }
  bool getInt(const std::string& k, int* o) const override { return number(k, "int", o); }
  bool getInt(const std::string& k, unsigned int* o) const override { return number(k, "uint", o); }
  bool getInt(const std::string& k, long* o) const override { return number(k, "long", o); }
  bool getInt(const std::string& k, unsigned long* o) const override { return number(k, "ulong", o); }
  bool getInt(const std::string& k, long long* o) const override { return number(k, "llong", o); }
  bool getInt(const std::string& k, unsigned long long* o) const override { return number(k, "ullong", o); }
  bool getFloat(const std::string& k, double* o) const override { return number(k, "float", o); }
  bool getString(const std::string& k, std::string* o) const override { return find(k, "string", *o); }
  bool getAddress(const std::string& k, Address*) const override { return note(k, "address"); }
  bool getScope(const std::string& k, Scope*) const override { return note(k, "scope"); }
  bool getDbgDataKey(const std::string& k, DbgDataKey*) const override { return note(k, "key"); }
  bool pushSection(const std::string&) override { return true; }
  bool pushListSection(const std::string&) override { return false; }
  bool pushFirstChildSection() override { return false; }
  bool pushNextChildSection() override { return false; }
  bool popSection() override { return true; }
  bool popListSection() override { return true; }
  // clang-format on

private:
  bool note(const std::string& key, const char* type) const {
    calls += (calls.empty() ? "" : " ") + key + ":" + type;
    return false;
  }
  bool find(const std::string& key, const char* type, std::string& out) const {
    note(key, type);
    const auto it = values.find(key);
    out = it == values.end() ? std::string() : it->second;
    return it != values.end();
  }
  template <class T>
  bool number(const std::string& key, const char* type, T* out) const {
    std::string text;
    const bool found = find(key, type, text);
    *out = T();
    std::istringstream(text) >> std::boolalpha >> *out;
    return found;
  }
};

template <class C, void (C::*Add)(unsigned long)>
void addVia(DebuggerData& object, unsigned long flags) {
  (static_cast<C&>(object).*Add)(flags);
}

std::unique_ptr<DebuggerData> create(const char* className) {
  return std::unique_ptr<DebuggerData>(st_ddmanager.factory(className, "k"));
}

// A row with bytes, after reading the given "ArraySize" and "ByteArray"
// (every other key present, so that the result is the byte array's).
struct ReadRow {
  SIMDEvalRowContent row;
  RecordingReader reader;
  bool result;
  ReadRow(const char* size, const char* text) {
    static const unsigned char old[] = {1, 2, 3};
    row.setByteArray(old, 3);
    reader.values = {
        {"DisplayExpression", ""},  {"EngineExpression", ""}, {"Flags", "0"},
        {"FormatFlags", "0"},       {"OperatorType", "0"},    {"EvalID", "0"},
        {"SizeOfArrayElement", "0"}};
    reader.values["ArraySize"] = size;
    if (text)
      reader.values["ByteArray"] = text;
    result = row.deserializeMembers(&reader);
  }
  std::vector<unsigned char> bytes() const {
    const unsigned char* data = row.getByteArray();
    return data ? std::vector<unsigned char>(data, data + row.getArraySize())
                : std::vector<unsigned char>();
  }
};

} // namespace

TEST(DebugInfoClasses, DefaultsKeysAndWriteOrder) {
  TestSupport::checkDefaultsKeysAndWriteOrder(classCases());
  TestSupport::checkDefaultsKeysAndWriteOrder(kLocalsCases);
}

TEST(DebugInfoClasses, EveryFieldIsComparedClonedAssignedAndWritten) {
  TestSupport::checkFieldsCompareCloneAssignAndWrite(classCases());
}

TEST(DebugInfoClassesDeathTest, AssigningAcrossClassesAborts) {
  TestSupport::checkAssigningAcrossClassesAborts(classCases());
}

TEST(DebugInfoClasses, RowsThatCreateThemAndTheOneThatDoesNot) {
  EXPECT_EQ(create("SymbolListContent"), nullptr);
  SymbolListContent content; // the class itself works
  EXPECT_TRUE(content == SymbolListContent());

  EXPECT_TRUE(
      create("LocalsRootContent")->isKindOf(EvalRootContent::staticRtti()));
  EXPECT_TRUE(
      create("LocalsLineContent")->isKindOf(EvalLineContent::staticRtti()));
  std::unique_ptr<DebuggerData> copy(create("LocalsRootContent")->clone());
  EXPECT_EQ(copy->getClassName(), "LocalsRootContent");
}

// The readers that differ from the writers: the row takes its size before
// its operator type (written next to the bytes), reads the operator type as
// an int although it went out unsigned, and skips the bytes for size 0;
// the unsigned ids come in through the signed-long operation.
TEST(DebugInfoClasses, ReaderOrderAndOperations) {
  const std::pair<const char*, const char*> cases[] = {
      {"SIMDEvalRowContent",
       "DisplayExpression:string EngineExpression:string Flags:ulong "
       "FormatFlags:ulong ArraySize:uint OperatorType:int EvalID:uint "
       "SizeOfArrayElement:uint"},
      {"EvalRootContent",
       "EvalID:long Symbol:string BaseID:long BaseSubKey:string "
       "AccessSize:ulong AsciiLength:string Flags:ulong WinID:string "
       "FormatFlags:ulong"},
      {"SIMDEvalRootContent",
       "EvalID:long WinID:string Info:string Unions:ulong AsciiLength:string "
       "Flags:ulong FormatFlags:ulong NumColumns:ulong NumRows:ulong "
       "WindowType:uint"},
  };
  for (const auto& c : cases) {
    RecordingReader reader;
    create(c.first)->deserializeMembers(&reader);
    EXPECT_EQ(reader.calls, c.second);
  }
  ReadRow row("1", "AB");
  EXPECT_NE(row.reader.calls.find("OperatorType:int ByteArray:string EvalID"),
            std::string::npos);
}

TEST(DebugInfoClasses, ValuesBeyondTheSignedRangeSurviveTheXmlRoundTrip) {
  auto root = TestSupport::make<EvalRootContent>("EvalRootContent", "e");
  root->setEvalID(kTop);
  root->setBaseID(~0ul);
  auto window =
      TestSupport::make<SIMDEvalRootContent>("SIMDEvalRootContent", "w");
  window->setEvalID(kTop); // WindowType keeps its all-bits default
  auto row = TestSupport::make<SIMDEvalRowContent>("SIMDEvalRowContent", "r");
  row->setEvalID(-7);
  row->setOperatorType(enumOf<SIMDOperatorType>(5));
  static const unsigned char bytes[] = {0x00, 0xff, 0x7f};
  row->setByteArray(bytes, 3);
  for (const DebuggerData* object : std::initializer_list<const DebuggerData*>{
           root.get(), window.get(), row.get()}) {
    auto copy = TestSupport::xmlRoundTrip(*object, true);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(dumpText(*copy), dumpText(*object));
  }
  EXPECT_NE(dumpText(*window).find("\n  WindowType=4294967295\n"),
            std::string::npos);

  // An operator type that went out above the int range does not read back
  // as an int: the new row keeps its default.
  row->setOperatorType(enumOf<SIMDOperatorType>(-3));
  auto copy = TestSupport::xmlRoundTrip(*row, false);
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(static_cast<SIMDEvalRowContent&>(*copy).getOperatorType(),
            SIMDOperatorType_Default);
}

TEST(DebugInfoClasses, FlagsAreOredIn) {
  const std::pair<const char*, void (*)(DebuggerData&, unsigned long)> cases[] =
      {{"LoadableItem", // sets bit 0x1 whatever the argument
        [](DebuggerData& o, unsigned long) {
          static_cast<LoadableItem&>(o).setSymbolsLoaded();
        }},
       {"DisAsmItem", &addVia<DisAsmItem, &DisAsmItem::addFlag>},
       {"DisAsmConfig", &addVia<DisAsmConfig, &DisAsmConfig::addFlag>},
       {"EvalRootContent",
        &addVia<EvalRootContent, &EvalRootContent::addFlags>},
       {"SIMDEvalRootContent",
        &addVia<SIMDEvalRootContent, &SIMDEvalRootContent::addFlags>},
       {"SIMDEvalRowContent",
        &addVia<SIMDEvalRowContent, &SIMDEvalRowContent::addFlags>}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.first);
    auto object = create(c.first);
    RecordingReader reader;
    reader.values = {{"Flags", "6"}};
    object->deserializeMembers(&reader);
    c.second(*object, 0x1);
    c.second(*object, 0x1);
    c.second(*object, 0);
    EXPECT_NE(dumpText(*object).find("\n  Flags=7\n"), std::string::npos);
  }
}

TEST(SIMDEvalRowContent, BytesAreWrittenAlwaysButReadOnlyForANonZeroSize) {
  SIMDEvalRowContent row;
  SerializerHelperString writer;
  EXPECT_FALSE(row.serializeMembers(&writer)); // "" for no bytes
  EXPECT_NE(dumpText(row).find("\n  ArraySize=0\n  ByteArray=\n"),
            std::string::npos);

  ReadRow empty("0", "ABCD");
  EXPECT_TRUE(empty.result);
  EXPECT_EQ(empty.row.getByteArray(), nullptr);
  EXPECT_EQ(empty.reader.calls.find("ByteArray"), std::string::npos);
}

TEST(SIMDEvalRowContent, ByteArrayTextThatCannotFillItsSizeIsRefused) {
  const struct {
    const char* size;
    const char* text; // null: key absent
    bool result;
    std::vector<unsigned char> bytes;
  } cases[] = {
      {"2", "ab01", true, {0xab, 0x01}},
      {"2", "AB01FF", true, {0xab, 0x01}}, // extra digits ignored
      {"1", "zz", true, {0x00}},           // non-digits count as 0
      {"3", "AB01", false, {}},            // more than the text holds
      {"4294967295", "AB", false, {}},     // no allocation for a huge size
      {"2", nullptr, false, {}},
      {"2", "ABC", false, {0x00, 0x00}}, // odd text: zeros
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.size) + " " + (c.text ? c.text : "(none)"));
    ReadRow read(c.size, c.text);
    EXPECT_EQ(read.result, c.result);
    EXPECT_EQ(read.bytes(), c.bytes);
    EXPECT_EQ(read.row.getArraySize(), c.bytes.size());
  }
}

TEST(SIMDEvalRowContent, BytesAreOwnedAndNotCompared) {
  unsigned char bytes[] = {1, 2, 3, 4};
  auto a = TestSupport::make<SIMDEvalRowContent>("SIMDEvalRowContent", "r");
  a->setByteArray(bytes, 4);
  bytes[0] = 9; // the row holds its own copy
  EXPECT_EQ(a->getByteArray()[0], 1);

  auto b = TestSupport::make<SIMDEvalRowContent>("SIMDEvalRowContent", "r");
  b->setByteArray(bytes, 4);
  EXPECT_TRUE(*b == *a); // same size, different bytes
  b->setByteArray(bytes, 3);
  EXPECT_FALSE(*b == *a);

  *b = *a;
  std::unique_ptr<DebuggerData> copy(a->clone());
  for (const auto* row :
       {b.get(), static_cast<SIMDEvalRowContent*>(copy.get())}) {
    ASSERT_NE(row->getByteArray(), nullptr);
    EXPECT_NE(row->getByteArray(), a->getByteArray());
    EXPECT_EQ(row->getByteArray()[0], 1);
  }
  b->setByteArray(nullptr, 0);
  EXPECT_EQ(b->getByteArray(), nullptr);
}

TEST(LoadableItem, PreferredAddressSpellings) {
  LoadableItem item;
  item.setPreferedAddress(kSampleAddress);
  EXPECT_EQ(item.getPreferredAddress().getOffset(), 0x401000ull);
  EXPECT_EQ(item.getLoadAddress().getOffset(), 0ull);
}
