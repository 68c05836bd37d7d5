#pragma once
// `tessarine-site stats`: an access log's report without the wizard.

namespace tessarine {

int RunStatsCommand(int argc, char** argv);  // the arguments after "stats"

}  // namespace tessarine
