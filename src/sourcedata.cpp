#include "sourcedata.h"

#include <algorithm>

namespace Vemo {
namespace DbgData {

static_assert(sizeof(unsigned long) == 8,
              "line values travel as 64-bit numbers");

namespace {
const std::size_t kDigitsPerLine = 16; // 8 bytes, two digits each
} // namespace

std::string SourceLineValues::toHex() const {
  // Digits straight from the codec's table: the bytes of a value are not
  // laid out in memory anywhere, so there is no buffer to convert.
  std::string text(kDigitsPerLine * values.size(), '0');
  char* out = &text[0];
  for (const unsigned long value : values) {
    for (unsigned shift = 0; shift < 64; shift += 8) {
      const unsigned byte = (value >> shift) & 0xFF;
      *out++ = HexDumpHelper::_hexmap[byte >> 4];
      *out++ = HexDumpHelper::_hexmap[byte & 0x0F];
    }
  }
  return text;
}

bool SourceLineValues::assignHex(const std::string& text, unsigned long count) {
  values.clear();
  // A count beyond the limit allocates only what the text backs; written as
  // a division so that no count can overflow the product.
  if (count > SourceItem::kUnbackedLinesLimit &&
      text.size() / kDigitsPerLine < count)
    return false;
  values.assign(count, 0);
  // An odd text is not decoded at all; a short one fills the lines it
  // reaches (a partial last value takes the bytes there are); digits beyond
  // count values are ignored.
  if (text.size() % 2 != 0)
    return false;
  const std::size_t usable = std::min<std::size_t>(
      text.size(), kDigitsPerLine * static_cast<std::size_t>(count));
  for (std::size_t line = 0; kDigitsPerLine * line < usable; ++line) {
    const std::size_t first = kDigitsPerLine * line;
    unsigned char bytes[8] = {};
    HexDumpHelper::convertHexToBin(
        text.data() + first, std::min(kDigitsPerLine, usable - first), bytes);
    unsigned long value = 0;
    for (int byte = 7; byte >= 0; --byte)
      value = value << 8 | bytes[byte];
    values[line] = value;
  }
  return usable == kDigitsPerLine * static_cast<std::size_t>(count);
}

bool writeValue(ISerializerHelper* writer, const std::string& key,
                const SourceLineValues& lines) {
  // No lines, no key.
  return lines.values.empty() || writer->setString(key, lines.toHex());
}

template <class FieldVisitor>
void SourceListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(SourceListContent, "src/sourcedata.cpp")

// Clone copies only SourceFileName through the table; the rest of a clone is
// written out in cloneMembers below.
template <class FieldVisitor>
void SourceItem::describeFields(FieldVisitor& field) {
  field("SourceFileName", &SourceItem::m_SourceFileName);
  field("NoOfLines", &SourceItem::m_NoOfLines, Field::notCloned);
  field("Valid", &SourceItem::m_Valid, Field::notCloned);
  field("ByteArray", &SourceItem::m_LineValues, Field::notCloned);
}
DD_DEFINE_IDENTITY(SourceItem, SourceItem::BaseClass)
DD_IMPL_ASSIGN(SourceItem, "src/sourcedata.cpp")
DD_IMPL_EQUALS(SourceItem)
DD_IMPL_SERIALIZE_MEMBERS(SourceItem)
DD_BIND_CLASS_ROW(DDID_SourceItem, SourceItem)

// Written by hand because a clone is deliberately not a full copy (unlike
// assignment): after the table's SourceFileName, the line count is set only
// when it differs, and the lines are copied through the 1-based accessors
// from line 0 up to, but not including, line NoOfLines. Line 0 is out of
// range, so the last line is never copied and a fresh clone holds 0 there.
// Valid is not copied: the clone keeps its own.
void SourceItem::cloneMembers(DebuggerData* target) const {
  DataClassOps<SourceItem>::cloneMembers(*this, target);
  if (!target || !target->isKindOf(staticRtti()))
    return;
  SourceItem& copy = static_cast<SourceItem&>(*target);
  if (copy.getNoOfLines() != getNoOfLines())
    copy.setNoOfLines(getNoOfLines());
  for (unsigned long line = 0; line < getNoOfLines(); ++line)
    copy.setLineValue(line, getLineValue(line));
}

// Written by hand because NoOfLines, read before Valid, decides whether the
// "ByteArray" text after Valid is read and how many values it holds. Every
// key is read whatever happened to the others. A missing or short text
// leaves the lines it does not reach at 0 and answers false; a NoOfLines
// above kUnbackedLinesLimit that its text does not back is refused (false,
// no lines), so a count from outside never allocates more than the
// document holds.
bool SourceItem::deserializeMembers(IDeserializerHelper* reader) {
  bool result = BaseClass::deserializeMembers(reader);
  result = readValue(reader, "SourceFileName", m_SourceFileName) && result;
  unsigned long count = 0;
  result = readValue(reader, "NoOfLines", count) && result;
  result = readValue(reader, "Valid", m_Valid) && result;
  if (count == 0) {
    setNoOfLines(0);
    return result;
  }
  std::string text;
  const bool found = readValue(reader, "ByteArray", text);
  const bool decoded = m_LineValues.assignHex(text, count);
  m_NoOfLines = m_LineValues.values.size();
  return found && decoded && result;
}

// Address, source key, line and column travel inside "Location".
template <class FieldVisitor>
void SourceScope::describeFields(FieldVisitor& field) {
  field("Location", &SourceScope::m_Location);
}
DD_DATA_CLASS_IMPL(SourceScope, "src/sourcedata.cpp")

} // namespace DbgData
} // namespace Vemo
