// The status panel offers "Undo Layout" while the last restore, arrangement or snap can be
// undone.
#include <gtest/gtest.h>

#include <algorithm>

#include "layouts/layout_store.h"
#include "layouts/layout_undo.h"
#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"

namespace vistrel::testing {
namespace {

constexpr Rect earlier{120, 140, 500, 400};

class UndoRowTest : public StatusMenuTest {
  protected:
    void SetUp() override {
        populateDefaultScene(desktop);
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        StatusMenuTest::SetUp();
    }
    SimWindow& notes() {
        for (const SimWindow& window : desktop.windows()) {
            if (window.title == "Notes") return *desktop.window(window.id);
        }
        ADD_FAILURE() << "no Notes";
        return *desktop.window(desktop.windows().front().id);
    }
    // As if the last change had moved Notes from `earlier`.
    void rememberAMove() {
        const WindowRef ref{desktop.accessibility().windowElement(notes().id), notes().pid};
        LayoutUndo::shared().keep({{{ref, earlier, false}}, desktop.clock().now()});
    }
};

TEST_F(UndoRowTest, UndoLayoutShowsWhileTheLastChangeCanBeUndoneAndPutsItBack) {
    rememberAMove();
    open();
    ASSERT_NE(viewLabelled("Undo Layout"), nullptr);
    clickLabelled("Undo Layout");
    desktop.executor().advance(1);
    EXPECT_EQ(notes().frame, earlier);
    EXPECT_FALSE(LayoutUndo::shared().available());
}

TEST_F(UndoRowTest, NoUndoLayoutWithNothingToUndo) {
    open();
    EXPECT_EQ(viewLabelled("Undo Layout"), nullptr);
}

TEST_F(UndoRowTest, NoUndoLayoutTenMinutesAfterTheChange) {
    rememberAMove();
    desktop.executor().advance(LayoutUndo::keptFor + 1);
    open();
    EXPECT_EQ(viewLabelled("Undo Layout"), nullptr);
}

}  // namespace
}  // namespace vistrel::testing
