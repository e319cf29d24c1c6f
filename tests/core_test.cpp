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

// Identity objects of classes used only here; static so that they live, like
// every identity object, until unload.
struct TestRtti : Rtti {
  explicit TestRtti(const char* name) : Rtti(name) {}
  DebuggerData* createOwnerInstance() const override { return nullptr; }
};

// Appends register groups named after their sub keys.
template <class List>
std::unique_ptr<List> fill(std::unique_ptr<List> list,
                           std::initializer_list<const char*> subKeys) {
  for (const char* subKey : subKeys) {
    auto* group = static_cast<RegisterGroup*>(
        st_ddmanager.factory("RegisterGroup", subKey));
    group->setName(subKey);
    list->appendChild(group);
  }
  return list;
}

std::unique_ptr<DataList> listOf(std::initializer_list<const char*> subKeys,
                                 const char* listKey = "l") {
  return fill(make<DataList>("DataList", listKey), subKeys);
}

const DebuggerData* nth(const DebuggerData& list, size_t index) {
  auto it = static_cast<const DataList&>(list).getConstList()->begin();
  std::advance(it, index);
  return *it;
}

// A text writer that refuses the object section of one sub key.
class RefusingWriter : public SerializerHelperString {
public:
  bool setClassNameAndSubKey(const std::string& className,
                             const std::string& subKey) override {
    SerializerHelperString::setClassNameAndSubKey(className, subKey);
    return subKey != "bad";
  }
};

} // namespace

TEST(ClassIdentity, IdsAreDenseRegistryIndexesAndKindTestsFollowParents) {
  const auto& registry = *Rtti::s_parRegisteredRttis;
  ASSERT_GE(registry.size(), 15u);
  for (size_t i = 0; i < registry.size(); ++i)
    EXPECT_EQ(registry[i]->getClassId(), static_cast<int>(i));
  // Classes register in their order within their source file.
  EXPECT_EQ(DataElement::staticRtti()->getClassId(),
            DebuggerData::staticRtti()->getClassId() + 1);
  EXPECT_EQ(DataListWC::staticRtti()->getClassId(),
            DataList::staticRtti()->getClassId() + 1);
  EXPECT_STREQ(CurDbgPrompt::staticRtti()->getClassName(), "CurDbgPrompt");

  static TestRtti fresh("Fresh");
  EXPECT_EQ(fresh.getClassId(), static_cast<int>(registry.size()) - 1);
  EXPECT_EQ(registry.back(), &fresh);

  // Kind tests follow the parents depth first.
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

  // A class reaching the target only through its second parent.
  static TestRtti lonely("Lonely"), twoParents("TwoParents");
  twoParents.addParentRtti(&lonely);
  twoParents.addParentRtti(list);
  EXPECT_TRUE(twoParents.IsKindOf(DebuggerData::staticRtti(), false));
  EXPECT_FALSE(lonely.IsKindOf(DebuggerData::staticRtti(), false));

  EXPECT_EQ(DataElement::staticRtti()->createOwnerInstance(), nullptr);
}

TEST(ClassIdentityDeathTest, NullArgumentsAbort) {
  static TestRtti victim("Victim");
  EXPECT_DEATH(victim.addParentRtti(nullptr), "pParentRtti");
  EXPECT_DEATH(victim.IsKindOf(nullptr, false), "pRtti");
}

TEST(FatalErrorDeathTest, ComposedTextHasNoPrefixAndAbortsSilently) {
  EXPECT_EQ(composeDDFatalErrorText("Bad Pointer!", "src/x.cpp", 42),
            "File \"src/x.cpp\" Line 42\nBad Pointer!\n");
  EXPECT_EQ(composeDDFatalErrorText("", "f", 7), "File \"f\" Line 7\n");
  EXPECT_DEATH(throwDDFatalError("Bad Pointer!", "src/x.cpp", 1), "^$");
}

TEST(DataElement, EngineDataIsClonedDeeplySharedByAssignmentNotCompared) {
  auto prompt = make<CurDbgPrompt>("CurDbgPrompt", "p");
  prompt->setPromptText("ZMT>");
  auto* engine = st_ddmanager.factory("RegisterItem", "Internal");
  prompt->setEngineData(engine);

  std::unique_ptr<DebuggerData> copy(prompt->clone());
  ASSERT_TRUE(copy && copy->getEngineData());
  EXPECT_EQ(dumpText(*copy), dumpText(*prompt));
  EXPECT_NE(copy->getEngineData(), engine);
  EXPECT_TRUE(*copy->getEngineData() == *engine);

  auto other = make<CurDbgPrompt>("CurDbgPrompt", "other");
  EXPECT_FALSE(*other == *prompt);
  *other = *prompt;
  EXPECT_EQ(other->getSubKey(), "p");
  EXPECT_EQ(other->getEngineData(), engine);
  other->setEngineData(nullptr); // the shared object stays prompt's to free
  EXPECT_TRUE(*other == *prompt);
  EXPECT_TRUE(*prompt == *other);

  // A leaf refuses tree operations; ownership of the child stays here.
  EXPECT_FALSE(prompt->appendChild(other.get()));
  EXPECT_EQ(prompt->getList(), nullptr);
  EXPECT_EQ(prompt->getChild("other"), nullptr);
  EXPECT_EQ(prompt->getDescendant("other"), nullptr);
  prompt->setSpecialItem(other.get());
  EXPECT_EQ(prompt->getSpecialItem(), nullptr);
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
  EXPECT_EQ(outer->getDescendant("l/b"), nth(*outer->getChild("l"), 1));
  EXPECT_EQ(outer->getDescendant("l"), outer->getChild("l"));
  EXPECT_EQ(outer->getDescendant("l/zz"), nullptr);
  EXPECT_EQ(outer->getDescendant("zz/b"), nullptr);
}

TEST(DataListDeathTest, DescendantPathAssertions) {
  auto outer = listOf({}, "outer");
  outer->appendChild(listOf({"b"}).release());
  EXPECT_DEATH(outer->getDescendant(""), "strlen");
  EXPECT_DEATH(outer->getDescendant("l//b"), "pszRelKey\\[0\\] != '/'");
  EXPECT_DEATH(outer->getDescendant(nullptr), "pszRelKey");
}

TEST(DataList, CloneMarksItsOwnCopyOfTheSpecialItem) {
  auto list = listOf({"a", "b", "c"});
  list->setSpecialItem(nth(*list, 1));
  std::unique_ptr<DebuggerData> copy(list->clone());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getSpecialItem(), nth(*copy, 1));
  EXPECT_NE(nth(*copy, 1), nth(*list, 1));
  EXPECT_TRUE(*copy == *list);

  // With duplicate sub keys the copy marks the last child of that sub key.
  auto dup = listOf({"x", "x"});
  dup->setSpecialItem(nth(*dup, 0));
  copy.reset(dup->clone());
  EXPECT_EQ(copy->getSpecialItem(), nth(*copy, 1));

  // Reading the members only forgets the special item.
  EXPECT_TRUE(list->deserializeMembers(nullptr));
  EXPECT_EQ(list->getSpecialItem(), nullptr);
  EXPECT_EQ(list->getConstList()->size(), 3u);
}

TEST(DataList, AssignmentCopiesNamesOnlyAndComparisonIsOneSided) {
  auto target = listOf({"a"}, "t");
  auto source = listOf({"b", "c"}, "s");
  source->setSpecialItem(nth(*source, 0));
  *target = *source;
  EXPECT_EQ(target->getSubKey(), "s");
  EXPECT_EQ(target->getConstList()->size(), 1u);
  EXPECT_EQ(target->getSpecialItem(), nullptr);
  EXPECT_FALSE(*target == *source);

  // Same children in another order, or a missing child, are unequal.
  EXPECT_FALSE(*listOf({"b", "c"}) == *listOf({"c", "b"}));
  EXPECT_TRUE(*listOf({"b", "c"}) == *listOf({"b", "c"}));
  EXPECT_FALSE(*listOf({"b"}) == *listOf({"b", "c"}));

  auto withContent = fill(make<DataListWC>("DataListWC", "l"), {"a"});
  withContent->setClassName("DataList");
  EXPECT_TRUE(*listOf({"a"}) == *withContent);  // compared as lists
  EXPECT_FALSE(*withContent == *listOf({"a"})); // a DataList is no DataListWC
}

TEST(DataList, OnlyTheLastChildDecidesTheResult) {
  RefusingWriter refuseFirst;
  EXPECT_TRUE(listOf({"bad", "good"})->serialize(&refuseFirst));
  RefusingWriter refuseLast;
  EXPECT_FALSE(listOf({"good", "bad"})->serialize(&refuseLast));
  // Every child is written even after a failure.
  EXPECT_NE(refuseLast.getText().find("SubKey=bad"), std::string::npos);
}

TEST(DataListWC, ContentIsOwnedClonedComparedAndWrittenLast) {
  auto list = fill(make<DataListWC>("DataListWC", "w"), {"a"});
  list->setSpecialItem(nth(*list, 0));
  auto* content = static_cast<DataElement*>(
      st_ddmanager.factory("StackFrameListContent", "c"));
  list->setContent(content);

  std::unique_ptr<DebuggerData> copy(list->clone());
  ASSERT_TRUE(copy && copy->getContent());
  EXPECT_NE(copy->getContent(), content);
  EXPECT_TRUE(*copy == *list);

  auto bare = fill(make<DataListWC>("DataListWC", "w"), {"a"});
  EXPECT_FALSE(*bare == *list);
  EXPECT_FALSE(*list == *bare);
  // Assignment shares the content pointer.
  *bare = *list;
  EXPECT_EQ(bare->getContent(), content);
  bare->setContent(nullptr);

  EXPECT_EQ(dumpText(*list), "DataListWC {\n"
                             "  ClassName=DataListWC\n"
                             "  SubKey=w\n"
                             "  values {\n"
                             "    SpecialItemSubKey=a\n"
                             "  }\n"
                             "  List {\n"
                             "    Child {\n"
                             "      DataElement {\n"
                             "        ClassName=RegisterGroup\n"
                             "        SubKey=a\n"
                             "        Name=a\n"
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
  EXPECT_EQ(dumpText(*listOf({})),
            "DataList {\n  ClassName=DataList\n  SubKey=l\n  List {\n  }\n}\n");
}

TEST(DataList, NullPointersInTheContainerAreSkipped) {
  auto list = listOf({"a"});
  list->getList()->push_front(nullptr);
  EXPECT_EQ(list->getChild("a"), nth(*list, 1));
  EXPECT_EQ(dumpText(*list), dumpText(*listOf({"a"})));
  list->setSpecialItem(std::string("a"));
  EXPECT_EQ(list->getSpecialItem(), nth(*list, 1));
  std::unique_ptr<DebuggerData> copy(list->clone());
  EXPECT_EQ(static_cast<DataList&>(*copy).getConstList()->size(), 1u);
  auto twin = listOf({"a"});
  twin->getList()->push_front(nullptr);
  EXPECT_TRUE(*list == *twin);
  EXPECT_FALSE(*list == *copy);
}
