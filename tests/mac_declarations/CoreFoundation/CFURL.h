#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFURL* CFURLRef;
