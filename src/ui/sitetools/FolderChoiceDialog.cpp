#include "ui/sitetools/FolderChoiceDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/sitetools/FolderFileLists.h"

namespace tessarine {

FolderChoiceDialog::FolderChoiceDialog(const QString& title, const QString& prompt,
                                       const QString& start, QWidget* parent)
    : QDialog(parent), lists_(new FolderFileLists(Qt::Vertical)) {
  setObjectName("FolderChoiceDialog");
  setWindowTitle(title);
  lists_->FileList()->hide();
  lists_->ShowListCaptions();
  lists_->SetFolder(start);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(prompt));
  layout->addWidget(lists_, 1);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  resize(400, 420);
}

void FolderChoiceDialog::SetErrorHandler(std::function<void(const std::string&)> show) {
  lists_->SetErrorHandler(std::move(show));
}

QString FolderChoiceDialog::Folder() const {
  return lists_->Folder();
}

}  // namespace tessarine
