// Counts read from outside may claim any size: what the library holds after
// reading a document is bounded by the document. Each crafted document here
// is well under a kilobyte and claims gigabytes; reading it must answer
// false, leave the member empty, and never ask for a large block.
#include "ddmanager.h"
#include "debuggeedata.h"
#include "deserializerhelperDOM.h"
#include "memorydata.h"
#include "simdevaldata.h"
#include "sourcedata.h"
#include "stringlistdata.h"
#include "testsupport_xml.h"
#include "xmltext.h"

#include <gtest/gtest.h>

#include <xercesc/dom/DOM.hpp>

#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <string>

using namespace Vemo::DbgData;

namespace {

// The largest single block asked of operator new while a probe is active.
// The replaced operator new below serves the library too, since the test
// program's definition takes precedence over the shared library's.
std::size_t g_largestBlock = 0;
bool g_probing = false;

struct LargestBlockProbe {
  LargestBlockProbe() {
    g_largestBlock = 0;
    g_probing = true;
  }
  ~LargestBlockProbe() { g_probing = false; }
  std::size_t largest() const { return g_largestBlock; }
};

} // namespace

// AddressSanitizer brings its own operator new, which must not be replaced;
// there the fuzzer's allocation limit stands for this probe.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define DBGDATA_ASAN 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(DBGDATA_ASAN)
#define DBGDATA_PROBE_BLOCKS 0
#else
#define DBGDATA_PROBE_BLOCKS 1
void* operator new(std::size_t size) {
  if (g_probing && size > g_largestBlock)
    g_largestBlock = size;
  if (void* block = std::malloc(size ? size : 1))
    return block;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
#endif

namespace {

struct Crafted {
  const char* className;
  const char* values; // attributes of the object's "values" element
  // Whether what was read is empty, as the refusal leaves it.
  std::function<bool(const DebuggerData&)> empty;
};

std::string documentOf(const Crafted& c) {
  return std::string("<UserContentContainer><DataElement ClassName=\"") +
         c.className + "\" SubKey=\"k\"><attributes/><values " + c.values +
         "/></DataElement></UserContentContainer>";
}

template <class T>
std::function<bool(const DebuggerData&)> emptyIf(bool (*test)(const T&)) {
  return
      [test](const DebuggerData& o) { return test(static_cast<const T&>(o)); };
}

} // namespace

TEST(BoundedMemory, HugeCountsAreRefusedWithoutLargeBlocks) {
  const Crafted cases[] = {
      {"MemoryItem", "ArraySize=\"4294967295\" ByteArray=\"00FF\"",
       emptyIf<MemoryItem>([](const MemoryItem& m) {
         return m.getArraySize() == 0 && m.getByteArray() == nullptr;
       })},
      {"SIMDEvalRowContent", "ArraySize=\"4000000000\" ByteArray=\"AB\"",
       emptyIf<SIMDEvalRowContent>([](const SIMDEvalRowContent& r) {
         return r.getArraySize() == 0 && r.getByteArray() == nullptr;
       })},
      {"SourceItem", "NoOfLines=\"4000000000\" ByteArray=\"0011223344556677\"",
       emptyIf<SourceItem>(
           [](const SourceItem& s) { return s.getNoOfLines() == 0; })},
      {"SourceItem", "NoOfLines=\"18446744073709551615\"",
       emptyIf<SourceItem>(
           [](const SourceItem& s) { return s.getNoOfLines() == 0; })},
      {"StringList", "NumOfElements=\"1000000000\" LF0000=\"a\"",
       emptyIf<StringList>(
           [](const StringList& l) { return l.getSize() == 0; })},
      {"ThreadItem",
       "OMPMemberships_Size=\"3000000000\" OMPMemberships_0=\"t\"",
       emptyIf<ThreadItem>([](const ThreadItem& t) {
         return t.getOMPMemberships().getSize() == 0;
       })},
      // Below any constant bound, yet far more items than the section
      // holds: re-writing that many empty items took the fuzzer minutes.
      {"ThreadItem", "OMPMemberships_Size=\"95061\" OMPMemberships_0=\"t\"",
       emptyIf<ThreadItem>([](const ThreadItem& t) {
         return t.getOMPMemberships().getSize() == 0;
       })},
      {"ThreadSet", "Threads_Size=\"99999999999\"",
       emptyIf<ThreadSet>(
           [](const ThreadSet& t) { return t.getThreads().getSize() == 0; })},
  };
  for (const Crafted& c : cases) {
    const std::string text = documentOf(c);
    SCOPED_TRACE(text);
    ASSERT_LT(text.size(), 1024u);
    XmlTextDocument document;
    ASSERT_TRUE(document.parse(text)) << document.getError().message;

    LargestBlockProbe probe;
    DeserializerHelperDOM reader(document.getDocumentElement());
    ASSERT_TRUE(reader.pushSection("DataElement"));
    std::unique_ptr<DebuggerData> object(
        st_ddmanager.factory(c.className, "k"));
    ASSERT_TRUE(object);
    EXPECT_FALSE(object->deserializeMembers(&reader));
    EXPECT_TRUE(c.empty(*object));
    // A small multiple of the document, whatever the count claimed.
    if (DBGDATA_PROBE_BLOCKS) {
      EXPECT_LT(probe.largest(), 64u * 1024) << c.className;
    }

    // The whole path through the deserializer gives the same object.
    std::unique_ptr<DebuggerData> read = TestSupport::readXmlText(text);
    ASSERT_TRUE(read);
    EXPECT_TRUE(c.empty(*read));
  }
}
