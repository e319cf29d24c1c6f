// User-defined tool-bar buttons.
#ifndef DBGDATA_USERTOOLBARDATA_H
#define DBGDATA_USERTOOLBARDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// One button: its label, the debugger command(s) it runs and its tool tip.
// Line feeds in Command and ToolTip are written as "&#10;", and every
// "&#10;" read back becomes a line feed, also one the user typed as text.
class UserToolBarItem : public DataElement {
  DD_DATA_CLASS(UserToolBarItem, DataElement)

  virtual const std::string& getName() const { return m_Name; }
  virtual const std::string& getCommand() const { return m_Command; }
  virtual const std::string& getToolTip() const { return m_ToolTip; }
  // The command takes arguments.
  virtual bool hasArguments() const { return m_Arguments; }
  // The command runs at once.
  virtual bool isExecute() const { return m_Execute; }
  virtual void setName(const std::string& v) { m_Name = v; }
  virtual void setCommand(const std::string& v) { m_Command = v; }
  virtual void setToolTip(const std::string& v) { m_ToolTip = v; }
  // Arguments can only be switched on: only reading a record or a new item
  // clears it, and clone and assignment only ever set it.
  virtual void setArguments() { m_Arguments = true; }
  virtual void setExecute(bool v) { m_Execute = v; }

private:
  std::string m_Name;
  std::string m_Command;
  std::string m_ToolTip;
  bool m_Arguments = false;
  bool m_Execute = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
