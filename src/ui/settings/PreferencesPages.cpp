// The eight pages of Preferences: their fields, laid out, and the signals between them.

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVBoxLayout>

#include "sitetools/HunspellEngine.h"
#include "ui/SciEdit.h"
#include "ui/settings/CustomMenuDialog.h"
#include "ui/settings/PreferencesDialog.h"

namespace tessarine::ui {

namespace {

const char* const kFontList[] = {"Terminal",        "MS Serif",  "MS Sans Serif", "Courier",
                                 "Symbol",          "Modern",    "Arial",         "Courier New",
                                 "Times New Roman", "Wingdings", "CG Times"};

QCheckBox* Check(const char* name, const QString& caption) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  return box;
}

QLineEdit* Field(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  return field;
}

// A number field with its arrows. Only digits can be typed; the range is checked at OK,
// so that an emptied field can keep the old value.
QHBoxLayout* NumberField(QLineEdit*& field, QSpinBox*& arrows, const char* name, int digits,
                         int low, int high) {
  field = Field(name);
  field->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QString("\\d{0,%1}").arg(digits)), field));
  field->setMaximumWidth(60);
  arrows = new QSpinBox;
  arrows->setObjectName(QString(name) + "UpDown");
  arrows->setRange(low, high);
  arrows->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
  arrows->setFixedWidth(18);
  arrows->setFocusPolicy(Qt::NoFocus);
  QLineEdit* f = field;
  QSpinBox* a = arrows;
  QObject::connect(a, &QSpinBox::valueChanged, f, [f](int v) {
    if (f->text() != QString::number(v)) f->setText(QString::number(v));
  });
  QObject::connect(f, &QLineEdit::textChanged, a, [a](const QString& t) {
    bool ok = false;
    const int v = t.toInt(&ok);
    if (!ok) return;
    const QSignalBlocker block(a);
    a->setValue(v);
  });
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(field);
  row->addWidget(arrows);
  return row;
}

QComboBox* FontList(const char* name) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  QStringList names;
  for (const char* font : kFontList) names << font;
  for (const QString& family : QFontDatabase::families())
    if (!names.contains(family)) names << family;
  list->addItems(names);
  list->setMinimumWidth(170);
  return list;
}

QWidget* Page(QLayout* layout) {
  auto* page = new QWidget;
  page->setLayout(layout);
  return page;
}

}  // namespace

QWidget* PreferencesDialog::BuildStartupPage() {
  auto* layout = new QVBoxLayout;
  auto* grid = new QGridLayout;
  auto folderRow = [this, grid](int row, const char* label, QLineEdit*& field, const char* name,
                                const char* browseName) {
    field = Field(name);
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    auto* browse = new QPushButton("Browse...");
    browse->setObjectName(browseName);
    browse->setAutoDefault(false);
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(browse, row, 2);
    QLineEdit* f = field;
    const QString title = QString(label).remove('&').remove(':');
    connect(browse, &QPushButton::clicked, this, [this, f, title] { BrowseFolder(f, title); });
  };
  folderRow(0, "Default &Web Page Folder:", workingDirectory_, "workingDirectory",
            "browseWorkingDirectory");
  folderRow(1, "Default &Image Folder:", imageDirectory_, "imageDirectory", "browseImageDirectory");
  layout->addLayout(grid);
  showPageProps_ = Check("showPageProps", "Show &Page Properties dialog box for each new document");
  blankNewDoc_ = Check("blankNewDoc", "Start new documents with a &blank page");
  cascadeDocuments_ = Check("cascadeDocuments", "Cascade &documents when opening them");
  tipOfTheDay_ = Check("tipOfTheDay", "Show the &Tip of the Day at startup");
  startNewDoc_ = Check("startNewDoc", "Open &new document on startup");
  openMRUDoc_ = Check("openMRUDoc", "Open most &recently used document on startup");
  for (QCheckBox* box :
       {showPageProps_, blankNewDoc_, cascadeDocuments_, tipOfTheDay_, startNewDoc_, openMRUDoc_})
    layout->addWidget(box);
  layout->addStretch();
  return Page(layout);
}

QWidget* PreferencesDialog::BuildScreenPage() {
  auto* layout = new QVBoxLayout;
  auto* fonts = new QGridLayout;
  auto fontRow = [this, fonts](int row, const char* label, QComboBox*& list, const char* name,
                               const char* moreName) {
    list = FontList(name);
    auto* caption = new QLabel(label);
    caption->setBuddy(list);
    auto* more = new QPushButton("more");
    more->setObjectName(moreName);
    more->setAutoDefault(false);
    more->setToolTip("Choose from all the fonts of this computer");
    fonts->addWidget(caption, row, 0);
    fonts->addWidget(list, row, 1);
    fonts->addWidget(more, row, 2);
    QComboBox* l = list;
    connect(more, &QPushButton::clicked, this, [this, l] { ChooseFont(l); });
    connect(list, &QComboBox::currentTextChanged, this, [this] { RedrawPreview(); });
  };
  fontRow(0, "&Screen Font:", screenFont_, "screenFont", "moreScreenFonts");
  auto* sizeCaption = new QLabel("Si&ze:");
  QHBoxLayout* size =
      NumberField(fontSize_, fontSizeUpDown_, "fontSize", 2, kFontSizeMin, kFontSizeMax);
  sizeCaption->setBuddy(fontSize_);
  bold_ = Check("bold", "&Bold");
  size->addSpacing(12);
  size->addWidget(bold_);
  size->addStretch();
  fonts->addWidget(sizeCaption, 1, 0);
  fonts->addLayout(size, 1, 1, 1, 2);
  fontRow(2, "HT&ML Font:", htmlFont_, "htmlFont", "moreHtmlFonts");
  fonts->setColumnStretch(1, 1);
  layout->addLayout(fonts);
  connect(fontSize_, &QLineEdit::textChanged, this, [this] { RedrawPreview(); });
  connect(bold_, &QCheckBox::toggled, this, [this] { RedrawPreview(); });

  auto* colors = new QGroupBox("Colors");
  auto* colorRow = new QHBoxLayout(colors);
  auto* grid = new QGridLayout;
  auto* select = new QLabel("Select");
  grid->addWidget(select, 0, 2, Qt::AlignCenter);
  const std::pair<const char*, const char*> rows[] = {{"colorTags", "&Use Colored Tags"},
                                                      {"tableColorTags", "T&able Tags"},
                                                      {"quoteColorTags", "&Quoted items"},
                                                      {"commentColorTags", "Comme&nt Tags"},
                                                      {"aspColorTags", "AS&P Tags"}};
  const char* squares[] = {"tagColorSquare", "tableColorSquare", "quoteColorSquare",
                           "commentColorSquare", "aspColorSquare"};
  for (int i = 0; i < 5; ++i) {
    QCheckBox* box = Check(rows[i].first, rows[i].second);
    auto* square = new QPushButton;
    square->setObjectName(squares[i]);
    square->setToolTip("Click to select color...");
    square->setAutoDefault(false);
    square->setFixedSize(36, 18);
    colorChecks_[static_cast<std::size_t>(i)] = box;
    colorSquares_[static_cast<std::size_t>(i)] = square;
    // The four kinds stand under the colouring of tags as a whole.
    if (i == 0) {
      grid->addWidget(box, i + 1, 0, 1, 2);
    } else {
      grid->addItem(new QSpacerItem(16, 1), i + 1, 0);
      grid->addWidget(box, i + 1, 1);
    }
    grid->addWidget(square, i + 1, 2, Qt::AlignCenter);
    connect(square, &QPushButton::clicked, this, [this, i] { PickColor(i); });
    connect(box, &QCheckBox::toggled, this, [this] {
      UpdateColorSquares();
      RedrawPreview();
    });
  }
  grid->setRowStretch(6, 1);
  colorRow->addLayout(grid);

  preview_ = new SciEdit;
  preview_->setObjectName("preview");
  for (int margin = 0; margin < 5; ++margin)
    preview_->SendScintilla(QsciScintillaBase::SCI_SETMARGINWIDTHN, margin, 0L);
  preview_->SetText(PreviewText());
  preview_->setReadOnly(true);
  preview_->setFocusPolicy(Qt::NoFocus);
  preview_->SendScintilla(QsciScintillaBase::SCI_SETCARETSTYLE, 0UL, 0L);
  preview_->SendScintilla(QsciScintillaBase::SCI_SETHSCROLLBAR, 0UL, 0L);
  preview_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  preview_->setMinimumSize(200, 130);
  colorRow->addWidget(preview_, 1);
  layout->addWidget(colors, 1);
  return Page(layout);
}

QWidget* PreferencesDialog::BuildHtmlTagsPage() {
  auto* layout = new QVBoxLayout;
  upperCaseTags_ = Check("upperCaseTags", "Use &uppercase HTML tags");
  useDivTag_ = Check("useDivTag", "Use <DIV align=> tag instead of <P align=> tag");
  endingPTag_ = Check("endingPTag", "Use ending </P> tag when inserting <P>");
  brCarriageReturn_ =
      Check("brCarriageReturn", "Automatically insert carriage return when <BR> tag is inserted");
  for (QCheckBox* box : {upperCaseTags_, useDivTag_, endingPTag_, brCarriageReturn_})
    layout->addWidget(box);
  layout->addStretch();
  return Page(layout);
}

QWidget* PreferencesDialog::BuildCustomButtonsPage() {
  auto* layout = new QVBoxLayout;
  auto* note = new QLabel(
      "Custom buttons are shown in the Custom group of the shortcut bar. Choose a button "
      "number, give it a name and the text it inserts, and save it.");
  note->setWordWrap(true);
  layout->addWidget(note);
  auto* form = new QFormLayout;
  customButtonNumber_ = new QSpinBox;
  customButtonNumber_->setObjectName("customButtonNumber");
  customButtonNumber_->setRange(1, kCustomButtonCount);
  // Typing "12" must not pass through button 1 on the way.
  customButtonNumber_->setKeyboardTracking(false);
  customButtonNumber_->setMaximumWidth(70);
  customButtonName_ = Field("customButtonName");
  customButtonStart_ = Field("customButtonStart");
  customButtonEnd_ = Field("customButtonEnd");
  form->addRow("B&utton:", customButtonNumber_);
  form->addRow("Button &Name:", customButtonName_);
  form->addRow("Inserted &Text (Start Tag):", customButtonStart_);
  form->addRow("&End Tag (Optional):", customButtonEnd_);
  layout->addLayout(form);
  auto* row = new QHBoxLayout;
  auto* save = new QPushButton("&Save Button");
  save->setObjectName("saveCustomButton");
  save->setAutoDefault(false);
  auto* remove = new QPushButton("&Remove Button");
  remove->setObjectName("removeCustomButton");
  remove->setAutoDefault(false);
  row->addWidget(save);
  row->addWidget(remove);
  row->addStretch();
  layout->addLayout(row);
  layout->addStretch();
  connect(save, &QPushButton::clicked, this, [this] { SaveCustomButton(shownCustomButton_); });
  connect(remove, &QPushButton::clicked, this, [this] {
    customButtonName_->clear();
    customButtonStart_->clear();
    customButtonEnd_->clear();
    SaveCustomButton(shownCustomButton_);
  });
  connect(customButtonNumber_, &QSpinBox::valueChanged, this, [this](int number) {
    SaveCustomButton(shownCustomButton_);
    ShowCustomButton(number);
  });
  return Page(layout);
}

QWidget* PreferencesDialog::BuildMenusPage() {
  auto* layout = new QVBoxLayout;
  auto* intro = new QLabel("Choose how many commands the document menus show:");
  intro->setWordWrap(true);
  layout->addWidget(intro);
  menuGroup_ = new QButtonGroup(this);
  const std::pair<const char*, const char*> systems[] = {
      {"&Minimal -", "the basic tags, for a first Web page"},
      {"T&ypical -", "the tags most pages use"},
      {"Ma&ximum -", "every command"},
      {"C&ustom -", "the full menu without the groups you leave out"}};
  auto* grid = new QGridLayout;
  for (int i = 0; i < 4; ++i) {
    auto* radio = new QRadioButton(systems[i].first);
    radio->setObjectName(QString("menuSystem_") + kMenuSystems[static_cast<std::size_t>(i)]);
    menuSystems_[static_cast<std::size_t>(i)] = radio;
    menuGroup_->addButton(radio, i);
    grid->addWidget(radio, i, 0);
    grid->addWidget(new QLabel(systems[i].second), i, 1);
  }
  // Which groups the custom menus keep.
  auto* customize = new QPushButton("Cho&ose...");
  customize->setObjectName("customMenuButton");
  connect(customize, &QPushButton::clicked, this, [this] {
    if (ShowCustomMenuDialog(app_, this)) menuSystems_[3]->setChecked(true);
  });
  grid->addWidget(customize, 3, 2);
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);
  auto* later = new QLabel("A new menu system applies to documents opened after it.");
  later->setWordWrap(true);
  layout->addWidget(later);
  layout->addStretch();
  return Page(layout);
}

QWidget* PreferencesDialog::BuildAppsPage() {
  auto* layout = new QVBoxLayout;
  auto* grid = new QGridLayout;
  int row = 0;
  auto programRow = [this, grid, &row](const char* label, QLineEdit*& field, const char* name,
                                       const char* title) {
    field = Field(name);
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    auto* browse = new QPushButton("Browse...");
    browse->setObjectName(QString("browse_") + name);
    browse->setAutoDefault(false);
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(browse, row, 2);
    ++row;
    QLineEdit* f = field;
    connect(browse, &QPushButton::clicked, this, [this, f, title] { BrowseProgram(f, title); });
  };
  programRow("Browser #&1:", browser_, "browser",
             "Select the file/path of the browser you wish to use.");
  overrideBrowser_ = Check("overrideBrowser", "O&verride");
  overrideCaption_ = new QLabel;
  overrideCaption_->setObjectName("overrideCaption");
  auto* overrideRow = new QHBoxLayout;
  overrideRow->addWidget(overrideBrowser_);
  overrideRow->addWidget(overrideCaption_);
  overrideRow->addStretch();
  grid->addLayout(overrideRow, row++, 1);
  connect(overrideBrowser_, &QCheckBox::toggled, this,
          [this](bool on) { overrideCaption_->setText(on ? "default browser" : ""); });
  programRow("Browser #&2:", browser2_, "browser2",
             "Select the file/path of the browser you wish to use.");
  programRow("&Program used to Print documents:", printerProgram_, "printerProgram",
             "Select the file/path of the program used to print documents.");
  programRow("&Graphics App:", imageMapper_, "imageMapper",
             "Select the file/path of the Graphics program you wish to use.");
  programRow("&FTP Client:", ftpClient_, "ftpClient",
             "Select the file/path of the FTP client you wish to use.");
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);
  layout->addStretch();
  return Page(layout);
}

QWidget* PreferencesDialog::BuildMiscellaneousPage() {
  auto* layout = new QVBoxLayout;
  enableAutotab_ = Check("enableAutotab", "Enable &AutoTabbing");
  layout->addWidget(enableAutotab_);
  autoSave_ = Check("autoSave", "Auto&save every");
  QHBoxLayout* autoSaveRow =
      NumberField(autoSaveMinutes_, autoSaveUpDown_, "autoSaveMinutes", 5, 1, kAutoSaveMinutesMax);
  autoSaveRow->insertWidget(0, autoSave_);
  autoSaveRow->insertSpacing(1, 6);
  autoSaveRow->addSpacing(6);
  autoSaveRow->addWidget(new QLabel("minutes"));
  autoSaveRow->addStretch();
  layout->addLayout(autoSaveRow);
  connect(autoSave_, &QCheckBox::clicked, this, [this](bool on) {
    state_.SetAutoSave(on);
    autoSaveMinutes_->setText(QString::fromStdString(state_.autoSaveMinutes));
    autoSaveMinutes_->setEnabled(on);
    autoSaveUpDown_->setEnabled(on);
  });
  hrPropsBox_ = Check("hrPropsBox", "Show properties box when inserting <HR> Hori&zontal line");
  showFileList_ = Check("showFileList", "Show &File List");
  wordWrap_ = Check("wordWrap", "&Word Wrap");
  beginnerTableWizard_ = Check("beginnerTableWizard", "Use Beginner &Table Wizard");
  alignFileListLeft_ = Check("alignFileListLeft", "A&lign File List on left side");
  for (QCheckBox* box :
       {hrPropsBox_, showFileList_, wordWrap_, beginnerTableWizard_, alignFileListLeft_})
    layout->addWidget(box);

  QHBoxLayout* mruRow =
      NumberField(numberOfMRUFiles_, mruUpDown_, "numberOfMRUFiles", 2, 1, kRecentFilesMax);
  auto* mruCaption =
      new QLabel("# of files on Most Recently &Used file list (located under the File menu)");
  mruCaption->setWordWrap(true);
  mruCaption->setBuddy(numberOfMRUFiles_);
  mruRow->addSpacing(6);
  mruRow->addWidget(mruCaption, 1);
  layout->addLayout(mruRow);

  auto* spellRow = new QHBoxLayout;
  spellLanguage_ = new QComboBox;
  spellLanguage_->setObjectName("spellLanguage");
  for (const std::string& language : InstalledDictionaries(DictionaryFolders()))
    spellLanguage_->addItem(QString::fromStdString(language));
  auto* spellCaption = new QLabel("S&pell-check language:");
  spellCaption->setBuddy(spellLanguage_);
  spellRow->addWidget(spellCaption);
  spellRow->addWidget(spellLanguage_);
  spellRow->addStretch();
  layout->addLayout(spellRow);
  layout->addStretch();
  return Page(layout);
}

QWidget* PreferencesDialog::BuildFavoritesPage() {
  auto* layout = new QVBoxLayout;
  auto* note = new QLabel(
      "Select a URL or empty space above, type a new URL in the text box below and click the "
      "'Replace/Insert URL' button.  Click OK when finished.");
  note->setWordWrap(true);
  favoriteList_ = new QListWidget;
  favoriteList_->setObjectName("favoriteList");
  favoriteList_->viewport()->installEventFilter(this);
  favoriteUrl_ = Field("favoriteUrlText");
  auto* replace = new QPushButton("&Replace/Insert URL");
  replace->setObjectName("replaceInsertUrl");
  replace->setAutoDefault(false);
  connect(replace, &QPushButton::clicked, this, [this] { ReplaceOrInsertUrl(); });
  favoriteUrl_->installEventFilter(this);
  layout->addWidget(favoriteList_, 1);
  layout->addWidget(note);
  auto* row = new QHBoxLayout;
  row->addWidget(favoriteUrl_, 1);
  row->addWidget(replace);
  layout->addLayout(row);
  return Page(layout);
}

}  // namespace tessarine::ui
