// A symbol passed with its display text and parameters.
#ifndef DBGDATA_SYMBOLTOKEN_H
#define DBGDATA_SYMBOLTOKEN_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

class SymbolToken : public DataElement {
  DD_DATA_CLASS(SymbolToken, DataElement)

  // Kind of the token. The enumerators belong to the engine protocol; the
  // library stores and transports the value as an int.
  enum _tokenType : std::int32_t { TokenType_Undefined = 0 };

  _tokenType getTokenType() const { return m_TokenType; }
  void setTokenType(_tokenType v) { m_TokenType = v; }
  const std::string& getDisplayText() const { return m_DisplayText; }
  void setDisplayText(const std::string& v) { m_DisplayText = v; }
  const std::string& getParameters() const { return m_Parameters; }
  void setParameters(const std::string& v) { m_Parameters = v; }

private:
  _tokenType m_TokenType = TokenType_Undefined;
  std::string m_DisplayText;
  std::string m_Parameters;
};

} // namespace DbgData
} // namespace Vemo

#endif
