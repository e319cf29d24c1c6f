// Breakpoints and watchpoints: the breakpoint list's content header, the
// engine-independent breakpoint record, and the engine-specific details
// that travel as a breakpoint's engine data.
#ifndef DBGDATA_BREAKPOINTDATA_H
#define DBGDATA_BREAKPOINTDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// The enumerators of these belong to the engine protocol; the library
// stores and transports the values as integers and never interprets them.
enum DDConditionStyle : std::int32_t { ConditionStyle_Default = 0 };
enum DDPassCountStyle : std::int32_t { PassCountStyle_Default = 0 };
enum WPAccess : std::int32_t { WPAccess_Default = 0 };
enum WPAccessKYR : std::int32_t { WPAccessKYR_Default = 0 };

// Content header of a breakpoint list; it has no fields of its own.
class BreakPointListContent : public DataElement {
  DD_DATA_CLASS(BreakPointListContent, DataElement)
};

// One breakpoint or watchpoint. Kind is a bit set: 0x1 code breakpoint,
// 0x2 data breakpoint (watchpoint), 0x4 synchronised (with 0x1), 0x8
// hardware (with 0x2). Whether a breakpoint is pending travels and is
// cloned, but two breakpoints differing only in it are equal.
class BreakPointItem : public DataElement {
  DD_DATA_CLASS(BreakPointItem, DataElement)

  virtual int getId() const { return m_Id; }
  virtual void setId(int v) { m_Id = v; }
  virtual unsigned long getKind() const { return m_Kind; }
  virtual void setKind(unsigned long v) { m_Kind = v; }
  virtual const Scope& getLocation() const { return m_Location; }
  virtual void setLocation(const Scope& v) { m_Location = v; }
  // The source position and address are parts of Location.
  virtual const DbgDataKey& getSrcFullKey() const {
    return m_Location.getKey();
  }
  virtual void setSrcFullKey(const DbgDataKey& v) { m_Location.setKey(v); }
  virtual unsigned int getSrcLine() const {
    return static_cast<unsigned int>(m_Location.getNumber1());
  }
  virtual void setSrcLine(unsigned int v) { m_Location.setNumber1(v); }
  virtual unsigned int getSrcColumn() const {
    return static_cast<unsigned int>(m_Location.getNumber2());
  }
  virtual void setSrcColumn(unsigned int v) { m_Location.setNumber2(v); }
  virtual const Address& getAddress() const { return m_Location.getAddress(); }
  virtual void setAddress(const Address& v) { m_Location.setAddress(v); }
  virtual const std::string& getCondition() const { return m_Condition; }
  virtual void setCondition(const std::string& v) { m_Condition = v; }
  virtual const std::string& getAction() const { return m_Action; }
  virtual void setAction(const std::string& v) { m_Action = v; }
  virtual bool getContinue() const { return m_Continue; }
  virtual void setContinue(bool v) { m_Continue = v; }
  virtual bool getEnabled() const { return m_Enabled; }
  virtual void setEnabled(bool v) { m_Enabled = v; }
  virtual bool getPending() const { return m_Pending; }
  virtual void setPending(bool v) { m_Pending = v; }
  virtual unsigned int getMaxSkips() const { return m_MaxSkips; }
  virtual void setMaxSkips(unsigned int v) { m_MaxSkips = v; }
  virtual unsigned int getCurSkips() const { return m_CurSkips; }
  virtual void setCurSkips(unsigned int v) { m_CurSkips = v; }
  virtual bool getTriggered() const { return m_Triggered; }
  virtual void setTriggered(bool v) { m_Triggered = v; }
  virtual DDConditionStyle getConditionStyle() const {
    return m_ConditionStyle;
  }
  virtual void setConditionStyle(DDConditionStyle v) { m_ConditionStyle = v; }
  virtual DDPassCountStyle getPassCountStyle() const {
    return m_PassCountStyle;
  }
  virtual void setPassCountStyle(DDPassCountStyle v) { m_PassCountStyle = v; }
  virtual const std::string& getDisplayText() const { return m_DisplayText; }
  virtual void setDisplayText(const std::string& v) { m_DisplayText = v; }
  virtual const std::string& getExpStr() const { return m_ExpStr; }
  virtual void setExpStr(const std::string& v) { m_ExpStr = v; }

  // Each predicate needs all of its bits: sync is code and 0x4, hardware
  // data is data and 0x8.
  virtual bool isCodeBreakPoint() const { return (m_Kind & 0x1) == 0x1; }
  virtual bool isDataBreakPoint() const { return (m_Kind & 0x2) == 0x2; }
  virtual bool isSyncBreakPoint() const { return (m_Kind & 0x5) == 0x5; }
  virtual bool isHWDataBreakPoint() const { return (m_Kind & 0xA) == 0xA; }
  // One more skip, whatever MaxSkips says (wraps at the top).
  virtual void incCurSkips() { ++m_CurSkips; }

private:
  int m_Id = -1;
  unsigned long m_Kind = 0;
  Scope m_Location;
  std::string m_Condition;
  std::string m_Action;
  bool m_Continue = false;
  bool m_Enabled = true;
  bool m_Pending = false;
  unsigned int m_MaxSkips = 0;
  unsigned int m_CurSkips = 0;
  std::string m_DisplayText;
  std::string m_ExpStr;
  bool m_Triggered = false;
  DDConditionStyle m_ConditionStyle = ConditionStyle_Default;
  DDPassCountStyle m_PassCountStyle = PassCountStyle_Default;
};

// Engine data of a code breakpoint for the ZMT engine.
class BreakPointInternalZMT : public DataElement {
  DD_DATA_CLASS(BreakPointInternalZMT, DataElement)

  virtual const std::string& getSymbolName() const { return m_SymbolName; }
  virtual void setSymbolName(const std::string& v) { m_SymbolName = v; }
  virtual bool getIsHardwareBP() const { return m_IsHardwareBP; }
  virtual void setIsHardwareBP(bool v) { m_IsHardwareBP = v; }
  virtual int getHardwareBPId() const { return m_HardwareBPId; }
  virtual void setHardwareBPId(int v) { m_HardwareBPId = v; }

private:
  std::string m_SymbolName;
  bool m_IsHardwareBP = false;
  int m_HardwareBPId = 0;
};

// Engine data of a code breakpoint for the KYR engine. Its own engine data,
// when the engine has resolved the breakpoint, is the list of locations: a
// DataList of SourceScope objects.
class BreakPointInternalKYR : public DataElement {
  DD_DATA_CLASS(BreakPointInternalKYR, DataElement)

  virtual bool getSynchronized() const { return m_Synchronized; }
  virtual void setSynchronized(bool v) { m_Synchronized = v; }
  virtual const std::string& getThreadFilter() const { return m_ThreadFilter; }
  virtual void setThreadFilter(const std::string& v) { m_ThreadFilter = v; }
  virtual const std::string& getStoppingThreads() const {
    return m_StoppingThreads;
  }
  virtual void setStoppingThreads(const std::string& v) {
    m_StoppingThreads = v;
  }

  // Whether one of the resolved locations is at address. The walk stops
  // with false at the first child that is missing or not a SourceScope.
  virtual bool locListContainsAddr(const Address& address) const;

private:
  bool m_Synchronized = false;
  std::string m_ThreadFilter;
  std::string m_StoppingThreads;
};

// Engine data of a data breakpoint for the ZMT engine. Length is text: the
// engine may give an expression.
class WatchPointInternalZMT : public DataElement {
  DD_DATA_CLASS(WatchPointInternalZMT, DataElement)

  virtual const std::string& getSymbolName() const { return m_SymbolName; }
  virtual void setSymbolName(const std::string& v) { m_SymbolName = v; }
  virtual WPAccess getAccess() const { return m_Access; }
  virtual void setAccess(WPAccess v) { m_Access = v; }
  virtual const std::string& getMask() const { return m_Mask; }
  virtual void setMask(const std::string& v) { m_Mask = v; }
  virtual int getOverlayID() const { return m_OverlayID; }
  virtual void setOverlayID(int v) { m_OverlayID = v; }
  virtual const std::string& getLength() const { return m_Length; }
  virtual void setLength(const std::string& v) { m_Length = v; }
  virtual bool getIsHardwareBP() const { return m_IsHardwareBP; }
  virtual void setIsHardwareBP(bool v) { m_IsHardwareBP = v; }
  virtual int getHardwareBPId() const { return m_HardwareBPId; }
  virtual void setHardwareBPId(int v) { m_HardwareBPId = v; }

private:
  std::string m_SymbolName;
  WPAccess m_Access = WPAccess_Default;
  std::string m_Mask;
  int m_OverlayID = 0;
  std::string m_Length;
  bool m_IsHardwareBP = false;
  int m_HardwareBPId = 0;
};

// Engine data of a data breakpoint for the KYR engine: a thread filter and a
// function scope where the ZMT form has a symbol name and a mask, and no
// hardware breakpoint id.
class WatchPointInternalKYR : public DataElement {
  DD_DATA_CLASS(WatchPointInternalKYR, DataElement)

  virtual const std::string& getThreadFilter() const { return m_ThreadFilter; }
  virtual void setThreadFilter(const std::string& v) { m_ThreadFilter = v; }
  virtual WPAccessKYR getAccess() const { return m_Access; }
  virtual void setAccess(WPAccessKYR v) { m_Access = v; }
  virtual const std::string& getWithinFunction() const {
    return m_WithinFunction;
  }
  virtual void setWithinFunction(const std::string& v) { m_WithinFunction = v; }
  virtual int getOverlayID() const { return m_OverlayID; }
  virtual void setOverlayID(int v) { m_OverlayID = v; }
  virtual const std::string& getLength() const { return m_Length; }
  virtual void setLength(const std::string& v) { m_Length = v; }
  virtual bool getIsHardwareBP() const { return m_IsHardwareBP; }
  virtual void setIsHardwareBP(bool v) { m_IsHardwareBP = v; }

private:
  std::string m_ThreadFilter;
  WPAccessKYR m_Access = WPAccessKYR_Default;
  std::string m_WithinFunction;
  int m_OverlayID = 0;
  std::string m_Length;
  bool m_IsHardwareBP = false;
};

} // namespace DbgData
} // namespace Vemo

#endif
