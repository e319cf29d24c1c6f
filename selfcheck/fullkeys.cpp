// The full-key checks: every builder of the data manager, called with fixed
// sample sub keys, must give a key that the parsing automaton consumes whole
// and classifies as the node that was built.
#include "selfcheck.h"

#include "dbgdatakey.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

using namespace Vemo::DbgData;

namespace {

// The sub keys handed to the builders, in argument order; no builder takes
// more than seven.
const std::string kSampleSubKeys[] = {"0", "1", "2", "3", "4", "5", "6"};

template <class... SubKeys, std::size_t... Index>
bool callWithSampleSubKeys(bool (DbgDataManager::*builder)(DbgDataKey&,
                                                           SubKeys...) const,
                           DbgDataKey& key, std::index_sequence<Index...>) {
  return (st_ddmanager.*builder)(key, kSampleSubKeys[Index]...);
}

// Calls the builder with as many sample sub keys as it takes.
template <class... SubKeys>
bool callWithSampleSubKeys(bool (DbgDataManager::*builder)(DbgDataKey&,
                                                           SubKeys...) const,
                           DbgDataKey& key) {
  static_assert(sizeof...(SubKeys) <= std::size(kSampleSubKeys),
                "more sub keys than samples");
  return callWithSampleSubKeys(builder, key,
                               std::index_sequence_for<SubKeys...>{});
}

template <auto Builder> bool buildWithSampleSubKeys(DbgDataKey& key) {
  return callWithSampleSubKeys(Builder, key);
}

} // namespace

bool runFullKeyCheck(bool (*build)(DbgDataKey& key),
                     DDHierarchyID expectedPlace) {
  DbgDataKey key;
  DbgDataManager::DataHierarchy hierarchy;
  const bool passed = build(key) && st_ddmanager.parseFullKey(key, hierarchy) &&
                      hierarchy.place == expectedPlace && hierarchy.key == key;
  if (passed)
    report_fullkey_ok(key);
  else
    error_fullkey(key);
  return passed;
}

#define DD_DEFINE_FULLKEY_CHECK(Node, Place)                                   \
  bool checkFullKey##Node() {                                                  \
    return runFullKeyCheck(                                                    \
        &buildWithSampleSubKeys<&DbgDataManager::createFullKey##Node>, Place); \
  }
DD_SELFCHECK_FULLKEY_NODES(DD_DEFINE_FULLKEY_CHECK)
#undef DD_DEFINE_FULLKEY_CHECK

const SelfCheckFullKeyCheck* getSelfCheckFullKeyChecks(std::size_t* count) {
#define DD_FULLKEY_CHECK_ROW(Node, Place) {#Node, &checkFullKey##Node},
  static const SelfCheckFullKeyCheck checks[] = {
      DD_SELFCHECK_FULLKEY_NODES(DD_FULLKEY_CHECK_ROW)};
#undef DD_FULLKEY_CHECK_ROW
  if (count)
    *count = std::size(checks);
  return checks;
}
