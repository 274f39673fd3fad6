#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/app_delegate.h"
#include "layouts/layout_actions_test.h"
#include "layouts/layout_store.h"
#include "layouts/layout_url.h"
#include "settings/preference_key.h"

namespace vistrel {
namespace {

constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr Rect notesOnTheLeft{0, 25, 720, 805};

// URLs of the agent's scheme as the system hands them to the running agent.
class LayoutURLsTest : public testing::LayoutActionsTest {
  protected:
    LayoutURLsTest() {
        setPreference(PreferenceKey::onboardingCompleted, true);
        LayoutStore::add(*Shared::store(),
                         layoutOf({{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}},
                                  "Writing Desk"));
    }

    void launch() {
        delegate.applicationDidFinishLaunching();
        advance(1);
    }
    void open(const std::string& url) {
        delegate.openURLs({url});
        run();
        advance(1);
    }
    // The frames of every window, the stored text and what the agent posted: what a refused
    // URL must leave as it was.
    struct World {
        std::vector<Rect> frames;
        DefaultsValue saved;
        std::size_t posted = 0;
        bool undo = false;
        friend bool operator==(const World&, const World&) = default;
    };
    World world() {
        World now;
        for (const SimWindow& w : desktop.windows())
            now.frames.push_back(w.frame);
        now.saved = Shared::store()->object(std::string(PreferenceKey::layoutsSaved));
        now.posted = desktop.notifications().posted.size();
        now.undo = LayoutUndo::shared().available();
        return now;
    }
    std::vector<std::string> savedNames() {
        std::vector<std::string> names;
        for (const SavedLayout& layout : LayoutStore::load(*Shared::store()))
            names.push_back(layout.name);
        return names;
    }
    // Opens the URL and expects it refused: one log line saying why, and nothing else.
    void expectRefused(const std::string& url, const std::string& why) {
        const World before = world();
        const auto lines = log().size();
        open(url);
        EXPECT_EQ(world(), before) << url;
        ASSERT_EQ(log().size(), lines + 1) << url;
        EXPECT_EQ(log().back(), "layouts: refused a request from a URL: " + why) << url;
    }

    AppDelegate delegate;
};

TEST_F(LayoutURLsTest, ApplyRestoresTheNamedLayout) {
    launch();
    open("vistrel://layout/apply?name=Writing%20Desk");
    EXPECT_EQ(window("Notes").frame, notesOnTheLeft);
    EXPECT_EQ(logged("layouts: restoring \"Writing Desk\" from a URL"), 1u);
}

TEST_F(LayoutURLsTest, ApplyReadsPlusAsASpaceAndTheSchemeInAnyCase) {
    launch();
    open("VISTREL://layout/apply?name=Writing+Desk");
    EXPECT_EQ(window("Notes").frame, notesOnTheLeft);
}

TEST_F(LayoutURLsTest, SaveStoresTheCurrentWindowsUnderTheName) {
    launch();
    open("vistrel://layout/save?name=Evening");
    EXPECT_EQ(savedNames(), (std::vector<std::string>{"Writing Desk", "Evening"}));
    EXPECT_EQ(LayoutStore::load(*Shared::store()).back().windows.size(), 6u);
}

TEST_F(LayoutURLsTest, SaveUnderAnExistingNameReplacesItInPlace) {
    launch();
    const UUID id = LayoutStore::load(*Shared::store()).front().id;
    open("vistrel://layout/save?name=Writing%20Desk");
    const auto layouts = LayoutStore::load(*Shared::store());
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_EQ(layouts.front().id, id);
    EXPECT_EQ(layouts.front().windows.size(), 6u);
}

TEST_F(LayoutURLsTest, UndoPutsBackWhatTheLastURLMoved) {
    launch();
    const Rect before = window("Notes").frame;
    open("vistrel://layout/apply?name=Writing%20Desk");
    open("vistrel://layout/undo");
    EXPECT_EQ(window("Notes").frame, before);
}

TEST_F(LayoutURLsTest, EveryBadURLIsRefusedWithOneLineAndNothingDone) {
    launch();
    const std::vector<std::pair<std::string, std::string>> bad{
        {"vistrel://layout/apply?name=writing%20desk", "no layout named \"writing desk\""},
        {"vistrel://layout/apply?name=Writing", "no layout named \"Writing\""},
        {"vistrel://layout/apply", "no name given"},
        {"vistrel://layout/apply?name=", "no name given"},
        {"vistrel://layout/save?name=", "no name given"},
        {"vistrel://layout/remove?name=Writing%20Desk", "unknown action \"/remove\""},
        {"vistrel://layouts/apply?name=Writing%20Desk", "unknown host \"layouts\""},
        {"https://layout/apply?name=Writing%20Desk", "not a vistrel URL"},
        {"vistrel:layout/apply?name=Writing%20Desk", "malformed, expected \"vistrel://\""},
        {"vistrel://layout/apply?name=Writing%2", "malformed percent escape in the name"},
        {"vistrel://layout/apply?name=Writing%20Desk&then=quit", "more than one parameter"},
        {"vistrel://layout/apply?name=Writing%20Desk#x", "a fragment is not allowed"},
        {"vistrel://layout/save?name=a%0Ab", "the name holds a control character"},
        {"vistrel://layout/undo?name=x", "undo takes no parameters"},
        {"vistrel://layout/undo", "nothing to undo"},
        {"vistrel://layout/apply?name=" + std::string(LayoutURL::maxLength, 'a'),
         "longer than 2048 characters"},
    };
    for (const auto& [url, why] : bad)
        expectRefused(url, why);
}

TEST_F(LayoutURLsTest, URLsHandedOverBeforeStartUpFinishesWaitForIt) {
    delegate.openURLs({"vistrel://layout/apply?name=Writing%20Desk"});
    run();
    EXPECT_NE(window("Notes").frame, notesOnTheLeft);
    launch();
    run();
    advance(1);
    EXPECT_EQ(window("Notes").frame, notesOnTheLeft);
}

TEST_F(LayoutURLsTest, AnAgentThatDoesNotStartDropsTheURLs) {
    desktop.launch().variables[std::string(AppDelegate::testHostVariable)] = "/tmp/x";
    delegate.openURLs({"vistrel://layout/apply?name=Writing%20Desk"});
    launch();
    run();
    EXPECT_NE(window("Notes").frame, notesOnTheLeft);
}

}  // namespace
}  // namespace vistrel
