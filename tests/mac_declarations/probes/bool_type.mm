// Compiled by the check with EXPECTED_BOOL_IS_BOOL set for the target it checks.
#import <Foundation/Foundation.h>

#include <type_traits>

static_assert(std::is_same_v<BOOL, bool> == (EXPECTED_BOOL_IS_BOOL != 0),
              "BOOL is bool on arm64 and signed char on x86_64");
static_assert(std::is_same_v<BOOL, signed char> == (EXPECTED_BOOL_IS_BOOL == 0),
              "BOOL is bool on arm64 and signed char on x86_64");
