// Feeds arbitrary text to every parser of text that may come from outside:
// full keys (direct, streamed and through the automaton), address and scope
// storage texts, and the hex codec.
#include "dbgdatakey.h"
#include "ddmanager.h"
#include "hexdumphelper.h"
#include "valuetypes.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <vector>

using namespace Vemo::DbgData;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  static const bool initialised = (st_ddmanager.init(), true);
  (void)initialised;
  const std::string text(reinterpret_cast<const char*>(data), size);

  // (No round-trip invariant: an element ending in a backslash followed by
  // another element reads back as one element, since backslashes are not
  // doubled in the text form.)
  DbgDataKey key(text);
  key.toString();
  std::istringstream keyStream(text);
  DbgDataKey streamed;
  while (keyStream >> streamed && !streamed.empty()) {
  }

  DbgDataManager::DataHierarchy hierarchy;
  st_ddmanager.parseFullKey(key, hierarchy);
  for (unsigned long position : hierarchy.itemPositions)
    if (position >= key.size())
      __builtin_trap();

  Address address;
  address.deserialize(text);
  Scope scope;
  scope.deserialize(text);
  std::istringstream valueStream(text);
  valueStream >> address >> scope;

  std::vector<unsigned char> bytes(text.size() / 2 + 1);
  HexDumpHelper::convertHexToBin(text, bytes.data());
  return 0;
}
