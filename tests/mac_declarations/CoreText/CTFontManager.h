#pragma once

#include <CoreFoundation/CFError.h>
#include <CoreFoundation/CFURL.h>

VISTREL_ENUM(uint32_t, CTFontManagerScope){
    kCTFontManagerScopeNone = 0,
    kCTFontManagerScopeProcess = 1,
    kCTFontManagerScopePersistent = 2,
    kCTFontManagerScopeSession = 3,
};

VISTREL_EXTERN_C_BEGIN
// False on failure, with the reason in *error (which the caller releases) when error is not null.
VISTREL_MACOS(10.6)
bool CTFontManagerRegisterFontsForURL(CFURLRef fontURL, CTFontManagerScope scope,
                                      CFErrorRef* error);
VISTREL_EXTERN_C_END
