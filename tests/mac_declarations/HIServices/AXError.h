#pragma once

#include <CoreFoundation/CFBase.h>

VISTREL_ENUM(int32_t, AXError){
    kAXErrorSuccess = 0,
};
