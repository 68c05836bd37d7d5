// Opening and saving a 50 MiB page through the editor, each against its floor in the same
// run: open-to-coloured against reading the bytes and setting them into a QsciScintilla,
// saving against a plain write of the same bytes. Run under QT_QPA_PLATFORM=offscreen.

#include <Qsci/qsciscintilla.h>
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/HeadlessPlatform.h"
#include "ui/MainWindow.h"

namespace {

using namespace tessarine;
using Timer = std::chrono::steady_clock;
namespace fs = std::filesystem;

constexpr double kMiB = 1024.0 * 1024.0;
constexpr int kRuns = 7;

double Median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

double Ms(Timer::time_point since) {
  return std::chrono::duration<double, std::milli>(Timer::now() - since).count();
}

// A tag-dense page with tables, quoted values, comments and CR LF line ends.
std::string MakePage(std::size_t bytes) {
  std::string s = "<HTML><HEAD><TITLE>Open and save</TITLE></HEAD>\r\n<BODY>\r\n";
  s.reserve(bytes + 512);
  std::uint32_t state = 7;
  auto next = [&] { return (state = state * 1664525u + 1013904223u) >> 8; };
  while (s.size() < bytes) {
    switch (next() % 4) {
      case 0:
        s += "<TABLE BORDER=\"1\"><TR><TD CLASS=\"c" + std::to_string(next() % 90) +
             "\">cell</TD><TD>two</TD></TR></TABLE>\r\n";
        break;
      case 1:
        s += "<!-- a comment about row " + std::to_string(next() % 1000) + " -->\r\n";
        break;
      case 2:
        s += "<P>Some plain words of text, <B>bold</B> and <A HREF=\"p" +
             std::to_string(next() % 500) + ".html\">a link</A>.</P>\r\n";
        break;
      default:
        s += "<IMG SRC=\"pic.gif\" WIDTH=32 HEIGHT=\"32\" ALT=\"\"><BR>\r\n";
        break;
    }
  }
  return s;
}

bool PlainWrite(const std::string& path, const std::string& bytes) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (n <= 0) break;
    done += static_cast<std::size_t>(n);
  }
  return ::close(fd) == 0 && done == bytes.size();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qapp(argc, argv);
  const fs::path dir = fs::temp_directory_path() / ("tsrn-bench-" + std::to_string(::getpid()));
  fs::create_directories(dir);
  const std::string page = MakePage(50u << 20);
  const std::string source = (dir / "big.html").string();
  PlainWrite(source, page + "\r\n");
  std::printf("page: %.1f MiB\n", static_cast<double>(page.size()) / kMiB);

  // Floor of opening: the bytes read and set into a bare QsciScintilla.
  std::vector<double> floorRuns, openRuns, saveRuns, writeRuns;
  for (int i = 0; i < kRuns; ++i) {
    QsciScintilla sci;
    const auto t0 = Timer::now();
    std::string bytes;
    ReadWholeFile(source, bytes);
    sci.SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 0UL);
    sci.SendScintilla(QsciScintillaBase::SCI_ALLOCATE, static_cast<unsigned long>(bytes.size()));
    sci.SendScintilla(QsciScintillaBase::SCI_APPENDTEXT, static_cast<uintptr_t>(bytes.size()),
                      bytes.data());
    floorRuns.push_back(Ms(t0));
  }

  // The editor: OpenFile into a document window of the main window, coloured.
  HeadlessPlatform headless;
  MainWindow frame;
  Application app({frame, headless.messages, headless.store, headless.fileDialogs,
                   headless.colorDialog, headless.shell, headless.clipboard, headless.images,
                   headless.clock, headless.checkedQuestions},
                  dir.string());
  headless.store.SaveSetting("Miscellaneous", "StartNewDoc", "0");
  headless.store.SaveSetting("Miscellaneous", "FirstRun", "no");
  frame.show();
  frame.Load(app, "");
  for (int i = 0; i < kRuns; ++i) {
    auto t0 = Timer::now();
    OpenFile(app, source);
    openRuns.push_back(Ms(t0));
    DocumentWindow* w = app.ActiveDocument();
    if (!w || w->Edit().Length() != static_cast<Pos>(page.size())) {
      std::printf("the page did not open whole\n");
      return 1;
    }
    const std::string target = (dir / "saved.html").string();
    // Each write starts with nothing left to write back, so that one does not pay for the
    // other's pages.
    ::sync();
    t0 = Timer::now();
    SaveFile(app, *w, target, SaveMode::Command);
    saveRuns.push_back(Ms(t0));
    if (i == 0 && fs::file_size(target) != page.size() + 2) std::printf("save size differs\n");

    const std::string text = w->Edit().Text() + "\r\n";
    ::sync();
    t0 = Timer::now();
    PlainWrite((dir / "plain.html").string(), text);
    writeRuns.push_back(Ms(t0));
    std::printf("  run %d: open %.1f ms, save %.1f ms, plain write %.1f ms\n", i + 1,
                openRuns.back(), saveRuns.back(), writeRuns.back());

    app.documents.State(app.documents.SlotOf(w)).Changed = false;
    w->RequestClose();
    // What the event loop does between two commands: the closed window is deleted.
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  const double floorMs = Median(floorRuns), openMs = Median(openRuns);
  const double saveMs = Median(saveRuns), writeMs = Median(writeRuns);
  std::printf("medians of %d runs\n", kRuns);
  std::printf("floor (read + QsciScintilla load): %8.1f ms\n", floorMs);
  std::printf("OpenFile to coloured:              %8.1f ms  ratio %.2f (target <= 3)\n", openMs,
              openMs / floorMs);
  std::printf("plain write of the bytes:          %8.1f ms\n", writeMs);
  std::printf("SaveFile:                          %8.1f ms  ratio %.2f (target <= 2)\n", saveMs,
              saveMs / writeMs);
  fs::remove_all(dir);
  return 0;
}
