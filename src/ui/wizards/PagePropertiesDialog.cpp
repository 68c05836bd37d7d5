#include "ui/wizards/PagePropertiesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "ui/wizards/MetaTagsDialog.h"
#include "wizards/EditTag.h"
#include "wizards/LinkBrowse.h"

namespace tessarine::ui {

namespace {

struct ColorRow {
  const char* name;
  const char* caption;
};
// The background first, then the order of PageColor.
const ColorRow kColorRows[5] = {{"backgroundColor", "&Background color:"},
                                {"textColor", "&Text Color:"},
                                {"linkColor", "&Link Color:"},
                                {"visitedLinkColor", "&Visited Link Color:"},
                                {"activeLinkColor", "&Active Link Color:"}};
const char* const kPreviewTexts[4] = {"Normal Text", "Linked Text", "Visited Link Text",
                                      "Active Link Text"};

enum Page { TitleTab, ColorsTab, BackgroundTab, MarginsTab, MetaTagsTab, InformationTab };

QIcon Swatch(const QColor& color) {
  QPixmap p(16, 16);
  p.fill(color);
  QPainter paint(&p);
  paint.setPen(Qt::darkGray);
  paint.drawRect(0, 0, 15, 15);
  return QIcon(p);
}

QColor ColorFromDigits(const Application& app) {
  return QColor(std::atoi(app.wizards.ColorRed.c_str()), std::atoi(app.wizards.ColorGreen.c_str()),
                std::atoi(app.wizards.ColorBlue.c_str()));
}

QLineEdit* Edit(const char* name) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  return e;
}

}  // namespace

PagePropertiesDialog::PagePropertiesDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "PagePropertiesDialog", "Web Page Properties", parent) {
  auto* layout = new QVBoxLayout(this);
  tabs_ = new QTabWidget;
  tabs_->setObjectName("pageTabs");
  tabs_->setUsesScrollButtons(false);  // all six tabs in sight: the dialog widens to them
  tabs_->addTab(TitlePage(), "Page Title");
  tabs_->addTab(ColorsPage(), "Colors");
  tabs_->addTab(BackgroundPage(), "Background image");
  tabs_->addTab(MarginsPage(), "Margins");
  tabs_->addTab(MetaTagsPage(), "Meta Tags");
  tabs_->addTab(InformationPage(), "File Properties");
  layout->addWidget(tabs_, 1);
  dontShow_ = new QCheckBox("Don't show this when starting a new document");
  dontShow_->setObjectName("dontShowForNewPages");
  layout->addWidget(dontShow_);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = PageProperties_OK(app_, Model());
    if (failed) tabs_->setCurrentIndex(BackgroundTab);
    FocusField(failed);
    return !failed;
  });
  connect(this, &QDialog::rejected, this, [this] { PageProperties_Cancel(app_); });
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { FocusPage(index); });
  resize(600, 400);

  const PageOpening opening = PageProperties_Open(app_);
  SetModel(opening.form);
  if (opening.selectTitle) title_->selectAll();
  title_->setFocus();
}

QWidget* PagePropertiesDialog::TitlePage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  auto* label = new QLabel("Title of the &page:");
  title_ = Edit("pageTitle");
  label->setBuddy(title_);
  v->addWidget(label);
  v->addWidget(title_);
  v->addStretch();
  return page;
}

QWidget* PagePropertiesDialog::ColorsPage() {
  auto* page = new QWidget;
  auto* h = new QHBoxLayout(page);
  auto* grid = new QGridLayout;
  if (app_.wizards.ColorTable[0][0].empty()) LoadColorTable(app_);
  for (std::size_t i = 0; i < 5; ++i) {
    auto* combo = new QComboBox;
    combo->setObjectName(kColorRows[i].name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    // Names count only as typed exactly: no completion into a listed name.
    combo->setCompleter(nullptr);
    for (std::size_t c = 0; c < 16; ++c) {
      HexToRgb(app_, app_.wizards.ColorTable[1][c]);
      combo->addItem(Swatch(ColorFromDigits(app_)), Q(app_.wizards.ColorTable[0][c]));
    }
    combo->setCurrentIndex(-1);
    combo->setEditText("");
    auto* swatch = new QToolButton;
    swatch->setObjectName(QString(kColorRows[i].name) + "Swatch");
    swatch->setToolTip("Choose a color");
    swatch->setAutoRaise(true);
    auto* label = new QLabel(kColorRows[i].caption);
    label->setBuddy(combo);
    const int row = static_cast<int>(i);
    grid->addWidget(label, row, 0);
    grid->addWidget(combo, row, 1);
    grid->addWidget(swatch, row, 2);
    colorCombos_[i] = combo;
    swatches_[i] = swatch;
    connect(combo, &QComboBox::editTextChanged, this,
            [this, i](const QString& text) { OnColorText(i, text); });
    connect(swatch, &QToolButton::clicked, this, [this, i] { PickColorFor(i); });
  }
  grid->setRowStretch(5, 1);
  h->addLayout(grid, 1);

  auto* side = new QVBoxLayout;
  preview_ = new QFrame;
  preview_->setObjectName("colorPreview");
  preview_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  preview_->setAutoFillBackground(true);
  preview_->setMinimumSize(170, 120);
  auto* pv = new QVBoxLayout(preview_);
  for (std::size_t i = 0; i < 4; ++i) {
    auto* l = new QLabel(kPreviewTexts[i]);
    l->setObjectName(QString("preview%1").arg(i));
    QFont f = l->font();
    f.setUnderline(i > 0);
    l->setFont(f);
    pv->addWidget(l);
    previewTexts_[i] = l;
  }
  side->addWidget(preview_);
  auto* from = new QGroupBox("Get Colors from:");
  auto* fv = new QVBoxLayout(from);
  auto* another = new QPushButton("Another &Web Page");
  another->setObjectName("colorsFromPage");
  fv->addWidget(another);
  side->addWidget(from);
  side->addStretch();
  h->addLayout(side);
  connect(another, &QPushButton::clicked, this, [this] {
    tessarine::PageProperties form = Model();
    if (PageProperties_ColorsFromPage(app_, form)) SetModel(form);
  });
  return page;
}

QWidget* PagePropertiesDialog::BackgroundPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  auto* label = new QLabel("&Enter image filename for background:");
  backgroundImage_ = Edit("backgroundImage");
  label->setBuddy(backgroundImage_);
  v->addWidget(label);
  auto* row = new QHBoxLayout;
  row->addWidget(backgroundImage_, 1);
  auto* browse = new QPushButton("Browse for &image...");
  browse->setObjectName("browseImage");
  row->addWidget(browse);
  v->addLayout(row);
  fixedBackground_ =
      new QCheckBox("Make background image a &fixed watermark (Internet Explorer only)");
  fixedBackground_->setObjectName("fixedBackground");
  v->addWidget(fixedBackground_);
  picture_ = new QLabel;
  picture_->setObjectName("picturePreview");
  picture_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  picture_->setAlignment(Qt::AlignCenter);
  picture_->setFixedSize(200, 150);
  v->addWidget(picture_, 0, Qt::AlignHCenter);
  v->addStretch();
  connect(browse, &QPushButton::clicked, this, [this] {
    const BrowsedFile chosen = BrowseForLink(app_);
    if (chosen.fullPath.empty()) return;
    backgroundImage_->setText(Q(chosen.link));
    ShowPicture(Q(chosen.fullPath));
    backgroundImage_->setFocus();
  });
  return page;
}

QWidget* PagePropertiesDialog::MarginsPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  leftMargin_ = Edit("leftMargin");
  topMargin_ = Edit("topMargin");
  form->addRow("&Left Margin (specified in pixels):", leftMargin_);
  form->addRow("&Top Margin (specified in pixels):", topMargin_);
  return page;
}

QWidget* PagePropertiesDialog::MetaTagsPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  auto* about = new QLabel(
      "A description and keywords help search engines list your page; a splash screen moves "
      "on to a second page by itself.");
  about->setWordWrap(true);
  v->addWidget(about);
  metaTags_ = new QPushButton("Specify &Meta Tags...");
  metaTags_->setObjectName("metaTagsButton");
  v->addWidget(metaTags_, 0, Qt::AlignLeft);
  v->addStretch();
  connect(metaTags_, &QPushButton::clicked, this, [this] {
    MetaTagsDialog(app_, this).exec();
    // Its closing ends a tag edit and hands the focus to the document; this one goes on.
    app_.wizards.TagEditActive = 1;
    metaTags_->setFocus();
  });
  return page;
}

QWidget* PagePropertiesDialog::InformationPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  information_ = new QPlainTextEdit;
  information_->setObjectName("pageInformation");
  information_->setReadOnly(true);
  information_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  v->addWidget(information_);
  return page;
}

void PagePropertiesDialog::FocusPage(int index) {
  switch (index) {
    case TitleTab:
      title_->setFocus();
      break;
    case ColorsTab:
      colorCombos_[0]->setFocus();
      break;
    case BackgroundTab:
      backgroundImage_->setFocus();
      break;
    case MarginsTab:
      leftMargin_->setFocus();
      break;
    case MetaTagsTab:
      metaTags_->setFocus();
      break;
    case InformationTab: {
      QStringList lines;
      for (const std::string& line : PageInformation(app_)) lines << Q(line);
      information_->setPlainText(lines.join('\n'));
      break;
    }
    default:
      break;
  }
}

void PagePropertiesDialog::OnColorText(std::size_t index, const QString& text) {
  entries_[index] = EnterColor(app_, S(text));
  shades_[index] = ColorFromDigits(app_);
  swatches_[index]->setIcon(Swatch(shades_[index]));
  UpdatePreview();
}

void PagePropertiesDialog::PickColorFor(std::size_t index) {
  PickColor(app_);
  if (app_.wizards.ColorCancelled) return;
  const ColorEntry picked = PickedColorEntry(app_);
  colorCombos_[index]->setEditText(Q(picked.text));
  entries_[index] = picked;
}

void PagePropertiesDialog::UpdatePreview() {
  // A colour left empty shows as a browser shows it, not as the swatch's grey.
  static const QColor browserDefaults[5] = {Qt::white, Qt::black, QColor(0, 0, 255),
                                            QColor(128, 0, 128), QColor(255, 0, 0)};
  auto shade = [this](std::size_t i) {
    return colorCombos_[i]->currentText().isEmpty() ? browserDefaults[i] : shades_[i];
  };
  QPalette p = preview_->palette();
  p.setColor(QPalette::Window, shade(0));
  preview_->setPalette(p);
  for (std::size_t i = 0; i < 4; ++i) {
    QPalette lp = previewTexts_[i]->palette();
    lp.setColor(QPalette::WindowText, shade(i + 1));
    previewTexts_[i]->setPalette(lp);
  }
}

void PagePropertiesDialog::ShowPicture(const QString& path) {
  QImageReader reader(path);
  const QSize size = reader.size();
  if (size.isValid()) {
    const QSize box = picture_->size() - QSize(4, 4);
    if (size.width() > box.width() || size.height() > box.height())
      reader.setScaledSize(size.scaled(box, Qt::KeepAspectRatio));
  }
  const QImage image = reader.read();
  if (image.isNull())
    picture_->clear();
  else
    picture_->setPixmap(QPixmap::fromImage(image));
}

tessarine::PageProperties PagePropertiesDialog::Model() const {
  tessarine::PageProperties m;
  m.title = S(title_->text());
  m.backgroundColor = entries_[0];
  for (std::size_t i = 0; i < 4; ++i) m.colors[i] = entries_[i + 1];
  m.backgroundImage = S(backgroundImage_->text());
  m.fixedBackground = fixedBackground_->isChecked();
  m.leftMargin = S(leftMargin_->text());
  m.topMargin = S(topMargin_->text());
  m.dontShowForNewPages = dontShow_->isChecked();
  return m;
}

void PagePropertiesDialog::SetModel(const tessarine::PageProperties& form) {
  title_->setText(Q(form.title));
  std::array<const ColorEntry*, 5> entries{&form.backgroundColor, &form.colors[0], &form.colors[1],
                                           &form.colors[2], &form.colors[3]};
  for (std::size_t i = 0; i < 5; ++i) {
    colorCombos_[i]->setEditText(Q(entries[i]->text));
    OnColorText(i, colorCombos_[i]->currentText());
    entries_[i] = *entries[i];
  }
  backgroundImage_->setText(Q(form.backgroundImage));
  fixedBackground_->setChecked(form.fixedBackground);
  leftMargin_->setText(Q(form.leftMargin));
  topMargin_->setText(Q(form.topMargin));
  dontShow_->setChecked(form.dontShowForNewPages);
  // A background already named shows when it lies where the page can reach it.
  picture_->clear();
  if (!form.backgroundImage.empty()) {
    DocumentWindow* doc = app_.ActiveDocument();
    const QFileInfo page(doc ? Q(doc->Caption()) : QString());
    const QString path = page.dir().filePath(Q(form.backgroundImage));
    if (page.isAbsolute() && QFileInfo(path).isFile()) ShowPicture(path);
  }
}

void PagePropertiesDialog::SetBodyFields(const BodyTagFields& fields) {
  tessarine::PageProperties form = Model();
  ApplyBodyFields(app_, fields, form);
  SetModel(form);
}

}  // namespace tessarine::ui
