#pragma once
// The embedded media dialog: one EMBED tag for a sound or multimedia object. The two tag
// cases place the ALT attribute differently, and both places are kept.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

extern const char* const kEmbedControls[3];  // "Hidden", "Small", "Normal"
extern const char* const kEmbedAligns[3];    // "Top", "Middle", "Bottom"

struct EmbeddedMediaInputs {
  std::string mediaFile;
  std::string width;
  std::string height;
  std::string altText;
  std::string controls;  // an item of kEmbedControls, or empty
  std::string align;     // an item of kEmbedAligns, or empty
  bool autostart = false;
  bool loop = false;
};

CheckResult ValidateEmbeddedMedia(const EmbeddedMediaInputs& in);
std::string BuildEmbeddedMedia(bool tagCaseUpper, const EmbeddedMediaInputs& in);
// OK: the check, then the undo history is emptied and the tag goes through
// InsertInHeadAndBody with an empty head.
CheckResult EmbeddedMedia_OK(Application& app, const EmbeddedMediaInputs& in);

}  // namespace tessarine
