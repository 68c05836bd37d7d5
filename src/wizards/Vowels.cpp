#include "wizards/Vowels.h"

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"

namespace tessarine {

namespace {

std::vector<std::string> Accented() {
  return {"&Agrave;", "&Aacute;", "&Acirc;",  "&Atilde;", "&Auml;",   "&Aring;",  "&Aelig;",
          "&agrave;", "&aacute;", "&acirc;",  "&atilde;", "&auml;",   "&aring;",  "&aelig;",
          "&Egrave;", "&Eacute;", "&Ecirc;",  "&Euml;",   "&Igrave;", "&Iacute;", "&Icirc;",
          "&Iuml;",   "&egrave;", "&eacute;", "&ecirc;",  "&euml;",   "&igrave;", "&iacute;",
          "&icirc;",  "&iuml;",   "&Ograve;", "&Oacute;", "&Ocirc;",  "&Otilde;", "&Ouml;",
          "&Ugrave;", "&Uacute;", "&Ucirc;",  "&Uuml;",   "&Yacute;", "&ograve;", "&oacute;",
          "&ocirc;",  "&otilde;", "&ouml;",   "&ugrave;", "&uacute;", "&ucirc;",  "&uuml;",
          "&yacute;", "&yuml;"};
}

std::vector<std::string> Signs() {
  return {"&#185;",  "&#178;",   "&#179;",   "&#176;",   "&#188;",   "&#189;",  "&#190;",
          "&#177;",  "&copy;",   "&reg;",    "&#153;",   "&#191;",   "&#161;",  "&lt;",
          "&gt;",    "&#171;",   "&#187;",   "&#166;",   "&#182;",   "&#167;",  "&#163;",
          "&#162;",  "&#165;",   "&#164;",   "&#168;",   "&quot;",   "&#180;",  "&#184;",
          "&#181;",  "&amp;",    "&Ccedil;", "&Ntilde;", "&Oslash;", "&THORN;", "&ETH;",
          "&szlig;", "&ccedil;", "&ntilde;", "&oslash;", "&thorn;",  "&eth;"};
}

std::vector<std::string> SymbolFont() {
  std::vector<std::string> cells;
  auto add = [&cells](char letter) {
    cells.push_back(std::string("<FONT FACE=\"Symbol\">") + letter + "</FONT>");
  };
  for (char c = 'A'; c <= 'Z'; ++c) add(c);
  for (char c = 'a'; c <= 'z'; ++c) add(c);
  for (const char* s : {"&equiv;", "&nequiv;", "&lt;", "&gt;", "&le;", "&ge;", "&empty;", "&inf;"})
    cells.emplace_back(s);
  return cells;
}

}  // namespace

const std::vector<std::string>& VowelsPage(int page) {
  static const std::vector<std::string> pages[3] = {Accented(), Signs(), SymbolFont()};
  static const std::vector<std::string> none;
  return (page >= 1 && page <= 3) ? pages[page - 1] : none;
}

void Vowels_Insert(Application& app, const std::string& cellText) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  EmptyUndoBuffer(app);
  e->ReplaceSel(cellText);
  e->SetFocus();
}

}  // namespace tessarine
