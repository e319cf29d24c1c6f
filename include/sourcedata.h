// The debuggee's source files: the source list's content header, one item
// per source file with a value per line, and single source locations.
#ifndef DBGDATA_SOURCEDATA_H
#define DBGDATA_SOURCEDATA_H

#include "dataclass.h"

#include <vector>

namespace Vemo {
namespace DbgData {

// Content header of a source list; it has no fields of its own.
class SourceListContent : public DataElement {
  DD_DATA_CLASS(SourceListContent, DataElement)
};

// One opaque 64-bit value per source line, supplied by the engine. Written
// as hex text: 16 upper-case digits per value, its bytes least significant
// first; nothing at all when there are no lines.
struct SourceLineValues {
  std::vector<unsigned long> values;

  bool operator==(const SourceLineValues& other) const {
    return values == other.values;
  }
  // The hex text of the values ("" for none).
  std::string toHex() const;
  // Sets count values from hex text; see SourceItem::deserializeMembers for
  // the treatment of a text that does not match count.
  bool assignHex(const std::string& text, unsigned long count);
};
bool writeValue(ISerializerHelper* writer, const std::string& key,
                const SourceLineValues& lines);

// A source file: its name, whether it is valid, and one value per line.
// Lines are numbered from 1; reading a line outside 1 to NoOfLines answers
// 0 and writing one is ignored.
class SourceItem : public DataElement {
  DD_DATA_CLASS(SourceItem, DataElement)

  // NoOfLines values above this must be backed by the text read with them.
  static constexpr unsigned long kUnbackedLinesLimit = 65536;

  bool getValid() const { return m_Valid; }
  void setValid(bool v) { m_Valid = v; }
  const std::string& getSourceFileName() const { return m_SourceFileName; }
  void setSourceFileName(const std::string& v) { m_SourceFileName = v; }
  unsigned long getNoOfLines() const { return m_NoOfLines; }
  // Resizes the line values: new lines are 0, surplus lines are dropped.
  void setNoOfLines(unsigned long count) {
    m_NoOfLines = count;
    m_LineValues.values.resize(count);
  }
  unsigned long getLineValue(unsigned long line) const {
    return line >= 1 && line <= m_NoOfLines ? m_LineValues.values[line - 1] : 0;
  }
  void setLineValue(unsigned long line, unsigned long value) {
    if (line >= 1 && line <= m_NoOfLines)
      m_LineValues.values[line - 1] = value;
  }

private:
  bool m_Valid = false;
  std::string m_SourceFileName;
  unsigned long m_NoOfLines = 0; // always m_LineValues.values.size()
  SourceLineValues m_LineValues;
};

// A single source location.
class SourceScope : public DataElement {
  DD_DATA_CLASS(SourceScope, DataElement)

  const Scope& getLocation() const { return m_Location; }
  void setLocation(const Scope& v) { m_Location = v; }
  DD_SCOPE_POSITION_ACCESSORS(m_Location)

private:
  Scope m_Location;
};

} // namespace DbgData
} // namespace Vemo

#endif
