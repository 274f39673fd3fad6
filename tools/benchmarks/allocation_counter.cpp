#include "allocation_counter.h"

#include <cstdlib>
#include <new>

namespace vistrel::benchmarks {

namespace {

// Per thread, so that work on other threads (the benchmark library's own, or queues a
// platform runs elsewhere) never counts against the thread being measured.
thread_local std::uint64_t allocations = 0;

void* allocate(std::size_t size) {
    ++allocations;
    // malloc(0) may answer null; operator new must not.
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void* allocateAligned(std::size_t size, std::align_val_t alignment) {
    ++allocations;
    const auto align = static_cast<std::size_t>(alignment);
    // aligned_alloc wants a size that is a multiple of the alignment.
    const std::size_t rounded = (size + align - 1) / align * align;
    if (void* memory = std::aligned_alloc(align, rounded == 0 ? align : rounded)) return memory;
    throw std::bad_alloc();
}

}  // namespace

std::uint64_t allocationsOnThisThread() {
    return allocations;
}

}  // namespace vistrel::benchmarks

using vistrel::benchmarks::allocate;
using vistrel::benchmarks::allocateAligned;

// Every replaceable form of the global operator new and delete goes through the counter.
void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocateAligned(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocateAligned(size, alignment);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
