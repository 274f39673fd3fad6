#pragma once

#include <Foundation/NSObjCRuntime.h>

// What a modal session (an alert, a panel) ended with.
typedef NSInteger NSModalResponse;

static const NSModalResponse NSModalResponseOK = 1;
static const NSModalResponse NSModalResponseCancel = 0;
