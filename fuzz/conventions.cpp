// The tag-building conventions and the date patterns, on any text and any date fields.
#include <ctime>

#include "FuzzInput.h"
#include "conventions/TagConventions.h"
#include "core/DateFormat.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  std::tm t{};
  t.tm_year = in.Int32();
  t.tm_mon = in.Int32();
  t.tm_mday = in.Int32();
  t.tm_hour = in.Int32();
  t.tm_min = in.Int32();
  t.tm_sec = in.Int32();
  t.tm_wday = in.Int32();
  t.tm_yday = in.Int32();
  const std::int32_t color = in.Int32();
  const std::uint8_t switches = in.Byte();
  const std::string pattern(in.Field()), first(in.Field()), second(in.Field()), third(in.Field());

  (void)FormatDate(t, pattern);

  const std::string attribute = FormatAttribute(switches & 1, first, second);
  FUZZ_CHECK(attribute.size() == first.size() + second.size() + 2);

  const std::string hex = ColorToHex(color);
  FUZZ_CHECK(hex.size() == 6);
  const Rgb rgb = HexToRgbText(first);
  FUZZ_CHECK(!rgb.red.empty() && !rgb.green.empty() && !rgb.blue.empty());

  (void)RelativePath(first, second);
  std::string link = first, folder = second;
  ResolveRelativeLink(link, folder, third);
  return 0;
}
