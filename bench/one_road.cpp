// Drives the viewer the whole road: drops the file named on the command line onto the window, plots
// it, saves the picture and closes. Without a file it closes at once.

#include "bench/driven_window.h"
#include "bench/first_paint.h"

#include <QCoreApplication>

void first_painted(QMainWindow& shown)
{
    auto& window = dynamic_cast<MainWindow&>(shown);
    const QString path = QCoreApplication::arguments().value(1);
    if (!path.isEmpty()) {
        const bench::box_closer closer;
        bench::open_first_of(window, {QUrl::fromLocalFile(path)});
        QCoreApplication::processEvents(); // both plots are painted
        bench::choose(window, "action_speicher");
    }
    bench::choose(window, "action_schliessen");
}
