#include "rootdata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor> void Root::describeFields(FieldVisitor& field) {
  field("DbgName", &Root::m_DbgName);
  field("DbgVersion", &Root::m_DbgVersion);
  field("DbgType", &Root::m_DbgType);
  field("DbgCopyright", &Root::m_DbgCopyright);
  field("Dbg3rdPartyCopyright", &Root::m_Dbg3rdPartyCopyright);
  field("DefHelpfile", &Root::m_DefHelpfile);
}
DD_DATA_CLASS_IMPL(Root, "src/rootdata.cpp")

} // namespace DbgData
} // namespace Vemo
