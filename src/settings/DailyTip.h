#pragma once
// The Tip of the Day: the tips, which one comes next (DailyTipNumber, counted from 1), and
// whether the tips show at start (TipOfTheDay).

#include <string>
#include <vector>

namespace tessarine {

class SettingsStore;

// Every tip, first to last.
const std::vector<std::string>& DailyTips();

// A stored DailyTipNumber as a tip number: its leading number when that names a tip, else 1.
int TipNumberFromSetting(const std::string& stored);

// TipOfTheDay is "on", in any case; absent reads "on".
bool TipOfTheDayAtStartup(const SettingsStore& store);

class DailyTip {
 public:
  // Takes the tip DailyTipNumber names and stores the number of the one after it.
  explicit DailyTip(SettingsStore& store);

  int Number() const { return number_; }
  const std::string& Text() const;
  // On to the next tip, after the last back to the first; stores the one after that.
  void Next();

  bool ShowAtStartup() const;
  void SetShowAtStartup(bool on);

 private:
  void Show(int number);

  SettingsStore& store_;
  int number_ = 1;
};

}  // namespace tessarine
