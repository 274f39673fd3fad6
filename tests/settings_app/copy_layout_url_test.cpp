#include <gtest/gtest.h>

#include <string>

#include "layouts/layout_store.h"
#include "layouts/layout_url.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

class CopyLayoutURLTest : public testing::SettingsAppTest {
  protected:
    UUID save(std::string name) {
        const SavedLayout layout{UUID::random(), std::move(name), {}, 700'000'000};
        LayoutStore::add(*domain, layout);
        return layout.id;
    }

    // The name the agent reads from what was copied last.
    std::string nameTheAgentReads() {
        const auto text = desktop.pasteboard().text();
        if (!text) return "(nothing copied)";
        const LayoutURL::Parsed parsed = LayoutURL::parse(*text);
        EXPECT_TRUE(parsed.url.has_value()) << *text << ": " << parsed.refusal;
        return parsed.url ? parsed.url->name : "(refused)";
    }

    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(CopyLayoutURLTest, CopyURLPutsTheURLThatRestoresTheChosenLayoutOnThePasteboard) {
    save("Mail");
    model->selectLayout(save("Writing"));
    EXPECT_TRUE(model->copyLayoutURL());
    EXPECT_EQ(desktop.pasteboard().copies,
              std::vector<std::string>{"vistrel://layout/apply?name=Writing"});
    EXPECT_EQ(model->layoutsMessage(), "Copied the URL that restores “Writing”.");
    EXPECT_FALSE(model->layoutsMessageIsWarning());
}

TEST_F(CopyLayoutURLTest, TheCopiedURLOfAnAwkwardNameGivesTheNameBack) {
    for (const std::string name :
         {"Morning desk", "C++", "Rock & Roll", "x=1&name=y", "#1", "100%", "Why?", "Left/Right",
          "Safari · Mail · Notes", "日本語", "Focus 🎧", "a+b c"}) {
        model->selectLayout(save(name));
        EXPECT_TRUE(model->copyLayoutURL()) << name;
        EXPECT_EQ(nameTheAgentReads(), name);
    }
}

TEST_F(CopyLayoutURLTest, ANameTooLongForAURLIsNotCopiedAndTheMessageSaysWhy) {
    const std::string fits(LayoutURL::maxLength - LayoutURL::applyURL("").size(), 'w');
    model->selectLayout(save(fits));
    EXPECT_TRUE(model->copyLayoutURL());
    EXPECT_EQ(nameTheAgentReads(), fits);
    model->selectLayout(save(fits + "w"));
    EXPECT_FALSE(model->copyLayoutURL());
    EXPECT_EQ(desktop.pasteboard().copies.size(), 1u);
    EXPECT_EQ(model->layoutsMessage(),
              "This layout’s name is too long for a URL. Rename it to copy its URL.");
    EXPECT_TRUE(model->layoutsMessageIsWarning());
    EXPECT_EQ(desktop.systemLog().count("settings: layout url not copied: name too long"), 1u);
}

TEST_F(CopyLayoutURLTest, ANameTheAgentWouldRefuseIsNotCopied) {
    model->selectLayout(save("Tab\there"));
    EXPECT_FALSE(model->copyLayoutURL());
    EXPECT_FALSE(desktop.pasteboard().text().has_value());
    EXPECT_EQ(model->layoutsMessage(),
              "Could not copy the URL: the name holds a control character.");
}

TEST_F(CopyLayoutURLTest, AFailedCopySaysSoAndLeavesThePasteboardAsItWas) {
    model->selectLayout(save("Writing"));
    ASSERT_TRUE(model->copyLayoutURL());
    desktop.pasteboard().failing = true;
    model->selectLayout(save("Mail"));
    EXPECT_FALSE(model->copyLayoutURL());
    EXPECT_EQ(desktop.pasteboard().text(), "vistrel://layout/apply?name=Writing");
    EXPECT_EQ(model->layoutsMessage(),
              "Could not copy the URL: the pasteboard did not take it. Try again.");
    EXPECT_TRUE(model->layoutsMessageIsWarning());
    EXPECT_EQ(
        desktop.systemLog().count("settings: layout url not copied: the pasteboard refused it"),
        1u);
}

TEST_F(CopyLayoutURLTest, CopyURLWithNoLayoutChosenSaysToChooseOne) {
    save("Writing");
    EXPECT_FALSE(model->copyLayoutURL());
    EXPECT_EQ(model->layoutsMessage(), "Choose a layout to copy its URL.");
    EXPECT_TRUE(desktop.pasteboard().copies.empty());
}

TEST_F(CopyLayoutURLTest, CopyURLOfALayoutDeletedMeanwhileSaysItIsGone) {
    const UUID id = save("Writing");
    model->selectLayout(id);
    LayoutStore::remove(*domain, id);
    EXPECT_FALSE(model->copyLayoutURL());
    EXPECT_EQ(model->layoutsMessage(), "That layout is no longer saved.");
}

}  // namespace
}  // namespace vistrel
