#pragma once

#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"

namespace vistrel::testing {

// A test on a fresh simulated desktop, installed as the platform for the test's lifetime.
class SimTest : public ::testing::Test {
  protected:
    SimDesktop desktop;
    ScopedPlatform installed{desktop};
};

}  // namespace vistrel::testing
