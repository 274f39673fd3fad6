#pragma once

// Helpers shared by the declaration files: availability as Apple documents it, and the two
// shapes its enumerations take in C++ (a typed enum, or an integer type with named flags).

#define VISTREL_MACOS(version) __attribute__((availability(macos, introduced = version)))

#define VISTREL_ENUM(type, name) enum name : type
#define VISTREL_OPTIONS(type, name) \
    typedef type name;              \
    enum : type

// Functions and constants with C linkage, as the C frameworks export them.
#define VISTREL_EXTERN_C_BEGIN extern "C" {
#define VISTREL_EXTERN_C_END }
