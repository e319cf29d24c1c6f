// Root: identity of the debugger product.
#ifndef DBGDATA_ROOTDATA_H
#define DBGDATA_ROOTDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

class Root : public DataElement {
  DD_DATA_CLASS(Root, DataElement)

  const std::string& getDbgName() const { return m_DbgName; }
  void setDbgName(const std::string& v) { m_DbgName = v; }
  const std::string& getDbgVersion() const { return m_DbgVersion; }
  void setDbgVersion(const std::string& v) { m_DbgVersion = v; }
  const std::string& getDbgType() const { return m_DbgType; }
  void setDbgType(const std::string& v) { m_DbgType = v; }
  const std::string& getDbgCopyright() const { return m_DbgCopyright; }
  void setDbgCopyright(const std::string& v) { m_DbgCopyright = v; }
  const std::string& getDbg3rdPartyCopyright() const {
    return m_Dbg3rdPartyCopyright;
  }
  void setDbg3rdPartyCopyright(const std::string& v) {
    m_Dbg3rdPartyCopyright = v;
  }
  const std::string& getDefHelpfile() const { return m_DefHelpfile; }
  void setDefHelpfile(const std::string& v) { m_DefHelpfile = v; }

private:
  std::string m_DbgName;
  std::string m_DbgVersion;
  std::string m_DbgType;
  std::string m_DbgCopyright;
  std::string m_Dbg3rdPartyCopyright;
  std::string m_DefHelpfile;
};

} // namespace DbgData
} // namespace Vemo

#endif
