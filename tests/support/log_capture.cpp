#include "tests/support/log_capture.h"

#include <QMap>

namespace {

QMap<QtMsgType, QStringList>& lines()
{
    static QMap<QtMsgType, QStringList> collected;
    return collected;
}

void collect(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    lines()[type].append(text);
}

} // namespace

log_capture::log_capture()
    : previous(qInstallMessageHandler(collect))
{
    lines().clear();
}

log_capture::~log_capture()
{
    qInstallMessageHandler(previous);
}

QStringList log_capture::debug_lines()
{
    return lines().value(QtDebugMsg);
}

QStringList log_capture::warning_lines()
{
    return lines().value(QtWarningMsg);
}
