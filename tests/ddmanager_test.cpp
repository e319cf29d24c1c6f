// Tests of the data manager's name tables, name lookups and factory.
// st_ddmanager.init() runs once for the suite (tests/testsupport.cpp).
#include "ddmanager.h"
#include "debuggerdata.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

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
    DDHierarchyID place = DDH_Undefined;
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
      {DDH_GlobalSymbols, "GlobalSymbols[]", DDID_DataListWC, 0},
      {DDH_CtxtRegGrps, "CtxtRegGrps[]", DDID_DataListWC, 0},
      {DDH_CtxtRegGrps_Item, nullptr, DDID_RegisterGroup, 0},
      {DDH_Locals, "Locals[]", DDID_DataList, 0},
      {DDH_LocalsRoot, "LocalsRoot", DDID_EvalRootContent, 1},
      {DDH_Primary_Item, nullptr, DDID_1stPageItem, 1},
      {DDH_SysRegSets_Item, nullptr, DDID_DataListWC, 0},
      {DDH_Evaluations, "Evaluations[]", DDID_DataList, 1},
      {DDH_EvalRoot, "EvalRoot", DDID_EvalRootContent, 0},
      {DDH_DisAsm_Item, nullptr, DDID_DisAsmItem, 0},
      {DDH_ModuleSymbols, "ModuleSymbols[]", DDID_DataListWC, 1},
      {DDH_SIMDRegisters_Item, nullptr, DDID_SIMDEvalRootContent, 1},
      {DDH_ThreadSet, "ThreadSet[]", DDID_DataList, 0},
      {DDH_ReEntrantCalls_Item, nullptr, DDID_ReEntrantCallInfo, 1},
      {DDH_FrameLocals, "Locals[]", DDID_DataList, 1},
      {DDH_FrameCtxtRegGrps, "CtxtRegGrps[]", DDID_DataListWC, 1},
      {DDH_FrameCtxtRegGrps_Item, nullptr, DDID_RegisterGroup, 1},
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

// Copies of the three tables, to shuffle the real ones and compare after.
struct TableSnapshot {
  std::vector<DD_NameRow> classes{std::begin(Manager::st_DD_Name),
                                  std::end(Manager::st_DD_Name)};
  std::vector<DDS_NameRow> sections{std::begin(Manager::st_DDS_Name),
                                    std::end(Manager::st_DDS_Name)};
  std::vector<DDH_NameRow> places{std::begin(Manager::st_DDH_Name),
                                  std::end(Manager::st_DDH_Name)};

  void expectEqualToTables() const {
    for (int i = 0; i < Manager::DD_NameCount; ++i) {
      EXPECT_EQ(Manager::st_DD_Name[i].id, classes[i].id);
      EXPECT_EQ(Manager::st_DD_Name[i].name, classes[i].name);
      EXPECT_EQ(Manager::st_DD_Name[i].rtti, classes[i].rtti);
    }
    for (int i = 0; i < Manager::DDS_NameCount; ++i) {
      EXPECT_EQ(Manager::st_DDS_Name[i].id, sections[i].id);
      EXPECT_EQ(Manager::st_DDS_Name[i].name, sections[i].name);
    }
    for (int i = 0; i < Manager::DDH_NameCount; ++i) {
      EXPECT_EQ(Manager::st_DDH_Name[i].id, places[i].id);
      EXPECT_EQ(Manager::st_DDH_Name[i].name, places[i].name);
      EXPECT_EQ(Manager::st_DDH_Name[i].classId, places[i].classId);
      EXPECT_EQ(Manager::st_DDH_Name[i].flag, places[i].flag);
    }
  }
};

template <class Row, int N, class Permute>
void permute(Row (&rows)[N], Permute how) {
  how(std::begin(rows), std::end(rows));
}

TEST(DDManagerTest, SortRestoresAnyPermutation) {
  const TableSnapshot sorted;
  std::mt19937 random(20240611);
  const auto reverse = [](auto first, auto last) { std::reverse(first, last); };
  // Moves the last row to the front: the row that the passes never examine
  // directly must still reach its place.
  const auto rotate = [](auto first, auto last) {
    std::rotate(first, last - 1, last);
  };
  const auto shuffle = [&random](auto first, auto last) {
    std::shuffle(first, last, random);
  };
  for (int round = 0; round < 5; ++round) {
    SCOPED_TRACE(round);
    const auto apply = [&](auto how) {
      permute(Manager::st_DD_Name, how);
      permute(Manager::st_DDS_Name, how);
      permute(Manager::st_DDH_Name, how);
    };
    if (round == 0)
      apply(reverse);
    else if (round == 1)
      apply(rotate);
    else
      apply(shuffle);
    Manager::sortNameTables();
    sorted.expectEqualToTables();
  }
  // Already sorted tables stay as they are.
  Manager::sortNameTables();
  sorted.expectEqualToTables();
}

TEST(DDManagerTest, BindingFindsItsRowInAnUnsortedTable) {
  std::mt19937 random(7);
  std::shuffle(std::begin(Manager::st_DD_Name), std::end(Manager::st_DD_Name),
               random);
  EXPECT_TRUE(
      Manager::bindClassIdentity(DDID_RsrvdState3, DataList::staticRtti()));
  Manager::sortNameTables();
  EXPECT_EQ(Manager::st_DD_Name[DDID_RsrvdState3].rtti, DataList::staticRtti());

  // The factory names the object after the row, not after its identity.
  std::unique_ptr<DebuggerData> made(
      st_ddmanager.factory(DDID_RsrvdState3, "s"));
  ASSERT_TRUE(made);
  EXPECT_EQ(made->getRtti(), DataList::staticRtti());
  EXPECT_EQ(made->getClassName(), "RsrvdState3");
  EXPECT_EQ(made->getSubKey(), "s");

  Manager::bindClassIdentity(DDID_RsrvdState3, nullptr);
  EXPECT_EQ(st_ddmanager.factory(DDID_RsrvdState3, "s"), nullptr);
}

TEST(DDManagerTest, FactoryCreatesOnlyBoundConcreteClasses) {
  for (const char* name : {"DataList", "DataListWC"}) {
    std::unique_ptr<DebuggerData> made(st_ddmanager.factory(name, "x/y"));
    ASSERT_TRUE(made) << name;
    EXPECT_EQ(made->getClassName(), name);
    EXPECT_STREQ(made->getRtti()->getClassName(), name);
    EXPECT_EQ(made->getSubKey(), "x/y");
  }
  std::unique_ptr<DebuggerData> byId(st_ddmanager.factory(DDID_DataList, ""));
  ASSERT_TRUE(byId);
  EXPECT_EQ(byId->getClassName(), "DataList");
  EXPECT_EQ(byId->getSubKey(), "");

  // Abstract classes, reserved and unbound rows, unknown names and ids.
  EXPECT_EQ(st_ddmanager.factory("DebuggerData", "x"), nullptr);
  EXPECT_EQ(st_ddmanager.factory("DataElement", "x"), nullptr);
  EXPECT_EQ(st_ddmanager.factory("Undefined", "x"), nullptr);
  EXPECT_EQ(st_ddmanager.factory("NoSuchClass", "x"), nullptr);
  EXPECT_EQ(st_ddmanager.factory("", "x"), nullptr);
  EXPECT_EQ(st_ddmanager.factory(static_cast<DebuggerDataID>(-1), "x"),
            nullptr);
  EXPECT_EQ(st_ddmanager.factory(static_cast<DebuggerDataID>(116), "x"),
            nullptr);
  // Rows without a class of their own: reserved places, plain containers.
  const int unbound[] = {5,  6,  7,  8,  11, 12, 15, 16, 17, 19, 20,
                         21, 22, 23, 24, 28, 29, 30, 31, 32, 33, 41,
                         43, 44, 48, 49, 52, 53, 54, 55, 66, 67, 70,
                         71, 72, 73, 74, 75, 76, 77, 78, 89, 115};
  for (int id : unbound)
    EXPECT_EQ(st_ddmanager.factory(static_cast<DebuggerDataID>(id), "x"),
              nullptr)
        << Manager::getClassName(static_cast<DebuggerDataID>(id));
}

TEST(DDManagerTest, EveryBoundRowCreatesAnObjectNamedAfterTheRow) {
  // Four rows are created by a class of another name, once that class is
  // part of the library.
  const struct {
    DebuggerDataID row;
    const char* identity;
  } renamed[] = {{DDID_PlugInItem, "PlugInDataItem"},
                 {DDID_LocalsRootContent, "EvalRootContent"},
                 {DDID_LocalsLineContent, "EvalLineContent"},
                 {DDID_ReEntrantCallInfo, "ReEntrantCallItem"}};
  for (const auto& r : renamed) {
    const RTTITempl<DebuggerData>* rtti = Manager::st_DD_Name[r.row].rtti;
    if (rtti) {
      EXPECT_STREQ(rtti->getClassName(), r.identity);
    }
  }
  int created = 0, bound = 0;
  for (const DD_NameRow& row : Manager::st_DD_Name) {
    // DebuggerData and DataElement are bound but cannot be instantiated.
    if (row.rtti && row.id != DDID_DebuggerData && row.id != DDID_DataElement)
      ++bound;
    std::unique_ptr<DebuggerData> made(st_ddmanager.factory(row.name, "k"));
    if (!made)
      continue;
    ++created;
    EXPECT_EQ(made->getRtti(), row.rtti);
    EXPECT_EQ(made->getClassName(), row.name);
    EXPECT_EQ(made->getSubKey(), "k");
  }
  EXPECT_EQ(created, bound);
  EXPECT_GE(created, 13); // the lists and the first data classes
}

TEST(DDManagerTest, KeyAppendsHierarchyNamesByPlace) {
  DbgDataKey key("Pre");
  key << DDH_Root << DDH_BreakPoints << DDH_FrameLocals << DDH_Undefined;
  EXPECT_EQ(key.toString(), "/Pre/Root/BreakPoints[]/Locals[]/<Undefined>");
  // Item rows have no name of their own; ids outside the table name
  // nothing. Neither adds an element.
  key << DDH_BreakPoints_Item << static_cast<DDHierarchyID>(-1)
      << static_cast<DDHierarchyID>(Manager::DDH_NameCount);
  EXPECT_EQ(key.size(), 5u);
}

using DDManagerDeathTest = ::testing::Test;

TEST_F(DDManagerDeathTest, InitStopsAtANullClassOrSectionName) {
  DbgDataManager manager;
  EXPECT_DEATH(
      {
        Manager::st_DD_Name[DDID_CurDbgPrompt].name = nullptr;
        manager.init();
      },
      "");
  EXPECT_DEATH(
      {
        Manager::st_DDS_Name[DDS_values].name = nullptr;
        manager.init();
      },
      "");
  // A fresh manager fills its own maps; the last rows are still left out.
  manager.init();
  EXPECT_TRUE(manager.getClassId("StateStoppedReason", nullptr));
  EXPECT_FALSE(manager.getHierarchyId("<Undefined>", nullptr));
}

} // namespace
