#pragma once

#include <QTest>
#include <QWidget>

/// Types a text as a keyboard of the user's language would: QTest::keyClicks knows ASCII only.
inline void type_text(QWidget* where, const QString& text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, where, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}
