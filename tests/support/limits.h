#pragma once

#include <sys/resource.h>

/// Takes from a test that runs as root the right to pass over the permissions of files. Ends the
/// test if the system does not let it.
class without_override
{
public:
    without_override();
    ~without_override();

    without_override(const without_override&) = delete;
    without_override& operator=(const without_override&) = delete;

private:
    unsigned effective; // the rights before
};

/// Lowers a limit of the process, such as RLIMIT_FSIZE, while it lives.
class lower_limit
{
public:
    lower_limit(int resource, rlim_t limit);
    ~lower_limit();

    lower_limit(const lower_limit&) = delete;
    lower_limit& operator=(const lower_limit&) = delete;

private:
    int resource;
    rlimit before{};
};
