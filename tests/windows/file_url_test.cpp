// File URLs as the accessibility interface gives documents and as Finder's paths become them.
#include <gtest/gtest.h>

#include "base/file_url.h"
#include "base/percent_encoding.h"

namespace vistrel {
namespace {

TEST(FileURL, APathIsReadBackDecoded) {
    EXPECT_EQ(FileURL::path("file:///Users/ada/Notes%20old.txt"), "/Users/ada/Notes old.txt");
    EXPECT_EQ(FileURL::path("file://localhost/tmp/a.txt"), "/tmp/a.txt");
    EXPECT_EQ(FileURL::path("file:///Users/ada/Caf%C3%A9/"), "/Users/ada/Café/");
}

TEST(FileURL, AnythingButALocalFileURLHasNoPath) {
    for (const char* url :
         {"https://example.com/a.txt", "file://server/share/a.txt", "file:relative.txt",
          "file:///broken%2", "file:///bad%zz", "", "/tmp"}) {
        EXPECT_EQ(FileURL::path(url), std::nullopt) << url;
    }
}

TEST(FileURL, APathBecomesAURLThatReadsBackTheSame) {
    for (const char* path :
         {"/Users/ada/Notes old.txt", "/Users/ada/Café/", "/a+b/c#d?e%f", "/Applications/"}) {
        EXPECT_EQ(FileURL::path(FileURL::of(path)), path) << path;
    }
    EXPECT_EQ(FileURL::of("/Users/ada/Notes old.txt"), "file:///Users/ada/Notes%20old.txt");
}

TEST(FileURL, TheNameIsTheLastPartOfThePath) {
    EXPECT_EQ(FileURL::name("file:///Users/ada/Notes%20old.txt"), "Notes old.txt");
    EXPECT_EQ(FileURL::name("file:///Users/ada/Projects/"), "Projects");
    EXPECT_EQ(FileURL::name("file:///"), "/");
    EXPECT_EQ(FileURL::name("https://example.com"), "https://example.com");
}

TEST(FileURL, TheSameFileIsTheSameWhateverItsEncodingOrFinalSlash) {
    EXPECT_TRUE(FileURL::same("file:///Users/ada/Caf%C3%A9/", "file:///Users/ada/Café"));
    EXPECT_TRUE(FileURL::same("file:///a%20b", "file://localhost/a b"));
    EXPECT_FALSE(FileURL::same("file:///a/b", "file:///a/c"));
    EXPECT_FALSE(FileURL::same("file:///a/b", "file:///a/b/c"));
}

TEST(PercentEncoding, OnlyUnreservedCharactersAndThoseKeptStandAsTheyAre) {
    EXPECT_EQ(PercentEncoding::encoded("a b+c/d~e", "/"), "a%20b%2Bc/d~e");
    EXPECT_EQ(PercentEncoding::encoded("é"), "%C3%A9");
    EXPECT_EQ(PercentEncoding::decoded("a+b%2B", true), "a b+");
    EXPECT_EQ(PercentEncoding::decoded("a+b", false), "a+b");
    EXPECT_EQ(PercentEncoding::decoded("%4", false), std::nullopt);
}

}  // namespace
}  // namespace vistrel
