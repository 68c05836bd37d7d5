#pragma once
// An application object on the headless platform, and a scratch folder on disk.

#include <stdlib.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/Application.h"
#include "core/Documents.h"
#include "platform/FileDialogs.h"
#include "platform/HeadlessFrame.h"
#include "platform/MessageBoxes.h"
#include "platform/HeadlessPlatform.h"
#include "platform/SettingsStore.h"

namespace tessarine::testing {

// A local time for a fixed clock.
inline std::tm At(int year, int month, int day, int hour, int minute) {
  std::tm t{};
  t.tm_year = year - 1900;
  t.tm_mon = month - 1;
  t.tm_mday = day;
  t.tm_hour = hour;
  t.tm_min = minute;
  return t;
}

struct TestApp {
  HeadlessPlatform platform;
  HeadlessFrame& frame = platform.frame;
  ScriptedMessageBoxes& messages = platform.messages;
  MemorySettingsStore& store = platform.store;
  ScriptedFileDialogs& dialogs = platform.fileDialogs;
  Application app{platform.Get(), "/opt/tessarine"};

  TestApp() { app.LoadSettings(); }

  // A new untitled window holding `text`, unchanged as after a finished new document.
  HeadlessDocumentWindow& NewWindow(const std::string& text = "") {
    auto* w = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
    w->Buffer().SetText(text);
    app.documents.State(app.documents.SlotOf(w)).Changed = false;
    return *w;
  }
  bool Changed(const DocumentWindow& w) const {
    return app.documents.State(app.documents.SlotOf(&w)).Changed;
  }
};

class TempDir {
 public:
  TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tsrn-test-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  ~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

inline void WriteAll(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace tessarine::testing
