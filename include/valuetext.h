// The text forms of numbers in the XML layout, shared by the XML writers and
// readers so that every path writes and reads a number alike.
#ifndef DBGDATA_VALUETEXT_H
#define DBGDATA_VALUETEXT_H

#include <charconv>
#include <cstddef>
#include <string>

namespace Vemo {
namespace DbgData {

// Decimal text of an integer, as printf's %d family writes it.
template <class Int> struct DecimalText {
  char text[24];
  std::size_t size;
  explicit DecimalText(Int value) {
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof(text) - 1, value);
    *end.ptr = '\0';
    size = static_cast<std::size_t>(end.ptr - text);
  }
};

// The printf "%f" text of a number (every integer digit of large
// magnitudes: up to 309 of them).
struct FloatText {
  char text[400];
  std::size_t size;
  explicit FloatText(double value);
};

// Reads text as the standard input stream does with its hexadecimal flag
// raised on top of the decimal one, which keeps the base decimal: leading
// blanks are skipped, a sign is taken, digits are read up to the first
// other character. Text that does not parse, or overflows the type, leaves
// *out unchanged.
void readIntegerText(const std::string& text, int* out);
void readIntegerText(const std::string& text, unsigned int* out);
void readIntegerText(const std::string& text, long* out);
void readIntegerText(const std::string& text, unsigned long* out);
void readIntegerText(const std::string& text, long long* out);
void readIntegerText(const std::string& text, unsigned long long* out);

} // namespace DbgData
} // namespace Vemo

#endif
