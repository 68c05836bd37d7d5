// The site analyser's standard mode: each link resolved against its own page's folder as
// a browser does, ID= and NAME= both anchors, other schemes listed and never fetched. The
// rows, kinds and report lines are those of the analyser's own rules.
#include <string_view>

#include "sitetools/LinkResolution.h"
#include "sitetools/SiteAnalyser.h"

namespace tessarine {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string("/") : path.substr(0, slash + 1);
}

bool EndsWithAny(std::string_view path, std::initializer_list<std::string_view> endings) {
  for (std::string_view ending : endings) {
    if (EndsWithNoCase(path, ending)) return true;
  }
  return false;
}

// Where ".cgi" or ".pl" ends in a script path, or npos.
std::size_t ScriptEnd(std::string_view path) {
  for (std::string_view script : {std::string_view(".cgi"), std::string_view(".pl")}) {
    if (std::size_t at = path.find(script); at != std::string_view::npos) {
      return at + script.size();
    }
  }
  return std::string_view::npos;
}

}  // namespace

bool SiteAnalyser::StandardAnchorFound(const std::string& path, const std::string& anchor) {
  const std::string upperAnchor = UpperAscii(anchor);
  if (path.empty() || path == CurrentPage) return HoldsIdOrName(upper1_, upperAnchor);
  std::optional<std::string> text = ReadFileText(path);
  return text && HoldsIdOrName(UpperAscii(*text), upperAnchor);
}

void SiteAnalyser::CheckStandardLink(const std::string& rawLink) {
  const ResolvedLink link = ResolveLink(FolderOf(CurrentPage), rawLink);
  if (link.kind == ResolvedLink::Kind::Remote) return;  // listed only
  if (link.kind == ResolvedLink::Kind::SamePage) {
    if (link.hasFragment && !link.fragment.empty() && !StandardAnchorFound({}, link.fragment)) {
      ReportError(rawLink, "Broken Anchor", 2);
    }
    return;
  }
  LinkTarget = link.path;
  const std::string& path = link.path;
  if (const std::size_t end = ScriptEnd(path); end != std::string::npos) {
    if (!FileExistsForRead(path.substr(0, end))) ReportError(rawLink, "Broken CGI link", 7);
    return;
  }
  if (EndsWithAny(path, {"gif", "jpg", "jpeg"})) {
    if (!FileExistsForRead(path)) ReportError(rawLink, "Missing Image", 4);
    return;
  }
  if (EndsWithAny(path, {"pdf", "zip", "exe"})) {
    if (!FileExistsForRead(path)) ReportError(rawLink, "Broken Link", 4);
    return;
  }
  std::optional<FileId> id = ReadableFileId(path);
  if (!id) {
    ReportError(rawLink, "Broken Link", 2);
    return;
  }
  if (link.hasFragment && !link.fragment.empty() && !StandardAnchorFound(path, link.fragment)) {
    ReportError(rawLink, "Broken Anchor", 2);
  }
  QueuePage(path, id);
}

void SiteAnalyser::ClassifyStandardPageLink(const std::string& token) {
  const bool pageLink = token == "HREF=\"" || token == "FRAME SRC=\"";
  const bool imageLink = token == "IMG SRC=\"" || token == "BACKGROUND=\"";
  const std::string position = NumberText(LinkPosition);
  const std::string shown = LinkTarget;
  const ResolvedLink link = ResolveLink(dir1_, LinkTarget);
  if (link.kind == ResolvedLink::Kind::Remote) {
    view_.AddRow(SiteRow{shown, {"Unverified remote link"}, 5});
    return;
  }
  if (link.kind == ResolvedLink::Kind::SamePage) {
    if (!link.hasFragment) return;
    const bool found = link.fragment.empty() || StandardAnchorFound({}, link.fragment);
    view_.AddRow(SiteRow{shown, {found ? "OK" : "Broken Anchor", "", position}, found ? 1 : 2});
    return;
  }
  const std::string& path = link.path;
  if (FileExistsForRead(path)) {
    if (link.hasFragment && !link.fragment.empty() && !StandardAnchorFound(path, link.fragment)) {
      view_.AddRow(SiteRow{shown, {"Broken Anchor", "", position}, 2});
      return;
    }
    if (imageLink || EndsWithAny(path, {"jpg", "gif"})) {
      if (imageLink) {
        const std::int64_t size = FileLength(path);
        if (size > 0) DocumentWeight += size;
      }
      view_.AddRow(SiteRow{shown, {"OK", "Image", position}, 3});
      return;
    }
    // The linked page's title, read from the resolved file.
    const std::string base = BasePath;
    const std::string target = LinkTarget;
    BasePath.clear();
    LinkTarget = path;
    ReadLinkedPageTitle();
    BasePath = base;
    LinkTarget = target;
    view_.AddRow(SiteRow{shown, {"OK", LinkedTitle, position}, 1});
    return;
  }
  if (const std::size_t end = ScriptEnd(path); end != std::string::npos) {
    const bool script = FileExistsForRead(path.substr(0, end));
    view_.AddRow(SiteRow{shown,
                         {script ? "Unverified CGI script" : "Broken CGI link", "", position},
                         script ? 5 : 7});
    return;
  }
  if (pageLink) {
    view_.AddRow(SiteRow{shown, {"Broken Link", "", position}, 2});
  } else if (imageLink) {
    view_.AddRow(SiteRow{shown, {"Missing Image", "", position}, 4});
  }
}

}  // namespace tessarine
