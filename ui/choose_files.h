#pragma once

#include <QStringList>

class QWidget;

/// Lets the user pick result files in a modal dialog. The paths come in the order of picking; none
/// if the dialog was cancelled.
QStringList choose_result_files(QWidget* parent);
