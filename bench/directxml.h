// What the direct-Xerces baselines share: the layout's fixed names, the
// conversions of keys and values between narrow text and DOM strings, and
// the checks that compare a baseline's document with the library's.
//
// The conversions are the cheapest correct ones, done per call as the
// library must: ASCII text is widened or narrowed in a plain loop (in a
// stack buffer when short), anything else goes through the XML library's
// transcoder.
#ifndef DBGDATA_BENCH_DIRECTXML_H
#define DBGDATA_BENCH_DIRECTXML_H

#include "hexdumphelper.h"
#include "serializerhelperDOM.h"
#include "valuetypes.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace Bench {

using Vemo::DbgData::XmlLiteral;

constexpr XmlLiteral kCore("Core");
constexpr XmlLiteral kRootName("UserContentContainer");
constexpr XmlLiteral kDataElement("DataElement");
constexpr XmlLiteral kDataList("DataList");
constexpr XmlLiteral kDataListWC("DataListWC");
constexpr XmlLiteral kAttributes("attributes");
constexpr XmlLiteral kValues("values");
constexpr XmlLiteral kEngineData("EngineData");
constexpr XmlLiteral kList("List");
constexpr XmlLiteral kChild("Child");
constexpr XmlLiteral kContent("Content");
constexpr XmlLiteral kClassName("ClassName");
constexpr XmlLiteral kSubKey("SubKey");

// Narrow text as a DOM string: widened in a loop when it is ASCII (in place
// when short), else through the transcoder.
class WidenedText {
public:
  WidenedText(const char* text, std::size_t length) {
    XMLCh* out = m_inline;
    if (length >= kInline) {
      m_wide.reset(new XMLCh[length + 1]);
      out = m_wide.get();
    }
    std::size_t i = 0;
    for (; i < length && static_cast<unsigned char>(text[i]) < 0x80; ++i)
      out[i] = static_cast<XMLCh>(text[i]);
    if (i == length) {
      out[length] = 0;
      m_text = out;
      return;
    }
    m_wide.reset();
    m_text = m_heap = xercesc::XMLString::transcode(text);
  }
  explicit WidenedText(const std::string& text)
      : WidenedText(text.c_str(), text.size()) {}
  explicit WidenedText(const char* text)
      : WidenedText(text, std::strlen(text)) {}
  ~WidenedText() {
    if (m_heap)
      xercesc::XMLString::release(&m_heap);
  }
  WidenedText(const WidenedText&) = delete;
  WidenedText& operator=(const WidenedText&) = delete;
  const XMLCh* get() const { return m_text; }

private:
  static const std::size_t kInline = 128;
  XMLCh m_inline[kInline];
  std::unique_ptr<XMLCh[]> m_wide;
  XMLCh* m_heap = nullptr;
  const XMLCh* m_text;
};

// Narrow text as a DOM string, always through the transcoder.
class TranscodedText {
public:
  TranscodedText(const char* text, std::size_t)
      : m_text(xercesc::XMLString::transcode(text)) {}
  explicit TranscodedText(const std::string& text)
      : TranscodedText(text.c_str(), text.size()) {}
  ~TranscodedText() { xercesc::XMLString::release(&m_text); }
  TranscodedText(const TranscodedText&) = delete;
  TranscodedText& operator=(const TranscodedText&) = delete;
  const XMLCh* get() const { return m_text; }

private:
  XMLCh* m_text;
};

// A DOM string into a narrow string: narrowed directly when it is ASCII.
struct Narrowing {
  static void assign(const XMLCh* text, std::string& out) {
    const XMLSize_t length = xercesc::XMLString::stringLen(text);
    out.resize(length);
    for (XMLSize_t i = 0; i < length; ++i) {
      if (text[i] >= 0x80) {
        Transcoding::assign(text, out);
        return;
      }
      out[i] = static_cast<char>(text[i]);
    }
  }
  struct Transcoding {
    static void assign(const XMLCh* text, std::string& out) {
      char* narrow = xercesc::XMLString::transcode(text);
      out.assign(narrow);
      xercesc::XMLString::release(&narrow);
    }
  };
};
typedef Narrowing::Transcoding Transcoding;

// Decimal text of an integer, NUL-terminated.
struct Digits {
  char text[24];
  template <class Int> explicit Digits(Int value) {
    *std::to_chars(text, text + sizeof text - 1, value).ptr = '\0';
  }
};

// The whole number in text; 0 when it does not parse.
template <class Int> Int numberOf(const std::string& text) {
  Int value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

// ---------------------------------------------------------------------------
// The texts of addresses and scopes, spelled out

inline void appendHex(std::string& text, unsigned long long value) {
  char digits[20];
  text.append(digits,
              std::to_chars(digits, digits + sizeof digits, value, 16).ptr);
}

// "Address( mode width segment offset aux )Address": mode and width in
// decimal, the rest in lower-case hexadecimal.
inline void appendAddressText(std::string& text,
                              const Vemo::DbgData::Address& address) {
  text += "Address( ";
  text += Digits(address.getMode()).text;
  text += ' ';
  text += Digits(address.getBitWidth()).text;
  text += ' ';
  appendHex(text, address.getSegment());
  text += ' ';
  appendHex(text, address.getOffset());
  text += ' ';
  appendHex(text, address.getAux());
  text += " )Address";
}

inline std::string addressText(const Vemo::DbgData::Address& address) {
  std::string text;
  appendAddressText(text, address);
  return text;
}

// "Scope( <address text> <hex of the key text and its NUL> number1 number2
// )Scope".
inline std::string scopeText(const Vemo::DbgData::Scope& scope) {
  std::string text = "Scope( ";
  appendAddressText(text, scope.getAddress());
  text += ' ';
  const std::string key = scope.getKey().toString();
  const std::size_t digits = 2 * (key.size() + 1);
  text.resize(text.size() + digits);
  Vemo::DbgData::HexDumpHelper::encodeDigits(
      reinterpret_cast<const unsigned char*>(key.c_str()), key.size() + 1,
      &text[text.size() - digits]);
  text += ' ';
  text += Digits(scope.getNumber1()).text;
  text += ' ';
  text += Digits(scope.getNumber2()).text;
  text += " )Scope";
  return text;
}

// Reads an address text of that form from p on, leaving p behind it; false
// (p and address undefined) for anything else.
inline bool parseAddress(const char*& p, const char* end,
                         Vemo::DbgData::Address& address) {
  static const char kOpen[] = "Address( ", kClose[] = " )Address";
  if (std::size_t(end - p) < sizeof kOpen - 1 ||
      std::memcmp(p, kOpen, sizeof kOpen - 1) != 0)
    return false;
  p += sizeof kOpen - 1;
  Vemo::DbgData::AddressType mode = 0;
  Vemo::DbgData::AddressSize width = 0;
  unsigned long long parts[3] = {};
  p = std::from_chars(p, end, mode).ptr + 1;
  p = std::from_chars(p, end, width).ptr + 1;
  for (unsigned long long& part : parts)
    p = std::from_chars(p, end, part, 16).ptr + 1;
  --p;
  if (std::size_t(end - p) < sizeof kClose - 1 ||
      std::memcmp(p, kClose, sizeof kClose - 1) != 0 || mode >= 4 ||
      width < 8 || width > 128)
    return false;
  p += sizeof kClose - 1;
  address = Vemo::DbgData::Address(parts[0], parts[1], parts[2], mode, width);
  return true;
}

// The reverse of scopeText; false for a text of another form.
inline bool parseScope(const std::string& text, Vemo::DbgData::Scope& scope) {
  static const char kOpen[] = "Scope( ", kClose[] = " )Scope";
  const char* p = text.data();
  const char* const end = p + text.size();
  if (text.compare(0, sizeof kOpen - 1, kOpen) != 0)
    return false;
  p += sizeof kOpen - 1;
  Vemo::DbgData::Address address;
  if (!parseAddress(p, end, address) || p == end || *p++ != ' ')
    return false;
  const char* const hex = p;
  while (p != end && *p != ' ')
    ++p;
  unsigned char bytes[256];
  std::unique_ptr<unsigned char[]> longKey;
  unsigned char* key = bytes;
  const std::size_t size = std::size_t(p - hex) / 2;
  if (size > sizeof bytes) {
    longKey.reset(new unsigned char[size]);
    key = longKey.get();
  }
  if (!Vemo::DbgData::HexDumpHelper::convertHexToBin(hex, 2 * size, key))
    return false;
  const std::size_t length =
      static_cast<std::size_t>(std::find(key, key + size, 0) - key);
  unsigned long number1 = 0, number2 = 0;
  p = std::from_chars(p + 1, end, number1).ptr;
  p = std::from_chars(p + 1, end, number2).ptr;
  if (std::size_t(end - p) != sizeof kClose - 1 ||
      std::memcmp(p, kClose, sizeof kClose - 1) != 0)
    return false;
  scope = Vemo::DbgData::Scope(address,
                               Vemo::DbgData::DbgDataKey(std::string(
                                   reinterpret_cast<const char*>(key), length)),
                               number1, number2);
  return true;
}

// A fresh document with the writer's document element.
inline xercesc::DOMDocument* newDocument() {
  static xercesc::DOMImplementation* const implementation =
      xercesc::DOMImplementationRegistry::getDOMImplementation(kCore.get());
  return implementation->createDocument(
      nullptr, kRootName.get(), nullptr,
      xercesc::XMLPlatformUtils::fgMemoryManager);
}

// The first child of parent with the given node name, as an element.
inline const xercesc::DOMElement* childNamed(const xercesc::DOMNode* parent,
                                             const XMLCh* name) {
  for (const xercesc::DOMNode* node = parent->getFirstChild(); node;
       node = node->getNextSibling())
    if (xercesc::XMLString::equals(node->getNodeName(), name))
      return static_cast<const xercesc::DOMElement*>(node);
  return nullptr;
}

// The element of an object (class name and sub key set) under parent.
template <class ToXml>
xercesc::DOMElement*
objectElement(xercesc::DOMDocument* document, xercesc::DOMNode* parent,
              const XMLCh* section, const std::string& className,
              const std::string& subKey) {
  xercesc::DOMElement* element = document->createElement(section);
  parent->appendChild(element);
  element->setAttribute(kClassName.get(), ToXml(className).get());
  element->setAttribute(kSubKey.get(), ToXml(subKey).get());
  return element;
}

inline xercesc::DOMElement* appendElement(xercesc::DOMDocument* document,
                                          xercesc::DOMNode* parent,
                                          const XMLCh* name) {
  xercesc::DOMElement* element = document->createElement(name);
  parent->appendChild(element);
  return element;
}

inline std::string xmlTextOf(const xercesc::DOMNode* node) {
  std::string text;
  if (!Vemo::DbgData::writeXmlText(node, false, &text))
    return "<not writable>";
  return text;
}

// Runs check(n) once per (what, n) and remembers the answer, so that the
// repetitions of a case check only once.
template <class Check>
bool verifiedOnce(const char* what, long n, Check check) {
  static std::map<std::pair<std::string, long>, bool> answers;
  const auto key = std::make_pair(std::string(what), n);
  const auto found = answers.find(key);
  if (found != answers.end())
    return found->second;
  return answers[key] = check(n);
}

} // namespace Bench

#endif
