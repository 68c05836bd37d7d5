// Replace All of 100,000 matches in a 10 MB page, each replacement an edit of the real
// document window's control with the change handler running, against `sed` replacing the
// same matches in the same text, in the same run; then Find Next over the same page.
// Run under QT_QPA_PLATFORM=offscreen.

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "core/Application.h"
#include "core/Find.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"

namespace {

using namespace tessarine;
using Stopwatch = std::chrono::steady_clock;

constexpr int kMatches = 100000;

double Ms(Stopwatch::time_point from) {
  return std::chrono::duration<double, std::milli>(Stopwatch::now() - from).count();
}

// 100,000 lines of about 100 bytes, one needle in each: "needle" and "NEEDLE" in turn when
// `mixedCase`, so that the search folds case, or none at all when `needles` is false.
std::string MakePage(bool mixedCase, bool needles = true) {
  std::string s;
  s.reserve(kMatches * 110);
  for (int i = 0; i < kMatches; ++i) {
    s += "<p class=\"row\">line ";
    s += std::to_string(i);
    s += !needles                    ? " with a nxxdle"
         : (mixedCase && i % 2 == 0) ? " with a NEEDLE"
                                     : " with a needle";
    s += " somewhere in the middle of some ordinary text, and more.</p>\r\n";
  }
  return s;
}

std::string Slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qapp(argc, argv);
  QTemporaryDir dir;
  qputenv("XDG_DATA_HOME", (dir.path() + "/data").toUtf8());
  HeadlessPlatform h;
  auto frame = std::make_unique<MainWindow>();
  Application app(Platform{*frame, h.messages, h.store, h.fileDialogs, h.colorDialog, h.shell,
                           h.clipboard, h.images, h.clock, h.checkedQuestions, &h.defaultBrowser},
                  dir.path().toStdString());
  frame->resize(1000, 700);
  frame->show();
  frame->Load(app, "");
  QApplication::processEvents();
  auto* form = dynamic_cast<DocumentForm*>(frame->ActiveDocumentWindow());
  if (!form) {
    std::fprintf(stderr, "no document window\n");
    return 1;
  }
  SciEdit& edit = form->Editor();

  if (qEnvironmentVariableIsSet("NOWRAP")) edit.SetWordWrap(false);
  std::printf("word wrap %s\n", edit.WordWrap() ? "on" : "off");
  bool allSame = true;

  // Replace All through the dialog's command from the start of the document, and sed on
  // the same text with the same matches: ignoring case on mixed-case needles, then
  // matching case.
  for (const bool matchCase : {false, true}) {
    const std::string page = MakePage(!matchCase);
    const std::string in = dir.path().toStdString() + "/page.htm";
    const std::string out = dir.path().toStdString() + "/sed.htm";
    std::ofstream(in, std::ios::binary) << page;
    const std::string command = std::string("sed 's/needle/thread/g") + (matchCase ? "" : "I") +
                                "' '" + in + "' > '" + out + "'";
    double sedMs = 1e30;
    for (int run = 0; run < 3; ++run) {
      const auto t0 = Stopwatch::now();
      if (std::system(command.c_str()) != 0) {
        std::fprintf(stderr, "sed failed\n");
        return 1;
      }
      sedMs = std::min(sedMs, Ms(t0));
    }

    edit.SetText(page);
    QApplication::processEvents();
    edit.SetSelStart(0);
    app.editing.find.FindMatchCase = matchCase ? 1 : 0;
    app.editing.find.NewSearch = true;
    const auto t0 = Stopwatch::now();
    ReplaceAllAsOneStep(app, {"needle", "thread", true, matchCase});
    const double replaceMs = Ms(t0);
    const auto t1 = Stopwatch::now();
    QApplication::processEvents();  // the wrap and the scroll that were put off
    const double settleMs = Ms(t1);
    const bool same = edit.Text() == Slurp(out);
    const std::string replaced = edit.Text();
    // The whole run comes back in one undo step, and goes again in one redo.
    const auto t2 = Stopwatch::now();
    edit.Undo();
    QApplication::processEvents();
    const double undoMs = Ms(t2);
    const bool undone = edit.Text() == page && !edit.CanUndo();
    const auto t3 = Stopwatch::now();
    edit.Redo();
    QApplication::processEvents();
    const double redoMs = Ms(t3);
    const bool redone = edit.Text() == replaced;
    allSame = allSame && undone && redone;
    allSame = allSame && same;
    const std::string message = h.messages.shown().empty() ? "" : h.messages.shown().back().text;
    std::printf("\n%s: %.2f MB, %d matches\n", matchCase ? "match case" : "ignore case",
                page.size() / 1e6, kMatches);
    std::printf(
        "  %-34s %9.1f ms\n",
        (std::string("sed ") + (matchCase ? "s/needle/thread/g" : "s/needle/thread/gI")).c_str(),
        sedMs);
    std::printf("  Replace All (%d edits)        %9.1f ms  %.2f us per replacement\n", kMatches,
                replaceMs, replaceMs * 1000 / kMatches);
    std::printf("  then the event loop's first turn   %9.1f ms  (wrap and scroll put off)\n",
                settleMs);
    std::printf("  ratio Replace All / sed            %9.1f  (target <= 20): %s\n",
                replaceMs / sedMs, replaceMs / sedMs <= 20 ? "met" : "NOT met");
    std::printf("  same text as sed: %s; message: %s\n", same ? "yes" : "NO", message.c_str());
    std::printf(
        "  one Undo of the whole run          %9.1f ms  (target < 1000): %s; byte for byte: %s\n",
        undoMs, undoMs < 1000 ? "met" : "NOT met", undone ? "yes" : "NO");
    std::printf("  one Redo                           %9.1f ms  same text again: %s\n", redoMs,
                redone ? "yes" : "NO");
  }
  const std::string page = MakePage(true);

  // Find Next from the start to the last match, match after match.
  edit.SetText(page);
  QApplication::processEvents();
  edit.SetSelStart(0);
  app.editing.find.FindWhat = "needle";
  app.editing.find.FindDirection = 1;
  app.editing.find.FindMatchCase = 0;
  app.editing.find.NewSearch = true;
  int found = 0;
  auto t1 = Stopwatch::now();
  while (true) {
    mnuSFindNext(app);
    if (app.editing.find.FindFinished) break;
    ++found;
  }
  const double walkMs = Ms(t1);
  std::printf("\nFind Next over every match:   %9.1f ms  %d matches, %.2f us each\n", walkMs, found,
              walkMs * 1000 / found);

  // One Find Next from the start whose only match is the last line.
  std::string lone = MakePage(false, false) + "the last needle\r\n";
  edit.SetText(lone);
  QApplication::processEvents();
  for (int matchCase = 0; matchCase < 2; ++matchCase) {
    edit.SetSelStart(0);
    app.editing.find.FindMatchCase = static_cast<std::int16_t>(matchCase);
    app.editing.find.NewSearch = true;
    auto t2 = Stopwatch::now();
    mnuSFindNext(app);
    const double oneMs = Ms(t2);
    std::printf("one Find Next to the end (%s): %6.2f ms  found at %lld of %lld\n",
                matchCase ? "case" : "no case", oneMs, static_cast<long long>(edit.SelStart()),
                static_cast<long long>(edit.Length()));
  }

  for (int i = 1; i <= app.documents.UpperBound(); ++i) app.documents.State(i).Changed = false;
  frame->close();
  return allSame ? 0 : 1;
}
