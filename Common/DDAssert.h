// Assertions of the data model that stay active in every build type.
//
// The library's invariants (registry set up, identity objects valid, non-null
// arguments) must stop the process even in Release builds, so they cannot use
// the standard assert, which vanishes under NDEBUG. DD_ASSERT prints the usual
// assertion line to standard error and aborts.
#ifndef DBGDATA_COMMON_DDASSERT_H
#define DBGDATA_COMMON_DDASSERT_H

#include <cstdio>
#include <cstdlib>

namespace Vemo {
namespace DbgData {

[[noreturn]] inline void ddAssertFail(const char* expr, const char* file,
                                      unsigned line, const char* function) {
  std::fprintf(stderr, "%s:%u: %s: Assertion `%s' failed.\n", file, line,
               function, expr);
  std::fflush(stderr);
  std::abort();
}

} // namespace DbgData
} // namespace Vemo

#define DD_ASSERT(expr)                                                        \
  ((expr)                                                                      \
       ? static_cast<void>(0)                                                  \
       : ::Vemo::DbgData::ddAssertFail(#expr, __FILE__, __LINE__, __func__))

#endif
