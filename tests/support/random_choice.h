#pragma once

#include <QRandomGenerator>

/// One of `values`, each as likely as the others.
template <class list>
const auto& any_of(const list& values, QRandomGenerator& random)
{
    return values[random.bounded(values.size())];
}

/// True once in `times` on average.
inline bool once_in(int times, QRandomGenerator& random)
{
    return random.bounded(times) == 0;
}
