#include "ui/panels/ScriptReferencePanel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QSplitter>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "panels/ScriptReference.h"
#include "ui/MainWindow.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

const char* const kAspHint =
    "This ASP Tree lists the major ASP objects as well as their properties, methods and events.  "
    "Click on an item for a description.  Double-click an item to insert it into your document.";
const char* const kJsHint =
    "This JavaScript Tree lists the major JavaScript objects as well as their properties, methods "
    "and events.  Click on an item for a description.  Double-click an item to insert it into your "
    "document.";

constexpr int kKeyRole = Qt::UserRole;

// Small drawn icons: a box for an object, a tag for a property, a diamond for a method and a
// flash for an event.
QIcon DrawNodeIcon(int itemType) {
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(60, 60, 60), 1));
  switch (itemType) {
    case 0: {
      p.setBrush(QColor(250, 200, 90));
      p.drawRect(QRectF(2.5, 5.5, 10, 9));
      p.setBrush(QColor(255, 230, 150));
      QPolygonF lid;
      lid << QPointF(2.5, 5.5) << QPointF(5.5, 2.5) << QPointF(15.5, 2.5) << QPointF(12.5, 5.5);
      p.drawPolygon(lid);
      QPolygonF side;
      side << QPointF(12.5, 5.5) << QPointF(15.5, 2.5) << QPointF(15.5, 11.5)
           << QPointF(12.5, 14.5);
      p.setBrush(QColor(220, 160, 60));
      p.drawPolygon(side);
      break;
    }
    case kProperty: {
      QPainterPath tag;
      tag.moveTo(2.5, 4.5);
      tag.lineTo(10.5, 4.5);
      tag.lineTo(14.5, 8.5);
      tag.lineTo(10.5, 12.5);
      tag.lineTo(2.5, 12.5);
      tag.closeSubpath();
      p.setBrush(QColor(120, 180, 240));
      p.drawPath(tag);
      break;
    }
    case kMethod: {
      QPolygonF diamond;
      diamond << QPointF(8, 1.5) << QPointF(14.5, 8) << QPointF(8, 14.5) << QPointF(1.5, 8);
      p.setBrush(QColor(170, 110, 220));
      p.drawPolygon(diamond);
      break;
    }
    default: {
      QPolygonF flash;
      flash << QPointF(9.5, 0.5) << QPointF(3.5, 9) << QPointF(7.5, 9) << QPointF(5.5, 15.5)
            << QPointF(12.5, 6) << QPointF(8.5, 6) << QPointF(11.5, 0.5);
      p.setBrush(QColor(250, 220, 40));
      p.drawPolygon(flash);
      break;
    }
  }
  p.end();
  return QIcon(pixmap);
}

}  // namespace

ScriptReferencePanel::ScriptReferencePanel(Language language, MainWindow& frame, QWidget* parent)
    : QWidget(parent),
      frame_(frame),
      language_(language),
      items_(std::make_unique<ObjectItems>()),
      tree_(new QTreeWidget),
      description_(new QTextEdit) {
  const bool asp = language == Language::ASP;
  setObjectName(asp ? "aspReference" : "jsReference");
  tree_->setObjectName(asp ? "aspTree" : "jsTree");
  description_->setObjectName(asp ? "aspDescription" : "jsDescription");
  if (asp)
    FillASPItems(*items_);
  else
    FillJSItems(*items_);

  tree_->setHeaderHidden(true);
  tree_->setColumnCount(1);
  tree_->setRootIsDecorated(true);
  // A double click inserts; it should not also fold the object away.
  tree_->setExpandsOnDoubleClick(false);
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setPlainText(asp ? kAspHint : kJsHint);

  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(tree_);
  splitter->addWidget(description_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);

  connect(tree_, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* node, int) { ClickNode(node); });
  connect(tree_, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem*, int) { DoubleClickNode(); });
  // From the keyboard: moving to a node describes it, Enter inserts it.
  connect(tree_, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* node) { ClickNode(node); });
  tree_->installEventFilter(this);
}

ScriptReferencePanel::~ScriptReferencePanel() = default;

bool ScriptReferencePanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == tree_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && tree_->currentItem()) {
      ClickNode(tree_->currentItem());
      DoubleClickNode();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ScriptReferencePanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // Built once the tab is really visited: tabs come and go while the side panel is put
  // together at start, and those passing shows should not fill the tree.
  QTimer::singleShot(0, this, [this] {
    if (isVisible()) BuildTreeOnce();
  });
}

std::span<const ReferenceObject> ScriptReferencePanel::Objects() const {
  return language_ == Language::ASP ? ASPObjects() : JSObjects();
}

void ScriptReferencePanel::BuildTreeOnce() {
  if (tree_->topLevelItemCount() > 0) return;
  QIcon icons[4];
  for (int type = 0; type < 4; ++type) icons[type] = DrawNodeIcon(type);
  QTreeWidgetItem* root = nullptr;
  for (const ReferenceNode& node : BuildTree(Objects(), *items_)) {
    auto* item = new QTreeWidgetItem(QStringList{Q(node.text)});
    item->setData(0, kKeyRole, Q(node.key));
    item->setIcon(0, icons[node.itemType]);
    if (node.parentKey.empty()) {
      tree_->addTopLevelItem(item);
      root = item;
    } else if (root) {
      root->addChild(item);
    }
  }
}

void ScriptReferencePanel::ClickNode(QTreeWidgetItem* node) {
  if (!node) return;
  const NodeDescription d = DescribeNode(Objects(), *items_, node->text(0).toStdString(),
                                         node->data(0, kKeyRole).toString().toStdString());
  description_->setHtml(Q(DescriptionHtml(d)));
  insertText_ = d.insertText;
}

void ScriptReferencePanel::DoubleClickNode() {
  if (Application* app = frame_.App()) InsertReferenceText(*app, insertText_);
}

}  // namespace tessarine
