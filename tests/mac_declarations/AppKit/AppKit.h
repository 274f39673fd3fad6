#pragma once

#include <ApplicationServices/ApplicationServices.h>
#include <Foundation/Foundation.h>

#include <AppKit/NSAnimationContext.h>
#include <AppKit/NSAppearance.h>
#include <AppKit/NSApplication.h>
#include <AppKit/NSBezierPath.h>
#include <AppKit/NSBitmapImageRep.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSFont.h>
#include <AppKit/NSGraphicsContext.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSResponder.h>
#include <AppKit/NSRunningApplication.h>
#include <AppKit/NSScreen.h>
#include <AppKit/NSView.h>
#include <AppKit/NSVisualEffectView.h>
#include <AppKit/NSWindow.h>
#include <AppKit/NSWorkspace.h>
