#pragma once

// The system control interface: reading a named kernel value such as "hw.model".

#include <stddef.h>

#include "vistrel_declarations.h"

VISTREL_EXTERN_C_BEGIN
// 0 on success; -1 with errno set on failure. With a null buffer, `oldlenp` receives the
// size the value needs.
int sysctlbyname(const char* name, void* oldp, size_t* oldlenp, void* newp, size_t newlen);
VISTREL_EXTERN_C_END
