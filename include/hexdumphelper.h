// HexDumpHelper: the codec for byte arrays in serialized records.
#ifndef DBGDATA_HEXDUMPHELPER_H
#define DBGDATA_HEXDUMPHELPER_H

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
  // Decodes pairs of digits into out, which holds at least text.size() / 2
  // bytes. An odd length answers false and writes nothing; non-digits count
  // as 0.
  static bool convertHexToBin(const std::string& text, unsigned char* out);
};

} // namespace DbgData
} // namespace Vemo

#endif
