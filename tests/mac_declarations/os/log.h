#pragma once

// Unified logging (os_log). An os_log_t is an Objective-C object in Objective-C code.

#include <stdint.h>

#include "vistrel_declarations.h"

#ifdef __OBJC__
#include <objc/NSObject.h>
@protocol OS_os_log <NSObject>
@end
typedef NSObject<OS_os_log>* os_log_t;
#else
typedef struct os_log_s* os_log_t;
#endif

VISTREL_ENUM(uint8_t, os_log_type_t){
    OS_LOG_TYPE_DEFAULT = 0x00, OS_LOG_TYPE_INFO = 0x01,  OS_LOG_TYPE_DEBUG = 0x02,
    OS_LOG_TYPE_ERROR = 0x10,   OS_LOG_TYPE_FAULT = 0x11,
};

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.12) os_log_t os_log_create(const char* subsystem, const char* category);
VISTREL_EXTERN_C_END

// Checks the log and the level; the compiler checks the format and its arguments, including
// the {public} and {private} annotations.
inline void os_log_declaration_check(os_log_t, os_log_type_t) {}

#define os_log_with_type(log, type, format, ...) \
    (os_log_declaration_check((log), (type)),    \
     (void)__builtin_os_log_format_buffer_size(format, ##__VA_ARGS__))
