#include "ui/framesforms/FrameFormDialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "conventions/FavoriteUrls.h"
#include "core/Application.h"
#include "platform/MessageBoxes.h"

namespace tessarine::ui {

bool FrameFormDialog::Passed(const CheckResult& failed) {
  if (!failed) return true;
  app_.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app_.title);
  FocusField(failed);
  return false;
}

QPushButton* FrameFormDialog::NewButton(const QString& caption, const char* name) {
  auto* b = new QPushButton(caption);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

QLineEdit* FrameFormDialog::NewLine(const char* name) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  return e;
}

QComboBox* FrameFormDialog::NewUrlCombo(const char* name) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  c->setEditable(true);
  c->setInsertPolicy(QComboBox::NoInsert);
  LoadFavoriteUrls(app_);
  for (std::size_t i = 1; i < app_.settings.FavoriteURLs.size(); ++i)
    if (!app_.settings.FavoriteURLs[i].empty()) c->addItem(Q(app_.settings.FavoriteURLs[i]));
  c->setCurrentIndex(-1);
  c->setEditText("");
  return c;
}

QComboBox* FrameFormDialog::NewChoice(const char* name, const char* const* items, int count) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  for (int i = 0; i < count; ++i) c->addItem(items[i]);
  c->setCurrentIndex(-1);
  return c;
}

}  // namespace tessarine::ui
