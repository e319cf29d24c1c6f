#include "hexdumphelper.h"

#include "ddfatalerror.h"

#include <cstring>

namespace Vemo {
namespace DbgData {

const char HexDumpHelper::_hexmap[16] = {'0', '1', '2', '3', '4', '5',
                                         '6', '7', '8', '9', 'A', 'B',
                                         'C', 'D', 'E', 'F'};

// '0' maps to 0 like every character that is not a hex digit; decoding does
// not validate, it reads unknown characters as 0.
const unsigned char HexDumpHelper::_charmap[256] = {
    //  0  1  2  3  4  5  6  7  8  9  A  B  C  D  E  F
    0, 0,  0,  0,  0,  0,  0,  0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x00
    0, 0,  0,  0,  0,  0,  0,  0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x10
    0, 0,  0,  0,  0,  0,  0,  0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x20
    0, 1,  2,  3,  4,  5,  6,  7, 8, 9, 0, 0, 0, 0, 0, 0, // 0x30 '0'-'9'
    0, 10, 11, 12, 13, 14, 15, 0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x40 'A'-'F'
    0, 0,  0,  0,  0,  0,  0,  0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x50
    0, 10, 11, 12, 13, 14, 15, 0, 0, 0, 0, 0, 0, 0, 0, 0, // 0x60 'a'-'f'
    // 0x70 to 0xFF: all 0 (the remaining entries are zero-initialised).
};

namespace {

// The two hex digits of every byte value, most significant first.
struct DigitPairs {
  char digits[256][2];
  DigitPairs() {
    for (unsigned byte = 0; byte < 256; ++byte) {
      digits[byte][0] = HexDumpHelper::_hexmap[byte >> 4];
      digits[byte][1] = HexDumpHelper::_hexmap[byte & 0x0F];
    }
  }
};

} // namespace

bool HexDumpHelper::convertBinToHex(const unsigned char* data,
                                    unsigned int size, std::string& text) {
  if (size == 0)
    return false;
  if (data == nullptr)
    throwDDFatalError("Bad Pointer!", "src/hexdumphelper.cpp", __LINE__);
  text.clear();
  text.resize(2 * static_cast<std::string::size_type>(size));
  // Through a local pointer: stores through the string's operator[] could
  // alias the string object and would reload its buffer for every byte.
  encodeDigits(data, size, &text[0]);
  return true;
}

void HexDumpHelper::encodeDigits(const unsigned char* data, std::size_t size,
                                 char* out) {
  // Both digits of a byte come from one table of 256 digit pairs (made
  // from _hexmap).
  static const DigitPairs pairs;
  // Four bytes per round, written as one store of eight digits: a loop of
  // one byte per round runs up to twice as slow depending on where it lands
  // in the code.
  std::size_t i = 0;
  for (; i + 4 <= size; i += 4) {
    char digits[8];
    for (std::size_t k = 0; k < 4; ++k)
      std::memcpy(digits + 2 * k, pairs.digits[data[i + k]], 2);
    std::memcpy(out + 2 * i, digits, 8);
  }
  for (; i < size; ++i)
    std::memcpy(out + 2 * i, pairs.digits[data[i]], 2);
}

bool HexDumpHelper::convertHexToBin(const std::string& text,
                                    unsigned char* out) {
  return convertHexToBin(text.data(), text.size(), out);
}

bool HexDumpHelper::convertHexToBin(const char* text, std::size_t length,
                                    unsigned char* out) {
  if (length % 2 != 0)
    return false;
  if (length == 0)
    return true;
  if (out == nullptr)
    throwDDFatalError("Bad Pointer!", "src/hexdumphelper.cpp", __LINE__);
  // Local copies of the input's buffer and length: stores into out could
  // otherwise alias the string object and force a reload per byte. Read as
  // unsigned char, since a plain char above 0x7F is negative.
  const unsigned char* in = reinterpret_cast<const unsigned char*>(text);
  const std::size_t count = length / 2;
  const auto decode = [in](std::size_t byte) {
    return static_cast<unsigned char>(_charmap[in[2 * byte]] * 16 +
                                      _charmap[in[2 * byte + 1]]);
  };
  // Four bytes per round, written as one store (see convertBinToHex).
  std::size_t i = 0;
  for (; i + 4 <= count; i += 4) {
    unsigned char bytes[4];
    for (std::size_t k = 0; k < 4; ++k)
      bytes[k] = decode(i + k);
    std::memcpy(out + i, bytes, 4);
  }
  for (; i < count; ++i)
    out[i] = decode(i);
  return true;
}

// ---------------------------------------------------------------------------
// ByteArray

void ByteArray::assign(const unsigned char* data, unsigned int size) {
  m_data.reset();
  if (size > 0) {
    if (data == nullptr)
      throwDDFatalError("Bad Pointer!", "src/hexdumphelper.cpp", __LINE__);
    m_data.reset(new unsigned char[size]);
    std::memcpy(m_data.get(), data, size);
  }
  m_size = size;
}

bool ByteArray::operator==(const ByteArray& other) const {
  return m_size == other.m_size &&
         (m_size == 0 || std::memcmp(data(), other.data(), m_size) == 0);
}

bool ByteArray::toHex(std::string& text) const {
  return HexDumpHelper::convertBinToHex(data(), m_size, text);
}

bool ByteArray::assignHex(const std::string& text, unsigned int size) {
  m_data.reset();
  m_size = 0;
  if (size > text.size() / 2 + text.size() % 2)
    return false;
  if (size == 0)
    return true;
  m_data.reset(new unsigned char[size]());
  m_size = size;
  if (text.size() % 2 != 0)
    return false;
  return HexDumpHelper::convertHexToBin(text.data(), 2 * std::size_t(size),
                                        m_data.get());
}

} // namespace DbgData
} // namespace Vemo
