#pragma once

#include <QDir>
#include <QTemporaryDir>

/// An empty folder that is the working folder while it lives. A test that cannot work there ends at
/// once.
class working_folder
{
public:
    working_folder() { enter(folder.path()); }
    ~working_folder() { enter(before); }

    working_folder(const working_folder&) = delete;
    working_folder& operator=(const working_folder&) = delete;

private:
    static void enter(const QString& path)
    {
        if (!QDir::setCurrent(path))
            qFatal("cannot work in %s", qPrintable(path));
    }

    QString before = QDir::currentPath();
    QTemporaryDir folder;
};
