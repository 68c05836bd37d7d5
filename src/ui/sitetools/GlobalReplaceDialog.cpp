#include "ui/sitetools/GlobalReplaceDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <ctime>

#include "core/Application.h"
#include "core/FileOpen.h"
#include "core/Find.h"
#include "core/Styles.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "sitetools/SiteFiles.h"
#include "ui/sitetools/FolderFileLists.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

}  // namespace

GlobalReplaceDialog::GlobalReplaceDialog(Application& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      files_(new FolderFileLists(Qt::Horizontal)),
      findText_(new QLineEdit),
      replaceText_(new QLineEdit),
      matchCase_(new QCheckBox("Match Case")),
      findButton_(new QPushButton("&Find")),
      replaceButton_(new QPushButton("&Replace")),
      cancelButton_(new QPushButton("&Cancel")),
      progress_(new QProgressBar),
      tabs_(new QTabWidget),
      resultsNote_(new QLabel),
      results_(new QTreeWidget) {
  setObjectName("GlobalReplaceDialog");
  setWindowTitle("Global Find and Replace");
  findText_->setObjectName("findText");
  replaceText_->setObjectName("replaceText");
  matchCase_->setObjectName("matchCase");
  findButton_->setObjectName("findButton");
  replaceButton_->setObjectName("replaceButton");
  cancelButton_->setObjectName("cancelButton");
  progress_->setObjectName("progress");
  tabs_->setObjectName("tabs");
  results_->setObjectName("results");
  resultsNote_->setObjectName("resultsNote");
  resultsNote_->setWordWrap(true);

  files_->SetMultiSelection(true);
  files_->SetErrorHandler([this](const std::string& message) {
    app_.messages.Show(message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
  });
  files_->SetPattern(kPattern);

  auto* search = new QWidget;
  auto* searchLayout = new QVBoxLayout(search);
  searchLayout->addWidget(new QLabel("Select the files to search (Ctrl or Shift for several):"));
  searchLayout->addWidget(files_, 1);
  auto* form = new QFormLayout;
  form->addRow("Find what:", findText_);
  form->addRow("Replace with:", replaceText_);
  form->addRow("", matchCase_);
  searchLayout->addLayout(form);
  searchLayout->addWidget(progress_);
  progress_->hide();

  auto* resultsPage = new QWidget;
  auto* resultsLayout = new QVBoxLayout(resultsPage);
  resultsLayout->addWidget(resultsNote_);
  resultsLayout->addWidget(results_, 1);
  results_->setColumnCount(2);
  results_->setHeaderLabels({"File", "# of Instances Found"});
  results_->setRootIsDecorated(false);
  results_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  results_->header()->setStretchLastSection(false);

  tabs_->addTab(search, "Search");
  tabs_->addTab(resultsPage, "Results");

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(findButton_);
  buttons->addWidget(replaceButton_);
  buttons->addWidget(cancelButton_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_, 1);
  layout->addLayout(buttons);

  connect(findButton_, &QPushButton::clicked, this, [this] { Run(GlobalMode::Find); });
  connect(replaceButton_, &QPushButton::clicked, this, [this] { Run(GlobalMode::Replace); });
  connect(cancelButton_, &QPushButton::clicked, this, &GlobalReplaceDialog::reject);
  connect(results_, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem* item) { OpenResult(item); });

  // The selection of the active document, else the last text searched.
  std::string initial = app_.sites.LastFindText;
  if (EditControl* edit = app_.ActiveEdit(); edit && edit->Length() > 0 && edit->SelLength() > 0) {
    initial = edit->SelText();
  }
  findText_->setText(Q(initial));
  findText_->selectAll();
  files_->SetFolder(Q(app_.settings.WorkingDirectory));
  resize(640, 480);
}

void GlobalReplaceDialog::reject() {
  // Cancel during a run stops it between two files; otherwise it closes.
  if (running_) {
    cancelRequested_ = true;
    return;
  }
  QDialog::reject();
}

void GlobalReplaceDialog::Run(GlobalMode mode) {
  if (running_) return;
  std::vector<std::string> paths;
  for (const QString& path : files_->SelectedPaths()) paths.push_back(S(path));
  GlobalReplaceInputs inputs;
  inputs.findText = S(findText_->text());
  inputs.replaceText = S(replaceText_->text());
  inputs.matchCase = matchCase_->isChecked();
  app_.sites.LastFindText = inputs.findText;

  running_ = true;
  cancelRequested_ = false;
  findButton_->setEnabled(false);
  replaceButton_->setEnabled(false);
  progress_->setRange(0, static_cast<int>(paths.size()));
  progress_->setValue(0);
  progress_->setVisible(!paths.empty());
  const std::tm now = app_.clock.Now();
  const GlobalReplaceRun run = RunGlobal(mode, S(files_->Folder()), paths, inputs, *this, now);
  running_ = false;
  progress_->hide();
  findButton_->setEnabled(true);
  replaceButton_->setEnabled(true);
  if (!run.ran) return;

  results_->clear();
  results_->setHeaderLabels({"File", Q(run.countHeading)});
  for (const GlobalReplaceRow& row : run.rows) {
    new QTreeWidgetItem(results_, {Q(row.path), Q(row.countText)});
  }
  resultsNote_->setText(Q(GlobalResultsNote(mode)));
  cancelButton_->setText("&Done");
}

bool GlobalReplaceDialog::IsOpenAsDocument(const std::string& path) {
  return IsDocumentOpen(app_, path, false);
}

void GlobalReplaceDialog::ShowMessage(const std::string& text) {
  app_.messages.Show(text, MsgButtons::OK, MsgIcon::None, app_.title);
}

bool GlobalReplaceDialog::AskYesNo(const std::string& question) {
  return app_.messages.Show(question, MsgButtons::YesNo, MsgIcon::Question, app_.title) ==
         MsgAnswer::Yes;
}

void GlobalReplaceDialog::FileDone(std::int64_t done, std::int64_t total) {
  (void)total;
  progress_->setValue(static_cast<int>(done));
  QApplication::processEvents();
}

void GlobalReplaceDialog::OpenResult(QTreeWidgetItem* item) {
  if (!item) return;
  const std::string path = S(item->text(0));
  if (!FileExistsForRead(path)) {
    ShowMessage("File does not exist.");
    return;
  }
  if (IsDocumentOpen(app_, path, false)) {
    ShowMessage("Document is already open in Tessarine.");
    return;
  }
  if (results_->headerItem()->text(1) == "# of Instances Replaced") {
    OpenFile(app_, path);
    return;
  }
  // The hits are painted over plain text, not over the tag colours.
  const bool colorTags = app_.settings.Flags.ColorTags;
  app_.settings.Flags.ColorTags = false;
  OpenFile(app_, path);
  app_.settings.Flags.ColorTags = colorTags;
  PaintHits();
}

void GlobalReplaceDialog::PaintHits() {
  DocumentWindow* window = app_.ActiveDocument();
  if (!window) return;
  EditControl& edit = window->Edit();
  edit.FillStyle(0, edit.Length(), MakeStyle(StyleKind::Plain));
  const std::string needle = S(findText_->text());
  if (!needle.empty()) {
    const std::string_view text = edit.View();
    for (Pos at = SearchDown(text, edit.SelStart(), needle, matchCase_->isChecked()); at >= 0;
         at = SearchDown(text, at + static_cast<Pos>(needle.size()), needle,
                         matchCase_->isChecked())) {
      edit.FillStyle(at, static_cast<Pos>(needle.size()), MakeStyle(StyleKind::FindHit, true));
    }
  }
  // Painting is no edit.
  if (const int slot = app_.documents.SlotOf(window); slot != 0) {
    app_.documents.State(slot).Changed = false;
  }
}

}  // namespace tessarine
