#include "platform/sim/sim_menu_bar_painter.h"

#include <algorithm>

#include "platform/display_list.h"
#include "platform/sim/cairo_canvas.h"
#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

const Color lightBarInk = Color::black().withAlpha(0.85);
const Color darkBarInk = Color::white().withAlpha(0.9);
const Color lightHighlight = Color::black().withAlpha(0.12);
const Color darkHighlight = Color::white().withAlpha(0.22);
constexpr double highlightInsetX = 1;
constexpr double highlightInsetY = 2.5;
constexpr double highlightRadius = 5;

constexpr int shadowSteps = 8;
constexpr double shadowReach = 14;
constexpr double shadowDrop = 6;
constexpr double shadowAlpha = 0.022;
constexpr double panelRadius = 12;

// The native menu's look.
constexpr double menuWidthPadding = 48;
constexpr double menuMinWidth = 180;
constexpr double menuItemHeight = 22;
constexpr double menuSeparatorHeight = 11;
constexpr double menuPadding = 5;
constexpr double menuRadius = 8;
constexpr double menuTextX = 24;
constexpr double menuFontSize = 13;
constexpr double stateMarkX = 9;
constexpr double menuScreenMargin = 4;
// The title's baseline below the middle of its item.
constexpr double menuBaselineDrop = 4.5;
const Color lightMenu = Color::fromRGB(0xF2F2F3).withAlpha(0.98);
const Color darkMenu = Color::fromRGB(0x2B2B2E).withAlpha(0.98);
const Color lightMenuRim = Color::black().withAlpha(0.12);
const Color darkMenuRim = Color::white().withAlpha(0.16);

}  // namespace

SimMenuBarPainter::SimMenuBarPainter(cairo_t* cr, CairoFonts& fonts, SimDesktop& desktop)
    : cr_(cr),
      fonts_(fonts),
      desktop_(desktop),
      dark_(desktop.appearance().current() == Appearance::dark) {}

Rect SimMenuBarPainter::onScreen(Rect appKit) const {
    const double primaryHeight = desktop_.screens().front().frame.height;
    return {appKit.x, primaryHeight - appKit.maxY(), appKit.width, appKit.height};
}

void SimMenuBarPainter::statusItems() {
    for (const SimStatusItem* item : desktop_.statusBar().items())
        statusItem(*item);
}

void SimMenuBarPainter::statusItem(const SimStatusItem& item) {
    const std::optional<Rect> frame = item.buttonFrame();
    if (!frame) return;
    const Rect slot = onScreen(*frame);
    CairoCanvas canvas(cr_, fonts_, false);
    if (item.highlighted()) {
        canvas.fill(
            Path::roundedRect(slot.insetBy(highlightInsetX, highlightInsetY), highlightRadius),
            dark_ ? darkHighlight : lightHighlight);
    }
    if (!item.image()) return;
    // A template image: its shapes' alpha, painted in the bar's ink.
    const Size size = item.imageSize();
    cairo_save(cr_);
    cairo_translate(cr_, slot.midX() - size.width / 2, slot.midY() - size.height / 2);
    cairo_push_group(cr_);
    drawDisplayList(cr_, *item.image(), size, fonts_);
    cairo_pattern_t* shapes = cairo_pop_group(cr_);
    const Color ink = dark_ ? darkBarInk : lightBarInk;
    cairo_set_source_rgba(cr_, ink.red, ink.green, ink.blue, ink.alpha);
    cairo_mask(cr_, shapes);
    cairo_pattern_destroy(shapes);
    cairo_restore(cr_);
}

void SimMenuBarPainter::shadow(Rect rect, double radius) {
    CairoCanvas canvas(cr_, fonts_, false);
    for (int step = shadowSteps; step >= 1; --step) {
        const double spread = shadowReach * step / shadowSteps;
        const Rect r{rect.x - spread, rect.y - spread + shadowDrop, rect.width + 2 * spread,
                     rect.height + 2 * spread};
        canvas.fill(Path::roundedRect(r, radius + spread), Color::black().withAlpha(shadowAlpha));
    }
}

void SimMenuBarPainter::panels() {
    for (const SimKeyPanel* panel : desktop_.panels().panels()) {
        if (panel->isVisible() && panel->content()) this->panel(*panel);
    }
}

void SimMenuBarPainter::panel(const SimKeyPanel& panel) {
    const Rect frame = onScreen(panel.frame());
    shadow(frame, panelRadius);
    cairo_save(cr_);
    cairo_translate(cr_, frame.x, frame.y);
    drawDisplayList(cr_, *panel.content(), frame.size(), fonts_);
    cairo_restore(cr_);
}

void SimMenuBarPainter::openMenu() {
    const std::optional<SimOpenMenu>& menu = desktop_.menus().openMenu();
    if (!menu || !menu->panel) return;
    CairoCanvas canvas(cr_, fonts_, false);
    const Font font = Font::system(menuFontSize);
    const Color ink = dark_ ? darkBarInk : lightBarInk;
    double width = menuMinWidth;
    double height = 2 * menuPadding;
    for (const NativeMenuItem& item : menu->items) {
        height += item.separator ? menuSeparatorHeight : menuItemHeight;
        if (!item.separator)
            width =
                std::max(width, canvas.textWidth({item.title, font, ink, 0}) + menuWidthPadding);
    }
    const Rect panel = onScreen(menu->panel->frame());
    // Like AppKit, the menu moves left rather than leave the screen.
    const double screenRight = desktop_.screens().front().frame.width - menuScreenMargin;
    const Rect frame{std::min(panel.x + menu->point.x, screenRight - width),
                     panel.y + menu->point.y, width, height};
    shadow(frame, menuRadius);
    canvas.fill(Path::roundedRect(frame, menuRadius), dark_ ? darkMenu : lightMenu);
    canvas.stroke(Path::roundedRect(frame.insetBy(0.5, 0.5), menuRadius),
                  dark_ ? darkMenuRim : lightMenuRim, {1});
    double y = frame.y + menuPadding;
    for (const NativeMenuItem& item : menu->items) {
        if (item.separator) {
            canvas.fill(Path::rect({frame.x + 10, y + menuSeparatorHeight / 2, width - 20, 1}),
                        dark_ ? darkMenuRim : lightMenuRim);
            y += menuSeparatorHeight;
            continue;
        }
        const double midY = y + menuItemHeight / 2;
        const StrokeStyle mark{1.6, LineCap::round, LineJoin::round};
        if (item.state == MenuItemState::on) {
            canvas.stroke(Path()
                              .moveTo({frame.x + stateMarkX, midY})
                              .lineTo({frame.x + stateMarkX + 3, midY + 3})
                              .lineTo({frame.x + stateMarkX + 9, midY - 4}),
                          ink, mark);
        } else if (item.state == MenuItemState::mixed) {
            canvas.stroke(Path()
                              .moveTo({frame.x + stateMarkX, midY})
                              .lineTo({frame.x + stateMarkX + 8, midY}),
                          ink, mark);
        }
        canvas.drawText({item.title, font, ink, 0}, {frame.x + menuTextX, midY + menuBaselineDrop});
        y += menuItemHeight;
    }
}

}  // namespace vistrel
