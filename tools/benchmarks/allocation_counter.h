#pragma once

#include <cstdint>

namespace vistrel::benchmarks {

// Heap allocations made through operator new on the calling thread since it started; the
// benchmark executable replaces the global operator new to count them.
std::uint64_t allocationsOnThisThread();

// Counts the allocations a stretch of code makes on this thread.
class AllocationScope {
  public:
    AllocationScope() : start_(allocationsOnThisThread()) {}
    std::uint64_t made() const { return allocationsOnThisThread() - start_; }

  private:
    std::uint64_t start_;
};

}  // namespace vistrel::benchmarks
