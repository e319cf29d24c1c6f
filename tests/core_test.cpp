// The object model core: class identity, leaves, lists, fatal errors.
#include "consoleiodata.h"
#include "ddmanager.h"
#include "debuggerdata.h"
#include "registerdata.h"
#include "serializerhelperString.h"
#include "stackframedata.h"
#include "testsupport.h"

#include <gtest/gtest.h>

using namespace Vemo::DbgData;
using TestSupport::dumpText;
using TestSupport::make;

typedef RTTITempl<DebuggerData> Rtti;

namespace {

// Identity objects of a small diamond-free hierarchy used only here; static
// so that they live, like every identity object, until unload.
struct TestRtti : Rtti {
  explicit TestRtti(const char* name) : Rtti(name) {}
  DebuggerData* createOwnerInstance() const override { return nullptr; }
};

} // namespace

TEST(ClassIdentity, IdsAreDenseRegistryIndexes) {
  const auto& registry = *Rtti::s_parRegisteredRttis;
  ASSERT_GE(registry.size(), 15u);
  for (size_t i = 0; i < registry.size(); ++i)
    EXPECT_EQ(registry[i]->getClassId(), static_cast<int>(i));
  // This file's classes register in their order within their source file.
  EXPECT_EQ(DataElement::staticRtti()->getClassId(),
            DebuggerData::staticRtti()->getClassId() + 1);
  EXPECT_EQ(DataListWC::staticRtti()->getClassId(),
            DataList::staticRtti()->getClassId() + 1);
  EXPECT_STREQ(CurDbgPrompt::staticRtti()->getClassName(), "CurDbgPrompt");

  static TestRtti fresh("Fresh");
  EXPECT_EQ(fresh.getClassId(), static_cast<int>(registry.size()) - 1);
  EXPECT_EQ(registry.back(), &fresh);
}

TEST(ClassIdentity, KindTestsFollowParentsDepthFirst) {
  const Rtti* list = DataList::staticRtti();
  const Rtti* listWC = DataListWC::staticRtti();
  EXPECT_TRUE(list->IsKindOf(list, false));
  EXPECT_TRUE(list->IsKindOf(list, true));
  EXPECT_TRUE(listWC->IsKindOf(list, false));
  EXPECT_FALSE(listWC->IsKindOf(list, true));
  EXPECT_FALSE(list->IsKindOf(listWC, false));
  EXPECT_TRUE(listWC->IsKindOf(DebuggerData::staticRtti(), false));
  EXPECT_FALSE(DebuggerData::staticRtti()->IsKindOf(list, false));
  EXPECT_TRUE(
      RegisterItem::staticRtti()->IsKindOf(DataElement::staticRtti(), false));
  EXPECT_FALSE(RegisterItem::staticRtti()->IsKindOf(list, false));

  // A class reaching the target only through its second parent.
  static TestRtti lonely("Lonely"), twoParents("TwoParents");
  twoParents.addParentRtti(&lonely);
  twoParents.addParentRtti(list);
  EXPECT_TRUE(twoParents.IsKindOf(DebuggerData::staticRtti(), false));
  EXPECT_FALSE(lonely.IsKindOf(DebuggerData::staticRtti(), false));
}

TEST(ClassIdentity, CreateOwnerInstance) {
  EXPECT_EQ(DebuggerData::staticRtti()->createOwnerInstance(), nullptr);
  EXPECT_EQ(DataElement::staticRtti()->createOwnerInstance(), nullptr);
  for (const Rtti* rtti : {DataList::staticRtti(), DataListWC::staticRtti(),
                           CurDbgPrompt::staticRtti()}) {
    std::unique_ptr<DebuggerData> object(rtti->createOwnerInstance());
    ASSERT_TRUE(object);
    EXPECT_EQ(object->getRtti(), rtti);
    EXPECT_EQ(object->getClassName(), "");
  }
}

TEST(ClassIdentityDeathTest, NullArgumentsAbort) {
  static TestRtti victim("Victim");
  EXPECT_DEATH(victim.addParentRtti(nullptr), "pParentRtti");
  EXPECT_DEATH(victim.IsKindOf(nullptr, false), "pRtti");
}

TEST(FatalError, ComposedTextHasNoPrefix) {
  EXPECT_EQ(composeDDFatalErrorText("Bad Pointer!", "src/x.cpp", 42),
            "File \"src/x.cpp\" Line 42\nBad Pointer!\n");
  EXPECT_EQ(composeDDFatalErrorText("", "f", 7), "File \"f\" Line 7\n");
}

TEST(FatalErrorDeathTest, AbortsSilently) {
  EXPECT_DEATH(throwDDFatalError("Bad Pointer!", "src/x.cpp", 1), "^$");
}

TEST(DataElement, CloneCopiesEngineDataDeeplyAndCompareIgnoresIt) {
  auto prompt = make<CurDbgPrompt>("CurDbgPrompt", "p");
  prompt->setPromptText("ZMT>");
  auto* engine = st_ddmanager.factory("RegisterItem", "Internal");
  prompt->setEngineData(engine);

  std::unique_ptr<DebuggerData> copy(prompt->clone());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getClassName(), "CurDbgPrompt");
  EXPECT_EQ(copy->getSubKey(), "p");
  ASSERT_TRUE(copy->getEngineData());
  EXPECT_NE(copy->getEngineData(), engine);
  EXPECT_TRUE(*copy->getEngineData() == *engine);
  EXPECT_TRUE(*copy == *prompt);

  // Engine data takes no part in the comparison.
  auto other = make<CurDbgPrompt>("CurDbgPrompt", "p");
  other->setPromptText("ZMT>");
  EXPECT_TRUE(*other == *prompt);
  EXPECT_TRUE(*prompt == *other);
}

TEST(DataElement, AssignmentSharesEngineData) {
  auto a = make<CurDbgPrompt>("CurDbgPrompt", "a");
  auto b = make<CurDbgPrompt>("CurDbgPrompt", "b");
  a->setEngineData(st_ddmanager.factory("RegisterGroup", "e"));
  *b = *a;
  EXPECT_EQ(b->getSubKey(), "a");
  EXPECT_EQ(b->getEngineData(), a->getEngineData());
  b->setEngineData(nullptr); // the shared object stays a's to free
}

TEST(DataElement, LeafRefusesTreeOperations) {
  auto leaf = make<RegisterGroup>("RegisterGroup", "g");
  std::unique_ptr<DebuggerData> child(
      st_ddmanager.factory("RegisterItem", "r"));
  EXPECT_FALSE(leaf->appendChild(child.get())); // ownership stays here
  EXPECT_EQ(leaf->getList(), nullptr);
  EXPECT_EQ(leaf->getChild("r"), nullptr);
  EXPECT_EQ(leaf->getDescendant("r"), nullptr);
  leaf->setSpecialItem(child.get());
  EXPECT_EQ(leaf->getSpecialItem(), nullptr);
}

TEST(DataElementDeathTest, AssignAcrossClassesAborts) {
  auto prompt = make<CurDbgPrompt>("CurDbgPrompt", "p");
  auto reg = make<RegisterItem>("RegisterItem", "r");
  EXPECT_DEATH(*prompt = static_cast<const DebuggerData&>(*reg), "");
  EXPECT_FALSE(*prompt == *reg);
  EXPECT_FALSE(*reg == *prompt);
}

TEST(DataElement, SerializesEngineDataAsItsOwnSection) {
  auto group = make<RegisterGroup>("RegisterGroup", "g");
  group->setName("GPR");
  group->setEngineData(st_ddmanager.factory("RegisterGroup", "Internal"));
  EXPECT_EQ(dumpText(*group), "DataElement {\n"
                              "  ClassName=RegisterGroup\n"
                              "  SubKey=g\n"
                              "  EngineData {\n"
                              "    DataElement {\n"
                              "      ClassName=RegisterGroup\n"
                              "      SubKey=Internal\n"
                              "      Name=\n"
                              "    }\n"
                              "  }\n"
                              "  Name=GPR\n"
                              "}\n");
}

namespace {

std::unique_ptr<DataList> listOf(std::initializer_list<const char*> subKeys,
                                 const char* listKey = "l") {
  auto list = make<DataList>("DataList", listKey);
  for (const char* subKey : subKeys) {
    auto* item = static_cast<RegisterItem*>(
        st_ddmanager.factory("RegisterItem", subKey));
    item->setName(subKey);
    list->appendChild(item);
  }
  return list;
}

const DebuggerData* nth(const DataList& list, size_t index) {
  auto it = list.getConstList()->begin();
  std::advance(it, index);
  return *it;
}

} // namespace

TEST(DataList, LookupsAndSpecialItem) {
  auto list = listOf({"a", "b", "a"});
  EXPECT_FALSE(list->appendChild(nullptr));
  EXPECT_EQ(list->getChild("a"), nth(*list, 0)); // first match
  EXPECT_EQ(list->getChild("zz"), nullptr);
  list->setSpecialItem(std::string("a"));
  EXPECT_EQ(list->getSpecialItem(), nth(*list, 2)); // last match
  list->setSpecialItem(std::string("zz"));
  EXPECT_EQ(list->getSpecialItem(), nth(*list, 2)); // unchanged

  auto outer = listOf({}, "outer");
  outer->appendChild(list.release());
  EXPECT_EQ(outer->getDescendant("l/b"),
            nth(*static_cast<const DataList*>(outer->getChild("l")), 1));
  EXPECT_EQ(outer->getDescendant("l"), outer->getChild("l"));
  EXPECT_EQ(outer->getDescendant("l/zz"), nullptr);
  EXPECT_EQ(outer->getDescendant("zz/b"), nullptr);
}

TEST(DataListDeathTest, DescendantPathAssertions) {
  auto outer = listOf({}, "outer");
  outer->appendChild(listOf({"b"}).release());
  EXPECT_DEATH(outer->getDescendant(""), "strlen");
  EXPECT_DEATH(outer->getDescendant("/l"), "pszRelKey\\[0\\] != '/'");
  EXPECT_DEATH(outer->getDescendant("l/"), "strlen");
  EXPECT_DEATH(outer->getDescendant("l//b"), "pszRelKey\\[0\\] != '/'");
  EXPECT_DEATH(outer->getDescendant(nullptr), "pszRelKey");
}

TEST(DataList, CloneMarksItsOwnCopyOfTheSpecialItem) {
  auto list = listOf({"a", "b", "c"});
  list->setSpecialItem(nth(*list, 1));
  std::unique_ptr<DebuggerData> copy(list->clone());
  ASSERT_TRUE(copy);
  const DataList& copied = static_cast<const DataList&>(*copy);
  EXPECT_EQ(copied.getSpecialItem(), nth(copied, 1));
  EXPECT_NE(nth(copied, 1), nth(*list, 1));
  EXPECT_TRUE(*copy == *list);

  // With duplicate sub keys the copy marks the last child of that sub key.
  auto dup = listOf({"x", "x"});
  dup->setSpecialItem(nth(*dup, 0));
  std::unique_ptr<DebuggerData> dupCopy(dup->clone());
  EXPECT_EQ(dupCopy->getSpecialItem(),
            nth(static_cast<const DataList&>(*dupCopy), 1));
}

TEST(DataList, AssignmentCopiesNamesOnlyAndComparisonSeesChildren) {
  auto target = listOf({"a"}, "t");
  auto source = listOf({"b", "c"}, "s");
  source->setSpecialItem(nth(*source, 0));
  *target = *source;
  EXPECT_EQ(target->getSubKey(), "s");
  EXPECT_EQ(target->getConstList()->size(), 1u);
  EXPECT_EQ(target->getSpecialItem(), nullptr);
  EXPECT_FALSE(*target == *source);

  // Same children in another order, or a changed child, are unequal.
  EXPECT_FALSE(*listOf({"b", "c"}) == *listOf({"c", "b"}));
  EXPECT_TRUE(*listOf({"b", "c"}) == *listOf({"b", "c"}));
  EXPECT_FALSE(*listOf({"b"}) == *listOf({"b", "c"}));
}

TEST(DataList, ComparisonIsOneSided) {
  auto list = listOf({"a"}, "s");
  auto withContent = make<DataListWC>("DataListWC", "s");
  withContent->setClassName("DataList");
  withContent->appendChild(st_ddmanager.factory("RegisterItem", "a"));
  static_cast<RegisterItem*>(const_cast<DebuggerData*>(nth(*withContent, 0)))
      ->setName("a");
  EXPECT_TRUE(*list == *withContent);  // compared as lists
  EXPECT_FALSE(*withContent == *list); // a DataList is no DataListWC
}

TEST(DataList, SerializesSpecialItemBeforeChildren) {
  auto list = listOf({"a", "b"});
  list->setSpecialItem(nth(*list, 1));
  EXPECT_EQ(dumpText(*list), "DataList {\n"
                             "  ClassName=DataList\n"
                             "  SubKey=l\n"
                             "  values {\n"
                             "    SpecialItemSubKey=b\n"
                             "  }\n"
                             "  List {\n"
                             "    Child {\n"
                             "      DataElement {\n"
                             "        ClassName=RegisterItem\n"
                             "        SubKey=a\n"
                             "        Name=a\n"
                             "        Value=\n"
                             "        Description=\n"
                             "        Expression=\n"
                             "        Type=0\n"
                             "        Flags=0\n"
                             "      }\n"
                             "    }\n"
                             "    Child {\n"
                             "      DataElement {\n"
                             "        ClassName=RegisterItem\n"
                             "        SubKey=b\n"
                             "        Name=b\n"
                             "        Value=\n"
                             "        Description=\n"
                             "        Expression=\n"
                             "        Type=0\n"
                             "        Flags=0\n"
                             "      }\n"
                             "    }\n"
                             "  }\n"
                             "}\n");
  EXPECT_EQ(dumpText(*listOf({})), "DataList {\n"
                                   "  ClassName=DataList\n"
                                   "  SubKey=l\n"
                                   "  List {\n"
                                   "  }\n"
                                   "}\n");
}

namespace {

// A text writer that refuses the object section of chosen sub keys.
class RefusingWriter : public SerializerHelperString {
public:
  explicit RefusingWriter(std::string refused)
      : m_refused(std::move(refused)) {}
  bool setClassNameAndSubKey(const std::string& className,
                             const std::string& subKey) override {
    SerializerHelperString::setClassNameAndSubKey(className, subKey);
    return subKey != m_refused;
  }

private:
  std::string m_refused;
};

} // namespace

TEST(DataList, OnlyTheLastChildDecidesTheResult) {
  RefusingWriter refuseFirst("bad");
  EXPECT_TRUE(listOf({"bad", "good"})->serialize(&refuseFirst));
  RefusingWriter refuseLast("bad");
  EXPECT_FALSE(listOf({"good", "bad"})->serialize(&refuseLast));
  // Every child is written even after a failure.
  EXPECT_NE(refuseLast.getText().find("SubKey=bad"), std::string::npos);
}

TEST(DataListWC, ContentIsOwnedClonedAndCompared) {
  auto list = make<DataListWC>("DataListWC", "w");
  list->appendChild(st_ddmanager.factory("RegisterItem", "a"));
  auto* content = static_cast<StackFrameListContent*>(
      st_ddmanager.factory("StackFrameListContent", "c"));
  list->setContent(content);

  std::unique_ptr<DebuggerData> copy(list->clone());
  ASSERT_TRUE(copy && copy->getContent());
  EXPECT_NE(copy->getContent(), content);
  EXPECT_TRUE(*copy == *list);

  auto bare = make<DataListWC>("DataListWC", "w");
  bare->appendChild(st_ddmanager.factory("RegisterItem", "a"));
  EXPECT_FALSE(*bare == *list);
  EXPECT_FALSE(*list == *bare);
  auto bare2 = make<DataListWC>("DataListWC", "w");
  bare2->appendChild(st_ddmanager.factory("RegisterItem", "a"));
  EXPECT_TRUE(*bare == *bare2);

  // Assignment shares the content pointer.
  *bare = *list;
  EXPECT_EQ(bare->getContent(), content);
  bare->setContent(nullptr);

  EXPECT_EQ(dumpText(*list), "DataListWC {\n"
                             "  ClassName=DataListWC\n"
                             "  SubKey=w\n"
                             "  List {\n"
                             "    Child {\n"
                             "      DataElement {\n"
                             "        ClassName=RegisterItem\n"
                             "        SubKey=a\n"
                             "        Name=\n"
                             "        Value=\n"
                             "        Description=\n"
                             "        Expression=\n"
                             "        Type=0\n"
                             "        Flags=0\n"
                             "      }\n"
                             "    }\n"
                             "  }\n"
                             "  Content {\n"
                             "    DataElement {\n"
                             "      ClassName=StackFrameListContent\n"
                             "      SubKey=c\n"
                             "    }\n"
                             "  }\n"
                             "}\n");
}

TEST(DataList, DeserializeMembersOnlyForgetsTheSpecialItem) {
  auto list = listOf({"a"});
  list->setSpecialItem(nth(*list, 0));
  EXPECT_TRUE(list->deserializeMembers(nullptr));
  EXPECT_EQ(list->getSpecialItem(), nullptr);
  EXPECT_EQ(list->getConstList()->size(), 1u);
}
