#pragma once

class QIcon;
class QString;
class QWidget;

/// Shows the PDF file in a dialog of its own, which belongs to `parent`, has the icon and deletes
/// itself when it is closed.
///
/// open_manual.cpp does it at once. A program that defines this function itself links nothing of
/// the viewer of the manual, nor of the libraries that it needs.
void open_manual(QWidget* parent, const QIcon& icon, const QString& file_name);
