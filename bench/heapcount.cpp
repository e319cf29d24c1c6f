// Heap accounting for the memory cases: the program's operator new and
// operator delete (which the library and the XML library use too) count the
// usable size of every block taken and given back while counting is on.
//
// mallinfo2() was used before; it misses blocks that glibc hands out again
// from its per-thread cache, which it keeps counting as in use, so an object
// built from recycled blocks showed no growth at all.
#include "benchtree.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

bool s_counting = false;
long long s_bytes = 0;
long long s_blocks = 0;

void* allocate(std::size_t size) {
  void* block = std::malloc(size != 0 ? size : 1);
  if (!block)
    throw std::bad_alloc();
  if (s_counting) {
    s_bytes += static_cast<long long>(malloc_usable_size(block));
    ++s_blocks;
  }
  return block;
}

void* allocate(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return allocate(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void release(void* block) noexcept {
  if (!block)
    return;
  if (s_counting) {
    s_bytes -= static_cast<long long>(malloc_usable_size(block));
    --s_blocks;
  }
  std::free(block);
}

} // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept {
  return allocate(size, tag);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return allocate(size, tag);
}
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept {
  release(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  release(block);
}

namespace Bench {

HeapCounting::HeapCounting() {
  s_bytes = 0;
  s_blocks = 0;
  s_counting = true;
}

HeapCounting::~HeapCounting() { s_counting = false; }

HeapInUse HeapCounting::inUse() const {
  return HeapInUse{static_cast<double>(s_bytes), static_cast<double>(s_blocks)};
}

} // namespace Bench
