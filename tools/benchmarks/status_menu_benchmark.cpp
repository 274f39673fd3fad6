#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "layouts/layout_store.h"
#include "platform/display_list.h"
#include "platform/sim/sim_desktop.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "ui/kit/dfkit_panel_view.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {
namespace {

constexpr int savedLayouts = 10;

// The agent's status item on a desktop whose store holds ten saved layouts.
struct MenuWithTenLayouts {
    MenuWithTenLayouts() {
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        for (int i = 1; i <= savedLayouts; ++i) {
            LayoutStore::add(*Shared::store(),
                             {{},
                              "Layout " + std::to_string(i),
                              {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}},
                              0});
        }
        menu = StatusMenuController::make();
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    std::shared_ptr<StatusMenuController> menu;
};

// What opening the panel costs before anything is rendered: reading the settings and the
// saved layouts, building the rows, laying them out and recording their display list.
void BM_BuildAndLayOutPanelRows(benchmark::State& state) {
    MenuWithTenLayouts session;
    DFKitPanelView panel;
    for (auto _ : state) {
        panel.setRows(session.menu->rows());
        RecordingCanvas canvas(true);
        panel.display(canvas, Appearance::light);
        benchmark::DoNotOptimize(canvas.finish());
    }
}
BENCHMARK(BM_BuildAndLayOutPanelRows)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vistrel
