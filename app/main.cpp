#include "app/style_sheet.h"
#include "ui/application_icon.h"
#include "ui/mainwindow.h"

#include <QApplication>
#include <QFile>
#include <QStyleHints>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QIcon icon = application_icon();
    QApplication::setWindowIcon(icon);
    // Deliberate: asked, but not heeded; the desktop's own setting alone decides between light and
    // dark.
    static_cast<void>(QGuiApplication::styleHints()->colorScheme());
    QFile sheet(QStringLiteral(":styles/look_and_feel/global_style.qss"));
    apply_style_sheet(application, sheet);

    MainWindow window;
    window.setWindowIcon(icon);
    window.show();
    return QApplication::exec();
}
