#pragma once
// The main window: the document frame, its four toolbars, side panel, error list and
// status bar. A thin assembly: the decisions live in the logic.

#include <QElapsedTimer>
#include <QMainWindow>
#include <QMap>
#include <functional>
#include <vector>

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
class DocumentForm;
class KeyStatePanels;

class MainWindow : public QMainWindow, public Frame {
  Q_OBJECT
 public:
  MainWindow();
  ~MainWindow() override;
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
  void SetLinePanel(std::int64_t line) override;
  void SetMousePointer(MousePointer pointer) override;
  void SetToolbarButtonsEnabled(bool enabled) override;
  void SetSaveButtonEnabled(bool enabled) override;
  void ProcessEvents() override;

  // A toolbar button or menu command by its key or object name.
  QAction* Button(const QString& toolbar, const QString& key) const;
  QAction* Command(const QString& name) const;
  QToolBar* Toolbar(const QString& name) const;
  QMdiArea* MdiArea() const { return mdiArea_; }

  // For the subsystems' builders (ui/Commands.h): each fills its own menus and buttons.
  Application* App() const { return app_; }
  // "mnuFile", "mnuEdit", "mnuInsert", "mnuFormat", "mnuView", "mnuTools", "mnuWindow",
  // "mnuHelp".
  QMenu* Menu(const QString& name) const;
  QAction* AddCommand(QMenu* menu, const QString& name, const QString& caption, bool needsDocument,
                      std::function<void()> slot);
  // Gives an entry that another builder placed (dimmed, waiting for its dialog) its
  // command, and enables it as AddCommand would have.
  QAction* LiveCommand(const QString& name, bool needsDocument, std::function<void()> slot);
  // Dialogs that tag commands, the shortcut bar and the other windows open by name; each
  // builder registers its own. A name such as "FormElement:3" reaches the entry
  // "FormElement" with the argument "3". False when no dialog has that name.
  void RegisterDialog(const QString& name, std::function<void(const std::string&)> show);
  bool ShowDialog(const std::string& name);
  bool HasDialog(const QString& name) const { return dialogs_.contains(name); }
  QStringList DialogNames() const { return dialogs_.keys(); }
  // Gives a toolbar button its command and enables it (while a document is open, unless
  // it is New or Open).
  void BindButton(const QString& toolbar, const QString& key, std::function<void()> slot);
  // Menus or entries shown only while a document is open.
  void AddDocumentMenu(QMenu* menu) { documentMenus_ << menu; }
  void AddDocumentOnlyCommand(QAction* a) { documentOnly_ << a; }
  QComboBox* FindCombo() const { return cboFind_; }
  QTabWidget* SidePanel() const { return tabStrip1_; }
  void SetStatusPanel(int index, const QString& text);
  // Run after the settings are loaded at start, before the first document opens.
  void OnSettingsLoaded(std::function<void()> f) { onSettingsLoaded_.push_back(std::move(f)); }
  // Run for each new document window, after it is made and shown.
  void OnNewDocumentWindow(std::function<void(DocumentForm&)> f) {
    onNewWindow_.push_back(std::move(f));
  }
  void UpdateMenusForDocumentCount();
  // The side panel's side and visibility, as the loaded settings have them.
  void PlaceSidePanel();
  // The open group of the shortcut bar, saved when the frame closes.
  void SetShortcutBarGroup(const std::string& group) { shortcutBarGroup_ = group; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildToolbars();
  void BuildMenus();
  void BuildStatusBar();
  void BuildPanels();
  void OnToolbarButton(const QString& toolbar, const QString& key);
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
  QList<QAction*> documentOnly_;      // entries shown only with a document
  QMap<QString, QMenu*> menus_;
  QMap<QString, std::function<void()>> buttonCommands_;
  QMap<QString, std::function<void(const std::string&)>> dialogs_;
  std::vector<std::function<void()>> onSettingsLoaded_;
  std::vector<std::function<void(DocumentForm&)>> onNewWindow_;
  QLabel* panels_[7] = {};
  KeyStatePanels* keyStates_ = nullptr;
  bool hourglass_ = false;
  QElapsedTimer sinceEvents_;
  std::string shortcutBarGroup_;
};

}  // namespace tessarine
