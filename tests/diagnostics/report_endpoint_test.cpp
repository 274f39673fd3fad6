#include "diagnostics/report_endpoint.h"

#include <gtest/gtest.h>

#include <string>

namespace vistrel {
namespace {

const ReportQuery sample{"1.4", {15, 1, 2}, "ada@example.com", "It crashed"};

TEST(ReportEndpointTest, HttpsBasesAreAccepted) {
    EXPECT_TRUE(ReportEndpoint::accepts("https://reports.quillmarsh.com"));
    EXPECT_TRUE(ReportEndpoint::accepts("HTTPS://reports.quillmarsh.com/api/"));
}

TEST(ReportEndpointTest, PlainHttpIsAcceptedOnlyToTheLoopbackAddress) {
    EXPECT_TRUE(ReportEndpoint::accepts("http://127.0.0.1:8080"));
    EXPECT_TRUE(ReportEndpoint::accepts("http://localhost:9000/"));
    EXPECT_TRUE(ReportEndpoint::accepts("http://[::1]:9000"));
    EXPECT_FALSE(ReportEndpoint::accepts("http://reports.quillmarsh.com"));
    EXPECT_FALSE(ReportEndpoint::accepts("http://127.0.0.1.example.com"));
    EXPECT_FALSE(ReportEndpoint::accepts("http://127.0.0.1@example.com"));
}

TEST(ReportEndpointTest, OtherSchemesAndEmptyAddressesAreRefused) {
    EXPECT_FALSE(ReportEndpoint::accepts(""));
    EXPECT_FALSE(ReportEndpoint::accepts("https://"));
    EXPECT_FALSE(ReportEndpoint::accepts("ftp://reports.quillmarsh.com"));
    EXPECT_FALSE(ReportEndpoint::accepts("reports.quillmarsh.com"));
    EXPECT_FALSE(ReportEndpoint::url("file:///tmp", sample).has_value());
}

TEST(ReportEndpointTest, UrlIsTheBasePlusReportsWithTheFiveQueryItems) {
    EXPECT_EQ(ReportEndpoint::url("https://reports.quillmarsh.com/", sample),
              "https://reports.quillmarsh.com/reports?app=vistrel&version=1.4&os=15.1.2"
              "&email=ada%40example.com&note=It%20crashed");
}

TEST(ReportEndpointTest, EmptyEmailIsSentWithoutAValue) {
    ReportQuery query = sample;
    query.email.clear();
    EXPECT_EQ(
        ReportEndpoint::url("https://r.example", query),
        "https://r.example/reports?app=vistrel&version=1.4&os=15.1.2&email&note=It%20crashed");
}

TEST(ReportEndpointTest, NoteIsCutToItsFirstTwoThousandCharacters) {
    ReportQuery query = sample;
    query.note = std::string(5000, 'a');
    const std::string url = *ReportEndpoint::url("https://r.example", query);
    EXPECT_TRUE(url.ends_with("&note=" + std::string(2000, 'a')));
}

TEST(ReportEndpointTest, CuttingNeverSplitsACharacter) {
    const std::string dots = "\u2026\u2026\u2026";  // three characters, nine bytes
    EXPECT_EQ(ReportEndpoint::prefix(dots, 2), "\u2026\u2026");
    EXPECT_EQ(ReportEndpoint::prefix("caf\u00e9", 4), "caf\u00e9");
    EXPECT_EQ(ReportEndpoint::prefix("short", 2000), "short");
}

TEST(ReportEndpointTest, ReservedCharactersInANoteAreEncoded) {
    EXPECT_EQ(ReportEndpoint::percentEncoded("a&b=c+d e/f?\u00e9~-._"),
              "a%26b%3Dc%2Bd%20e%2Ff%3F%C3%A9~-._");
}

TEST(ReportEndpointTest, BaseCarryingItsOwnQueryIsRefused) {
    EXPECT_FALSE(ReportEndpoint::url("https://r.example/?token=1", sample).has_value());
}

}  // namespace
}  // namespace vistrel
