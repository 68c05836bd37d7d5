#include "ui/wizards/TableEditorDialog.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QComboBox>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "ui/wizards/TablePropertiesDialog.h"
#include "wizards/TableWizard.h"

namespace tessarine::ui {

namespace {

QColor ColorOf(const std::string& hex) {
  if (hex.size() != 6) return {};
  QColor c(Q("#" + hex));
  return c.isValid() ? c : QColor();
}

// HTML's font sizes 1 to 7 as points, so the grid gives an idea of each.
int PointSize(const std::string& size) {
  static const int points[] = {8, 10, 12, 14, 18, 24, 36};
  if (size.size() != 1 || size[0] < '1' || size[0] > '7') return 0;
  return points[size[0] - '1'];
}

}  // namespace

// Shows the editor's grid; edits in place go back into it.
class TableGridModel : public QAbstractTableModel {
 public:
  TableGridModel(TableEditor& editor, std::function<void(int, int, bool)> textChanged)
      : editor_(editor), textChanged_(std::move(textChanged)) {}
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : editor_.grid.Rows();
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : editor_.grid.Cols();
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid()) return {};
    const TableCell& cell = editor_.grid.At(index.row(), index.column());
    switch (role) {
      case Qt::DisplayRole:
      case Qt::EditRole:
        return Q(cell.text);
      case Qt::FontRole: {
        if (cell.fontFace.empty() && cell.fontSize.empty() && !cell.header) return {};
        QFont f;
        if (!cell.fontFace.empty()) f.setFamily(Q(cell.fontFace));
        if (const int points = PointSize(cell.fontSize)) f.setPointSize(points);
        f.setBold(cell.header);
        return f;
      }
      case Qt::ForegroundRole:
        if (QColor c = ColorOf(cell.fontColor); c.isValid()) return c;
        return {};
      case Qt::BackgroundRole:
        if (QColor c = ColorOf(cell.bgColor); c.isValid()) return c;
        return {};
      case Qt::TextAlignmentRole:
        if (cell.header) return int(Qt::AlignCenter);
        return {};
      default:
        return {};
    }
  }
  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (!index.isValid() || role != Qt::EditRole) return false;
    const bool tooLong = editor_.SetCellText(index.row(), index.column(), S(value.toString()));
    emit dataChanged(index, index);
    textChanged_(index.row(), index.column(), tooLong);
    return true;
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
  }
  void Changed(CellRange r) { emit dataChanged(index(r.top, r.left), index(r.bottom, r.right)); }
  void Reset() {
    beginResetModel();
    endResetModel();
  }

 private:
  TableEditor& editor_;
  std::function<void(int, int, bool)> textChanged_;
};

TableEditorDialog::TableEditorDialog(Application& app, const TableSetup& setup, QWidget* parent)
    : WizardDialog(app, "TableEditorDialog", "Table Wizard", parent), editor_(setup) {
  auto* layout = new QVBoxLayout(this);
  auto* toolbar = new QToolBar;
  toolbar->setObjectName("toolbar");
  toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  auto action = [&](const char* key, const QString& caption, const QString& tip) {
    QAction* a = toolbar->addAction(caption);
    a->setObjectName(key);
    a->setToolTip(tip);
    return a;
  };
  QAction* changeSize = action("ChangeSize", "Properties...", "Change table properties");
  header_ = action("Header", "Header", "Make the selected cells header cells");
  header_->setCheckable(true);
  QAction* image = action("InsertImage", "Image...", "Insert an image into the cell");
  QAction* preview = action("Preview", "Preview", "Preview the table in the browser");
  layout->addWidget(toolbar);

  // A cell typed in place: the message past the limit, and the text field follows.
  model_ = new TableGridModel(editor_, [this](int row, int col, bool tooLong) {
    if (tooLong) app_.messages.Show(kCellTextTooLong, MsgButtons::OK, MsgIcon::None, app_.title);
    const QModelIndex current = grid_->currentIndex();
    if (current.row() == row && current.column() == col) LoadCurrentCell();
  });
  model_->setParent(this);
  grid_ = new QTableView;
  grid_->setObjectName("grid");
  grid_->setModel(model_);
  grid_->setSelectionMode(QAbstractItemView::ContiguousSelection);
  grid_->setContextMenuPolicy(Qt::CustomContextMenu);
  grid_->horizontalHeader()->setDefaultSectionSize(110);
  grid_->setMinimumSize(520, 240);
  layout->addWidget(grid_, 1);

  auto* textRow = new QHBoxLayout;
  textRow->addWidget(new QLabel("Cell Text:"));
  cellText_ = new QLineEdit;
  cellText_->setObjectName("cellText");
  textRow->addWidget(cellText_, 1);
  layout->addLayout(textRow);

  auto* fontRow = new QHBoxLayout;
  fontRow->addWidget(new QLabel("Font:"));
  fontName_ = new QComboBox;
  fontName_->setObjectName("fontName");
  fontName_->setEditable(true);
  for (const char* f : kCellFontNames) fontName_->addItem(f);
  fontName_->setCurrentText("");
  fontRow->addWidget(fontName_, 1);
  auto* browseFonts = new QPushButton("Fonts...");
  browseFonts->setObjectName("browseFonts");
  browseFonts->setAutoDefault(false);
  fontRow->addWidget(browseFonts);
  fontRow->addWidget(new QLabel("Size:"));
  fontSize_ = new QComboBox;
  fontSize_->setObjectName("fontSize");
  fontSize_->setEditable(true);
  for (const char* s : kCellFontSizes) fontSize_->addItem(s);
  fontSize_->setCurrentText("");
  fontRow->addWidget(fontSize_);
  fontRow->addWidget(new QLabel("Color:"));
  fontColor_ = new QLineEdit;
  fontColor_->setObjectName("fontColor");
  fontColor_->setMaximumWidth(80);
  fontRow->addWidget(fontColor_);
  auto* pickColor = new QPushButton("...");
  pickColor->setObjectName("pickFontColor");
  pickColor->setAutoDefault(false);
  pickColor->setFixedWidth(28);
  fontRow->addWidget(pickColor);
  layout->addLayout(fontRow);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* done = new QPushButton("&Done");
  done->setObjectName("doneButton");
  done->setAutoDefault(false);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cancelButton");
  cancel->setAutoDefault(false);
  buttons->addWidget(done);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  auto* cellMenu = new QMenu(this);
  cellMenu->setObjectName("cellMenu");
  QAction* properties = cellMenu->addAction("Cell Properties...");
  properties->setObjectName("cellProperties");

  connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &TableEditorDialog::LoadCurrentCell);
  connect(cellText_, &QLineEdit::textEdited, this, &TableEditorDialog::CellTextEdited);
  connect(fontName_, &QComboBox::currentTextChanged, this,
          [this](const QString& v) { ApplyFont(TableEditor::FontField::Face, v); });
  connect(fontSize_, &QComboBox::currentTextChanged, this,
          [this](const QString& v) { ApplyFont(TableEditor::FontField::Size, v); });
  connect(fontColor_, &QLineEdit::textChanged, this,
          [this](const QString& v) { ApplyFont(TableEditor::FontField::Color, v); });
  connect(browseFonts, &QPushButton::clicked, this, [this] {
    bool ok = false;
    const QFont f = QFontDialog::getFont(&ok, QFont(fontName_->currentText()), this);
    if (ok) fontName_->setCurrentText(f.family());
  });
  connect(pickColor, &QPushButton::clicked, this, [this] {
    PickColor(app_);
    if (!app_.wizards.ColorCancelled) fontColor_->setText(Q(app_.wizards.PickedColorHex));
  });
  connect(header_, &QAction::triggered, this, [this](bool on) {
    const CellRange r = Selection();
    editor_.SetHeader(r, on);
    model_->Changed(r);
  });
  connect(image, &QAction::triggered, this, [this] {
    const std::string tag = TableImageTag(app_);
    if (tag.empty()) return;
    cellText_->setText(cellText_->text() + Q(tag));
    CellTextEdited(cellText_->text());
  });
  connect(preview, &QAction::triggered, this, [this] { PreviewTable(app_, editor_); });
  connect(changeSize, &QAction::triggered, this, &TableEditorDialog::OpenCellProperties);
  connect(properties, &QAction::triggered, this, &TableEditorDialog::OpenCellProperties);
  connect(grid_, &QWidget::customContextMenuRequested, this, [this, cellMenu](const QPoint& p) {
    cellMenu->popup(grid_->viewport()->mapToGlobal(p));
  });
  connect(done, &QPushButton::clicked, this, [this] {
    TableEditor_Done(app_, editor_);
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  grid_->setCurrentIndex(model_->index(0, 0));
  LoadCurrentCell();
}

TableEditorDialog::~TableEditorDialog() = default;

CellRange TableEditorDialog::Selection() const {
  const QItemSelection selection = grid_->selectionModel()->selection();
  if (!selection.isEmpty()) {
    const QItemSelectionRange& r = selection.first();
    return {r.top(), r.left(), r.bottom(), r.right()};
  }
  const QModelIndex current = grid_->currentIndex();
  return {current.row(), current.column(), current.row(), current.column()};
}

void TableEditorDialog::LoadCurrentCell() {
  const QModelIndex current = grid_->currentIndex();
  if (!current.isValid()) return;
  const TableCell& cell = editor_.grid.At(current.row(), current.column());
  const QSignalBlocker b1(fontName_), b2(fontSize_), b3(fontColor_);
  if (cellText_->text() != Q(cell.text)) cellText_->setText(Q(cell.text));
  fontName_->setCurrentText(Q(cell.fontFace));
  fontSize_->setCurrentText(Q(cell.fontSize));
  fontColor_->setText(Q(cell.fontColor));
  header_->setChecked(cell.header);
}

void TableEditorDialog::CellTextEdited(const QString& text) {
  const QModelIndex current = grid_->currentIndex();
  if (!current.isValid()) return;
  if (editor_.SetCellText(current.row(), current.column(), S(text)))
    app_.messages.Show(kCellTextTooLong, MsgButtons::OK, MsgIcon::None, app_.title);
  model_->Changed({current.row(), current.column(), current.row(), current.column()});
}

void TableEditorDialog::ApplyFont(TableEditor::FontField field, const QString& value) {
  const CellRange r = Selection();
  editor_.SetFont(r, field, S(value));
  model_->Changed(r);
}

void TableEditorDialog::OpenCellProperties() {
  const QModelIndex current = grid_->currentIndex();
  TablePropertiesDialog dialog(app_, editor_.grid, Selection(), current.row(), current.column(),
                               this);
  dialog.exec();
  // A size change stays even when the dialog stayed open over a refused span.
  RefreshGrid();
}

void TableEditorDialog::RefreshGrid() {
  const QModelIndex current = grid_->currentIndex();
  model_->Reset();
  grid_->clearSpans();
  for (const CellSpan& s : LayOutSpans(editor_.grid).spans)
    grid_->setSpan(s.row, s.col, s.rows, s.cols);
  const int row = std::min(std::max(current.row(), 0), editor_.grid.Rows() - 1);
  const int col = std::min(std::max(current.column(), 0), editor_.grid.Cols() - 1);
  grid_->setCurrentIndex(model_->index(row, col));
  LoadCurrentCell();
}

}  // namespace tessarine::ui
