#include "processinfodata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void ProcessInfoListContent::describeFields(FieldVisitor& field) {
  field("DescriptionHeader", &ProcessInfoListContent::m_DescriptionHeader);
}
DD_DATA_CLASS_IMPL(ProcessInfoListContent, "src/processinfodata.cpp")

template <class FieldVisitor>
void ProcessInfoItem::describeFields(FieldVisitor& field) {
  field("Command", &ProcessInfoItem::m_Command);
  field("PID", &ProcessInfoItem::m_PID);
  field("Description", &ProcessInfoItem::m_Description);
  field("Attached", &ProcessInfoItem::m_Attached);
}
DD_DATA_CLASS_IMPL(ProcessInfoItem, "src/processinfodata.cpp")

} // namespace DbgData
} // namespace Vemo
