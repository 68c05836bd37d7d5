#pragma once
// The size of a GIF, PNG, JPEG or BMP picture read from its header alone. Nothing is
// decoded, and only the bytes the header needs are read, so a huge, truncated or forged
// file costs a few reads and never an allocation of its claimed size.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tessarine {

struct ImageHeader {
  enum class Status { Ok, Missing, NotAPicture, Truncated, TooLarge };
  Status status = Status::NotAPicture;
  std::string format;  // "GIF", "PNG", "JPEG", "BMP" once recognised
  int width = 0;
  int height = 0;
  bool ok() const { return status == Status::Ok; }
};

// Larger sides are refused: such a picture can't be shown, and its numbers can't be
// clicked on in 16 bits.
constexpr std::int64_t kLargestImageSide = 32767;

// Reads up to `n` bytes at `offset` into `out`; returns how many it could.
using ByteReader =
    std::function<std::size_t(std::uint64_t offset, unsigned char* out, std::size_t n)>;

ImageHeader ReadImageHeader(const ByteReader& read);
ImageHeader ReadImageHeader(std::string_view bytes);
ImageHeader ReadImageFileHeader(const std::string& path);

// A sentence for the user when the size could not be had, naming the file; empty when Ok.
std::string ImageHeaderMessage(const ImageHeader& header, const std::string& path);

}  // namespace tessarine
