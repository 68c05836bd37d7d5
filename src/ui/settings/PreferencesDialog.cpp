#include "ui/settings/PreferencesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/Application.h"
#include "core/Styles.h"
#include "core/TagCommands.h"
#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "ui/SciEdit.h"
#include "ui/wizards/ShortcutBar.h"
#include "ui/wizards/WizardDialog.h"

namespace tessarine::ui {

namespace {

// The help page of this dialog.
constexpr int kPreferencesHelpContext = 20;

QColor ToQColor(std::int32_t c) {
  return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

std::int32_t& ColorOf(TagColors& colors, int which) {
  switch (which) {
    case 0:
      return colors.tagColor;
    case 1:
      return colors.tableColor;
    case 2:
      return colors.quoteColor;
    case 3:
      return colors.commentColor;
    default:
      return colors.aspColor;
  }
}

bool& FlagOf(ColorFlags& flags, int which) {
  switch (which) {
    case 0:
      return flags.ColorTags;
    case 1:
      return flags.TableColorTags;
    case 2:
      return flags.QuoteColorTags;
    case 3:
      return flags.CommentColorTags;
    default:
      return flags.ASPColorTags;
  }
}

}  // namespace

const std::array<const char*, 8> PreferencesDialog::kPages = {
    "Startup", "Screen/Text settings", "HTML tags",     "Custom buttons",
    "Menus",   "Previewers/Apps",      "Miscellaneous", "Favorite URLs"};

PreferencesDialog::PreferencesDialog(Application& app, QWidget* parent)
    : QDialog(parent), app_(app) {
  setObjectName("PreferencesDialog");
  setWindowTitle("Preferences");
  state_ = LoadPreferences(app.settings, app.store, app.defaultDocumentFolder);

  categoryList_ = new QListWidget;
  categoryList_->setObjectName("categoryList");
  for (const char* page : kPages) categoryList_->addItem(page);
  categoryList_->setFixedWidth(150);
  pages_ = new QStackedWidget;
  pages_->setObjectName("pages");
  pages_->addWidget(BuildStartupPage());
  pages_->addWidget(BuildScreenPage());
  pages_->addWidget(BuildHtmlTagsPage());
  pages_->addWidget(BuildCustomButtonsPage());
  pages_->addWidget(BuildMenusPage());
  pages_->addWidget(BuildAppsPage());
  pages_->addWidget(BuildMiscellaneousPage());
  pages_->addWidget(BuildFavoritesPage());
  connect(categoryList_, &QListWidget::currentRowChanged, pages_, &QStackedWidget::setCurrentIndex);

  auto* help = new QPushButton("&Help");
  help->setObjectName("helpButton");
  help->setAutoDefault(false);
  auto* ok = new QPushButton("&OK");
  ok->setObjectName("okButton");
  ok->setDefault(true);
  auto* cancel = new QPushButton("&Cancel");
  cancel->setObjectName("cancelButton");
  cancel->setAutoDefault(false);
  auto showHelp = [this] { ShowHelpContext(app_, kPreferencesHelpContext); };
  connect(help, &QPushButton::clicked, this, showHelp);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, showHelp);
  connect(ok, &QPushButton::clicked, this, [this] { OnOK(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* body = new QHBoxLayout;
  body->addWidget(categoryList_);
  body->addWidget(pages_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(help);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(body, 1);
  layout->addLayout(buttons);

  Fill();
  categoryList_->setCurrentRow(0);
}

void PreferencesDialog::ShowPage(const QString& name) {
  for (int i = 0; i < static_cast<int>(kPages.size()); ++i)
    if (name == kPages[static_cast<std::size_t>(i)]) categoryList_->setCurrentRow(i);
}

bool PreferencesDialog::eventFilter(QObject* watched, QEvent* event) {
  // A click on the empty space under the lines means "add a line".
  if (favoriteList_ && watched == favoriteList_->viewport() &&
      event->type() == QEvent::MouseButtonPress) {
    const auto* click = static_cast<QMouseEvent*>(event);
    if (!favoriteList_->itemAt(click->position().toPoint())) {
      favoriteList_->clearSelection();
      favoriteList_->setCurrentRow(-1);
      return true;
    }
  }
  // Enter in the URL box adds it rather than closing the dialog.
  if (watched == favoriteUrl_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      ReplaceOrInsertUrl();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void PreferencesDialog::Fill() {
  const Preferences& p = state_;
  workingDirectory_->setText(Q(p.workingDirectory));
  imageDirectory_->setText(Q(p.imageDirectory));
  showPageProps_->setChecked(p.showPageProps);
  blankNewDoc_->setChecked(p.blankNewDoc);
  cascadeDocuments_->setChecked(p.cascadeDocuments);
  tipOfTheDay_->setChecked(p.tipOfTheDay);
  startNewDoc_->setChecked(p.startNewDoc);
  openMRUDoc_->setChecked(p.openMRUDoc);

  {
    // The preview is drawn once, when all of its choices are in.
    const QSignalBlocker b1(screenFont_), b2(htmlFont_), b3(fontSize_), b4(bold_);
    screenFont_->setCurrentText(Q(p.fontName));
    htmlFont_->setCurrentText(Q(p.htmlTagFont));
    fontSize_->setText(Q(p.fontSize));
    bool ok = false;
    const int size = fontSize_->text().toInt(&ok);
    if (ok) fontSizeUpDown_->setValue(size);
    bold_->setChecked(p.bold);
    ColorFlags flags = p.colorFlags;
    for (int i = 0; i < 5; ++i) {
      const QSignalBlocker block(colorChecks_[static_cast<std::size_t>(i)]);
      colorChecks_[static_cast<std::size_t>(i)]->setChecked(FlagOf(flags, i));
    }
  }

  upperCaseTags_->setChecked(p.upperCaseTags);
  useDivTag_->setChecked(p.useDivTag);
  endingPTag_->setChecked(p.endingPTag);
  brCarriageReturn_->setChecked(p.brCarriageReturn);

  for (std::size_t i = 0; i < kMenuSystems.size(); ++i)
    if (p.menuSystem == kMenuSystems[i]) menuSystems_[i]->setChecked(true);

  browser_->setText(Q(p.browser));
  browser2_->setText(Q(p.browser2));
  overrideBrowser_->setChecked(p.overrideBrowser);
  overrideCaption_->setText(p.overrideBrowser ? "default browser" : "");
  printerProgram_->setText(Q(p.printerProgram));
  imageMapper_->setText(Q(p.imageMapper));
  ftpClient_->setText(Q(p.ftpClient));

  enableAutotab_->setChecked(p.enableAutotab);
  autoSave_->setChecked(p.autoSave);
  autoSaveMinutes_->setText(Q(p.autoSaveMinutes));
  autoSaveMinutes_->setEnabled(p.autoSave);
  autoSaveUpDown_->setEnabled(p.autoSave);
  hrPropsBox_->setChecked(p.hrPropsBox);
  showFileList_->setChecked(p.showFileList);
  wordWrap_->setChecked(p.wordWrap);
  beginnerTableWizard_->setChecked(p.beginnerTableWizard);
  alignFileListLeft_->setChecked(p.alignFileListLeft);
  numberOfMRUFiles_->setText(Q(p.numberOfMRUFiles));
  // A stored language without its dictionary stays chosen: the spell check says so.
  if (spellLanguage_->findText(Q(p.spellLanguage)) < 0 && !p.spellLanguage.empty())
    spellLanguage_->addItem(Q(p.spellLanguage));
  spellLanguage_->setCurrentText(Q(p.spellLanguage));

  for (const std::string& url : p.favoriteURLs) favoriteList_->addItem(Q(url));

  ShowCustomButton(1);
  UpdateColorSquares();
  RedrawPreview();
}

Preferences PreferencesDialog::Model() const {
  Preferences p = state_;
  p.workingDirectory = S(workingDirectory_->text());
  p.imageDirectory = S(imageDirectory_->text());
  p.showPageProps = showPageProps_->isChecked();
  p.blankNewDoc = blankNewDoc_->isChecked();
  p.cascadeDocuments = cascadeDocuments_->isChecked();
  p.tipOfTheDay = tipOfTheDay_->isChecked();
  p.startNewDoc = startNewDoc_->isChecked();
  p.openMRUDoc = openMRUDoc_->isChecked();

  p.fontName = S(screenFont_->currentText());
  p.fontSize = S(fontSize_->text());
  p.bold = bold_->isChecked();
  p.htmlTagFont = S(htmlFont_->currentText());
  for (int i = 0; i < 5; ++i)
    FlagOf(p.colorFlags, i) = colorChecks_[static_cast<std::size_t>(i)]->isChecked();

  p.upperCaseTags = upperCaseTags_->isChecked();
  p.useDivTag = useDivTag_->isChecked();
  p.endingPTag = endingPTag_->isChecked();
  p.brCarriageReturn = brCarriageReturn_->isChecked();

  // The first ticked button in their order; none keeps the word there was.
  for (std::size_t i = 0; i < kMenuSystems.size(); ++i)
    if (menuSystems_[i]->isChecked()) {
      p.menuSystem = kMenuSystems[i];
      break;
    }

  p.browser = S(browser_->text());
  p.browser2 = S(browser2_->text());
  p.overrideBrowser = overrideBrowser_->isChecked();
  p.printerProgram = S(printerProgram_->text());
  p.imageMapper = S(imageMapper_->text());
  p.ftpClient = S(ftpClient_->text());

  p.enableAutotab = enableAutotab_->isChecked();
  p.autoSave = autoSave_->isChecked();
  p.autoSaveMinutes = S(autoSaveMinutes_->text());
  p.hrPropsBox = hrPropsBox_->isChecked();
  p.showFileList = showFileList_->isChecked();
  p.wordWrap = wordWrap_->isChecked();
  p.beginnerTableWizard = beginnerTableWizard_->isChecked();
  p.alignFileListLeft = alignFileListLeft_->isChecked();
  p.numberOfMRUFiles = S(numberOfMRUFiles_->text());
  p.spellLanguage = S(spellLanguage_->currentText());
  return p;
}

void PreferencesDialog::OnOK() {
  const CheckResult failed = SavePreferences(app_, Model());
  if (!failed) {
    accept();
    return;
  }
  auto* field = findChild<QWidget*>(Q(failed->field));
  if (!field) return;
  // The page that holds the field comes to the front with it.
  for (QWidget* w = field; w; w = w->parentWidget())
    if (w->parentWidget() == pages_) {
      categoryList_->setCurrentRow(pages_->indexOf(w));
      break;
    }
  field->setFocus();
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
}

void PreferencesDialog::UpdateColorSquares() {
  const bool all = colorChecks_[0]->isChecked();
  for (std::size_t i = 0; i < 5; ++i) {
    // Without colouring at all the four kinds cannot be chosen either.
    if (i > 0) colorChecks_[i]->setEnabled(all);
    colorSquares_[i]->setEnabled(all && colorChecks_[i]->isChecked());
    const QColor c = ToQColor(ColorOf(state_.colors, static_cast<int>(i)));
    colorSquares_[i]->setStyleSheet(
        colorSquares_[i]->isEnabled()
            ? QString("QPushButton { background-color: %1; border: 1px solid black; }")
                  .arg(c.name())
            : QString("QPushButton { background-color: %1; border: 1px solid gray; }")
                  .arg(c.lighter(170).name()));
  }
}

void PreferencesDialog::RedrawPreview() {
  if (!preview_) return;
  const Preferences p = Model();
  preview_->ApplyStyleTable(BuildStyleTable(PreviewSettings(p, app_.settings)));
  const std::vector<Style> styles = PreviewStyles(p);
  preview_->SetStyles(0, styles.data(), static_cast<Pos>(styles.size()));
}

void PreferencesDialog::PickColor(int which) {
  std::int32_t& color = ColorOf(state_.colors, which);
  std::int32_t chosen = color;
  if (!app_.colorDialog.PickColor(color, chosen)) return;
  color = chosen;
  UpdateColorSquares();
  RedrawPreview();
}

void PreferencesDialog::ChooseFont(QComboBox* list) {
  bool ok = false;
  const QFont font = QFontDialog::getFont(&ok, QFont(list->currentText()), this);
  if (ok) list->setCurrentText(font.family());
}

void PreferencesDialog::BrowseFolder(QLineEdit* field, const QString& title) {
  const QString folder = QFileDialog::getExistingDirectory(this, title, field->text());
  if (!folder.isEmpty()) field->setText(folder);
}

void PreferencesDialog::BrowseProgram(QLineEdit* field, const char* title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = "All Files (*.*)|*.*";
  const std::string current = S(field->text());
  // "c:\" means not chosen yet: no folder to start in.
  if (current.find('/') != std::string::npos)
    request.initialFolder = current.substr(0, current.rfind('/'));
  const FileDialogAnswer answer = app_.fileDialogs.Show(request);
  if (!answer.path.empty()) field->setText(Q(answer.path));
}

void PreferencesDialog::ShowCustomButton(int number) {
  const CustomButton b = ReadCustomButton(app_.store, number);
  customButtonName_->setText(Q(b.name));
  customButtonStart_->setText(Q(b.startTag));
  customButtonEnd_->setText(Q(b.endTag));
  shownCustomButton_ = number;
}

void PreferencesDialog::SaveCustomButton(int number) {
  WriteCustomButton(
      app_.store, number,
      {S(customButtonName_->text()), S(customButtonStart_->text()), S(customButtonEnd_->text())});
  ReloadCustomButtons(parentWidget(), app_.store);
}

void PreferencesDialog::ReplaceOrInsertUrl() {
  const int selected = favoriteList_->selectedItems().isEmpty() ? -1 : favoriteList_->currentRow();
  const std::string url = S(favoriteUrl_->text());
  if (CheckResult full = state_.ReplaceOrInsertUrl(selected, url)) {
    app_.messages.Show(full->message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
    return;
  }
  if (selected >= 0)
    favoriteList_->item(selected)->setText(Q(url));
  else
    favoriteList_->addItem(Q(url));
  favoriteUrl_->clear();
}

}  // namespace tessarine::ui
