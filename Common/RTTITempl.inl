// Out-of-line members of RTTITempl.
#include "DDAssert.h"

#include <new>

namespace Vemo {
namespace DbgData {

template <class TOwnerHierBase>
std::vector<const RTTITempl<TOwnerHierBase>*>*
    RTTITempl<TOwnerHierBase>::s_parRegisteredRttis = nullptr;

template <class TOwnerHierBase>
RTTITempl<TOwnerHierBase>::RTTITempl(const char* className)
    : _pszClassName(className), _pParents(new std::vector<const RTTITempl*>()),
      _nClassId(-1) {
  if (!s_parRegisteredRttis)
    s_parRegisteredRttis = new (std::nothrow) std::vector<const RTTITempl*>();
  DD_ASSERT(s_parRegisteredRttis);
  _nClassId = static_cast<int>(s_parRegisteredRttis->size());
  DD_ASSERT(_nClassId >= 0);
  s_parRegisteredRttis->push_back(this);
}

// Runs at unload. The first identity object destroyed frees the registry for
// all; nothing may consult it from then on, so later ones skip that step.
template <class TOwnerHierBase> RTTITempl<TOwnerHierBase>::~RTTITempl() {
  _nClassId = 0;
  if (s_parRegisteredRttis) {
    delete s_parRegisteredRttis;
    s_parRegisteredRttis = nullptr;
  }
  delete _pParents;
  _pParents = nullptr;
}

template <class TOwnerHierBase>
void RTTITempl<TOwnerHierBase>::addParentRtti(const RTTITempl* pParentRtti) {
  DD_ASSERT(pParentRtti);
  _pParents->push_back(pParentRtti);
}

template <class TOwnerHierBase>
bool RTTITempl<TOwnerHierBase>::IsKindOf(const RTTITempl* pRtti,
                                         bool bExactOnly) const {
  DD_ASSERT(pRtti);
  DD_ASSERT(pRtti->getClassId() >= 0);
  DD_ASSERT(getClassId() >= 0);
  if (getClassId() == pRtti->getClassId())
    return true;
  if (bExactOnly)
    return false;
  // Depth first through the parents in the order they were added.
  for (const RTTITempl* pParentRtti : *_pParents) {
    DD_ASSERT(pParentRtti);
    if (pParentRtti->IsKindOf(pRtti, false))
      return true;
  }
  return false;
}

} // namespace DbgData
} // namespace Vemo
