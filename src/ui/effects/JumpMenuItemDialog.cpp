#include "ui/effects/JumpMenuItemDialog.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "effects/EffectPicker.h"

namespace tessarine::ui {

JumpMenuItemDialog::JumpMenuItemDialog(Application& app, const JumpMenuRow& row, QWidget* parent)
    : EffectDialog(app, "JumpMenuItemDialog", "Specify Menu item and URL", parent), row_(row) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  itemText_ = new QLineEdit(Q(row.text));
  itemText_->setObjectName("itemText");
  form->addRow("Menu item text:", itemText_);
  urlText_ = new QLineEdit(Q(row.url));
  urlText_->setObjectName("urlText");
  form->addRow("Link to this URL:", urlText_);
  auto* browse = new QPushButton("Browse for URL...");
  browse->setObjectName("browseUrlButton");
  form->addRow("", browse);
  layout->addLayout(form);
  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string url = BrowseForRelativeUrl(app_);
    if (!url.empty()) urlText_->setText(Q(url));
  });
  AddButtons(layout, "okButton", [this] {
    const JumpMenuItem item = Model();
    if (Refuse(item.Validate())) return false;
    row_ = item.Row();
    return true;
  });
  setMinimumWidth(420);
}

JumpMenuItem JumpMenuItemDialog::Model() const {
  return {S(itemText_->text()), S(urlText_->text())};
}

}  // namespace tessarine::ui
