// Target memory: the memory list's content header, blocks of memory with
// their address, and addresses with an access size.
#ifndef DBGDATA_MEMORYDATA_H
#define DBGDATA_MEMORYDATA_H

#include "dataclass.h"

#include <cstdint>

namespace Vemo {
namespace DbgData {

// Width of one memory access. The enumerators belong to the engine
// protocol; the library stores and transports the value as an int.
enum AccessSize : std::int32_t { AccessSize_Default = 1 };

// Content header of a memory list; it has no fields of its own.
class MemoryListContent : public DataElement {
  DD_DATA_CLASS(MemoryListContent, DataElement)
};

// One block of target memory: a copy of its bytes and where it starts.
// Two blocks of the same size at the same address are equal whatever their
// bytes.
class MemoryItem : public DataElement {
  DD_DATA_CLASS(MemoryItem, DataElement)

  // Null while the item holds no bytes.
  virtual const unsigned char* getByteArray() const {
    return m_ByteArray.data();
  }
  // Copies size bytes from data (the item never takes the caller's buffer);
  // size 0 leaves the item without bytes. The size changes only here.
  virtual void setByteArray(unsigned char* data, unsigned int size) {
    m_ByteArray.assign(data, size);
  }
  virtual const unsigned int& getArraySize() const {
    return m_ByteArray.size();
  }
  virtual const Address& getAddress() const { return m_Address; }
  virtual void setAddress(const Address& v) { m_Address = v; }

private:
  ByteArray m_ByteArray;
  Address m_Address;
};

// An address and the width of the accesses made at it.
class MemoryAddress : public DataElement {
  DD_DATA_CLASS(MemoryAddress, DataElement)

  virtual const Address& getAddress() const { return m_Address; }
  virtual void setAddress(const Address& v) { m_Address = v; }
  virtual const AccessSize& getAccessSize() const { return m_AccessSize; }
  virtual void setAccessSize(const AccessSize& v) { m_AccessSize = v; }
  DD_ADDRESS_PART_ACCESSORS(m_Address)

private:
  Address m_Address;
  AccessSize m_AccessSize = AccessSize_Default;
};

} // namespace DbgData
} // namespace Vemo

#endif
