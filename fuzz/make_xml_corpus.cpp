// Writes the starting corpus of the XML fuzzer: one document per class the
// factory can make, holding the self-check's sample object of that class,
// into the directory given as the only argument (<ClassName>.xml).
#include "ddmanager.h"
#include "debuggerdata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

using namespace Vemo::DbgData;

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: make_xml_corpus DIRECTORY\n";
    return 2;
  }
  XmlPlatform platform;
  if (!platform.isReady()) {
    std::cerr << "make_xml_corpus: " << platform.getError() << "\n";
    return 2;
  }
  st_ddmanager.init();
  int written = 0;
  for (int row = DDID_DebuggerData; row < DDID_Undefined; ++row) {
    const auto id = static_cast<DebuggerDataID>(row);
    const char* className = DbgDataManager::getClassName(id);
    std::unique_ptr<DebuggerData> object(st_ddmanager.factory(id, "Seed"));
    if (!object)
      continue;
    if (SelfCheckFill fill = findSelfCheckFill(id))
      fill(object.get());
    else if (object->isKindOf(DataElement::staticRtti()))
      attachEngineData(static_cast<DataElement*>(object.get()));

    SerializerHelperDOM writer;
    std::string text;
    XmlTextError error;
    object->serialize(&writer);
    if (!writeXmlText(writer.getDocument(), false, &text, &error)) {
      std::cerr << "make_xml_corpus: " << className << ": " << error.message
                << "\n";
      return 1;
    }
    std::ofstream out(std::string(argv[1]) + "/" + className + ".xml",
                      std::ios::binary);
    out << text;
    if (!out) {
      std::cerr << "make_xml_corpus: cannot write into " << argv[1] << "\n";
      return 1;
    }
    ++written;
  }
  std::cout << written << " corpus documents in " << argv[1] << "\n";
  return 0;
}
