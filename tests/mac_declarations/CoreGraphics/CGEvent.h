#pragma once

// Quartz event services: event taps, reading events and posting keyboard events.

#include <CoreFoundation/CFMachPort.h>
#include <CoreGraphics/CGGeometry.h>

typedef struct __CGEvent* CGEventRef;
typedef struct __CGEventTapProxy* CGEventTapProxy;
typedef struct __CGEventSource* CGEventSourceRef;
typedef uint16_t CGKeyCode;
typedef uint64_t CGEventMask;

VISTREL_ENUM(uint32_t, CGEventType){
    kCGEventNull = 0,
    kCGEventKeyDown = 10,
    kCGEventKeyUp = 11,
    kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
    kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};

typedef uint64_t CGEventFlags;

VISTREL_ENUM(uint32_t, CGEventField){
    kCGKeyboardEventAutorepeat = 8,
    kCGKeyboardEventKeycode = 9,
};

// Where a tap sits: where events enter the window server, where they enter a login
// session, or where they are delivered to applications.
VISTREL_ENUM(uint32_t, CGEventTapLocation){
    kCGHIDEventTap = 0,
    kCGSessionEventTap,
    kCGAnnotatedSessionEventTap,
};

VISTREL_ENUM(uint32_t, CGEventTapPlacement){
    kCGHeadInsertEventTap = 0,
    kCGTailAppendEventTap,
};

VISTREL_ENUM(uint32_t, CGEventTapOptions){
    kCGEventTapOptionDefault = 0x00000000,
    kCGEventTapOptionListenOnly = 0x00000001,
};

typedef CGEventRef (*CGEventTapCallBack)(CGEventTapProxy proxy, CGEventType type, CGEventRef event,
                                         void* userInfo);

VISTREL_EXTERN_C_BEGIN
// Null when the tap cannot be created (no permission, or the location is refused).
CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                               CGEventTapOptions options, CGEventMask eventsOfInterest,
                               CGEventTapCallBack callback, void* userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);

CGEventRef CGEventCreate(CGEventSourceRef source);
CGEventRef CGEventCreateKeyboardEvent(CGEventSourceRef source, CGKeyCode virtualKey, bool keyDown);
void CGEventPost(CGEventTapLocation tap, CGEventRef event);

CGPoint CGEventGetLocation(CGEventRef event);
CGEventFlags CGEventGetFlags(CGEventRef event);
int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field);
VISTREL_EXTERN_C_END
