#include "serializerhelperString.h"

#include "dbgdatakey.h"
#include "valuetypes.h"

#include <charconv>
#include <cstdio>
#include <limits>

namespace Vemo {
namespace DbgData {

namespace {

// Room for a dump of a small object tree without regrowing.
const std::string::size_type kInitialCapacity = 1024;

} // namespace

SerializerHelperString::SerializerHelperString() : indent(0) {
  text.reserve(kInitialCapacity);
}

bool SerializerHelperString::setClassNameAndSubKey(const std::string& className,
                                                   const std::string& subKey) {
  bool result = setStringHelper("ClassName", className);
  if (result)
    result = setStringHelper("SubKey", subKey);
  return result;
}

bool SerializerHelperString::setBool(const std::string& key, bool value) {
  static const std::string trueText = "true";
  static const std::string falseText = "false";
  return setStringHelper(key, value ? trueText : falseText);
}

// Decimal as an output stream writes the type: a "-" for negative numbers and
// no base prefix.
template <class T>
bool SerializerHelperString::setNumber(const std::string& key, T value) {
  char digits[std::numeric_limits<T>::digits10 + 3];
  const std::to_chars_result result =
      std::to_chars(digits, digits + sizeof digits, value);
  appendLine(key, digits, result.ptr - digits);
  return true;
}

bool SerializerHelperString::setInt(const std::string& key, int value) {
  return setNumber(key, value);
}
bool SerializerHelperString::setInt(const std::string& key,
                                    unsigned int value) {
  return setNumber(key, value);
}
bool SerializerHelperString::setInt(const std::string& key, long value) {
  return setNumber(key, value);
}
bool SerializerHelperString::setInt(const std::string& key,
                                    unsigned long value) {
  return setNumber(key, value);
}
bool SerializerHelperString::setInt(const std::string& key, long long value) {
  return setNumber(key, value);
}
bool SerializerHelperString::setInt(const std::string& key,
                                    unsigned long long value) {
  return setNumber(key, value);
}

bool SerializerHelperString::setFloat(const std::string& key, double value) {
  // "%f" of the largest double needs some 320 characters.
  char buffer[400];
  const int length = std::snprintf(buffer, sizeof buffer, "%f", value);
  if (length < 0)
    return setStringHelper(key, std::string());
  if (static_cast<std::size_t>(length) < sizeof buffer) {
    appendLine(key, buffer, length);
    return true;
  }
  std::string large(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(&large[0], large.size(), "%f", value);
  large.resize(length);
  return setStringHelper(key, large);
}

bool SerializerHelperString::setString(const std::string& key,
                                       const std::string& value) {
  return setStringHelper(key, value);
}

bool SerializerHelperString::setAddress(const std::string& key,
                                        const Address& value) {
  std::string valueText;
  value.serialize(valueText);
  return setStringHelper(key, valueText);
}

bool SerializerHelperString::setScope(const std::string& key,
                                      const Scope& value) {
  std::string valueText;
  value.serialize(valueText);
  return setStringHelper(key, valueText);
}

bool SerializerHelperString::setDbgDataKey(const std::string& key,
                                           const DbgDataKey& value) {
  return setStringHelper(key, value.toString());
}

bool SerializerHelperString::pushSection(const std::string& name) {
  outBlanks();
  text += name;
  text += " {\n";
  indent += 2;
  return true;
}

bool SerializerHelperString::popSection() {
  indent -= 2;
  outBlanks();
  text += "}\n";
  return true;
}

bool SerializerHelperString::setStringHelper(const std::string& key,
                                             const std::string& value) {
  appendLine(key, value.data(), value.size());
  return true;
}

void SerializerHelperString::appendLine(const std::string& key,
                                        const char* value,
                                        std::string::size_type length) {
  outBlanks();
  text += key;
  text += '=';
  text.append(value, length);
  text += '\n';
}

void SerializerHelperString::outBlanks() {
  // An indentation that has wrapped around (more pops than pushes) shows
  // as none instead of some four billion blanks; the next push brings it
  // back to where it was.
  const std::uint32_t largestIndent = std::numeric_limits<std::int32_t>::max();
  if (indent <= largestIndent)
    text.append(indent, ' ');
}

} // namespace DbgData
} // namespace Vemo
