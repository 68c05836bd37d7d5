// The site analyser on a small site whose two pages are the input: one page alone, then a
// crawl from the first page, in a scratch folder made once per fuzzing process.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "FuzzInput.h"
#include "sitetools/RecordingSiteView.h"
#include "sitetools/SiteAnalyser.h"

using namespace tessarine;
namespace fs = std::filesystem;

namespace {

// The scratch folder, removed at exit; kept apart from the function's static, which may
// be gone by then.
char scratch[4096];

const std::string& SiteFolder() {
  static const std::string folder = [] {
    std::string pattern = (fs::temp_directory_path() / "tsrn-fuzz-site-XXXXXX").string();
    if (pattern.size() >= sizeof scratch || !::mkdtemp(pattern.data())) std::abort();
    pattern.copy(scratch, pattern.size());
    // Deep enough that "../" links stay inside the scratch folder.
    const fs::path root = fs::path(pattern) / "a" / "b" / "site";
    fs::create_directories(root / "img");
    for (const char* name : {"img/logo.gif", "photo.jpg", "script.cgi", "doc.pdf"}) {
      std::FILE* f = std::fopen((root / name).c_str(), "wb");
      if (f) std::fclose(f);
    }
    std::atexit([] {
      std::error_code ignored;
      fs::remove_all(scratch, ignored);
    });
    return root.string() + "/";
  }();
  return folder;
}

void WriteFile(const std::string& path, std::string_view bytes) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) std::abort();
  std::fwrite(bytes.data(), 1, bytes.size(), f);
  std::fclose(f);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::string_view second = in.Field();
  const std::string_view first = in.Rest();
  const std::string& root = SiteFolder();
  WriteFile(root + "index.html", first);
  WriteFile(root + "other.html", second);

  RecordingSiteView pageView;
  SiteAnalyser page(pageView);
  page.AnalysePage(root, "index.html");
  FUZZ_CHECK(pageView.Label(SiteLabel::DownloadTime).find(" minutes ") != std::string::npos);

  RecordingSiteView siteView;
  SiteAnalyser site(siteView);
  site.AnalyseSite(root, "index.html");
  FUZZ_CHECK(!site.ParsedFilesList().empty() &&
             site.ParsedFilesList().front() == root + "index.html");
  FUZZ_CHECK(site.ErrorCount >= 0);
  return 0;
}
