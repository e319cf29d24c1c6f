// A disassembly view: the request, the list's content header and the lines.
#ifndef DBGDATA_DISASSEMBLERDATA_H
#define DBGDATA_DISASSEMBLERDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// How source lines are interleaved with the disassembly. The enumerators
// belong to the engine protocol; the library transports the value as an
// unsigned int.
enum DasmSrcAnnotation : std::int32_t { DasmSrcAnnotation_Default = 0 };

// Kind of a disassembly request. The enumerators belong to the engine
// protocol; the library transports the value as an unsigned int.
enum RequestType : std::int32_t { RequestType_Default = 3 };

// Content header of a disassembly list: where the listing starts and how
// source lines are interleaved.
class DisAsmListContent : public DataElement {
  DD_DATA_CLASS(DisAsmListContent, DataElement)

  DasmSrcAnnotation getSrcAnnotationMode() const { return m_SrcAnnotationMode; }
  void setSrcAnnotationMode(DasmSrcAnnotation v) { m_SrcAnnotationMode = v; }
  const Address& getAddress() const { return m_Address; }
  void setAddress(const Address& v) { m_Address = v; }
  DD_ADDRESS_PART_ACCESSORS(m_Address)

private:
  DasmSrcAnnotation m_SrcAnnotationMode = DasmSrcAnnotation_Default;
  Address m_Address;
};

// One line of a disassembly listing. Its address and source position are
// parts of its Scope.
class DisAsmItem : public DataElement {
  DD_DATA_CLASS(DisAsmItem, DataElement)

  unsigned long getFlags() const { return m_Flags; }
  void setFlags(unsigned long v) { m_Flags = v; }
  // ORs flags into Flags.
  void addFlag(unsigned long flags) { m_Flags |= flags; }
  const Scope& getScope() const { return m_Scope; }
  void setScope(const Scope& v) { m_Scope = v; }
  const std::string& getAddressText() const { return m_AddressText; }
  void setAddressText(const std::string& v) { m_AddressText = v; }
  const std::string& getSourceText() const { return m_SourceText; }
  void setSourceText(const std::string& v) { m_SourceText = v; }
  const std::string& getOpcodeText() const { return m_OpcodeText; }
  void setOpcodeText(const std::string& v) { m_OpcodeText = v; }
  const std::string& getSymbolText() const { return m_SymbolText; }
  void setSymbolText(const std::string& v) { m_SymbolText = v; }
  DD_SCOPE_POSITION_ACCESSORS(m_Scope)

private:
  unsigned long m_Flags = 0;
  Scope m_Scope;
  std::string m_AddressText;
  std::string m_SourceText;
  std::string m_OpcodeText;
  std::string m_SymbolText;
};

// A disassembly request: from which address, what kind, how many lines and
// with which flags.
class DisAsmConfig : public DataElement {
  DD_DATA_CLASS(DisAsmConfig, DataElement)

  const Address& getAddress() const { return m_Address; }
  void setAddress(const Address& v) { m_Address = v; }
  const RequestType& getRequestType() const { return m_RequestType; }
  void setRequestType(const RequestType& v) { m_RequestType = v; }
  int getAmount() const { return m_Amount; }
  void setAmount(int v) { m_Amount = v; }
  unsigned long getFlags() const { return m_Flags; }
  void setFlags(unsigned long v) { m_Flags = v; }
  // ORs flags into Flags.
  void addFlag(unsigned long flags) { m_Flags |= flags; }
  DD_ADDRESS_PART_ACCESSORS(m_Address)

private:
  Address m_Address;
  RequestType m_RequestType = RequestType_Default;
  int m_Amount = 0;
  unsigned long m_Flags = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
