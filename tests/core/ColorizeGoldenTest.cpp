// Colouring checked against golden files: each sample's text beside the style of every
// character. Every sample is run again with its LF line ends turned into CR LF.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "core/Colorize.h"
#include "core/Styles.h"

namespace tessarine {
namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

char Letter(Style s) {
  if (IsItalic(s)) return KindOf(s) == StyleKind::Comment ? (IsBold(s) ? 'I' : 'i') : '*';
  static const char kLetters[] = ".tbqcsgf";
  const char c = kLetters[static_cast<int>(KindOf(s))];
  if (!IsBold(s)) return c;
  return c == '.' ? ':' : static_cast<char>(c - 'a' + 'A');
}

const char* EndName(PassEnd e) {
  switch (e) {
    case PassEnd::Finished: return "finished";
    case PassEnd::Cancelled: return "cancelled";
    case PassEnd::Abandoned: return "abandoned";
  }
  return "?";
}

struct PassRun {
  PassResult result;
  std::vector<Style> styles;
};

PassRun RunPass(const std::string& text, const std::string& options, bool script) {
  PassRun run;
  run.styles.resize(text.size());
  ColorizeOptions o;
  o.flags.ASPColorTags = options.find("asp-off") == std::string::npos;
  o.flags.CommentColorTags = options.find("comment-off") == std::string::npos;
  o.flags.CommentTagItalic = options.find("italic") != std::string::npos;
  o.bold = options.find("bold") != std::string::npos;
  run.result = script ? ColorizeScriptComments(text, o.bold, run.styles.data())
                      : ColorizeTags(text, o, run.styles.data());
  return run;
}

// Text lines behind "> ", their styles (the line end's included) behind "= ".
std::string Render(const std::string& text, const PassRun& run) {
  std::string out = std::string("end: ") + EndName(run.result.end) + " at " +
                    std::to_string(run.result.position) + "\n";
  std::string line, styles;
  auto flush = [&] {
    out += "> " + line + "\n= " + styles + "\n";
    line.clear();
    styles.clear();
  };
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    styles += Letter(run.styles[i]);
    if (c == '\n') {
      flush();
      continue;
    }
    line += (c == '\r') ? '~' : (static_cast<unsigned char>(c) < 32 ? '?' : c);
  }
  if (!line.empty() || !styles.empty()) flush();
  return out;
}

std::string ToCrLf(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) out += '\r';
    out += text[i];
  }
  return out;
}

std::vector<fs::path> Samples() {
  std::vector<fs::path> out;
  for (const auto& e : fs::directory_iterator(fs::path(TESSARINE_TEST_DATA) / "colorize")) {
    const auto ext = e.path().extension();
    if (ext == ".html" || ext == ".cgi") out.push_back(e.path());
  }
  std::sort(out.begin(), out.end());
  return out;
}

TEST(ColorizeGolden, EverySampleMatchesItsGoldenFile) {
  const bool update = std::getenv("TESSARINE_UPDATE_GOLDEN") != nullptr;
  const auto samples = Samples();
  ASSERT_GE(samples.size(), 10u);
  for (const auto& sample : samples) {
    SCOPED_TRACE(sample.filename().string());
    const std::string text = ReadFile(sample);
    fs::path optionsFile = sample;
    optionsFile.replace_extension(".options");
    const std::string options = fs::exists(optionsFile) ? ReadFile(optionsFile) : "";
    const bool script = sample.extension() == ".cgi";
    const PassRun run = RunPass(text, options, script);
    fs::path golden = sample;
    golden.replace_extension(".golden");
    const std::string rendered = Render(text, run);
    if (update) std::ofstream(golden, std::ios::binary) << rendered;
    EXPECT_EQ(rendered, ReadFile(golden));

    // With CR LF line ends the CR takes the style of its LF; the pass ends the same way.
    const std::string crlf = ToCrLf(text);
    if (crlf == text) continue;
    std::vector<Style> expected;
    for (size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) expected.push_back(run.styles[i]);
      expected.push_back(run.styles[i]);
    }
    const PassRun crlfRun = RunPass(crlf, options, script);
    EXPECT_EQ(crlfRun.result.end, run.result.end);
    EXPECT_EQ(crlfRun.styles, expected);
  }
}

}  // namespace
}  // namespace tessarine
