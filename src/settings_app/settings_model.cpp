#include "settings_app/settings_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "settings_app/layout_list_editor.h"
#include "settings_app/settings_content.h"
#include "settings_app/settings_pictures.h"

namespace vistrel {

namespace {

// The agent's status keys, which status controls read.
constexpr std::array statusKeys = {
    PreferenceKey::agentAccessibilityTrusted, PreferenceKey::agentAccessibilityStale,
    PreferenceKey::agentLaunchAtLogin, PreferenceKey::agentLaunchAtLoginNeedsApproval};
// The refresh may come a little late so the system can coalesce wake-ups.
constexpr double refreshTolerance = 0.1;

std::string versionText() {
    const BundleInfo bundle = platform().workspace.mainBundle();
    if (bundle.build.empty()) return bundle.version;
    return bundle.version + " (" + bundle.build + ")";
}

bool seenFlag(const std::map<std::string, DefaultsValue>& seen, std::string_view key) {
    const auto found = seen.find(std::string(key));
    return found != seen.end() && found->second.boolean().value_or(false);
}

// A stale grant is no grant: the welcome guide waits until one that works.
bool trusted(const std::map<std::string, DefaultsValue>& seen) {
    return seenFlag(seen, PreferenceKey::agentAccessibilityTrusted) &&
           !seenFlag(seen, PreferenceKey::agentAccessibilityStale);
}

void post(CommandChannel::Command command, std::optional<bool> value) {
    DefaultsValue::Dictionary userInfo{
        {std::string(CommandChannel::commandKey), std::string(CommandChannel::name(command))}};
    if (value) userInfo.emplace(std::string(CommandChannel::valueKey), *value);
    platform().notifications.post(std::string(Shared::Command::name), userInfo);
}

}  // namespace

SettingsModel::SettingsModel(std::shared_ptr<DefaultsStore> store, LaunchOptions launch)
    : store_(std::move(store)) {
    SettingsContent content = SettingsContent::make(versionText());
    pages_ = std::move(content.pages);
    welcomeSteps_ = std::move(content.welcomeSteps);
    bindings_ = std::move(content.bindings);
    switch (launch.start) {
        case LaunchOptions::Start::welcome:
            mode_ = Mode::welcome;
            replay_ = launch.replay;
            break;
        case LaunchOptions::Start::about:
            selectedPage_ = PageId::about;
            break;
        case LaunchOptions::Start::settings:
            break;
    }
    lastSeen_ = snapshot();
}

SettingsModel::~SettingsModel() = default;

const Control* SettingsModel::control(std::string_view id) const {
    for (const auto* list : {&pages_, &welcomeSteps_}) {
        for (const Page& page : *list) {
            for (const Section& section : page.sections) {
                for (const Control& control : section.controls) {
                    if (control.id == id) return &control;
                }
            }
        }
    }
    return nullptr;
}

const ControlBinding* SettingsModel::binding(std::string_view id) const {
    const auto found = bindings_.find(id);
    return found == bindings_.end() ? nullptr : &found->second;
}

// --- What shows ---------------------------------------------------------------------------

const Page& SettingsModel::currentPage() const {
    if (mode_ == Mode::welcome) return welcomeSteps_.at(welcomeStep_);
    const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const Page& candidate) {
        return candidate.id == selectedPage_;
    });
    return page == pages_.end() ? pages_.front() : *page;
}

void SettingsModel::selectPage(PageId page) {
    mode_ = Mode::settings;
    selectedPage_ = page;
    shown();
}

void SettingsModel::showWelcome() {
    mode_ = Mode::welcome;
    welcomeStep_ = 0;
    replay_ =
        store_->object(std::string(PreferenceKey::onboardingCompleted)).boolean().value_or(false);
    shown();
}

bool SettingsModel::canGoBack() const {
    return mode_ == Mode::welcome && welcomeStep_ > 0;
}

bool SettingsModel::onLastStep() const {
    return welcomeStep_ + 1 >= welcomeSteps_.size();
}

std::string SettingsModel::continueTitle() const {
    if (!onLastStep()) return "Continue";
    return replay_ ? "Done" : "Start Using Vistrel";
}

void SettingsModel::goBack() {
    if (!canGoBack()) return;
    --welcomeStep_;
    shown();
}

void SettingsModel::goOn() {
    if (mode_ != Mode::welcome) return;
    if (onLastStep()) {
        store_->set(std::string(PreferenceKey::onboardingCompleted), true);
        mode_ = Mode::settings;
        selectedPage_ = PageId::general;
    } else {
        ++welcomeStep_;
    }
    shown();
}

void SettingsModel::setVisible(bool visible) {
    visible_ = visible;
    // What changed while the window was away shows at once; a grant given meanwhile moves
    // the welcome guide on as if it had been seen arriving.
    if (visible) refresh();
    scheduleRefresh();
}

void SettingsModel::shown() {
    lastSeen_ = snapshot();
    scheduleRefresh();
    changed();
}

std::set<std::string> SettingsModel::watchedKeys() const {
    std::set<std::string> keys;
    for (const Section& section : currentPage().sections) {
        for (const Control& control : section.controls) {
            const ControlBinding* bound = binding(control.id);
            if (bound == nullptr) continue;
            if (!bound->key.empty()) keys.insert(bound->key);
            if (bound->status) keys.insert(statusKeys.begin(), statusKeys.end());
        }
    }
    return keys;
}

void SettingsModel::scheduleRefresh() {
    if (!visible_ || watchedKeys().empty()) {
        refreshTimer_.reset();
        return;
    }
    if (refreshTimer_) return;
    std::weak_ptr<int> alive = alive_;
    refreshTimer_ =
        platform().executor.oneShot(statusRefreshInterval, refreshTolerance, [this, alive] {
            if (!alive.lock()) return;
            refreshTimer_.reset();
            refresh();
            scheduleRefresh();
        });
}

std::map<std::string, DefaultsValue> SettingsModel::snapshot() const {
    std::map<std::string, DefaultsValue> seen;
    for (const std::string& key : watchedKeys())
        seen.emplace(key, store_->object(key));
    return seen;
}

// Another process (the agent, its status panel) changed a key the page shows: observers
// redraw, and the grant the Accessibility step waits for moves the guide on.
void SettingsModel::refresh() {
    auto now = snapshot();
    if (now == lastSeen_) return;
    const bool granted = trusted(now) && !trusted(lastSeen_);
    lastSeen_ = std::move(now);
    if (granted && mode_ == Mode::welcome && currentPage().id == PageId::accessibility) {
        goOn();
        return;
    }
    changed();
}

// --- Values -------------------------------------------------------------------------------

bool SettingsModel::isOn(std::string_view id) const {
    const ControlBinding* bound = binding(id);
    if (bound == nullptr || bound->key.empty()) return false;
    const auto stored = store_->object(bound->key).boolean();
    const bool fallback = bound->read == ControlBinding::Read::flag && bound->defaultFlag;
    const bool value = stored.value_or(fallback);
    return bound->inverted ? !value : value;
}

void SettingsModel::setOn(std::string_view id, bool on) {
    const ControlBinding* bound = binding(id);
    if (bound == nullptr || (bound->read != ControlBinding::Read::flag &&
                             bound->read != ControlBinding::Read::plainFlag)) {
        return;
    }
    if (bound->writes) store_->set(bound->key, bound->inverted ? !on : on);
    if (bound->command) post(*bound->command, bound->sendsValue ? std::optional(on) : std::nullopt);
    changed();
}

std::string SettingsModel::choice(std::string_view id) const {
    const ControlBinding* bound = binding(id);
    const Control* shown = control(id);
    if (bound == nullptr || shown == nullptr) return {};
    const auto stored = store_->object(bound->key).string();
    const bool offered =
        stored && std::any_of(shown->options.begin(), shown->options.end(),
                              [&](const ChoiceOption& option) { return option.value == *stored; });
    return offered ? *stored : bound->defaultText;
}

void SettingsModel::choose(std::string_view id, const std::string& value) {
    const ControlBinding* bound = binding(id);
    const Control* shown = control(id);
    if (bound == nullptr || shown == nullptr || bound->read != ControlBinding::Read::text) return;
    const bool offered =
        std::any_of(shown->options.begin(), shown->options.end(),
                    [&](const ChoiceOption& option) { return option.value == value; });
    if (!offered) return;
    store_->set(bound->key, value);
    changed();
}

double SettingsModel::clamped(const Control& slider, double value) const {
    const SliderRange& range = slider.range;
    if (!std::isfinite(value)) return range.minimum;
    return std::clamp(value, range.minimum, range.maximum);
}

double SettingsModel::number(std::string_view id) const {
    const ControlBinding* bound = binding(id);
    const Control* shown = control(id);
    if (bound == nullptr || shown == nullptr) return 0;
    return clamped(*shown, store_->object(bound->key).number().value_or(bound->defaultNumber));
}

void SettingsModel::setNumber(std::string_view id, double value) {
    const ControlBinding* bound = binding(id);
    const Control* shown = control(id);
    if (bound == nullptr || shown == nullptr || bound->read != ControlBinding::Read::number) return;
    const SliderRange& range = shown->range;
    double stepped = clamped(*shown, value);
    if (range.step > 0) {
        stepped = range.minimum + std::round((stepped - range.minimum) / range.step) * range.step;
    }
    store_->set(bound->key, clamped(*shown, stepped));
    changed();
}

StatusState SettingsModel::status(std::string_view id) const {
    const ControlBinding* bound = binding(id);
    if (bound == nullptr || !bound->status) return {};
    return bound->status(*store_);
}

bool SettingsModel::isEnabled(std::string_view id) const {
    const ControlBinding* bound = binding(id);
    return bound == nullptr || bound->enabledBy.empty() || isOn(bound->enabledBy);
}

void SettingsModel::press(std::string_view id) {
    const Control* pressed = control(id);
    if (pressed == nullptr || !isEnabled(id)) return;
    if (pressed->kind == ControlKind::link) {
        platform().workspace.openURL(pressed->url);
        return;
    }
    const ControlBinding* bound = binding(id);
    if (bound == nullptr) return;
    if (bound->command) post(*bound->command, std::nullopt);
    if (bound->action) bound->action(*this);
}

std::shared_ptr<const DisplayList> SettingsModel::picture(std::string_view id,
                                                          Appearance appearance) const {
    const Control* shown = control(id);
    if (shown == nullptr || shown->kind != ControlKind::picture) return nullptr;
    return SettingsPictures(store_).draw(shown->picture, shown->pictureSize, appearance);
}

// --- Saved layouts ------------------------------------------------------------------------

std::vector<LayoutRow> SettingsModel::layouts() const {
    return LayoutListEditor(*store_).rows();
}

void SettingsModel::selectLayout(std::optional<UUID> id) {
    selectedLayout_ = id;
    changed();
}

std::optional<UUID> SettingsModel::selectedLayout() const {
    if (!selectedLayout_ || !LayoutListEditor(*store_).windows(*selectedLayout_)) return {};
    return selectedLayout_;
}

std::vector<LayoutWindowRow> SettingsModel::selectedLayoutWindows() const {
    if (!selectedLayout_) return {};
    return LayoutListEditor(*store_)
        .windows(*selectedLayout_)
        .value_or(std::vector<LayoutWindowRow>{});
}

bool SettingsModel::copyLayoutURL() {
    if (!selectedLayout_) return edited(false, "Choose a layout to copy its URL.");
    auto [ok, message] = LayoutListEditor(*store_).copyURL(*selectedLayout_);
    return edited(ok, std::move(message));
}

bool SettingsModel::edited(bool ok, std::string message) {
    layoutsMessage_ = std::move(message);
    layoutsMessageIsWarning_ = !ok && !layoutsMessage_.empty();
    changed();
    return ok;
}

bool SettingsModel::renameLayout(const UUID& id, const std::string& name) {
    auto [ok, message] = LayoutListEditor(*store_).rename(id, name);
    return edited(ok, std::move(message));
}

void SettingsModel::deleteLayout(const UUID& id) {
    auto [ok, message] = LayoutListEditor(*store_).remove(id);
    edited(ok, std::move(message));
}

void SettingsModel::moveLayout(std::size_t from, std::size_t to) {
    auto [ok, message] = LayoutListEditor(*store_).move(from, to);
    edited(ok, std::move(message));
}

bool SettingsModel::exportLayouts(const std::string& path) {
    auto [ok, message] = LayoutListEditor(*store_).exportTo(path);
    return edited(ok, std::move(message));
}

bool SettingsModel::importLayouts(const std::string& path) {
    auto [ok, message] = LayoutListEditor(*store_).importFrom(path);
    return edited(ok, std::move(message));
}

// --- Change notification ------------------------------------------------------------------

std::uint64_t SettingsModel::observe(Observer observer) {
    const std::uint64_t token = nextToken_++;
    observers_.emplace(token, std::move(observer));
    return token;
}

void SettingsModel::stopObserving(std::uint64_t token) {
    observers_.erase(token);
}

void SettingsModel::changed() {
    // A copy: an observer may stop observing while it is told.
    const auto observers = observers_;
    for (const auto& [token, observer] : observers)
        observer();
}

}  // namespace vistrel
