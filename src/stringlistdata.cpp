#include "stringlistdata.h"

#include <cstdio>
#include <stdexcept>

namespace Vemo {
namespace DbgData {

namespace {

// The key of element index: "LF" and the index in upper-case hex, padded
// with zeros to four digits (five from index 0x10000 on).
std::string elementKey(unsigned long index) {
  char key[32];
  std::snprintf(key, sizeof key, "LF%04lX", index);
  return key;
}

} // namespace

bool writeValue(ISerializerHelper* writer, const std::string& countKey,
                const StringList::Elements& elements) {
  const std::vector<std::string>& items = elements.items;
  bool result =
      writer->setInt(countKey, static_cast<unsigned long>(items.size()));
  for (unsigned long i = 0; i < items.size(); ++i)
    result = writer->setString(elementKey(i), items[i]) && result;
  return result;
}

bool readValue(IDeserializerHelper* reader, const std::string& countKey,
               StringList::Elements& elements) {
  unsigned long count = 0;
  bool result = readListCount(reader, countKey, &count);
  // One temporary for all elements: a key that cannot be read appends
  // whatever the reader left in it (the DOM reader leaves it empty), so the
  // list keeps the stored count.
  std::string item;
  for (unsigned long i = 0; i < count; ++i) {
    result = reader->getString(elementKey(i), &item) && result;
    elements.items.push_back(item);
  }
  return result;
}

void copyValue(StringList::Elements& target,
               const StringList::Elements& source) {
  // By index over the source's size as it is now, so that appending a list
  // to itself doubles it instead of walking into its own new elements.
  const std::size_t count = source.items.size();
  target.items.reserve(target.items.size() + count);
  for (std::size_t i = 0; i < count; ++i)
    target.items.push_back(source.items[i]);
}

template <class FieldVisitor>
void StringList::describeFields(FieldVisitor& field) {
  field("NumOfElements", &StringList::m_Elements);
}
DD_DATA_CLASS_IMPL(StringList, "src/stringlistdata.cpp")

void StringList::addStringItem(const std::string& item) {
  m_Elements.items.push_back(item);
}

const std::string& StringList::getStringItem(unsigned long index) const {
  if (index >= m_Elements.items.size())
    throw std::out_of_range("vector");
  return m_Elements.items[index];
}

unsigned long StringList::getSize() const { return m_Elements.items.size(); }

unsigned long StringList::find(const std::string& item) const {
  const std::vector<std::string>& items = m_Elements.items;
  for (unsigned long i = 0; i < items.size(); ++i)
    if (items[i] == item)
      return i;
  return static_cast<unsigned long>(-1);
}

} // namespace DbgData
} // namespace Vemo
