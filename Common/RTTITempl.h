// RTTITempl: the data model's own run-time class identity.
//
// Every class of one hierarchy owns one static identity object: its class
// name, a dense class id (the object's index in the one registry, so ids
// follow construction order and are valid only inside one process), its
// direct parents, and a factory that creates a default-constructed instance
// of the owning class.
#ifndef DBGDATA_COMMON_RTTITEMPL_H
#define DBGDATA_COMMON_RTTITEMPL_H

#include <vector>

namespace Vemo {
namespace DbgData {

template <class TOwnerHierBase> class RTTITempl {
public:
  // Registers this object; className is a literal, kept but not copied.
  explicit RTTITempl(const char* className);
  virtual ~RTTITempl();

  RTTITempl(const RTTITempl&) = delete;
  RTTITempl& operator=(const RTTITempl&) = delete;

  // New default-constructed instance owned by the caller, or null for
  // classes that cannot be instantiated.
  virtual TOwnerHierBase* createOwnerInstance() const = 0;

  void addParentRtti(const RTTITempl* pParentRtti);
  int getClassId() const { return _nClassId; }
  const char* getClassName() const { return _pszClassName; }
  const std::vector<const RTTITempl*>& getParents() const { return *_pParents; }

  // True when this class is pRtti's class, or (unless bExactOnly) derives
  // from it through any chain of parents.
  bool IsKindOf(const RTTITempl* pRtti, bool bExactOnly) const;

  // The registry: entry i is the identity object with class id i. Null
  // before the first registration and again once unloading has begun.
  static std::vector<const RTTITempl*>* s_parRegisteredRttis;

private:
  const char* _pszClassName;
  std::vector<const RTTITempl*>* _pParents;
  int _nClassId;
};

} // namespace DbgData
} // namespace Vemo

#include "RTTITempl.inl"

#endif
