#pragma once

// Sparkle 2, the update framework the app embeds. Written from Sparkle's API reference
// (sparkle-project.org/documentation/api-reference), as far as the agent calls it.

#include <Sparkle/SPUStandardUserDriver.h>
#include <Sparkle/SPUUpdater.h>
