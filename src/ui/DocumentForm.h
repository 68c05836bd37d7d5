#pragma once
// A document window: the edit control with the please-wait label behind it.

#include <QSet>
#include <QWidget>

#include "platform/DocumentWindow.h"

class QLabel;
class QMdiSubWindow;

namespace tessarine {

class Application;
class SciEdit;

class DocumentForm : public QWidget, public DocumentWindow {
  Q_OBJECT
 public:
  DocumentForm(Application& app, QWidget* parent = nullptr);

  EditControl& Edit() override;
  SciEdit& Editor() { return *edit_; }
  std::string Caption() const override;
  void SetCaption(const std::string& caption) override;
  void SetMaximized(bool maximized) override;
  bool IsMaximized() const override;
  void Activate() override;
  bool RequestClose() override;

  void SetSubWindow(QMdiSubWindow* sub) { sub_ = sub; }
  QMdiSubWindow* SubWindow() const { return sub_; }
  // Redefines the edit control's styles from the colour and font settings.
  void ApplySettings();
  // The title's unsaved-changes mark, and the Save button while this window is active.
  void RefreshModifiedMark();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool EditEvent(QEvent* event);
  bool ViewportEvent(QEvent* event);
  void ShowEditMenu();

  Application& app_;
  SciEdit* edit_;
  QLabel* lblPleaseWait_;
  // The caption is the file's path; the title adds the unsaved-changes mark to it.
  std::string caption_;
  QMdiSubWindow* sub_ = nullptr;
  // Keys that went down in this control: a release without its press (Enter in the find
  // box, which hands the focus here) is no key-up of ours.
  QSet<int> keysDown_;
};

}  // namespace tessarine
