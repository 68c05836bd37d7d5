// Picture sizes from headers alone: the four formats, and files that lie or break off.

#include <gtest/gtest.h>

#include <random>

#include "core/TestApp.h"
#include "platform/Desktop.h"
#include "platform/ImageHeader.h"

namespace tessarine {
namespace {

using Status = ImageHeader::Status;

std::string Le16(int v) {
  return {static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)};
}
std::string Le32(std::uint32_t v) {
  return Le16(v & 0xFFFF) + Le16(v >> 16);
}
std::string Be16(int v) {
  return {static_cast<char>((v >> 8) & 0xFF), static_cast<char>(v & 0xFF)};
}
std::string Be32(std::uint32_t v) {
  return Be16(v >> 16) + Be16(v & 0xFFFF);
}

std::string Gif(int w, int h) {
  return "GIF89a" + Le16(w) + Le16(h) + std::string(20, '\0');
}
std::string Png(std::uint32_t w, std::uint32_t h) {
  return std::string("\x89PNG\r\n\x1A\n", 8) + Be32(13) + "IHDR" + Be32(w) + Be32(h) +
         std::string(9, '\0');
}
// A JPEG with an application segment of `appBytes` before its frame header.
std::string Jpeg(int w, int h, int appBytes = 16) {
  return std::string("\xFF\xD8\xFF\xE0", 4) + Be16(appBytes + 2) + std::string(appBytes, 'x') +
         std::string("\xFF\xFF\xC0", 3) + Be16(17) + "\x08" + Be16(h) + Be16(w) +
         std::string(12, '\0');
}
std::string Bmp(std::int32_t w, std::int32_t h) {
  return "BM" + Le32(0) + Le32(0) + Le32(54) + Le32(40) + Le32(static_cast<std::uint32_t>(w)) +
         Le32(static_cast<std::uint32_t>(h)) + std::string(28, '\0');
}

TEST(ImageHeader, SizesOfTheFourFormats) {
  struct Case {
    std::string bytes;
    const char* format;
    int width, height;
  } cases[] = {
      {Gif(320, 200), "GIF", 320, 200},
      {Png(1, 32767), "PNG", 1, 32767},
      {Jpeg(640, 480), "JPEG", 640, 480},
      {Jpeg(17, 9, 60000), "JPEG", 17, 9},  // a large EXIF block is skipped, not read
      {Bmp(33, 44), "BMP", 33, 44},
      {Bmp(33, -44), "BMP", 33, 44},  // stored top down
      {"BM" + Le32(0) + Le32(0) + Le32(26) + Le32(12) + Le16(7) + Le16(5) + "xxxx", "BMP", 7, 5},
  };
  for (const Case& c : cases) {
    const ImageHeader h = ReadImageHeader(c.bytes);
    EXPECT_EQ(h.status, Status::Ok) << c.format;
    EXPECT_EQ(h.format, c.format);
    EXPECT_EQ(h.width, c.width) << c.format;
    EXPECT_EQ(h.height, c.height) << c.format;
  }
}

TEST(ImageHeader, BadFilesGiveAStatusNotASize) {
  const std::string jpeg = Jpeg(640, 480);
  struct Case {
    std::string bytes;
    Status status;
  } cases[] = {
      {"", Status::Truncated},
      {"hello, not a picture", Status::NotAPicture},
      {Gif(320, 200).substr(0, 8), Status::Truncated},
      {Png(10, 10).substr(0, 20), Status::Truncated},
      {jpeg.substr(0, jpeg.size() - 20), Status::Truncated},
      {std::string("\xFF\xD8\xFF\xDA", 4) + Be16(2), Status::NotAPicture},  // scan, no frame
      {std::string("\xFF\xD8\xFF\xE0\x00\x01", 6), Status::NotAPicture},    // length below 2
      {Png(100000, 100000), Status::TooLarge},
      {Png(0x80000000u, 4), Status::NotAPicture},
      {Gif(0, 10), Status::NotAPicture},
      {Jpeg(65535, 65535), Status::TooLarge},
      {Bmp(100000, 100000), Status::TooLarge},
      {Bmp(5, INT32_MIN), Status::NotAPicture},
  };
  for (const Case& c : cases) {
    const ImageHeader h = ReadImageHeader(c.bytes);
    EXPECT_EQ(h.status, c.status) << c.bytes.size();
    EXPECT_NE(ImageHeaderMessage(h, "p.png"), "");
  }
  EXPECT_EQ(ImageHeaderMessage(ReadImageHeader(Png(100000, 100000)), "big.png"),
            "The picture big.png claims 100000 x 100000 pixels, too large to use.");
}

TEST(ImageHeader, FilesAndTheHeadlessService) {
  testing::TempDir dir;
  testing::WriteAll(dir / "a.jpg", Jpeg(12, 34, 1000));
  testing::WriteAll(dir / "huge.png", Png(100000, 100000));
  HeaderImageInfo images;
  int w = 0, h = 0;
  ASSERT_TRUE(images.Size(dir / "a.jpg", w, h));
  EXPECT_EQ(w, 12);
  EXPECT_EQ(h, 34);
  w = h = 7;
  EXPECT_FALSE(images.Size(dir / "huge.png", w, h));
  EXPECT_FALSE(images.Size(dir / "missing.gif", w, h));
  EXPECT_EQ(w, 7);
  EXPECT_EQ(ReadImageFileHeader(dir / "missing.gif").status, Status::Missing);
  EXPECT_EQ(ReadImageFileHeader(dir.path().string()).status, Status::Truncated);  // a folder
}

TEST(ImageHeader, RandomBytesNeverGiveAnOutOfRangeSize) {
  // Random tails behind each real signature, and random bytes alone: whatever the result,
  // an Ok size is within the limits and a reader asked past the end is never trusted.
  std::mt19937 random(12345);
  const std::string heads[] = {"", "GIF89a", std::string("\x89PNG\r\n\x1A\n", 8),
                               std::string("\xFF\xD8", 2), "BM"};
  int ok = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string bytes = heads[round % 5];
    const int n = static_cast<int>(random() % 64);
    for (int i = 0; i < n; ++i) bytes += static_cast<char>(random() & 0xFF);
    const ImageHeader h = ReadImageHeader(bytes);
    if (h.ok()) {
      ++ok;
      EXPECT_GE(h.width, 1);
      EXPECT_GE(h.height, 1);
      EXPECT_LE(h.width, kLargestImageSide);
      EXPECT_LE(h.height, kLargestImageSide);
    } else {
      EXPECT_NE(ImageHeaderMessage(h, "f"), "");
    }
  }
  // The signatures with random tails do give sizes now and then.
  EXPECT_GT(ok, 0);
}

}  // namespace
}  // namespace tessarine
