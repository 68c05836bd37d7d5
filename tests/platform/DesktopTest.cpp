// The headless desktop services do real work: these prove it.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "platform/Desktop.h"
#include "platform/SpellEngine.h"

namespace tessarine {
namespace {

namespace fs = std::filesystem;

struct Scratch {
  Scratch() {
    std::string pattern = (fs::temp_directory_path() / "tsrn-desktop-XXXXXX").string();
    dir = ::mkdtemp(pattern.data());
  }
  ~Scratch() { fs::remove_all(dir); }
  std::string Write(const std::string& name, const std::string& bytes) {
    const auto p = (dir / name).string();
    std::ofstream(p, std::ios::binary) << bytes;
    return p;
  }
  fs::path dir;
};

TEST(HeaderImageInfo, ReadsGifPngAndJpegSizesFromTheirHeaders) {
  Scratch s;
  HeaderImageInfo info;
  int w = 0, h = 0;
  ASSERT_TRUE(
      info.Size(s.Write("a.gif", std::string("GIF89a\x40\x01\xC8\x00", 10) + "rest"), w, h));
  EXPECT_EQ(w, 320);
  EXPECT_EQ(h, 200);

  const std::string png =
      std::string("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x02\x80\0\0\x01\xe0", 24) + "xx";
  ASSERT_TRUE(info.Size(s.Write("b.png", png), w, h));
  EXPECT_EQ(w, 640);
  EXPECT_EQ(h, 480);

  // SOI, an APP0 segment to skip, then a baseline frame header: height 2, width 3.
  const std::string jpeg =
      std::string("\xFF\xD8\xFF\xE0\x00\x04\x01\x02\xFF\xC0\x00\x0B\x08\x00\x02\x00\x03", 17);
  ASSERT_TRUE(info.Size(s.Write("c.jpg", jpeg), w, h));
  EXPECT_EQ(w, 3);
  EXPECT_EQ(h, 2);

  EXPECT_FALSE(info.Size(s.Write("d.txt", "hello"), w, h));
  EXPECT_FALSE(info.Size(s.Write("e.jpg", std::string("\xFF\xD8\xFF", 3)), w, h));  // truncated
  EXPECT_FALSE(info.Size((s.dir / "missing.gif").string(), w, h));
}

TEST(PosixShell, StartsARealProgramWithItsArgumentsDetached) {
  Scratch s;
  const std::string out = (s.dir / "args.txt").string();
  const std::string script =
      s.Write("browser.sh", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"" + out + ".tmp\"\nmv \"" + out +
                                ".tmp\" \"" + out + "\"\n");
  ::chmod(script.c_str(), 0755);
  PosixShell shell;
  ASSERT_TRUE(shell.StartProgram(script, {"/tmp/a page.htm", "-x"}));
  for (int i = 0; i < 200 && !fs::exists(out); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  std::ifstream in(out);
  std::stringstream got;
  got << in.rdbuf();
  EXPECT_EQ(got.str(), "/tmp/a page.htm\n-x\n");
  ASSERT_EQ(shell.started.size(), 1u);
  EXPECT_EQ(shell.started[0].front(), script);

  EXPECT_FALSE(shell.StartProgram((s.dir / "no-such-program").string(), {}));
  EXPECT_FALSE(shell.StartProgram("", {}));
}

TEST(ScriptedColorDialog, AnswersInTurnAndCancels) {
  ScriptedColorDialog d;
  d.Queue(291);
  d.QueueCancel();
  std::int32_t c = 0;
  EXPECT_TRUE(d.PickColor(5, c));
  EXPECT_EQ(c, 291);
  EXPECT_FALSE(d.PickColor(c, c));
  EXPECT_FALSE(d.PickColor(c, c));  // a script run dry is a Cancel
  EXPECT_EQ(d.initials, (std::vector<std::int32_t>{5, 291, 291}));
}

TEST(WordListSpellEngine, SuggestsKnownWordsOneEditAway) {
  WordListSpellEngine e({"table", "tablet", "cable", "able", "tale"});
  EXPECT_TRUE(e.Check("table"));
  EXPECT_FALSE(e.Check("tabel"));
  EXPECT_EQ(e.Suggest("tabl"), (std::vector<std::string>{"table"}));
  EXPECT_EQ(e.Suggest("table"), (std::vector<std::string>{"able", "cable", "tablet", "tale"}));
  e.AddWord("tabel");
  EXPECT_TRUE(e.Check("tabel"));
}

}  // namespace
}  // namespace tessarine
