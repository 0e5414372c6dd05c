#include "tests/faults/scarce_memory.h"

#ifdef __SANITIZE_ADDRESS__

// The sanitizer has a limit of its own, for the whole test: see its options in CMakeLists.txt.
scarce_memory::scarce_memory() = default;
scarce_memory::~scarce_memory() = default;

#else

#include <atomic>
#include <cerrno>
#include <cstddef>

namespace {

std::atomic<bool> is_scarce = false;

bool is_refused(std::size_t size)
{
    if (!is_scarce || size <= static_cast<std::size_t>(scarce_memory::largest))
        return false;
    errno = ENOMEM;
    return true;
}

} // namespace

scarce_memory::scarce_memory()
{
    is_scarce = true;
}

scarce_memory::~scarce_memory()
{
    is_scarce = false;
}

// In place of the system's functions, for all libraries of the test. Theirs have these names, too.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_realloc(void* old, std::size_t size);

void* malloc(std::size_t size)
{
    return is_refused(size) ? nullptr : __libc_malloc(size);
}

void* realloc(void* old, std::size_t size)
{
    return is_refused(size) ? nullptr : __libc_realloc(old, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

#endif
