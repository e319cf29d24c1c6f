#include "reasondata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void StateStoppedReason::describeFields(FieldVisitor& field) {
  field("StateStoppedReason", &StateStoppedReason::m_StateStoppedReason);
}
DD_DATA_CLASS_IMPL(StateStoppedReason, "src/reasondata.cpp")

} // namespace DbgData
} // namespace Vemo
