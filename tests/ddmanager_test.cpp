// Tests of the data manager's name tables, name lookups and factory.
// st_ddmanager.init() runs once for the suite (tests/testsupport.cpp).
#include "ddmanager.h"
#include "debuggerdata.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <string>

using namespace Vemo::DbgData;

namespace {

using Manager = DbgDataManager;

std::string nameOrNull(const char* name) { return name ? name : "(null)"; }

TEST(DDManagerTest, RowsSitAtTheirIdsAndNamesMapBack) {
  for (int i = 0; i < Manager::DD_NameCount; ++i) {
    const DD_NameRow& row = Manager::st_DD_Name[i];
    ASSERT_EQ(row.id, i);
    ASSERT_NE(row.name, nullptr) << i;
    EXPECT_EQ(Manager::getClassName(row.id), row.name);
    DebuggerDataID id = DDID_Undefined;
    if (i == DDID_Undefined) {
      EXPECT_FALSE(st_ddmanager.getClassId(row.name, &id));
    } else {
      ASSERT_TRUE(st_ddmanager.getClassId(row.name, &id)) << row.name;
      EXPECT_EQ(id, i);
    }
  }
  for (int i = 0; i < Manager::DDS_NameCount; ++i) {
    const DDS_NameRow& row = Manager::st_DDS_Name[i];
    ASSERT_EQ(row.id, i);
    DDSectionID id = DDS_undefined;
    EXPECT_EQ(st_ddmanager.getSectionId(row.name, &id), i != DDS_undefined)
        << row.name;
    if (i != DDS_undefined) {
      EXPECT_EQ(id, i);
    }
  }
  for (int i = 0; i < Manager::DDH_NameCount; ++i) {
    const DDH_NameRow& row = Manager::st_DDH_Name[i];
    ASSERT_EQ(row.id, i);
    if (!row.name)
      continue;
    DDHierarchyID id = DDH_Undefined;
    EXPECT_EQ(st_ddmanager.getHierarchyId(row.name, &id), i != DDH_Undefined)
        << row.name;
    // The two names of two places are found as the lower id.
    const int expected = i == DDH_FrameLocals        ? DDH_Locals
                         : i == DDH_FrameCtxtRegGrps ? DDH_CtxtRegGrps
                         : i == DDH_Undefined        ? DDH_Undefined
                                                     : i;
    EXPECT_EQ(id, expected) << row.name;
  }

  DDHierarchyID place = DDH_Undefined;
  ASSERT_TRUE(st_ddmanager.getHierarchyId("Locals[]", &place));
  EXPECT_EQ(place, DDH_Locals);
  EXPECT_TRUE(st_ddmanager.getHierarchyId("CtxtRegGrps[]", nullptr));
  EXPECT_FALSE(st_ddmanager.getClassId("Locals[]", nullptr));
  EXPECT_FALSE(st_ddmanager.getClassId("", nullptr));
  EXPECT_FALSE(st_ddmanager.getSectionId("Values", nullptr));

  // Names by id: exact spellings, and nothing outside the tables.
  EXPECT_STREQ(Manager::getClassName(DDID_1stPageItem), "1stPageItem");
  EXPECT_STREQ(Manager::getClassName(DDID_StateStoppedReason),
               "StateStoppedReason");
  EXPECT_STREQ(Manager::getSectionName(DDS_SpecialItemSubKey),
               "SpecialItemSubKey");
  EXPECT_STREQ(Manager::getHierarchyName(DDH_UserToolbar), "UserToolbar[]");
  EXPECT_EQ(Manager::getHierarchyName(DDH_BreakPoints_Item), nullptr);
  EXPECT_EQ(Manager::getClassName(static_cast<DebuggerDataID>(116)), nullptr);
  EXPECT_EQ(Manager::getSectionName(static_cast<DDSectionID>(-1)), nullptr);
  EXPECT_EQ(Manager::getHierarchyName(static_cast<DDHierarchyID>(124)),
            nullptr);
}

TEST(DDManagerTest, HierarchyRowsCarryTheirClassAndFlag) {
  struct Case {
    DDHierarchyID place;
    const char* name; // null for an item row
    DebuggerDataID classId;
    int flag;
  };
  const Case cases[] = {
      {DDH_Root, "Root", DDID_Root, 0},
      {DDH_Options_Item, nullptr, DDID_OptionItem, 1},
      {DDH_Console, "Console", DDID_DataList, 1},
      {DDH_PlugIn_Item, nullptr, DDID_PlugInItem, 1},
      {DDH_RsrvdState8, "<RsrvdState8>", DDID_RsrvdState8, 1},
      {DDH_CtxtRegGrps_Item, nullptr, DDID_RegisterGroup, 0},
      {DDH_LocalsRoot, "LocalsRoot", DDID_EvalRootContent, 1},
      {DDH_SIMDRegisters_Item, nullptr, DDID_SIMDEvalRootContent, 1},
      {DDH_FrameLocals, "Locals[]", DDID_DataList, 1},
      {DDH_FrameCtxtRegGrps_SubItem, nullptr, DDID_RegisterItem, 1},
      {DDH_Undefined, "<Undefined>", DDID_Undefined, 0},
  };
  for (const Case& c : cases) {
    const DDH_NameRow& row = Manager::st_DDH_Name[c.place];
    SCOPED_TRACE(c.place);
    EXPECT_EQ(nameOrNull(row.name), nameOrNull(c.name));
    EXPECT_EQ(row.classId, c.classId);
    EXPECT_EQ(row.flag, c.flag);
  }
  int itemRows = 0;
  for (const DDH_NameRow& row : Manager::st_DDH_Name)
    itemRows += row.name == nullptr;
  EXPECT_EQ(itemRows, 47);
}

// Every field of the three tables, row by row, as one text.
std::string tablesText() {
  std::ostringstream text;
  for (const DD_NameRow& row : Manager::st_DD_Name)
    text << row.id << nameOrNull(row.name) << row.rtti << ";";
  for (const DDS_NameRow& row : Manager::st_DDS_Name)
    text << row.id << nameOrNull(row.name) << ";";
  for (const DDH_NameRow& row : Manager::st_DDH_Name)
    text << row.id << nameOrNull(row.name) << row.classId << row.flag << ";";
  return text.str();
}

TEST(DDManagerTest, SortRestoresAnyPermutationAndBindingFindsItsRow) {
  const std::string sorted = tablesText();
  std::mt19937 random(20240611);
  for (int round = 0; round < 4; ++round) {
    SCOPED_TRACE(round);
    const auto apply = [&](auto first, auto last) {
      if (round == 0)
        std::reverse(first, last);
      else if (round == 1) // the row the passes never examine directly
        std::rotate(first, last - 1, last);
      else
        std::shuffle(first, last, random);
    };
    apply(std::begin(Manager::st_DD_Name), std::end(Manager::st_DD_Name));
    apply(std::begin(Manager::st_DDS_Name), std::end(Manager::st_DDS_Name));
    apply(std::begin(Manager::st_DDH_Name), std::end(Manager::st_DDH_Name));
    // Binding at load time may meet the table unsorted.
    if (round == 3) {
      EXPECT_TRUE(
          Manager::bindClassIdentity(DDID_RsrvdState3, DataList::staticRtti()));
    }
    Manager::sortNameTables();
    if (round < 3) {
      EXPECT_EQ(tablesText(), sorted);
    }
  }
  EXPECT_EQ(Manager::st_DD_Name[DDID_RsrvdState3].rtti, DataList::staticRtti());
  // The factory names the object after the row, not after its identity.
  std::unique_ptr<DebuggerData> made(
      st_ddmanager.factory(DDID_RsrvdState3, "s"));
  ASSERT_TRUE(made);
  EXPECT_EQ(made->getRtti(), DataList::staticRtti());
  EXPECT_EQ(made->getClassName() + "/" + made->getSubKey(), "RsrvdState3/s");
  Manager::bindClassIdentity(DDID_RsrvdState3, nullptr);
  EXPECT_EQ(st_ddmanager.factory(DDID_RsrvdState3, "s"), nullptr);
  // Already sorted tables stay as they are.
  Manager::sortNameTables();
  EXPECT_EQ(tablesText(), sorted);
}

TEST(DDManagerTest, EveryClassRowCreatesItsClassOrNothing) {
  // Rows without a class of their own: the abstract bases, reserved places,
  // plain containers, classes the factory must never create, "Undefined".
  const std::set<int> uncreatable = {
      0,  1,  5,  6,  7,  8,  11, 12, 15, 16, 17, 19, 20, 21, 22,
      23, 24, 28, 29, 30, 31, 32, 33, 41, 43, 44, 48, 49, 52, 53,
      54, 55, 66, 67, 70, 71, 72, 73, 74, 75, 76, 77, 78, 89, 115};
  // Four rows create a class of another name, under the row's name.
  const std::map<int, std::string> createdAs = {
      {DDID_PlugInItem, "PlugInDataItem"},
      {DDID_LocalsRootContent, "EvalRootContent"},
      {DDID_LocalsLineContent, "EvalLineContent"},
      {DDID_ReEntrantCallInfo, "ReEntrantCallItem"}};
  int created = 0;
  for (int id = 0; id < Manager::DD_NameCount; ++id) {
    const DD_NameRow& row = Manager::st_DD_Name[id];
    SCOPED_TRACE(std::to_string(id) + " " + row.name);
    std::unique_ptr<DebuggerData> byId(
        st_ddmanager.factory(static_cast<DebuggerDataID>(id), "x/y"));
    std::unique_ptr<DebuggerData> byName(st_ddmanager.factory(row.name, "x/y"));
    if (uncreatable.count(id)) {
      EXPECT_EQ(byId, nullptr);
      EXPECT_EQ(byName, nullptr);
      continue;
    }
    ++created;
    ASSERT_TRUE(byId && byName);
    const auto renamed = createdAs.find(id);
    const std::string rttiName =
        renamed == createdAs.end() ? row.name : renamed->second;
    for (const DebuggerData* made : {byId.get(), byName.get()}) {
      EXPECT_EQ(made->getRtti(), row.rtti);
      EXPECT_EQ(made->getRtti()->getClassName(), rttiName);
      EXPECT_EQ(made->getClassName(), row.name);
      EXPECT_EQ(made->getSubKey(), "x/y");
    }
  }
  EXPECT_EQ(created, 71);
  // DebuggerData and DataElement have identities but make no instances.
  EXPECT_NE(Manager::st_DD_Name[DDID_DataElement].rtti, nullptr);
  for (const char* name : {"DebuggerData", "DataElement", "Undefined", "", "X"})
    EXPECT_EQ(st_ddmanager.factory(name, "x"), nullptr) << name;
  for (int id : {-1, 116})
    EXPECT_EQ(st_ddmanager.factory(static_cast<DebuggerDataID>(id), "x"),
              nullptr);
}

TEST(DDManagerTest, KeyAppendsHierarchyNamesByPlace) {
  // Item rows have no name of their own; ids outside the table name
  // nothing. Neither adds an element.
  DbgDataKey key("Pre");
  key << DDH_Undefined << DDH_BreakPoints_Item << static_cast<DDHierarchyID>(-1)
      << static_cast<DDHierarchyID>(Manager::DDH_NameCount);
  EXPECT_EQ(key.toString(), "/Pre/<Undefined>");
}

TEST(DDManagerDeathTest, InitStopsAtANullClassOrSectionName) {
  DbgDataManager manager;
  const auto initWithout = [&](const char** name) {
    *name = nullptr;
    manager.init();
  };
  EXPECT_DEATH(initWithout(&Manager::st_DD_Name[DDID_CurDbgPrompt].name), "");
  EXPECT_DEATH(initWithout(&Manager::st_DDS_Name[DDS_values].name), "");
  // A fresh manager fills its own maps; the last rows are still left out.
  manager.init();
  EXPECT_TRUE(manager.getClassId("StateStoppedReason", nullptr));
  EXPECT_FALSE(manager.getHierarchyId("<Undefined>", nullptr));
}

} // namespace
