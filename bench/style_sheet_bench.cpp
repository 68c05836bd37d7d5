// A page with an embedded sheet of 10,000 rules (about 1 MB): read into Styles, every rule
// changed, and the batch written back into the document, against a plain scan of the same
// bytes counting "{" and "}", in the same run. Then, on 1,000 rules, the batch against
// writing the rules one after another with a search from the start for each.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/Documents.h"
#include "platform/HeadlessFrame.h"
#include "platform/HeadlessPlatform.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleManager.h"

namespace {

using namespace tessarine;
using Clock = std::chrono::steady_clock;

double Ms(Clock::time_point from) {
  return std::chrono::duration<double, std::milli>(Clock::now() - from).count();
}

// Rules of about 100 bytes with, in turn, every property the model knows and unknown ones.
std::string MakePage(int rules) {
  const char* const bodies[] = {
      "font-family:Arial; font-size:12pt; color:#ff0000; text-transform:uppercase;",
      "font-weight:bold; font-style:italic; font-variant:small-caps; text-decoration:underline;",
      "vertical-align:sub; text-align:center; text-indent:5px; letter-spacing:1pt;",
      "line-height:14pt; background-color:#fff; background:url(a.gif) #eee; cursor:hand;",
      "width:50%; height:20px; left:3em; top:4mm; position:absolute; visibility:hidden;",
      "z-index:3; border:1px solid #000; margin:0 auto; padding:2px; float:left;",
  };
  std::string page = "<html><head><title>Sheet</title><style type=\"text/css\">\r\n";
  for (int i = 0; i < rules; ++i) {
    page += (i % 3 == 0 ? "#id" : i % 3 == 1 ? ".class" : "DIV.c") + std::to_string(i);
    page += " {\r\n\t";
    page += bodies[i % 6];
    page += "\r\n}\r\n";
  }
  page += "</style></head><body><p>Text</p></body></html>\r\n";
  return page;
}

struct Run {
  double readMs = 0, changeWriteMs = 0;
  std::size_t rules = 0, bytesAfter = 0;
};

Run ReadChangeWrite(const std::string& page) {
  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  auto* w = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  w->SetCaption("/site/page.htm");
  w->Buffer().SetText(page);
  Run run;
  const auto start = Clock::now();
  std::vector<std::string> listed;
  LoadStyles(app, listed);
  run.readMs = Ms(start);
  const std::string blue = "blue", two = "2";
  const auto write = Clock::now();
  for (CSSstyle& s : app.styles.Styles) {
    s.Color = blue;
    s.LineHeight = two;
    s.Status = kStyleChanged;
    s.GetStyleDefinition();
  }
  SaveStyles(app);
  run.changeWriteMs = Ms(write);
  run.rules = listed.size();
  run.bytesAfter = w->Buffer().View().size();
  return run;
}

double OneByOneMs(const std::string& page) {
  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  auto* w = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  w->SetCaption("/site/page.htm");
  w->Buffer().SetText(page);
  std::vector<std::string> listed;
  LoadStyles(app, listed);
  const std::string blue = "blue";
  const auto start = Clock::now();
  for (CSSstyle& s : app.styles.Styles) {
    s.Color = blue;
    s.GetStyleDefinition();
    std::string d = s.Definition;
    FormatStyleDefinition(d, kStyleForDocument);
    WriteStyleDefinition(app, s.StyleName, d, true, false);
  }
  return Ms(start);
}

double BatchMs(const std::string& page) {
  const auto start = Clock::now();
  ReadChangeWrite(page);
  return Ms(start);
}

// The peer: one pass over the bytes counting braces.
double ScanMs(const std::string& page, long& braces) {
  const auto start = Clock::now();
  long open = 0, close = 0;
  for (char c : page) {
    open += c == '{';
    close += c == '}';
  }
  braces = open + close;
  return Ms(start);
}

double Median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

}  // namespace

int main() {
  const std::string page = MakePage(10000);
  // Each pass scans, then reads, changes and writes: the ratio is taken pass by pass, so
  // that a machine slowing down for a while moves both sides of it.
  constexpr int kPasses = 15;
  std::vector<double> scan, read, write, ratio;
  Run last;
  long braces = 0;
  for (int i = 0; i < kPasses; ++i) {
    scan.push_back(ScanMs(page, braces));
    last = ReadChangeWrite(page);
    read.push_back(last.readMs);
    write.push_back(last.changeWriteMs);
    ratio.push_back((last.readMs + last.changeWriteMs) / scan.back());
  }
  const double s = Median(scan), r = Median(read), w = Median(write);
  std::printf("page %zu bytes, %zu rules, %ld braces, %zu bytes after writing\n", page.size(),
              last.rules, braces, last.bytesAfter);
  std::printf("medians of %d passes:\n", kPasses);
  std::printf("brace scan          %8.3f ms\n", s);
  std::printf("read into Styles    %8.3f ms  (%.1f x scan)\n", r, r / s);
  std::printf("change + write back %8.3f ms  (%.1f x scan)\n", w, w / s);
  std::printf("read, change, write: %.1f x the scan of the same pass (best %.1f, worst %.1f)\n",
              Median(ratio), *std::min_element(ratio.begin(), ratio.end()),
              *std::max_element(ratio.begin(), ratio.end()));

  const std::string small = MakePage(1000);
  const double oneByOne = OneByOneMs(small), batch = BatchMs(small);
  std::printf("1,000 rules: one after another %.1f ms, batch (read included) %.2f ms\n", oneByOne,
              batch);
  return 0;
}
