#include "ui/wizards/ListDialogs.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "wizards/ListItems.h"

namespace tessarine::ui {

namespace {

QLineEdit* Field(const char* name, const QString& text = {}) {
  auto* e = new QLineEdit(text);
  e->setObjectName(name);
  return e;
}

QPushButton* Button(const char* name, const QString& caption) {
  auto* b = new QPushButton(caption);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

// The foot of a list dialog: Add, Done and Cancel. Add stays the default until the first
// item is in; Done is the default from then on.
struct ListButtons {
  QPushButton* add;
  QPushButton* done;
};
ListButtons AddListButtons(QDialog* dialog, QBoxLayout* layout) {
  auto* row = new QHBoxLayout;
  ListButtons b{Button("addItem", "&Add"), Button("doneButton", "&Done")};
  auto* cancel = Button("cancelButton", "Cancel");
  b.add->setDefault(true);
  row->addStretch();
  row->addWidget(b.add);
  row->addWidget(b.done);
  row->addWidget(cancel);
  layout->addLayout(row);
  QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
  return b;
}

void AfterAdd(const ListButtons& b, QLineEdit* first) {
  first->setFocus();
  b.add->setDefault(false);
  b.done->setDefault(true);
}

}  // namespace

// --- Numbered ---

NumberedListDialog::NumberedListDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "NumberedListDialog", "Numbered List", parent) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Enter text for each Numbered list item:"));
  itemText_ = Field("itemText", Q(SelectionForFirstItem(app)));
  layout->addWidget(itemText_);
  auto* form = new QFormLayout;
  numberType_ = new QComboBox;
  numberType_->setObjectName("numberType");
  for (const NumberType& t : kNumberTypes) numberType_->addItem(t.row);
  form->addRow("Number type:", numberType_);
  startNumber_ = Field("startNumber", "1");
  auto* upDown = new QSpinBox;
  upDown->setObjectName("startNumberUpDown");
  upDown->setRange(1, 32767);
  upDown->setFixedWidth(18);
  connect(upDown, &QSpinBox::valueChanged, this,
          [this](int v) { startNumber_->setText(QString::number(v)); });
  auto* start = new QHBoxLayout;
  start->addWidget(startNumber_, 1);
  start->addWidget(upDown);
  form->addRow("Start with the number:", start);
  layout->addLayout(form);
  const ListButtons buttons = AddListButtons(this, layout);
  connect(buttons.add, &QPushButton::clicked, this, [this, buttons] {
    Read();
    const CheckResult failed = NumberedList_Add(app_, form_);
    itemText_->setText(Q(form_.itemText));
    if (failed) return FocusField(failed);
    AfterAdd(buttons, itemText_);
  });
  connect(buttons.done, &QPushButton::clicked, this, [this] {
    Read();
    const CheckResult failed = NumberedList_Done(app_, form_);
    if (failed) return FocusField(failed);
    accept();
  });
}

void NumberedListDialog::Read() {
  form_.itemText = S(itemText_->text());
  form_.numberType = S(numberType_->currentText());
  form_.startNumber = S(startNumber_->text());
}

// --- Bulleted ---

BulletedListDialog::BulletedListDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "BulletedListDialog", "Bulleted List", parent) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Enter text for each bulleted list item:"));
  itemText_ = Field("itemText", Q(SelectionForFirstItem(app)));
  layout->addWidget(itemText_);
  auto* types = new QHBoxLayout;
  types->addWidget(new QLabel("Bullet type:"));
  const char* names[] = {"discBullet", "circleBullet", "squareBullet"};
  const char* captions[] = {"Disc", "Circle", "Square"};
  for (int i = 0; i < 3; ++i) {
    bullets_[i] = new QRadioButton(captions[i]);
    bullets_[i]->setObjectName(names[i]);
    types->addWidget(bullets_[i]);
  }
  types->addStretch();
  layout->addLayout(types);
  const ListButtons buttons = AddListButtons(this, layout);
  connect(buttons.add, &QPushButton::clicked, this, [this, buttons] {
    Read();
    const CheckResult failed = BulletedList_Add(app_, form_);
    itemText_->setText(Q(form_.itemText));
    if (failed) return FocusField(failed);
    AfterAdd(buttons, itemText_);
  });
  connect(buttons.done, &QPushButton::clicked, this, [this] {
    Read();
    BulletedList_Done(app_, form_);
    accept();
  });
}

void BulletedListDialog::Read() {
  form_.itemText = S(itemText_->text());
  form_.bulletType.clear();
  for (QRadioButton* b : bullets_)
    if (b->isChecked()) form_.bulletType = S(b->text());
}

// --- Descriptive ---

DescriptiveListDialog::DescriptiveListDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "DescriptiveListDialog", "Descriptive List", parent) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("List Topic:"));
  auto* topicRow = new QHBoxLayout;
  topic_ = Field("topic");
  topicRow->addWidget(topic_, 1);
  const std::pair<const char*, const char*> styles[] = {
      {"boldTopic", "B"}, {"italicTopic", "I"}, {"underlineTopic", "U"}};
  for (const auto& [name, tag] : styles) {
    auto* b = Button(name, tag);
    b->setFixedWidth(28);
    topicRow->addWidget(b);
    connect(b, &QPushButton::clicked, this, [this, tag = std::string(tag)] {
      form_.topic = S(topic_->text());
      form_.WrapTopic(tag);
      topic_->setText(Q(form_.topic));
      topic_->setFocus();
    });
  }
  layout->addLayout(topicRow);
  layout->addWidget(new QLabel("Text to follow List Topic:"));
  description_ = Field("description");
  layout->addWidget(description_);
  const ListButtons buttons = AddListButtons(this, layout);
  connect(buttons.add, &QPushButton::clicked, this, [this, buttons] {
    Read();
    const CheckResult failed = DescriptiveList_Add(app_, form_);
    topic_->setText(Q(form_.topic));
    description_->setText(Q(form_.description));
    if (failed) return FocusField(failed);
    AfterAdd(buttons, topic_);
  });
  connect(buttons.done, &QPushButton::clicked, this, [this] {
    Read();
    DescriptiveList_Done(app_, form_);
    accept();
  });
}

void DescriptiveListDialog::Read() {
  form_.topic = S(topic_->text());
  form_.description = S(description_->text());
}

}  // namespace tessarine::ui
