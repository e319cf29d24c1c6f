#include "testsupport.h"

#include "ddmanager.h"
#include "serializerhelperString.h"

#include <gtest/gtest.h>

namespace Vemo {
namespace DbgData {
namespace TestSupport {

std::string dumpText(const DebuggerData& object) {
  SerializerHelperString writer;
  object.serialize(&writer);
  return writer.getText();
}

namespace {
// Clients call init() once before looking names up; so does every suite.
class ManagerEnvironment : public ::testing::Environment {
public:
  void SetUp() override { st_ddmanager.init(); }
};
const auto* const s_managerEnvironment =
    ::testing::AddGlobalTestEnvironment(new ManagerEnvironment);
} // namespace

} // namespace TestSupport
} // namespace DbgData
} // namespace Vemo
