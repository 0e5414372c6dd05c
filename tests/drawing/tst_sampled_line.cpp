#include "plot/drawing/sampled_line.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

std::vector<double> random_values(std::size_t size, QRandomGenerator& random)
{
    std::vector<double> values(size);
    std::ranges::generate(values, [&] { return random.generateDouble() - 0.5; });
    return values;
}

std::vector<double> times(std::size_t size)
{
    std::vector<double> values(size);
    for (std::size_t i = 0; i < size; ++i)
        values[i] = static_cast<double>(i);
    return values;
}

bool is_orderly(const std::vector<double>& x)
{
    const std::vector<double> y(x.size(), 1.0);
    return sampled_line(x, y).is_orderly();
}

} // namespace

class tst_sampled_line : public QObject
{
    Q_OBJECT

private slots:
    void ranges_of_blocks_data();
    void ranges_of_blocks();
    void no_values();
    void finite_values();
    void order_of_times();
    void points();
    void first_from_column();
};

void tst_sampled_line::ranges_of_blocks_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {1, 2, 7, 8, 9, 15, 63, 64, 65, 72, 128, 130, 1000})
        QTest::addRow("%d", size) << size;
}

void tst_sampled_line::ranges_of_blocks()
{
    QFETCH(int, size);
    QRandomGenerator random(static_cast<quint32>(size));
    for (int round = 0; round < 50; ++round) {
        const std::vector<double> values = random_values(static_cast<std::size_t>(size), random);
        const value_blocks blocks(values);
        QCOMPARE(blocks.count(), (size + 63) / 64);
        for (qsizetype i = 0; i < blocks.count(); ++i) {
            const auto first = values.begin() + 64 * i;
            const auto end = values.begin() + std::min<qsizetype>(64 * (i + 1), size);
            QCOMPARE(blocks.block(i).low, *std::min_element(first, end));
            QCOMPARE(blocks.block(i).high, *std::max_element(first, end));
        }
        QCOMPARE(blocks.all().low, std::ranges::min(values));
        QCOMPARE(blocks.all().high, std::ranges::max(values));
        QVERIFY(blocks.all_are_finite());
    }
}

void tst_sampled_line::no_values()
{
    const value_blocks none({});
    QCOMPARE(none.count(), 0);
    QVERIFY(none.all_are_finite());
    QCOMPARE(none.all().low, 0.0);
    QCOMPARE(none.all().high, 0.0);
}

void tst_sampled_line::finite_values()
{
    for (const std::size_t size : {1U, 8U, 70U, 200U}) {
        for (std::size_t i = 0; i < size; ++i) {
            for (const double odd : {infinity, -infinity, no_number}) {
                std::vector<double> values(size, 2.0);
                values[i] = odd;
                QVERIFY(!value_blocks(values).all_are_finite());
                const std::vector<double> x = times(size);
                const sampled_line line(x, values);
                QVERIFY(line.is_orderly() && !line.is_finite());
                const auto number = static_cast<qsizetype>(i);
                const qsizetype block = number / value_blocks::length * value_blocks::length;
                const qsizetype behind = block + value_blocks::length;
                QVERIFY(!line.is_finite(number, number + 1));
                QVERIFY(!line.is_finite(0, line.size()));
                QVERIFY(line.is_finite(0, block));
                QVERIFY(behind >= line.size() || line.is_finite(behind, line.size()));
            }
        }
    }
}

void tst_sampled_line::order_of_times()
{
    for (const std::size_t size : {1U, 2U, 3U, 1024U, 1025U, 1026U, 3000U}) {
        const std::vector<double> rising = times(size);
        QVERIFY(is_orderly(rising));
        QVERIFY(is_orderly(std::vector<double>(size, 5.0)));
        for (std::size_t i = 0; i < size; i += i < 1000 || i > 1030 ? 41 : 1) {
            std::vector<double> changed = rising;
            changed[i] = no_number;
            QVERIFY(!is_orderly(changed));
            changed[i] = i == 0 ? -infinity : infinity;
            QVERIFY(!is_orderly(changed));
            changed[i] = i == 0 ? 1.5 : rising[i] - 1.5;
            QCOMPARE(is_orderly(changed), size == 1);
        }
    }
    QVERIFY(!is_orderly({0.0, 1.0, infinity}));
    QVERIFY(!is_orderly({-infinity, 1.0, 2.0}));
}

void tst_sampled_line::points()
{
    const std::vector<double> x{0.0, 10.0, 20.0};
    const std::vector<double> y{3.0, 1.0, 2.0};
    sampled_line line(x, y);
    QwtScaleMap x_scale;
    x_scale.setScaleInterval(0.0, 20.0);
    x_scale.setPaintInterval(0.0, 200.0);
    QwtScaleMap y_scale;
    y_scale.setScaleInterval(0.0, 4.0);
    y_scale.setPaintInterval(40.0, 0.0);
    line.set_x_scale(x_scale);
    line.set_y_scale(y_scale, {0, 40});
    QCOMPARE(line.size(), 3);
    QCOMPARE(line.x_of(1), 10.0);
    QCOMPARE(line.range().low, 1.0);
    QCOMPARE(line.range().high, 3.0);
    QCOMPARE(line.column(2), 200);
    QCOMPARE(line.pixel(0), QPoint(0, 10));
    QCOMPARE(line.pixel(1), QPoint(100, 30));
    QVERIFY((line.window() == row_window{0, 40}));
    QCOMPARE(line.rows_of(0, 3).row(2), 20);
    QCOMPARE(pixel_of(x_scale, 1e300), 1'000'000'000);
    QCOMPARE(pixel_of(x_scale, -1e300), -1'000'000'000);
}

// Times may stand still and jump.
void tst_sampled_line::first_from_column()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 100; ++round) {
        std::vector<double> x{0.0};
        while (x.size() < 150)
            x.push_back(x.back() + (random.bounded(3) == 0 ? random.bounded(9.0) : 0.0));
        const std::vector<double> y(x.size(), 1.0);
        sampled_line line(x, y);
        QwtScaleMap scale;
        scale.setScaleInterval(x[20], x[130]);
        scale.setPaintInterval(0.0, 50.0);
        line.set_x_scale(scale);
        for (int column = -5; column < 60; ++column) {
            const qsizetype first = random.bounded(150);
            const qsizetype end = random.bounded(int(first), 151);
            qsizetype expected = first;
            while (expected < end && line.column(expected) < column)
                ++expected;
            QCOMPARE(line.first_from_column(column, first, end), expected);
        }
    }
}

QTEST_GUILESS_MAIN(tst_sampled_line)
#include "tst_sampled_line.moc"
