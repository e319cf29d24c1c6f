// dbgdata: the command-line face of the library.
//
//   dbgdata selfcheck [--dom]       the built-in self-check of every class and
//                                   key
//   dbgdata dump [--dom] [FILE|-]   text dump of the data objects in an XML
//                                   document
//   dbgdata key TEXT...             the place in the hierarchy that a full
//                                   key names
//
// XML goes through the text path without a DOM (SerializerHelperXmlText,
// DeserializerHelperXmlText); --dom takes the XML library's DOM path
// instead. Exit codes: 0 success, 1 a check failed, 2 usage or input error.
#include "dbgdatakey.h"
#include "ddmanager.h"
#include "debuggerdata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "deserializerhelperXmlText.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "serializerhelperString.h"
#include "serializerhelperXmlText.h"
#include "xmllayout.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace Vemo::DbgData;

namespace {

enum ExitCode { ExitOk = 0, ExitCheckFailed = 1, ExitUsage = 2 };

const char kProgram[] = "dbgdata";

const char kUsage[] =
    "Usage: dbgdata COMMAND [ARGUMENTS]\n"
    "\n"
    "Commands:\n"
    "  selfcheck [--dom]      round-trip a sample of every data class through\n"
    "                         the XML writer and reader, and build and parse\n"
    "                         every full key\n"
    "  dump [--dom] [FILE|-]  print the text dump of every data object in an\n"
    "                         XML document (standard input when FILE is - or\n"
    "                         missing)\n"
    "  key TEXT...            print the place in the hierarchy that each full\n"
    "                         key names\n"
    "\n"
    "XML is written and read as text directly; --dom goes through a DOM\n"
    "document of the XML library instead. Run 'dbgdata COMMAND --help' for\n"
    "one command. Exit status: 0 success, 1 a check failed, 2 usage or input\n"
    "error.\n";

const char kSelfCheckUsage[] =
    "Usage: dbgdata selfcheck [--dom]\n"
    "\n"
    "Creates a sample object of every class the factory can make, writes it\n"
    "as XML text, reads it back and compares it with the original (with\n"
    "--dom: writes it into a DOM document and reads that); then builds the\n"
    "full key of every node of the hierarchy and parses it.\n"
    "Prints one line per class and per key: successes on standard output,\n"
    "errors on standard error. Exit status 0 when there was no error, 1\n"
    "otherwise.\n";

const char kDumpUsage[] =
    "Usage: dbgdata dump [--dom] [FILE|-]\n"
    "\n"
    "Reads an XML document of serialized data objects (document element\n"
    "\"UserContentContainer\", indented or not, in UTF-8) from FILE or\n"
    "standard input, reads every object back and prints its text dump. The\n"
    "layout is checked first; a file that cannot be read, text that is not\n"
    "XML and a layout that is not the library's are told in one line on\n"
    "standard error with exit status 2. With --dom the text is read into a\n"
    "DOM document of the XML library, which also reads other encodings.\n";

const char kKeyUsage[] =
    "Usage: dbgdata key TEXT...\n"
    "\n"
    "Parses each TEXT as a full key (for example\n"
    "/Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]/7) and prints the\n"
    "place it names (id, and the hierarchy name or, for an item, the class\n"
    "of the item), the key as consumed, and the positions of the elements\n"
    "taken as item sub keys. Exit status 1 when a key does not parse.\n";

bool isHelp(const std::string& argument) {
  return argument == "--help" || argument == "-h";
}

int usageError(const std::string& problem, const char* usage) {
  std::cerr << kProgram << ": " << problem << "\n\n" << usage;
  return ExitUsage;
}

int inputError(const std::string& source, const std::string& problem) {
  std::cerr << kProgram << ": " << source << ": " << problem << std::endl;
  return ExitUsage;
}

// ---------------------------------------------------------------------------
// selfcheck

int runSelfCheckCommand(bool dom) {
  XmlPlatform platform;
  if (!platform.isReady())
    return inputError("XML library", platform.getError());
  st_ddmanager.init();
  // Without helpers of its own the self-check takes the DOM path.
  SerializerHelperXmlText writer;
  DeserializerHelperXmlText reader;
  g_serHlp = dom ? nullptr : &writer;
  g_desHlp = dom ? nullptr : &reader;
  const int errors = runSelfCheck();
  g_serHlp = nullptr;
  g_desHlp = nullptr;
  return errors == 0 ? ExitOk : ExitCheckFailed;
}

// ---------------------------------------------------------------------------
// dump

// Reads the whole file (or standard input for "-") into *text.
bool readInput(const std::string& path, std::string* text,
               std::string* problem) {
  const bool fromStdin = path == "-";
  std::FILE* file = fromStdin ? stdin : std::fopen(path.c_str(), "rb");
  if (!file) {
    *problem = std::strerror(errno);
    return false;
  }
  char buffer[65536];
  std::size_t got;
  while ((got = std::fread(buffer, 1, sizeof(buffer), file)) > 0)
    text->append(buffer, got);
  const bool failed = std::ferror(file) != 0;
  const int error = errno;
  if (!fromStdin)
    std::fclose(file);
  if (failed)
    *problem = std::strerror(error);
  return !failed;
}

std::string cannotBeMade(std::size_t index, const std::string& className) {
  return "object " + std::to_string(index + 1) + " (class \"" + className +
         "\") cannot be made by the factory";
}

std::string located(const XmlTextError& error) {
  if (error.line == 0)
    return error.message;
  return std::to_string(error.line) + ":" + std::to_string(error.column) +
         ": " + error.message;
}

bool isObjectSection(const xercesc::DOMNode* node) {
  static constexpr XmlLiteral kDataElement("DataElement");
  static constexpr XmlLiteral kDataList("DataList");
  static constexpr XmlLiteral kDataListWC("DataListWC");
  if (node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE)
    return false;
  const XMLCh* name = node->getNodeName();
  return xercesc::XMLString::equals(name, kDataElement.get()) ||
         xercesc::XMLString::equals(name, kDataList.get()) ||
         xercesc::XMLString::equals(name, kDataListWC.get());
}

// The objects under the container of a DOM document, read one after
// another. The deserializer reads the first object section found among the
// children of the reader's current node, so each object in turn is made the
// container's only child. On success *dump holds the text dumps of all
// objects in document order.
bool dumpObjects(xercesc::DOMElement* container, std::string* dump,
                 std::string* problem) {
  std::vector<xercesc::DOMNode*> objects;
  while (xercesc::DOMNode* child = container->getFirstChild()) {
    container->removeChild(child); // still the document's
    if (isObjectSection(child))
      objects.push_back(child);
  }

  for (std::size_t i = 0; i < objects.size(); ++i) {
    container->appendChild(objects[i]);
    DeserializerHelperDOM reader(container);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    container->removeChild(objects[i]);
    if (!object) {
      static constexpr XmlLiteral kClassName("ClassName");
      const auto* element = static_cast<xercesc::DOMElement*>(objects[i]);
      *problem = cannotBeMade(
          i, Tools::toUtf8(element->getAttribute(kClassName.get())));
      return false;
    }
    SerializerHelperString writer;
    object->serialize(&writer);
    *dump += writer.getText();
  }
  return true;
}

// The class name of the object the reader has selected.
std::string selectedClassName(DeserializerHelperXmlText& reader) {
  for (const char* section : {"DataList", "DataListWC", "DataElement"}) {
    if (reader.pushSection(section)) {
      std::string className, subKey;
      reader.getNameAndSubKey(&className, &subKey);
      reader.popSection();
      return className;
    }
  }
  return std::string();
}

// The same from XML text, without a DOM.
bool dumpText(const std::string& text, std::string* dump,
              std::string* problem) {
  static const char kContainerName[] = "UserContentContainer";
  DeserializerHelperXmlText reader;
  XmlTextError error;
  if (!reader.parse(text, &error)) {
    *problem = located(error);
    return false;
  }
  if (reader.getDocumentElementName() != kContainerName) {
    *problem = "the document element is \"" + reader.getDocumentElementName() +
               "\", not \"" + kContainerName + "\"";
    return false;
  }
  for (std::size_t i = 0; i < reader.getObjectCount(); ++i) {
    reader.selectObject(i);
    std::unique_ptr<DebuggerData> object(
        getDeserializer()->deserialize(&reader));
    if (!object) {
      reader.selectObject(i);
      *problem = cannotBeMade(i, selectedClassName(reader));
      return false;
    }
    SerializerHelperString writer;
    object->serialize(&writer);
    *dump += writer.getText();
  }
  return true;
}

int runDumpCommand(const std::string& path, bool dom) {
  const std::string source = path == "-" ? "standard input" : path;
  std::string text;
  std::string problem;
  if (!readInput(path, &text, &problem))
    return inputError(source, "cannot read: " + problem);

  st_ddmanager.init();
  std::string dump;
  if (dom) {
    XmlPlatform platform;
    if (!platform.isReady())
      return inputError("XML library", platform.getError());
    Tools::LayoutReader layout;
    xercesc::DOMDocument* document = layout.read(text, &problem);
    if (!document ||
        !dumpObjects(document->getDocumentElement(), &dump, &problem))
      return inputError(source, problem);
  } else if (!dumpText(text, &dump, &problem)) {
    return inputError(source, problem);
  }
  std::cout << dump << std::flush;
  return ExitOk;
}

// ---------------------------------------------------------------------------
// key

// For example "48 (item of BreakPointItem)", or for a named place
// "47 \"BreakPoints[]\" (BreakPointListContent)".
std::string describePlace(DDHierarchyID place) {
  std::string text = std::to_string(static_cast<int>(place));
  if (place < 0 || place >= DbgDataManager::DDH_NameCount)
    return text;
  const DDH_NameRow& row = DbgDataManager::st_DDH_Name[place];
  const char* className = DbgDataManager::getClassName(row.classId);
  const std::string ofClass = className ? className : "?";
  if (row.name)
    return text + " \"" + row.name + "\" (" + ofClass + ")";
  return text + " (item of " + ofClass + ")";
}

int runKeyCommand(const std::vector<std::string>& keys) {
  st_ddmanager.init();
  int result = ExitOk;
  for (const std::string& text : keys) {
    std::cout << text << "\n";
    DbgDataManager::DataHierarchy hierarchy;
    if (!st_ddmanager.parseFullKey(text, hierarchy)) {
      std::cout << "  does not parse as a full key\n";
      result = ExitCheckFailed;
      continue;
    }
    std::cout << "  place: " << describePlace(hierarchy.place) << "\n"
              << "  consumed: " << hierarchy.key << "\n"
              << "  item positions:";
    if (hierarchy.itemPositions.empty())
      std::cout << " none";
    for (unsigned long position : hierarchy.itemPositions)
      std::cout << " " << position;
    std::cout << "\n";
  }
  std::cout << std::flush;
  return result;
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
  if (args.empty())
    return usageError("no command given", kUsage);
  if (isHelp(args[0])) {
    std::cout << kUsage;
    return ExitOk;
  }
  const std::string& command = args[0];
  const std::vector<std::string> rest(args.begin() + 1, args.end());
  const bool wantsHelp = !rest.empty() && isHelp(rest[0]);

  if (command == "selfcheck" || command == "dump") {
    const char* usage = command == "selfcheck" ? kSelfCheckUsage : kDumpUsage;
    if (wantsHelp) {
      std::cout << usage;
      return ExitOk;
    }
    std::vector<std::string> operands;
    bool dom = false;
    for (const std::string& argument : rest) {
      if (argument == "--dom")
        dom = true;
      else
        operands.push_back(argument);
    }
    if (command == "selfcheck") {
      if (!operands.empty())
        return usageError("selfcheck takes no arguments but --dom", usage);
      return runSelfCheckCommand(dom);
    }
    if (operands.size() > 1)
      return usageError("dump reads one document", usage);
    return runDumpCommand(operands.empty() ? "-" : operands[0], dom);
  }
  if (command == "key") {
    if (wantsHelp) {
      std::cout << kKeyUsage;
      return ExitOk;
    }
    if (rest.empty())
      return usageError("key needs at least one full key", kKeyUsage);
    return runKeyCommand(rest);
  }
  return usageError("unknown command \"" + command + "\"", kUsage);
}
