#include "eventsdata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor> void Events::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(Events, "src/eventsdata.cpp")

} // namespace DbgData
} // namespace Vemo
