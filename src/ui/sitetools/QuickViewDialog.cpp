#include "ui/sitetools/QuickViewDialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "core/Application.h"
#include "core/Colorize.h"
#include "core/Styles.h"
#include "platform/MessageBoxes.h"
#include "sitetools/QuickView.h"
#include "ui/SciEdit.h"

namespace tessarine {

QuickViewDialog::QuickViewDialog(Application& app, const std::string& path, const std::string& text,
                                 std::int64_t position, std::int64_t length, bool readOnly,
                                 QWidget* parent)
    : QDialog(parent),
      app_(app),
      path_(path),
      editor_(new SciEdit),
      saveButton_(new QPushButton("&Save")) {
  setObjectName("QuickViewDialog");
  setWindowTitle(QString::fromUtf8(("Quick View  - " + path).c_str()));
  editor_->setObjectName("pageText");
  saveButton_->setObjectName("saveButton");
  auto* exitButton = new QPushButton("E&xit");
  exitButton->setObjectName("exitButton");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(saveButton_);
  buttons->addWidget(exitButton);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(editor_, 1);
  layout->addLayout(buttons);
  connect(saveButton_, &QPushButton::clicked, this, &QuickViewDialog::Save);
  connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);
  saveButton_->setEnabled(!readOnly);

  editor_->ApplyStyleTable(BuildStyleTable(app_.settings));
  editor_->SetText(text);
  if (app_.settings.Flags.ColorTags && !text.empty()) {
    std::vector<Style> styles(text.size());
    ColorizeTags(text, ColorizeOptions{app_.settings.Flags, false}, styles.data());
    editor_->SetStyles(0, styles.data(), static_cast<Pos>(styles.size()));
  }
  editor_->SetSelStart(position);
  editor_->SetSelLength(length);
  resize(720, 520);
}

void QuickViewDialog::Save() {
  const std::string problem = SaveQuickView(path_, editor_->View());
  if (!problem.empty()) {
    app_.messages.Show(problem, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
  }
}

}  // namespace tessarine
