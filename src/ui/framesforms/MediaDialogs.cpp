#include "ui/framesforms/MediaDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "framesforms/BackgroundSound.h"
#include "framesforms/BrowseRelative.h"
#include "framesforms/EmbeddedMedia.h"
#include "platform/Desktop.h"

namespace tessarine::ui {

namespace {
const char* const kSoundFilter =
    "Sound files (*.wav;*.mid;*.au)|*.wav;*.mid;*.au|All Files (*.*)|*.*";
const char* const kMediaFilter =
    "Sound files (*.wav;*.mid;*.au)|*.wav;*.mid;*.au|Multimedia files (*.avi;*.mov;*.mpg)|"
    "*.avi;*.mov;*.mpg|All Files (*.*)|*.*";
}  // namespace

// A file box with its browse and play buttons.
static QHBoxLayout* FileRow(FrameFormDialog* dialog, Application& app, QLineEdit* file,
                            QPushButton* browse, QPushButton* play, const char* filter) {
  auto* row = new QHBoxLayout;
  file->setMinimumWidth(220);
  row->addWidget(file, 1);
  row->addWidget(browse);
  row->addWidget(play);
  QObject::connect(browse, &QPushButton::clicked, dialog, [&app, file, filter] {
    const std::string path = BrowseForRelativeFile(app, filter);
    if (!path.empty()) file->setText(Q(path));
  });
  // Played by whatever the desktop plays such files with.
  QObject::connect(play, &QPushButton::clicked, dialog, [&app, file] {
    const std::string path = S(file->text());
    if (!path.empty()) app.shell.OpenInDefaultViewer(ResolveAgainstDocument(app, path));
  });
  return row;
}

BackgroundSoundDialog::BackgroundSoundDialog(Application& app, QWidget* parent)
    : FrameFormDialog(app, "BackgroundSoundDialog", "Background Sound", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>Background Sound</b>");
  heading->setObjectName("lblHeading");
  layout->addWidget(heading);
  auto* note = new QLabel(kBackgroundSoundNote);
  note->setObjectName("lblSubHeading");
  note->setWordWrap(true);
  layout->addWidget(note);
  auto* form = new QFormLayout;
  soundFile_ = NewLine("soundFile");
  form->addRow("Background sound filename:",
               FileRow(this, app_, soundFile_, NewButton("Browse...", "browseButton"),
                       NewButton("Play this sound", "playButton"), kSoundFilter));
  loop_ = NewChoice("loopCombo", kBackgroundSoundLoops, 11);
  loop_->setCurrentIndex(0);
  form->addRow("Loop the sound:", loop_);
  layout->addLayout(form);
  AddButtons(layout, "okButton", [this] { return Passed(BackgroundSound_OK(app_, Model())); });
  resize(480, sizeHint().height());
}

BackgroundSoundInputs BackgroundSoundDialog::Model() const {
  BackgroundSoundInputs in;
  in.soundFile = S(soundFile_->text());
  in.loop = S(loop_->currentText());
  return in;
}

EmbeddedMediaDialog::EmbeddedMediaDialog(Application& app, QWidget* parent)
    : FrameFormDialog(app, "EmbeddedMediaDialog", "Embed Sound/Multimedia object", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  mediaFile_ = NewLine("mediaFile");
  form->addRow("Filename of sound/multimedia object:",
               FileRow(this, app_, mediaFile_, NewButton("Browse...", "browseButton"),
                       NewButton("Play this sound", "playButton"), kMediaFilter));
  width_ = NewLine("width");
  form->addRow("Width (pixels):", width_);
  height_ = NewLine("height");
  form->addRow("Height (pixels):", height_);
  altText_ = NewLine("altText");
  form->addRow("ALTernative text:", altText_);
  controls_ = NewChoice("controlsCombo", kEmbedControls, 3);
  form->addRow("Controls:", controls_);
  align_ = NewChoice("alignCombo", kEmbedAligns, 3);
  form->addRow("Align:", align_);
  autostart_ = new QCheckBox("Autostart");
  autostart_->setObjectName("autostartCheck");
  loop_ = new QCheckBox("Loop the sound");
  loop_->setObjectName("loopCheck");
  auto* checks = new QHBoxLayout;
  checks->addWidget(autostart_);
  checks->addWidget(loop_);
  checks->addStretch();
  form->addRow("", checks);
  layout->addLayout(form);
  AddButtons(layout, "okButton", [this] { return Passed(EmbeddedMedia_OK(app_, Model())); });
}

EmbeddedMediaInputs EmbeddedMediaDialog::Model() const {
  EmbeddedMediaInputs in;
  in.mediaFile = S(mediaFile_->text());
  in.width = S(width_->text());
  in.height = S(height_->text());
  in.altText = S(altText_->text());
  in.controls = S(controls_->currentText());
  in.align = S(align_->currentText());
  in.autostart = autostart_->isChecked();
  in.loop = loop_->isChecked();
  return in;
}

}  // namespace tessarine::ui
