#pragma once

#include <CoreFoundation/CFBase.h>

// A double on every 64-bit Mac.
typedef double CGFloat;
