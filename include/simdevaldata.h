// Evaluation of SIMD (vector) registers and expressions: the request
// settings, the header of an evaluation window, its rows and its cells.
#ifndef DBGDATA_SIMDEVALDATA_H
#define DBGDATA_SIMDEVALDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// What a SIMD request evaluates, how its elements are combined and how it
// iterates. The enumerators belong to the engine side; the library
// transports the values as unsigned ints.
enum SIMDRequestType : std::int32_t { SIMDRequestType_Default = 1 };
enum SIMDOperatorType : std::int32_t { SIMDOperatorType_Default = 2 };
enum SIMDIterationType : std::int32_t { SIMDIterationType_Default = 1 };

// The request settings of a SIMD evaluation.
class SIMDConfig : public DataElement {
  DD_DATA_CLASS(SIMDConfig, DataElement)

  virtual const SIMDRequestType& getRequestType() const {
    return m_RequestType;
  }
  virtual void setRequestType(const SIMDRequestType& v) { m_RequestType = v; }
  virtual const SIMDOperatorType& getOperatorType() const {
    return m_OperatorType;
  }
  virtual void setOperatorType(const SIMDOperatorType& v) {
    m_OperatorType = v;
  }
  virtual const SIMDIterationType& getIterationType() const {
    return m_IterationType;
  }
  virtual void setIterationType(const SIMDIterationType& v) {
    m_IterationType = v;
  }
  virtual const std::string& getIterationExpr() const {
    return m_IterationExpr;
  }
  virtual void setIterationExpr(const std::string& v) { m_IterationExpr = v; }

private:
  SIMDRequestType m_RequestType = SIMDRequestType_Default;
  SIMDOperatorType m_OperatorType = SIMDOperatorType_Default;
  SIMDIterationType m_IterationType = SIMDIterationType_Default;
  std::string m_IterationExpr;
};

// The header of one SIMD evaluation window: its id, geometry and format.
class SIMDEvalRootContent : public DataElement {
  DD_DATA_CLASS(SIMDEvalRootContent, DataElement)

  // Kind of the window. The enumerators belong to the user interface; the
  // default has all bits set and travels as an unsigned int.
  enum SIMDWndType : std::int32_t { SIMDWndType_Undefined = -1 };

  virtual unsigned long getEvalID() const { return m_EvalID; }
  virtual void setEvalID(unsigned long v) { m_EvalID = v; }
  virtual const std::string& getWinID() const { return m_WinID; }
  virtual void setWinID(const std::string& v) { m_WinID = v; }
  virtual const std::string& getInfo() const { return m_Info; }
  virtual void setInfo(const std::string& v) { m_Info = v; }
  virtual unsigned long getUnions() const { return m_Unions; }
  virtual void setUnions(unsigned long v) { m_Unions = v; }
  virtual const std::string& getAsciiLength() const { return m_AsciiLength; }
  virtual void setAsciiLength(const std::string& v) { m_AsciiLength = v; }
  virtual unsigned long getFlags() const { return m_Flags; }
  virtual void setFlags(unsigned long v) { m_Flags = v; }
  // ORs flags into Flags.
  virtual void addFlags(unsigned long flags) { m_Flags |= flags; }
  virtual unsigned long getFormatFlags() const { return m_FormatFlags; }
  virtual void setFormatFlags(unsigned long v) { m_FormatFlags = v; }
  virtual unsigned long getNumColumns() const { return m_NumColumns; }
  virtual void setNumColumns(unsigned long v) { m_NumColumns = v; }
  virtual unsigned long getNumRows() const { return m_NumRows; }
  virtual void setNumRows(unsigned long v) { m_NumRows = v; }
  virtual const SIMDWndType& getWindowType() const { return m_WindowType; }
  virtual void setWindowType(const SIMDWndType& v) { m_WindowType = v; }

private:
  unsigned long m_EvalID = 0;
  std::string m_WinID;
  std::string m_Info;
  unsigned long m_Unions = 4;
  std::string m_AsciiLength;
  unsigned long m_Flags = 0;
  unsigned long m_FormatFlags = 32;
  unsigned long m_NumColumns = 0;
  unsigned long m_NumRows = 0;
  SIMDWndType m_WindowType = SIMDWndType_Undefined;
};

// One row of a SIMD evaluation: an expression with its raw bytes.
class SIMDEvalRowContent : public DataElement {
  DD_DATA_CLASS(SIMDEvalRowContent, DataElement)

  virtual const std::string& getDisplayExpression() const {
    return m_DisplayExpression;
  }
  virtual void setDisplayExpression(const std::string& v) {
    m_DisplayExpression = v;
  }
  virtual const std::string& getEngineExpression() const {
    return m_EngineExpression;
  }
  virtual void setEngineExpression(const std::string& v) {
    m_EngineExpression = v;
  }
  virtual unsigned long getFlags() const { return m_Flags; }
  virtual void setFlags(unsigned long v) { m_Flags = v; }
  // ORs flags into Flags.
  virtual void addFlags(unsigned long flags) { m_Flags |= flags; }
  virtual unsigned long getFormatFlags() const { return m_FormatFlags; }
  virtual void setFormatFlags(unsigned long v) { m_FormatFlags = v; }
  virtual SIMDOperatorType getOperatorType() const { return m_OperatorType; }
  virtual void setOperatorType(SIMDOperatorType v) { m_OperatorType = v; }
  // The row's bytes (null when there are none) and their number. The
  // setter copies size bytes from data; there is no setter for the size
  // alone.
  virtual const unsigned char* getByteArray() const {
    return m_ByteArray.data();
  }
  virtual void setByteArray(const unsigned char* data, unsigned int size) {
    m_ByteArray.assign(data, size);
  }
  virtual const unsigned int& getArraySize() const {
    return m_ByteArray.size();
  }
  virtual int getEvalID() const { return m_EvalID; }
  virtual void setEvalID(int v) { m_EvalID = v; }
  // Bytes per vector element.
  virtual unsigned int getSizeOfArrayElement() const {
    return m_SizeOfArrayElement;
  }
  virtual void setSizeOfArrayElement(unsigned int v) {
    m_SizeOfArrayElement = v;
  }

private:
  std::string m_DisplayExpression;
  std::string m_EngineExpression;
  unsigned long m_Flags = 0;
  unsigned long m_FormatFlags = 32;
  SIMDOperatorType m_OperatorType = SIMDOperatorType_Default;
  ByteArray m_ByteArray;
  int m_EvalID = 0;
  unsigned int m_SizeOfArrayElement = 0;
};

// One cell of a SIMD evaluation.
class SIMDEvalItem : public DataElement {
  DD_DATA_CLASS(SIMDEvalItem, DataElement)

  virtual const std::string& getValue() const { return m_Value; }
  virtual void setValue(const std::string& v) { m_Value = v; }
  // The value typed by the user for modification; written as "ModValue".
  virtual const std::string& getModifyValue() const { return m_ModifyValue; }
  virtual void setModifyValue(const std::string& v) { m_ModifyValue = v; }
  virtual unsigned long getFlags() const { return m_Flags; }
  virtual void setFlags(unsigned long v) { m_Flags = v; }
  virtual unsigned long getFormatFlags() const { return m_FormatFlags; }
  virtual void setFormatFlags(unsigned long v) { m_FormatFlags = v; }
  virtual bool shouldHighlight() const { return m_Highlight; }
  virtual void setHighlight(bool v) { m_Highlight = v; }

private:
  std::string m_Value;
  std::string m_ModifyValue;
  unsigned long m_Flags = 0;
  unsigned long m_FormatFlags = 32;
  bool m_Highlight = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
