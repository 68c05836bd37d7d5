#include "sitetools/LinkCheck.h"

#include "sitetools/SiteText.h"

namespace tessarine {

PageToVerify VerifyActiveDocument(const std::string& caption) {
  PageToVerify page;
  if (UpperAscii(caption.substr(0, 8)) == "UNTITLED") {
    page.message = "File must be saved before verifying links.";
    return page;
  }
  const std::size_t slash = caption.rfind('/');
  page.ok = true;
  page.folder = slash == std::string::npos ? std::string() : caption.substr(0, slash + 1);
  page.fileName = slash == std::string::npos ? caption : caption.substr(slash + 1);
  return page;
}

PageToVerify VerifySelectedFile(const std::string& folder, const std::string& name) {
  PageToVerify page;
  // The extension itself, in exact case: "index.shtml" ends in "html" but is no page here.
  if (!name.ends_with(".htm") && !name.ends_with(".html")) {
    page.message = "Tessarine can't verify this type of file.";
    return page;
  }
  page.ok = true;
  page.folder = folder.empty() || folder.back() != '/' ? folder + "/" : folder;
  page.fileName = name;
  return page;
}

}  // namespace tessarine
