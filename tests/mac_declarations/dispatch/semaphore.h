#pragma once

#include <dispatch/object.h>
#include <dispatch/time.h>

VISTREL_DISPATCH_OBJECT(dispatch_semaphore);

VISTREL_EXTERN_C_BEGIN
dispatch_semaphore_t dispatch_semaphore_create(intptr_t value);
// Zero on success, non-zero when the timeout passed first.
intptr_t dispatch_semaphore_wait(dispatch_semaphore_t dsema, dispatch_time_t timeout);
intptr_t dispatch_semaphore_signal(dispatch_semaphore_t dsema);
VISTREL_EXTERN_C_END
