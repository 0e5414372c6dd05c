#pragma once

class QIcon;
class QString;
class QWidget;

/// Where a program of this folder has the module that shows the manual: beside itself, as it was
/// built, or in the folder of libraries that it was installed with. Empty if it is in neither.
QString manual_module_of(const QString& program_folder);

/// As `open_manual`, by the module of a program of this folder. Where it cannot be loaded, a
/// message says so.
void open_manual_of(const QString& program_folder, QWidget* parent, const QIcon& icon,
                    const QString& file_name);
