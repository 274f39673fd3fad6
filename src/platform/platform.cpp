#include "platform/platform.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace vistrel {

namespace {
std::atomic<Platform*> installed{nullptr};
std::atomic<std::uint64_t> generation{0};
}  // namespace

Platform& platform() {
    Platform* current = installed.load();
    if (current == nullptr) {
        std::fputs("vistrel: no platform installed\n", stderr);
        std::abort();
    }
    return *current;
}

void installPlatform(Platform* platform) {
    installed.store(platform);
    generation.fetch_add(1);
}

std::uint64_t platformGeneration() {
    return generation.load();
}

}  // namespace vistrel
