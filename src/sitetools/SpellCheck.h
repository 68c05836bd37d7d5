#pragma once
// The spell check's walk over the active document: the selection alone when there is
// one, else from the caret to the end. The prompter (the dialog) decides what to do with
// each misspelled word; the walk makes the edit in the document.

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

class EditControl;
class SpellEngine;

enum class SpellAction { Ignore, IgnoreAll, Change, ChangeAll, Add, Cancel };

struct SpellDecision {
  SpellAction action = SpellAction::Ignore;
  std::string replacement;  // for Change and ChangeAll
};

class SpellPrompter {
 public:
  virtual ~SpellPrompter() = default;
  // The word is selected in the document when this is asked.
  virtual SpellDecision Decide(const std::string& word,
                               const std::vector<std::string>& suggestions) = 0;
};

struct SpellReport {
  std::int64_t wordsChecked = 0;
  std::int64_t wordsReplaced = 0;
  bool cancelled = false;
};

SpellReport RunSpellCheck(EditControl& edit, SpellEngine& engine, SpellPrompter& prompter);

// "Spellcheck complete!" with the counts, or "Spellcheck Cancelled".
std::string SpellReportMessage(const SpellReport& report);

// The first entry of the suggestion list and whether the list can be used: the
// suggestions, or "[No suggestions]" disabled.
struct SuggestionList {
  std::vector<std::string> entries;
  bool enabled = false;
  std::string replaceWith;
};
SuggestionList MakeSuggestionList(const std::vector<std::string>& suggestions);

}  // namespace tessarine
