// The text services every wizard writes through, on any document text and selection.
#include "FuzzInput.h"
#include "core/Application.h"
#include "core/Documents.h"
#include "core/TextServices.h"
#include "platform/HeadlessFrame.h"
#include "platform/HeadlessPlatform.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  const std::uint8_t selStart = in.Byte(), selLength = in.Byte();
  const std::string first(in.Field()), second(in.Field());
  const std::string_view text = in.Rest();

  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  app.settings.TagCaseUpper = switches & 1;
  auto* window = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  EditControl& edit = window->Buffer();
  edit.SetText(text);
  const Pos length = edit.Length();
  edit.SetSelStart(std::min<Pos>(selStart, length));
  edit.SetSelLength(std::min<Pos>(selLength, length - edit.SelStart()));
  const Pos selected = edit.SelLength();
  app.textServices.ReplaceSelectionOnce = switches & 2;

  switch ((switches >> 2) % 3) {
    case 0:
      InsertAtCaret(app, first, switches & 32);
      FUZZ_CHECK(edit.Length() <= length - selected + static_cast<Pos>(first.size()));
      break;
    case 1:
      WrapSelection(app, first, second, switches & 32);
      FUZZ_CHECK(edit.Length() <= length + static_cast<Pos>(first.size() + second.size()));
      break;
    default: {
      std::string head = first, body = second;
      InsertInHeadAndBody(app, head, body);
      break;
    }
  }
  FUZZ_CHECK(edit.SelStart() >= 0 && edit.SelStart() + edit.SelLength() <= edit.Length());
  if (!first.empty())
    FUZZ_CHECK(InStrNoCase(1, text, first) <= static_cast<long long>(text.size()));
  FUZZ_CHECK(UCase(text).size() == text.size() && LCase(text).size() == text.size());
  return 0;
}
