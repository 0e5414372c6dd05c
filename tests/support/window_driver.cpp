#include "tests/support/window_driver.h"

#include "tests/support/write_file.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <qwt_plot.h>

namespace {

constexpr QPoint drop_place(10, 10);

void click_row(QListWidget& list, int row)
{
    const QPoint middle = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
}

} // namespace

window_driver::window_driver()
    : list(window.findChild<QListWidget*>("listWidget"))
    , names(window.findChild<QListWidget*>("listWidget_2"))
    , button(window.findChild<QPushButton*>("pushButton"))
    , remove(window.findChild<QPushButton*>("pushButton_3"))
    , plot_name(window.findChild<QPushButton*>("pushButton_2"))
    , lower(window.findChild<QwtPlot*>("qwtPlot"))
    , upper(window.findChild<QwtPlot*>("qwtPlot_2"))
{
    window.show();
}

QString window_driver::add(const QString& name, const QByteArray& text)
{
    const QString path = folder.filePath(name);
    write_file(path, text);
    list->addItem(path);
    return path;
}

void window_driver::select(int row) const
{
    click_row(*list, row);
}

void window_driver::pick(int row) const
{
    click_row(*names, row);
}

QString window_driver::open(const QString& name, const QByteArray& text)
{
    const QString path = add(name, text);
    select(list->count() - 1);
    press(button);
    return path;
}

void window_driver::press(QPushButton* which) const
{
    QTest::mouseClick(which, Qt::LeftButton);
}

bool window_driver::drag(const QMimeData& data, Qt::DropActions offered, Qt::KeyboardModifiers held)
{
    QDragEnterEvent event(drop_place, offered, &data, Qt::LeftButton, held);
    event.ignore();
    QCoreApplication::sendEvent(&window, &event);
    return event.isAccepted();
}

Qt::DropAction window_driver::drop(const QMimeData& data, Qt::DropActions offered,
                                   Qt::KeyboardModifiers held)
{
    drag(data, offered, held);
    QDropEvent event(drop_place, offered, &data, Qt::LeftButton, held);
    QCoreApplication::sendEvent(&window, &event);
    return event.dropAction();
}

Qt::DropAction window_driver::drop(const QList<QUrl>& urls, Qt::DropActions offered,
                                   Qt::KeyboardModifiers held)
{
    QMimeData data;
    data.setUrls(urls);
    return drop(data, offered, held);
}

QStringList window_driver::files() const
{
    QStringList rows;
    for (int row = 0; row < list->count(); ++row)
        rows.append(list->item(row)->text());
    return rows;
}

QByteArray node_file(double peak)
{
    return "Ganglinien Knoten K1\nZeit hN hV heff Qo Qi Qg Qzu Qb Qges\n"
           "0 0 0 0 0 0 0 0 1 1\n72 5 2 3 0 0 0 0 2 " +
           QByteArray::number(peak) + "\n";
}
