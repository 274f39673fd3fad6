#include "platform/mac/mac_appearance.h"
#include "platform/mac/mac_appearance_name.h"

#import <AppKit/AppKit.h>

#include <iterator>
#include <map>

namespace {
NSString* const effectiveAppearanceKey = @"effectiveAppearance";
}  // namespace

// Watches NSApp.effectiveAppearance and tells every observer after a change.
@interface VistrelAppearanceObserver : NSObject
- (instancetype)initWithOwner:(vistrel::MacAppearance*)owner;
- (void)stop;
- (std::uint64_t)add:(vistrel::SystemAppearance::Observer)observer;
- (void)remove:(std::uint64_t)token;
@end

@implementation VistrelAppearanceObserver {
    std::map<std::uint64_t, vistrel::SystemAppearance::Observer> _observers;
    std::uint64_t _next;
    vistrel::MacAppearance* _owner;
}

- (instancetype)initWithOwner:(vistrel::MacAppearance*)owner {
    if ((self = [super init])) {
        _owner = owner;
        _next = 1;
        [NSApplication.sharedApplication addObserver:self
                                          forKeyPath:effectiveAppearanceKey
                                             options:NSKeyValueObservingOptionNew
                                             context:nullptr];
    }
    return self;
}

- (void)stop {
    [NSApplication.sharedApplication removeObserver:self forKeyPath:effectiveAppearanceKey];
}

- (std::uint64_t)add:(vistrel::SystemAppearance::Observer)observer {
    _observers[_next] = std::move(observer);
    return _next++;
}

- (void)remove:(std::uint64_t)token {
    _observers.erase(token);
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    (void)keyPath;
    (void)object;
    (void)change;
    (void)context;
    const vistrel::Appearance appearance = _owner->current();
    // A copy: an observer may stop observing while it is told.
    const auto observers = _observers;
    for (const auto& entry : observers)
        entry.second(appearance);
}

@end

namespace vistrel {

namespace {
VistrelAppearanceObserver* observerOf(void* observer) {
    return (__bridge VistrelAppearanceObserver*)observer;
}
}  // namespace

Appearance appearanceOf(NSAppearance* appearance) {
    const id candidates[] = {NSAppearanceNameAqua, NSAppearanceNameDarkAqua,
                             NSAppearanceNameAccessibilityHighContrastAqua,
                             NSAppearanceNameAccessibilityHighContrastDarkAqua};
    NSArray* names = [NSArray arrayWithObjects:candidates count:std::size(candidates)];
    // The answer is one of the names asked about, or nil.
    NSAppearanceName match = [appearance bestMatchFromAppearancesWithNames:names];
    const bool dark = match == NSAppearanceNameDarkAqua ||
                      match == NSAppearanceNameAccessibilityHighContrastDarkAqua;
    return dark ? Appearance::dark : Appearance::light;
}

// Nothing is observed until someone asks: the application object must not be made before
// the agent has decided to run one ("--diagnose" never does).
MacAppearance::MacAppearance() : observer_(nullptr) {}

MacAppearance::~MacAppearance() {
    if (observer_ == nullptr) return;
    VistrelAppearanceObserver* observer = (__bridge_transfer VistrelAppearanceObserver*)observer_;
    [observer stop];
}

Appearance MacAppearance::current() {
    return appearanceOf(NSApplication.sharedApplication.effectiveAppearance);
}

std::uint64_t MacAppearance::observe(Observer observer) {
    if (observer_ == nullptr) {
        observer_ = (__bridge_retained void*)[[VistrelAppearanceObserver alloc] initWithOwner:this];
    }
    return [observerOf(observer_) add:std::move(observer)];
}

void MacAppearance::stopObserving(std::uint64_t token) {
    if (observer_ != nullptr) [observerOf(observer_) remove:token];
}

}  // namespace vistrel
