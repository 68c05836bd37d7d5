#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "ui/Commands.h"
#include "ui/MDIForm1.h"

namespace tessarine {

namespace {

struct PhysicalStyle {
  const char* caption;
  const char* start;
  const char* end;
};
const PhysicalStyle kPhysicalStyles[] = {
    {"&Bold - <B>", "<B>", "</B>"},
    {"&Italic - <I>", "<I>", "</I>"},
    {"Stri&kethrough - <S>", "<S>", "</S>"},
    {"&Subscript - <SUB>", "<SUB>", "</SUB>"},
    {"Su&perscript - <SUP>", "<SUP>", "</SUP>"},
    {"&Typewriter Text - <TT>", "<TT>", "</TT>"},
    {"&Underline - <U>", "<U>", "</U>"},
};

// A format button wraps the selection and hands the focus back to the text.
void FormatButton(MDIForm1& frame, const char* start, const char* end) {
  Application* app = frame.App();
  if (!app) return;
  WrapSelection(*app, start, end, false);
  if (EditControl* e = app->ActiveEdit()) e->SetFocus();
}

}  // namespace

void BuildTagCommands(MDIForm1& frame) {
  MDIForm1* f = &frame;
  QMenu* physical = frame.Menu("mnuFormat")->addMenu("&Physical Styles");
  for (int i = 0; i < 7; ++i) {
    const PhysicalStyle& s = kPhysicalStyles[i];
    frame.AddCommand(physical, QString("mnuPhysicalStyles%1").arg(i), s.caption, true, [f, s] {
      if (f->App()) WrapSelection(*f->App(), s.start, s.end, false);
    });
  }
  frame.BindButton("tbrFormat", "Bold", [f] { FormatButton(*f, "<B>", "</B>"); });
  frame.BindButton("tbrFormat", "Italic", [f] { FormatButton(*f, "<I>", "</I>"); });
  frame.BindButton("tbrFormat", "Underline", [f] { FormatButton(*f, "<U>", "</U>"); });
}

}  // namespace tessarine
