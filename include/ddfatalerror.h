// The library's fatal-error routine for broken invariants and malformed data.
#ifndef DBGDATA_DDFATALERROR_H
#define DBGDATA_DDFATALERROR_H

#include <string>

namespace Vemo {
namespace DbgData {

// The text the fatal-error routine composes:
// File "<file>" Line <line>\n<message>\n (the message line only when the
// message is not empty).
std::string composeDDFatalErrorText(const std::string& message,
                                    const std::string& file,
                                    unsigned long line);

// Composes the text above and aborts the process. Nothing is printed,
// logged or thrown; the routine never returns.
[[noreturn]] void throwDDFatalError(const std::string& message,
                                    const std::string& file,
                                    unsigned long line);

} // namespace DbgData
} // namespace Vemo

#endif
