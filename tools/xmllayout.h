// Reading XML text that must hold serialized data objects into a DOM
// document of the XML library (the tool's --dom path): the document is
// checked with the library's layout check (checkDocumentLayout) before any
// of it reaches the deserializer, which stops the process on misplaced
// sections.
#ifndef DBGDATA_TOOLS_XMLLAYOUT_H
#define DBGDATA_TOOLS_XMLLAYOUT_H

#include <xercesc/util/XercesDefs.hpp>

#include <memory>
#include <string>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMLSParser;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {
namespace Tools {

// The UTF-8 form of a DOM string (empty for null). Unlike the library's
// transcoders it does not depend on the locale, so that any name quoted
// from a document can be shown.
std::string toUtf8(const XMLCh* text);

// Parses and checks XML text. The XML library must be initialised for the
// lifetime of the reader.
class LayoutReader {
public:
  LayoutReader();
  ~LayoutReader();
  LayoutReader(const LayoutReader&) = delete;
  LayoutReader& operator=(const LayoutReader&) = delete;

  // Reads text into a document whose document element is
  // "UserContentContainer", whose content passed the layout check, and from
  // which every node other than an element or text (blanks of indentation,
  // comments, processing instructions) has been removed. Documents nested
  // deeper than kMaxLayoutDepth elements are refused. On failure answers
  // null and describes the first problem in one line, with the line and
  // column of the text when there is one ("3:14: ..."). The document
  // belongs to the reader and lives until the next read or the reader's end.
  xercesc::DOMDocument* read(const std::string& text, std::string* problem);

private:
  struct ParserReleaser {
    void operator()(xercesc::DOMLSParser* parser) const;
  };
  std::unique_ptr<xercesc::DOMLSParser, ParserReleaser> m_parser;
  std::string m_setupProblem;
};

} // namespace Tools
} // namespace DbgData
} // namespace Vemo

#endif
