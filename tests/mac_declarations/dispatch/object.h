#pragma once

// Dispatch objects are Objective-C objects in Objective-C code (ARC manages them) and
// opaque pointers in C++.

#include <stdint.h>

#include "vistrel_declarations.h"

// clang-format off
#ifdef __OBJC__
#include <objc/NSObject.h>
#define VISTREL_DISPATCH_OBJECT(name) \
    @protocol OS_##name <NSObject>    \
    @end                              \
    typedef NSObject<OS_##name>* name##_t
#else
#define VISTREL_DISPATCH_OBJECT(name) typedef struct name##_s* name##_t
#endif
// clang-format on

typedef void (^dispatch_block_t)(void);
