// Character and syntax rules of XML text for the XML text path that works
// without the XML library's DOM: UTF-8 sequences, XML 1.0 characters and
// names (by the XML library's own tables, so that both paths accept the same
// names), and a check of a whole document.
#ifndef DBGDATA_XMLSYNTAX_H
#define DBGDATA_XMLSYNTAX_H

#include "xmltext.h"

#include <cstddef>
#include <string>

namespace Vemo {
namespace DbgData {

// The UTF-8 sequence at p (before end): its length when it is well formed
// (*codePoint is then its character), otherwise minus the length of its
// maximal ill-formed part, which a decoder replaces by one U+FFFD (as the
// XML library's transcoder does). p < end.
int readUtf8(const unsigned char* p, const unsigned char* end,
             char32_t* codePoint);

// Appends text to *out with every ill-formed UTF-8 part replaced by the
// UTF-8 form of U+FFFD.
void appendRepairedUtf8(const char* text, std::size_t size, std::string* out);

// A character that XML 1.0 documents may carry.
inline bool isXmlChar(char32_t c) {
  return c >= 0x20 ? (c <= 0xD7FF || (c >= 0xE000 && c <= 0xFFFD) ||
                      (c >= 0x10000 && c <= 0x10FFFF))
                   : (c == 0x9 || c == 0xA || c == 0xD);
}

// A well-formed UTF-8 text that is an XML 1.0 name (namespaces aside: a
// colon is a name character), as the XML library's DOM decides it for the
// elements and attributes it creates. (Its parser also reads names with
// characters beyond the basic plane, and so does checkXmlSyntax.)
bool isXmlName(const char* name, std::size_t size);

// Checks that text is a well-formed XML 1.0 document in UTF-8 with at most
// maxDepth nested elements. Refused besides what is not well formed: a
// document type declaration (and with it every entity but the five
// predefined ones), another encoding than UTF-8 and another XML version than
// 1.0. On failure fills *error (when given) with the line and column of the
// first problem and a one-line message.
bool checkXmlSyntax(const char* text, std::size_t size, unsigned maxDepth,
                    XmlTextError* error);

// Line and column (1 based, counted in characters; a line ends at a line
// feed, a carriage return or both) of the byte at offset in text.
void locateXmlOffset(const char* text, std::size_t size, std::size_t offset,
                     unsigned long* line, unsigned long* column);

} // namespace DbgData
} // namespace Vemo

#endif
