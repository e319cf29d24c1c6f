#include "symboltoken.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor>
void SymbolToken::describeFields(FieldVisitor& field) {
  field("TokenType", &SymbolToken::m_TokenType);
  field("DisplayText", &SymbolToken::m_DisplayText);
  field("Parameters", &SymbolToken::m_Parameters);
}
DD_DATA_CLASS_IMPL(SymbolToken, "src/symboltoken.cpp")

} // namespace DbgData
} // namespace Vemo
