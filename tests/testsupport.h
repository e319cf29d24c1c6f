// Shared helpers of the test suites.
#ifndef DBGDATA_TESTS_TESTSUPPORT_H
#define DBGDATA_TESTS_TESTSUPPORT_H

#include "debuggerdata.h"

#include <memory>
#include <string>

namespace Vemo {
namespace DbgData {
namespace TestSupport {

// The text dump of an object, as the text writer makes it.
std::string dumpText(const DebuggerData& object);

// A factory-made object of the given class, owned by the caller.
template <class T>
std::unique_ptr<T> make(const std::string& className,
                        const std::string& subKey);

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo

#include "ddmanager.h"

template <class T>
std::unique_ptr<T>
Vemo::DbgData::TestSupport::make(const std::string& className,
                                 const std::string& subKey) {
  DebuggerData* object = st_ddmanager.factory(className, subKey);
  if (object && !object->isKindOf(T::staticRtti())) {
    delete object;
    object = nullptr;
  }
  return std::unique_ptr<T>(static_cast<T*>(object));
}

#endif
