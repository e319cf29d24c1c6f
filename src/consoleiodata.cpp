#include "consoleiodata.h"

#include <clocale>
#include <cstdlib>
#include <cwctype>
#include <sstream>

namespace Vemo {
namespace DbgData {

// The octal form of one byte. The stream is opened for output only on the
// text "\0", so the digits overwrite that text from its start instead of
// following it: byte 1 gives "10", byte 27 gives "33", and a byte above 0x7F
// (taken as a negative char) gives all the digits of a 32-bit value.
static std::string octalByte(char byte) {
  std::ostringstream octal("\\0", std::ios_base::out);
  octal << std::oct
        << static_cast<unsigned int>(static_cast<signed char>(byte));
  return octal.str();
}

std::string ConsoleIOHistoryItem::escapeLineText(const std::string& text) {
  std::string escaped;
  std::mbtowc(nullptr, nullptr, 0); // reset the conversion state
  const char* const data = text.data();
  const size_t size = text.size();
  size_t pos = 0;
  while (pos < size) {
    wchar_t wc = 0;
    const int length = std::mbtowc(&wc, data + pos, size - pos);
    if (length <= 0) {
      // A NUL byte or a sequence the locale cannot convert: write the byte
      // in octal and go on with the next byte, so the walk always ends.
      escaped += octalByte(data[pos]);
      std::mbtowc(nullptr, nullptr, 0);
      ++pos;
      continue;
    }
    const wint_t c = static_cast<wint_t>(wc);
    if (std::iswgraph(c) || std::iswspace(c) || c == 7 || c == 8) {
      switch (c) {
      case 7:
        escaped += "\\a";
        break;
      case 8:
        escaped += "\\b";
        break;
      case 11:
        escaped += "\\v";
        break;
      case 12:
        escaped += "\\f";
        break;
      default:
        escaped.append(data + pos, length);
        break;
      }
    } else {
      escaped += octalByte(data[pos]);
    }
    pos += static_cast<size_t>(length);
  }
  return escaped;
}

// LineText is escaped on writing only: the reader takes the escaped text as
// it is, so a line with control characters does not come back unchanged.
// The member Type travels under the key "LineType".
template <class FieldVisitor>
void ConsoleIOHistoryItem::describeFields(FieldVisitor& field) {
  field("LineText", &ConsoleIOHistoryItem::m_LineText,
        Field::writtenAs(&ConsoleIOHistoryItem::escapeLineText));
  field("LineType", &ConsoleIOHistoryItem::m_Type);
}
DD_DATA_CLASS_IMPL(ConsoleIOHistoryItem, "src/consoleiodata.cpp")

template <class FieldVisitor>
void CurDbgPrompt::describeFields(FieldVisitor& field) {
  field("PromptText", &CurDbgPrompt::m_PromptText);
}
DD_DATA_CLASS_IMPL(CurDbgPrompt, "src/consoleiodata.cpp")

} // namespace DbgData
} // namespace Vemo
