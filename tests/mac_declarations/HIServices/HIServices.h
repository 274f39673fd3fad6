#pragma once

#include <HIServices/AXError.h>
#include <HIServices/AXUIElement.h>
#include <HIServices/AXValue.h>
