// Register pages (groups) and registers.
#ifndef DBGDATA_REGISTERDATA_H
#define DBGDATA_REGISTERDATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

class RegisterGroup : public DataElement {
  DD_DATA_CLASS(RegisterGroup, DataElement)

  const std::string& getName() const { return m_Name; }
  void setName(const std::string& v) { m_Name = v; }

private:
  std::string m_Name;
};

// One register. Its value travels as text already formatted by the engine;
// Type is a register type code and Flags a bit set, both owned by the engine.
class RegisterItem : public DataElement {
  DD_DATA_CLASS(RegisterItem, DataElement)

  const std::string& getName() const { return m_Name; }
  void setName(const std::string& v) { m_Name = v; }
  const std::string& getValue() const { return m_Value; }
  void setValue(const std::string& v) { m_Value = v; }
  const std::string& getDescription() const { return m_Description; }
  void setDescription(const std::string& v) { m_Description = v; }
  const std::string& getExpression() const { return m_Expression; }
  void setExpression(const std::string& v) { m_Expression = v; }
  int getType() const { return m_Type; }
  void setType(int v) { m_Type = v; }
  int getFlags() const { return m_Flags; }
  void setFlags(int v) { m_Flags = v; }

  // Width in bits of a register of this Type code.
  unsigned int getBitSize() const;

private:
  std::string m_Name;
  std::string m_Value;
  std::string m_Description;
  std::string m_Expression;
  int m_Type = 0;
  int m_Flags = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
