#pragma once
// `tessarine-site tidy`: validate a page, or clean it into a new file, with HTML Tidy.

namespace tessarine {

int RunTidyCommand(int argc, char** argv);  // the arguments after "tidy"

}  // namespace tessarine
