#include "ui/sitetools/ProjectManagerDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "sitetools/Projects.h"
#include "ui/sitetools/FolderChoiceDialog.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

}  // namespace

ProjectManagerDialog::ProjectManagerDialog(Application& app, bool openMode, QWidget* parent)
    : QDialog(parent),
      app_(app),
      openMode_(openMode),
      projectName_(new QComboBox),
      projectFolder_(new QLineEdit),
      imageFolder_(new QLineEdit) {
  setObjectName("ProjectManagerDialog");
  setWindowTitle("Project Manager");
  projectName_->setObjectName("projectName");
  projectName_->setEditable(true);
  projectFolder_->setObjectName("projectFolder");
  imageFolder_->setObjectName("imageFolder");
  auto button = [this](const char* name, const QString& caption) {
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    return b;
  };
  QPushButton* create = button("createButton", "&Create Project");
  QPushButton* open = button("openButton", openMode ? "&Open Project" : "&Open");
  QPushButton* remove = button("removeButton", "&Remove Project");
  QPushButton* cancel = button("cancelButton", openMode ? "E&xit" : "&Cancel");
  QPushButton* browseProject = button("browseProjectFolder", "...");
  QPushButton* browseImages = button("browseImageFolder", "...");

  auto row = [](QLineEdit* edit, QPushButton* browse) {
    auto* line = new QHBoxLayout;
    line->addWidget(edit, 1);
    line->addWidget(browse);
    return line;
  };
  auto* form = new QFormLayout;
  form->addRow("Project name:", projectName_);
  form->addRow("Web page folder:", row(projectFolder_, browseProject));
  form->addRow("Image folder:", row(imageFolder_, browseImages));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(create);
  buttons->addWidget(open);
  buttons->addWidget(remove);
  buttons->addStretch(1);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addLayout(buttons);

  connect(create, &QPushButton::clicked, this, &ProjectManagerDialog::Create);
  connect(open, &QPushButton::clicked, this, &ProjectManagerDialog::Open);
  connect(remove, &QPushButton::clicked, this, &ProjectManagerDialog::Remove);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(projectName_, qOverload<int>(&QComboBox::activated), this,
          &ProjectManagerDialog::ShowSlot);
  auto browse = [this](QLineEdit* edit) {
    FolderChoiceDialog chooser("Browse for folder...", "Choose a folder:", edit->text(), this);
    chooser.SetErrorHandler([this](const std::string& message) {
      app_.messages.Show(message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
    });
    if (chooser.exec() == QDialog::Accepted) edit->setText(chooser.Folder());
  };
  connect(browseProject, &QPushButton::clicked, this, [this, browse] { browse(projectFolder_); });
  connect(browseImages, &QPushButton::clicked, this, [this, browse] { browse(imageFolder_); });
  FillProjectList();
  resize(480, 160);
}

void ProjectManagerDialog::Say(const std::string& text) {
  app_.messages.Show(text, MsgButtons::OK, MsgIcon::None, app_.title);
}

void ProjectManagerDialog::FillProjectList() {
  projectName_->clear();
  for (const std::string& name : ProjectNames(app_.store)) projectName_->addItem(Q(name));
  projectName_->setCurrentIndex(-1);
  projectName_->setEditText("");
}

void ProjectManagerDialog::ShowSlot(int index) {
  if (index < 0) return;
  const Project p = ReadProject(app_.store, index + 1);
  projectFolder_->setText(Q(p.projectFolder));
  imageFolder_->setText(Q(p.imageFolder));
}

void ProjectManagerDialog::Create() {
  const Project project{S(projectName_->currentText()), S(projectFolder_->text()),
                        S(imageFolder_->text())};
  if (CheckResult failed = ValidateNewProject(project)) {
    Say(failed->message);
    if (QWidget* field = findChild<QWidget*>(Q(failed->field))) field->setFocus();
    return;
  }
  std::string message;
  CreateProject(app_.store, project, message);
  Say(message);
  FillProjectList();
  projectFolder_->clear();
  imageFolder_->clear();
  if (app_.sites.rebuildProjectMenu) app_.sites.rebuildProjectMenu();
}

void ProjectManagerDialog::Open() {
  if (!openMode_ && projectName_->currentText().isEmpty()) {
    Say(kSelectProjectMessage);
    return;
  }
  OpenProject(app_.settings,
              {S(projectName_->currentText()), S(projectFolder_->text()), S(imageFolder_->text())});
  app_.files.SaveDirectory = app_.settings.WorkingDirectory;
  if (app_.sites.showFolderInFileList) {
    app_.sites.showFolderInFileList(app_.settings.WorkingDirectory);
  }
  accept();
}

void ProjectManagerDialog::Remove() {
  if (projectName_->currentText().isEmpty() || projectName_->currentIndex() < 0) {
    Say(kSelectProjectMessage);
    return;
  }
  if (app_.messages.Show(kDeleteProjectQuestion, MsgButtons::YesNo, MsgIcon::Question,
                         app_.title) != MsgAnswer::Yes) {
    return;
  }
  DeleteProject(app_.store, projectName_->currentIndex() + 1);
  FillProjectList();
  projectFolder_->clear();
  imageFolder_->clear();
  if (app_.sites.rebuildProjectMenu) app_.sites.rebuildProjectMenu();
}

}  // namespace tessarine
