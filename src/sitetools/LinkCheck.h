#pragma once
// The link check of one document: which page the site manager opens for, or the message
// that refuses it.

#include <string>

namespace tessarine {

struct PageToVerify {
  bool ok = false;
  std::string message;  // when refused
  std::string folder;   // closing "/" included
  std::string fileName;
};

// The active document, by its caption: an untitled one has no file to read.
PageToVerify VerifyActiveDocument(const std::string& caption);
// A file chosen in the main window's file list: ".htm" and ".html" pages only, exact case.
PageToVerify VerifySelectedFile(const std::string& folder, const std::string& name);

}  // namespace tessarine
