// How the debugger handles the operating-system signals of the debuggee.
#ifndef DBGDATA_SIGNALDATA_H
#define DBGDATA_SIGNALDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// Content header of the signal list; it has no fields of its own.
class SignalListContent : public DataElement {
  DD_DATA_CLASS(SignalListContent, DataElement)
};

// One signal: whether the debugger stops on it, reports it and passes it on
// to the program, and whether it has occurred.
class SignalItem : public DataElement {
  DD_DATA_CLASS(SignalItem, DataElement)

  virtual const std::string& getName() const { return m_Name; }
  virtual void setName(const std::string& v) { m_Name = v; }
  virtual bool getStop() const { return m_Stop; }
  virtual void setStop(bool v) { m_Stop = v; }
  virtual bool getPrint() const { return m_Print; }
  virtual void setPrint(bool v) { m_Print = v; }
  virtual bool getPassToProg() const { return m_PassToProg; }
  virtual void setPassToProg(bool v) { m_PassToProg = v; }
  virtual const std::string& getDescription() const { return m_Description; }
  virtual void setDescription(const std::string& v) { m_Description = v; }
  // The user may not change how this signal is handled.
  virtual bool getReadOnly() const { return m_ReadOnly; }
  virtual void setReadOnly(bool v) { m_ReadOnly = v; }
  virtual bool hasTriggered() const { return m_Triggered; }
  virtual void setTriggered(bool v) { m_Triggered = v; }

private:
  std::string m_Name; // such as "SIGINT"
  bool m_Stop = false;
  bool m_Print = false;
  bool m_PassToProg = false;
  std::string m_Description;
  bool m_ReadOnly = false;
  bool m_Triggered = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
