// StateStoppedReason: why the debuggee last stopped.
#ifndef DBGDATA_REASONDATA_H
#define DBGDATA_REASONDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// The enumerators belong to the engine protocol; the library stores and
// transports the value as an int.
enum StateStoppedReasonKind : std::int32_t { StateStoppedReason_Undefined = 0 };

class StateStoppedReason : public DataElement {
  DD_DATA_CLASS(StateStoppedReason, DataElement)

  StateStoppedReasonKind getStateStoppedReason() const {
    return m_StateStoppedReason;
  }
  void setStateStoppedReason(StateStoppedReasonKind v) {
    m_StateStoppedReason = v;
  }

private:
  StateStoppedReasonKind m_StateStoppedReason = StateStoppedReason_Undefined;
};

} // namespace DbgData
} // namespace Vemo

#endif
