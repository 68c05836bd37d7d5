#include "framesforms/EmbeddedMedia.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"

namespace tessarine {

const char* const kEmbedControls[3] = {"Hidden", "Small", "Normal"};
const char* const kEmbedAligns[3] = {"Top", "Middle", "Bottom"};

namespace {
std::string Optional(bool upper, const char* head, const std::string& value) {
  return value.empty() ? "" : FormatAttribute(upper, head, value);
}
}  // namespace

CheckResult ValidateEmbeddedMedia(const EmbeddedMediaInputs& in) {
  if (in.mediaFile.find_first_not_of(' ') == std::string::npos)
    return WizardCheck{"Please enter object to be embedded in the box below.", "mediaFile"};
  return std::nullopt;
}

std::string BuildEmbeddedMedia(bool upper, const EmbeddedMediaInputs& in) {
  const std::string width = Optional(upper, " width=", in.width);
  const std::string height = Optional(upper, " height=", in.height);
  const std::string alt = Optional(upper, " alt=", in.altText);
  const std::string align = Optional(upper, " ALIGN=", in.align);
  std::string control;
  if (in.controls == "Hidden") control = " HIDDEN=\"TRUE\"";
  if (in.controls == "Small") control = " CONTROLS=\"SMALLCONSOLE\"";
  if (in.controls == "Normal") control = " CONTROLS=\"CONSOLE\"";
  const std::string autostart = in.autostart ? FormatAttribute(upper, " AUTOSTART=", "TRUE") : "";
  const std::string loop = in.loop ? FormatAttribute(upper, " LOOP=", "TRUE") : "";
  const std::string file = "\"" + in.mediaFile + "\"";
  if (upper)
    return "<EMBED SRC=" + file + width + height + align + control + autostart + loop + alt + ">";
  return "<embed src=" + file + alt + width + height + LCase(align + control + autostart + loop) +
         ">";
}

CheckResult EmbeddedMedia_OK(Application& app, const EmbeddedMediaInputs& in) {
  if (CheckResult failed = ValidateEmbeddedMedia(in)) return failed;
  EmptyUndoBuffer(app);
  std::string head;
  std::string body = BuildEmbeddedMedia(app.settings.TagCaseUpper, in);
  InsertInHeadAndBody(app, head, body);
  return std::nullopt;
}

}  // namespace tessarine
