// Events: the place of the debugger's events (breakpoints, watchpoints,
// signals) in the data hierarchy.
#ifndef DBGDATA_EVENTSDATA_H
#define DBGDATA_EVENTSDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// Has no fields of its own: it stands for its place in the hierarchy.
class Events : public DataElement {
  DD_DATA_CLASS(Events, DataElement)
};

} // namespace DbgData
} // namespace Vemo

#endif
