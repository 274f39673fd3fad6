#pragma once

// The Objective-C runtime's basic types. `id`, `Class` and `SEL` are built into the compiler.
// BOOL is `bool` on Apple silicon and `signed char` on Intel Macs.

#ifndef OBJC_BOOL_IS_BOOL
#if defined(__arm64__)
#define OBJC_BOOL_IS_BOOL 1
#else
#define OBJC_BOOL_IS_BOOL 0
#endif
#endif

#if OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES __objc_yes
#define NO __objc_no

#define nil nullptr
#define Nil nullptr
