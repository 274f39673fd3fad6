#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/sim/cairo_surface.h"

namespace vistrel {

// Compares a rendered picture with tests/views/reference/<name>.png, pixel by pixel with a
// small tolerance for anti-aliasing. On a mismatch the rendered picture and a diff picture
// are written to "image-diffs" next to the test executable and the message names them.
//
// To accept a changed drawing on purpose, regenerate the references and review them:
//   VISTREL_UPDATE_REFERENCE=1 ./build/tests/vistrel_tests_views --gtest_filter='*Reference*'
::testing::AssertionResult matchesReference(const CairoSurface& actual, const std::string& name);

}  // namespace vistrel
