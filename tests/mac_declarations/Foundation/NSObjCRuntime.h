#pragma once

#include <limits.h>

#include <objc/objc.h>

#include "vistrel_declarations.h"

typedef long NSInteger;
typedef unsigned long NSUInteger;

static const NSInteger NSNotFound = LONG_MAX;
