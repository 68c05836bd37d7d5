// Edit Tag's search on a 10 MB page: the caret near the end in a link's text and in an
// image tag, and a link near the start whose "</A>" never comes, so the search for it
// reads the whole page. Beside it, the same link found by upper-casing the whole page
// first, the plain way of a case-blind search, as the yardstick in the same run.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "wizards/EditTag.h"

namespace {

using namespace tessarine;

std::string MakePage(bool closeLinks) {
  std::string page = "<HTML><BODY>\r\n<A HREF=\"first.htm\">first";
  if (closeLinks) page += "</A>";
  page += "\r\n";
  const std::string line = "<P>Some text of a long page, <B>line</B> after line.</P>\r\n";
  while (page.size() < 10u * 1024 * 1024) page += line;
  page += "<A HREF=\"end.html\">last</A>\r\n<IMG SRC=\"pic.gif\" ALT=\"end\">\r\n</BODY></HTML>";
  return page;
}

void LinkNearTheEnd(benchmark::State& state) {
  const std::string page = MakePage(true);
  const std::size_t caret = page.rfind("last") + 2;
  for (auto _ : state) {
    EditTagState tag;
    benchmark::DoNotOptimize(FindTagAtCaret(page, caret, tag));
  }
}
BENCHMARK(LinkNearTheEnd)->Unit(benchmark::kMicrosecond);

void ImageNearTheEnd(benchmark::State& state) {
  const std::string page = MakePage(true);
  const std::size_t caret = page.rfind("pic.gif");
  for (auto _ : state) {
    EditTagState tag;
    benchmark::DoNotOptimize(FindTagAtCaret(page, caret, tag));
  }
}
BENCHMARK(ImageNearTheEnd)->Unit(benchmark::kMicrosecond);

void UnclosedLinkAtTheStart(benchmark::State& state) {
  const std::string page = MakePage(false);
  const std::size_t caret = page.find("first\r\n") + 2;
  for (auto _ : state) {
    EditTagState tag;
    benchmark::DoNotOptimize(FindTagAtCaret(page, caret, tag));
  }
}
BENCHMARK(UnclosedLinkAtTheStart)->Unit(benchmark::kMillisecond);

void UnclosedLinkUpperCasingThePage(benchmark::State& state) {
  const std::string page = MakePage(false);
  const std::size_t caret = page.find("first\r\n") + 2;
  for (auto _ : state) {
    const std::size_t lt = page.rfind('<', caret - 1);
    const std::size_t gt = page.find('>', lt);
    std::string upper(page);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    benchmark::DoNotOptimize(upper.find("</A>", gt));
  }
}
BENCHMARK(UnclosedLinkUpperCasingThePage)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
