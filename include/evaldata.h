// Expression evaluation (watch) views: the request, the result lines and the
// ZMT engine's own data of a line.
#ifndef DBGDATA_EVALDATA_H
#define DBGDATA_EVALDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// One evaluation request: the expression or symbol, the object it is
// relative to, the access size and the display format. The factory also
// makes it for the class name "LocalsRootContent".
class EvalRootContent : public DataElement {
  DD_DATA_CLASS(EvalRootContent, DataElement)

  unsigned long getEvalID() const { return m_EvalID; }
  void setEvalID(unsigned long v) { m_EvalID = v; }
  const std::string& getSymbol() const { return m_Symbol; }
  void setSymbol(const std::string& v) { m_Symbol = v; }
  unsigned long getBaseID() const { return m_BaseID; }
  void setBaseID(unsigned long v) { m_BaseID = v; }
  const std::string& getBaseSubKey() const { return m_BaseSubKey; }
  void setBaseSubKey(const std::string& v) { m_BaseSubKey = v; }
  unsigned long getAccessSize() const { return m_AccessSize; }
  void setAccessSize(unsigned long v) { m_AccessSize = v; }
  // A text, not a number.
  const std::string& getAsciiLength() const { return m_AsciiLength; }
  void setAsciiLength(const std::string& v) { m_AsciiLength = v; }
  unsigned long getFlags() const { return m_Flags; }
  void setFlags(unsigned long v) { m_Flags = v; }
  // ORs flags into Flags; clears nothing.
  void addFlags(unsigned long flags) { m_Flags |= flags; }
  const std::string& getWinID() const { return m_WinID; }
  void setWinID(const std::string& v) { m_WinID = v; }
  unsigned long getFormatFlags() const { return m_FormatFlags; }
  void setFormatFlags(unsigned long v) { m_FormatFlags = v; }

private:
  unsigned long m_EvalID = 0;
  std::string m_Symbol;
  unsigned long m_BaseID = 0;
  std::string m_BaseSubKey;
  unsigned long m_AccessSize = 1;
  std::string m_AsciiLength;
  unsigned long m_Flags = 0;
  std::string m_WinID;
  unsigned long m_FormatFlags = 0x80;
};

// One displayed line of an evaluation result. The factory also makes it for
// the class name "LocalsLineContent".
class EvalLineContent : public DataElement {
  DD_DATA_CLASS(EvalLineContent, DataElement)

  const std::string& getExpression() const { return m_Expression; }
  void setExpression(const std::string& v) { m_Expression = v; }
  const std::string& getName() const { return m_Name; }
  void setName(const std::string& v) { m_Name = v; }
  const std::string& getValue() const { return m_Value; }
  void setValue(const std::string& v) { m_Value = v; }
  const std::string& getHexValue() const { return m_HexValue; }
  void setHexValue(const std::string& v) { m_HexValue = v; }
  const std::string& getType() const { return m_Type; }
  void setType(const std::string& v) { m_Type = v; }
  // The text the user modifies the value to; written as "ModValue".
  const std::string& getModifyValue() const { return m_ModifyValue; }
  void setModifyValue(const std::string& v) { m_ModifyValue = v; }
  unsigned long getFlags() const { return m_Flags; }
  void setFlags(unsigned long v) { m_Flags = v; }
  unsigned long getFormatFlags() const { return m_FormatFlags; }
  void setFormatFlags(unsigned long v) { m_FormatFlags = v; }
  long getFrameId() const { return m_FrameId; }
  void setFrameId(long v) { m_FrameId = v; }

private:
  std::string m_Expression;
  std::string m_Name;
  std::string m_Value;
  std::string m_HexValue;
  std::string m_Type;
  std::string m_ModifyValue;
  unsigned long m_Flags = 0;
  unsigned long m_FormatFlags = 0x80;
  long m_FrameId = 0;
};

// The ZMT engine's data attached to an evaluation line.
class EvalLineInternalZMT : public DataElement {
  DD_DATA_CLASS(EvalLineInternalZMT, DataElement)

  long getEvalID() const { return m_EvalID; }
  void setEvalID(long v) { m_EvalID = v; }
  // An opaque value of the engine, wide enough for a pointer.
  unsigned long long getPUser() const { return m_PUser; }
  void setPUser(unsigned long long v) { m_PUser = v; }

private:
  long m_EvalID = 0;
  unsigned long long m_PUser = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
