#include "bench/child_process.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <array>
#include <filesystem>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace bench {

namespace {

// The child's standard output goes into the pipe; no child inherits the ends themselves.
pid_t spawn(const std::vector<std::string>& command, int output)
{
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& each : command)
        arguments.push_back(const_cast<char*>(each.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = -1;
    const int error =
        posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? child : -1;
}

std::string all_of(int descriptor)
{
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = read(descriptor, part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(count));
    return text;
}

} // namespace

ended_process run_process(const std::vector<std::string>& command)
{
    ended_process result;
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return result;
    result.started = std::chrono::steady_clock::now();
    const pid_t child = spawn(command, ends[1]);
    close(ends[1]);
    result.output = all_of(ends[0]);
    close(ends[0]);
    int status = -1;
    rusage usage{};
    if (child == -1 || wait4(child, &status, 0, &usage) != child)
        return result;
    const std::chrono::duration<double, std::milli> time =
        std::chrono::steady_clock::now() - result.started;
    result.succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    result.milliseconds = time.count();
    result.peak_megabytes = static_cast<double>(usage.ru_maxrss) * 1024.0 / 1e6;
    return result;
}

std::string built_beside(const std::string& name)
{
    return std::filesystem::canonical("/proc/self/exe").replace_filename(name).string();
}

} // namespace bench
