#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace vistrel {

// Counts how often the system disabled the event tap (a callback too slow, or input held up)
// over the last minute. The tap is switched back on each time; only a tap disabled more than
// five times in a minute is worth a line in the log, and that once until it calms down.
class TapDisableCounter {
  public:
    static constexpr std::size_t tooMany = 6;
    static constexpr double window = 60;

    // Records one disabling at `now` (seconds): the number of them within the last minute
    // when it has just reached `tooMany`, nothing otherwise. Allocates nothing.
    std::optional<std::size_t> record(double now);

  private:
    std::array<double, tooMany> times_{};
    std::size_t recorded_ = 0;
    std::size_t next_ = 0;
    bool reported_ = false;
};

}  // namespace vistrel
