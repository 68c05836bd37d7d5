#pragma once
// `tessarine-site strip`: a page's text without its markup.

namespace tessarine {

int RunStripCommand(int argc, char** argv);  // the arguments after "strip"

}  // namespace tessarine
