// The searches against a plain walk, and Replace All: it must end (libFuzzer's -timeout
// catches a loop) and can replace no more often than the text allows.
#include "core/Find.h"
#include "FuzzInput.h"
#include "core/Application.h"
#include "core/Documents.h"
#include "platform/HeadlessFrame.h"
#include "platform/HeadlessPlatform.h"

using namespace tessarine;

namespace {

char Fold(char c, bool matchCase) {
  return !matchCase && c >= 'a' && c <= 'z' ? c - 32 : c;
}

bool MatchesAt(std::string_view text, Pos at, std::string_view needle, bool matchCase) {
  if (at < 0 || at + static_cast<Pos>(needle.size()) > static_cast<Pos>(text.size())) return false;
  for (std::size_t i = 0; i < needle.size(); ++i)
    if (Fold(text[at + i], matchCase) != Fold(needle[i], matchCase)) return false;
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  const std::uint8_t caret = in.Byte();
  const std::string needle(in.Field()), replacement(in.Field());
  const std::string_view text = in.Rest();
  const bool matchCase = switches & 1;
  const Pos length = static_cast<Pos>(text.size());

  if (!needle.empty()) {
    const Pos from = std::min<Pos>(caret, length);
    Pos down = -1;
    for (Pos p = from; p <= length && down < 0; ++p)
      if (MatchesAt(text, p, needle, matchCase)) down = p;
    FUZZ_CHECK(SearchDown(text, from, needle, matchCase) == down);
    Pos up = -1;
    for (Pos p = from - 2; p >= 0 && up < 0; --p)
      if (MatchesAt(text, p, needle, matchCase)) up = p;
    FUZZ_CHECK(SearchUp(text, from, needle, matchCase) == up);
  }

  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  auto* window = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  EditControl& edit = window->Buffer();
  edit.SetText(text);
  edit.SetSelStart(std::min<Pos>(caret, length));
  FindReplaceInputs inputs;
  inputs.txtFind = needle;
  inputs.txtReplace = replacement;
  app.editing.find.FindDirection = (switches & 2) ? 0 : 1;
  app.editing.find.FindMatchCase = matchCase ? 1 : 0;
  app.editing.find.NewSearch = switches & 4;
  const std::int64_t before = static_cast<std::int64_t>(platform.messages.shown().size());
  cmdReplaceAll(app, inputs);
  if (needle.empty()) return 0;
  // Each replacement changes the length by the same amount.
  const std::int64_t count = static_cast<std::int64_t>(platform.messages.shown().size()) - before;
  FUZZ_CHECK(count <= 1);
  const Pos grown = edit.Length() - length;
  const Pos step = static_cast<Pos>(replacement.size()) - static_cast<Pos>(needle.size());
  if (step != 0) {
    FUZZ_CHECK(grown % step == 0);
    FUZZ_CHECK(grown / step <= length + 1);
  }
  return 0;
}
