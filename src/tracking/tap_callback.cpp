#include "tracking/tap_callback.h"

namespace vistrel {

namespace {

thread_local bool inCallback = false;

}  // namespace

bool TapCallback::running() {
    return inCallback;
}

TapCallback::Scope::Scope() : outer_(inCallback) {
    inCallback = true;
}

TapCallback::Scope::~Scope() {
    inCallback = outer_;
}

}  // namespace vistrel
