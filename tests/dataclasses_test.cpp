// The concrete data classes: keys, write order, defaults, and that every
// field takes part in clone, assignment, comparison and the round trip.
#include "consoleiodata.h"
#include "ddmanager.h"
#include "debuggerstatedata.h"
#include "reasondata.h"
#include "registerdata.h"
#include "rootdata.h"
#include "stackframedata.h"
#include "testsupport.h"
#include "testsupport_classes.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>

using namespace Vemo::DbgData;
using TestSupport::ClassCase;
using TestSupport::dumpText;
using TestSupport::on;

namespace {

Scope sampleScope() {
  return Scope(Address(0, 0x401000, 0, 1, 32), DbgDataKey("/src/a b.c"), 12, 3);
}
const char* const kDefaultScope =
    "Scope( Address( 4 32 0 0 0 )Address 00 0 0 )Scope";
const char* const kSampleScope = "Scope( Address( 1 32 0 401000 0 )Address "
                                 "2F7372632F6120622E6300 12 3 )Scope";

const std::vector<ClassCase>& classCases() {
  static const std::vector<ClassCase> cases = {
      {"Root",
       {"DbgName=", "DbgVersion=", "DbgType=", "DbgCopyright=",
        "Dbg3rdPartyCopyright=", "DefHelpfile="},
       {{on(&Root::setDbgName, "zdb"), "DbgName=zdb"},
        {on(&Root::setDbgVersion, "1.2"), "DbgVersion=1.2"},
        {on(&Root::setDbgType, "cli"), "DbgType=cli"},
        {on(&Root::setDbgCopyright, "(c)"), "DbgCopyright=(c)"},
        {on(&Root::setDbg3rdPartyCopyright, "3p"), "Dbg3rdPartyCopyright=3p"},
        {on(&Root::setDefHelpfile, "h.chm"), "DefHelpfile=h.chm"}}},
      {"DebuggerState", {"DummyContent="}, {}},
      {"ActiveDebuggee",
       {"ActiveParallelJob=", "ActiveJob=", "ActiveProcess=", "ActiveThread="},
       {{on(&ActiveDebuggee::setActiveParallelJob, "pj"),
         "ActiveParallelJob=pj"},
        {on(&ActiveDebuggee::setActiveJob, "j"), "ActiveJob=j"},
        {on(&ActiveDebuggee::setActiveProcess, "p"), "ActiveProcess=p"},
        {on(&ActiveDebuggee::setActiveThread, "t"), "ActiveThread=t"}}},
      {"CurScope",
       {"ExecState=0", std::string("Location=") + kDefaultScope},
       {{on(&CurScope::setExecState, static_cast<_ExecState>(3)),
         "ExecState=3"},
        {on(&CurScope::setLocation, sampleScope()),
         std::string("Location=") + kSampleScope},
        {on(&CurScope::setSrcColumn, 9ul),
         "Location=Scope( Address( 4 32 0 0 0 )Address 00 0 9 )Scope"},
        {on(&CurScope::setSrcFullKey, DbgDataKey("/R")),
         "Location=Scope( Address( 4 32 0 0 0 )Address 2F5200 0 0 )Scope"},
        {on(&CurScope::setAddress, Address(0, 0x10, 0, 0, 64)),
         "Location=Scope( Address( 0 64 0 10 0 )Address 00 0 0 )Scope"}}},
      {"StateStoppedReason",
       {"StateStoppedReason=0"},
       {{on(&StateStoppedReason::setStateStoppedReason,
            static_cast<StateStoppedReasonKind>(-2)),
         "StateStoppedReason=-2"}}},
      {"ConsoleIOHistoryItem",
       {"LineText=", "LineType=0"},
       {{on(&ConsoleIOHistoryItem::setLineText, "run"), "LineText=run"},
        {on(&ConsoleIOHistoryItem::setType,
            static_cast<DD_ConsoleIOHistoryItemType>(2)),
         "LineType=2"}}},
      {"CurDbgPrompt",
       {"PromptText="},
       {{on(&CurDbgPrompt::setPromptText, "ZMT>"), "PromptText=ZMT>"}}},
      {"StackFrameListContent", {}, {}},
      {"StackFrameItem",
       {"FrameID=0", "DisplayText=", std::string("Scope=") + kDefaultScope,
        "HasBrkPoint=false"},
       {{on(&StackFrameItem::setFrameID, -4l), "FrameID=-4"},
        {on(&StackFrameItem::setDisplayText, "main()"), "DisplayText=main()"},
        {on(&StackFrameItem::setScope, sampleScope()),
         std::string("Scope=") + kSampleScope},
        {on(&StackFrameItem::setHasBrkPoint, true), "HasBrkPoint=true"},
        {on(&StackFrameItem::setSrcLine, 7ul),
         "Scope=Scope( Address( 4 32 0 0 0 )Address 00 7 0 )Scope"}}},
      {"RegisterGroup",
       {"Name="},
       {{on(&RegisterGroup::setName, "GPR"), "Name=GPR"}}},
      {"RegisterItem",
       {"Name=", "Value=", "Description=", "Expression=", "Type=0", "Flags=0"},
       {{on(&RegisterItem::setName, "R0"), "Name=R0"},
        {on(&RegisterItem::setValue, "0x1"), "Value=0x1"},
        {on(&RegisterItem::setDescription, "d"), "Description=d"},
        {on(&RegisterItem::setExpression, "$r0"), "Expression=$r0"},
        {on(&RegisterItem::setType, 12), "Type=12"},
        {on(&RegisterItem::setFlags, 5), "Flags=5"}}},
  };
  return cases;
}

} // namespace

TEST(DataClasses, DefaultsKeysAndWriteOrder) {
  TestSupport::checkDefaultsKeysAndWriteOrder(classCases());
}

TEST(DataClasses, EveryFieldIsComparedClonedAssignedAndWritten) {
  TestSupport::checkFieldsCompareCloneAssignAndWrite(classCases());
}

TEST(DataClassesDeathTest, AssigningAcrossClassesAborts) {
  TestSupport::checkAssigningAcrossClassesAborts(classCases());
}

TEST(StackFrameItem, OwnCloneCopiesEverythingAndEngineData) {
  auto frame = TestSupport::make<StackFrameItem>("StackFrameItem", "0");
  frame->setFrameID(3);
  frame->setDisplayText("f()");
  frame->setScope(sampleScope());
  frame->setHasBrkPoint(true);
  frame->setEngineData(st_ddmanager.factory("RegisterGroup", "Internal"));
  std::unique_ptr<DebuggerData> copy(frame->clone());
  ASSERT_TRUE(copy);
  EXPECT_EQ(dumpText(*copy), dumpText(*frame));
  EXPECT_NE(copy->getEngineData(), frame->getEngineData());
}

TEST(RegisterItem, BitSizesByTypeCode) {
  const std::pair<int, unsigned> sizes[] = {
      {0, 8},   {1, 16},   {2, 32},   {3, 64},    {4, 48},  {12, 80},
      {17, 36}, {19, 128}, {23, 128}, {1000, 32}, {-1, 32}, {INT_MIN, 32}};
  RegisterItem item;
  for (const auto& size : sizes) {
    item.setType(size.first);
    EXPECT_EQ(item.getBitSize(), size.second) << "type " << size.first;
  }
}

TEST(ConsoleIOHistoryItem, LineTextIsEscapedOneWay) {
  const std::pair<std::string, std::string> cases[] = {
      {"a\ab", "a\\ab"},
      {"\b\v\f", "\\b\\v\\f"},
      {"tab\tnl\ncr\r", "tab\tnl\ncr\r"},
      {"\x01", "10"}, // octal digits over the seed text "\0"
      {"\x1b[", "33["},
      {std::string("x\0y", 3), "x00y"},
      {"\xc3", "37777777703"}, // not convertible in the "C" locale
      {"", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ConsoleIOHistoryItem::escapeLineText(c.first), c.second)
        << "input of size " << c.first.size();

  auto item =
      TestSupport::make<ConsoleIOHistoryItem>("ConsoleIOHistoryItem", "1");
  item->setLineText("a\vb");
  EXPECT_NE(dumpText(*item).find("  LineText=a\\vb\n"), std::string::npos);
  EXPECT_EQ(item->getLineText(), "a\vb"); // the member itself is untouched
}
