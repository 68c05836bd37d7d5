#pragma once
// `tessarine-site spell`: the misspelled words of a page, one a line.

namespace tessarine {

int RunSpellCommand(int argc, char** argv);  // the arguments after "spell"

}  // namespace tessarine
