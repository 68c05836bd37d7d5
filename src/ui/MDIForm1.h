#pragma once
// The main window: the document frame, its four toolbars, side panel, error list and
// status bar. A thin assembly: the decisions live in the logic.

#include <QElapsedTimer>
#include <QMainWindow>
#include <QMap>

#include "platform/Frame.h"

class QAction;
class QComboBox;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QSplitter;
class QTabWidget;
class QToolBar;
class QWidget;

namespace tessarine {

class Application;
class Form2;

class MDIForm1 : public QMainWindow, public Frame {
  Q_OBJECT
 public:
  MDIForm1();
  ~MDIForm1() override;
  // The load event: everything from the first run to the first document on the screen.
  void Load(Application& app, const std::string& commandLine);

  // Frame
  DocumentWindow* CreateDocumentWindow() override;
  DocumentWindow* ActiveDocumentWindow() override;
  void ActivateNextDocument(bool previous) override;
  void Arrange(WindowArrangement how) override;
  void SetStatusText(const std::string& text) override;
  std::string StatusText() const override;
  void SetLengthPanel(std::int64_t length) override;
  void SetMousePointer(MousePointer pointer) override;
  void SetToolbarButtonsEnabled(bool enabled) override;
  void SetSaveButtonEnabled(bool enabled) override;
  void ProcessEvents() override;

  // For tests: a toolbar button or menu command by its key or object name.
  QAction* Button(const QString& toolbar, const QString& key) const;
  QAction* Command(const QString& name) const;
  QToolBar* Toolbar(const QString& name) const;
  QMdiArea* MdiArea() const { return mdiArea_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildToolbars();
  void BuildMenus();
  void BuildStatusBar();
  void BuildPanels();
  void UpdateMenusForDocumentCount();
  void OnToolbarButton(const QString& toolbar, const QString& key);
  void FileNew();
  void FileOpen();
  void FileSave(bool saveAs);
  void ToggleToolbar(QToolBar* bar, const char* key);

  Application* app_ = nullptr;
  QMdiArea* mdiArea_;
  QSplitter* hsplit_ = nullptr;  // documents | side panel
  QSplitter* vsplit_ = nullptr;  // documents / error list
  QTabWidget* tabStrip1_ = nullptr;
  QWidget* picErrorList_ = nullptr;
  QComboBox* cboFind_ = nullptr;
  QMap<QString, QToolBar*> toolbars_;
  QMap<QString, QAction*> buttons_;   // "tbrFile/Save" and so on
  QMap<QString, QAction*> commands_;  // menu entries by control name
  QList<QAction*> needDocument_;      // dimmed while no document is open
  QList<QMenu*> documentMenus_;       // shown only with a document
  QLabel* panels_[7] = {};
  bool hourglass_ = false;
  QElapsedTimer sinceEvents_;
  std::string shortcutBarGroup_;
};

}  // namespace tessarine
