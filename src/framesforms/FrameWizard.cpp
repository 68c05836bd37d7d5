#include "framesforms/FrameWizard.h"

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/DateFormat.h"
#include "core/DocumentList.h"
#include "core/Documents.h"
#include "core/Editing.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/Frame.h"

namespace tessarine {

const char* const kFrameScrollingChoices[3] = {"Auto", "No", "Yes"};
const char* const kNoFramesMessage =
    "No Frames have been created.  Use the Scrollbars to create frame boundaries.";

namespace {

const char* const kCrLf = "\r\n";
const std::string kIndent(5, ' ');

std::string Quoted(const char* head, const std::string& value) {
  return value.empty() ? "" : std::string(head) + "\"" + value + "\"";
}

// One direction's rules: the smaller boundary first, then the difference; a boundary at 0
// leaves one size. Equal non-zero boundaries change nothing.
void SizesOf(int b1, int b2, std::int16_t& size1, std::int16_t& size2) {
  if (b1 < b2) {
    size1 = static_cast<std::int16_t>(b1);
    size2 = static_cast<std::int16_t>(b2 - b1);
  }
  if (b2 < b1) {
    size1 = static_cast<std::int16_t>(b2);
    size2 = static_cast<std::int16_t>(b1 - b2);
  }
  if (b1 == 0) {
    size1 = static_cast<std::int16_t>(b2);
    size2 = 0;
  } else if (b2 == 0) {
    size1 = static_cast<std::int16_t>(b1);
    size2 = 0;
  }
}

std::string SizeList(int count, int a, int b, const char* blank) {
  std::string list = blank + std::to_string(a) + "%,";
  if (count == 3) list += blank + std::to_string(b) + "%,";
  return list + "*";
}

}  // namespace

std::string FrameCellText(const FrameCellProperties& cell) {
  return "<FRAME" + Quoted(" SRC=", cell.url) + Quoted(" NAME=", cell.name) +
         Quoted(" SCROLLING=", cell.scrolling) + (cell.resizeable ? "" : " NORESIZE") +
         Quoted(" MARGINHEIGHT=", cell.marginHeight) + Quoted(" MARGINWIDTH=", cell.marginWidth) +
         ">";
}

CheckResult FrameWizard::Next(const FrameLayout& layout) {
  SizesOf(layout.rowBoundary1, layout.rowBoundary2, rowSize1_, rowSize2_);
  SizesOf(layout.columnBoundary1, layout.columnBoundary2, colSize1_, colSize2_);
  if (rowSize1_ == 0 && colSize1_ == 0) {
    frameCount_ = 0;
    return WizardCheck{kNoFramesMessage, "columnBoundary1"};
  }
  frameCount_ = Rows() * Columns();
  frameCell_ = 1;
  return std::nullopt;
}

int FrameWizard::Rows() const {
  return rowSize1_ == 0 ? 1 : (rowSize2_ == 0 ? 2 : 3);
}
int FrameWizard::Columns() const {
  return colSize1_ == 0 ? 1 : (colSize2_ == 0 ? 2 : 3);
}

bool FrameWizard::EnterCell(const FrameCellProperties& cell, const FrameLayout& layout) {
  if (frameCount_ == 0 || frameCell_ > frameCount_) return false;
  frameText_[static_cast<std::size_t>(frameCell_)] = FrameCellText(cell);
  ++frameCell_;
  if (frameCell_ <= frameCount_) return false;
  composed_ = Compose(layout);
  return true;
}

std::string FrameWizard::Compose(const FrameLayout& layout) const {
  const int rows = Rows(), columns = Columns();
  std::string attribute;
  if (rows == 1)
    attribute = " COLS=\"" + SizeList(columns, colSize1_, colSize2_, "") + "\"";
  else
    attribute = " ROWS=\"" + SizeList(rows, rowSize1_, rowSize2_, "") + "\"";

  std::string body;
  if (rows == 1 || columns == 1) {
    for (int cell = 1; cell <= rows * columns; ++cell) {
      if (cell > 1) body += kCrLf;
      body += kIndent + frameText_[static_cast<std::size_t>(cell)];
    }
  } else {
    for (int row = 0; row < rows; ++row) {
      if (row > 0) body += kCrLf;
      // The third row of a three by three grid has always carried blanks in its list.
      const char* blank = (rows == 3 && columns == 3 && row == 2) ? " " : "";
      body += kIndent + "<FRAMESET COLS=\"" + SizeList(columns, colSize1_, colSize2_, blank) +
              "\">" + kCrLf;
      for (int column = 1; column <= columns; ++column)
        body += kIndent + kIndent + frameText_[static_cast<std::size_t>(row * columns + column)] +
                kCrLf;
      body += kIndent + "</FRAMESET>";
    }
  }
  const std::string border = layout.frameBorder ? " FRAMEBORDER=\"1\"" : " FRAMEBORDER=\"0\"";
  std::string spacing;
  if (!layout.frameSpacing.empty())
    spacing =
        " FRAMESPACING=\"" + layout.frameSpacing + "\" BORDER=\"" + layout.frameSpacing + "\"";
  return "<FRAMESET" + attribute + border + spacing + ">" + kCrLf + body + kCrLf + kCrLf +
         "<NOFRAMES>" + kCrLf + "<BODY>" + kCrLf +
         "Enter HTML code and text here to be read by browsers that can't display frames" + kCrLf +
         "</BODY>" + kCrLf + "</NOFRAMES>" + kCrLf + kCrLf + "</FRAMESET>";
}

void FrameWizard_Insert(Application& app, const std::string& text) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  edit->ReplaceSel(text);
  edit->SetFocus();
}

FramesetPage FramesetPageText(bool upper, const std::string& title, const std::tm& now) {
  const std::string date = FormatDate(now, "mmmm dd, yyyy ");
  const std::string time = FormatDate(now, "hh:mm AM/PM");
  const std::string tail = upper ? "\r\n\r\n</HTML>" : "\r\n\r\n</html>";
  std::string text =
      "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Frameset//EN\" "
      "\"http://www.w3.org/TR/REC-html40/frameset.dtd\">\r\n\r\n";
  if (upper)
    text += "<HTML>\r\n\r\n<HEAD>\r\n\t<TITLE>" + title + "</TITLE>\r\n</HEAD>\r\n\r\n";
  else
    text += "<html>\r\n\r\n<head>\r\n\t<title>" + title + "</title>\r\n</head>\r\n\r\n";
  text += "<!-- Created on " + date + "at " + time + " -->\r\n\r\n" + tail;
  return {text, static_cast<long>(tail.size())};
}

bool NewFramesetDocument(Application& app) {
  DocumentWindow* window = NewDocumentWindow(app);
  if (!window) return false;
  const int slot = app.documents.SlotOf(window);
  const auto serial = app.documents.Form(slot).serial;
  app.files.DocumentTitle = "Document Title should be typed here";
  const FramesetPage page =
      FramesetPageText(app.settings.TagCaseUpper, app.files.DocumentTitle, app.clock.Now());
  window->Edit().SetText(page.text);
  if (app.settings.Flags.ColorTags) ColorizeTags(app, *window);
  // The pass yields: the window may be gone by now.
  if (!app.documents.IsAlive(window, serial)) return false;
  MarkDocumentUnchanged(app, slot);
  app.frame.SetSaveButtonEnabled(false);
  EditControl& edit = window->Edit();
  edit.SetSelStart(edit.Length() - page.offsetFromEnd);
  edit.SetFocus();
  UpdateLinePanel(app, *window);
  return true;
}

}  // namespace tessarine
