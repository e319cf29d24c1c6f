// Sample objects of the self-check. Every sample value differs from the
// member's default, so that a member lost on the way through a writer and a
// reader shows up in the comparison.
#include "selfcheck.h"

#include "consoleiodata.h"
#include "dbgdatakey.h"
#include "debuggerstatedata.h"
#include "reasondata.h"
#include "registerdata.h"
#include "rootdata.h"
#include "stackframedata.h"
#include "valuetypes.h"

using namespace Vemo::DbgData;

namespace {

// A source position with every part set.
Scope sampleScope(unsigned long line) {
  return Scope(Address(0, 0x401000 + line, 0, 1, 64),
               DbgDataKey("/Root/ParallelJob[]/0/Jobs[]/1/DebugInfo/Sources[]/"
                          "main.c"),
               line, 7);
}

} // namespace

void attachEngineData(DataElement* object) {
  DebuggerData* engineData = st_ddmanager.factory("RegisterItem", "Internal");
  if (engineData && engineData->isKindOf(RegisterItem::staticRtti())) {
    auto* item = static_cast<RegisterItem*>(engineData);
    item->setName("Internal");
    item->setValue("0x12345678");
    item->setDescription("Description: ZMT specific engine data");
    item->setExpression("expression");
    item->setType(2);
    item->setFlags(1);
  }
  object->setEngineData(engineData);
}

void fillRoot(Root* object) {
  object->setDbgName("ZMT Debugger");
  object->setDbgVersion("4.2.1");
  object->setDbgType("ZMT");
  object->setDbgCopyright("Copyright (C) ZMT Debugger authors");
  object->setDbg3rdPartyCopyright("Portions copyright (C) third parties");
  object->setDefHelpfile("zmt-debugger.html");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_Root, Root, fillRoot)

void fillDebuggerState(DebuggerState* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_DebuggerState, DebuggerState, fillDebuggerState)

void fillActiveDebuggee(ActiveDebuggee* object) {
  object->setActiveParallelJob("0");
  object->setActiveJob("1");
  object->setActiveProcess("4711");
  object->setActiveThread("4712");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ActiveDebuggee, ActiveDebuggee, fillActiveDebuggee)

void fillCurScope(CurScope* object) {
  object->setExecState(static_cast<_ExecState>(3));
  object->setLocation(sampleScope(42));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_CurScope, CurScope, fillCurScope)

void fillStateStoppedReason(StateStoppedReason* object) {
  object->setStateStoppedReason(static_cast<StateStoppedReasonKind>(5));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_StateStoppedReason, StateStoppedReason,
                  fillStateStoppedReason)

void fillConsoleIOHistoryItem(ConsoleIOHistoryItem* object) {
  // Serialization escapes control characters one way only; the sample text
  // has none, but it has the characters that XML text must escape.
  object->setLineText("ZMT> print \"a < b && c > d\"");
  object->setType(static_cast<DD_ConsoleIOHistoryItemType>(2));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ConsoleIOHistoryItem, ConsoleIOHistoryItem,
                  fillConsoleIOHistoryItem)

void fillCurDbgPrompt(CurDbgPrompt* object) {
  object->setPromptText("ZMT>");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_CurDbgPrompt, CurDbgPrompt, fillCurDbgPrompt)

void fillStackFrameListContent(StackFrameListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_StackFrameListContent, StackFrameListContent,
                  fillStackFrameListContent)

void fillStackFrameItem(StackFrameItem* object) {
  object->setFrameID(-3);
  object->setDisplayText("main(argc=1, argv=0x7ffc1000) at main.c:42");
  object->setScope(sampleScope(42));
  object->setHasBrkPoint(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_StackFrameItem, StackFrameItem, fillStackFrameItem)

void fillRegisterGroup(RegisterGroup* object) {
  object->setName("General Purpose Registers");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_RegisterGroup, RegisterGroup, fillRegisterGroup)

void fillRegisterItem(RegisterItem* object, const std::string& name,
                      int index) {
  object->setName(name);
  object->setValue("0x12345678");
  object->setDescription("Description: Register " + name + " blablabla");
  object->setExpression("expression");
  object->setType(index + 1);
  object->setFlags(1);
  attachEngineData(object);
}

void fillRegisterItem(RegisterItem* object) {
  fillRegisterItem(object, "EAX", 2);
}
DD_SELFCHECK_FILL(DDID_RegisterItem, RegisterItem, fillRegisterItem)

void fillDataList(DataList* object) {
  static const char* const names[] = {"R0", "R1", "R2"};
  int index = 0;
  for (const char* name : names) {
    DebuggerData* child = st_ddmanager.factory("RegisterItem", name);
    if (child && child->isKindOf(RegisterItem::staticRtti()))
      fillRegisterItem(static_cast<RegisterItem*>(child), name, index);
    // The list owns the child from here on; it refuses only null.
    object->appendChild(child);
    ++index;
  }
  object->setSpecialItem("R1");
}
DD_SELFCHECK_FILL(DDID_DataList, DataList, fillDataList)

void fillDataListWC(DataListWC* object) {
  fillDataList(object);
  DebuggerData* content =
      st_ddmanager.factory("StackFrameListContent", "Content");
  if (content && content->isKindOf(StackFrameListContent::staticRtti())) {
    auto* header = static_cast<StackFrameListContent*>(content);
    fillStackFrameListContent(header);
    object->setContent(header); // owned by the list
  } else {
    delete content;
  }
}
DD_SELFCHECK_FILL(DDID_DataListWC, DataListWC, fillDataListWC)
