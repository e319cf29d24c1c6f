#include "ddfatalerror.h"

#include <cstdio>
#include <cstdlib>

namespace Vemo {
namespace DbgData {

std::string composeDDFatalErrorText(const std::string& message,
                                    const std::string& file,
                                    unsigned long line) {
  // The routine has always started from a "DD FATAL ERROR: " prefix and then
  // replaced the whole text with the part from "File" on; the composed text
  // therefore never carries the prefix.
  std::string text = "DD FATAL ERROR: ";
  char lineText[32];
  std::snprintf(lineText, sizeof lineText, "%i", static_cast<int>(line));
  text = "File \"" + file + "\" Line " + lineText + "\n";
  if (!message.empty())
    text += message + "\n";
  return text;
}

void throwDDFatalError(const std::string& message, const std::string& file,
                       unsigned long line) {
  // Kept in a volatile so that the composed text can be seen in a core dump.
  static std::string lastText;
  lastText = composeDDFatalErrorText(message, file, line);
  const char* volatile keep = lastText.c_str();
  (void)keep;
  std::abort();
}

} // namespace DbgData
} // namespace Vemo
