#pragma once
// `tessarine-site replace`: global find and replace without its dialog.

namespace tessarine {

int RunReplaceCommand(int argc, char** argv);  // the arguments after "replace"
void PrintReplaceUsage(bool toError);

}  // namespace tessarine
