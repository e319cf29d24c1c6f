// Sample objects of the self-check for debug info, disassembly, expression
// evaluation and SIMD evaluation. Every sample value differs from the
// member's default, so that a member lost on the way through a writer and a
// reader shows up in the comparison.
#include "selfcheck.h"

#include "dbgdatakey.h"
#include "debuginfodata.h"
#include "disassemblerdata.h"
#include "evaldata.h"
#include "simdevaldata.h"
#include "symboltoken.h"
#include "valuetypes.h"

using namespace Vemo::DbgData;

namespace {

const char* const kSourceKey =
    "/Root/ParallelJob[]/0/Jobs[]/1/DebugInfo/Sources[]/main.c";

} // namespace

// ---------------------------------------------------------------------------
// Debug info

void fillDebugInfo(DebugInfo* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_DebugInfo, DebugInfo, fillDebugInfo)

void fillSymbolItem(SymbolItem* object) {
  object->setExpression("main::counter");
  object->setAddressText("0x00402010");
  object->setSymbolName("counter");
  object->setModuleName("main.o");
  object->setFunctionName("main");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SymbolItem, SymbolItem, fillSymbolItem)

void fillSymbolBrowserConfig(SymbolBrowserConfig* object) {
  object->setModuleName("libzmt.so");
  object->setPatternString("zmt_*");
  object->setFunctionsOnly(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SymbolBrowserConfig, SymbolBrowserConfig,
                  fillSymbolBrowserConfig)

void fillModuleListContent(ModuleListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ModuleListContent, ModuleListContent,
                  fillModuleListContent)

void fillModuleItem(ModuleItem* object) {
  object->setSrcFileName("main.c");
  object->setSrcFilePath("/home/zmt/src");
  object->setObjectFile("main.o");
  object->setObjectPath("/home/zmt/build");
  object->setFullKey(DbgDataKey(kSourceKey));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ModuleItem, ModuleItem, fillModuleItem)

void fillLoadableItem(LoadableItem* object) {
  object->setName("libzmt");
  object->setFileName("/usr/lib/libzmt.so.1");
  object->setVersion("1.4.2");
  object->setSymbolFileName("/usr/lib/debug/libzmt.so.1.debug");
  object->setLoadOrder(3);
  object->setLoadAddress(Address(0, 0x7f0000001000, 0, 1, 64));
  object->setPreferedAddress(Address(0, 0x400000, 0, 1, 64));
  object->setFlags(0x6);
  object->setSymbolsLoaded();
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_LoadableItem, LoadableItem, fillLoadableItem)

void fillSymbolToken(SymbolToken* object) {
  object->setTokenType(static_cast<SymbolToken::_tokenType>(2));
  object->setDisplayText("counter (int)");
  object->setParameters("scope=global");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SymbolToken, SymbolToken, fillSymbolToken)

// ---------------------------------------------------------------------------
// Disassembly

void fillDisAsmListContent(DisAsmListContent* object) {
  object->setSrcAnnotationMode(static_cast<DasmSrcAnnotation>(2));
  object->setAddress(Address(0x10, 0x401000, 0x40, 2, 32));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DisAsmListContent, DisAsmListContent,
                  fillDisAsmListContent)

void fillDisAsmItem(DisAsmItem* object) {
  object->setFlags(0x5);
  object->setAddress(Address(0, 0x401004, 0, 1, 64));
  object->setSrcFullKey(DbgDataKey(kSourceKey));
  object->setSrcLine(42);
  object->setSrcColumn(7);
  object->setAddressText("0x0000000000401004");
  object->setSourceText("  counter += step;");
  object->setOpcodeText("add eax, ebx");
  object->setSymbolText("main+4");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DisAsmItem, DisAsmItem, fillDisAsmItem)

void fillDisAsmConfig(DisAsmConfig* object) {
  object->setAddress(Address(0, 0x401000, 0, 1, 64));
  object->setRequestType(static_cast<RequestType>(1));
  object->setAmount(25);
  object->setFlags(0x11);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_DisAsmConfig, DisAsmConfig, fillDisAsmConfig)

// ---------------------------------------------------------------------------
// Expression evaluation

void fillEvalRootContent(EvalRootContent* object) {
  // Above the signed range, so that the signed writer operation is crossed.
  object->setEvalID(0x8000000000000001ul);
  object->setSymbol("counter");
  object->setBaseID(17);
  object->setBaseSubKey("3");
  object->setAccessSize(4);
  object->setAsciiLength("64");
  object->setFlags(0x3);
  object->setWinID("Watch1");
  object->setFormatFlags(0x81);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_EvalRootContent, EvalRootContent, fillEvalRootContent)
DD_SELFCHECK_FILL(DDID_LocalsRootContent, EvalRootContent, fillEvalRootContent)

void fillEvalLineContent(EvalLineContent* object) {
  object->setExpression("counter");
  object->setName("counter");
  object->setValue("42");
  object->setHexValue("0x0000002a");
  object->setType("int");
  object->setModifyValue("43");
  object->setFlags(0x2);
  object->setFormatFlags(0x82);
  object->setFrameId(-2);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_EvalLineContent, EvalLineContent, fillEvalLineContent)
DD_SELFCHECK_FILL(DDID_LocalsLineContent, EvalLineContent, fillEvalLineContent)

void fillEvalLineInternalZMT(EvalLineInternalZMT* object) {
  object->setEvalID(-12);
  object->setPUser(0xfedcba9876543210ull);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_EvalLineInternalZMT, EvalLineInternalZMT,
                  fillEvalLineInternalZMT)

// ---------------------------------------------------------------------------
// SIMD evaluation

void fillSIMDConfig(SIMDConfig* object) {
  object->setRequestType(static_cast<SIMDRequestType>(3));
  object->setOperatorType(static_cast<SIMDOperatorType>(4));
  object->setIterationType(static_cast<SIMDIterationType>(2));
  object->setIterationExpr("i < 8");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SIMDConfig, SIMDConfig, fillSIMDConfig)

void fillSIMDEvalRootContent(SIMDEvalRootContent* object) {
  object->setEvalID(0x8000000000000002ul);
  object->setWinID("SIMD1");
  object->setInfo("xmm0..xmm3");
  object->setUnions(8);
  object->setAsciiLength("16");
  object->setFlags(0x9);
  object->setFormatFlags(33);
  object->setNumColumns(4);
  object->setNumRows(2);
  object->setWindowType(static_cast<SIMDEvalRootContent::SIMDWndType>(2));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SIMDEvalRootContent, SIMDEvalRootContent,
                  fillSIMDEvalRootContent)

void fillSIMDEvalRowContent(SIMDEvalRowContent* object) {
  static const unsigned char bytes[] = {0x00, 0x01, 0x7f, 0x80, 0xab, 0xcd,
                                        0xef, 0xff, 0x10, 0x20, 0x30, 0x40,
                                        0x50, 0x60, 0x70, 0x90};
  object->setDisplayExpression("xmm0");
  object->setEngineExpression("$xmm0");
  object->setFlags(0x1);
  object->setFormatFlags(34);
  object->setOperatorType(static_cast<SIMDOperatorType>(5));
  object->setByteArray(bytes, sizeof bytes);
  // Negative, so that the unsigned writer operation is crossed.
  object->setEvalID(-7);
  object->setSizeOfArrayElement(4);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SIMDEvalRowContent, SIMDEvalRowContent,
                  fillSIMDEvalRowContent)

void fillSIMDEvalItem(SIMDEvalItem* object) {
  object->setValue("1.5");
  object->setModifyValue("2.5");
  object->setFlags(0x4);
  object->setFormatFlags(40);
  object->setHighlight(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SIMDEvalItem, SIMDEvalItem, fillSIMDEvalItem)
