// Feeds arbitrary text to the XML text reader, and every object it reads to
// both XML writers and back:
// - the reader refuses the text with a located message, or reads every
//   object in it without stopping the process;
// - its well-formedness check agrees with the XML library's parser: it
//   accepts nothing the parser refuses, and refuses nothing the parser
//   reads except for the refusals it makes on purpose (document types,
//   other encodings and versions, deep nesting);
// - the first object reads as the DOM path (XmlTextDocument and the DOM
//   reader) reads it, when the text has no comments or processing
//   instructions (which the DOM keeps as nodes);
// - an object read is written by the text writer exactly as by the DOM
//   writer and writeXmlText, with the same answer, and both readers read
//   that text into objects that write the same text.
// A failed expectation traps, which the fuzzer reports as a crash.
#include "ddmanager.h"
#include "debuggerdata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "deserializerhelperXmlText.h"
#include "layoutcheck.h"
#include "serializerhelperDOM.h"
#include "serializerhelperXmlText.h"
#include "xmlsyntax.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

using namespace Vemo::DbgData;

namespace {

void expect(bool condition) {
  if (!condition)
    __builtin_trap();
}

bool deliberateRefusal(const XmlTextError& error) {
  return error.message.compare(0, 9, "not XML: ") != 0;
}

// The length of the sequence that the XML library's UTF-8 decoder expects
// after this first byte: it still knows the five- and six-byte sequences of
// the first UTF-8 design (lead bytes F8 to FF).
int claimedLength(unsigned char lead) {
  return lead >= 0xFC ? 6 : lead >= 0xF8 ? 5 : 4;
}

// Whether an ill-formed UTF-8 sequence starts within the last four bytes of
// text, or within as many as its first byte claims.
bool endsIllFormed(const std::string& text) {
  const auto* begin = reinterpret_cast<const unsigned char*>(text.data());
  const auto* end = begin + text.size();
  for (const unsigned char* p = begin; p < end;) {
    char32_t c;
    const int length = readUtf8(p, end, &c);
    if (length < 0 && end - p <= claimedLength(*p))
      return true;
    p += length < 0 ? -length : length;
  }
  return false;
}

void checkAgainstTheXmlLibrary(const std::string& text) {
  XmlTextError syntaxError;
  const bool wellFormed =
      checkXmlSyntax(text.data(), text.size(), kMaxLayoutDepth, &syntaxError);
  XmlTextDocument document;
  const bool parsed = document.parse(text);
  if (wellFormed) {
    expect(parsed);
    return;
  }
  if (!parsed || deliberateRefusal(syntaxError))
    return;
  // The XML library reads some text that is not XML: it takes some zero
  // bytes for the end of the text, and when an ill-formed UTF-8 sequence
  // ends the text it drops it, with what it had not yet read before it.
  // Nothing else may differ.
  if (text.find('\0') != std::string::npos || endsIllFormed(text))
    return;
  expect(false);
}

typedef std::unique_ptr<DebuggerData> Object;

Object readFast(const std::string& text) {
  DeserializerHelperXmlText reader;
  expect(reader.parse(text));
  return Object(getDeserializer()->deserialize(&reader));
}

// For text without comments and processing instructions, which the DOM
// keeps as nodes and the text reader does not see.
Object readWithDom(const std::string& text) {
  XmlTextDocument document;
  expect(document.parse(text));
  DeserializerHelperDOM reader(document.getDocumentElement());
  return Object(getDeserializer()->deserialize(&reader));
}

std::string textOf(const DebuggerData* object) {
  SerializerHelperXmlText writer;
  if (object)
    object->serialize(&writer);
  return writer.getText();
}

bool hasCommentsOrInstructions(const std::string& text) {
  std::size_t from = text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
  if (text.compare(from, 5, "<?xml") == 0)
    from += 5; // the XML declaration
  return text.find("<!--") != std::string::npos ||
         text.find("<?", from) != std::string::npos;
}

// Both writers write the object alike; both readers read the text alike.
void writeAndReadBack(const DebuggerData& object) {
  for (bool indent : {false, true}) {
    SerializerHelperXmlText writer(indent);
    const bool written = object.serialize(&writer);
    SerializerHelperDOM domWriter;
    const bool domWritten = object.serialize(&domWriter);
    std::string domText;
    if (writeXmlText(domWriter.getDocument(), indent, &domText))
      expect(domText == writer.getText() && domWritten == written);
    else
      expect(!written); // a value XML cannot carry, refused
    const Object fast = readFast(writer.getText());
    const Object dom = readWithDom(writer.getText());
    expect(fast && dom && textOf(fast.get()) == textOf(dom.get()));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  // Kept up until the process ends.
  static XmlPlatform* const platform = new XmlPlatform;
  static const bool initialised = (st_ddmanager.init(), true);
  (void)initialised;
  expect(platform->isReady());
  const std::string text(reinterpret_cast<const char*>(data), size);

  checkAgainstTheXmlLibrary(text);

  DeserializerHelperXmlText reader;
  XmlTextError error;
  if (!reader.parse(text, &error)) {
    expect(!error.message.empty() && error.line >= 1 && error.column >= 1);
    return 0;
  }
  // The first object section, as a plain deserialize() reads it (as the
  // DOM path reads it), then each object in turn.
  const Object first(getDeserializer()->deserialize(&reader));
  if (!hasCommentsOrInstructions(text))
    expect(textOf(first.get()) == textOf(readWithDom(text).get()));
  if (first)
    writeAndReadBack(*first);
  for (std::size_t i = 0; i < reader.getObjectCount(); ++i) {
    expect(reader.selectObject(i));
    const Object object(getDeserializer()->deserialize(&reader));
    if (object)
      writeAndReadBack(*object);
  }
  return 0;
}
