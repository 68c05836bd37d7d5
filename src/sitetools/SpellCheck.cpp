#include "sitetools/SpellCheck.h"

#include <map>
#include <set>

#include "platform/EditControl.h"
#include "platform/SpellEngine.h"
#include "sitetools/SpellText.h"

namespace tessarine {

SpellReport RunSpellCheck(EditControl& edit, SpellEngine& engine, SpellPrompter& prompter) {
  SpellReport report;
  Pos start = edit.SelStart();
  Pos length = edit.SelLength();
  if (length == 0) length = edit.Length() - start;
  // The stretch, kept in step with the document as words are replaced in it.
  std::string stretch = edit.TextRange(start, length);
  std::set<std::string> ignored;
  std::map<std::string, std::string> changeAll;

  WordWalker walker(stretch);
  WordSpan span;
  while (walker.Next(span)) {
    const std::string word = stretch.substr(span.start, span.length);
    ++report.wordsChecked;
    if (ignored.count(word) || engine.Check(word)) continue;

    std::string replacement;
    if (auto it = changeAll.find(word); it != changeAll.end()) {
      replacement = it->second;
    } else {
      edit.SetSelStart(start + static_cast<Pos>(span.start));
      edit.SetSelLength(static_cast<Pos>(span.length));
      const SpellDecision decision = prompter.Decide(word, engine.Suggest(word));
      switch (decision.action) {
        case SpellAction::Cancel:
          report.cancelled = true;
          break;
        case SpellAction::Ignore:
          continue;
        case SpellAction::IgnoreAll:
          ignored.insert(word);
          continue;
        case SpellAction::Add:
          engine.AddWord(word);
          continue;
        case SpellAction::ChangeAll:
          changeAll[word] = decision.replacement;
          [[fallthrough]];
        case SpellAction::Change:
          replacement = decision.replacement;
          break;
      }
      if (report.cancelled) break;
    }
    edit.ReplaceRange(start + static_cast<Pos>(span.start), static_cast<Pos>(span.length),
                      replacement);
    stretch.replace(span.start, span.length, replacement);
    ++report.wordsReplaced;
    walker.Adjust(stretch, span.start + replacement.size());
  }
  // The caret stays where the walk stopped, with nothing selected.
  edit.SetSelLength(0);
  return report;
}

std::string SpellReportMessage(const SpellReport& report) {
  if (report.cancelled) return "Spellcheck Cancelled";
  return "Spellcheck complete!\n" + std::to_string(report.wordsChecked) + " Words Checked\n" +
         std::to_string(report.wordsReplaced) + " Words Replaced";
}

SuggestionList MakeSuggestionList(const std::vector<std::string>& suggestions) {
  if (suggestions.empty()) return {{"[No suggestions]"}, false, ""};
  return {suggestions, true, suggestions.front()};
}

}  // namespace tessarine
