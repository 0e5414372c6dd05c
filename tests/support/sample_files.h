#pragma once

#include "tests/support/read_file.h"

#include <QDir>
#include <QTest>

/// Makes a test row, with the column "path", of every sample file in `folder`. Beside each sample
/// lies a file of the same name with ".expected" behind it.
inline void add_sample_rows(const QString& folder)
{
    QTest::addColumn<QString>("path");
    const auto files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (file.suffix() != u"expected")
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

/// What reading the sample must give: the dump of the document, then the log, each line with "log "
/// in front.
inline QString expected_of(const QString& path)
{
    return read_text(path + ".expected");
}
