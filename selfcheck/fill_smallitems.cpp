// Sample objects of the self-check for events, signals, process info,
// plug-in data and the small items, and the self-check's own plug-in data.
#include "selfcheck.h"

#include "deserializer.h"
#include "eventsdata.h"
#include "iplugindata.h"
#include "plugindataitem.h"
#include "processinfodata.h"
#include "reentrantcallinfo.h"
#include "signaldata.h"
#include "stringlistdata.h"
#include "usertoolbardata.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Vemo::DbgData;

namespace {

const char* const kSelfCheckPlugInDataKey = "SelfCheckPlugInData";

// A plug-in's data object as the self-check imagines one: a text and a
// number, written next to its plug-in data key.
class SelfCheckPlugInData : public IPlugInData {
public:
  SelfCheckPlugInData(std::string text, long number)
      : m_text(std::move(text)), m_number(number) {}

  bool serialize(ISerializerHelper* writer) const override {
    bool result = writer->setString("PlugInDataKey", kSelfCheckPlugInDataKey);
    result = writer->setString("PlugInText", m_text) && result;
    return writer->setInt("PlugInNumber", m_number) && result;
  }
  bool deserialize(IDeserializerHelper* reader) override {
    const bool text = reader->getString("PlugInText", &m_text);
    return reader->getInt("PlugInNumber", &m_number) && text;
  }
  bool compare(const IPlugInData* other) const override {
    const auto* same = dynamic_cast<const SelfCheckPlugInData*>(other);
    return same && same->m_text == m_text && same->m_number == m_number;
  }
  IPlugInData* clone() const override;

private:
  std::string m_text;
  long m_number;
};

// Owns every SelfCheckPlugInData there is: the items that point at them
// never do. Freed at the end of the process.
std::vector<std::unique_ptr<SelfCheckPlugInData>>& plugInDataPool() {
  static std::vector<std::unique_ptr<SelfCheckPlugInData>> pool;
  return pool;
}

SelfCheckPlugInData* makePlugInData(const std::string& text, long number) {
  plugInDataPool().push_back(
      std::make_unique<SelfCheckPlugInData>(text, number));
  return plugInDataPool().back().get();
}

IPlugInData* SelfCheckPlugInData::clone() const {
  return makePlugInData(m_text, m_number);
}

class SelfCheckPlugInDataFactory : public IPlugInDataFactory {
public:
  IPlugInData* createPlugInData(const std::string& plugInDataKey) override {
    // Empty; the item's deserializeMembers lets it read its values.
    return plugInDataKey == kSelfCheckPlugInDataKey ? makePlugInData("", 0)
                                                    : nullptr;
  }
};

} // namespace

IPlugInDataFactory* getSelfCheckPlugInDataFactory() {
  static SelfCheckPlugInDataFactory factory;
  return &factory;
}

void fillEvents(Events* object) { attachEngineData(object); }
DD_SELFCHECK_FILL(DDID_Events, Events, fillEvents)

void fillSignalListContent(SignalListContent* object) {
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SignalListContent, SignalListContent,
                  fillSignalListContent)

void fillSignalItem(SignalItem* object) {
  object->setName("SIGINT");
  object->setStop(true);
  object->setPrint(true);
  object->setPassToProg(true);
  object->setDescription("Interrupt from keyboard");
  object->setReadOnly(true);
  object->setTriggered(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_SignalItem, SignalItem, fillSignalItem)

void fillProcessInfoListContent(ProcessInfoListContent* object) {
  object->setDescriptionHeader("User / Start time");
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ProcessInfoListContent, ProcessInfoListContent,
                  fillProcessInfoListContent)

void fillProcessInfoItem(ProcessInfoItem* object) {
  object->setCommand("/usr/bin/zmtapp --verbose input.dat");
  object->setPID("4711");
  object->setDescription("zmtuser 10:42");
  object->setAttached(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ProcessInfoItem, ProcessInfoItem, fillProcessInfoItem)

void fillPlugInDataItem(PlugInDataItem* object) {
  object->setPlugInData(makePlugInData("ZMT plug-in <data> & more", -42));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_PlugInItem, PlugInDataItem, fillPlugInDataItem)

void fillReEntrantCallItem(ReEntrantCallItem* object) {
  object->setAddressText("0x00401a2c");
  object->setEnableDetection(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_ReEntrantCallInfo, ReEntrantCallItem,
                  fillReEntrantCallItem)

void fillStringList(StringList* object) {
  for (int i = 0; i < 12; ++i)
    object->addStringItem("String item " + std::to_string(i));
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_StringList, StringList, fillStringList)

void fillUserToolBarItem(UserToolBarItem* object) {
  object->setName("Step & Show");
  object->setCommand("step\nshow registers");
  object->setToolTip("Steps one line and shows the registers");
  object->setArguments();
  object->setExecute(true);
  attachEngineData(object);
}
DD_SELFCHECK_FILL(DDID_UserToolBarItem, UserToolBarItem, fillUserToolBarItem)
