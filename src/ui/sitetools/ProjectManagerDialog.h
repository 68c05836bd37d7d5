#pragma once
// The project manager: create, open and remove projects. In open mode the open button
// reads "&Open Project" and the cancel button "E&xit".

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tessarine {

class Application;

class ProjectManagerDialog : public QDialog {
  Q_OBJECT
 public:
  ProjectManagerDialog(Application& app, bool openMode, QWidget* parent = nullptr);

  QComboBox* ProjectName() const { return projectName_; }
  QLineEdit* ProjectFolder() const { return projectFolder_; }
  QLineEdit* ImageFolder() const { return imageFolder_; }

  void Create();
  void Open();
  void Remove();

 private:
  void FillProjectList();
  void ShowSlot(int index);
  void Say(const std::string& text);

  Application& app_;
  bool openMode_;
  QComboBox* projectName_;
  QLineEdit* projectFolder_;
  QLineEdit* imageFolder_;
};

}  // namespace tessarine
