// Table-driven checks of data classes: each test suite lists its classes'
// default dump lines and, per field, a sample setter with the dump line it
// produces; the checks here then pin keys, write order, defaults, and how
// every field takes part in comparison, clone, assignment and writing.
#ifndef DBGDATA_TESTS_TESTSUPPORT_CLASSES_H
#define DBGDATA_TESTS_TESTSUPPORT_CLASSES_H

#include "debuggerdata.h"

#include <functional>
#include <string>
#include <vector>

namespace Vemo {
namespace DbgData {
namespace TestSupport {

// Deliberate exceptions of one field.
enum FieldQuirk : unsigned {
  AllCopiesAndCompares = 0,
  NotCompared = 1u << 0,
  NotCloned = 1u << 1,
  NotAssigned = 1u << 2,
};

// One field of a class: how to give it a sample value, the dump line that
// value produces, and its deliberate exceptions.
struct FieldCase {
  std::function<void(DebuggerData&)> set;
  std::string line;
  unsigned quirks = AllCopiesAndCompares;
};

struct ClassCase {
  const char* className;
  std::vector<std::string> defaultLines; // the class's own keys, in order
  std::vector<FieldCase> fields;
};

// A setter call with a fixed argument, as a FieldCase's set.
template <class T, class V, class A>
std::function<void(DebuggerData&)> on(void (T::*setter)(A), V v) {
  return [=](DebuggerData& o) { (static_cast<T&>(o).*setter)(v); };
}

// The dump of a leaf of className with sub key "k" and the given own lines
// (engine data none).
std::string leafDump(const char* className,
                     const std::vector<std::string>& lines);

// A default object of each class dumps exactly its default lines.
void checkDefaultsKeysAndWriteOrder(const std::vector<ClassCase>& cases);
// Each field's sample value shows in the dump and takes part in ==, clone
// and assignment as its quirks say.
void checkFieldsCompareCloneAssignAndWrite(const std::vector<ClassCase>& cases);
// Assigning an object of another class aborts; comparing answers false.
void checkAssigningAcrossClassesAborts(const std::vector<ClassCase>& cases);

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo

#endif
