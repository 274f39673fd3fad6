#pragma once

#include <float.h>

#include <CoreFoundation/CFBase.h>

// A double on every 64-bit Mac.
typedef double CGFloat;
// The largest CGFloat: CGFloat is a double on every 64-bit Mac.
#define CGFLOAT_MAX DBL_MAX
