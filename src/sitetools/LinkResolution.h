#pragma once
// Links resolved as a browser resolves them against a page on the local disk: the
// reference taken against the page's own folder (RFC 3986), query and fragment split off,
// percent-escapes decoded, dot segments removed. The site analyser's standard mode.

#include <string>
#include <string_view>

namespace tessarine {

struct ResolvedLink {
  enum class Kind {
    Local,     // a file on this disk: `path`
    SamePage,  // only a fragment (or a query): the page itself
    Remote,    // another scheme or host: listed, never fetched
  };
  Kind kind = Kind::Local;
  std::string path;
  bool hasFragment = false;
  std::string fragment;  // decoded, without the "#"
};

// `pageFolder` is absolute, closing "/" optional. A link to a folder ("dir/") stands for
// its index.html, as the analyser takes it in either mode.
ResolvedLink ResolveLink(const std::string& pageFolder, std::string_view link);

std::string PercentDecode(std::string_view text);

// Whether the upper-cased page holds an element with this ID= or NAME=, the value quoted
// with either quote or bare. `upperAnchor` upper-cased too.
bool HoldsIdOrName(std::string_view upperText, std::string_view upperAnchor);

}  // namespace tessarine
