// Monitored re-entrant call sites.
#ifndef DBGDATA_REENTRANTCALLINFO_H
#define DBGDATA_REENTRANTCALLINFO_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// One call site watched for re-entrant calls. The factory makes it for the
// class name "ReEntrantCallInfo".
class ReEntrantCallItem : public DataElement {
  DD_DATA_CLASS(ReEntrantCallItem, DataElement)

  const std::string& getAddressText() const { return m_AddressText; }
  void setAddressText(const std::string& v) { m_AddressText = v; }
  bool getEnableDetection() const { return m_EnableDetection; }
  void setEnableDetection(bool v) { m_EnableDetection = v; }

private:
  std::string m_AddressText;
  bool m_EnableDetection = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
