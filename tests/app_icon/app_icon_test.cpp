#include "app_icon.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "ui/kit/dfkit_palette.h"

namespace vistrel {
namespace {

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";

std::uint32_t bigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = (value << 8) | static_cast<std::uint8_t>(bytes.at(at + i));
    return value;
}

// The .icns read back independently of how it was written: every entry's type and its PNG.
std::map<std::string, std::string> readIcns(const std::string& bytes) {
    std::map<std::string, std::string> entries;
    EXPECT_EQ(bytes.substr(0, 4), "icns");
    EXPECT_EQ(bigEndian(bytes, 4), bytes.size()) << "the header holds the file's length";
    for (std::size_t at = 8; at < bytes.size();) {
        const std::string type = bytes.substr(at, 4);
        const std::uint32_t length = bigEndian(bytes, at + 4);
        EXPECT_GT(length, 8u) << type;
        if (length <= 8 || at + length > bytes.size()) {
            ADD_FAILURE() << "entry " << type << " runs past the file";
            break;
        }
        entries[type] = bytes.substr(at + 8, length - 8);
        at += length;
    }
    return entries;
}

struct Png {
    std::uint32_t width = 0, height = 0;
    std::string pixels;  // the rows, each with its filter byte
};

// Reads a PNG's header and inflates its image data with zlib.
Png readPng(const std::string& png) {
    Png read;
    EXPECT_EQ(png.substr(0, 8), pngSignature);
    std::string data;
    for (std::size_t at = 8; at + 8 <= png.size();) {
        const std::uint32_t length = bigEndian(png, at);
        const std::string type = png.substr(at + 4, 4);
        const std::string body = png.substr(at + 8, length);
        const auto crc = static_cast<std::uint32_t>(crc32(
            0, reinterpret_cast<const Bytef*>(png.data() + at + 4), static_cast<uInt>(length + 4)));
        EXPECT_EQ(bigEndian(png, at + 8 + length), crc) << type;
        if (type == "IHDR") {
            read.width = bigEndian(body, 0);
            read.height = bigEndian(body, 4);
        }
        if (type == "IDAT") data += body;
        at += 12 + length;
    }
    uLongf size = static_cast<uLongf>((read.width * 4 + 1) * read.height);
    read.pixels.assign(size, '\0');
    EXPECT_EQ(
        uncompress(reinterpret_cast<Bytef*>(read.pixels.data()), &size,
                   reinterpret_cast<const Bytef*>(data.data()), static_cast<uLong>(data.size())),
        Z_OK);
    EXPECT_EQ(size, (read.width * 4 + 1) * read.height);
    return read;
}

TEST(AppIconTest, TheIcnsHoldsSixteenToFiveHundredTwelvePointsAtOneAndTwoTimes) {
    const std::map<std::string, std::string> entries = readIcns(AppIcon::icns());
    const std::map<std::string, std::uint32_t> expected = {
        {"icp4", 16},  {"ic11", 32},  {"icp5", 32},  {"ic12", 64},  {"ic07", 128},
        {"ic13", 256}, {"ic08", 256}, {"ic14", 512}, {"ic09", 512}, {"ic10", 1024}};
    ASSERT_EQ(entries.size(), expected.size());
    for (const auto& [type, pixels] : expected) {
        ASSERT_TRUE(entries.contains(type)) << type;
        const Png png = readPng(entries.at(type));
        EXPECT_EQ(png.width, pixels) << type;
        EXPECT_EQ(png.height, pixels) << type;
    }
}

std::array<std::uint8_t, 4> pixelAt(const Raster& raster, int x, int y) {
    const std::vector<std::uint8_t> rgba = raster.rgba();
    const auto at = static_cast<std::size_t>((y * raster.size() + x) * 4);
    return {rgba[at], rgba[at + 1], rgba[at + 2], rgba[at + 3]};
}

TEST(AppIconTest, TheMarkIsWhiteOnAnIndigoPlateWithClearCorners) {
    const Raster icon = AppIcon::render(256);
    EXPECT_EQ(pixelAt(icon, 2, 2)[3], 0) << "outside the plate";
    const Color indigo = DFKit::indigo.resolved(Appearance::light);
    const auto plate = pixelAt(icon, 40, 128);
    EXPECT_EQ(plate[0], std::lround(indigo.red * 255));
    EXPECT_EQ(plate[2], std::lround(indigo.blue * 255));
    EXPECT_EQ(plate[3], 255);
    // The disc of the mark stands right of and below the icon's centre.
    const auto disc = pixelAt(icon, 150, 150);
    EXPECT_EQ(disc, (std::array<std::uint8_t, 4>{255, 255, 255, 255}));
}

TEST(AppIconTest, ThePlateCastsASoftShadowJustBelowIt) {
    const Raster icon = AppIcon::render(1024);
    const auto under = pixelAt(icon, 512, 930);
    EXPECT_EQ(under[0] + under[1] + under[2], 0) << "black";
    EXPECT_GT(under[3], 20);
    EXPECT_LT(under[3], 100) << "faint";
    EXPECT_EQ(pixelAt(icon, 512, 1000)[3], 0) << "gone before the canvas's edge";
    EXPECT_EQ(pixelAt(icon, 512, 60)[3], 0) << "falls below, not above";
}

TEST(AppIconTest, IconsOfThirtyTwoPixelsAndLessHaveNoShadowToBlurThePlatesEdge) {
    const Raster icon = AppIcon::render(32);
    const Color indigo = DFKit::indigo.resolved(Appearance::light);
    // The plate's bottom edge crosses the pixels of row 28: their own colour, not darkened by
    // a shadow, and nothing under them.
    const auto edge = pixelAt(icon, 16, 28);
    EXPECT_GT(edge[3], 0);
    EXPECT_NEAR(edge[2], std::lround(indigo.blue * 255), 1);
    EXPECT_EQ(pixelAt(icon, 16, 29)[3], 0);
}

TEST(RasterTest, ARectangleOnWholePixelsCoversExactlyThem) {
    Raster raster(8);
    raster.fill(Path::rect({2, 2, 4, 4}), Color::white(), 1, {0, 0});
    EXPECT_EQ(pixelAt(raster, 2, 2)[3], 255);
    EXPECT_EQ(pixelAt(raster, 5, 5)[3], 255);
    EXPECT_EQ(pixelAt(raster, 1, 2)[3], 0);
    EXPECT_EQ(pixelAt(raster, 6, 5)[3], 0);
}

TEST(RasterTest, AnEdgeThroughTheMiddleOfAPixelCoversHalfOfIt) {
    Raster raster(4);
    raster.fill(Path::rect({0, 0, 1.5, 4}), Color::white(), 1, {0, 0});
    EXPECT_NEAR(pixelAt(raster, 1, 1)[3], 128, 1);
}

TEST(RasterTest, ScaleAndOffsetPlaceThePath) {
    Raster raster(16);
    raster.fill(Path::rect({0, 0, 1, 1}), Color::white(), 4, {8, 4});
    EXPECT_EQ(pixelAt(raster, 9, 5)[3], 255);
    EXPECT_EQ(pixelAt(raster, 12, 5)[3], 0);
    EXPECT_EQ(pixelAt(raster, 1, 1)[3], 0);
}

}  // namespace
}  // namespace vistrel
