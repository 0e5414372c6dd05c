#include "fuzz/support/silent_log.h"

#include <QLoggingCategory>

namespace {

QStringList& lines()
{
    static QStringList collected;
    return collected;
}

void collect(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    lines().append(text);
}

} // namespace

void start_log(bool debug_is_on)
{
    static const QtMessageHandler previous = qInstallMessageHandler(collect);
    Q_UNUSED(previous);
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, debug_is_on);
    lines().clear();
}

const QStringList& logged_lines()
{
    return lines();
}
