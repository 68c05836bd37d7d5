#pragma once
// A reference tab of the side panel: a tree of ASP or JavaScript objects with their
// properties, methods and events, and a box below that describes the clicked node. A double
// click inserts the clicked node's call into the active document.

#include <QWidget>
#include <memory>
#include <span>
#include <string>

class QTextEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessarine {

class MainWindow;
class ObjectItems;
struct ReferenceObject;

class ScriptReferencePanel : public QWidget {
  Q_OBJECT
 public:
  enum class Language { ASP, JavaScript };
  ScriptReferencePanel(Language language, MainWindow& frame, QWidget* parent = nullptr);
  ~ScriptReferencePanel() override;

  QTreeWidget* Tree() const { return tree_; }
  QTextEdit* DescriptionBox() const { return description_; }
  // The tree is filled on its first showing; this fills it at once if still empty.
  void BuildTreeOnce();
  void ClickNode(QTreeWidgetItem* node);
  void DoubleClickNode();
  // What the last click would insert; empty before any click.
  const std::string& InsertText() const { return insertText_; }

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::span<const ReferenceObject> Objects() const;

  MainWindow& frame_;
  const Language language_;
  std::unique_ptr<ObjectItems> items_;
  QTreeWidget* tree_;
  QTextEdit* description_;
  std::string insertText_;
};

}  // namespace tessarine
