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

// Outline of node and everything below it, one line per node indented by
// two blanks per level: an element as its name and " name=value" for each
// attribute, sorted by name; any other node as its name and quoted value.
std::string outlineOf(const xercesc::DOMNode* node);
// The outline of a fresh XML writer's document after writing object.
std::string xmlOutline(const DebuggerData& object);
// Writes object with the XML writer and reads it back with the DOM reader,
// with viaText through pretty-printed XML text. Null when any step fails.
std::unique_ptr<DebuggerData> xmlRoundTrip(const DebuggerData& object,
                                           bool viaText);
// Reads the object below the document element of an XML text; a text that
// does not parse fails the current test.
std::unique_ptr<DebuggerData> readXmlText(const std::string& xml);

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo

#endif
