// Debug information of the debuggee: the debug-information node, the symbol
// browser (its query, its list and the symbols found), the source modules and
// the loadable images.
#ifndef DBGDATA_DEBUGINFODATA_H
#define DBGDATA_DEBUGINFODATA_H

#include "dataclass.h"

namespace Vemo {
namespace DbgData {

// The debug-information node; it has no fields of its own.
class DebugInfo : public DataElement {
  DD_DATA_CLASS(DebugInfo, DataElement)
};

// Content header of a symbol list; it has no fields of its own. Its class
// row stays unbound, so the factory does not create it by name.
class SymbolListContent : public DataElement {
  DD_DATA_CLASS(SymbolListContent, DataElement)
};

// One symbol found by the symbol browser.
class SymbolItem : public DataElement {
  DD_DATA_CLASS(SymbolItem, DataElement)

  const std::string& getExpression() const { return m_Expression; }
  void setExpression(const std::string& v) { m_Expression = v; }
  const std::string& getAddressText() const { return m_AddressText; }
  void setAddressText(const std::string& v) { m_AddressText = v; }
  const std::string& getSymbolName() const { return m_SymbolName; }
  void setSymbolName(const std::string& v) { m_SymbolName = v; }
  const std::string& getModuleName() const { return m_ModuleName; }
  void setModuleName(const std::string& v) { m_ModuleName = v; }
  const std::string& getFunctionName() const { return m_FunctionName; }
  void setFunctionName(const std::string& v) { m_FunctionName = v; }

private:
  std::string m_Expression;
  std::string m_AddressText;
  std::string m_SymbolName;
  std::string m_ModuleName;
  std::string m_FunctionName;
};

// The symbol browser's query.
class SymbolBrowserConfig : public DataElement {
  DD_DATA_CLASS(SymbolBrowserConfig, DataElement)

  const std::string& getModuleName() const { return m_ModuleName; }
  void setModuleName(const std::string& v) { m_ModuleName = v; }
  const std::string& getPatternString() const { return m_PatternString; }
  void setPatternString(const std::string& v) { m_PatternString = v; }
  bool getFunctionsOnly() const { return m_FunctionsOnly; }
  void setFunctionsOnly(bool v) { m_FunctionsOnly = v; }

private:
  std::string m_ModuleName;
  std::string m_PatternString;
  bool m_FunctionsOnly = false;
};

// Content header of a module list; it has no fields of its own.
class ModuleListContent : public DataElement {
  DD_DATA_CLASS(ModuleListContent, DataElement)
};

// One source module.
class ModuleItem : public DataElement {
  DD_DATA_CLASS(ModuleItem, DataElement)

  const std::string& getSrcFileName() const { return m_SrcFileName; }
  void setSrcFileName(const std::string& v) { m_SrcFileName = v; }
  const std::string& getSrcFilePath() const { return m_SrcFilePath; }
  void setSrcFilePath(const std::string& v) { m_SrcFilePath = v; }
  const std::string& getObjectFile() const { return m_ObjectFile; }
  void setObjectFile(const std::string& v) { m_ObjectFile = v; }
  const std::string& getObjectPath() const { return m_ObjectPath; }
  void setObjectPath(const std::string& v) { m_ObjectPath = v; }
  // Full key of another node of the hierarchy that belongs to the module.
  const DbgDataKey& getFullKey() const { return m_FullKey; }
  void setFullKey(const DbgDataKey& v) { m_FullKey = v; }

private:
  std::string m_SrcFileName;
  std::string m_SrcFilePath;
  std::string m_ObjectFile;
  std::string m_ObjectPath;
  DbgDataKey m_FullKey;
};

// One loaded or loadable image (executable or library).
class LoadableItem : public DataElement {
  DD_DATA_CLASS(LoadableItem, DataElement)

  // Bit of Flags that says the image's symbols are loaded; the other bits
  // belong to the engine.
  static constexpr unsigned long SymbolsLoaded = 0x1;

  const std::string& getName() const { return m_Name; }
  void setName(const std::string& v) { m_Name = v; }
  const std::string& getFileName() const { return m_FileName; }
  void setFileName(const std::string& v) { m_FileName = v; }
  const std::string& getVersion() const { return m_Version; }
  void setVersion(const std::string& v) { m_Version = v; }
  const std::string& getSymbolFileName() const { return m_SymbolFileName; }
  void setSymbolFileName(const std::string& v) { m_SymbolFileName = v; }
  unsigned long getLoadOrder() const { return m_LoadOrder; }
  void setLoadOrder(unsigned long v) { m_LoadOrder = v; }
  const Address& getLoadAddress() const { return m_LoadAddress; }
  void setLoadAddress(const Address& v) { m_LoadAddress = v; }
  // The setter is spelled with one "r" (like the key "PreferedAddress"),
  // the getter with two; clients know both spellings.
  const Address& getPreferredAddress() const { return m_PreferredAddress; }
  void setPreferedAddress(const Address& v) { m_PreferredAddress = v; }
  unsigned long getFlags() const { return m_Flags; }
  void setFlags(unsigned long v) { m_Flags = v; }
  // Sets the SymbolsLoaded bit and leaves the others as they are.
  void setSymbolsLoaded() { m_Flags |= SymbolsLoaded; }

private:
  std::string m_Name;
  std::string m_FileName;
  std::string m_Version;
  std::string m_SymbolFileName;
  unsigned long m_LoadOrder = 0;
  Address m_LoadAddress;
  Address m_PreferredAddress;
  unsigned long m_Flags = 0;
};

} // namespace DbgData
} // namespace Vemo

#endif
