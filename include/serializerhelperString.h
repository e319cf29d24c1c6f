// SerializerHelperString: the writer that produces an indented text dump of
// an object tree, for logs and for people. There is no matching reader.
//
// Every value becomes one line "<blanks><key>=<value>\n", written as it is
// (nothing is quoted or escaped); a section is a line "<name> {" and a line
// "}" around its contents, which are indented by two more blanks.
#ifndef DBGDATA_SERIALIZERHELPERSTRING_H
#define DBGDATA_SERIALIZERHELPERSTRING_H

#include "serializerhelper.h"

#include <cstdint>
#include <string>

namespace Vemo {
namespace DbgData {

class SerializerHelperString : public ISerializerHelper {
public:
  SerializerHelperString();
  ~SerializerHelperString() override = default;

  // Writes "ClassName", then "SubKey" only when the first line succeeded.
  bool setClassNameAndSubKey(const std::string& className,
                             const std::string& subKey) override;
  bool setBool(const std::string& key, bool value) override;
  bool setInt(const std::string& key, int value) override;
  bool setInt(const std::string& key, unsigned int value) override;
  bool setInt(const std::string& key, long value) override;
  bool setInt(const std::string& key, unsigned long value) override;
  bool setInt(const std::string& key, long long value) override;
  bool setInt(const std::string& key, unsigned long long value) override;
  // Formatted as printf's "%f" does.
  bool setFloat(const std::string& key, double value) override;
  bool setString(const std::string& key, const std::string& value) override;
  bool setAddress(const std::string& key, const Address& value) override;
  bool setScope(const std::string& key, const Scope& value) override;
  bool setDbgDataKey(const std::string& key, const DbgDataKey& value) override;
  bool pushSection(const std::string& name) override;
  // Pushes and pops are not checked for balance: a pop without a push wraps
  // the unsigned indentation around.
  bool popSection() override;

  // Appends one value line; every value goes through here.
  bool setStringHelper(const std::string& key, const std::string& value);
  // Appends the current indentation's blanks.
  void outBlanks();

  // The dump written so far.
  const std::string& getText() const { return text; }

private:
  template <class T> bool setNumber(const std::string& key, T value);
  // The line of setStringHelper, from a value that is not a std::string, so
  // that numbers need no string of their own.
  void appendLine(const std::string& key, const char* value,
                  std::string::size_type length);

  std::string text;
  std::uint32_t indent;
};

} // namespace DbgData
} // namespace Vemo

#endif
