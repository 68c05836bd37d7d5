#pragma once
// "Cascading Style Sheet Manager": the rules of the active document's sheet, with add,
// edit, remove, apply and preview; OK writes the changes back as one edit, Cancel drops
// them.

#include <QDialog>
#include <cstdint>
#include <functional>
#include <string>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace tessarine {
class Application;
}

namespace tessarine::ui {

class StyleManagerDialog : public QDialog {
  Q_OBJECT
 public:
  // `mode` 1 (full) or 3 (apply only).
  StyleManagerDialog(Application& app, std::int16_t mode, QWidget* parent);
  // Reads the sheet; false when the dialog should not be shown at all.
  bool Load();
  // Opens the manager on the active document as the menu does.
  static void Run(Application& app, std::int16_t mode, QWidget* parent);

  QListWidget* StyleList() const { return styleList_; }
  // The style editor this dialog opens, before it is shown (for tests).
  void OnEditorOpened(std::function<void(QDialog&)> hook) { editorHook_ = std::move(hook); }

 protected:
  void done(int result) override;

 private:
  void SetManagerMode(std::int16_t mode);
  void OnSelection();
  std::string Selected() const;
  void AddStyle();
  void EditStyle();
  void RemoveStyle();
  void ApplySelected();
  void Message(const char* text);

  Application& app_;
  std::function<void(QDialog&)> editorHook_;
  QStackedWidget* pages_;
  QListWidget* styleList_;
  QPlainTextEdit* definition_;
  QPushButton* addButton_;
  QPushButton* editButton_;
  QPushButton* removeButton_;
  QPushButton* applyButton_;
  QPushButton* okButton_;
  QRadioButton* spanOption_;
  QRadioButton* divOption_;
  QRadioButton* cursorOption_;
};

}  // namespace tessarine::ui
