#include "ui/effects/JumpMenuDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "ui/effects/JumpMenuItemDialog.h"

namespace tessarine::ui {

JumpMenuDialog::JumpMenuDialog(Application& app, QWidget* parent)
    : EffectDialog(app, "JumpMenuDialog", "Dropdown Menu", parent) {
  auto* layout = new QVBoxLayout(this);
  AddHeading(layout, "Dropdown Menu",
             "Create dropdown menus with menu items that link to other Web pages.  Get started "
             "by clicking the 'Add Menu Item' button below.");

  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel("Menu items:"), 0, 0);
  grid->addWidget(new QLabel("Link to this URL:"), 0, 1);
  menuItemList_ = new QListWidget;
  menuItemList_->setObjectName("menuItemList");
  urlList_ = new QListWidget;
  urlList_->setObjectName("urlList");
  grid->addWidget(menuItemList_, 1, 0);
  grid->addWidget(urlList_, 1, 1);
  auto* buttons = new QVBoxLayout;
  auto button = [&](const char* name, const char* caption) {
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    b->setAutoDefault(false);
    buttons->addWidget(b);
    return b;
  };
  QPushButton* add = button("addItemButton", "&Add Menu Item...");
  QPushButton* separator = button("addSeparatorButton", "Add &separator");
  QPushButton* edit = button("editItemButton", "&Edit...");
  QPushButton* remove = button("removeItemButton", "&Remove");
  QPushButton* up = button("moveUpButton", "Move &Up");
  QPushButton* down = button("moveDownButton", "Move &Down");
  buttons->addStretch();
  grid->addLayout(buttons, 1, 2);
  layout->addLayout(grid, 1);

  dropdownChoice_ = new QRadioButton("Display as a dropdown menu");
  dropdownChoice_->setObjectName("dropdownChoice");
  dropdownChoice_->setChecked(true);
  allItemsChoice_ = new QRadioButton("Display all menu items");
  allItemsChoice_->setObjectName("allItemsChoice");
  layout->addWidget(dropdownChoice_);
  layout->addWidget(allItemsChoice_);
  layout->addWidget(new QLabel("Target frame (optional, only if using Frames):"));
  targetCombo_ = new QComboBox;
  targetCombo_->setObjectName("targetCombo");
  targetCombo_->setEditable(true);
  for (const std::string& t : JumpMenuTargets()) targetCombo_->addItem(Q(t));
  targetCombo_->setCurrentText("self");
  layout->addWidget(targetCombo_);

  // A row chosen in one list is chosen in the other.
  connect(menuItemList_, &QListWidget::currentRowChanged, urlList_,
          [this](int row) { urlList_->setCurrentRow(row); });
  connect(urlList_, &QListWidget::currentRowChanged, menuItemList_,
          [this](int row) { menuItemList_->setCurrentRow(row); });

  connect(add, &QPushButton::clicked, this, [this] { EditRow(-1); });
  connect(separator, &QPushButton::clicked, this, [this] {
    menu_.AddSeparator();
    Refill(static_cast<int>(menu_.rows.size()) - 1);
  });
  connect(edit, &QPushButton::clicked, this, [this] {
    if (!Refuse(menu_.CheckEdit(Selected()))) EditRow(Selected());
  });
  connect(remove, &QPushButton::clicked, this, [this] {
    const int row = Selected();
    if (Refuse(menu_.CheckRemove(row))) return;
    menu_.Remove(row);
    Refill(std::min(row, static_cast<int>(menu_.rows.size()) - 1));
  });
  connect(up, &QPushButton::clicked, this, [this] {
    if (!Refuse(menu_.CheckMoveUp(Selected()))) Refill(menu_.MoveUp(Selected()));
  });
  connect(down, &QPushButton::clicked, this, [this] {
    if (!Refuse(menu_.CheckMoveDown(Selected()))) Refill(menu_.MoveDown(Selected()));
  });

  AddButtons(layout, "doneButton", [this] {
    if (Refuse(Model().Validate())) return false;
    const tessarine::JumpMenu m = Model();
    app_.wizards.HeadInsert = m.Script();
    app_.wizards.BodyInsert = m.Form();
    return true;
  });
  if (auto* done = findChild<QPushButton*>("doneButton")) done->setText("&Done");
  setMinimumSize(520, 420);
}

int JumpMenuDialog::Selected() const {
  const int row = menuItemList_->currentRow();
  if (row < 0 || !menuItemList_->item(row)->isSelected()) return -1;
  return row;
}

void JumpMenuDialog::Refill(int selected) {
  menuItemList_->clear();
  urlList_->clear();
  for (const JumpMenuRow& row : menu_.rows) {
    menuItemList_->addItem(Q(row.text));
    urlList_->addItem(Q(row.url));
  }
  menuItemList_->setCurrentRow(selected);
}

void JumpMenuDialog::EditRow(int row) {
  const bool adding = row < 0 || row >= static_cast<int>(menu_.rows.size());
  JumpMenuItemDialog item(app_, adding ? JumpMenuRow{} : menu_.rows[row], this);
  if (item.exec() != QDialog::Accepted) return;
  if (adding) {
    menu_.rows.push_back(item.Row());
    row = static_cast<int>(menu_.rows.size()) - 1;
  } else {
    menu_.rows[row] = item.Row();
  }
  Refill(row);
}

tessarine::JumpMenu JumpMenuDialog::Model() const {
  tessarine::JumpMenu m = menu_;
  m.display = allItemsChoice_->isChecked() ? JumpMenuDisplay::AllItems : JumpMenuDisplay::Dropdown;
  m.target = S(targetCombo_->currentText());
  return m;
}

}  // namespace tessarine::ui
