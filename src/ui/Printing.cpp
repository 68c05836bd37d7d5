#include "ui/Printing.h"

#include <Qsci/qsciprinter.h>

#include <QPrintDialog>

#include "ui/SciEdit.h"

namespace tessarine {

bool PrintDocument(QWidget* parent, SciEdit& edit, QPrinter& printer) {
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle("Print");
  if (dialog.exec() != QDialog::Accepted) return false;
  // QScintilla's printer knows the styles and wraps long lines; any other printer gets plain
  // pages of text.
  if (auto* sci = dynamic_cast<QsciPrinter*>(&printer)) {
    sci->setWrapMode(QsciScintilla::WrapWord);
    return sci->printRange(&edit) >= 0;
  }
  return false;
}

}  // namespace tessarine
