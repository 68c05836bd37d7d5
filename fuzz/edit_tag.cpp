// The tag around a caret and its attribute reads, on any text and any caret.
#include "FuzzInput.h"
#include "wizards/EditTag.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Hyperlink.h"
#include "wizards/ImageTag.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint32_t caretSeed = static_cast<std::uint32_t>(in.Int32());
  const std::string_view text = in.Rest();
  const std::size_t caret = text.empty() ? 0 : caretSeed % (text.size() + 1);

  EditTagState state;
  state.currentTag = "IMG SRC=old.gif>";
  const TagAtCaret found = FindTagAtCaret(text, caret, state);
  if (found.selectTag) {
    // The selection lies in the text, starts at a "<" before the caret and ends at a ">".
    FUZZ_CHECK(found.selStart < caret && found.selLength >= 2);
    FUZZ_CHECK(found.selStart + found.selLength <= text.size());
    FUZZ_CHECK(text[found.selStart] == '<');
    FUZZ_CHECK(text[found.selStart + found.selLength - 1] == '>');
    FUZZ_CHECK(state.currentTag == text.substr(found.selStart + 1, found.selLength - 1));
    FUZZ_CHECK(found.linkText.size() < found.selLength);
  } else {
    FUZZ_CHECK(state.currentTag == "IMG SRC=old.gif>");
  }
  // Nothing searched (no "<" before the caret): no wizard, whatever the kept tag.
  FUZZ_CHECK(found.wizard == (found.searched ? WizardForTag(state.currentTag) : TagWizard::None));

  // Every read is a piece of the tag.
  for (const char* key : {"SRC=", "ALT=", "HREF=", "LINK=", "USEMAP="})
    FUZZ_CHECK(ParseTag(state.currentTag, key).size() < state.currentTag.size() + 1);
  ImageTag image;
  FillImage(state.currentTag, image);
  FUZZ_CHECK(image.source.size() <= state.currentTag.size());
  Hyperlink link;
  FillHyperlink(state.currentTag, found.linkText, link);
  BodyTagFields body;
  FillBody(state.currentTag, body);
  FormatChar font;
  FillFormatChar(state.currentTag, font);
  HorizontalLine rule;
  FillHorizontalLine(state.currentTag, rule);
  return 0;
}
