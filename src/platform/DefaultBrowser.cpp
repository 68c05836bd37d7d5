#include "platform/DefaultBrowser.h"

#include <stdio.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tessarine {

namespace fs = std::filesystem;

namespace {

std::string Env(const char* name) {
  const char* v = std::getenv(name);
  return v ? v : "";
}

std::string Home() {
  const std::string h = Env("HOME");
  return h.empty() ? "/tmp" : h;
}

std::string Trim(const std::string& s) {
  const auto b = s.find_first_not_of(" \t\r\n");
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(" \t\r\n") - b + 1);
}

std::vector<std::string> SplitList(const std::string& s, char sep) {
  std::vector<std::string> out;
  std::string part;
  std::istringstream in(s);
  while (std::getline(in, part, sep))
    if (!Trim(part).empty()) out.push_back(Trim(part));
  return out;
}

// These files are small; a huge one is read no further than any real one could reach.
std::string ReadFile(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  if (!in) return "";
  std::string text(1 << 20, '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<size_t>(in.gcount()));
  return text;
}

std::string ConfigHome() {
  const std::string x = Env("XDG_CONFIG_HOME");
  return x.empty() ? Home() + "/.config" : x;
}
std::string DataHome() {
  const std::string x = Env("XDG_DATA_HOME");
  return x.empty() ? Home() + "/.local/share" : x;
}
std::vector<std::string> ConfigDirs() {
  const std::string x = Env("XDG_CONFIG_DIRS");
  return SplitList(x.empty() ? "/etc/xdg" : x, ':');
}
std::vector<std::string> DataDirs() {
  const std::string x = Env("XDG_DATA_DIRS");
  return SplitList(x.empty() ? "/usr/local/share:/usr/share" : x, ':');
}

// Every mimeapps.list in the order the desktop consults them.
std::vector<fs::path> MimeappsLists() {
  std::vector<std::string> desktops;
  for (const auto& d : SplitList(Env("XDG_CURRENT_DESKTOP"), ':')) {
    std::string lower;
    for (char c : d) lower += static_cast<char>((c >= 'A' && c <= 'Z') ? c + 32 : c);
    desktops.push_back(lower);
  }
  std::vector<fs::path> lists;
  auto add = [&](const fs::path& dir) {
    for (const auto& d : desktops) lists.push_back(dir / (d + "-mimeapps.list"));
    lists.push_back(dir / "mimeapps.list");
  };
  add(ConfigHome());
  for (const auto& d : ConfigDirs()) add(d);
  add(fs::path(DataHome()) / "applications");
  for (const auto& d : DataDirs()) add(fs::path(d) / "applications");
  return lists;
}

std::string AskSettingsTool(const std::string& tool) {
  if (tool.empty()) return "";
  const std::string command = tool + " get default-web-browser 2>/dev/null";
  FILE* p = ::popen(command.c_str(), "r");
  if (!p) return "";
  std::string out;
  char buf[256];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, p)) > 0 && out.size() < 4096) out.append(buf, n);
  ::pclose(p);
  return Trim(out);
}

}  // namespace

std::vector<std::string> DefaultApplicationsIn(const std::string& text,
                                               const std::string& mimeType) {
  std::istringstream in(text);
  std::string line;
  bool inDefaults = false;
  while (std::getline(in, line)) {
    line = Trim(line);
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '[') {
      inDefaults = line == "[Default Applications]";
      continue;
    }
    if (!inDefaults) continue;
    const auto eq = line.find('=');
    if (eq == std::string::npos || Trim(line.substr(0, eq)) != mimeType) continue;
    return SplitList(line.substr(eq + 1), ';');
  }
  return {};
}

std::string ExecLineOf(const std::string& entry) {
  std::istringstream in(entry);
  std::string line;
  bool inEntry = false;
  while (std::getline(in, line)) {
    line = Trim(line);
    if (!line.empty() && line[0] == '[') {
      inEntry = line == "[Desktop Entry]";
      continue;
    }
    if (!inEntry || line.compare(0, 4, "Exec") != 0) continue;
    const auto eq = line.find('=');
    if (eq == std::string::npos || Trim(line.substr(0, eq)) != "Exec") continue;
    return Trim(line.substr(eq + 1));
  }
  return "";
}

std::string DropFieldCodes(const std::string& exec) {
  std::string out;
  for (size_t i = 0; i < exec.size(); ++i) {
    if (exec[i] != '%' || i + 1 >= exec.size()) {
      out += exec[i];
      continue;
    }
    if (exec[i + 1] == '%') out += '%';
    ++i;  // the code's letter goes with it
  }
  // Codes leave doubled or trailing blanks behind.
  std::string tidy;
  for (char c : out)
    if (!(c == ' ' && (tidy.empty() || tidy.back() == ' '))) tidy += c;
  while (!tidy.empty() && tidy.back() == ' ') tidy.pop_back();
  return tidy;
}

std::string FindDesktopEntry(const std::string& id) {
  if (id.empty() || id.find('/') != std::string::npos) return "";
  std::vector<std::string> dirs{DataHome()};
  for (const auto& d : DataDirs()) dirs.push_back(d);
  std::error_code ec;
  for (const auto& d : dirs) {
    const fs::path apps = fs::path(d) / "applications";
    if (fs::is_regular_file(apps / id, ec)) return (apps / id).string();
    // "kde-org.foo.desktop" may live as kde/org.foo.desktop.
    std::string nested = id;
    for (auto dash = nested.find('-'); dash != std::string::npos;
         dash = nested.find('-', dash + 1)) {
      nested[dash] = '/';
      if (fs::is_regular_file(apps / nested, ec)) return (apps / nested).string();
      nested[dash] = '-';
    }
  }
  return "";
}

std::string XdgDefaultBrowser::Command() {
  auto commandOf = [](const std::string& id) {
    const std::string file = FindDesktopEntry(id);
    return file.empty() ? std::string() : DropFieldCodes(ExecLineOf(ReadFile(file)));
  };
  for (const auto& list : MimeappsLists()) {
    for (const auto& id : DefaultApplicationsIn(ReadFile(list), "x-scheme-handler/http")) {
      const std::string exec = commandOf(id);
      if (!exec.empty()) return exec;
    }
  }
  // The desktop may keep its choice elsewhere: its own tool knows.
  return commandOf(AskSettingsTool(settingsTool_));
}

}  // namespace tessarine
