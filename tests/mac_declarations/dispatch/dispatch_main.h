#pragma once

// Running the main queue in a process without a run loop of its own.

#include <dispatch/object.h>

VISTREL_EXTERN_C_BEGIN
// Parks the main thread and runs the blocks submitted to the main queue; never returns.
__attribute__((noreturn)) void dispatch_main(void);
VISTREL_EXTERN_C_END
