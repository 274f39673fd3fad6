#pragma once

#include <ColorSync/ColorSyncDevice.h>
