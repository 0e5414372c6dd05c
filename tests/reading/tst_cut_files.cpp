#include "plot/korimo_plot.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"
#include "tests/support/read_file.h"
#include "tests/support/write_file.h"

#include <qwt_plot_renderer.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

using literal_curve = literal_reading (*)(const QString& path, const QString& item);
using curve_slot = void (korimo_plot::*)(QString path, QString item);

QByteArray bytes_of_example(const QString& name)
{
    return read_file(QStringLiteral(EXAMPLES_DIR "/") + name);
}

// As many whole lines as fit into `size` bytes.
QByteArray first_lines(const QByteArray& bytes, qsizetype size)
{
    return bytes.first(bytes.lastIndexOf('\n', qMin(size, bytes.size()) - 1) + 1);
}

QStringList examples()
{
    return QDir(EXAMPLES_DIR).entryList({"*.wel", "*.bek", "*.dkl"}, QDir::Files);
}

// Draws into pictures so small that thousands of them take seconds; the paths through the code are
// those of large ones.
void draw(const plot_pair& plots)
{
    plots.plot();
    for (QwtPlot* plot : {plots.lower.get(), plots.upper.get()}) {
        QImage image(180, 120, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QwtPlotRenderer().render(plot, &painter, QRectF(image.rect()));
    }
}

// One example file, cut shorter and shorter, and what comes of it. A fault is told by `fault`,
// which is empty if there is none.
class cut_file
{
public:
    explicit cut_file(const QString& name)
        : path(folder.filePath(name))
    {
    }

    void cut(const QByteArray& whole, qsizetype size) { write_file(path, whole.first(size)); }

    QString fault_of_file()
    {
        const literal_reading expected = read_literally(path);
        renew();
        {
            const log_capture log;
            plots.document->readFile(path);
            if (log.debug_lines() != expected.log)
                return "log";
        }
        const QString values = dump(*plots.document);
        if (values != dump(expected))
            return "values";
        // Reading another kind only lists names, and draws nothing.
        return path.endsWith("wel") ? fault_of_picture(values, expected.plot_mode == -1)
                                    : QString();
    }

    QString fault_of_curve(const QString& item, literal_curve read, curve_slot slot)
    {
        const literal_reading expected = read(path, item);
        renew();
        {
            const log_capture log;
            (plots.document.get()->*slot)(path, item);
            if (log.warning_lines() != expected.log)
                return "warnings of " + item;
        }
        const QString values = dump(*plots.document);
        if (values != dump(expected))
            return "values of " + item;
        return fault_of_picture(values, false);
    }

    const QString& file() const { return path; }

private:
    void renew()
    {
        plots.document.reset();
        plots.document = std::make_unique<korimo_plot>(plots.lower.get(), plots.upper.get());
    }

    // A box comes up only if nothing was recognised. What is the same as one cut before, as between
    // the columns, is drawn once.
    QString fault_of_picture(const QString& values, bool box_expected)
    {
        if (values == drawn)
            return {};
        drawn = values;
        const qsizetype before = boxes.shown().size();
        draw(plots);
        return boxes.shown().size() - before == (box_expected ? 1 : 0) ? QString()
                                                                       : QString("boxes");
    }

    QTemporaryDir folder;
    QString path;
    QString drawn; // the document that was drawn last
    plot_pair plots;
    modal_boxes boxes;
};

} // namespace

/// Every example file, cut off at every byte, as a copy does that was interrupted.
class tst_cut_files : public QObject
{
    Q_OBJECT

private slots:
    void every_length_data();
    void every_length();
    void every_length_of_curves_data();
    void every_length_of_curves();
};

void tst_cut_files::every_length_data()
{
    QTest::addColumn<qsizetype>("size");
    const QStringList names = examples();
    QVERIFY(!names.isEmpty());
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << qsizetype(name.endsWith("wel") ? 2048 : 4096);
}

void tst_cut_files::every_length()
{
    QFETCH(qsizetype, size);
    const QString name = QTest::currentDataTag();
    const QByteArray whole = first_lines(bytes_of_example(name), size);
    QVERIFY(whole.size() > 700);
    cut_file file(name);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        file.cut(whole, length);
        const QString fault = file.fault_of_file();
        QVERIFY2(fault.isEmpty(), qPrintable(fault + " at byte " + QString::number(length)));
    }
}

void tst_cut_files::every_length_of_curves_data()
{
    QTest::addColumn<literal_curve>("read");
    QTest::addColumn<curve_slot>("slot");
    QTest::newRow("Erlenbach.bek")
        << literal_curve(read_bek_literally) << curve_slot(&korimo_plot::read_BEK);
    QTest::newRow("Erlenbach.dkl")
        << literal_curve(read_dkl_literally) << curve_slot(&korimo_plot::read_DKL);
}

void tst_cut_files::every_length_of_curves()
{
    QFETCH(literal_curve, read);
    QFETCH(curve_slot, slot);
    const QString name = QTest::currentDataTag();
    const QByteArray whole = first_lines(bytes_of_example(name), 2048);
    cut_file file(name);
    file.cut(whole, whole.size());
    const QStringList items = read_literally(file.file()).kennlinien_list;
    QVERIFY(!items.isEmpty());
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        file.cut(whole, length);
        for (const QString& item : items) {
            const QString fault = file.fault_of_curve(item, read, slot);
            QVERIFY2(fault.isEmpty(), qPrintable(fault + " at byte " + QString::number(length)));
        }
    }
}

QTEST_MAIN(tst_cut_files)
#include "tst_cut_files.moc"
