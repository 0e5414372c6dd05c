#pragma once

#include <QIcon>

/// The icon of the application, which the commands give to what they open. It is read once: to
/// decode its pictures takes as long as to build a dialog.
QIcon application_icon();
