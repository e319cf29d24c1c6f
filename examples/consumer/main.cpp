// A program that uses an installed dbgdata: it makes a data object with
// engine data, writes it into a DOM document, turns the document into XML
// text with Xerces' own serializer, parses that text back with Xerces and
// reads the object from the new document. Exits 0 only when the object read
// back, engine data included, equals the original.
#include <dbgdata/ddmanager.h>
#include <dbgdata/debuggerdata.h>
#include <dbgdata/deserializer.h>
#include <dbgdata/deserializerhelperDOM.h>
#include <dbgdata/selfcheck.h>
#include <dbgdata/serializerhelperDOM.h>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <iostream>
#include <memory>
#include <string>

using namespace Vemo::DbgData;

namespace {

// The class written and read back; any class the factory makes will do.
const char* const kSampleClass = "StackFrameItem";

// An object of kSampleClass with every field set to a sample value and a
// RegisterItem as its engine data, as the library's self-check fills it;
// null when the class is unknown or has no sample values.
std::unique_ptr<DebuggerData> makeSample() {
  DebuggerDataID id;
  if (!st_ddmanager.getClassId(kSampleClass, &id))
    return nullptr;
  SelfCheckFill fill = findSelfCheckFill(id);
  std::unique_ptr<DebuggerData> object(
      st_ddmanager.factory(kSampleClass, "Sample"));
  if (!fill || !object)
    return nullptr;
  fill(object.get());
  return object;
}

// The document (or node) as XML text, written by a DOMLSSerializer.
std::string toXmlText(const xercesc::DOMNode* node) {
  static const XMLCh kLS[] = {xercesc::chLatin_L, xercesc::chLatin_S,
                              xercesc::chNull};
  auto* implementation = static_cast<xercesc::DOMImplementationLS*>(
      xercesc::DOMImplementationRegistry::getDOMImplementation(kLS));
  xercesc::DOMLSSerializer* serializer = implementation->createLSSerializer();
  xercesc::DOMLSOutput* output = implementation->createLSOutput();
  xercesc::MemBufFormatTarget target;
  output->setByteStream(&target);
  const bool written = serializer->write(node, output);
  output->release();
  serializer->release();
  if (!written)
    return std::string();
  return std::string(reinterpret_cast<const char*>(target.getRawBuffer()),
                     target.getLen());
}

bool sameObject(const DebuggerData* a, const DebuggerData* b) {
  // operator== checks that its right side is a kind of its left side's
  // class, so both directions are asked.
  return a && b && *a == *b && *b == *a;
}

int roundTrip() {
  std::unique_ptr<DebuggerData> original = makeSample();
  if (!original) {
    std::cerr << "cannot make a sample " << kSampleClass << "\n";
    return 1;
  }

  // Object -> DOM document -> XML text. The writer owns its document.
  std::string text;
  {
    SerializerHelperDOM writer;
    if (!original->serialize(&writer)) {
      std::cerr << "writing the object into the document failed\n";
      return 1;
    }
    text = toXmlText(writer.getDocument());
  }
  if (text.empty()) {
    std::cerr << "the DOM serializer wrote nothing\n";
    return 1;
  }
  std::cout << text << "\n";

  // XML text -> DOM document (owned by the parser) -> object.
  xercesc::XercesDOMParser parser;
  xercesc::HandlerBase errors; // throws on any error
  parser.setErrorHandler(&errors);
  parser.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
  parser.setLoadExternalDTD(false);
  xercesc::MemBufInputSource input(
      reinterpret_cast<const XMLByte*>(text.data()), text.size(), "sample");
  parser.parse(input);
  const xercesc::DOMDocument* document = parser.getDocument();
  if (!document || !document->getDocumentElement()) {
    std::cerr << "the XML text holds no document\n";
    return 1;
  }
  DeserializerHelperDOM reader(document->getDocumentElement());
  std::unique_ptr<DebuggerData> copy(getDeserializer()->deserialize(&reader));

  // Fields and engine data, which operator== leaves out.
  if (!sameObject(original.get(), copy.get()) ||
      !sameObject(original->getEngineData(), copy->getEngineData())) {
    std::cerr << "the object read back differs from the original\n";
    return 1;
  }
  std::cout << kSampleClass << " read back equal to the original\n";
  return 0;
}

} // namespace

int main() {
  st_ddmanager.init();
  try {
    xercesc::XMLPlatformUtils::Initialize();
  } catch (const xercesc::XMLException&) {
    std::cerr << "cannot initialise Xerces-C\n";
    return 1;
  }
  int status = 1;
  try {
    status = roundTrip();
  } catch (const xercesc::SAXParseException& e) {
    char* message = xercesc::XMLString::transcode(e.getMessage());
    std::cerr << "parse error at " << e.getLineNumber() << ":"
              << e.getColumnNumber() << ": " << message << "\n";
    xercesc::XMLString::release(&message);
  } catch (const xercesc::XMLException&) {
    std::cerr << "Xerces-C failed\n";
  } catch (const xercesc::DOMException&) {
    std::cerr << "a DOM operation failed\n";
  }
  // Every DOM object is gone by now.
  xercesc::XMLPlatformUtils::Terminate();
  return status;
}
