// The debuggee tree, data-sharing and OpenMP classes: keys, write orders,
// writer types, defaults and asymmetries, and the thread a DataAccessItem
// owns.
#include "datasharingdata.h"
#include "ddmanager.h"
#include "debuggeedata.h"
#include "deserializer.h"
#include "deserializerhelperDOM.h"
#include "openmpdata.h"
#include "registerdata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "testsupport.h"
#include "testsupport_classes.h"
#include "testsupport_xml.h"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <set>

using namespace Vemo::DbgData;
using TestSupport::ClassCase;
using TestSupport::dumpText;
using TestSupport::FieldCase;
using TestSupport::on;

namespace {

const std::string kDefaultScope =
    "Scope( Address( 4 32 0 0 0 )Address 00 0 0 )Scope";
const std::string kLine7Scope =
    "Scope( Address( 4 32 0 0 0 )Address 00 7 0 )Scope";
// -1 and -2 widened with their sign to unsigned long.
const std::string kMinus1 = "18446744073709551615";
const std::string kMinus2 = "18446744073709551614";

StringVector vec(std::initializer_list<const char*> items) {
  StringVector v;
  for (const char* item : items)
    v.addItem(item);
  return v;
}

template <class E> E e(int value) { return static_cast<E>(value); }

const std::vector<std::string> kThreadLines = {"DbgID=",
                                               "OsID=",
                                               "NameID=",
                                               "LibID=",
                                               "Location=",
                                               "Type=0",
                                               "Scope=" + kDefaultScope,
                                               "OMPID=",
                                               "OMPType=0",
                                               "OMPState=0",
                                               "OMPTeamId=",
                                               "OMPThreadNum=0",
                                               "OMPBlockerId=",
                                               "OMPMemberships_Size=0",
                                               "ExecutionAttribute=",
                                               "ExecAttrFlag=0"};

// One sample per ThreadItem field, used on a ThreadItem itself and through
// DataAccessItem::setThread.
struct ThreadField {
  std::function<void(ThreadItem&)> set;
  std::string line;
};
const std::vector<ThreadField>& threadFields() {
  typedef ThreadItem T;
  static const std::vector<ThreadField> fields = {
      {[](T& t) { t.setDebuggerId("d"); }, "DbgID=d"},
      {[](T& t) { t.setOsId("o"); }, "OsID=o"},
      {[](T& t) { t.setNameId("n"); }, "NameID=n"},
      {[](T& t) { t.setLibraryId("l"); }, "LibID=l"},
      {[](T& t) { t.setLocation("a.c:3"); }, "Location=a.c:3"},
      {[](T& t) { t.setType(e<T::ThreadType>(-1)); }, "Type=-1"},
      {[](T& t) { t.setScope(Scope(Address(), DbgDataKey(), 7, 0)); },
       "Scope=" + kLine7Scope},
      {[](T& t) { t.setOMPId("5"); }, "OMPID=5"},
      {[](T& t) { t.setOMPType(e<T::_ompThrdType>(-1)); },
       "OMPType=" + kMinus1},
      {[](T& t) { t.setOMPState(e<T::_ompThrdState>(-2)); },
       "OMPState=" + kMinus2},
      {[](T& t) { t.setOMPTeamId("tm"); }, "OMPTeamId=tm"},
      {[](T& t) { t.setOMPThreadNum(4); }, "OMPThreadNum=4"},
      {[](T& t) { t.setOMPBlockerId("b"); }, "OMPBlockerId=b"},
      {[](T& t) {
         t.setOMPMemberships(vec({"x", "y"}));
       },
       "OMPMemberships_0x1=y"},
      {[](T& t) { t.setExecutionAttribute("x"); }, "ExecutionAttribute=x"},
      {[](T& t) { t.setExecAttrFlag(e<T::_threadExecAttribute>(-2)); },
       "ExecAttrFlag=-2"},
  };
  return fields;
}

std::vector<FieldCase> threadItemCases() {
  std::vector<FieldCase> cases;
  for (const ThreadField& f : threadFields())
    cases.push_back(
        {[set = f.set](DebuggerData& o) { set(static_cast<ThreadItem&>(o)); },
         f.line});
  return cases;
}

std::vector<FieldCase> dataAccessItemCases() {
  std::vector<FieldCase> cases;
  for (const ThreadField& f : threadFields())
    cases.push_back({[set = f.set](DebuggerData& o) {
                       ThreadItem thread;
                       set(thread);
                       static_cast<DataAccessItem&>(o).setThread(thread);
                     },
                     f.line});
  typedef DataAccessItem D;
  const std::vector<FieldCase> own = {
      {on(&D::setAccessLocationSrcLine, 7ul), "Scope=" + kLine7Scope},
      {on(&D::setSrcAccessLocationColumn, 9ul),
       "Scope=Scope( Address( 4 32 0 0 0 )Address 00 0 9 )Scope"},
      {on(&D::setAccessLocationSrcFullKey, DbgDataKey("/R")),
       "Scope=Scope( Address( 4 32 0 0 0 )Address 2F5200 0 0 )Scope"},
      {on(&D::setAccessLocationAddress, Address(0, 0x10, 0, 0, 64)),
       "Scope=Scope( Address( 0 64 0 10 0 )Address 00 0 0 )Scope"},
      {on(&D::setAccess, e<DataAccess>(-3)), "Access=-3"},
      {on(&D::setSymbol, "buf"), "Symbol=buf"},
      {on(&D::setAddress, Address(0, 0x20, 0, 1, 32)),
       "Address=Address( 1 32 0 20 0 )Address"},
      {on(&D::setFunctionName, "f"), "FunctionName=f"},
      {on(&D::setSrcFileName, "f.c"), "SrcFileName=f.c"},
  };
  cases.insert(cases.end(), own.begin(), own.end());
  return cases;
}

std::vector<std::string> dataAccessItemLines() {
  std::vector<std::string> lines = kThreadLines;
  for (const char* line :
       {"Access=0", "Symbol=", "Address=Address( 4 32 0 0 0 )Address",
        "FunctionName=", "SrcFileName="})
    lines.push_back(line);
  return lines;
}

// The four task-like OpenMP classes: their six leading fields.
template <class C, class Type, class State>
std::vector<FieldCase> leadingOpenMPFields() {
  return {{on(&C::setId, "i"), "Id=i"},
          {on(&C::setDisplayText, "t"), "DisplayText=t"},
          {on(&C::setType, e<Type>(-1)), "Type=" + kMinus1},
          {on(&C::setState, e<State>(-2)), "State=" + kMinus2},
          {on(&C::setSourceLocation, "s"), "SourceLocation=s"},
          {on(&C::setScope, Scope(Address(), DbgDataKey(), 7, 0)),
           "Scope=" + kLine7Scope}};
}
const std::vector<std::string> kLeadingOpenMPLines = {
    "Id=",     "DisplayText=",    "Type=0",
    "State=0", "SourceLocation=", "Scope=" + kDefaultScope};

std::vector<std::string> operator+(std::vector<std::string> a,
                                   const std::vector<std::string>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
std::vector<FieldCase> operator+(std::vector<FieldCase> a,
                                 const std::vector<FieldCase>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const std::vector<ClassCase>& classCases() {
  using namespace TestSupport;
  typedef OpenMPTask Tk;
  typedef OpenMPBarrier Br;
  typedef OpenMPTaskWait Tw;
  typedef OpenMPLock Lk;
  typedef OpenMPTeam Tm;
  typedef OpenMPExecEnv Env;
  typedef DataSharingFilterItem Flt;
  const unsigned versionQuirks = NotCompared | NotCloned | NotAssigned;
  static const std::vector<ClassCase> cases = {
      // The placeholders' one member has no accessor: defaults only.
      {"ParallelJobListContent", {"DummyContent="}, {}},
      {"ParallelJobItem", {"DummyContent="}, {}},
      {"JobListContent", {"DummyContent="}, {}},
      {"JobItem", {"DummyContent="}, {}},
      {"ProcessListContent", {"DummyContent="}, {}},
      {"ProcessItem", {"DummyContent="}, {}},
      {"ThreadListContent",
       {"WithThreadLibrarySupport=true"},
       {{on(&ThreadListContent::setWithThreadLibrarySupport, false),
         "WithThreadLibrarySupport=false"}}},
      {"ThreadItem", kThreadLines, threadItemCases()},
      {"ThreadSet",
       {"Name=", "Threads_Size=0",
        "Declaration=", "Normalized=", "Editable=false", "Deleteable=false"},
       {{on(&ThreadSet::setName, "n"), "Name=n"},
        {on(&ThreadSet::setThreads, vec({"1", "2"})), "Threads_0x1=2"},
        {on(&ThreadSet::setDeclaration, "d"), "Declaration=d"},
        {on(&ThreadSet::setNormalized, "1-2"), "Normalized=1-2"},
        {on(&ThreadSet::setEditable, true), "Editable=true"},
        {on(&ThreadSet::setDeleteable, true), "Deleteable=true"}}},
      {"DataSharingConfig",
       {"Enabled=false", "EventStop=true", "Reset=false"},
       {{on(&DataSharingConfig::setEnabled, true), "Enabled=true"},
        {on(&DataSharingConfig::setStopOnEvent, false), "EventStop=false"},
        {on(&DataSharingConfig::setReset, true), "Reset=true"}}},
      {"DataSharingFilterItem",
       {"ID=-1", "Type=0", "State=0",
        "Text=", "StartAddress=Address( 4 32 0 0 0 )Address",
        "EndAddress=Address( 4 32 0 0 0 )Address", "StartExpression=",
        "EndExpression=", "ByteCount=0", "UseSizeOf=false", "CodeFilterType=0"},
       {{on(&Flt::setId, 3), "ID=3"},
        {on(&Flt::setType, e<DataSharingFilterType>(-1)), "Type=-1"},
        {on(&Flt::setState, e<DataSharingFilterState>(2)), "State=2"},
        {on(&Flt::setDisplayText, "x"), "Text=x"},
        {on(&Flt::setStartAddress, Address(0, 0x10, 0, 1, 32)),
         "StartAddress=Address( 1 32 0 10 0 )Address"},
        {on(&Flt::setEndAddress, Address(0, 0x20, 0, 1, 32)),
         "EndAddress=Address( 1 32 0 20 0 )Address"},
        {on(&Flt::setStartExpression, "&a"), "StartExpression=&a"},
        {on(&Flt::setEndExpression, "&b"), "EndExpression=&b"},
        {on(&Flt::setByteCount, 8), "ByteCount=8"},
        {on(&Flt::setUseSizeOf, true), "UseSizeOf=true"},
        {on(&Flt::setCodeFilterType, e<DataSharingCodeFilterType>(-2)),
         "CodeFilterType=-2"}}},
      {"DataAccessItem", dataAccessItemLines(), dataAccessItemCases()},
      {"OpenMPTask",
       kLeadingOpenMPLines +
           std::vector<std::string>{
               "TeamId=", "ParentId=", "RunThreadId=", "SpawnedTaskIds_Size=0"},
       leadingOpenMPFields<Tk, Tk::_ompTaskType, Tk::_ompTaskState>() +
           std::vector<FieldCase>{
               {on(&Tk::setTeamId, "tm"), "TeamId=tm"},
               {on(&Tk::setParentId, "p"), "ParentId=p"},
               {on(&Tk::setRunThreadId, "r"), "RunThreadId=r"},
               {on(&Tk::setSpawnedTaskIds, vec({"a", "b"})),
                "SpawnedTaskIds_0x1=b"}}},
      {"OpenMPBarrier",
       kLeadingOpenMPLines +
           std::vector<std::string>{"TeamId=", "ReachedThreadIds_Size=0",
                                    "WaitedForTaskIds_Size=0"},
       leadingOpenMPFields<Br, Br::_ompBarrType, Br::_ompBarrState>() +
           std::vector<FieldCase>{
               {on(&Br::setTeamId, "tm"), "TeamId=tm"},
               {on(&Br::setReachedThreadIds, vec({"a", "b"})),
                "ReachedThreadIds_0x1=b"},
               {on(&Br::setWaitedForTaskIds, vec({"c", "d"})),
                "WaitedForTaskIds_0x1=d"}}},
      {"OpenMPTaskWait",
       kLeadingOpenMPLines + std::vector<std::string>{"EncounteredThreadId=",
                                                      "WaitedForTaskIds_Size=0",
                                                      "BindingTaskId="},
       leadingOpenMPFields<Tw, Tw::_ompTWaitType, Tw::_ompTWaitState>() +
           std::vector<FieldCase>{
               {on(&Tw::setEncounteredThreadId, "e"), "EncounteredThreadId=e"},
               {on(&Tw::setWaitedForTaskIds, vec({"c", "d"})),
                "WaitedForTaskIds_0x1=d"},
               {on(&Tw::setBindingTaskId, "b"), "BindingTaskId=b"}}},
      {"OpenMPLock",
       kLeadingOpenMPLines +
           std::vector<std::string>{"Level=0",
                                    "HoldingTaskId=", "WaitingTaskIds_Size=0"},
       leadingOpenMPFields<Lk, Lk::_ompLockType, Lk::_ompLockState>() +
           std::vector<FieldCase>{
               {on(&Lk::setLevel, 2ul), "Level=2"},
               {on(&Lk::setHoldingTaskId, "h"), "HoldingTaskId=h"},
               {on(&Lk::setWaitingTaskIds, vec({"c", "d"})),
                "WaitingTaskIds_0x1=d"}}},
      {"OpenMPTeam",
       {"Id=", "DisplayText=", "SourceLocation=", "Scope=" + kDefaultScope,
        "ParentId=", "MemberThreadIds_Size=0", "MemberThreadOmpIds_Size=0"},
       {{on(&Tm::setId, "i"), "Id=i"},
        {on(&Tm::setDisplayText, "t"), "DisplayText=t"},
        {on(&Tm::setParentId, "p"), "ParentId=p"},
        {on(&Tm::setMemberThreadIds, vec({"1", "2"})), "MemberThreadIds_0x1=2"},
        {on(&Tm::setMemberThreadOmpIds, vec({"0", "1"})),
         "MemberThreadOmpIds_0x1=1"},
        {on(&Tm::setSourceLocation, "s"), "SourceLocation=s"},
        {on(&Tm::setScope, Scope(Address(), DbgDataKey(), 7, 0)),
         "Scope=" + kLine7Scope}}},
      {"OpenMPExecEnv",
       {"MajorVersion=-1", "MinorVersion=-1", "NumThreads=-1",
        "MaxThreadsInTeam=-1", "NumProcs=-1", "InParallelRegion=-1",
        "DynAdjustThreads=-1", "NestedParallelism=-1", "Schedule=0",
        "MaxThreadsInProg=-1", "MaxNestedActiveParRegions=-1",
        "NumNestedParRegions=-1", "NumNestedActiveParRegions=-1"},
       {{on(&Env::setMajorVersion, 3), "MajorVersion=3", versionQuirks},
        {on(&Env::setMinorVersion, 1), "MinorVersion=1", versionQuirks},
        {on(&Env::setNumThreads, 4), "NumThreads=4"},
        {on(&Env::setMaxThreadsInTeam, 5), "MaxThreadsInTeam=5"},
        {on(&Env::setNumProcs, 6), "NumProcs=6"},
        {on(&Env::setInParallelRegion, 1), "InParallelRegion=1"},
        {on(&Env::setDynAdjustThreads, 0), "DynAdjustThreads=0"},
        {on(&Env::setNestedParallelism, 2), "NestedParallelism=2"},
        {on(&Env::setSchedule, e<Env::_ompSchedule>(-1)),
         "Schedule=" + kMinus1},
        {on(&Env::setMaxThreadsInProg, 7), "MaxThreadsInProg=7"},
        {on(&Env::setMaxNestedActiveParRegions, 8),
         "MaxNestedActiveParRegions=8"},
        {on(&Env::setNumNestedParRegions, 9), "NumNestedParRegions=9"},
        {on(&Env::setNumNestedActiveParRegions, 10),
         "NumNestedActiveParRegions=10"}}},
  };
  return cases;
}

} // namespace

TEST(DebuggeeClasses, DefaultsKeysAndWriteOrder) {
  TestSupport::checkDefaultsKeysAndWriteOrder(classCases());
}

TEST(DebuggeeClasses, EveryFieldIsComparedClonedAssignedAndWritten) {
  TestSupport::checkFieldsCompareCloneAssignAndWrite(classCases());
}

TEST(DebuggeeClassesDeathTest, AssigningAcrossClassesAborts) {
  TestSupport::checkAssigningAcrossClassesAborts(classCases());
}

TEST(DebuggeeClasses, NegativeEnumerationsComeBackThroughXml) {
  auto thread = TestSupport::make<ThreadItem>("ThreadItem", "3");
  for (const ThreadField& f : threadFields())
    f.set(*thread);
  auto task = TestSupport::make<OpenMPTask>("OpenMPTask", "t");
  task->setType(e<OpenMPTask::_ompTaskType>(-1));
  task->setState(e<OpenMPTask::_ompTaskState>(-2));
  auto env = TestSupport::make<OpenMPExecEnv>("OpenMPExecEnv", "env");
  env->setSchedule(e<OpenMPExecEnv::_ompSchedule>(-1));
  for (const DebuggerData* object : std::initializer_list<const DebuggerData*>{
           thread.get(), task.get(), env.get()}) {
    for (bool viaText : {false, true}) {
      auto copy = TestSupport::xmlRoundTrip(*object, viaText);
      ASSERT_TRUE(copy) << object->getClassName();
      EXPECT_TRUE(*copy == *object) << dumpText(*copy);
    }
  }
  auto copy = TestSupport::xmlRoundTrip(*task, true);
  EXPECT_EQ(static_cast<const OpenMPTask&>(*copy).getType(), -1);

  // A value written by another program as the unsigned long of the 32 bits
  // is narrowed to the same enumeration value.
  auto read = TestSupport::readXmlText(
      "<UserContentContainer><DataElement ClassName=\"OpenMPLock\" "
      "SubKey=\"l\"><values State=\"4294967295\" Type=\"7\"/></DataElement>"
      "</UserContentContainer>");
  ASSERT_TRUE(read);
  const auto& lock = static_cast<const OpenMPLock&>(*read);
  EXPECT_EQ(lock.getState(), -1);
  EXPECT_EQ(lock.getType(), 7);
}

TEST(OpenMPExecEnv, VersionsTravelButAreNeitherCopiedNorCompared) {
  auto env = TestSupport::make<OpenMPExecEnv>("OpenMPExecEnv", "env");
  env->setMajorVersion(3);
  env->setMinorVersion(1);
  std::unique_ptr<DebuggerData> clone(env->clone());
  const auto& cloned = static_cast<const OpenMPExecEnv&>(*clone);
  EXPECT_EQ(cloned.getMajorVersion(), -1);
  EXPECT_EQ(cloned.getMinorVersion(), -1);
  EXPECT_TRUE(cloned == *env && *env == cloned);

  auto read = TestSupport::xmlRoundTrip(*env, true);
  ASSERT_TRUE(read);
  const auto& back = static_cast<const OpenMPExecEnv&>(*read);
  EXPECT_EQ(back.getMajorVersion(), 3);
  EXPECT_EQ(back.getMinorVersion(), 1);
}

TEST(DataSharingConfig, DisabledIsTheNegationOfEnabled) {
  DataSharingConfig config;
  EXPECT_TRUE(config.isDisabled() && config.isStopOnEvent());
  config.setEnabled(true);
  EXPECT_FALSE(config.isDisabled());
}

TEST(DataAccessItem, OwnsOneThreadForItsLifeAndCopiesIntoIt) {
  auto item = TestSupport::make<DataAccessItem>("DataAccessItem", "a");
  const ThreadItem* const own = &item->getThread();
  EXPECT_EQ(own->getClassName(), "ThreadItem");

  // setThread copies the fields only, into the same object.
  auto source = TestSupport::make<ThreadItem>("ThreadItem", "other");
  source->setOsId("4711");
  source->setEngineData(new RegisterGroup());
  item->setThread(*source);
  EXPECT_EQ(&item->getThread(), own);
  EXPECT_EQ(item->getThread().getOsId(), "4711");
  EXPECT_EQ(item->getThread().getSubKey(), "");
  EXPECT_EQ(item->getThread().getEngineData(), nullptr);

  // The access location is the thread's location and scope.
  source->setLocation("a.c:9");
  item->setThread(*source);
  item->setAccessLocationSrcLine(7);
  item->setSrcAccessLocationColumn(2);
  item->setAccessLocationAddress(Address(0, 0x40, 0, 1, 32));
  EXPECT_EQ(item->getAccessLocation(), "a.c:9");
  const Scope& scope = item->getThread().getScope();
  EXPECT_EQ(scope.getNumber1(), 7u);
  EXPECT_EQ(scope.getNumber2(), 2u);
  EXPECT_EQ(scope.getAddress(), Address(0, 0x40, 0, 1, 32));
  EXPECT_EQ(item->getAccessLocationSrcColumn(), 2u);

  // Clone and assignment copy into the target's own thread.
  std::unique_ptr<DebuggerData> clone(item->clone());
  const auto& cloned = static_cast<const DataAccessItem&>(*clone);
  EXPECT_NE(&cloned.getThread(), own);
  EXPECT_TRUE(cloned == *item);
  auto target = TestSupport::make<DataAccessItem>("DataAccessItem", "b");
  const ThreadItem* const targetThread = &target->getThread();
  *target = *item;
  EXPECT_EQ(&target->getThread(), targetThread);
  EXPECT_EQ(dumpText(*target), dumpText(*item));

  auto read = TestSupport::xmlRoundTrip(*item, true);
  ASSERT_TRUE(read);
  EXPECT_TRUE(*read == *item);
}

TEST(DataAccessItemDeathTest, ChecksTheClassOfTheThreadItGets) {
  // With the thread row bound to another class, the factory hands out the
  // wrong kind of object and the item refuses it.
  EXPECT_DEATH(
      {
        DbgDataManager::bindClassIdentity(DDID_ThreadItem,
                                          RegisterItem::staticRtti());
        DataAccessItem item;
      },
      "isKindOf");
}

// Every key of a self-check sample carries a value that a reader would not
// produce without it, so a key lost on the way shows in the comparison. The
// exceptions: the placeholders' empty text, the versions that are not
// compared, and the two bools whose sample is false, which is also what a
// missing bool reads as.
TEST(DebuggeeSamples, DroppingAnyWrittenKeyChangesTheReadCopy) {
  const std::set<std::string> unnoticed = {
      "DummyContent", "MajorVersion", "MinorVersion",
      "WithThreadLibrarySupport", "EventStop"};
  static constexpr XmlLiteral kDataElement("DataElement");
  static constexpr XmlLiteral kValues("values");
  const auto valuesOf = [&](const SerializerHelperDOM& writer) {
    return static_cast<xercesc::DOMElement*>(findChildNamed(
        findChildNamed(writer.getDocument()->getDocumentElement(),
                       kDataElement.get()),
        kValues.get()));
  };
  for (const ClassCase& c : classCases()) {
    DebuggerDataID id;
    ASSERT_TRUE(st_ddmanager.getClassId(c.className, &id));
    std::unique_ptr<DebuggerData> sample(st_ddmanager.factory(id, "s"));
    ASSERT_TRUE(sample && findSelfCheckFill(id)) << c.className;
    findSelfCheckFill(id)(sample.get());

    SerializerHelperDOM probe;
    ASSERT_TRUE(sample->serialize(&probe));
    std::vector<std::string> keys;
    const xercesc::DOMNamedNodeMap* attributes =
        valuesOf(probe)->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
      keys.push_back(X2A(attributes->item(i)->getNodeName()).get());
    EXPECT_GE(keys.size(), c.defaultLines.size()) << c.className;

    for (const std::string& key : keys) {
      SerializerHelperDOM writer;
      ASSERT_TRUE(sample->serialize(&writer));
      valuesOf(writer)->removeAttribute(A2X(key).get());
      DeserializerHelperDOM reader(writer.getDocument()->getDocumentElement());
      std::unique_ptr<DebuggerData> copy(
          getDeserializer()->deserialize(&reader));
      ASSERT_TRUE(copy);
      EXPECT_EQ(*copy == *sample, unnoticed.count(key) == 1)
          << c.className << " without " << key;
    }
  }
}
