#pragma once

#include <CoreFoundation/CFData.h>
#include <CoreGraphics/CGBase.h>

typedef struct CGDataProvider* CGDataProviderRef;

VISTREL_EXTERN_C_BEGIN
CGDataProviderRef CGDataProviderCreateWithCFData(CFDataRef data);
VISTREL_EXTERN_C_END
