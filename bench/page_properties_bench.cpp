// Page properties on a 10 MB page: the weight report's comment removal and image scan, the
// search for title and BODY tag when the page has neither (so both read to the end), and the
// whole OK on a headless document. Beside them, the plain way of a case-blind scan, upper-
// casing the page first, as the yardstick in the same run.

#include <benchmark/benchmark.h>

#include <string>

#include "core/Application.h"
#include "core/Documents.h"
#include "core/TextServices.h"
#include "platform/BufferEdit.h"
#include "platform/HeadlessFrame.h"
#include "platform/HeadlessPlatform.h"
#include "wizards/PageProperties.h"

namespace {

using namespace tessarine;

std::string MakePage(bool withTags) {
  std::string page =
      withTags ? "<HTML><HEAD><TITLE>Big</TITLE></HEAD><BODY BGCOLOR=\"red\">\r\n" : "<HTML>\r\n";
  const std::string line =
      "<P>Some text <!-- a note --> and <IMG SRC=\"pic.gif\"> line after line.</P>\r\n";
  while (page.size() < 10u * 1024 * 1024) page += line;
  return page + (withTags ? "</BODY></HTML>" : "</HTML>");
}

void ReportScan(benchmark::State& state) {
  const std::string page = MakePage(true);
  for (auto _ : state) benchmark::DoNotOptimize(ScanPage(RemoveComments(page)).images.size());
}
BENCHMARK(ReportScan)->Unit(benchmark::kMillisecond);

void ReportScanUpperCasingThePage(benchmark::State& state) {
  const std::string page = MakePage(true);
  for (auto _ : state) {
    const std::string upper = UCase(page);
    std::size_t count = 0;
    for (std::size_t at = upper.find("IMG SRC=\""); at != std::string::npos;
         at = upper.find("IMG SRC=\"", at + 1))
      ++count;
    benchmark::DoNotOptimize(count);
  }
}
BENCHMARK(ReportScanUpperCasingThePage)->Unit(benchmark::kMillisecond);

void LayoutOfAPageWithoutTitleOrBody(benchmark::State& state) {
  const std::string page = MakePage(false);
  for (auto _ : state) benchmark::DoNotOptimize(FindPageLayout(page).hasBody);
}
BENCHMARK(LayoutOfAPageWithoutTitleOrBody)->Unit(benchmark::kMillisecond);

void OpenAndOk(benchmark::State& state) {
  const std::string page = MakePage(true);
  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  auto* window = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  for (auto _ : state) {
    window->Buffer().SetText(page);
    PageOpening o = PageProperties_Open(app);
    o.form.title = "Bigger";
    o.form.leftMargin = "10";
    benchmark::DoNotOptimize(PageProperties_OK(app, o.form));
  }
}
BENCHMARK(OpenAndOk)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
