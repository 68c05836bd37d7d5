#include "ui/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/Application.h"
#include "core/ClockText.h"
#include "core/ColorizeRun.h"
#include "core/Documents.h"
#include "core/FileSave.h"
#include "core/Startup.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/EditControl.h"
#include "platform/FileDialogs.h"
#include "platform/SettingsStore.h"
#include "ui/Commands.h"
#include "ui/DocumentForm.h"
#include "ui/KeyStatePanels.h"
#include "ui/SciEdit.h"
#include "ui/panels/FileListPanel.h"
#include "ui/panels/ScriptReferencePanel.h"
#include "ui/settings/DailyTipDialog.h"

namespace tessarine {

namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

struct ButtonDef {
  const char* key;
  const char* tooltip;
};

const ButtonDef kFileButtons[] = {
    {"New", "New Document"},     {"Open", "Open (Ctrl-O)"},        {"Save", "Save (Ctrl-S)"},
    {"Print", "Print"},          {"Cut", "Cut (Ctrl-X)"},          {"Copy", "Copy (Ctrl-C)"},
    {"Paste", "Paste (Ctrl-V)"}, {"Find", "Find/Search (Ctrl-F)"},
};
const ButtonDef kFormatButtons[] = {
    {"Bold", "Bold (Ctrl-B)"},
    {"Italic", "Italic (Ctrl-I)"},
    {"Underline", "Underline (Ctrl-U)"},
    {"Format", "Set Font size, color, etc."},
    {"Align Left", "Align Left"},
    {"Align Center", "Align Center"},
    {"Align Right", "Align Right"},
    {"Justify", "Justify"},
    {"Indent", "Indent"},
    {"BR", "Insert Line Break (Ctrl-K)"},
    {"HR", "Insert Horizontal Line (Ctrl-H)"},
    {"Comment", "Insert Comment"},
};
const ButtonDef kInsertButtons[] = {
    {"Page Properties", "Page Properties (colors, background, etc.)"},
    {"Hyperlink", "Insert Hyperlink"},
    {"Image", "Insert Image/Image Browser"},
    {"Anchor", "Insert Anchor/Bookmark target"},
    {"Special Characters", "Insert Special Characters"},
    {"Table Wizard", "Table Wizard"},
    {"Frames", "Frame Wizard"},
    {"Form Wizard", "Form Wizard"},
    {"Bulleted List", "Create Bulleted List"},
    {"Numbered List", "Create Numbered List"},
};
const ButtonDef kToolsButtons[] = {
    {"Browser1", "Browser1"},
    {"Browser2", "Browser2"},
    {"Color Tags", "Refresh HTML tag colors (F2)"},
    {"Color Picker", "Color Picker"},
    {"Spellcheck", "Spellcheck"},
    {"Check Links", "Check Links"},
    {"Validate", "Validate"},
    {"FTP", "FTP"},
};

}  // namespace

MainWindow::MainWindow() : mdiArea_(new QMdiArea) {
  setObjectName("MainWindow");
  mdiArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdiArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  BuildPanels();
  BuildToolbars();
  BuildMenus();
  BuildStatusBar();
  qApp->installEventFilter(this);
}

MainWindow::~MainWindow() {
  qApp->removeEventFilter(this);
}

void MainWindow::BuildPanels() {
  // Error list under the documents, hidden until the validator fills it.
  picErrorList_ = new QWidget;
  picErrorList_->setObjectName("picErrorList");
  auto* errLayout = new QVBoxLayout(picErrorList_);
  errLayout->setContentsMargins(2, 2, 2, 2);
  auto* header = new QHBoxLayout;
  auto* lblErrorList = new QLabel("Errors");
  lblErrorList->setObjectName("lblErrorList");
  auto* cmdCloseValidator = new QPushButton("Close");
  cmdCloseValidator->setObjectName("cmdCloseValidator");
  header->addWidget(lblErrorList, 1);
  header->addWidget(cmdCloseValidator);
  auto* txtTidyErrors = new QPlainTextEdit;
  txtTidyErrors->setObjectName("txtTidyErrors");
  txtTidyErrors->setReadOnly(true);
  errLayout->addLayout(header);
  errLayout->addWidget(txtTidyErrors);
  connect(cmdCloseValidator, &QPushButton::clicked, picErrorList_, &QWidget::hide);
  picErrorList_->hide();

  vsplit_ = new QSplitter(Qt::Vertical);
  vsplit_->setObjectName("Hsplitter");
  vsplit_->addWidget(mdiArea_);
  vsplit_->addWidget(picErrorList_);
  vsplit_->setStretchFactor(0, 1);

  // The side panel: file list and the two reference trees.
  tabStrip1_ = new QTabWidget;
  tabStrip1_->setObjectName("TabStrip1");
  auto* files = new QLabel("File list");
  files->setObjectName("picSideBar0");
  files->setAlignment(Qt::AlignCenter);
  tabStrip1_->addTab(files, "Files");
  using Reference = ScriptReferencePanel::Language;
  tabStrip1_->addTab(new ScriptReferencePanel(Reference::ASP, *this), "ASP");
  tabStrip1_->addTab(new ScriptReferencePanel(Reference::JavaScript, *this), "JavaScript");

  hsplit_ = new QSplitter(Qt::Horizontal);
  hsplit_->setObjectName("Vsplitter");
  hsplit_->addWidget(vsplit_);
  hsplit_->addWidget(tabStrip1_);
  hsplit_->setStretchFactor(0, 1);
  hsplit_->setChildrenCollapsible(false);
  vsplit_->setChildrenCollapsible(false);
  // No pane smaller than 50 units.
  tabStrip1_->setMinimumWidth(50);
  mdiArea_->setMinimumSize(50, 50);
  picErrorList_->setMinimumHeight(50);
  setCentralWidget(hsplit_);

  connect(mdiArea_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* sub) {
    if (!app_ || !sub) return;
    if (auto* form = qobject_cast<DocumentForm*>(sub->widget())) OnDocumentActivated(*app_, *form);
    if (keyStates_) keyStates_->Refresh();
  });
}

void MainWindow::BuildToolbars() {
  auto build = [this](const char* name, const char* title, const auto& defs, bool lineBreak) {
    if (lineBreak) addToolBarBreak();
    auto* bar = addToolBar(title);
    bar->setObjectName(name);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    toolbars_[name] = bar;
    for (const ButtonDef& d : defs) {
      QAction* a = bar->addAction(d.key);
      a->setObjectName(QString(name) + "/" + d.key);
      a->setToolTip(d.tooltip);
      a->setData(false);  // no command yet: BindButton gives it one
      a->setEnabled(false);
      buttons_[a->objectName()] = a;
      const bool anyDocument =
          QString(name) == "tbrFile" && (QString(d.key) == "New" || QString(d.key) == "Open");
      if (!anyDocument) needDocument_ << a;
      const QString bar_ = name, key = d.key;
      connect(a, &QAction::triggered, this, [this, bar_, key] { OnToolbarButton(bar_, key); });
    }
    return bar;
  };
  QToolBar* file = build("tbrFile", "File", kFileButtons, false);
  cboFind_ = new QComboBox;
  cboFind_->setObjectName("cboFind");
  cboFind_->setEditable(true);
  cboFind_->setMinimumWidth(140);
  file->addWidget(cboFind_);
  build("tbrFormat", "Format", kFormatButtons, false);
  build("tbrInsert", "Insert", kInsertButtons, true);
  build("tbrTools", "Tools", kToolsButtons, false);
}

void MainWindow::BuildMenus() {
  const std::pair<const char*, const char*> bar[] = {
      {"mnuFile", "&File"},     {"mnuEdit", "&Edit"}, {"mnuInsert", "&Insert"},
      {"mnuFormat", "F&ormat"}, {"mnuView", "&View"}, {"mnuTools", "&Tools"},
      {"mnuWindow", "&Window"}, {"mnuHelp", "&Help"}};
  for (const auto& [name, caption] : bar) {
    QMenu* m = menuBar()->addMenu(caption);
    m->setObjectName(name);
    menus_[name] = m;
  }
  for (const char* name : {"mnuInsert", "mnuFormat", "mnuTools", "mnuWindow"})
    documentMenus_ << menus_[name];

  QMenu* view = menus_["mnuView"];
  QMenu* bars = view->addMenu("&Toolbars");
  const std::pair<const char*, const char*> toggles[] = {
      {"tbrFile", "File"}, {"tbrFormat", "Format"}, {"tbrInsert", "Insert"}, {"tbrTools", "Tools"}};
  for (const auto& [bar, key] : toggles) {
    QToolBar* tb = toolbars_[bar];
    const QString name = QString("mnuViewToolbar") + key;
    QAction* a =
        AddCommand(bars, name, key, false, [this, tb, key = key] { ToggleToolbar(tb, key); });
    a->setCheckable(true);
    a->setChecked(true);
  }
  QAction* fileList = AddCommand(view, "mnuViewFileList", "File &List", false, [this] {
    tabStrip1_->setVisible(!tabStrip1_->isVisible());
    commands_["mnuViewFileList"]->setChecked(tabStrip1_->isVisible());
  });
  fileList->setCheckable(true);
  AddCommand(view, "mnuPreferences", "&Preferences...", false, [] {})->setEnabled(false);

  AddCommand(menus_["mnuTools"], "mnuColorize", "&Refresh Tag Colors", true, [this] {
    if (app_) mnuColorize(*app_, false);
  })->setShortcut(Qt::Key_F2);
  BindButton("tbrTools", "Color Tags", [this] { mnuColorize(*app_, true); });

  QMenu* window = menus_["mnuWindow"];
  const char* arrange[] = {"&Cascade", "Tile &Horizontally", "Tile &Vertically", "&Arrange Icons"};
  for (int i = 0; i < 4; ++i)
    AddCommand(window, QString("mnuWindowArrange%1").arg(i), arrange[i], true, [this, i] {
      if (app_) mnuWindowArrange(*app_, i);
    });
  window->addSeparator();
  AddCommand(window, "mnuWindowMove0", "Move to &Previous document    Ctrl+Tab", true, [this] {
    if (app_) mnuWindowMove(*app_, 0);
  });
  AddCommand(window, "mnuWindowMove1", "Move to &Next document          Shift+Ctrl+Tab", true,
             [this] {
               if (app_) mnuWindowMove(*app_, 1);
             });
  window->addSeparator();
  AddCommand(window, "mnuCloseAll", "Cl&ose All", true, [this] {
    if (app_) CloseAllDocuments(*app_);
  });

  AddCommand(menus_["mnuHelp"], "mnuAbout", "&About Tessarine", false, [] {});

  BuildFileCommands(*this);
  BuildEditCommands(*this);
  BuildTagCommands(*this);
  BuildProgramCommands(*this);
  BuildStyleCommands(*this);
  BuildLinkImageCommands(*this);
  BuildListTableCommands(*this);
  BuildFrameFormCommands(*this);
  BuildEffectCommands(*this);
  BuildSiteManagerCommands(*this);
  BuildSiteToolCommands(*this);
  BuildSettingsCommands(*this);
  BuildEditTagCommands(*this);
  BuildHelpCommands(*this);
  BuildViewCommands(*this);
}

QMenu* MainWindow::Menu(const QString& name) const {
  return menus_.value(name);
}

QAction* MainWindow::AddCommand(QMenu* menu, const QString& name, const QString& caption,
                                bool needsDocument, std::function<void()> slot) {
  QAction* a = menu->addAction(caption);
  a->setObjectName(name);
  commands_[name] = a;
  if (needsDocument) needDocument_ << a;
  connect(a, &QAction::triggered, this, [slot = std::move(slot)] { slot(); });
  return a;
}

QAction* MainWindow::LiveCommand(const QString& name, bool needsDocument,
                                 std::function<void()> slot) {
  QAction* a = commands_.value(name);
  if (!a) return nullptr;
  disconnect(a, &QAction::triggered, this, nullptr);
  connect(a, &QAction::triggered, this, [slot = std::move(slot)] { slot(); });
  if (needsDocument && !needDocument_.contains(a)) needDocument_ << a;
  a->setEnabled(!needsDocument || ActiveDocumentWindow());
  return a;
}

void MainWindow::RegisterDialog(const QString& name, std::function<void(const std::string&)> show) {
  dialogs_[name] = std::move(show);
}

bool MainWindow::ShowDialog(const std::string& name) {
  const std::size_t colon = name.find(':');
  const QString key = QString::fromStdString(name.substr(0, colon));
  auto it = dialogs_.find(key);
  if (it == dialogs_.end()) return false;
  it.value()(colon == std::string::npos ? std::string() : name.substr(colon + 1));
  return true;
}

void MainWindow::BindButton(const QString& toolbar, const QString& key,
                            std::function<void()> slot) {
  QAction* a = buttons_.value(toolbar + "/" + key);
  if (!a) return;
  a->setData(true);
  a->setEnabled(!needDocument_.contains(a) || ActiveDocumentWindow());
  buttonCommands_[a->objectName()] = std::move(slot);
}

void MainWindow::SetStatusPanel(int index, const QString& text) {
  if (index >= 1 && index <= 6 && panels_[index]) panels_[index]->setText(text);
}

void MainWindow::BuildStatusBar() {
  const char* tips[] = {nullptr,
                        nullptr,
                        nullptr,
                        nullptr,
                        "Double-click to insert current time and date",
                        "CapsLock",
                        "Insert/Overwrite"};
  for (int i = 1; i <= 6; ++i) {
    if (i == 2) continue;  // no second panel
    auto* l = new QLabel;
    l->setObjectName(QString("StatusBar1Panel%1").arg(i));
    if (tips[i]) l->setToolTip(tips[i]);
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panels_[i] = l;
    if (i == 1)
      statusBar()->addWidget(l, 1);
    else
      statusBar()->addPermanentWidget(l);
  }
  panels_[1]->setText("Press F1 for Help");
  panels_[3]->setText("0 bytes");
  panels_[4]->setText("Line: 1");
  panels_[5]->setText("CAPS");
  panels_[6]->setText("INS");
  // Panel 4 stands for the caret line; the clock follows it.
  auto* clock = new QLabel;
  clock->setObjectName("StatusBar1Clock");
  clock->setToolTip("Double-click to insert current time and date");
  clock->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  clock->installEventFilter(this);
  statusBar()->insertPermanentWidget(2, clock);
  auto tick = [clock] {
    const std::time_t now = std::time(nullptr);
    std::tm t{};
    localtime_r(&now, &t);
    clock->setText(Q(ClockPanelText(t)));
  };
  tick();
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, tick);
  timer->start(10000);
  panels_[5]->setToolTip("CapsLock");
  panels_[6]->setToolTip("Insert/Overwrite");
  keyStates_ = new KeyStatePanels(
      panels_[5], panels_[6],
      [this]() -> SciEdit* {
        auto* form = dynamic_cast<DocumentForm*>(ActiveDocumentWindow());
        return form ? &form->Editor() : nullptr;
      },
      this);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick && watched->objectName() == "StatusBar1Clock") {
    if (app_ && app_->ActiveEdit())
      app_->ActiveEdit()->ReplaceSel(ClockInsertText(app_->clock.Now()));
    return true;
  }
  // A pass hides the control, so Esc may reach another widget: it still cancels.
  if (event->type() == QEvent::KeyPress && app_ && app_->colorizing.ColorizingInProgress == 1) {
    const auto* k = static_cast<QKeyEvent*>(event);
    if (k->key() == Qt::Key_Escape) OnDocumentKeyPress(*app_, 27);
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::Load(Application& app, const std::string& commandLine) {
  app_ = &app;
  FirstRunStep(app, &RegisterEditVerbs);
  app.LoadSettings();
  SettingsStore& s = app.store;

  const QRect screen = QGuiApplication::primaryScreen()
                           ? QGuiApplication::primaryScreen()->availableGeometry()
                           : QRect(0, 0, 1024, 768);
  const WindowPlacement p = ComputeWindowPlacement(s, screen.width(), screen.height());
  setGeometry(p.x, p.y, std::max(p.width, 200), std::max(p.height, 150));
  // A window as large as the screen is a maximised one, as the desktop knows it.
  if (p.fillsScreen) showMaximized();

  const std::string listWidth = s.GetSetting("Window", "FileListWidth", "");
  // A first start gives the side panel room for all its tab captions.
  const int side = listWidth.empty()
                       ? std::max(320, tabStrip1_->tabBar()->sizeHint().width() + 8)
                       : std::max(50, static_cast<int>(Val(listWidth)) / kTwipsPerPixel);
  if (app.settings.AlignFileListLeft) hsplit_->insertWidget(0, tabStrip1_);
  const int total = std::max(p.width, 400);
  hsplit_->setSizes(app.settings.AlignFileListLeft ? QList<int>{side, total - side}
                                                   : QList<int>{total - side, side});
  const int tab = static_cast<int>(Val(s.GetSetting("Window", "SideBarTab", "2")));
  if (tab >= 1 && tab <= tabStrip1_->count()) tabStrip1_->setCurrentIndex(tab - 1);
  tabStrip1_->setVisible(app.settings.ShowFileList);
  commands_["mnuViewFileList"]->setChecked(app.settings.ShowFileList);
  shortcutBarGroup_ = s.GetSetting("Miscellaneous", "DefaultShortcutBarGroup", "");

  for (const char* key : {"File", "Format", "Insert", "Tools"}) {
    const bool off = QString::fromStdString(s.GetSetting("Toolbars", key, "on"))
                         .compare("off", Qt::CaseInsensitive) == 0;
    toolbars_[QString("tbr") + key]->setVisible(!off);
    commands_[QString("mnuViewToolbar") + key]->setChecked(!off);
  }

  for (int i = 1; i <= 5; ++i) {
    const std::string k = s.GetSetting("Miscellaneous", "SearchKeyword" + std::to_string(i), "");
    cboFind_->addItem(Q(k));
  }
  cboFind_->setEditText("");
  QDir::setCurrent(Q(app.settings.WorkingDirectory));
  for (const auto& f : onSettingsLoaded_) f();

  setWindowTitle("Tessarine 2002[*]");
  ShowStartScreenAtStart(*this);
  ShowDailyTipAtStart(*this);
  OpenStartupDocuments(app, commandLine);
  UpdateMenusForDocumentCount();
  if (EditControl* e = app.ActiveEdit()) {
    e->SetVisible(true);
    e->SetFocus();
  }
}

DocumentWindow* MainWindow::CreateDocumentWindow() {
  auto* form = new DocumentForm(*app_);
  QMdiSubWindow* sub = mdiArea_->addSubWindow(form);
  sub->setAttribute(Qt::WA_DeleteOnClose);
  form->SetSubWindow(sub);
  connect(sub, &QObject::destroyed, this,
          [this] { QTimer::singleShot(0, this, [this] { UpdateMenusForDocumentCount(); }); });
  sub->show();
  UpdateMenusForDocumentCount();
  for (const auto& f : onNewWindow_) f(*form);
  return form;
}

DocumentWindow* MainWindow::ActiveDocumentWindow() {
  QMdiSubWindow* sub = mdiArea_->currentSubWindow();
  return sub ? qobject_cast<DocumentForm*>(sub->widget()) : nullptr;
}

void MainWindow::ActivateNextDocument(bool previous) {
  if (previous)
    mdiArea_->activatePreviousSubWindow();
  else
    mdiArea_->activateNextSubWindow();
}

void MainWindow::Arrange(WindowArrangement how) {
  switch (how) {
    case WindowArrangement::Cascade: {
      // Each window keeps two thirds of the area, stepped down and right from the last.
      const QList<QMdiSubWindow*> subs = mdiArea_->subWindowList(QMdiArea::StackingOrder);
      const QRect area = mdiArea_->viewport()->rect();
      const int step = style()->pixelMetric(QStyle::PM_TitleBarHeight) + 4;
      const int w = std::max(area.width() * 2 / 3, 200), h = std::max(area.height() * 2 / 3, 150);
      for (int i = 0; i < static_cast<int>(subs.size()); ++i) {
        subs[i]->showNormal();
        const int k = i % std::max(1, (area.height() - h) / step + 1);
        subs[i]->setGeometry(k * step, k * step, w, h);
        subs[i]->raise();
      }
      break;
    }
    case WindowArrangement::TileHorizontal:
    case WindowArrangement::TileVertical: {
      // Horizontally: one above the other, full width; vertically: side by side.
      const QList<QMdiSubWindow*> subs = mdiArea_->subWindowList(QMdiArea::StackingOrder);
      const QRect area = mdiArea_->viewport()->rect();
      const int n = static_cast<int>(subs.size());
      for (QMdiSubWindow* sub : subs) sub->showNormal();
      for (int i = 0; i < n; ++i) {
        if (how == WindowArrangement::TileHorizontal) {
          const int h = area.height() / n;
          subs[i]->setGeometry(0, i * h, area.width(), h);
        } else {
          const int w = area.width() / n;
          subs[i]->setGeometry(i * w, 0, w, area.height());
        }
      }
      break;
    }
    case WindowArrangement::ArrangeIcons:
      break;  // no icons on this desktop
  }
}

void MainWindow::SetStatusText(const std::string& text) {
  panels_[1]->setText(Q(text));
}
std::string MainWindow::StatusText() const {
  return panels_[1]->text().toStdString();
}
void MainWindow::SetLengthPanel(std::int64_t length) {
  panels_[3]->setText(QString::number(length) + " bytes");
}

void MainWindow::SetLinePanel(std::int64_t line) {
  panels_[4]->setText("Line: " + QString::number(line));
}

void MainWindow::SetMousePointer(MousePointer pointer) {
  const bool wait = pointer == MousePointer::Hourglass;
  if (wait == hourglass_) return;
  hourglass_ = wait;
  if (wait)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

void MainWindow::SetToolbarButtonsEnabled(bool enabled) {
  for (QAction* a : needDocument_)
    a->setEnabled(enabled && (!a->data().isValid() || a->data().toBool()));
}

void MainWindow::SetSaveButtonEnabled(bool enabled) {
  // The control knows of edits that the change flag missed.
  DocumentWindow* active = ActiveDocumentWindow();
  const bool modified = active && active->Edit().IsModified();
  buttons_["tbrFile/Save"]->setEnabled(enabled || modified);
  setWindowModified(active && app_ && DocumentNeedsSaving(*app_, app_->documents.SlotOf(active)));
  if (auto* form = dynamic_cast<DocumentForm*>(active)) form->setWindowModified(isWindowModified());
}

void MainWindow::ProcessEvents() {
  QCoreApplication::processEvents();
}

QAction* MainWindow::Button(const QString& toolbar, const QString& key) const {
  return buttons_.value(toolbar + "/" + key);
}
QAction* MainWindow::Command(const QString& name) const {
  return commands_.value(name);
}
QToolBar* MainWindow::Toolbar(const QString& name) const {
  return toolbars_.value(name);
}

void MainWindow::UpdateMenusForDocumentCount() {
  const bool any = !mdiArea_->subWindowList().isEmpty();
  for (QMenu* m : documentMenus_) m->menuAction()->setVisible(any);
  for (QAction* a : documentOnly_) a->setVisible(any);
  // With no document there is no length and no line to show.
  if (!any) {
    panels_[3]->clear();
    panels_[4]->clear();
    setWindowModified(false);
  }
}

void MainWindow::PlaceSidePanel() {
  if (!app_) return;
  const bool left = app_->settings.AlignFileListLeft;
  if ((hsplit_->indexOf(tabStrip1_) == 0) != left) {
    // The panel keeps its width on the other side.
    const QList<int> sizes = hsplit_->sizes();
    hsplit_->insertWidget(left ? 0 : 1, tabStrip1_);
    if (sizes.size() == 2) hsplit_->setSizes({sizes[1], sizes[0]});
  }
  tabStrip1_->setVisible(app_->settings.ShowFileList);
  commands_["mnuViewFileList"]->setChecked(app_->settings.ShowFileList);
}

void MainWindow::OnToolbarButton(const QString& toolbar, const QString& key) {
  if (!app_) return;
  const auto it = buttonCommands_.constFind(toolbar + "/" + key);
  if (it != buttonCommands_.constEnd()) (*it)();
}

void MainWindow::ToggleToolbar(QToolBar* bar, const char* key) {
  const bool show = !bar->isVisible();
  bar->setVisible(show);
  if (app_) app_->store.SaveSetting("Toolbars", key, show ? "on" : "off");
  commands_[QString("mnuViewToolbar") + key]->setChecked(show);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!app_) return QMainWindow::closeEvent(event);
  WindowGeometry g;
  const QRect r = normalGeometry().isValid() ? normalGeometry() : geometry();
  g.left = static_cast<long long>(r.x()) * kTwipsPerPixel;
  g.top = static_cast<long long>(r.y()) * kTwipsPerPixel;
  g.width = static_cast<long long>(r.width()) * kTwipsPerPixel;
  g.height = static_cast<long long>(r.height()) * kTwipsPerPixel;
  const QList<int> sizes = hsplit_->sizes();
  const int sideIndex = hsplit_->indexOf(tabStrip1_);
  if (sideIndex >= 0 && sideIndex < sizes.size())
    g.fileListWidth = std::to_string(static_cast<long long>(sizes[sideIndex]) * kTwipsPerPixel);
  g.file1Top = app_->store.GetSetting("Window", "File1Top", "");
  auto* list = tabStrip1_->findChild<FileListPanel*>("fileListPanel");
  if (list && list->SplitTop() >= 0)
    g.file1Top = std::to_string(static_cast<long long>(list->SplitTop()) * kTwipsPerPixel);
  g.sideBarTab = std::to_string(tabStrip1_->currentIndex() + 1);
  g.shortcutBarGroup = shortcutBarGroup_;
  if (!CloseAllForExit(*app_)) {
    event->ignore();
    return;
  }
  SaveWindowGeometry(app_->store, g, isMinimized());
  event->accept();
}

}  // namespace tessarine
