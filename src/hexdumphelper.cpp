#include "hexdumphelper.h"

#include "ddfatalerror.h"

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

bool HexDumpHelper::convertBinToHex(const unsigned char* data,
                                    unsigned int size, std::string& text) {
  if (size == 0)
    return false;
  if (data == nullptr)
    throwDDFatalError("Bad Pointer!", "src/hexdumphelper.cpp", __LINE__);
  text.clear();
  text.resize(2 * static_cast<std::string::size_type>(size));
  for (unsigned int i = 0; i < size; ++i) {
    text[2 * static_cast<std::string::size_type>(i)] = _hexmap[data[i] >> 4];
    text[2 * static_cast<std::string::size_type>(i) + 1] =
        _hexmap[data[i] & 0x0F];
  }
  return true;
}

bool HexDumpHelper::convertHexToBin(const std::string& text,
                                    unsigned char* out) {
  if (text.size() % 2 != 0)
    return false;
  if (text.empty())
    return true;
  if (out == nullptr)
    throwDDFatalError("Bad Pointer!", "src/hexdumphelper.cpp", __LINE__);
  for (std::string::size_type i = 0; i < text.size(); i += 2) {
    // Indexed as unsigned char: a plain char above 0x7F is negative.
    const unsigned high = _charmap[static_cast<unsigned char>(text[i])];
    const unsigned low = _charmap[static_cast<unsigned char>(text[i + 1])];
    out[i / 2] = static_cast<unsigned char>(high * 16 + low);
  }
  return true;
}

} // namespace DbgData
} // namespace Vemo
