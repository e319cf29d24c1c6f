// Shared helpers of the suites that work with the XML writer and reader.
// Linking this file keeps the XML library initialised for the whole run.
#ifndef DBGDATA_TESTS_TESTSUPPORT_XML_H
#define DBGDATA_TESTS_TESTSUPPORT_XML_H

#include "debuggerdata.h"

#include <xercesc/util/XercesDefs.hpp>

#include <memory>
#include <string>

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {
namespace TestSupport {

// Indented outline of node and everything below it, one line per node, two
// blanks per level: an element as its name followed by " name=value" for
// each attribute, sorted by name (the DOM keeps no order of attributes); any
// other node as its node name and its value in double quotes.
std::string outlineOf(const xercesc::DOMNode* node);

// Serializes object into a fresh XML writer and answers the outline of the
// whole document (from "UserContentContainer" down).
std::string xmlOutline(const DebuggerData& object);

// Serializes object with the XML writer and reads it back with the DOM
// reader and the shared deserializer; with viaText the document goes through
// pretty-printed XML text first. Null when any step fails.
std::unique_ptr<DebuggerData> xmlRoundTrip(const DebuggerData& object,
                                           bool viaText);

// Reads the object below the document element of an XML text. Fails the
// current test (and answers null) when the text does not parse.
std::unique_ptr<DebuggerData> readXmlText(const std::string& xml);

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo

#endif
