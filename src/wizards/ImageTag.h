#pragma once
// The image dialog: one IMG tag with its layout, a link around it, a roll-over picture, a
// low-resolution source, client and server maps and an inline video. Edit Tag fills the
// same record from an old tag.

#include <ctime>
#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;
class ImageInfo;

struct ImageTag {
  std::string source;  // the picture's file name or URL
  std::string width, height;
  std::string border, verticalSpace, horizontalSpace;
  std::string alignment;  // an item of ImageAlignments(), or empty for none
  std::string altText;
  std::string lowResSource;
  std::string linkUrl;
  std::string videoFile;
  std::string videoLoop;
  std::string videoStart;
  bool videoControls = false;
  bool useClientMap = false;
  std::string mapName;
  bool serverMap = false;
  std::string mouseOverImage;

  CheckResult Validate() const;
  // The whole text: the IMG tag, inside an A tag when there is a link (or a roll-over,
  // which needs one). `imageName` names the picture for the roll-over script.
  std::string Build(bool tagCaseUpper, const std::string& imageName) const;
};

struct ImageAlignment {
  const char* item;
  const char* description;
};
// The alignment list in its order, "None" first.
const std::vector<ImageAlignment>& ImageAlignments();
// The attribute an alignment item gives, as the list builds it (upper-case form).
std::string ImageAlignAttribute(const std::string& item);

// "img" and four characters from the day number of `now`.
std::string ImageName(const std::tm& now);

// The size read-out of a picture: the two label texts and the two field values.
struct ImageSizeReadout {
  bool known = false;
  std::string widthLabel, heightLabel, width, height;
  std::string problem;  // why the size is unknown, for the user
};
ImageSizeReadout ReadImageSize(ImageInfo& images, const std::string& path);

// Whether a name picked in the dialog's file list has its size read: ".gif" or ".jpg"
// in any case.
bool SizeReadFromList(const std::string& fileName);

// The image file list's pattern: as it opens, and after the folder was changed.
std::string ImageListPattern(bool folderChanged);
// Whether a file name matches a pattern of ";"-separated wildcards ("*", "?"), ignoring
// case and the blanks around each wildcard.
bool MatchesPattern(const std::string& fileName, const std::string& pattern);

// OK: the one check, then the URL is remembered and the text written at the caret inside
// the body, else behind the BODY tag.
CheckResult ImageTag_OK(Application& app, const ImageTag& form);

}  // namespace tessarine
