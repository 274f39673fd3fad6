#include <gtest/gtest.h>

#include <string>

#include "layouts/layout_url.h"

namespace vistrel {
namespace {

std::string nameReadBack(const std::string& url) {
    const LayoutURL::Parsed parsed = LayoutURL::parse(url);
    EXPECT_TRUE(parsed.url.has_value()) << url << ": " << parsed.refusal;
    if (!parsed.url) return {};
    EXPECT_EQ(parsed.url->action, LayoutURL::Action::apply) << url;
    return parsed.url->name;
}

TEST(LayoutApplyURL, APlainNameStaysReadable) {
    EXPECT_EQ(LayoutURL::applyURL("Desk"), "vistrel://layout/apply?name=Desk");
    EXPECT_EQ(LayoutURL::applyURL("Code_review-2.0~"),
              "vistrel://layout/apply?name=Code_review-2.0~");
}

TEST(LayoutApplyURL, SpacesAndPlusSignsAreEscapedApart) {
    EXPECT_EQ(LayoutURL::applyURL("C++ and tea"),
              "vistrel://layout/apply?name=C%2B%2B%20and%20tea");
}

TEST(LayoutApplyURL, NonASCIINamesAreEscapedByteByByteInUpperCase) {
    EXPECT_EQ(LayoutURL::applyURL("Safari · Mail"),
              "vistrel://layout/apply?name=Safari%20%C2%B7%20Mail");
}

TEST(LayoutApplyURL, EveryMarkOfTheQueryIsEscaped) {
    EXPECT_EQ(LayoutURL::percentEncoded("&=#%?/:"), "%26%3D%23%25%3F%2F%3A");
}

TEST(LayoutApplyURL, AwkwardNamesComeBackFromTheParserAsTheyWere) {
    for (const std::string name : {"Desk",
                                   "Morning desk",
                                   "C++",
                                   "a+b c",
                                   "Rock & Roll",
                                   "x=1",
                                   "#1 layout",
                                   "100% focus",
                                   "Why?",
                                   "Left/Right",
                                   "Safari · Mail · Notes",
                                   "Écrire à Zoë",
                                   "日本語のレイアウト",
                                   "Focus 🎧",
                                   "🧑‍💻 Code",
                                   " padded ",
                                   "%20",
                                   "+",
                                   "name=Other&x=y",
                                   "a%2Bb"}) {
        EXPECT_EQ(nameReadBack(LayoutURL::applyURL(name)), name) << LayoutURL::applyURL(name);
    }
}

TEST(LayoutApplyURL, ANameUpToTheParsersLimitComesBack) {
    const std::string prefix = LayoutURL::applyURL("");
    const std::string name(LayoutURL::maxLength - prefix.size(), 'w');
    EXPECT_EQ(LayoutURL::applyURL(name).size(), LayoutURL::maxLength);
    EXPECT_EQ(nameReadBack(LayoutURL::applyURL(name)), name);
}

TEST(LayoutApplyURL, AnOverLongNamesURLIsOneTheParserRefuses) {
    const std::string prefix = LayoutURL::applyURL("");
    // Each of these takes three characters in the URL.
    const std::string name((LayoutURL::maxLength - prefix.size()) / 3 + 1, ' ');
    const LayoutURL::Parsed parsed = LayoutURL::parse(LayoutURL::applyURL(name));
    EXPECT_FALSE(parsed.url.has_value());
    EXPECT_EQ(parsed.refusal, "longer than 2048 characters");
}

}  // namespace
}  // namespace vistrel
