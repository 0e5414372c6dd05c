#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace bench {

/// What became of a program that has run from start to end.
struct ended_process
{
    bool succeeded = false;
    std::chrono::steady_clock::time_point started;
    double milliseconds = 0.0;   ///< from just before its start until it was gone
    double peak_megabytes = 0.0; ///< of memory, never less than that of the caller at the start
    std::string output;          ///< what it wrote to standard output
};

/// Runs a program, found on the path, and waits for its end.
ended_process run_process(const std::vector<std::string>& command);

/// The path of a program that was built beside the running one.
std::string built_beside(const std::string& name);

} // namespace bench
