#pragma once

#include <QStringList>

/// Collects what is logged from now on, instead of printing it, and empties the collection.
/// `debug_is_on` says whether debug lines are logged at all.
void start_log(bool debug_is_on);

/// What was logged since then.
const QStringList& logged_lines();
