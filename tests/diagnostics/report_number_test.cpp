#include <gtest/gtest.h>

#include "diagnostics/report_service.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

TEST(ReportNumberTest, WholeNumberIsReadAsText) {
    EXPECT_EQ(reportNumber(R"({"number": 4711})"), "4711");
}

TEST(ReportNumberTest, TextNumberIsReadAsIs) {
    EXPECT_EQ(reportNumber(R"({"number": "VR-2026-0042", "received": true})"), "VR-2026-0042");
}

TEST(ReportNumberTest, BodyWithoutAUsableNumberGivesNothing) {
    EXPECT_FALSE(reportNumber("").has_value());
    EXPECT_FALSE(reportNumber("4711").has_value());
    EXPECT_FALSE(reportNumber("<html>busy</html>").has_value());
    EXPECT_FALSE(reportNumber(R"({"id": 4711})").has_value());
    EXPECT_FALSE(reportNumber(R"({"number": ""})").has_value());
    EXPECT_FALSE(reportNumber(R"({"number": -3})").has_value());
    EXPECT_FALSE(reportNumber(R"({"number": 1.5})").has_value());
}

class ReportServiceTest : public testing::SimTest {};

TEST_F(ReportServiceTest, AddressesComeFromTheInformationDictionary) {
    desktop.infoDictionary().values["VistrelReportServiceURL"] = "https://r.example";
    desktop.infoDictionary().values["VistrelSupportAddress"] = "help@example.com";
    EXPECT_EQ(ReportService::baseURL(), "https://r.example");
    EXPECT_EQ(ReportService::supportAddress(), "help@example.com");
}

TEST_F(ReportServiceTest, MissingBaseUrlIsEmpty) {
    desktop.infoDictionary().values.clear();
    EXPECT_EQ(ReportService::baseURL(), "");
}

}  // namespace
}  // namespace vistrel
