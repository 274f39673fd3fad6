#pragma once

#include <stdint.h>

#include "vistrel_declarations.h"

#define NSEC_PER_SEC 1000000000ull

typedef uint64_t dispatch_time_t;
#define DISPATCH_TIME_NOW (0ull)
#define DISPATCH_TIME_FOREVER (~0ull)

VISTREL_EXTERN_C_BEGIN
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
VISTREL_EXTERN_C_END
