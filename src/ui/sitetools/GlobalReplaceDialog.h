#pragma once
// Global Find and Replace: a file list to choose from, the find and replacement texts, and
// the results on a second tab. The run itself is the logic's RunGlobal.

#include <QDialog>
#include <string>

#include "sitetools/GlobalReplace.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessarine {

class Application;
class FolderFileLists;

class GlobalReplaceDialog : public QDialog, private GlobalReplaceHost {
  Q_OBJECT
 public:
  GlobalReplaceDialog(Application& app, QWidget* parent = nullptr);

  // The file pattern of the list.
  static constexpr const char* kPattern =
      "*.asp;*.dtd;*.html;*.htm;*.js;*.cgi;*.pl;*.shtml;*.xml;*.xsl";

  FolderFileLists* Files() const { return files_; }
  QLineEdit* FindText() const { return findText_; }
  QLineEdit* ReplaceText() const { return replaceText_; }
  QCheckBox* MatchCase() const { return matchCase_; }
  QTreeWidget* Results() const { return results_; }
  QTabWidget* Tabs() const { return tabs_; }

  void Run(GlobalMode mode);
  // A double click on a row of the results.
  void OpenResult(QTreeWidgetItem* item);

 protected:
  void reject() override;

 private:
  // GlobalReplaceHost
  bool IsOpenAsDocument(const std::string& path) override;
  void ShowMessage(const std::string& text) override;
  bool AskYesNo(const std::string& question) override;
  void FileDone(std::int64_t done, std::int64_t total) override;
  bool CancelRequested() override { return cancelRequested_; }

  void PaintHits();

  Application& app_;
  FolderFileLists* files_;
  QLineEdit* findText_;
  QLineEdit* replaceText_;
  QCheckBox* matchCase_;
  QPushButton* findButton_;
  QPushButton* replaceButton_;
  QPushButton* cancelButton_;
  QProgressBar* progress_;
  QTabWidget* tabs_;
  QLabel* resultsNote_;
  QTreeWidget* results_;
  bool running_ = false;
  bool cancelRequested_ = false;
};

}  // namespace tessarine
