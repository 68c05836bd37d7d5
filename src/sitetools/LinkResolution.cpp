#include "sitetools/LinkResolution.h"

#include <filesystem>

#include "sitetools/SiteText.h"

namespace tessarine {
namespace {

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

bool IsAlpha(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsSchemeChar(char c) {
  return IsAlpha(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

// The scheme of an absolute reference, lower-cased; "" for a relative one.
std::string SchemeOf(std::string_view ref) {
  if (ref.empty() || !IsAlpha(ref[0])) return {};
  for (std::size_t i = 1; i < ref.size(); ++i) {
    if (ref[i] == ':') return LowerAscii(ref.substr(0, i));
    if (!IsSchemeChar(ref[i])) return {};
  }
  return {};
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string PercentDecode(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 2 < text.size()) {
      const int high = HexValue(text[i + 1]);
      const int low = HexValue(text[i + 2]);
      if (high >= 0 && low >= 0) {
        out += static_cast<char>(high * 16 + low);
        i += 2;
        continue;
      }
    }
    out += text[i];
  }
  return out;
}

ResolvedLink ResolveLink(const std::string& pageFolder, std::string_view link) {
  ResolvedLink result;
  while (!link.empty() && IsSpace(link.front())) link.remove_prefix(1);
  while (!link.empty() && IsSpace(link.back())) link.remove_suffix(1);
  if (const std::size_t hash = link.find('#'); hash != std::string_view::npos) {
    result.hasFragment = true;
    result.fragment = PercentDecode(link.substr(hash + 1));
    link = link.substr(0, hash);
  }
  if (const std::size_t query = link.find('?'); query != std::string_view::npos) {
    link = link.substr(0, query);
  }
  const std::string scheme = SchemeOf(link);
  if (scheme == "file") {
    link.remove_prefix(5);
    if (link.starts_with("//")) {
      // file://host/path: only this machine's files are ours.
      const std::size_t slash = link.find('/', 2);
      const std::string_view host =
          link.substr(2, slash == std::string_view::npos ? link.npos : slash - 2);
      if (!host.empty() && LowerAscii(host) != "localhost") {
        result.kind = ResolvedLink::Kind::Remote;
        return result;
      }
      link = slash == std::string_view::npos ? std::string_view("/") : link.substr(slash);
    }
  } else if (!scheme.empty() || link.starts_with("//")) {
    result.kind = ResolvedLink::Kind::Remote;
    return result;
  }
  if (link.empty()) {
    result.kind = ResolvedLink::Kind::SamePage;
    return result;
  }
  std::string path = PercentDecode(link);
  if (path.front() != '/') {
    std::string folder = pageFolder;
    if (folder.empty() || folder.back() != '/') folder += '/';
    path = folder + path;
  }
  if (path.back() == '/') path += "index.html";
  result.path = std::filesystem::path(path).lexically_normal().string();
  return result;
}

bool HoldsIdOrName(std::string_view upperText, std::string_view upperAnchor) {
  for (std::string_view attribute : {std::string_view("ID"), std::string_view("NAME")}) {
    for (std::size_t at = upperText.find(attribute); at != std::string_view::npos;
         at = upperText.find(attribute, at + 1)) {
      // A whole attribute name: "VALID=" holds no ID.
      if (at == 0 || !IsSpace(upperText[at - 1])) continue;
      std::size_t i = at + attribute.size();
      while (i < upperText.size() && IsSpace(upperText[i])) ++i;
      if (i >= upperText.size() || upperText[i] != '=') continue;
      ++i;
      while (i < upperText.size() && IsSpace(upperText[i])) ++i;
      const char quote = i < upperText.size() && (upperText[i] == '"' || upperText[i] == '\'')
                             ? upperText[i]
                             : '\0';
      if (quote) ++i;
      if (upperText.substr(i, upperAnchor.size()) != upperAnchor) continue;
      const std::size_t end = i + upperAnchor.size();
      if (end >= upperText.size()) continue;
      const char next = upperText[end];
      if (quote ? next == quote : (IsSpace(next) || next == '>' || next == '/')) return true;
    }
  }
  return false;
}

}  // namespace tessarine
