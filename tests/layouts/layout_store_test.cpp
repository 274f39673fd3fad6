#include "layouts/layout_store.h"

#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"
#include "settings/preference_key.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

const std::string savedKey(PreferenceKey::layoutsSaved);

SavedLayout layoutNamed(std::string name) {
    return {UUID::random(),
            std::move(name),
            {{"com.apple.Safari", "Safari", "Start", {0, 0, 0.5, 1}, "Built-in"}},
            700'000'000};
}

class LayoutStoreTest : public testing::SimTest {
  protected:
    SimDefaultsStore& store() { return *store_; }
    std::optional<std::string> storedText() { return store_->object(savedKey).string(); }
    int writes() const { return store_->writes(savedKey); }

    std::vector<std::string> names(const std::vector<SavedLayout>& layouts) {
        std::vector<std::string> result;
        for (const auto& layout : layouts)
            result.push_back(layout.name);
        return result;
    }

  private:
    std::shared_ptr<SimDefaultsStore> store_ = desktop.defaults().domain("com.quillmarsh.vistrel");
};

TEST_F(LayoutStoreTest, NothingStoredLoadsAsTheEmptyList) {
    EXPECT_TRUE(LayoutStore::load(store()).empty());
    EXPECT_EQ(writes(), 0);
}

TEST_F(LayoutStoreTest, AddAppendsAndWritesTheListAsText) {
    const SavedLayout first = layoutNamed("First");
    const SavedLayout second = layoutNamed("Second");
    LayoutStore::add(store(), first);
    const auto list = LayoutStore::add(store(), second);
    EXPECT_EQ(list, (std::vector<SavedLayout>{first, second}));
    EXPECT_EQ(storedText(), LayoutStore::encode(list));
    EXPECT_EQ(LayoutStore::load(store()), list);
}

TEST_F(LayoutStoreTest, AddStartsFromTheStoredListNotFromAnEarlierCopy) {
    LayoutStore::add(store(), layoutNamed("Mine"));
    const auto earlierCopy = LayoutStore::load(store());
    // Another writer (the Settings app, or a second menu) adds in between.
    LayoutStore::add(store(), layoutNamed("Theirs"));
    const auto list = LayoutStore::add(store(), layoutNamed("Mine too"));
    EXPECT_EQ(earlierCopy.size(), 1u);
    EXPECT_EQ(names(list), (std::vector<std::string>{"Mine", "Theirs", "Mine too"}));
}

TEST_F(LayoutStoreTest, RemoveDropsEveryLayoutWithTheIdAndKeepsTheOrder) {
    SavedLayout twin = layoutNamed("Twin");
    LayoutStore::add(store(), layoutNamed("A"));
    LayoutStore::add(store(), twin);
    LayoutStore::add(store(), layoutNamed("B"));
    twin.name = "Twin again";
    LayoutStore::add(store(), twin);
    LayoutStore::add(store(), layoutNamed("C"));
    const auto list = LayoutStore::remove(store(), twin.id);
    EXPECT_EQ(names(list), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(LayoutStore::load(store()), list);
}

TEST_F(LayoutStoreTest, RemovingAnUnknownIdLeavesTheListButStillWritesIt) {
    LayoutStore::add(store(), layoutNamed("A"));
    const auto before = LayoutStore::load(store());
    const auto text = storedText();
    const int writesBefore = writes();
    const auto list = LayoutStore::remove(store(), UUID::random());
    EXPECT_EQ(list, before);
    EXPECT_EQ(storedText(), text);
    EXPECT_EQ(writes(), writesBefore + 1);
}

TEST_F(LayoutStoreTest, LayoutWithoutIdCannotBeRemovedByAnEarlierReadsIdUntilWrittenBack) {
    store().set(savedKey, R"([{"name":"Old","windows":[]}])");
    const UUID firstId = LayoutStore::load(store()).at(0).id;
    const auto afterFirstRemove = LayoutStore::remove(store(), firstId);
    ASSERT_EQ(afterFirstRemove.size(), 1u);
    // That remove wrote the list back with the id its own read made, so the id now lasts.
    const UUID storedId = afterFirstRemove[0].id;
    EXPECT_NE(storedId, firstId);
    EXPECT_EQ(LayoutStore::load(store()).at(0).id, storedId);
    EXPECT_TRUE(LayoutStore::remove(store(), storedId).empty());
}

TEST_F(LayoutStoreTest, MissingCreatedReadsTheClocksNow) {
    store().set(savedKey, R"([{"windows":[]}])");
    desktop.clock().advanceTo(978'307'200 + 1'000'000'000.5);
    EXPECT_EQ(LayoutStore::load(store()).at(0).created, 1'000'000'000.5);
}

TEST_F(LayoutStoreTest, ValueThatIsNotTextLoadsAsTheEmptyList) {
    store().set(savedKey, DefaultsValue(DefaultsValue::Data{'[', ']'}));
    EXPECT_TRUE(LayoutStore::load(store()).empty());
    store().set(savedKey, 42);
    EXPECT_TRUE(LayoutStore::load(store()).empty());
}

TEST_F(LayoutStoreTest, UnreadableTextIsLoggedOnce) {
    store().set(savedKey, "[{");
    LayoutStore::load(store());
    EXPECT_EQ(desktop.systemLog().count(
                  "layouts: the saved layouts are unreadable; reading them as none"),
              1u);
}

TEST_F(LayoutStoreTest, ListThatCannotBeEncodedIsReturnedButNotWritten) {
    LayoutStore::add(store(), layoutNamed("Kept"));
    const auto text = storedText();
    SavedLayout broken = layoutNamed("Broken");
    broken.windows[0].rect.x = std::numeric_limits<double>::infinity();
    const auto list = LayoutStore::add(store(), broken);
    EXPECT_EQ(names(list), (std::vector<std::string>{"Kept", "Broken"}));
    EXPECT_EQ(storedText(), text);
}

// A stored text that cannot be read is left alone by reading and only replaced by the next
// add, which then holds the new layout alone.
class UnreadableStoredText : public LayoutStoreTest,
                             public ::testing::WithParamInterface<const char*> {};

TEST_P(UnreadableStoredText, LoadsAsEmptyAndIsOnlyOverwrittenByTheNextAdd) {
    store().set(savedKey, GetParam());
    const int writesBefore = writes();
    EXPECT_TRUE(LayoutStore::load(store()).empty());
    EXPECT_TRUE(LayoutStore::load(store()).empty());
    EXPECT_EQ(storedText(), GetParam());
    EXPECT_EQ(writes(), writesBefore);

    const SavedLayout fresh = layoutNamed("Fresh");
    EXPECT_EQ(LayoutStore::add(store(), fresh), std::vector<SavedLayout>{fresh});
    EXPECT_EQ(LayoutStore::load(store()), std::vector<SavedLayout>{fresh});
}

INSTANTIATE_TEST_SUITE_P(
    LayoutStoreTest, UnreadableStoredText,
    ::testing::Values(
        // Truncated.
        R"([{"created":1,"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"Cut","windows":[{"app)",
        // Not an array.
        R"({"created":1,"name":"Lonely","windows":[]})",
        // One bad layout (a window without its rectangle) among good ones.
        R"([{"name":"Good","windows":[]},)"
        R"({"name":"Bad","windows":[{"app":"A","bundleID":"b","title":""}]},)"
        R"({"name":"Good too","windows":[]}])"));

TEST_F(LayoutStoreTest, ReplaceWritesTheWholeListInItsNewOrder) {
    const SavedLayout first = layoutNamed("First");
    const SavedLayout second = layoutNamed("Second");
    LayoutStore::add(store(), first);
    LayoutStore::add(store(), second);
    const auto list = LayoutStore::replace(store(), {second, first});
    EXPECT_EQ(names(LayoutStore::load(store())), (std::vector<std::string>{"Second", "First"}));
    EXPECT_EQ(storedText(), LayoutStore::encode(list));
}

}  // namespace
}  // namespace vistrel
