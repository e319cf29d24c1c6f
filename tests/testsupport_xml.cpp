#include "testsupport_xml.h"

#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "serializerhelperDOM.h"
#include "xmltext.h"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <map>

using namespace xercesc;

namespace Vemo {
namespace DbgData {
namespace TestSupport {

namespace {

class XmlEnvironment : public ::testing::Environment {
public:
  void SetUp() override {
    m_platform = std::make_unique<XmlPlatform>();
    ASSERT_TRUE(m_platform->isReady()) << m_platform->getError();
  }
  void TearDown() override { m_platform.reset(); }

private:
  std::unique_ptr<XmlPlatform> m_platform;
};
const auto* const s_xmlEnvironment =
    ::testing::AddGlobalTestEnvironment(new XmlEnvironment);

std::string narrow(const XMLCh* text) {
  return text ? X2A(text).get() : std::string();
}

void outline(const DOMNode* node, int depth, std::string& text) {
  text.append(2 * depth, ' ');
  text += narrow(node->getNodeName());
  if (node->getNodeType() == DOMNode::ELEMENT_NODE) {
    const DOMNamedNodeMap* attributes = node->getAttributes();
    std::map<std::string, std::string> sorted;
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
      const DOMNode* attribute = attributes->item(i);
      sorted[narrow(attribute->getNodeName())] =
          narrow(attribute->getNodeValue());
    }
    for (const auto& attribute : sorted)
      text += " " + attribute.first + "=" + attribute.second;
  } else {
    text += " \"" + narrow(node->getNodeValue()) + "\"";
  }
  text += "\n";
  for (const DOMNode* child = node->getFirstChild(); child;
       child = child->getNextSibling())
    outline(child, depth + 1, text);
}

std::unique_ptr<DebuggerData> readElement(const DOMElement* root) {
  DeserializerHelperDOM reader(root);
  std::unique_ptr<DebuggerData> object(getDeserializer()->deserialize(&reader));
  EXPECT_EQ(reader.getFocusNode(), root) << "reader left unbalanced";
  return object;
}

} // namespace

std::string outlineOf(const DOMNode* node) {
  std::string text;
  if (node)
    outline(node, 0, text);
  return text;
}

std::string xmlOutline(const DebuggerData& object) {
  SerializerHelperDOM writer;
  EXPECT_TRUE(object.serialize(&writer));
  return outlineOf(writer.getDocument()->getDocumentElement());
}

std::unique_ptr<DebuggerData> xmlRoundTrip(const DebuggerData& object,
                                           bool viaText) {
  SerializerHelperDOM writer;
  if (!object.serialize(&writer))
    return nullptr;
  if (!viaText)
    return readElement(writer.getDocument()->getDocumentElement());
  std::string text;
  XmlTextDocument parsed;
  if (!writeXmlText(writer.getDocument(), true, &text) || !parsed.parse(text))
    return nullptr;
  return readElement(parsed.getDocumentElement());
}

std::unique_ptr<DebuggerData> readXmlText(const std::string& xml) {
  XmlTextDocument parsed;
  if (!parsed.parse(xml)) {
    ADD_FAILURE() << "line " << parsed.getError().line << ": "
                  << parsed.getError().message;
    return nullptr;
  }
  return readElement(parsed.getDocumentElement());
}

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo
