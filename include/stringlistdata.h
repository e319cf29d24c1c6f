// StringList: a general ordered list of strings.
#ifndef DBGDATA_STRINGLISTDATA_H
#define DBGDATA_STRINGLISTDATA_H

#include "dataclass.h"

#include <string>
#include <vector>

namespace Vemo {
namespace DbgData {

// Serialized as "NumOfElements" and one key per element, "LF0000",
// "LF0001", ... (the index in upper-case hex, at least four digits).
// Reading, clone and assignment append to the elements already there
// instead of replacing them.
class StringList : public DataElement {
  DD_DATA_CLASS(StringList, DataElement)

  // The one field: the elements in order. Its writer, reader and copy
  // operations are declared after the class.
  struct Elements {
    std::vector<std::string> items;
    bool operator==(const Elements& other) const {
      return items == other.items;
    }
  };

  // Appends a copy of item.
  virtual void addStringItem(const std::string& item);
  // Throws std::out_of_range when index is not below getSize().
  virtual const std::string& getStringItem(unsigned long index) const;
  virtual unsigned long getSize() const;
  // Index of the first element equal to item, or all bits set (-1) when
  // there is none.
  virtual unsigned long find(const std::string& item) const;

private:
  Elements m_Elements;
};

// countKey is the count's key, "NumOfElements".
bool writeValue(ISerializerHelper* writer, const std::string& countKey,
                const StringList::Elements& elements);
// Appends the elements read. A count above 2^20 is refused (false, nothing
// appended): no list this library writes into one record is that long.
bool readValue(IDeserializerHelper* reader, const std::string& countKey,
               StringList::Elements& elements);
// Appends the source's elements to the target's.
void copyValue(StringList::Elements& target,
               const StringList::Elements& source);

} // namespace DbgData
} // namespace Vemo

#endif
