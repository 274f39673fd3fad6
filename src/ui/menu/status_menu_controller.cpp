#include "ui/menu/status_menu_controller.h"

#include "base/log.h"
#include "layouts/display_follower.h"
#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "ui/kit/dfkit_icon_button.h"
#include "ui/kit/dfkit_menu_item.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

constexpr std::uint64_t deviceIndependentFlags = 0xFFFF0000;
constexpr std::uint64_t commandFlag = 0x100000;
constexpr const char* accessibilityLabel = "Vistrel";
constexpr const char* hideToolTip = "Open Vistrel again from Applications to bring it back.";
// How far up the primary display's visible frame a message after a restore stands.
constexpr double toastRise = 0.2;

MenuItemState loginItemState(LoginItemStatus status) {
    switch (status) {
        case LoginItemStatus::enabled:
            return MenuItemState::on;
        case LoginItemStatus::requiresApproval:
            return MenuItemState::mixed;
        default:
            return MenuItemState::off;
    }
}

}  // namespace

std::shared_ptr<StatusMenuController> StatusMenuController::make(DFKitFonts* fonts) {
    std::shared_ptr<StatusMenuController> controller(new StatusMenuController());
    controller->fonts_ = fonts;
    controller->init();
    return controller;
}

void StatusMenuController::init() {
    item_ = platform().statusBar.makeSquareItem();
    if (!item_) {
        Log::error("status item could not be made");
        return;
    }
    applyMark();
    item_->setAccessibilityLabel(accessibilityLabel);
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    item_->setAction([weak] {
        if (auto self = weak.lock()) self->clicked();
    });
    DisplayFollower::shared().setOnOfferChanged([weak] {
        if (auto self = weak.lock()) self->applyMark();
    });
    applyVisibility();
}

void StatusMenuController::applyMark() {
    if (!item_) return;
    const bool dotted = DisplayFollower::shared().offer().has_value();
    // Black on clear: as a template, the menu bar tints it.
    item_->setTemplateImage(markImage(app_.mark, markSize, Color::black(), dotted),
                            {markSize, markSize});
}

void StatusMenuController::applyVisibility() {
    if (item_) item_->setVisible(!Settings::shared().menuBarIconHidden());
}

void StatusMenuController::clicked() {
    if (!item_) return;
    if (!panel_) makePanel();
    if (panel_->isVisible()) {
        panel_->close();
        return;
    }
    const std::optional<double> closedAt = panel_->closedAt();
    if (closedAt && platform().clock.now() - *closedAt <= reopenGuard) return;
    panel_->open(*item_);
}

void StatusMenuController::makePanel() {
    if (fonts_) {
        fonts_->registerOnce();
    } else {
        DFKitFonts::registerFonts();
    }
    panel_ = std::make_unique<DFKitStatusPanel>();
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    panel_->build = [weak] {
        auto self = weak.lock();
        return self ? self->rows() : DFKitViews();
    };
    panel_->onOpen = [weak] {
        if (auto self = weak.lock()) self->willOpen();
    };
    panel_->onClose = [weak] {
        auto self = weak.lock();
        if (!self) return;
        platform().eventMonitors.removeMonitor(self->keyMonitor_);
        self->keyMonitor_ = 0;
    };
}

void StatusMenuController::willOpen() {
    platform().eventMonitors.removeMonitor(keyMonitor_);
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    keyMonitor_ = platform().eventMonitors.addLocalKeyDownMonitor([weak](const KeyPress& press) {
        auto self = weak.lock();
        return self && self->keyDown(press);
    });
}

bool StatusMenuController::keyDown(const KeyPress& press) {
    if ((press.modifierFlags & deviceIndependentFlags) != commandFlag) return false;
    if (press.characters == ",") {
        if (panel_) panel_->close();
        if (openSettings) openSettings();
        return true;
    }
    if (press.characters == "q") {
        platform().application.terminate();
        return true;
    }
    return false;
}

std::function<void()> StatusMenuController::rowAction(
    std::function<void(StatusMenuController&)> body) {
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    return [weak, body = std::move(body)] {
        auto self = weak.lock();
        if (!self) return;
        if (self->panel_) self->panel_->close();
        body(*self);
    };
}

LayoutActions::RestoreDone StatusMenuController::toldWhenRestored() {
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    return [weak](const LayoutActions::Restored& restored) {
        auto self = weak.lock();
        const std::optional<std::string> message = restored.message();
        const std::vector<ScreenInfo> screens = Screens::snapshot();
        if (!self || !message || screens.empty()) return;
        // Low on the primary display, where the system shows its own confirmations.
        const Rect visible = screens.front().visible;
        const Point at{visible.midX(), visible.maxY() - visible.height * toastRise};
        self->toast_.flash(*message, std::nullopt, at, toastSeconds);
    };
}

std::vector<NativeMenuItem> StatusMenuController::moreMenuItems() {
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    const LoginItemStatus login = platform().loginItem.status();
    std::vector<NativeMenuItem> items;
    items.push_back(DFMenuItem::make(
        "Start at Login",
        [login] {
            const bool on =
                login == LoginItemStatus::enabled || login == LoginItemStatus::requiresApproval;
            Settings::shared().setLaunchAtLogin(!on);
        },
        loginItemState(login)));
    if (updater) {
        items.push_back(DFMenuItem::make(
            "Install Updates Automatically",
            [weak] {
                auto self = weak.lock();
                if (!self || !self->updater) return;
                self->updater->setAutomaticallyDownloads(!self->updater->automaticallyDownloads());
            },
            updater->automaticallyDownloads() ? MenuItemState::on : MenuItemState::off));
    }
    items.push_back(NativeMenuItem::separatorItem());
    items.push_back(DFMenuItem::make(
        "Hide This Menu Item",
        [weak] {
            auto self = weak.lock();
            if (!self) return;
            if (self->panel_) self->panel_->close();
            Shared::store()->set(std::string(PreferenceKey::menuBarIconHidden), true);
            self->applyVisibility();
        },
        MenuItemState::off, hideToolTip));
    return items;
}

void StatusMenuController::moreMenu() {
    if (!panel_ || !panel_->window() || !moreButton_) return;
    const Rect button = moreButton_->frameInRoot();
    platform().menus.popUp(moreMenuItems(), *panel_->window(), {button.minX(), button.maxY()});
}

}  // namespace vistrel
