// The writer and reader interfaces through which every data object stores
// and restores itself. Values are addressed by string keys inside nested,
// named sections; every operation answers whether it succeeded.
#ifndef DBGDATA_SERIALIZERHELPER_H
#define DBGDATA_SERIALIZERHELPER_H

#include <string>

namespace Vemo {
namespace DbgData {

class Address;
class Scope;
class DbgDataKey;

class ISerializerHelper {
public:
  virtual ~ISerializerHelper() = default;

  // Writes the keys "ClassName" and "SubKey" of the current object.
  virtual bool setClassNameAndSubKey(const std::string& className,
                                     const std::string& subKey) = 0;
  virtual bool setBool(const std::string& key, bool value) = 0;
  virtual bool setInt(const std::string& key, int value) = 0;
  virtual bool setInt(const std::string& key, unsigned int value) = 0;
  virtual bool setInt(const std::string& key, long value) = 0;
  virtual bool setInt(const std::string& key, unsigned long value) = 0;
  virtual bool setInt(const std::string& key, long long value) = 0;
  virtual bool setInt(const std::string& key, unsigned long long value) = 0;
  virtual bool setFloat(const std::string& key, double value) = 0;
  virtual bool setString(const std::string& key, const std::string& value) = 0;
  virtual bool setAddress(const std::string& key, const Address& value) = 0;
  virtual bool setScope(const std::string& key, const Scope& value) = 0;
  virtual bool setDbgDataKey(const std::string& key,
                             const DbgDataKey& value) = 0;
  // Opens a section as a child of the current one and makes it current.
  virtual bool pushSection(const std::string& name) = 0;
  // Returns to the parent section. Callers keep pushes and pops balanced.
  virtual bool popSection() = 0;
};

// Readers answer false when a value or section is not there; a numeric or
// boolean output is then set to 0 (false). A null output pointer is fatal.
class IDeserializerHelper {
public:
  virtual ~IDeserializerHelper() = default;

  virtual bool getNameAndSubKey(std::string* className,
                                std::string* subKey) const = 0;
  virtual bool getBool(const std::string& key, bool* out) const = 0;
  virtual bool getInt(const std::string& key, int* out) const = 0;
  virtual bool getInt(const std::string& key, unsigned int* out) const = 0;
  virtual bool getInt(const std::string& key, long* out) const = 0;
  virtual bool getInt(const std::string& key, unsigned long* out) const = 0;
  virtual bool getInt(const std::string& key, long long* out) const = 0;
  virtual bool getInt(const std::string& key,
                      unsigned long long* out) const = 0;
  virtual bool getFloat(const std::string& key, double* out) const = 0;
  virtual bool getString(const std::string& key, std::string* out) const = 0;
  virtual bool getAddress(const std::string& key, Address* out) const = 0;
  virtual bool getScope(const std::string& key, Scope* out) const = 0;
  virtual bool getDbgDataKey(const std::string& key, DbgDataKey* out) const = 0;

  virtual bool pushSection(const std::string& name) = 0;
  // Enters the named section and opens a child cursor before its first child.
  virtual bool pushListSection(const std::string& name) = 0;
  // Moves the cursor to the first child and enters it; false when none.
  virtual bool pushFirstChildSection() = 0;
  // Moves the cursor to the next sibling and enters it; false when none.
  virtual bool pushNextChildSection() = 0;
  virtual bool popSection() = 0;
  // Leaves the list section and drops its cursor.
  virtual bool popListSection() = 0;
};

// A second interface that a reader may implement beside IDeserializerHelper:
// how many values the current section holds. A list's length read from the
// data is checked against it (readListCount), so that a short document
// cannot make the reader build a long list of empty items. It is a separate
// class so that IDeserializerHelper's own operations stay as they are.
class IValueCount {
public:
  virtual ~IValueCount() = default;
  // The number of values stored in the current section; 0 without one.
  virtual unsigned long getValueCount() const = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
