#include "layouts/layout_url.h"

#include <gtest/gtest.h>

#include <string>

namespace vistrel {
namespace {

using Action = LayoutURL::Action;

LayoutURL accepted(std::string_view text) {
    const LayoutURL::Parsed parsed = LayoutURL::parse(text);
    EXPECT_TRUE(parsed.url.has_value()) << text << ": " << parsed.refusal;
    EXPECT_EQ(parsed.refusal, "") << text;
    return parsed.url.value_or(LayoutURL{});
}

std::string refusal(std::string_view text) {
    const LayoutURL::Parsed parsed = LayoutURL::parse(text);
    EXPECT_FALSE(parsed.url.has_value()) << text;
    EXPECT_FALSE(parsed.refusal.empty()) << text;
    return parsed.refusal;
}

TEST(LayoutURL, ApplyCarriesTheName) {
    EXPECT_EQ(accepted("vistrel://layout/apply?name=Desk"), (LayoutURL{Action::apply, "Desk"}));
}

TEST(LayoutURL, SaveCarriesTheName) {
    EXPECT_EQ(accepted("vistrel://layout/save?name=Desk"), (LayoutURL{Action::save, "Desk"}));
}

TEST(LayoutURL, UndoTakesNoName) {
    EXPECT_EQ(accepted("vistrel://layout/undo"), (LayoutURL{Action::undo, ""}));
}

TEST(LayoutURL, PercentEscapesAndPlusSignsDecodeToTheName) {
    EXPECT_EQ(accepted("vistrel://layout/apply?name=Writing%20Desk").name, "Writing Desk");
    EXPECT_EQ(accepted("vistrel://layout/apply?name=Writing+Desk").name, "Writing Desk");
    EXPECT_EQ(accepted("vistrel://layout/apply?name=A%2BB").name, "A+B");
    EXPECT_EQ(accepted("vistrel://layout/apply?name=50%25").name, "50%");
    EXPECT_EQ(accepted("vistrel://layout/apply?name=a%26b%3Dc").name, "a&b=c");
    EXPECT_EQ(accepted("vistrel://layout/apply?name=%e2%80%94").name, "\u2014");
}

TEST(LayoutURL, NonASCIINamesArriveEncodedAsUTF8) {
    EXPECT_EQ(accepted("vistrel://layout/apply?name=Caf%C3%A9%20%C2%B7%20Mail").name,
              "Caf\u00e9 \u00b7 Mail");
}

// RFC 3986, 3.1: schemes are case-insensitive; 3.2.2: so are registered host names.
TEST(LayoutURL, TheSchemeAndHostMatchInAnyCase) {
    EXPECT_EQ(accepted("VISTREL://layout/undo").action, Action::undo);
    EXPECT_EQ(accepted("Vistrel://Layout/apply?name=Desk").name, "Desk");
}

TEST(LayoutURL, ThePathAndTheKeyMatchExactly) {
    EXPECT_EQ(refusal("vistrel://layout/Apply?name=Desk"), "unknown action \"/Apply\"");
    EXPECT_EQ(refusal("vistrel://layout/apply?Name=Desk"), "unknown parameter \"Name\"");
}

TEST(LayoutURL, TheNameKeepsItsCase) {
    EXPECT_EQ(accepted("vistrel://layout/apply?name=desk").name, "desk");
}

TEST(LayoutURL, AnotherSchemeIsRefused) {
    EXPECT_EQ(refusal("http://layout/apply?name=Desk"), "not a vistrel URL");
    EXPECT_EQ(refusal("vistrelx://layout/apply?name=Desk"), "not a vistrel URL");
    EXPECT_EQ(refusal("layout/apply?name=Desk"), "not a vistrel URL");
    EXPECT_EQ(refusal(""), "not a vistrel URL");
}

TEST(LayoutURL, ASchemeWithoutTheTwoSlashesIsRefused) {
    EXPECT_EQ(refusal("vistrel:layout/apply?name=Desk"), "malformed, expected \"vistrel://\"");
}

TEST(LayoutURL, AnUnknownHostIsRefused) {
    EXPECT_EQ(refusal("vistrel://layouts/apply?name=Desk"), "unknown host \"layouts\"");
    EXPECT_EQ(refusal("vistrel:///apply?name=Desk"), "unknown host \"\"");
    EXPECT_EQ(refusal("vistrel://user@layout/apply?name=Desk"), "unknown host \"user@layout\"");
    EXPECT_EQ(refusal("vistrel://layout:80/apply?name=Desk"), "unknown host \"layout:80\"");
}

TEST(LayoutURL, AnUnknownPathIsRefused) {
    EXPECT_EQ(refusal("vistrel://layout/delete?name=Desk"), "unknown action \"/delete\"");
    EXPECT_EQ(refusal("vistrel://layout"), "unknown action \"\"");
    EXPECT_EQ(refusal("vistrel://layout/"), "unknown action \"/\"");
    EXPECT_EQ(refusal("vistrel://layout/apply/?name=Desk"), "unknown action \"/apply/\"");
    EXPECT_EQ(refusal("vistrel://layout/apply/more?name=Desk"), "unknown action \"/apply/more\"");
    EXPECT_EQ(refusal("vistrel://layout?name=Desk"), "unknown action \"\"");
}

TEST(LayoutURL, AMissingNameIsRefused) {
    EXPECT_EQ(refusal("vistrel://layout/apply"), "no name given");
    EXPECT_EQ(refusal("vistrel://layout/save"), "no name given");
    EXPECT_EQ(refusal("vistrel://layout/apply?name"), "no name given");
}

TEST(LayoutURL, AnEmptyNameIsRefused) {
    EXPECT_EQ(refusal("vistrel://layout/apply?name="), "no name given");
    EXPECT_EQ(refusal("vistrel://layout/save?name="), "no name given");
    EXPECT_EQ(refusal("vistrel://layout/apply?"), "unknown parameter \"\"");
}

TEST(LayoutURL, ExtraParametersAreRefused) {
    EXPECT_EQ(refusal("vistrel://layout/apply?name=Desk&name=Mail"), "more than one parameter");
    EXPECT_EQ(refusal("vistrel://layout/apply?name=Desk&x=1"), "more than one parameter");
    EXPECT_EQ(refusal("vistrel://layout/apply?name=Desk&"), "more than one parameter");
    EXPECT_EQ(refusal("vistrel://layout/apply?title=Desk"), "unknown parameter \"title\"");
    EXPECT_EQ(refusal("vistrel://layout/undo?name=Desk"), "undo takes no parameters");
    EXPECT_EQ(refusal("vistrel://layout/undo?"), "undo takes no parameters");
}

TEST(LayoutURL, AFragmentIsRefused) {
    EXPECT_EQ(refusal("vistrel://layout/apply?name=Desk#top"), "a fragment is not allowed");
    EXPECT_EQ(refusal("vistrel://layout/undo#"), "a fragment is not allowed");
}

TEST(LayoutURL, MalformedPercentEscapesAreRefused) {
    for (const char* text : {"vistrel://layout/apply?name=Desk%", "vistrel://layout/apply?name=%2",
                             "vistrel://layout/apply?name=%G0", "vistrel://layout/apply?name=%%41",
                             "vistrel://layout/apply?name=a%2x"}) {
        EXPECT_EQ(refusal(text), "malformed percent escape in the name") << text;
    }
}

TEST(LayoutURL, ANameThatIsNotUTF8IsRefused) {
    EXPECT_EQ(refusal("vistrel://layout/apply?name=%FF"), "the name is not UTF-8 text");
    EXPECT_EQ(refusal("vistrel://layout/apply?name=%C3"), "the name is not UTF-8 text");
    EXPECT_EQ(refusal("vistrel://layout/apply?name=%C0%AF"), "the name is not UTF-8 text");
}

TEST(LayoutURL, ANameWithAControlCharacterIsRefused) {
    for (const char* text : {"vistrel://layout/save?name=a%0Ab", "vistrel://layout/save?name=%00",
                             "vistrel://layout/save?name=%7F", "vistrel://layout/save?name=%C2%85",
                             "vistrel://layout/save?name=tab%09"}) {
        EXPECT_EQ(refusal(text), "the name holds a control character") << text;
    }
}

TEST(LayoutURL, CharactersAURLCannotHoldAreRefused) {
    for (const char* text :
         {"vistrel://layout/apply?name=Writing Desk", "vistrel://layout/apply?name=Caf\xC3\xA9",
          "vistrel://layout/undo\n", "vistrel://layout/apply?name=\"Desk\"",
          "vistrel://layout/apply?name=<b>"}) {
        EXPECT_EQ(refusal(text), "a character not allowed in a URL") << text;
    }
}

TEST(LayoutURL, AURLUpToTheLimitIsRead) {
    const std::string prefix = "vistrel://layout/apply?name=";
    const std::string text = prefix + std::string(LayoutURL::maxLength - prefix.size(), 'a');
    EXPECT_EQ(accepted(text).name.size(), LayoutURL::maxLength - prefix.size());
}

TEST(LayoutURL, AURLOverTheLimitIsRefusedUnread) {
    const std::string prefix = "vistrel://layout/apply?name=";
    const std::string text = prefix + std::string(LayoutURL::maxLength - prefix.size() + 1, 'a');
    EXPECT_EQ(refusal(text), "longer than 2048 characters");
    EXPECT_EQ(refusal(std::string(1'000'000, '%')), "longer than 2048 characters");
}

TEST(LayoutURL, PercentDecodingReadsPlusAsSpaceAndRefusesBrokenEscapes) {
    EXPECT_EQ(LayoutURL::percentDecoded("a+b%20c%2b"), "a b c+");
    EXPECT_EQ(LayoutURL::percentDecoded(""), "");
    EXPECT_EQ(LayoutURL::percentDecoded("%"), std::nullopt);
    EXPECT_EQ(LayoutURL::percentDecoded("%a"), std::nullopt);
    EXPECT_EQ(LayoutURL::percentDecoded("%-1"), std::nullopt);
}

}  // namespace
}  // namespace vistrel
