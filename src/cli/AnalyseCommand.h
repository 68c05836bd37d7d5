#pragma once
// `tessarine-site analyse`: the site analyser without its window.

namespace tessarine {

int RunAnalyseCommand(int argc, char** argv);  // the arguments after "analyse"
void PrintAnalyseUsage(bool toError);

}  // namespace tessarine
