// The HTML stripper: any page gives CR LF ended text; a UTF-8 page gives UTF-8; and text
// with no markup, entity or CR is cut into lines of exactly 80 characters.
#include "FuzzInput.h"
#include "sitetools/HtmlStripper.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::string_view page = in.Rest();
  const bool utf8 = IsValidUtf8(page);
  const std::string out = StripHtml(page, utf8);
  FUZZ_CHECK(out.ends_with("\r\n"));
  if (utf8) FUZZ_CHECK(IsValidUtf8(out));
  const std::string singleByte = StripHtml(page, false);
  FUZZ_CHECK(singleByte.ends_with("\r\n"));

  if (page.find_first_of("<&\r") == std::string_view::npos) {
    std::string expected;
    for (std::size_t at = 0; at < page.size(); at += 80) {
      expected.append(page.substr(at, 80));
      expected.append("\r\n");
    }
    if (page.size() % 80 == 0) expected.append("\r\n");
    FUZZ_CHECK(singleByte == expected);
  }
  return 0;
}
