#pragma once

#include <QtTypes>

/// While it lives, no piece of memory can be had that is larger than `largest`: neither the lists
/// of a large file nor a line without an end.
struct scarce_memory
{
    static constexpr qsizetype largest = 16 << 20; ///< bytes

    scarce_memory();
    ~scarce_memory();

    scarce_memory(const scarce_memory&) = delete;
    scarce_memory& operator=(const scarce_memory&) = delete;
};
