#include "platform/sim/sim_appearance.h"

#include <vector>

namespace vistrel {

std::uint64_t SimAppearance::observe(Observer observer) {
    if (failObserving) return 0;
    observers_[next_] = std::move(observer);
    return next_++;
}

void SimAppearance::set(Appearance appearance) {
    if (appearance == appearance_) return;
    appearance_ = appearance;
    std::vector<Observer> observers;
    for (const auto& [token, observer] : observers_)
        observers.push_back(observer);
    for (const Observer& observer : observers)
        observer(appearance);
}

}  // namespace vistrel
