#include "wizards/EditTag.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "core/Application.h"
#include "framesforms/Applet.h"
#include "framesforms/AppletParameter.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Hyperlink.h"
#include "wizards/ImageTag.h"

namespace tessarine {
namespace {

char Upper(char c) {
  return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                            [](char x, char y) { return Upper(x) == Upper(y); });
}

// First position of `key` at or after `from`, ignoring case; npos when absent. Scans once,
// without copying the text, so a long page costs one pass.
std::size_t FindIgnoringCase(std::string_view text, std::string_view key, std::size_t from = 0) {
  if (key.empty() || from > text.size() || text.size() - from < key.size())
    return std::string_view::npos;
  const char lo = static_cast<char>(std::tolower(static_cast<unsigned char>(key[0])));
  const char up = Upper(key[0]);
  const std::size_t last = text.size() - key.size();
  for (std::size_t i = from; i <= last; ++i) {
    if (text[i] != lo && text[i] != up) continue;
    if (EqualsIgnoringCase(text.substr(i, key.size()), key)) return i;
  }
  return std::string_view::npos;
}

std::string WithoutHash(std::string value) {
  if (!value.empty() && value[0] == '#') value.erase(0, 1);
  return value;
}

struct TableRow {
  std::string_view prefix;
  TagWizard wizard;
};
constexpr TableRow kTable[] = {
    {"IMG", TagWizard::Image},           {"APPLET", TagWizard::Applet},
    {"PARAM", TagWizard::Parameter},     {"A HREF", TagWizard::Hyperlink},
    {"BODY", TagWizard::PageProperties}, {"FONT", TagWizard::FormatChar},
    {"HR", TagWizard::HorizontalLine},
};

}  // namespace

TagWizard WizardForTag(std::string_view currentTag) {
  for (const TableRow& row : kTable) {
    if (currentTag.size() >= row.prefix.size() &&
        EqualsIgnoringCase(currentTag.substr(0, row.prefix.size()), row.prefix))
      return row.wizard;
  }
  return TagWizard::None;
}

std::string ParseTag(std::string_view currentTag, std::string_view key) {
  const std::size_t at = FindIgnoringCase(currentTag, key);
  if (at == std::string_view::npos) return "";
  std::size_t s = at + key.size();
  std::size_t e = std::string_view::npos;
  if (s < currentTag.size() && currentTag[s] == '"') {
    e = currentTag.find('"', s + 1);
    ++s;
  } else {
    e = currentTag.find(' ', s);
  }
  // Unended: up to the tag's last character, its ">".
  if (e == std::string_view::npos) e = currentTag.empty() ? 0 : currentTag.size() - 1;
  if (s >= currentTag.size() || e <= s) return "";
  return std::string(currentTag.substr(s, e - s));
}

bool TagHasWord(std::string_view currentTag, std::string_view word) {
  return FindIgnoringCase(currentTag, word) != std::string_view::npos;
}

TagAtCaret FindTagAtCaret(std::string_view text, std::size_t caret, EditTagState& state) {
  TagAtCaret found;
  if (text.empty() || caret == 0) return found;
  caret = std::min(caret, text.size());
  const std::size_t lt = text.rfind('<', caret - 1);
  if (lt == std::string_view::npos) return found;
  found.searched = true;
  const std::size_t gt = text.find('>', lt);
  if (gt != std::string_view::npos) {
    state.currentTag.assign(text.substr(lt + 1, gt - lt));
    found.selectTag = true;
    found.selStart = lt;
    found.selLength = gt - lt + 1;
  }
  found.wizard = WizardForTag(state.currentTag);
  // The link takes in its whole element, up to "</A>", when its own ">" was found.
  if (found.wizard == TagWizard::Hyperlink && found.selectTag) {
    const std::size_t close = FindIgnoringCase(text, "</A>", gt);
    if (close != std::string_view::npos) {
      const std::size_t end = close + 3;
      state.currentTag.assign(text.substr(lt + 1, end - lt));
      found.selLength = end - lt + 1;
      found.linkText.assign(text.substr(gt + 1, close - gt - 1));
    }
  }
  return found;
}

void FillImage(std::string_view tag, ImageTag& form) {
  form.altText = ParseTag(tag, "ALT=");
  form.videoFile = ParseTag(tag, "DYNSRC=");
  form.videoLoop = ParseTag(tag, "LOOP=");
  form.videoStart = ParseTag(tag, "START=");
  form.videoControls = !ParseTag(tag, "CONTROLS=").empty();
  if (const std::string map = ParseTag(tag, "USEMAP="); !map.empty()) {
    form.useClientMap = true;
    form.mapName = map.substr(1);  // past the "#" it is taken to start with
  }
  form.serverMap = TagHasWord(tag, "ISMAP");
  form.width = ParseTag(tag, "WIDTH=");
  form.height = ParseTag(tag, "HEIGHT=");
  form.source = ParseTag(tag, "SRC=");
  form.border = ParseTag(tag, "BORDER=");
  form.lowResSource = ParseTag(tag, "LOWSRC=");
  if (const std::string align = ParseTag(tag, "ALIGN="); !align.empty()) {
    // The list holds "Bottom(Default)" for bottom; any value it lacks leaves the choice.
    for (const ImageAlignment& item : ImageAlignments()) {
      std::string_view name = item.item;
      if (const std::size_t paren = name.find('('); paren != std::string_view::npos)
        name = name.substr(0, paren);
      if (EqualsIgnoringCase(name, align)) form.alignment = item.item;
    }
  }
  form.verticalSpace = ParseTag(tag, "VSPACE=");
  form.horizontalSpace = ParseTag(tag, "HSPACE=");
}

void FillHyperlink(std::string_view tag, const std::string& linkText, Hyperlink& form) {
  form.url = ParseTag(tag, "HREF=");
  form.linkToAnchor = false;
  form.anchorName.clear();
  form.targetFrame = ParseTag(tag, "TARGET=");
  form.linkText = linkText;
}

void FillBody(std::string_view tag, BodyTagFields& form) {
  form.backgroundColor = WithoutHash(ParseTag(tag, "BGCOLOR="));
  form.linkColor = WithoutHash(ParseTag(tag, "LINK="));
  form.textColor = WithoutHash(ParseTag(tag, "TEXT="));
  form.visitedLinkColor = WithoutHash(ParseTag(tag, "VLINK="));
  form.activeLinkColor = WithoutHash(ParseTag(tag, "ALINK="));
  form.leftMargin = ParseTag(tag, "LEFTMARGIN=");
  form.topMargin = ParseTag(tag, "TOPMARGIN=");
  form.backgroundImage = ParseTag(tag, "BACKGROUND=");
  form.fixedBackground = EqualsIgnoringCase(ParseTag(tag, "BGPROPERTIES="), "FIXED");
}

void FillFormatChar(std::string_view tag, FormatChar& form) {
  form.fontFace = ParseTag(tag, "FACE=");
  // The size list names its ends; the numbers between stand as they are.
  const std::string size = ParseTag(tag, "SIZE=");
  form.sizeRow = size == "1" ? "1 - small" : size == "7" ? "7 - large" : size;
  form.colorHex = WithoutHash(ParseTag(tag, "COLOR="));
}

void FillHorizontalLine(std::string_view tag, HorizontalLine& form) {
  form.lineWidth = ParseTag(tag, "WIDTH=");
  form.thickness = ParseTag(tag, "SIZE=");
  form.noShading = TagHasWord(tag, "NOSHADE");
  const std::string align = ParseTag(tag, "ALIGN=");
  form.cmbAlign.clear();
  for (const char* item : {"Left", "Right", "Center"})
    if (EqualsIgnoringCase(item, align)) form.cmbAlign = item;
}

void FillApplet(std::string_view tag, AppletInputs& form) {
  form.altText = ParseTag(tag, "ALT=");
  form.width = ParseTag(tag, "WIDTH=");
  form.height = ParseTag(tag, "HEIGHT=");
  form.appletFile = ParseTag(tag, "CODE=");
  form.codebase = ParseTag(tag, "CODEBASE=");
  if (const std::string align = ParseTag(tag, "ALIGN="); !align.empty()) {
    // As for images: the list's "Bottom(Default)" stands for bottom.
    for (const char* item : kAppletAligns) {
      std::string_view name = item;
      if (const std::size_t paren = name.find('('); paren != std::string_view::npos)
        name = name.substr(0, paren);
      if (EqualsIgnoringCase(name, align)) form.align = item;
    }
  }
  form.verticalSpace = ParseTag(tag, "VSPACE=");
  form.horizontalSpace = ParseTag(tag, "HSPACE=");
  form.changingExistingTag = true;
}

void FillAppletParameter(std::string_view tag, AppletParameter& form) {
  form.name = ParseTag(tag, "NAME=");
  form.value = ParseTag(tag, "VALUE=");
}

EditTagRequest EditTag_Begin(Application& app, DocumentWindow& window) {
  EditTagRequest request;
  app.wizards.TagEditActive = 1;
  EditControl& edit = window.Edit();
  EditTagState state{window.editTagCurrent};
  const TagAtCaret found =
      FindTagAtCaret(edit.View(), static_cast<std::size_t>(edit.SelStart()), state);
  if (!found.searched) return request;
  window.editTagCurrent = state.currentTag;
  if (found.selectTag)
    edit.Select(static_cast<Pos>(found.selStart), static_cast<Pos>(found.selLength));
  if (found.wizard == TagWizard::None) app.wizards.TagEditActive = 0;
  request.wizard = found.wizard;
  request.currentTag = state.currentTag;
  request.linkText = found.linkText;
  return request;
}

}  // namespace tessarine
