#include "ui/sitetools/SiteManagerWindow.h"

#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/Application.h"
#include "core/FileOpen.h"
#include "core/Preview.h"
#include "panels/StoredGeometry.h"
#include "platform/Desktop.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "sitetools/QuickView.h"
#include "sitetools/SiteAnalyser.h"
#include "sitetools/SiteFiles.h"
#include "sitetools/SiteText.h"
#include "ui/sitetools/FolderFileLists.h"
#include "ui/sitetools/GlobalReplaceDialog.h"
#include "ui/sitetools/QuickViewDialog.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

bool IsImageName(const QString& name) {
  const std::string n = S(name);
  return EndsWithNoCase(n, "gif") || EndsWithNoCase(n, "jpg") || EndsWithNoCase(n, "jpeg");
}

// The icons of the results, by their number.
QIcon RowIcon(int icon) {
  QStyle* style = QApplication::style();
  switch (icon) {
    case 1:
      return style->standardIcon(QStyle::SP_DialogApplyButton);
    case 2:
      return style->standardIcon(QStyle::SP_DialogCancelButton);
    case 3:
      return style->standardIcon(QStyle::SP_FileIcon);
    case 4:
      return style->standardIcon(QStyle::SP_MessageBoxWarning);
    case 5:
      return style->standardIcon(QStyle::SP_MessageBoxQuestion);
    case 7:
      return style->standardIcon(QStyle::SP_MessageBoxCritical);
    default:
      return {};
  }
}

}  // namespace

SiteManagerWindow::SiteManagerWindow(Application& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      analyser_(std::make_unique<SiteAnalyser>(*this)),
      files_(new FolderFileLists(Qt::Vertical)),
      results_(new QTreeWidget),
      picture_(new QLabel),
      statusBar_(new QStatusBar),
      progress_(new QProgressBar),
      checkSiteButton_(new QPushButton("&Check Site")),
      cancelButton_(new QPushButton("Cancel")),
      standard_(new QCheckBox("Resolve links as a browser does")),
      functions_(new QMenu("F&unctions", this)) {
  setObjectName("SiteManagerWindow");
  setWindowTitle("Site Tolmer");
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  results_->setObjectName("results");
  picture_->setObjectName("picture");
  statusBar_->setObjectName("statusBar");
  progress_->setObjectName("progress");
  checkSiteButton_->setObjectName("checkSiteButton");
  cancelButton_->setObjectName("cancelButton");
  standard_->setObjectName("standardResolution");
  standard_->setToolTip(
      "Resolve every link against its own page's folder, decode %-escapes, and take both ID= "
      "and NAME= as anchors");
  functions_->setObjectName("functionsMenu");

  files_->SetPattern(kPattern);
  results_->setColumnCount(4);
  results_->setHeaderLabels({"Link", "Status", "Web page containing the error", "Position"});
  results_->setRootIsDecorated(false);
  results_->setMouseTracking(true);
  results_->setContextMenuPolicy(Qt::CustomContextMenu);
  picture_->setAlignment(Qt::AlignCenter);
  picture_->hide();

  auto* info = new QGroupBox("Information");
  auto* grid = new QGridLayout(info);
  const std::pair<SiteLabel, const char*> labelNames[] = {
      {SiteLabel::ResultsHeading, "resultsHeading"},
      {SiteLabel::ErrorCountOrTitle, "errorCountOrTitle"},
      {SiteLabel::PageCountOrWeight, "pageCountOrWeight"},
      {SiteLabel::PageSize, "pageSize"},
      {SiteLabel::FileDate, "fileDate"},
      {SiteLabel::DownloadTime, "downloadTime"},
      {SiteLabel::CurrentPage, "currentPage"}};
  int row = 0;
  for (const auto& [label, name] : labelNames) {
    auto* l = new QLabel;
    l->setObjectName(name);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    labels_[label] = l;
  }
  grid->addWidget(labels_[SiteLabel::ResultsHeading], row, 0);
  grid->addWidget(labels_[SiteLabel::ErrorCountOrTitle], row++, 1);
  grid->addWidget(labels_[SiteLabel::PageCountOrWeight], row++, 0, 1, 2);
  grid->addWidget(new QLabel("Size:"), row, 0);
  grid->addWidget(labels_[SiteLabel::PageSize], row++, 1);
  grid->addWidget(new QLabel("Date:"), row, 0);
  grid->addWidget(labels_[SiteLabel::FileDate], row++, 1);
  grid->addWidget(new QLabel("Download time (28.8 modem):"), row, 0);
  grid->addWidget(labels_[SiteLabel::DownloadTime], row++, 1);
  grid->addWidget(labels_[SiteLabel::CurrentPage], row++, 0, 1, 2);
  grid->setColumnStretch(1, 1);

  auto* viewButton = new QPushButton("View Web page with Browser");
  viewButton->setObjectName("viewInBrowserButton");
  auto* openButton = new QPushButton("Open Web page with Tessarine");
  openButton->setObjectName("openInEditorButton");
  auto* replaceButton = new QPushButton("Global Find && Replace");
  replaceButton->setObjectName("globalReplaceButton");

  auto* left = new QWidget;
  auto* leftLayout = new QVBoxLayout(left);
  leftLayout->setContentsMargins(0, 0, 0, 0);
  leftLayout->addWidget(files_, 1);
  leftLayout->addWidget(checkSiteButton_);
  leftLayout->addWidget(standard_);
  leftLayout->addWidget(viewButton);
  leftLayout->addWidget(openButton);
  leftLayout->addWidget(replaceButton);

  auto* right = new QWidget;
  auto* rightLayout = new QVBoxLayout(right);
  rightLayout->setContentsMargins(0, 0, 0, 0);
  rightLayout->addWidget(results_, 1);
  rightLayout->addWidget(picture_, 1);
  rightLayout->addWidget(info);

  auto* splitter = new QSplitter(Qt::Horizontal);
  columns_ = splitter;
  splitter->setObjectName("columnSplitter");
  splitter->addWidget(left);
  splitter->addWidget(right);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);

  statusBar_->addPermanentWidget(progress_);
  statusBar_->addPermanentWidget(cancelButton_);
  progress_->hide();
  cancelButton_->hide();

  auto* menuBar = new QMenuBar;
  QMenu* file = menuBar->addMenu("&File");
  QMenu* edit = menuBar->addMenu("&Edit");
  QMenu* options = menuBar->addMenu("&Options");
  menuBar->addMenu(functions_);
  BuildMenus(file, edit, options);

  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(menuBar);
  layout->addWidget(splitter, 1);
  layout->addWidget(statusBar_);

  connect(files_, &FolderFileLists::FileClicked, this, &SiteManagerWindow::SelectFile);
  connect(checkSiteButton_, &QPushButton::clicked, this, &SiteManagerWindow::CheckSite);
  connect(cancelButton_, &QPushButton::clicked, this, [this] { cancelRequested_ = true; });
  connect(viewButton, &QPushButton::clicked, this, &SiteManagerWindow::ViewInBrowser);
  connect(openButton, &QPushButton::clicked, this, [this] {
    const QString name = files_->CurrentName();
    if (!name.isEmpty()) OpenInEditor(files_->PathOf(name));
  });
  connect(replaceButton, &QPushButton::clicked, this, &SiteManagerWindow::ShowGlobalReplace);
  connect(results_, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem* item) { OpenRow(item); });
  connect(results_, &QTreeWidget::itemEntered, this, [this] {
    statusBar_->showMessage(
        "Double-click on an HTML file to edit an error.  Right-click for more options.");
  });
  connect(results_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { functions_->popup(results_->viewport()->mapToGlobal(at)); });

  files_->SetErrorHandler([this](const std::string& message) { ShowMessage(message); });
  files_->SetFolder(Q(app_.settings.WorkingDirectory));
  resize(900, 600);
  const StoredGeometry g = ReadStoredGeometry(app_.store, kSiteManagerGeometry);
  if (g.sized) resize(g.width, g.height);
  if (g.left > 0 || g.top > 0) move(g.left, g.top);
  storedFile1Top_ = g.file1Top;
  storedFileListWidth_ = g.fileListWidth;
}

void SiteManagerWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // The splits wait until the window has its size.
  if (storedFile1Top_ >= 0 || storedFileListWidth_ >= 0)
    QTimer::singleShot(0, this, &SiteManagerWindow::ApplyStoredSplits);
}

void SiteManagerWindow::ApplyStoredSplits() {
  if (storedFileListWidth_ >= 0) {
    const int total = columns_->width() - columns_->handleWidth();
    const int left = std::clamp(storedFileListWidth_, 0, std::max(0, total));
    columns_->setSizes({left, std::max(0, total - left)});
  }
  if (storedFile1Top_ >= 0) files_->SetSplitTop(storedFile1Top_);
  storedFile1Top_ = storedFileListWidth_ = -1;
}

void SiteManagerWindow::done(int result) {
  StoredGeometry g;
  g.left = pos().x();
  g.top = pos().y();
  g.width = width();
  g.height = height();
  g.file1Top = files_->SplitTop();
  if (columns_->isVisible()) g.fileListWidth = columns_->sizes().value(0, -1);
  WriteStoredGeometry(app_.store, kSiteManagerGeometry, g, isMinimized());
  QDialog::done(result);
}

SiteManagerWindow::~SiteManagerWindow() = default;

void SiteManagerWindow::BuildMenus(QMenu* file, QMenu* edit, QMenu* options) {
  auto add = [this](QMenu* menu, const char* name, const char* caption, auto slot) {
    QAction* a = menu->addAction(caption);
    a->setObjectName(name);
    connect(a, &QAction::triggered, this, slot);
    return a;
  };
  add(file, "mnuExit", "E&xit", [this] { reject(); });
  add(edit, "mnuGlobalReplace", "&Global Find and Replace...", [this] { ShowGlobalReplace(); });
  add(options, "mnuPreferences", "&Preferences...", [this] {
    if (app_.programs.OpenPreferences) app_.programs.OpenPreferences();
  });
  add(functions_, "mnuQuickView", "&Quick View", [this] { OpenRow(results_->currentItem()); });
  add(functions_, "mnuOpenEditor", "Open in &Tessarine",
      [this] { OpenInEditor(SelectedOrRowFile()); });
  add(functions_, "mnuOpenGraphics", "Open in &Graphics Program",
      [this] { OpenInGraphicsProgram(SelectedOrRowFile()); });
  add(functions_, "mnuBrowser", "View in &Browser", [this] {
    const QString path = SelectedOrRowFile();
    if (!path.isEmpty()) OpenInDefaultViewer(app_, S(path));
  });
  add(functions_, "mnuProperties", "P&roperties", [this] {
    const QString path = SelectedOrRowFile();
    if (!path.isEmpty()) ShowFileProperties(app_, S(path));
  });
}

void SiteManagerWindow::OpenForPage(const QString& folder, const QString& fileName) {
  onePage_ = true;
  files_->SetFolder(folder);
  files_->SetPattern(kOnePagePattern);
  files_->SelectName(fileName);
  SelectFile(fileName);
}

void SiteManagerWindow::CheckSite() {
  const QString name = files_->CurrentName();
  if (name.isEmpty() || running_) return;
  running_ = true;
  cancelRequested_ = false;
  checkSiteButton_->setEnabled(false);
  results_->show();
  picture_->hide();
  analyser_->standardResolution = standard_->isChecked();
  analyser_->AnalyseSite(S(files_->Folder()), S(name));
  checkSiteButton_->setEnabled(true);
  running_ = false;
}

void SiteManagerWindow::SelectFile(const QString& name) {
  if (name.isEmpty() || running_) return;
  const QString path = files_->PathOf(name);
  if (IsImageName(name)) {
    ShowPicture(path);
    return;
  }
  results_->show();
  picture_->hide();
  running_ = true;
  analysedPage_ = path;
  analyser_->standardResolution = standard_->isChecked();
  analyser_->AnalysePage(S(files_->Folder()), S(name));
  running_ = false;
}

void SiteManagerWindow::ShowPicture(const QString& path) {
  results_->hide();
  picture_->show();
  QPixmap pixmap(path);
  picture_->setPixmap(pixmap);
  for (auto& [label, widget] : labels_) widget->clear();
  const std::int64_t size = FileLength(S(path));
  labels_[SiteLabel::PageSize]->setText(Q(NumberText(size) + " bytes"));
  labels_[SiteLabel::FileDate]->setText(Q(FileDateText(S(path))));
  analyser_->SplitDownloadTime(std::max<std::int64_t>(size, 0) / 1800);
  labels_[SiteLabel::DownloadTime]->setText(Q(NumberText(analyser_->DownloadMinutes) + " minutes " +
                                              NumberText(analyser_->DownloadSeconds) + " seconds"));
}

QString SiteManagerWindow::RowFile(QTreeWidgetItem* item) const {
  if (!item) return {};
  if (mode_ == "Page") return analysedPage_;
  return item->text(2);
}

QString SiteManagerWindow::SelectedOrRowFile() const {
  if (QTreeWidgetItem* item = results_->currentItem()) return RowFile(item);
  const QString name = files_->CurrentName();
  return name.isEmpty() ? QString() : files_->PathOf(name);
}

void SiteManagerWindow::OpenRow(QTreeWidgetItem* item) {
  if (!item) return;
  const std::string link = S(item->text(0));
  // A crawl's rows hold no position: the page opens at its start.
  const bool placed = !item->text(3).isEmpty();
  const std::int64_t position = placed ? JumpPosition(S(item->text(3)), link) : 0;
  QuickView(RowFile(item), position, placed ? static_cast<std::int64_t>(link.size()) : 0);
}

void SiteManagerWindow::QuickView(const QString& path, std::int64_t position, std::int64_t length) {
  const std::string file = S(path);
  if (!FileExistsForRead(file)) {
    ShowMessage("File does not exist.");
    return;
  }
  if (IsImageName(path)) {
    ShowPicture(path);
    return;
  }
  const bool open = IsDocumentOpen(app_, file, false);
  if (open) {
    ShowMessage(
        "Document is already open in Tessarine.  You will be allowed to view but not edit this "
        "document.");
  }
  std::optional<std::string> text = ReadFileText(file);
  if (!text) {
    ShowMessage("Can't open file: " + file);
    return;
  }
  const std::int64_t start = OriginalPosition(*text, position);
  if (onQuickView) onQuickView(file, *text, start, length);
  QuickViewDialog dialog(app_, file, *text, start, length, open, this);
  dialog.exec();
}

void SiteManagerWindow::ViewInBrowser() {
  const QString name = files_->CurrentName();
  if (name.isEmpty()) {
    ShowMessage("Select a file in order to view it with browser.");
    return;
  }
  const std::string path = S(files_->PathOf(name));
  const std::string browser = app_.store.GetSetting("Apps", "Browser", "c:\\");
  const bool override = app_.store.GetSetting("Apps", "Override", "0") != "0";
  if (override && browser != "c:\\" && !browser.empty()) {
    app_.shell.StartProgram(browser, {path});
  } else {
    OpenInDefaultViewer(app_, path);
  }
}

void SiteManagerWindow::OpenInEditor(const QString& path) {
  if (path.isEmpty()) return;
  if (IsDocumentOpen(app_, S(path), false)) {
    ShowMessage("Document is already open in Tessarine.");
    return;
  }
  OpenFile(app_, S(path));
}

void SiteManagerWindow::OpenInGraphicsProgram(const QString& path) {
  if (path.isEmpty()) return;
  const std::string program = app_.store.GetSetting("Apps", "ImageMapper", "c:\\");
  if (program == "c:\\" || program.empty()) {
    OpenExternalProgram(app_, "Graphics");
    return;
  }
  app_.shell.StartProgram(program, {S(path)});
}

void SiteManagerWindow::ShowGlobalReplace() {
  GlobalReplaceDialog dialog(app_, this);
  dialog.Files()->SetFolder(files_->Folder());
  dialog.exec();
}

void SiteManagerWindow::SetCaption(const std::string& caption) {
  setWindowTitle(Q(caption));
}

void SiteManagerWindow::SetColumnHeading(const std::string& text) {
  results_->headerItem()->setText(2, Q(text));
}

void SiteManagerWindow::SetLabel(SiteLabel label, const std::string& text) {
  labels_.at(label)->setText(Q(text));
}

void SiteManagerWindow::SetStatusText(const std::string& text) {
  std::string shown = text;
  // Opened for one document, the page analysis says its steps without the dots.
  if (onePage_ && (text == "Verifying Links..." || text == "Verifying Images...")) {
    shown = text.substr(0, text.size() - 3);
  }
  statusBar_->showMessage(Q(shown));
}

void SiteManagerWindow::StartAnimation() {
  progress_->setRange(0, 0);  // runs without an end
  progress_->show();
  if (mode_ == "Site") cancelButton_->show();
}

void SiteManagerWindow::StopAnimation() {
  progress_->hide();
  cancelButton_->hide();
}

void SiteManagerWindow::ClearRows() {
  results_->clear();
}

void SiteManagerWindow::AddRow(const SiteRow& row) {
  QStringList texts{Q(row.text)};
  for (const std::string& sub : row.subItems) texts << Q(sub);
  auto* item = new QTreeWidgetItem(results_, texts);
  item->setIcon(0, RowIcon(row.icon));
}

void SiteManagerWindow::ShowMessage(const std::string& text) {
  // A cancelled check does not claim to be complete.
  if (cancelRequested_ && text.rfind("Web site analysis is complete.", 0) == 0) {
    statusBar_->showMessage("Stopped.");
    return;
  }
  app_.messages.Show(text, MsgButtons::OK, MsgIcon::None, app_.title);
}

void SiteManagerWindow::Beep() {
  QApplication::beep();
}

void SiteManagerWindow::ProcessEvents() {
  QApplication::processEvents();
}

void SiteManagerWindow::CrawlProgress(std::int64_t parsed, std::int64_t known) {
  progress_->setRange(0, static_cast<int>(std::min<std::int64_t>(known, INT32_MAX)));
  progress_->setValue(static_cast<int>(std::min<std::int64_t>(parsed, INT32_MAX)));
}

void SiteManagerWindow::reject() {
  if (running_) {
    cancelRequested_ = true;  // closes once the crawl has stopped
    return;
  }
  QDialog::reject();
}

void SiteManagerWindow::closeEvent(QCloseEvent* event) {
  if (running_) {
    cancelRequested_ = true;
    event->ignore();
    return;
  }
  QDialog::closeEvent(event);
}

}  // namespace tessarine
