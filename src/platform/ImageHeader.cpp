#include "platform/ImageHeader.h"

#include <sys/types.h>
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tessarine {

namespace {

using Status = ImageHeader::Status;

std::uint32_t Be16(const unsigned char* p) {
  return (std::uint32_t{p[0]} << 8) | p[1];
}
std::uint32_t Be32(const unsigned char* p) {
  return (std::uint32_t{p[0]} << 24) | (std::uint32_t{p[1]} << 16) | (std::uint32_t{p[2]} << 8) |
         p[3];
}
std::uint32_t Le16(const unsigned char* p) {
  return p[0] | (std::uint32_t{p[1]} << 8);
}
std::uint32_t Le32(const unsigned char* p) {
  return Le16(p) | (Le16(p + 2) << 16);
}

ImageHeader Sized(const char* format, std::int64_t width, std::int64_t height) {
  ImageHeader h;
  h.format = format;
  if (width <= 0 || height <= 0) {
    h.status = Status::NotAPicture;
  } else if (width > kLargestImageSide || height > kLargestImageSide) {
    h.status = Status::TooLarge;
    // The claim is kept for the message; it fits, being under 2^31 by construction.
    h.width = static_cast<int>(std::min<std::int64_t>(width, INT32_MAX));
    h.height = static_cast<int>(std::min<std::int64_t>(height, INT32_MAX));
  } else {
    h.status = Status::Ok;
    h.width = static_cast<int>(width);
    h.height = static_cast<int>(height);
  }
  return h;
}

ImageHeader Failed(const char* format, Status status) {
  ImageHeader h;
  h.format = format;
  h.status = status;
  return h;
}

ImageHeader ReadJpeg(const ByteReader& read) {
  std::uint64_t at = 2;
  // Each step moves forward by at least two bytes, and a real file reaches its frame header
  // in a few dozen segments; the bound keeps a forged chain of tiny segments short.
  for (int segments = 0; segments < 4096; ++segments) {
    unsigned char m[2];
    if (read(at, m, 2) != 2) return Failed("JPEG", Status::Truncated);
    if (m[0] != 0xFF) return Failed("JPEG", Status::NotAPicture);
    if (m[1] == 0xFF) {  // fill byte before a marker
      at += 1;
      continue;
    }
    at += 2;
    const unsigned char marker = m[1];
    if (marker == 0xD8 || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) continue;
    if (marker == 0xD9 || marker == 0xDA) return Failed("JPEG", Status::NotAPicture);
    unsigned char len[2];
    if (read(at, len, 2) != 2) return Failed("JPEG", Status::Truncated);
    const std::uint32_t length = Be16(len);
    if (length < 2) return Failed("JPEG", Status::NotAPicture);
    const bool frame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (frame) {
      unsigned char f[5];
      if (read(at + 2, f, 5) != 5) return Failed("JPEG", Status::Truncated);
      return Sized("JPEG", Be16(f + 3), Be16(f + 1));
    }
    at += length;
  }
  return Failed("JPEG", Status::NotAPicture);
}

}  // namespace

ImageHeader ReadImageHeader(const ByteReader& read) {
  unsigned char h[32] = {};
  const std::size_t got = read(0, h, sizeof h);
  if (got >= 6 && (std::memcmp(h, "GIF87a", 6) == 0 || std::memcmp(h, "GIF89a", 6) == 0)) {
    if (got < 10) return Failed("GIF", Status::Truncated);
    return Sized("GIF", Le16(h + 6), Le16(h + 8));
  }
  static const unsigned char kPng[8] = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  if (got >= 8 && std::memcmp(h, kPng, 8) == 0) {
    if (got < 24) return Failed("PNG", Status::Truncated);
    if (std::memcmp(h + 12, "IHDR", 4) != 0) return Failed("PNG", Status::NotAPicture);
    const std::uint32_t w = Be32(h + 16), hh = Be32(h + 20);
    if (w > 0x7FFFFFFFu || hh > 0x7FFFFFFFu) return Failed("PNG", Status::NotAPicture);
    return Sized("PNG", w, hh);
  }
  if (got >= 2 && h[0] == 0xFF && h[1] == 0xD8) return ReadJpeg(read);
  if (got >= 2 && h[0] == 'B' && h[1] == 'M') {
    if (got < 26) return Failed("BMP", Status::Truncated);
    const std::uint32_t info = Le32(h + 14);
    if (info == 12) return Sized("BMP", Le16(h + 18), Le16(h + 20));  // OS/2 core header
    if (info < 40) return Failed("BMP", Status::NotAPicture);
    const auto w = static_cast<std::int32_t>(Le32(h + 18));
    const auto hh = static_cast<std::int32_t>(Le32(h + 22));
    // A negative height means rows stored top down; INT32_MIN has no positive twin.
    if (hh == INT32_MIN) return Failed("BMP", Status::NotAPicture);
    return Sized("BMP", w, hh < 0 ? -std::int64_t{hh} : hh);
  }
  return Failed("", got == 0 ? Status::Truncated : Status::NotAPicture);
}

ImageHeader ReadImageHeader(std::string_view bytes) {
  return ReadImageHeader([bytes](std::uint64_t offset, unsigned char* out, std::size_t n) {
    if (offset >= bytes.size()) return std::size_t{0};
    const std::size_t take = std::min<std::uint64_t>(n, bytes.size() - offset);
    std::memcpy(out, bytes.data() + offset, take);
    return take;
  });
}

ImageHeader ReadImageFileHeader(const std::string& path) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                       &std::fclose);
  if (!file) return Failed("", Status::Missing);
  std::FILE* f = file.get();
  return ReadImageHeader([f](std::uint64_t offset, unsigned char* out, std::size_t n) {
    if (offset > static_cast<std::uint64_t>(INT64_MAX) ||
        fseeko(f, static_cast<off_t>(offset), SEEK_SET) != 0)
      return std::size_t{0};
    return std::fread(out, 1, n, f);
  });
}

std::string ImageHeaderMessage(const ImageHeader& header, const std::string& path) {
  switch (header.status) {
    case Status::Ok:
      return "";
    case Status::Missing:
      return "The picture " + path + " can't be opened.";
    case Status::Truncated:
      return "The picture " + path + " is cut short; its size can't be read.";
    case Status::TooLarge:
      return "The picture " + path + " claims " + std::to_string(header.width) + " x " +
             std::to_string(header.height) + " pixels, too large to use.";
    case Status::NotAPicture:
      break;
  }
  return "The file " + path + " is not a GIF, PNG, JPEG or BMP picture that can be read.";
}

}  // namespace tessarine
