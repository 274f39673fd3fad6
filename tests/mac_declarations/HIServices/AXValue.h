#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __AXValue* AXValueRef;

VISTREL_ENUM(uint32_t, AXValueType){
    kAXValueTypeCGPoint = 1,
    kAXValueTypeCGSize = 2,
    kAXValueTypeCGRect = 3,
};

VISTREL_EXTERN_C_BEGIN
CFTypeID AXValueGetTypeID(void);
AXValueRef AXValueCreate(AXValueType theType, const void* valuePtr);
AXValueType AXValueGetType(AXValueRef value);
Boolean AXValueGetValue(AXValueRef value, AXValueType theType, void* valuePtr);
VISTREL_EXTERN_C_END
