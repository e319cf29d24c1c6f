// Sample objects of the memory, source and breakpoint classes. Every sample
// value differs from the member's default.
#include "selfcheck.h"

#include "breakpointdata.h"
#include "memorydata.h"
#include "sourcedata.h"

using namespace Vemo::DbgData;

namespace {

Scope sampleScope(unsigned long line) {
  return Scope(Address(0, 0x401000 + line, 0, 1, 64),
               DbgDataKey("/Root/ParallelJob[]/0/Jobs[]/1/DebugInfo/Sources[]/"
                          "main.c"),
               line, 5);
}

// Every member of a breakpoint of the given kind.
void fillBreakPointMembers(BreakPointItem* object, unsigned long kind) {
  object->setId(7);
  object->setKind(kind);
  object->setLocation(sampleScope(40));
  object->setCondition("i > 10");
  object->setAction("print i");
  object->setContinue(true);
  object->setEnabled(false);
  object->setPending(true);
  object->setMaxSkips(5);
  object->setCurSkips(2);
  object->setDisplayText("main.c:40 if i > 10");
  object->setExpStr("counter");
  object->setTriggered(true);
  object->setConditionStyle(static_cast<DDConditionStyle>(1));
  object->setPassCountStyle(static_cast<DDPassCountStyle>(2));
}

// Gives object, instead of the standard engine data, an internal object of
// class Internal made by the factory and filled by fill.
template <class Internal>
void attachInternal(BreakPointItem* object, const char* className,
                    void (*fill)(Internal*)) {
  DebuggerData* internal = st_ddmanager.factory(className, "Internal");
  if (internal && internal->isKindOf(Internal::staticRtti()))
    fill(static_cast<Internal*>(internal));
  object->setEngineData(internal); // owned by object, whatever it is
}

} // namespace

void fillMemoryListContent(MemoryListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_MemoryListContent, MemoryListContent,
                  fillMemoryListContent)

void fillMemoryItem(MemoryItem* object) {
  unsigned char bytes[] = {0x00, 0x01, 0x7F, 0x80, 0xAB, 0xCD, 0xEF, 0xFF};
  object->setByteArray(bytes, sizeof bytes);
  object->setAddress(Address(0, 0x7ffc1000, 0, 1, 64));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_MemoryItem, MemoryItem, fillMemoryItem)

void fillMemoryAddress(MemoryAddress* object) {
  object->setAddress(Address(0x10, 0x1000, 0x20, 2, 16));
  object->setAccessSize(static_cast<AccessSize>(4));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_MemoryAddress, MemoryAddress, fillMemoryAddress)

void fillSourceListContent(SourceListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SourceListContent, SourceListContent,
                  fillSourceListContent)

void fillSourceItem(SourceItem* object) {
  object->setSourceFileName("main.c");
  object->setNoOfLines(2);
  object->setLineValue(1, 0x12345678);
  object->setLineValue(2, 0x87654321);
  object->setValid(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SourceItem, SourceItem, fillSourceItem)

void fillSourceScope(SourceScope* object) {
  object->setLocation(sampleScope(17));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SourceScope, SourceScope, fillSourceScope)

void fillBreakPointListContent(BreakPointListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_BreakPointListContent, BreakPointListContent,
                  fillBreakPointListContent)

void fillBreakPointItem(BreakPointItem* object) {
  fillBreakPointMembers(object, 0x5);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_BreakPointItem, BreakPointItem, fillBreakPointItem)

void fillBreakPointItemZMT(BreakPointItem* object) {
  fillBreakPointMembers(object, 0x1);
  attachInternal(object, "BreakPointInternalZMT", &fillBreakPointInternalZMT);
}

void fillBreakPointItemKYR(BreakPointItem* object) {
  fillBreakPointMembers(object, 0x5);
  attachInternal(object, "BreakPointInternalKYR", &fillBreakPointInternalKYR);
}

void fillWatchPointItem(BreakPointItem* object) {
  fillBreakPointMembers(object, 0xA);
  attachInternal(object, "WatchPointInternalZMT", &fillWatchPointInternalZMT);
}

void fillBreakPointInternalZMT(BreakPointInternalZMT* object) {
  object->setSymbolName("main");
  object->setIsHardwareBP(true);
  object->setHardwareBPId(3);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_BreakPointInternalZMT, BreakPointInternalZMT,
                  fillBreakPointInternalZMT)

void fillBreakPointInternalKYR(BreakPointInternalKYR* object) {
  object->setSynchronized(true);
  object->setThreadFilter("1,2");
  object->setStoppingThreads("all");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_BreakPointInternalKYR, BreakPointInternalKYR,
                  fillBreakPointInternalKYR)

void fillWatchPointInternalZMT(WatchPointInternalZMT* object) {
  object->setSymbolName("counter");
  object->setAccess(static_cast<WPAccess>(2));
  object->setMask("0xFFFFFFFF");
  object->setOverlayID(1);
  object->setLength("sizeof(counter)");
  object->setIsHardwareBP(true);
  object->setHardwareBPId(2);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_WatchPointInternalZMT, WatchPointInternalZMT,
                  fillWatchPointInternalZMT)

void fillWatchPointInternalKYR(WatchPointInternalKYR* object) {
  object->setThreadFilter("3");
  object->setAccess(static_cast<WPAccessKYR>(3));
  object->setWithinFunction("worker");
  object->setOverlayID(2);
  object->setLength("4");
  object->setIsHardwareBP(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_WatchPointInternalKYR, WatchPointInternalKYR,
                  fillWatchPointInternalKYR)
