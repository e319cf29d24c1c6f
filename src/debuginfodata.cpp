#include "debuginfodata.h"

namespace Vemo {
namespace DbgData {

template <class FieldVisitor> void DebugInfo::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(DebugInfo, "src/debuginfodata.cpp")

template <class FieldVisitor>
void SymbolListContent::describeFields(FieldVisitor&) {}
// Not created by the factory: its row keeps no class.
DD_DATA_CLASS_IMPL_UNBOUND(SymbolListContent, "src/debuginfodata.cpp")

template <class FieldVisitor>
void SymbolItem::describeFields(FieldVisitor& field) {
  field("Expression", &SymbolItem::m_Expression);
  field("AddressText", &SymbolItem::m_AddressText);
  field("SymbolName", &SymbolItem::m_SymbolName);
  field("ModuleName", &SymbolItem::m_ModuleName);
  field("FunctionName", &SymbolItem::m_FunctionName);
}
DD_DATA_CLASS_IMPL(SymbolItem, "src/debuginfodata.cpp")

template <class FieldVisitor>
void SymbolBrowserConfig::describeFields(FieldVisitor& field) {
  field("ModuleName", &SymbolBrowserConfig::m_ModuleName);
  field("PatternString", &SymbolBrowserConfig::m_PatternString);
  field("FunctionsOnly", &SymbolBrowserConfig::m_FunctionsOnly);
}
DD_DATA_CLASS_IMPL(SymbolBrowserConfig, "src/debuginfodata.cpp")

template <class FieldVisitor>
void ModuleListContent::describeFields(FieldVisitor&) {}
DD_DATA_CLASS_IMPL(ModuleListContent, "src/debuginfodata.cpp")

template <class FieldVisitor>
void ModuleItem::describeFields(FieldVisitor& field) {
  field("SrcFileName", &ModuleItem::m_SrcFileName);
  field("SrcFilePath", &ModuleItem::m_SrcFilePath);
  field("ObjectFile", &ModuleItem::m_ObjectFile);
  field("ObjectPath", &ModuleItem::m_ObjectPath);
  field("FullKey", &ModuleItem::m_FullKey);
}
DD_DATA_CLASS_IMPL(ModuleItem, "src/debuginfodata.cpp")

// Both addresses come before LoadOrder and Flags; the preferred address
// keeps its key's one-"r" spelling.
template <class FieldVisitor>
void LoadableItem::describeFields(FieldVisitor& field) {
  field("Name", &LoadableItem::m_Name);
  field("FileName", &LoadableItem::m_FileName);
  field("Version", &LoadableItem::m_Version);
  field("SymbolFileName", &LoadableItem::m_SymbolFileName);
  field("LoadAddress", &LoadableItem::m_LoadAddress);
  field("PreferedAddress", &LoadableItem::m_PreferredAddress);
  field("LoadOrder", &LoadableItem::m_LoadOrder);
  field("Flags", &LoadableItem::m_Flags);
}
DD_DATA_CLASS_IMPL(LoadableItem, "src/debuginfodata.cpp")

} // namespace DbgData
} // namespace Vemo
