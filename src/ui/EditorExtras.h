#pragma once
// What a current editor shows beside the text, none of which changes it: line numbers, the
// caret's line, the tag paired with the one at the caret, and (when chosen) the lines
// around each edit coloured again after a short pause.

#include <QObject>

#include "platform/EditControl.h"

class QTimer;

namespace tessarine {

class Application;
class DocumentForm;

struct EditorViewOptions {
  bool lineNumbers = true;
  bool currentLine = true;
  bool matchingTags = true;
  bool colorAsYouType = false;
};

class EditorExtras : public QObject {
  Q_OBJECT
 public:
  EditorExtras(Application& app, DocumentForm& form);
  void Apply(const EditorViewOptions& options);
  // The one attached to a window, made on first use.
  static EditorExtras& Of(Application& app, DocumentForm& form);

 private:
  void UpdateLineNumberWidth();
  void HighlightMatchingTag();
  void NoteEdit(Pos position, Pos insertedLength);
  void RecolorPending();

  Application& app_;
  DocumentForm& form_;
  EditorViewOptions options_;
  QTimer* recolorTimer_;
  Pos dirtyStart_ = -1, dirtyEnd_ = -1;
  int numberDigits_ = 0;
};

}  // namespace tessarine
