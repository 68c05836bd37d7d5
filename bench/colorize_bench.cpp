// Tag colouring on a large page: our pass alone, the pass applied to the edit control, and
// QScintilla's own HTML lexer on the same text, in one run; then the memory a 50 MiB page
// costs in the control. Run under QT_QPA_PLATFORM=offscreen.

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "core/Colorize.h"
#include "ui/SciEdit.h"

namespace {

using namespace tessarine;
using Clock = std::chrono::steady_clock;

constexpr double kMiB = 1024.0 * 1024.0;
constexpr Pos kApplyChunk = 64 * 1024;

// A deterministic tag-dense page: tables, quoted attributes, comments, server blocks and
// plain text, CR LF line ends.
class PageGenerator {
 public:
  std::string Make(size_t bytes) {
    std::string s =
        "<html><head><title>Benchmark page</title></head>\r\n<body bgcolor=\"#FFFFFF\">\r\n";
    s.reserve(bytes + 4096);
    while (s.size() < bytes) {
      switch (Next() % 6) {
        case 0:
          Table(s);
          break;
        case 1:
          Comment(s);
          break;
        case 2:
          Server(s);
          break;
        case 3:
          Paragraph(s);
          break;
        case 4:
          Links(s);
          break;
        default:
          Paragraph(s);
          break;
      }
    }
    s += "</body></html>\r\n";
    return s;
  }

 private:
  std::uint32_t Next() {
    state_ = state_ * 1664525u + 1013904223u;
    return state_ >> 8;
  }
  void Words(std::string& s, int count) {
    static const char* const kWords[] = {"the",  "page",  "editor", "colour", "tag",   "value",
                                         "site", "table", "quote",  "plain",  "text",  "line",
                                         "link", "image", "server", "block",  "words", "a"};
    for (int i = 0; i < count; ++i) {
      if (i) s += ' ';
      s += kWords[Next() % (sizeof kWords / sizeof *kWords)];
    }
  }
  void Table(std::string& s) {
    s += "<table border=\"1\" cellpadding=\"2\" width='100%'>\r\n";
    const int rows = 2 + Next() % 4, cols = 2 + Next() % 3;
    for (int r = 0; r < rows; ++r) {
      s += "  <tr align=\"left\">";
      for (int c = 0; c < cols; ++c) {
        s += "<td class=\"c" + std::to_string(Next() % 50) + "\" valign=top>";
        Words(s, 1 + Next() % 3);
        s += "</td>";
      }
      s += "</tr>\r\n";
    }
    s += "</table>\r\n";
  }
  void Comment(std::string& s) {
    s += "<!-- ";
    Words(s, 3 + Next() % 8);
    s += " -->\r\n";
  }
  void Server(std::string& s) {
    s += "<% Response.Write(\"";
    Words(s, 2);
    s += "\") : n = n + " + std::to_string(Next() % 100) + " %>\r\n";
  }
  void Paragraph(std::string& s) {
    s += "<p>";
    Words(s, 5 + Next() % 15);
    s += " <b>";
    Words(s, 2);
    s += "</b> <i>";
    Words(s, 1);
    s += "</i></p>\r\n";
  }
  void Links(std::string& s) {
    s += "<a href=\"page" + std::to_string(Next() % 1000) + ".html\" title='";
    Words(s, 2);
    s += "'>";
    Words(s, 2);
    s += "</a> <img src=\"images/pic" + std::to_string(Next() % 100) +
         ".gif\" width=32 height=\"32\" alt=\"\"><br>\r\n";
  }

  std::uint32_t state_ = 12345;
};

// Best of `runs` timings of `f`; `reset` runs untimed before each.
template <class Reset, class F>
double BestMs(int runs, Reset&& reset, F&& f) {
  double best = 1e300;
  for (int i = 0; i < runs; ++i) {
    reset();
    const auto t0 = Clock::now();
    f();
    best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
  }
  return best;
}

long ResidentKiB() {
  std::ifstream in("/proc/self/status");
  std::string line;
  while (std::getline(in, line))
    if (line.rfind("VmRSS:", 0) == 0) return std::stol(line.substr(6));
  return -1;
}

void Apply(SciEdit& edit, const std::vector<Style>& styles) {
  const auto n = static_cast<Pos>(styles.size());
  for (Pos p = 0; p < n; p += kApplyChunk)
    edit.SetStyles(p, styles.data() + p, std::min(kApplyChunk, n - p));
}

void ColourInto(SciEdit& edit, std::vector<Style>& styles) {
  const std::string_view text = edit.View();
  styles.resize(text.size());
  ColorizeTags(text, ColorizeOptions{}, styles.data());
  Apply(edit, styles);
}

void Speed() {
  const std::string page = PageGenerator().Make(10 << 20);
  const double mib = static_cast<double>(page.size()) / kMiB;
  std::printf("page: %.2f MiB, %ld lines\n", mib,
              static_cast<long>(std::count(page.begin(), page.end(), '\n')));
  constexpr int kRuns = 5;

  // (a) the pass alone.
  std::vector<Style> styles(page.size());
  PassResult result;
  const auto noReset = [] {};
  const double passMs = BestMs(
      kRuns, noReset, [&] { result = ColorizeTags(page, ColorizeOptions{}, styles.data()); });
  std::printf("(a) ColorizeTags alone:             %8.1f ms  %8.1f MiB/s  (end %d)\n", passMs,
              mib / (passMs / 1000.0), static_cast<int>(result.end));

  // (b) the pass, then its styles applied to the control in 64 KiB chunks, each run on
  // a freshly loaded (uncoloured) text: the widget skips writes that change nothing.
  SciEdit edit;
  edit.SetVisible(false);
  edit.SetText(page);
  const auto uncolour = [&] { edit.FillStyle(0, edit.Length(), 0); };
  std::vector<Style> applied;
  const double applyMs = BestMs(kRuns, uncolour, [&] { ColourInto(edit, applied); });
  const double applyOnlyMs = BestMs(kRuns, uncolour, [&] { Apply(edit, applied); });
  std::printf(
      "(b) pass + SetStyles into SciEdit:  %8.1f ms  %8.1f MiB/s  (applying alone %.1f ms)\n",
      applyMs, mib / (applyMs / 1000.0), applyOnlyMs);
  size_t mismatches = 0;
  for (Pos i = 0; i < edit.Length(); i += 4099)
    mismatches += edit.StyleAt(i) != styles[static_cast<size_t>(i)];
  if (mismatches) std::printf("    warning: %zu sampled styles differ from the pass\n", mismatches);

  // (c) QScintilla's HTML lexer colouring the same text.
  QsciScintilla sci;
  sci.hide();
  sci.SendScintilla(QsciScintillaBase::SCI_APPENDTEXT, static_cast<uintptr_t>(page.size()),
                    page.data());
  QsciLexerHTML lexer;
  sci.setLexer(&lexer);
  const double htmlMs = BestMs(
      kRuns, [&] { sci.SendScintilla(QsciScintillaBase::SCI_CLEARDOCUMENTSTYLE); },
      [&] { sci.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L); });
  std::printf("(c) QsciLexerHTML SCI_COLOURISE:    %8.1f ms  %8.1f MiB/s\n", htmlMs,
              mib / (htmlMs / 1000.0));
  std::printf("(b)/(c) = %.3f  (target <= 0.100)\n", applyMs / htmlMs);
  std::printf("(a) target >= 300 MiB/s: %s\n", mib / (passMs / 1000.0) >= 300 ? "met" : "NOT met");
  sci.setLexer(nullptr);
}

void Memory() {
  SciEdit edit;
  edit.SetVisible(false);
  const long before = ResidentKiB();
  constexpr size_t kBytes = 50 << 20;
  double loadMs = 0, colourMs = 0;
  {
    const std::string page = PageGenerator().Make(kBytes);
    const auto t0 = Clock::now();
    edit.SetText(page);
    loadMs = std::chrono::duration<double, std::milli>(Clock::now() - t0).count();
  }
  {
    std::vector<Style> styles;
    const auto t0 = Clock::now();
    ColourInto(edit, styles);
    colourMs = std::chrono::duration<double, std::milli>(Clock::now() - t0).count();
  }
  const long after = ResidentKiB();
  const double used = static_cast<double>(after - before) * 1024.0;
  std::printf(
      "memory: %.1f MiB document (load %.0f ms, colour %.0f ms), resident %ld -> %ld KiB, "
      "%.2f x the text (target <= 4)\n",
      static_cast<double>(edit.Length()) / kMiB, loadMs, colourMs, before, after,
      used / static_cast<double>(edit.Length()));

  // A keystroke's worth of editing at the far end of the large text.
  edit.SetSelStart(edit.Length());
  constexpr int kEdits = 20;
  const auto t0 = Clock::now();
  for (int i = 0; i < kEdits; ++i) edit.ReplaceSel("x");
  for (int i = 0; i < kEdits; ++i) edit.Undo();
  std::printf("edit at the end of it: %.3f ms per ReplaceSel or Undo\n",
              std::chrono::duration<double, std::milli>(Clock::now() - t0).count() / (2 * kEdits));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  Memory();  // first, while the heap is still small
  Speed();
  return 0;
}
