// The debugger console: lines of its input/output history and its prompt.
#ifndef DBGDATA_CONSOLEIODATA_H
#define DBGDATA_CONSOLEIODATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// Kind of a console history line. The enumerators belong to the console
// protocol; the library stores and transports the value as an int.
enum DD_ConsoleIOHistoryItemType : std::int32_t {
  ConsoleIOHistory_Undefined = 0
};

class ConsoleIOHistoryItem : public DataElement {
  DD_DATA_CLASS(ConsoleIOHistoryItem, DataElement)

  const std::string& getLineText() const { return m_LineText; }
  void setLineText(const std::string& v) { m_LineText = v; }
  DD_ConsoleIOHistoryItemType getType() const { return m_Type; }
  void setType(DD_ConsoleIOHistoryItemType v) { m_Type = v; }

  // The text that serialization writes for a line: control characters are
  // escaped for display ("\a", "\b", "\v", "\f", octal for the rest), while
  // printable characters, blanks, tabs and line breaks stay as they are.
  // Multibyte characters are recognised by the current locale.
  static std::string escapeLineText(const std::string& text);

private:
  std::string m_LineText;
  DD_ConsoleIOHistoryItemType m_Type = ConsoleIOHistory_Undefined;
};

class CurDbgPrompt : public DataElement {
  DD_DATA_CLASS(CurDbgPrompt, DataElement)

  const std::string& getPromptText() const { return m_PromptText; }
  void setPromptText(const std::string& v) { m_PromptText = v; }

private:
  std::string m_PromptText;
};

} // namespace DbgData
} // namespace Vemo

#endif
