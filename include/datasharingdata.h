// Data-sharing analysis: the engine watches memory accesses that several
// threads make to the same data. The switch of the analysis, the user's
// filters and one reported access.
#ifndef DBGDATA_DATASHARINGDATA_H
#define DBGDATA_DATASHARINGDATA_H

#include "dataclass.h"
#include "debuggeedata.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// The enumerators besides the default belong to the engine protocol; the
// library stores and transports the values as ints.
enum DataSharingFilterType : std::int32_t { DataSharingFilterType_None = 0 };
enum DataSharingFilterState : std::int32_t { DataSharingFilterState_None = 0 };
enum DataSharingCodeFilterType : std::int32_t {
  DataSharingCodeFilterType_None = 0
};
enum DataAccess : std::int32_t { DataAccess_None = 0 };

// Switches the analysis on and off.
class DataSharingConfig : public DataElement {
  DD_DATA_CLASS(DataSharingConfig, DataElement)

  bool isEnabled() const { return m_Enabled; }
  bool isDisabled() const { return !m_Enabled; }
  void setEnabled(bool v) { m_Enabled = v; }
  bool isStopOnEvent() const { return m_StopOnEvent; }
  void setStopOnEvent(bool v) { m_StopOnEvent = v; }
  bool isReset() const { return m_Reset; }
  void setReset(bool v) { m_Reset = v; }

private:
  bool m_Enabled = false;
  bool m_StopOnEvent = true;
  bool m_Reset = false;
};

// One user filter: restricts the analysis to an address range, an
// expression range or code.
class DataSharingFilterItem : public DataElement {
  DD_DATA_CLASS(DataSharingFilterItem, DataElement)

  int getId() const { return m_Id; }
  void setId(int v) { m_Id = v; }
  DataSharingFilterType getType() const { return m_Type; }
  void setType(DataSharingFilterType v) { m_Type = v; }
  DataSharingFilterState getState() const { return m_State; }
  void setState(DataSharingFilterState v) { m_State = v; }
  const std::string& getDisplayText() const { return m_DisplayText; }
  void setDisplayText(const std::string& v) { m_DisplayText = v; }
  const Address& getStartAddress() const { return m_StartAddress; }
  void setStartAddress(const Address& v) { m_StartAddress = v; }
  const Address& getEndAddress() const { return m_EndAddress; }
  void setEndAddress(const Address& v) { m_EndAddress = v; }
  const std::string& getStartExpression() const { return m_StartExpression; }
  void setStartExpression(const std::string& v) { m_StartExpression = v; }
  const std::string& getEndExpression() const { return m_EndExpression; }
  void setEndExpression(const std::string& v) { m_EndExpression = v; }
  int getByteCount() const { return m_ByteCount; }
  void setByteCount(const int& v) { m_ByteCount = v; }
  bool getUseSizeOf() const { return m_UseSizeOf; }
  void setUseSizeOf(const bool& v) { m_UseSizeOf = v; }
  DataSharingCodeFilterType getCodeFilterType() const {
    return m_CodeFilterType;
  }
  void setCodeFilterType(const DataSharingCodeFilterType& v) {
    m_CodeFilterType = v;
  }

private:
  int m_Id = -1;
  DataSharingFilterType m_Type = DataSharingFilterType_None;
  DataSharingFilterState m_State = DataSharingFilterState_None;
  std::string m_DisplayText;
  Address m_StartAddress;
  Address m_EndAddress;
  std::string m_StartExpression;
  std::string m_EndExpression;
  int m_ByteCount = 0;
  bool m_UseSizeOf = false;
  DataSharingCodeFilterType m_CodeFilterType = DataSharingCodeFilterType_None;
};

// One reported access: which thread, what kind of access, to which symbol
// and address, from which function and source file. The place of the access
// is the thread's own location and scope.
class DataAccessItem : public DataElement {
  DD_DATA_CLASS(DataAccessItem, DataElement)

  const ThreadItem& getThread() const { return m_Thread.get(); }
  // Copies the thread's fields into the item's own thread object, which
  // stays the same; the given thread's class name, sub key and engine data
  // are not taken over.
  void setThread(const ThreadItem& thread);

  // Views onto the thread's location and the parts of its scope.
  const std::string& getAccessLocation() const {
    return getThread().getLocation();
  }
  const Address& getAccessLocationAddress() const {
    return getThread().getScope().getAddress();
  }
  void setAccessLocationAddress(const Address& address);
  const DbgDataKey& getAccessLocationSrcFullKey() const {
    return getThread().getScope().getKey();
  }
  void setAccessLocationSrcFullKey(const DbgDataKey& key);
  unsigned long getAccessLocationSrcLine() const {
    return getThread().getScope().getNumber1();
  }
  void setAccessLocationSrcLine(unsigned long line);
  unsigned long getAccessLocationSrcColumn() const {
    return getThread().getScope().getNumber2();
  }
  // Named so, unlike its getter.
  void setSrcAccessLocationColumn(unsigned long column);

  DataAccess getAccess() const { return m_Access; }
  void setAccess(DataAccess v) { m_Access = v; }
  const std::string& getSymbol() const { return m_Symbol; }
  void setSymbol(const std::string& v) { m_Symbol = v; }
  const Address& getAddress() const { return m_Address; }
  void setAddress(const Address& v) { m_Address = v; }
  const std::string& getFunctionName() const { return m_FunctionName; }
  void setFunctionName(const std::string& v) { m_FunctionName = v; }
  const std::string& getSrcFileName() const { return m_SrcFileName; }
  void setSrcFileName(const std::string& v) { m_SrcFileName = v; }

private:
  // The item's thread: a ThreadItem made by the factory with the item and
  // freed with it. It travels as the thread's own sixteen keys, flat in the
  // item's section; copying copies those fields into the target's own
  // thread, and comparison compares them (the rest of a ThreadItem, its
  // class name and empty sub key, is the same in every item).
  class OwnedThread {
  public:
    OwnedThread();
    ~OwnedThread();
    OwnedThread(const OwnedThread&) = delete;
    OwnedThread& operator=(const OwnedThread&) = delete;

    const ThreadItem& get() const { return *m_thread; }
    ThreadItem& get() { return *m_thread; }

    // The field's key is not written: the thread writes its own keys.
    // ThreadItem's fields have no copy asymmetries, so clone and assignment
    // copy them alike.
    friend bool writeValue(ISerializerHelper* writer, const std::string&,
                           const OwnedThread& thread) {
      return DataClassOps<ThreadItem>::writeFields(thread.get(), writer);
    }
    friend bool readValue(IDeserializerHelper* reader, const std::string&,
                          OwnedThread& thread) {
      return DataClassOps<ThreadItem>::readFields(thread.get(), reader);
    }
    friend void copyValue(OwnedThread& target, const OwnedThread& source) {
      DataClassOps<ThreadItem>::copyFields(target.get(), source.get(), false);
    }
    friend bool operator==(const OwnedThread& left, const OwnedThread& right) {
      return DataClassOps<ThreadItem>::fieldsEqual(left.get(), right.get());
    }

  private:
    ThreadItem* const m_thread;
  };

  // Changes the thread's scope through a copy (the thread has no setters of
  // the scope's parts).
  template <class Change> void changeThreadScope(Change change);

  OwnedThread m_Thread;
  DataAccess m_Access = DataAccess_None;
  std::string m_Symbol;
  Address m_Address;
  std::string m_FunctionName;
  std::string m_SrcFileName;
};

} // namespace DbgData
} // namespace Vemo

#endif
