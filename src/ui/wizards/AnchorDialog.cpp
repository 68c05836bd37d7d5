#include "ui/wizards/AnchorDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/wizards/LinkDialogParts.h"

namespace tessarine::ui {

AnchorDialog::AnchorDialog(Application& app, QWidget* parent)
    : AnchorDialog(app, parent, Anchor_Open(app)) {}

AnchorDialog::AnchorDialog(Application& app, QWidget* parent, const Anchor& initial)
    : WizardDialog(app, "AnchorDialog", "Anchor target", parent) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Anchor/Bookmark name:"));
  anchorName_ = NamedEdit("anchorName");
  layout->addWidget(anchorName_);
  layout->addWidget(new QLabel("Anchored text that will appear on the Web page:"));
  anchorText_ = NamedEdit("anchorText");
  layout->addWidget(anchorText_);
  auto* note = new QLabel("To link to this anchor, use the 'Insert HyperLink' function.");
  note->setWordWrap(true);
  layout->addWidget(note);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = Anchor_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
  AllowLongText(this);
  Prefill(initial);
  setMinimumWidth(380);
}

void AnchorDialog::Prefill(const Anchor& anchor) {
  anchorName_->setText(Q(anchor.name));
  anchorText_->setText(Q(anchor.text));
}

Anchor AnchorDialog::Model() const {
  return Anchor{S(anchorName_->text()), S(anchorText_->text())};
}

}  // namespace tessarine::ui
