#include "sourcedata.h"

#include <algorithm>
#include <cstring>

namespace Vemo {
namespace DbgData {

static_assert(sizeof(unsigned long) == 8,
              "line values travel as 64-bit numbers");

namespace {

const std::size_t kBytesPerLine = 8;
const std::size_t kDigitsPerLine = 2 * kBytesPerLine;
// Lines converted per round through a stack buffer of their bytes: large
// enough that the codec's calls cost nothing per line, small enough to stay
// in the first-level cache.
const std::size_t kLinesPerRound = 256;

} // namespace

std::string SourceLineValues::toHex() const {
  // The bytes of the values are laid out, least significant first, a round
  // of lines at a time, and go through the codec's encoder straight into
  // the text.
  std::string text(kDigitsPerLine * values.size(), '0');
  char* out = &text[0];
  unsigned char bytes[kBytesPerLine * kLinesPerRound];
  for (std::size_t first = 0; first < values.size(); first += kLinesPerRound) {
    const std::size_t lines = std::min(kLinesPerRound, values.size() - first);
    unsigned char* byte = bytes;
    for (std::size_t line = first; line < first + lines; ++line) {
      const unsigned long value = values[line];
      for (unsigned shift = 0; shift < 64; shift += 8)
        *byte++ = static_cast<unsigned char>(value >> shift);
    }
    HexDumpHelper::encodeDigits(bytes, kBytesPerLine * lines, out);
    out += kDigitsPerLine * lines;
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
  const std::size_t reached = (usable + kDigitsPerLine - 1) / kDigitsPerLine;
  // A round of lines at a time: their digits decoded into a stack buffer
  // (zeros after a partial last value), then assembled into values.
  unsigned char bytes[kBytesPerLine * kLinesPerRound];
  for (std::size_t first = 0; first < reached; first += kLinesPerRound) {
    const std::size_t lines = std::min(kLinesPerRound, reached - first);
    const std::size_t digits =
        std::min(kDigitsPerLine * lines, usable - kDigitsPerLine * first);
    std::memset(bytes + digits / 2, 0, kBytesPerLine * lines - digits / 2);
    HexDumpHelper::convertHexToBin(text.data() + kDigitsPerLine * first, digits,
                                   bytes);
    const unsigned char* byte = bytes;
    for (std::size_t line = first; line < first + lines; ++line) {
      unsigned long value = 0;
      for (int k = static_cast<int>(kBytesPerLine) - 1; k >= 0; --k)
        value = value << 8 | byte[k];
      values[line] = value;
      byte += kBytesPerLine;
    }
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
