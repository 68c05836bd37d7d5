// Picture headers on any bytes, and the image map's lines read back on any text.
#include <ctime>

#include "FuzzInput.h"
#include "platform/ImageHeader.h"
#include "wizards/ImageMap.h"
#include "wizards/ImageTag.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const ImageHeader header = ReadImageHeader(bytes);
  if (header.ok()) {
    FUZZ_CHECK(header.width >= 1 && header.width <= kLargestImageSide);
    FUZZ_CHECK(header.height >= 1 && header.height <= kLargestImageSide);
  } else {
    FUZZ_CHECK(!ImageHeaderMessage(header, "f").empty());
  }
  fuzz::FuzzInput in(data, size);
  std::tm t{};
  t.tm_year = in.Int32();
  t.tm_mon = in.Int32() % 12;
  t.tm_mday = in.Int32();
  t.tm_hour = in.Int32();
  t.tm_min = in.Int32();
  t.tm_sec = in.Int32();
  FUZZ_CHECK(ImageName(t).rfind("img", 0) == 0);

  const std::string line(in.Rest());
  const MapArea area = ParseAreaLine(line);
  FUZZ_CHECK(area.numbers.size() <= line.size());
  for (int n : area.numbers) FUZZ_CHECK(n >= 0);
  return 0;
}
