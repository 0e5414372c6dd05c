#include "app/manual_loader.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QMessageBox>

namespace {

using open_function = void (*)(QWidget*, const QIcon&, const QString&);

constexpr QLatin1StringView module_name(KORIMO_MANUAL_MODULE);

open_function opener_in(const QString& module)
{
    QLibrary library(module);
    const auto open = reinterpret_cast<open_function>(library.resolve("korimo_open_manual"));
    if (!open)
        qDebug() << "loading the viewer of the manual: " << library.errorString();
    return open;
}

} // namespace

QString manual_module_of(const QString& program_folder)
{
    const QDir folder(program_folder);
    for (const QString& place : {QString(module_name), QStringLiteral(KORIMO_INSTALLED_MODULE)}) {
        if (QFile::exists(folder.filePath(place)))
            return folder.filePath(place);
    }
    return QString();
}

void open_manual_of(const QString& program_folder, QWidget* parent, const QIcon& icon,
                    const QString& file_name)
{
    const QString module = manual_module_of(program_folder);
    const open_function open = module.isEmpty() ? nullptr : opener_in(module);
    if (open) {
        open(parent, icon, file_name);
        return;
    }
    QMessageBox::critical(parent, QStringLiteral("Error"),
                          QStringLiteral("Datei %1 kann nicht geöffnet werden!").arg(module_name),
                          QMessageBox::Ok);
}
