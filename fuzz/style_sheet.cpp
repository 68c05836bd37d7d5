// Style sheets on any bytes: reading ends; writing back unchanged rules leaves the page
// byte for byte; and the one-pass write-back leaves exactly what writing the rules one
// after another leaves.
#include "FuzzInput.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleManager.h"
#include "styles/StyleSheetWriter.h"
#include "styles/StyleState.h"

using namespace tessarine;

namespace {

std::string OneByOne(std::string text, const std::vector<StyleWrite>& writes) {
  for (const StyleWrite& w : writes)
    ApplyTextEdits(
        text, StyleWriteEdits(text, w.selector, DeclarationsAsWritten(w), w.embedded, w.remove));
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  const std::string selector(in.Field()), declarations(in.Field());
  const std::string text(in.Rest());
  const std::string caption = (switches & 1) ? "/site/sheet.css" : "/site/page.htm";

  const std::string_view sheet = DocumentStyleSheet(text, caption);
  FUZZ_CHECK(sheet.size() <= text.size());
  StyleState state;
  const std::vector<std::string> listed = LoadStyleRules(state, sheet);
  FUZZ_CHECK(state.Styles.Count() <= listed.size());

  // Nothing changed: nothing written.
  const std::vector<StyleWrite> none = SaveStylesWrites(state.Styles, caption);
  FUZZ_CHECK(none.empty());
  FUZZ_CHECK(WriteStyleDefinitions(text, none) == text);

  // Some rules rewritten from what was read, some cut, one given by the input.
  int i = 0;
  for (CSSstyle& s : state.Styles) {
    const int pick = (switches >> 1) & 3;
    if ((i + pick) % 3 == 0) {
      s.Status = kStyleChanged;
      s.GetStyleDefinition();
    } else if ((i + pick) % 3 == 1 && (switches & 8)) {
      s.Status = kStyleDeleted;
    }
    ++i;
  }
  std::vector<StyleWrite> writes = SaveStylesWrites(state.Styles, caption);
  writes.push_back(
      {selector, declarations, (switches & 16) != 0, (switches & 32) != 0, (switches & 64) != 0});
  FUZZ_CHECK(WriteStyleDefinitions(text, writes) == OneByOne(text, writes));
  return 0;
}
