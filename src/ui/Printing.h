#pragma once
// Printing a document's text through the system's print dialog.

class QPrinter;
class QWidget;

namespace tessarine {

class SciEdit;

// Shows the print dialog for `printer` and prints the whole text when it is accepted.
// True when it printed.
bool PrintDocument(QWidget* parent, SciEdit& edit, QPrinter& printer);

}  // namespace tessarine
