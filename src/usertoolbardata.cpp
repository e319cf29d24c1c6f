#include "usertoolbardata.h"

namespace Vemo {
namespace DbgData {

namespace {

// Replaces every occurrence of from in text with to, scanning on after each
// replacement.
std::string replaceAll(std::string text, const std::string& from,
                       const std::string& to) {
  for (std::size_t pos = text.find(from); pos != std::string::npos;
       pos = text.find(from, pos + to.size()))
    text.replace(pos, from.size(), to);
  return text;
}

const char kLineFeed[] = "\n";
const char kEscapedLineFeed[] = "&#10;";

std::string escapeLineFeeds(const std::string& text) {
  return replaceAll(text, kLineFeed, kEscapedLineFeed);
}

// Not the inverse of escapeLineFeeds: a "&#10;" that was in the text before
// writing comes back as a line feed too.
std::string unescapeLineFeeds(const std::string& text) {
  return replaceAll(text, kEscapedLineFeed, kLineFeed);
}

} // namespace

// Name is written as it is. Arguments only ever becomes true by copying.
template <class FieldVisitor>
void UserToolBarItem::describeFields(FieldVisitor& field) {
  field("Name", &UserToolBarItem::m_Name);
  field("Command", &UserToolBarItem::m_Command,
        Field::writtenAs(&escapeLineFeeds) | Field::readAs(&unescapeLineFeeds));
  field("ToolTip", &UserToolBarItem::m_ToolTip,
        Field::writtenAs(&escapeLineFeeds) | Field::readAs(&unescapeLineFeeds));
  field("Arguments", &UserToolBarItem::m_Arguments, Field::copiedWhenTrue);
  field("Execute", &UserToolBarItem::m_Execute);
}
DD_DATA_CLASS_IMPL(UserToolBarItem, "src/usertoolbardata.cpp")

} // namespace DbgData
} // namespace Vemo
