#pragma once
// The site manager: a folder and file list on the left, the analyser's results and its
// information labels on the right. Selecting a page analyses it; Check Site crawls the
// site from it. It is the site analyser's view.

#include <QDialog>
#include <map>
#include <memory>

#include "sitetools/SiteAnalyserView.h"

class QCheckBox;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QSplitter;
class QStatusBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessarine {

class Application;
class FolderFileLists;
class SiteAnalyser;

class SiteManagerWindow : public QDialog, public SiteAnalyserView {
  Q_OBJECT
 public:
  static constexpr const char* kPattern =
      "*.xsl;*.xml;*.shtml;*.jpg;*.html;*.htm;*.gif;*.dtd;*.asp";
  static constexpr const char* kOnePagePattern = "*.jpg;*.html;*.htm;*.gif";

  SiteManagerWindow(Application& app, QWidget* parent = nullptr);
  ~SiteManagerWindow() override;

  // Opened for one page (the link check of a document): that page is analysed at once.
  void OpenForPage(const QString& folder, const QString& fileName);

  void CheckSite();                      // the Check Site button
  void SelectFile(const QString& name);  // a click in the file list
  void OpenRow(QTreeWidgetItem* item);   // a double click on a result
  // The file behind a row: the analysed page in page mode, the row's page in site mode.
  QString RowFile(QTreeWidgetItem* item) const;

  FolderFileLists* Files() const { return files_; }
  QTreeWidget* Results() const { return results_; }
  QLabel* Label(SiteLabel label) const { return labels_.at(label); }
  QCheckBox* StandardResolution() const { return standard_; }
  const std::string& Mode() const { return mode_; }
  // The page text and the selection that the last Quick View showed.
  std::function<void(const std::string& path, const std::string& text, std::int64_t position,
                     std::int64_t length)>
      onQuickView;

  // SiteAnalyserView
  void SetMode(const std::string& word) override { mode_ = word; }
  void SetCaption(const std::string& caption) override;
  void SetColumnHeading(const std::string& text) override;
  void SetLabel(SiteLabel label, const std::string& text) override;
  void SetStatusText(const std::string& text) override;
  void StartAnimation() override;
  void StopAnimation() override;
  void ClearRows() override;
  void AddRow(const SiteRow& row) override;
  void ShowMessage(const std::string& text) override;
  void Beep() override;
  void ProcessEvents() override;
  void CrawlProgress(std::int64_t parsed, std::int64_t known) override;
  bool CancelRequested() override { return cancelRequested_; }

 protected:
  void reject() override;
  void done(int result) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus(QMenu* file, QMenu* edit, QMenu* options);
  void QuickView(const QString& path, std::int64_t position, std::int64_t length);
  void ShowPicture(const QString& path);
  void ViewInBrowser();
  void OpenInEditor(const QString& path);
  void OpenInGraphicsProgram(const QString& path);
  QString SelectedOrRowFile() const;
  void ApplyStoredSplits();
  void ShowGlobalReplace();

  Application& app_;
  std::unique_ptr<SiteAnalyser> analyser_;
  FolderFileLists* files_;
  QTreeWidget* results_;
  QLabel* picture_;
  std::map<SiteLabel, QLabel*> labels_;
  QStatusBar* statusBar_;
  QProgressBar* progress_;
  QPushButton* checkSiteButton_;
  QPushButton* cancelButton_;
  QCheckBox* standard_;
  QMenu* functions_;
  QSplitter* columns_ = nullptr;
  int storedFile1Top_ = -1;       // pixels, applied at the first show
  int storedFileListWidth_ = -1;  // pixels
  std::string mode_;
  QString analysedPage_;  // the page of the last page analysis
  bool running_ = false;
  bool cancelRequested_ = false;
  bool onePage_ = false;
};

}  // namespace tessarine
