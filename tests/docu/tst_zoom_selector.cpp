#include "docu/zoomselector.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

using mode = QPdfView::ZoomMode;

// What the selector has reported, in order: modes as their names, factors as numbers.
class report
{
public:
    explicit report(ZoomSelector& selector)
    {
        QObject::connect(&selector, &ZoomSelector::zoomModeChanged, &selector,
                         [this](mode value) { lines.append(name_of(value)); });
        QObject::connect(&selector, &ZoomSelector::zoomFactorChanged, &selector,
                         [this](qreal factor) { lines.append(QString::number(factor)); });
    }

    QStringList take() { return std::exchange(lines, {}); }

private:
    static QString name_of(mode value)
    {
        return value == mode::Custom ? "custom" : value == mode::FitToWidth ? "width" : "page";
    }

    QStringList lines;
};

void type(ZoomSelector& selector, const QString& text)
{
    selector.lineEdit()->selectAll();
    QTest::keyClicks(selector.lineEdit(), text);
}

} // namespace

class tst_zoom_selector : public QObject
{
    Q_OBJECT

private slots:
    void items();
    void building_reports_nothing();
    void chosen_item_data();
    void chosen_item();
    void typed_text_data();
    void typed_text();
    void every_key_reports();
    void enter_reports_again();
    void factor_is_shown_data();
    void factor_is_shown();
    void same_factor_reports_nothing();
    void reset();
};

void tst_zoom_selector::items()
{
    const ZoomSelector selector(nullptr);
    QStringList texts;
    for (int i = 0; i < selector.count(); ++i) {
        texts.append(selector.itemText(i));
        QVERIFY(selector.itemIcon(i).isNull() && !selector.itemData(i).isValid());
    }
    QCOMPARE(texts, (QStringList{"Fit Width", "Fit Page", "12%", "25%", "33%", "50%", "66%", "75%",
                                 "100%", "125%", "150%", "200%", "400%"}));
    QVERIFY(selector.isEditable());
}

// Building emits nothing; what the box shows then is its first item.
void tst_zoom_selector::building_reports_nothing()
{
    ZoomSelector selector(nullptr);
    QCOMPARE(selector.currentText(), "Fit Width");
    report seen(selector);
    selector.setCurrentIndex(0);
    QVERIFY(seen.take().isEmpty());
}

void tst_zoom_selector::chosen_item_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("Fit Page") << 1 << QStringList{"page"};
    const QList<std::pair<int, const char*>> factors{
        {2, "0.12"}, {3, "0.25"}, {4, "0.33"}, {5, "0.5"}, {6, "0.66"}, {7, "0.75"},
        {8, "1"},    {9, "1.25"}, {10, "1.5"}, {11, "2"},  {12, "4"}};
    for (const auto& [index, factor] : factors)
        QTest::newRow(factor) << index << QStringList{"custom", factor};
}

void tst_zoom_selector::chosen_item()
{
    QFETCH(int, index);
    QFETCH(QStringList, expected);
    ZoomSelector selector(nullptr);
    report seen(selector);
    selector.setCurrentIndex(index);
    QCOMPARE(seen.take(), expected);
    selector.setCurrentIndex(0);
    QCOMPARE(seen.take(), QStringList{"width"});
}

void tst_zoom_selector::typed_text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* text, const QStringList& expected) {
        QTest::addRow("\"%s\"", text) << QString(text) << expected;
    };
    row("150", {"custom", "1.5"});
    row("150%", {"custom", "1.5"});
    row("1%5%", {"custom", "0.15"});
    row("%%7", {"custom", "0.07"});
    row("0%", {"custom", "0"});
    row("-50", {"custom", "-0.5"});
    row(" 80 ", {"custom", "0.8"});
    row("abc", {"custom", "1"});
    row("", {"custom", "1"});
    row("12.5%", {"custom", "1"});
    row("0x10", {"custom", "1"});
    row("2147483647", {"custom", "2.14748e+07"});
    row("2147483648", {"custom", "1"});
    row("fit width", {"custom", "1"});
    row("Fit Width", {"width"});
    row("Fit Page", {"page"});
    row("Fit Page ", {"custom", "1"});
}

void tst_zoom_selector::typed_text()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    ZoomSelector selector(nullptr);
    selector.setCurrentIndex(9); // none of the texts below
    report seen(selector);
    selector.lineEdit()->setText(text);
    QCOMPARE(seen.take(), expected);
}

void tst_zoom_selector::every_key_reports()
{
    ZoomSelector selector(nullptr);
    report seen(selector);
    type(selector, "150");
    QCOMPARE(seen.take(), (QStringList{"custom", "0.01", "custom", "0.15", "custom", "1.5"}));
}

void tst_zoom_selector::enter_reports_again()
{
    ZoomSelector selector(nullptr);
    type(selector, "abc");
    report seen(selector);
    QTest::keyClick(selector.lineEdit(), Qt::Key_Return);
    QVERIFY(seen.take().startsWith("custom"));
    QCOMPARE(selector.currentText(), "abc");
}

void tst_zoom_selector::factor_is_shown_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("text");
    QTest::newRow("1") << 1.0 << "100%";
    QTest::newRow("half away from zero") << 0.125 << "13%";
    QTest::newRow("negative half") << -0.125 << "-13%";
    QTest::newRow("one step in") << 1.4142135623730951 << "141%";
    QTest::newRow("one step out") << 0.70710678118654746 << "71%";
    QTest::newRow("0") << 0.0 << "0%";
    QTest::newRow("small") << 0.004 << "0%";
    QTest::newRow("large") << 1e9 << "100000000000%";
}

void tst_zoom_selector::factor_is_shown()
{
    QFETCH(double, factor);
    QFETCH(QString, text);
    ZoomSelector selector(nullptr);
    selector.setZoomFactor(factor);
    QCOMPARE(selector.currentText(), text);
}

void tst_zoom_selector::same_factor_reports_nothing()
{
    ZoomSelector selector(nullptr);
    report seen(selector);
    selector.setZoomFactor(1.4142);
    QCOMPARE(seen.take(), (QStringList{"custom", "1.41"}));
    selector.setZoomFactor(1.41);
    QVERIFY(seen.take().isEmpty());
}

void tst_zoom_selector::reset()
{
    ZoomSelector selector(nullptr);
    report seen(selector);
    selector.reset();
    QCOMPARE(selector.currentText(), "100%");
    QCOMPARE(seen.take(), (QStringList{"custom", "1"}));
    selector.reset();
    QVERIFY(seen.take().isEmpty());
}

QTEST_MAIN(tst_zoom_selector)
#include "tst_zoom_selector.moc"
