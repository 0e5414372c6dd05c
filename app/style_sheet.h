#pragma once

class QApplication;
class QFile;

/// Opens `sheet` and makes its text the style sheet of `application`, rewritten for a dark desktop.
/// A sheet that cannot be opened leaves the look of Qt.
void apply_style_sheet(QApplication& application, QFile& sheet);
