#include "ui/styles/StyleManagerDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "platform/MessageBoxes.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleEditor.h"
#include "styles/StyleManager.h"
#include "ui/styles/StyleEditorDialog.h"
#include "ui/wizards/WizardDialog.h"

namespace tessarine::ui {

namespace {

QPushButton* Button(const char* name, const char* caption) {
  auto* b = new QPushButton(caption);
  b->setObjectName(name);
  return b;
}

QLabel* Heading(const char* text) {
  auto* label = new QLabel(text);
  QFont big = label->font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.3);
  label->setFont(big);
  return label;
}

}  // namespace

StyleManagerDialog::StyleManagerDialog(Application& app, std::int16_t mode, QWidget* parent)
    : QDialog(parent), app_(app) {
  setObjectName("StyleManagerDialog");
  setWindowTitle("Cascading Style Sheet Manager");
  auto* layout = new QVBoxLayout(this);
  pages_ = new QStackedWidget;
  layout->addWidget(pages_);

  // The list page.
  auto* listPage = new QWidget;
  listPage->setObjectName("listPage");
  auto* listLayout = new QVBoxLayout(listPage);
  listLayout->setContentsMargins(0, 0, 0, 0);
  auto* text = new QLabel(
      "Create or edit styles for your Web page using the features below.  You can then apply "
      "the styles in order to format the text in your Web page.");
  text->setWordWrap(true);
  listLayout->addWidget(text);
  auto* middle = new QHBoxLayout;
  auto* lists = new QVBoxLayout;
  styleList_ = new QListWidget;
  styleList_->setObjectName("styleList");
  styleList_->setToolTip("Doubleclick to edit");
  lists->addWidget(new QLabel("Styles"));
  lists->addWidget(styleList_, 1);
  lists->addWidget(new QLabel("Style definition"));
  definition_ = new QPlainTextEdit;
  definition_->setObjectName("definitionText");
  definition_->setReadOnly(true);
  lists->addWidget(definition_, 1);
  middle->addLayout(lists, 1);
  auto* side = new QVBoxLayout;
  addButton_ = Button("addButton", "&Add...");
  editButton_ = Button("editButton", "&Edit...");
  removeButton_ = Button("removeButton", "&Remove");
  applyButton_ = Button("applyButton", "Apply &Style...");
  auto* preview = Button("previewButton", "&Preview");
  for (QPushButton* b : {addButton_, editButton_, removeButton_, applyButton_, preview})
    side->addWidget(b);
  side->addStretch();
  okButton_ = Button("okButton", "OK");
  auto* cancel = Button("cancelButton", "Cancel");
  side->addWidget(okButton_);
  side->addWidget(cancel);
  middle->addLayout(side);
  listLayout->addLayout(middle, 1);
  pages_->addWidget(listPage);

  // The apply page.
  auto* applyPage = new QWidget;
  applyPage->setObjectName("applyPage");
  auto* applyLayout = new QVBoxLayout(applyPage);
  applyLayout->addWidget(Heading("Apply a Style"));
  auto* applyText =
      new QLabel("Select one of the options below to apply this style in your Web page.");
  applyText->setWordWrap(true);
  applyLayout->addWidget(applyText);
  spanOption_ = new QRadioButton("Insert this style using <SPAN> tags");
  spanOption_->setObjectName("spanOption");
  divOption_ = new QRadioButton("Insert this style using <DIV> tags");
  divOption_->setObjectName("divOption");
  cursorOption_ = new QRadioButton("Insert this style at the current cursor location");
  cursorOption_->setObjectName("cursorOption");
  for (QRadioButton* r : {spanOption_, divOption_, cursorOption_}) applyLayout->addWidget(r);
  applyLayout->addStretch();
  auto* applyButtons = new QHBoxLayout;
  applyButtons->addStretch();
  auto* applyOk = Button("applyOkButton", "OK");
  auto* applyCancel = Button("applyCancelButton", "Cancel");
  applyButtons->addWidget(applyOk);
  applyButtons->addWidget(applyCancel);
  applyLayout->addLayout(applyButtons);
  pages_->addWidget(applyPage);

  connect(styleList_, &QListWidget::itemSelectionChanged, this, &StyleManagerDialog::OnSelection);
  connect(styleList_, &QListWidget::itemDoubleClicked, this, &StyleManagerDialog::EditStyle);
  connect(addButton_, &QPushButton::clicked, this, &StyleManagerDialog::AddStyle);
  connect(editButton_, &QPushButton::clicked, this, &StyleManagerDialog::EditStyle);
  connect(removeButton_, &QPushButton::clicked, this, &StyleManagerDialog::RemoveStyle);
  connect(applyButton_, &QPushButton::clicked, this, [this] { pages_->setCurrentIndex(1); });
  connect(preview, &QPushButton::clicked, this,
          [this] { ShowStylePreview(app_, ManagerPreviewPage(app_.styles.Styles)); });
  connect(okButton_, &QPushButton::clicked, this, [this] {
    SaveStyles(app_);
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(applyOk, &QPushButton::clicked, this, &StyleManagerDialog::ApplySelected);
  connect(applyCancel, &QPushButton::clicked, this, [this] { pages_->setCurrentIndex(0); });

  app_.styles.StyleDialogMode = mode;
  editButton_->setEnabled(false);
  removeButton_->setEnabled(false);
  applyButton_->setEnabled(false);
  resize(520, 420);
}

bool StyleManagerDialog::Load() {
  std::vector<std::string> listed;
  if (!LoadStyles(app_, listed)) return false;
  for (const std::string& selector : listed) styleList_->addItem(Q(selector));
  SetManagerMode(app_.styles.StyleDialogMode);
  pages_->setCurrentIndex(0);
  return true;
}

void StyleManagerDialog::Run(Application& app, std::int16_t mode, QWidget* parent) {
  StyleManagerDialog dialog(app, mode, parent);
  if (dialog.Load()) dialog.exec();
}

void StyleManagerDialog::SetManagerMode(std::int16_t mode) {
  app_.styles.StyleDialogMode = mode;
  const bool full = mode != kApplyStyle;
  for (QPushButton* b : {removeButton_, addButton_, editButton_, okButton_}) b->setVisible(full);
  DocumentWindow* w = app_.ActiveDocument();
  applyButton_->setVisible(!(w && IsStyleSheetCaption(w->Caption())));
}

std::string StyleManagerDialog::Selected() const {
  const auto selected = styleList_->selectedItems();
  return selected.isEmpty() ? std::string() : S(selected.front()->text());
}

void StyleManagerDialog::OnSelection() {
  const std::string name = Selected();
  editButton_->setEnabled(!name.empty());
  removeButton_->setEnabled(!name.empty());
  applyButton_->setEnabled(CanApplyStyle(name));
  std::string definition;
  if (auto style = app_.styles.Styles.Item(name)) {
    definition = style->Definition;
    FormatStyleDefinition(definition, kStyleForDisplay);
  }
  definition_->setPlainText(Q(definition));
}

void StyleManagerDialog::Message(const char* text) {
  app_.messages.Show(text, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
}

void StyleManagerDialog::AddStyle() {
  StyleEditorDialog editor(app_, kAddManagedStyle, "", this);
  if (editorHook_) editorHook_(editor);
  editor.exec();
  if (!editor.AddedName().empty()) styleList_->addItem(Q(editor.AddedName()));
}

void StyleManagerDialog::EditStyle() {
  const std::string name = Selected();
  if (name.empty()) {
    Message("Please select a style from the list in order to edit it.");
    return;
  }
  StyleEditorDialog editor(app_, kEditManagedStyle, name, this);
  if (auto style = app_.styles.Styles.Item(name)) editor.LoadStyle(*style);
  if (editorHook_) editorHook_(editor);
  editor.exec();
  OnSelection();
}

void StyleManagerDialog::RemoveStyle() {
  const std::string name = Selected();
  if (name.empty()) {
    Message("Please select a style from the list in order to delete it.");
    return;
  }
  if (app_.messages.Show("Are you sure you want to delete the selected style?", MsgButtons::YesNo,
                         MsgIcon::Question, app_.title) != MsgAnswer::Yes)
    return;
  if (auto style = app_.styles.Styles.Item(name)) style->Status = kStyleDeleted;
  delete styleList_->selectedItems().front();
  definition_->clear();
}

void StyleManagerDialog::ApplySelected() {
  const ApplyMethod method = spanOption_->isChecked()     ? ApplyMethod::Span
                             : divOption_->isChecked()    ? ApplyMethod::Div
                             : cursorOption_->isChecked() ? ApplyMethod::AtCursor
                                                          : ApplyMethod::None;
  if (const CheckResult failed = ApplyStyle(app_, Selected(), method)) {
    Message(failed->message.c_str());
    return;
  }
  accept();
}

void StyleManagerDialog::done(int result) {
  QDialog::done(result);
  app_.styles.Reset();  // the working copy goes with the dialog
}

}  // namespace tessarine::ui
