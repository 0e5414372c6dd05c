#pragma once

#include <QStringList>
#include <QtLogging>

/// Collects what is logged while it lives, instead of printing it.
class log_capture
{
public:
    log_capture();
    ~log_capture();

    log_capture(const log_capture&) = delete;
    log_capture& operator=(const log_capture&) = delete;

    /// The lines logged so far at one level.
    static QStringList debug_lines();
    static QStringList warning_lines();

private:
    QtMessageHandler previous;
};
