// The processes the debugger could attach to.
#ifndef DBGDATA_PROCESSINFODATA_H
#define DBGDATA_PROCESSINFODATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// Content header of the process list.
class ProcessInfoListContent : public DataElement {
  DD_DATA_CLASS(ProcessInfoListContent, DataElement)

  // The column heading of the items' Description texts.
  const std::string& getDescriptionHeader() const {
    return m_DescriptionHeader;
  }
  void setDescriptionHeader(const std::string& v) { m_DescriptionHeader = v; }

private:
  std::string m_DescriptionHeader;
};

class ProcessInfoItem : public DataElement {
  DD_DATA_CLASS(ProcessInfoItem, DataElement)

  const std::string& getCommand() const { return m_Command; }
  void setCommand(const std::string& v) { m_Command = v; }
  const std::string& getPID() const { return m_PID; }
  void setPID(const std::string& v) { m_PID = v; }
  const std::string& getDescription() const { return m_Description; }
  void setDescription(const std::string& v) { m_Description = v; }
  bool getAttached() const { return m_Attached; }
  void setAttached(bool v) { m_Attached = v; }

private:
  std::string m_Command; // command line of the process
  std::string m_PID;     // process id as text
  std::string m_Description;
  bool m_Attached = false; // the debugger is attached to the process
};

} // namespace DbgData
} // namespace Vemo

#endif
