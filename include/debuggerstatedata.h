// The debugger's momentary state: the state node itself, the selected
// debuggee and the current execution state and location.
#ifndef DBGDATA_DEBUGGERSTATEDATA_H
#define DBGDATA_DEBUGGERSTATEDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// Execution state of the debuggee. The enumerators belong to the engine
// protocol; the library stores and transports the value as an int.
enum _ExecState : std::int32_t { ExecState_Undefined = 0 };

// Placeholder of the debugger-state section; its one member exists so that
// the node carries a serializable value.
class DebuggerState : public DataElement {
  DD_DATA_CLASS(DebuggerState, DataElement)

private:
  std::string m_DummyContent;
};

// The current selection, one sub key per level of the debuggee tree.
class ActiveDebuggee : public DataElement {
  DD_DATA_CLASS(ActiveDebuggee, DataElement)

  const std::string& getActiveParallelJob() const {
    return m_ActiveParallelJob;
  }
  void setActiveParallelJob(const std::string& v) { m_ActiveParallelJob = v; }
  const std::string& getActiveJob() const { return m_ActiveJob; }
  void setActiveJob(const std::string& v) { m_ActiveJob = v; }
  const std::string& getActiveProcess() const { return m_ActiveProcess; }
  void setActiveProcess(const std::string& v) { m_ActiveProcess = v; }
  const std::string& getActiveThread() const { return m_ActiveThread; }
  void setActiveThread(const std::string& v) { m_ActiveThread = v; }

private:
  std::string m_ActiveParallelJob;
  std::string m_ActiveJob;
  std::string m_ActiveProcess;
  std::string m_ActiveThread;
};

// The current execution state and code location.
class CurScope : public DataElement {
  DD_DATA_CLASS(CurScope, DataElement)

  virtual _ExecState getExecState() const { return m_ExecState; }
  virtual void setExecState(_ExecState v) { m_ExecState = v; }
  virtual const Scope& getLocation() const { return m_Location; }
  virtual void setLocation(const Scope& v) { m_Location = v; }
  DD_SCOPE_POSITION_ACCESSORS(m_Location)

private:
  _ExecState m_ExecState = ExecState_Undefined;
  Scope m_Location;
};

} // namespace DbgData
} // namespace Vemo

#endif
