// HexDumpHelper: the codec for byte arrays in serialized records, and
// ByteArray, the owned byte buffer that data classes carry.
#ifndef DBGDATA_HEXDUMPHELPER_H
#define DBGDATA_HEXDUMPHELPER_H

#include <cstddef>
#include <memory>
#include <string>

namespace Vemo {
namespace DbgData {

class HexDumpHelper {
public:
  // Nibble value to upper-case hex digit.
  static const char _hexmap[16];
  // Character code to nibble value; every non-digit (and every code above
  // 0x7F) maps to 0.
  static const unsigned char _charmap[256];

  // Two upper-case digits per byte, no separators. Size 0 answers false and
  // leaves text untouched.
  static bool convertBinToHex(const unsigned char* data, unsigned int size,
                              std::string& text);
  // The same digits written to out, which holds at least 2 x size
  // characters; nothing else is written (no terminator).
  static void encodeDigits(const unsigned char* data, std::size_t size,
                           char* out);
  // Decodes pairs of digits into out, which holds at least text.size() / 2
  // bytes. An odd length answers false and writes nothing; non-digits count
  // as 0.
  static bool convertHexToBin(const std::string& text, unsigned char* out);
  // The same over the first length characters of text.
  static bool convertHexToBin(const char* text, std::size_t length,
                              unsigned char* out);
};

// An owned array of bytes and its size. An empty array holds no buffer at
// all (data() is null). Copies are deep.
class ByteArray {
public:
  ByteArray() = default;
  ByteArray(const ByteArray& other) { assign(other.data(), other.size()); }
  ByteArray& operator=(const ByteArray& other) {
    if (this != &other)
      assign(other.data(), other.size());
    return *this;
  }
  ~ByteArray() = default;

  const unsigned char* data() const { return m_data.get(); }
  unsigned char* data() { return m_data.get(); }
  const unsigned int& size() const { return m_size; }

  // Replaces the bytes with a copy of size bytes from data; size 0 leaves
  // the array empty.
  void assign(const unsigned char* data, unsigned int size);
  // Sizes and bytes equal.
  bool operator==(const ByteArray& other) const;
  bool operator!=(const ByteArray& other) const { return !(*this == other); }

  // The hex text of the bytes; an empty array gives "" and false.
  bool toHex(std::string& text) const;
  // Takes size bytes decoded from hex text. The text backs at most
  // (length + 1) / 2 bytes: a larger size is refused (false, array empty),
  // so that a size read from outside never allocates more than its text.
  // Digits beyond 2 x size are ignored; an odd-length text decodes into
  // zeros (false).
  bool assignHex(const std::string& text, unsigned int size);

private:
  std::unique_ptr<unsigned char[]> m_data;
  unsigned int m_size = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
