#include "ui/wizards/ImageDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "conventions/FavoriteUrls.h"
#include "core/Application.h"
#include "ui/wizards/LinkDialogParts.h"
#include "wizards/LinkBrowse.h"

namespace tessarine::ui {

namespace {

const char* const kLinkFilter =
    "All Files (*.*)|*.*|HTML Files (*.htm, *.html)|*.htm;*.html|ASP Files (*.asp)|*.asp|"
    "Graphics Files (*.jpeg, *.jpg, *.gif, *.png)|*.jpeg;*.jpg;*.gif;*.png|GIF Files "
    "(*.gif)|*.gif|JPEG Files (*.jpeg, *.jpg)|*.jpeg;*.jpg|AU Files (*.au)|*.au|WAV Files "
    "(*.wav)|*.wav";

// A number field with its up-down control, as one row.
QHBoxLayout* SpinRow(QLineEdit* edit, const char* spinName) {
  auto* spin = new QSpinBox;
  spin->setObjectName(spinName);
  spin->setRange(0, 999);
  spin->setFixedWidth(18);
  spin->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
  QObject::connect(spin, &QSpinBox::valueChanged, edit,
                   [edit](int v) { edit->setText(QString::number(v)); });
  auto* row = new QHBoxLayout;
  row->addWidget(edit, 1);
  row->addWidget(spin);
  return row;
}

}  // namespace

// A picture's stand-in beside neighbouring text, placed as the chosen alignment places it.
class AlignmentPreview : public QWidget {
 public:
  AlignmentPreview() {
    setObjectName("alignmentPreview");
    setMinimumSize(260, 90);
  }
  void SetAlignment(const QString& item) {
    item_ = item;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), palette().base());
    const QFontMetrics fm = p.fontMetrics();
    const int box = 44, top = 20;
    const bool wraps = item_ == "Left" || item_ == "Right";
    const QString text =
        wraps ? "This is neighboring text and more text." : "This is neighboring text.";
    QRect picture(item_ == "Right" ? width() - box - 8 : 8, top, box, box);
    p.fillRect(picture, QColor(0x80, 0x80, 0xC0));
    p.drawRect(picture.adjusted(0, 0, -1, -1));
    if (wraps) {
      const QRect area = item_ == "Left" ? QRect(picture.right() + 8, top, width() - box - 24, 60)
                                         : QRect(8, top, width() - box - 24, 60);
      p.drawText(area, Qt::TextWordWrap | Qt::AlignTop, text);
      return;
    }
    int baseline = picture.bottom();  // bottom, baseline and none
    if (item_ == "Top" || item_ == "Texttop") baseline = picture.top() + fm.ascent();
    if (item_ == "Middle") baseline = picture.center().y();
    if (item_ == "Absmiddle") baseline = picture.center().y() + fm.ascent() / 2;
    if (item_ == "Absbottom") baseline = picture.bottom() - fm.descent();
    p.drawText(picture.right() + 6, baseline, text);
  }

 private:
  QString item_ = "None";
};

ImageDialog::ImageDialog(Application& app, QWidget* parent, const ImageTag& initial)
    : WizardDialog(app, "ImageDialog", "Insert Image", parent) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QTabWidget;
  pages_->setObjectName("pages");
  pages_->addTab(SelectPage(), "Select image");
  pages_->addTab(LayoutPage(), "Alternatives and Layout");
  pages_->addTab(LinkPage(), "Link to URL");
  pages_->addTab(AdvancedPage(), "Advanced");
  pages_->addTab(EffectsPage(), "Special Effects");
  layout->addWidget(pages_);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = ImageTag_OK(app_, Model());
    if (failed) pages_->setCurrentIndex(0);
    FocusField(failed);
    return !failed;
  });
  AllowLongText(this);
  Prefill(initial);

  QString start = Q(app.imageBrowseDirectory);
  if (start.isEmpty() || !QDir(start).exists()) start = Q(app.settings.ImageDirectory);
  if (start.isEmpty() || !QDir(start).exists()) start = QDir::homePath();
  ShowFolder(start, false);
  imageSource_->setFocus();
  setMinimumWidth(640);  // all five tabs in sight
}

QWidget* ImageDialog::SelectPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  v->addWidget(new QLabel("Enter filename of image:"));
  imageSource_ = NamedEdit("imageSource");
  auto* browse = ImageNameRow(v, imageSource_, "browseImage");
  v->addWidget(new QLabel("Or select the image from the file list below:"));
  folderLabel_ = new QLabel;
  folderLabel_->setObjectName("folderLabel");
  v->addWidget(folderLabel_);
  auto* lists = new QHBoxLayout;
  folderList_ = new QListWidget;
  folderList_->setObjectName("folderList");
  fileList_ = new QListWidget;
  fileList_->setObjectName("fileList");
  lists->addWidget(folderList_);
  lists->addWidget(fileList_);
  v->addLayout(lists, 1);
  auto* foot = new QHBoxLayout;
  widthReadout_ = new QLabel;
  widthReadout_->setObjectName("widthReadout");
  heightReadout_ = new QLabel;
  heightReadout_->setObjectName("heightReadout");
  widthReadout_->hide();
  heightReadout_->hide();
  auto* freeImages = NamedButton("freeImages", "Go to free images");
  foot->addWidget(widthReadout_);
  foot->addWidget(heightReadout_);
  foot->addStretch();
  foot->addWidget(freeImages);
  v->addLayout(foot);
  sizeProblem_ = new QLabel;
  sizeProblem_->setObjectName("sizeProblem");
  sizeProblem_->setWordWrap(true);
  v->addWidget(sizeProblem_);

  connect(browse, &QPushButton::clicked, this, [this] {
    const BrowsedFile chosen = BrowseForLink(app_);
    if (chosen.fullPath.empty()) return;
    ReadSize(chosen.fullPath);
    imageSource_->setText(Q(chosen.link));
    imageSource_->setFocus();
  });
  connect(folderList_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
    ShowFolder(QDir(folder_).absoluteFilePath(item->text()), true);
  });
  connect(fileList_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { PickListedFile(item->text()); });
  connect(freeImages, &QPushButton::clicked, this,
          [this] { ShowFolder(Q(app_.programFolder) + "/images", true); });
  return page;
}

QWidget* ImageDialog::LayoutPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  auto* grid = new QFormLayout;
  width_ = NamedEdit("imageWidth");
  height_ = NamedEdit("imageHeight");
  border_ = NamedEdit("borderWidth");
  verticalSpace_ = NamedEdit("verticalSpace");
  horizontalSpace_ = NamedEdit("horizontalSpace");
  grid->addRow("Image Width:", width_);
  grid->addRow("Image Height:", height_);
  grid->addRow("Border Width:", SpinRow(border_, "borderUpDown"));
  grid->addRow("Vertical Space:", SpinRow(verticalSpace_, "verticalSpaceUpDown"));
  grid->addRow("Horizontal Space:", SpinRow(horizontalSpace_, "horizontalSpaceUpDown"));
  alignment_ = NamedCombo("alignment", false);
  for (const ImageAlignment& a : ImageAlignments()) alignment_->addItem(a.item);
  grid->addRow("Align:", alignment_);
  v->addLayout(grid);
  preview_ = new AlignmentPreview;
  v->addWidget(preview_);
  alignmentDescription_ = new QLabel;
  alignmentDescription_->setObjectName("alignmentDescription");
  alignmentDescription_->setWordWrap(true);
  v->addWidget(alignmentDescription_);
  v->addWidget(new QLabel("Enter ALTernative text to replace image in text browsers:"));
  altText_ = NamedEdit("altText");
  v->addWidget(altText_);
  v->addWidget(new QLabel("Alternative low-resolution image:"));
  lowResSource_ = NamedEdit("lowResSource");
  auto* browse = ImageNameRow(v, lowResSource_, "browseLowRes");
  connect(alignment_, &QComboBox::currentIndexChanged, this, &ImageDialog::ChooseAlignment);
  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string link = BrowseRelativeFile(app_);
    if (!link.empty()) lowResSource_->setText(Q(link));
  });
  return page;
}

QWidget* ImageDialog::LinkPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  v->addWidget(new QLabel("Type the URL of the Web page, image or file you wish to link to:"));
  linkUrl_ = UrlCombo(app_, "linkUrl");
  v->addWidget(linkUrl_);
  auto* row = new QHBoxLayout;
  auto* browse = NamedButton("browseLinkFile", "Browse for file...");
  auto* favorites = NamedButton("browseLinkFavorites", "Browse Internet Explorer Favorites...");
  row->addWidget(browse);
  row->addWidget(favorites);
  row->addStretch();
  v->addLayout(row);
  v->addStretch();
  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string link = BrowseRelativeFile(app_, kLinkFilter);
    if (!link.empty()) linkUrl_->setEditText(Q(link));
  });
  connect(favorites, &QPushButton::clicked, this,
          [this] { linkUrl_->setEditText(Q(BrowseFavorites(app_))); });
  return page;
}

QWidget* ImageDialog::AdvancedPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  auto* form = new QFormLayout;
  auto* row = new QHBoxLayout;
  videoFile_ = NamedEdit("videoFile");
  auto* browse = NamedButton("browseVideo", "Browse for file...");
  row->addWidget(videoFile_, 1);
  row->addWidget(browse);
  form->addRow("Video Clip filename:", row);
  videoLoop_ = NamedCombo("videoLoop", true);
  for (int i = 1; i <= 10; ++i) videoLoop_->addItem(QString::number(i));
  videoLoop_->addItem("Infinite");
  videoLoop_->setEditText("");
  form->addRow("Loop:", videoLoop_);
  videoStart_ = NamedCombo("videoStart", true);
  videoStart_->addItems({"FileOpen", "MouseOver", "FileOpen and MouseOver"});
  videoStart_->setEditText("");
  form->addRow("Start playback:", videoStart_);
  v->addLayout(form);
  videoControls_ = new QCheckBox("VCR Controls");
  videoControls_->setObjectName("videoControls");
  v->addWidget(videoControls_);
  auto* note = new QLabel(
      "Only Internet Explorer supports this video property.  Use the 'Insert Sound/Multimedia "
      "Object' dialog box to insert video files that work in both Netscape and IE.");
  note->setWordWrap(true);
  v->addWidget(note);
  useClientMap_ = new QCheckBox("USEMAP - Client Side ImageMap");
  useClientMap_->setObjectName("useClientMap");
  v->addWidget(useClientMap_);
  auto* mapRow = new QHBoxLayout;
  mapNameLabel_ = new QLabel("Map name:");
  mapName_ = NamedEdit("mapName");
  mapRow->addSpacing(20);
  mapRow->addWidget(mapNameLabel_);
  mapRow->addWidget(mapName_, 1);
  v->addLayout(mapRow);
  serverMap_ = new QCheckBox("ISMAP - Server Side ImageMap");
  serverMap_->setObjectName("serverMap");
  v->addWidget(serverMap_);
  v->addStretch();
  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string link = BrowseRelativeFile(app_);
    if (!link.empty()) videoFile_->setText(Q(link));
    videoFile_->setFocus();
  });
  connect(useClientMap_, &QCheckBox::toggled, this, [this](bool on) {
    mapNameLabel_->setEnabled(on);
    mapName_->setEnabled(on);
    if (on) mapName_->setFocus();
  });
  mapNameLabel_->setEnabled(false);
  mapName_->setEnabled(false);
  return page;
}

QWidget* ImageDialog::EffectsPage() {
  auto* page = new QWidget;
  auto* v = new QVBoxLayout(page);
  v->addWidget(new QLabel("MouseOver Image filename:"));
  mouseOverImage_ = NamedEdit("mouseOverImage");
  auto* browse = ImageNameRow(v, mouseOverImage_, "browseMouseOver");
  auto* note =
      new QLabel("The MouseOver image replaces the picture while the mouse pointer is over it.");
  note->setWordWrap(true);
  v->addWidget(note);
  v->addStretch();
  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string link = BrowseRelativeFile(app_);
    if (!link.empty()) mouseOverImage_->setText(Q(link));
    mouseOverImage_->setFocus();
  });
  return page;
}

void ImageDialog::ChooseAlignment(int index) {
  const auto& list = ImageAlignments();
  if (index < 0 || index >= static_cast<int>(list.size())) return;
  preview_->SetAlignment(list[static_cast<std::size_t>(index)].item);
  alignmentDescription_->setText(list[static_cast<std::size_t>(index)].description);
}

void ImageDialog::ShowFolder(const QString& folder, bool changed) {
  QDir dir(folder);
  if (!dir.exists()) return;
  folder_ = dir.absolutePath();
  app_.imageBrowseDirectory = S(folder_);
  pattern_ = Q(ImageListPattern(changed));
  folderLabel_->setText(QDir::toNativeSeparators(folder_));
  folderList_->clear();
  if (!dir.isRoot()) folderList_->addItem("..");
  folderList_->addItems(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
  fileList_->clear();
  for (const QString& name : dir.entryList(QDir::Files, QDir::Name))
    if (MatchesPattern(S(name), S(pattern_))) fileList_->addItem(name);
}

void ImageDialog::PickListedFile(const QString& name) {
  const QString full = QDir(folder_).absoluteFilePath(name);
  if (SizeReadFromList(S(name))) ReadSize(S(full));
  QString folder = folder_;
  if (!folder.endsWith('/')) folder += '/';
  imageSource_->setText(Q(LinkFromDocument(app_, S(folder), S(name))));
}

void ImageDialog::ReadSize(const std::string& path) {
  const ImageSizeReadout r = ReadImageSize(app_.images, path);
  // A picture whose size can't be had leaves the last size standing, and says why.
  sizeProblem_->setText(Q(r.problem));
  if (!r.known) return;
  widthReadout_->setText(Q(r.widthLabel));
  heightReadout_->setText(Q(r.heightLabel));
  widthReadout_->show();
  heightReadout_->show();
  width_->setText(Q(r.width));
  height_->setText(Q(r.height));
}

void ImageDialog::Prefill(const ImageTag& i) {
  imageSource_->setText(Q(i.source));
  width_->setText(Q(i.width));
  height_->setText(Q(i.height));
  border_->setText(Q(i.border));
  verticalSpace_->setText(Q(i.verticalSpace));
  horizontalSpace_->setText(Q(i.horizontalSpace));
  const int align = alignment_->findText(Q(i.alignment));
  alignment_->setCurrentIndex(align < 0 ? 0 : align);
  ChooseAlignment(alignment_->currentIndex());
  altText_->setText(Q(i.altText));
  lowResSource_->setText(Q(i.lowResSource));
  linkUrl_->setEditText(Q(i.linkUrl));
  videoFile_->setText(Q(i.videoFile));
  videoLoop_->setEditText(Q(i.videoLoop));
  videoStart_->setEditText(Q(i.videoStart));
  videoControls_->setChecked(i.videoControls);
  useClientMap_->setChecked(i.useClientMap);
  mapName_->setText(Q(i.mapName));
  serverMap_->setChecked(i.serverMap);
  mouseOverImage_->setText(Q(i.mouseOverImage));
}

ImageTag ImageDialog::Model() const {
  ImageTag i;
  i.source = S(imageSource_->text());
  i.width = S(width_->text());
  i.height = S(height_->text());
  i.border = S(border_->text());
  i.verticalSpace = S(verticalSpace_->text());
  i.horizontalSpace = S(horizontalSpace_->text());
  i.alignment = alignment_->currentIndex() <= 0 ? "" : S(alignment_->currentText());
  i.altText = S(altText_->text());
  i.lowResSource = S(lowResSource_->text());
  i.linkUrl = S(linkUrl_->currentText());
  i.videoFile = S(videoFile_->text());
  i.videoLoop = S(videoLoop_->currentText());
  i.videoStart = S(videoStart_->currentText());
  i.videoControls = videoControls_->isChecked();
  i.useClientMap = useClientMap_->isChecked();
  i.mapName = S(mapName_->text());
  i.serverMap = serverMap_->isChecked();
  i.mouseOverImage = S(mouseOverImage_->text());
  return i;
}

}  // namespace tessarine::ui
