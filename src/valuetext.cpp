#include "valuetext.h"

#include <cstdio>
#include <limits>
#include <sstream>
#include <type_traits>

namespace Vemo {
namespace DbgData {

namespace {

// Plain decimal text short enough not to overflow is converted directly,
// with the stream's result; everything else goes through the stream.
template <class Int> void parseInteger(const std::string& text, Int* out) {
  const char* digit = text.c_str();
  const char* const end = digit + text.size();
  const bool negative =
      std::is_signed<Int>::value && digit != end && *digit == '-';
  if (negative)
    ++digit;
  const std::size_t count = static_cast<std::size_t>(end - digit);
  if (count > 0 && count <= 18) {
    long long magnitude = 0;
    for (; digit != end && *digit >= '0' && *digit <= '9'; ++digit)
      magnitude = magnitude * 10 + (*digit - '0');
    const long long value = negative ? -magnitude : magnitude;
    if (digit == end &&
        value >= static_cast<long long>(std::numeric_limits<Int>::min()) &&
        (value < 0 || static_cast<unsigned long long>(value) <=
                          std::numeric_limits<Int>::max())) {
      *out = static_cast<Int>(value);
      return;
    }
  }
  std::istringstream stream(text);
  stream.setf(std::ios_base::hex);
  Int value;
  if (stream >> value)
    *out = value;
}

} // namespace

FloatText::FloatText(double value) {
  const int written = std::snprintf(text, sizeof(text), "%f", value);
  size = written < 0 ? 0
         : static_cast<std::size_t>(written) < sizeof(text)
             ? static_cast<std::size_t>(written)
             : sizeof(text) - 1;
  text[size] = '\0';
}

void readIntegerText(const std::string& text, int* out) {
  parseInteger(text, out);
}
void readIntegerText(const std::string& text, unsigned int* out) {
  parseInteger(text, out);
}
void readIntegerText(const std::string& text, long* out) {
  parseInteger(text, out);
}
void readIntegerText(const std::string& text, unsigned long* out) {
  parseInteger(text, out);
}
void readIntegerText(const std::string& text, long long* out) {
  parseInteger(text, out);
}
void readIntegerText(const std::string& text, unsigned long long* out) {
  parseInteger(text, out);
}

} // namespace DbgData
} // namespace Vemo
