#pragma once

#include <CoreText/CTFontManager.h>
#include <CoreText/CTLine.h>
#include <CoreText/CTStringAttributes.h>
