// Web page properties on any page text: what opening reads, the in-place rewrite on OK, and
// the weight report's comment removal and image scan.
#include "FuzzInput.h"
#include "core/Application.h"
#include "core/Documents.h"
#include "platform/EditControl.h"
#include "platform/HeadlessFrame.h"
#include "platform/HeadlessPlatform.h"
#include "wizards/EditTag.h"
#include "wizards/PageProperties.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  const std::string title(in.Field());
  const std::string_view text = in.Rest();

  // The report's readers.
  const std::string stripped = RemoveComments(text);
  FUZZ_CHECK(stripped.size() <= text.size());
  const PageScan scan = ScanPage(stripped);
  FUZZ_CHECK(scan.title.size() <= stripped.size());
  FUZZ_CHECK(scan.images.size() <= stripped.size() / 9 + 1);
  for (const std::string& name : scan.images) FUZZ_CHECK(name.size() <= stripped.size());
  const std::int64_t total =
      PageTotalSize(static_cast<std::int64_t>(text.size()), scan.images,
                    [](const std::string& name) { return static_cast<std::int64_t>(name.size()); });
  const DownloadTime time = DownloadTimeOf(total);
  FUZZ_CHECK(time.seconds >= 0 && time.seconds < 60 && time.minutes >= 0);

  const PageLayout layout = FindPageLayout(text);
  if (layout.hasBody) {
    FUZZ_CHECK(layout.bodyStart + layout.bodyLength <= text.size());
    FUZZ_CHECK(text[layout.bodyStart] == '<' &&
               text[layout.bodyStart + layout.bodyLength - 1] == '>');
  }
  if (layout.hasTitle) FUZZ_CHECK(layout.titleStart + layout.titleLength <= text.size());

  // Opening and OK on the text as a document.
  HeadlessPlatform platform;
  Application app(platform.Get(), "/nonexistent");
  app.LoadSettings();
  app.settings.TagCaseUpper = switches & 1;
  auto* window = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  EditControl& edit = window->Buffer();
  edit.SetText(text);
  PageOpening opening = PageProperties_Open(app);
  if (!text.empty() && layout.hasBody) {
    FUZZ_CHECK(edit.SelStart() == static_cast<Pos>(layout.bodyStart));
    FUZZ_CHECK(edit.SelLength() == static_cast<Pos>(layout.bodyLength));
  }
  const std::string before = edit.Text();
  PageProperties& form = opening.form;
  form.title = (switches & 2) ? title : "";
  if (switches & 4) form.fixedBackground = true;
  if (switches & 8) form.backgroundColor = EnterColor(app, title);
  const CheckResult failed = PageProperties_OK(app, form);
  const std::string after = edit.Text();
  if (failed) {
    FUZZ_CHECK(after == before);
  } else if (form.title.empty()) {
    // Only the BODY tag changes: the old one is replaced, or the new one goes in at the caret.
    const PageLayout was = FindPageLayout(before);
    const std::string& tag = app.files.BodyTag;
    std::string expected = before;
    if (was.hasBody)
      expected.replace(was.bodyStart, was.bodyLength, tag);
    else
      expected.insert(0, tag);
    FUZZ_CHECK(after == expected);
  }
  FUZZ_CHECK(edit.SelStart() >= 0 && edit.SelStart() + edit.SelLength() <= edit.Length());
  return 0;
}
