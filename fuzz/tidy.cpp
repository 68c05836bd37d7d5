// The glue around libtidy: any page with any cleaning options is passed and read back
// without harm, the result is one of Tidy's, a cleaned page is written whole or not at
// all, and every place the report names maps into the page.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "FuzzInput.h"
#include "sitetools/TidyRunner.h"

using namespace tessarine;
namespace fs = std::filesystem;

namespace {

char scratch[4096];

const std::string& Folder() {
  static const std::string folder = [] {
    std::string pattern = (fs::temp_directory_path() / "tsrn-fuzz-tidy-XXXXXX").string();
    if (pattern.size() >= sizeof scratch || !::mkdtemp(pattern.data())) std::abort();
    pattern.copy(scratch, pattern.size());
    std::atexit([] {
      std::error_code ignored;
      fs::remove_all(scratch, ignored);
    });
    return pattern + "/";
  }();
  return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  CleanOptions o;
  o.addAltText = switches & 1;
  o.fontToCss = switches & 2;
  o.upperCaseTags = switches & 4;
  o.paragraphsToBreaks = switches & 8;
  o.formatXhtml = switches & 16;
  o.indent = switches & 32;
  o.wrap = switches & 64;
  o.breakBeforeBr = o.wrapAttributes = switches & 128;
  o.altText = std::string(in.Field());
  // A few spaces are enough to reach every path; hundreds per level only make Tidy's own
  // output large and the run slow.
  o.indentSpaces = std::to_string(in.Byte() % 10);
  o.wrapChars = std::string(in.Field());
  const std::string_view page = in.Rest();

  const std::string errors = Folder() + "errors.txt";
  const std::string output = Folder() + "out.html";
  std::error_code ignored;
  fs::remove(output, ignored);
  TidyJob job{CleanOptionSequence(o), page, errors, output};
  bool written = false;
  const int rc = RunTidyHere(job, &written);
  FUZZ_CHECK(rc >= -1 && rc <= 2);
  FUZZ_CHECK(written == fs::exists(output, ignored));
  // No temporary file is left beside the output.
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator(Folder())) files += entry.is_regular_file();
  FUZZ_CHECK(files <= 2);

  std::ifstream report(errors, std::ios::binary);
  for (std::string line; std::getline(report, line);) {
    long long l = 0, c = 0;
    if (ParseTidyLocation(line, l, c)) FUZZ_CHECK(OffsetOfTidyLocation(page, l, c) <= page.size());
  }
  return 0;
}
