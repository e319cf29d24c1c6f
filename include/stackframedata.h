// A stopped thread's call stack: the list's content header and the frames.
#ifndef DBGDATA_STACKFRAMEDATA_H
#define DBGDATA_STACKFRAMEDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// Content header of a stack frame list; it has no fields of its own.
class StackFrameListContent : public DataElement {
  DD_DATA_CLASS(StackFrameListContent, DataElement)
};

class StackFrameItem : public DataElement {
  DD_DATA_CLASS(StackFrameItem, DataElement)

  // Copies the four fields through the setters, the engine data by clone.
  DebuggerData* clone() const override;

  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual const long& getFrameID() const { return m_FrameID; }
  virtual void setFrameID(const long& v) { m_FrameID = v; }
  virtual const Scope& getScope() const { return m_Scope; }
  virtual void setScope(const Scope& v) { m_Scope = v; }
  virtual bool hasBrkPoint() const { return m_HasBrkPoint; }
  virtual void setHasBrkPoint(bool v) { m_HasBrkPoint = v; }
  DD_SCOPE_POSITION_ACCESSORS(m_Scope)

private:
  long m_FrameID = 0;
  std::string m_DisplayText;
  Scope m_Scope;
  bool m_HasBrkPoint = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
