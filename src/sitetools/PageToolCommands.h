#pragma once
// The editor's commands around the page tools: the stripper of the active document and
// the spell check's run, with their messages and dialogs.

#include <string>

namespace tessarine {

class Application;
class SpellPrompter;

// HTMLStrip: asks for a file, writes the stripped text, offers to open it.
void HtmlStripCommand(Application& app);

// The language of the spelling dictionary: this setting, when that dictionary is installed.
inline constexpr const char* kSpellSection = "Options";
inline constexpr const char* kSpellLanguageKey = "SpellLanguage";

// The spell check of the active document through `prompter` (the dialog), with the
// closing report, the focus back in the document and the colours restored. A missing
// dictionary is a message and nothing else.
void SpellCheckCommand(Application& app, SpellPrompter& prompter);

}  // namespace tessarine
