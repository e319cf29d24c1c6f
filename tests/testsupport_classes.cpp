#include "testsupport_classes.h"

#include "ddmanager.h"
#include "testsupport.h"

#include <gtest/gtest.h>

#include <memory>

namespace Vemo {
namespace DbgData {
namespace TestSupport {

namespace {

std::unique_ptr<DebuggerData> create(const char* className) {
  return std::unique_ptr<DebuggerData>(st_ddmanager.factory(className, "k"));
}

bool hasLine(const std::string& dump, const std::string& line) {
  return dump.find("\n  " + line + "\n") != std::string::npos;
}

} // namespace

std::string leafDump(const char* className,
                     const std::vector<std::string>& lines) {
  std::string text =
      std::string("DataElement {\n  ClassName=") + className + "\n  SubKey=k\n";
  for (const std::string& line : lines)
    text += "  " + line + "\n";
  return text + "}\n";
}

void checkDefaultsKeysAndWriteOrder(const std::vector<ClassCase>& cases) {
  for (const ClassCase& c : cases) {
    SCOPED_TRACE(c.className);
    auto object = create(c.className);
    ASSERT_TRUE(object);
    EXPECT_EQ(object->getClassName(), c.className);
    EXPECT_EQ(dumpText(*object), leafDump(c.className, c.defaultLines));
  }
}

void checkFieldsCompareCloneAssignAndWrite(
    const std::vector<ClassCase>& cases) {
  for (const ClassCase& c : cases) {
    for (const FieldCase& f : c.fields) {
      SCOPED_TRACE(std::string(c.className) + " " + f.line);
      auto plain = create(c.className);
      auto changed = create(c.className);
      ASSERT_TRUE(plain && changed);
      f.set(*changed);
      const std::string changedDump = dumpText(*changed);
      EXPECT_TRUE(hasLine(changedDump, f.line)) << changedDump;

      const bool compared = !(f.quirks & NotCompared);
      EXPECT_EQ(*plain == *changed, !compared);
      EXPECT_EQ(*changed == *plain, !compared);

      std::unique_ptr<DebuggerData> copy(changed->clone());
      ASSERT_TRUE(copy);
      EXPECT_EQ(hasLine(dumpText(*copy), f.line), !(f.quirks & NotCloned));

      *plain = *changed;
      EXPECT_EQ(hasLine(dumpText(*plain), f.line), !(f.quirks & NotAssigned));
    }
  }
}

void checkAssigningAcrossClassesAborts(const std::vector<ClassCase>& cases) {
  for (const ClassCase& c : cases) {
    SCOPED_TRACE(c.className);
    auto object = create(c.className);
    auto stranger =
        create(std::string(c.className) == "Root" ? "RegisterGroup" : "Root");
    ASSERT_TRUE(object && stranger);
    EXPECT_FALSE(*object == *stranger);
    EXPECT_DEATH(*object = *stranger, "");
  }
}

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo
