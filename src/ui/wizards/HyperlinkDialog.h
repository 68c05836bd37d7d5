#pragma once
// Insert Hyperlink: the link's text and address on one page; on the other its status-bar and
// screen-tip extras, and the roll-over look of all links of the page, kept in its style
// sheet. Filled from a record, so that Edit Tag can open it on an old link.

#include "ui/wizards/WizardDialog.h"
#include "wizards/Hyperlink.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace tessarine::ui {

class HyperlinkDialog : public WizardDialog {
 public:
  HyperlinkDialog(Application& app, QWidget* parent, const Hyperlink& initial);
  // Opened by the Insert menu: the document's selection is the text.
  HyperlinkDialog(Application& app, QWidget* parent);

  void Prefill(const Hyperlink& link);
  Hyperlink Model() const;

 private:
  void showEvent(QShowEvent* event) override;
  void done(int result) override;
  void PickHoverColor();
  void ShowSwatch(int red, int green, int blue);

  QTabWidget* pages_;
  QLineEdit* linkText_;
  QComboBox* urlCombo_;
  QCheckBox* linkToAnchor_;
  QLabel* anchorLabel_;
  QLineEdit* anchorName_;
  QComboBox* targetFrame_;
  QLineEdit* statusText_;
  QLineEdit* toolTip_;
  QCheckBox* boldOnHover_;
  QCheckBox* underlineOnHover_;
  QPushButton* hoverColor_;
};

}  // namespace tessarine::ui
