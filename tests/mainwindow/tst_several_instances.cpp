#include "tests/support/modal_boxes.h"
#include "tests/support/window_driver.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QListWidget>
#include <QProcess>
#include <QTest>

#include <memory>
#include <vector>

namespace {

constexpr int instances = 3;
constexpr int pictures = 15; // that each of them saves

// What one instance does: opens the file, zooms in its own way, and saves again and again.
int open_and_save(const QString& path, int instance, int times)
{
    window_driver driver;
    driver.list->addItem(path);
    driver.select(0);
    driver.press(driver.button);
    driver.lower->setAxisScale(QwtAxis::YLeft, 0, 10.0 * (instance + 1));
    driver.lower->replot();
    const modal_boxes boxes;
    for (int i = 0; i < times; ++i)
        driver.window.findChild<QAction*>("action_speicher")->trigger();
    return boxes.shown().size() == times ? 0 : 1;
}

std::unique_ptr<QProcess> start_instance(const QString& path, int instance, int times)
{
    auto process = std::make_unique<QProcess>();
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(QApplication::applicationFilePath(),
                   {path, QString::number(instance), QString::number(times)});
    return process;
}

bool has_ended_well(QProcess& process)
{
    if (process.state() != QProcess::NotRunning)
        process.waitForFinished(60'000);
    return process.state() == QProcess::NotRunning &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

} // namespace

/// Several viewers show the same file, and all of them save: each in its own picture's way, into
/// the same place.
class tst_several_instances : public QObject
{
    Q_OBJECT

private slots:
    void the_picture_is_always_one_of_theirs();
};

void tst_several_instances::the_picture_is_always_one_of_theirs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("x_K.wel");
    const QString picture = folder.filePath("x_K.png");
    write_file(path, node_file(9));
    QList<QImage> expected;
    for (int i = 0; i < instances; ++i) {
        QVERIFY(has_ended_well(*start_instance(path, i, 1)));
        expected.append(QImage(picture, "PNG"));
        QCOMPARE(expected.last().size(), QSize(681, 581));
        QCOMPARE(expected.count(expected.last()), 1);
    }
    std::vector<std::unique_ptr<QProcess>> running;
    running.reserve(instances);
    for (int i = 0; i < instances; ++i)
        running.push_back(start_instance(path, i, pictures));
    int looks = 0;
    for (const auto& each : running) {
        for (; !each->waitForFinished(1) && looks < 100'000; ++looks)
            QVERIFY(expected.contains(QImage(picture, "PNG")));
        QVERIFY(has_ended_well(*each));
    }
    QVERIFY2(looks > pictures, QByteArray::number(looks));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), (QStringList{"x_K.png", "x_K.wel"}));
}

// With arguments it is one of the instances.
int main(int count, char** arguments)
{
    const QApplication application(count, arguments);
    const QStringList words = QApplication::arguments();
    if (words.value(1).endsWith(".wel"))
        return open_and_save(words[1], words.value(2).toInt(), words.value(3).toInt());
    tst_several_instances test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_several_instances.moc"
