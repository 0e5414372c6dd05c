#include "plot/drawing/pixel_rows.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

using rows_in_order = std::vector<int>;

// Farther away than this, rows need only be so.
constexpr int far_away = pixel_rows::farthest_row - pixel_rows::farthest_window;

QwtScaleMap scale_from(double low, double high, double bottom, double top)
{
    QwtScaleMap map;
    map.setScaleInterval(low, high);
    map.setPaintInterval(bottom, top);
    return map;
}

int bounded(double place)
{
    return static_cast<int>(std::clamp<double>(std::round(place), -far_away, far_away));
}

rows_in_order literal_rows(const std::vector<double>& values, const QwtScaleMap& scale)
{
    rows_in_order rows;
    for (const double value : values)
        rows.push_back(bounded(scale.transform(value)));
    return rows;
}

bool is_above(int row, const row_window& window)
{
    return row < window.top;
}

bool is_below(int row, const row_window& window)
{
    return row > window.bottom;
}

// One for each edge that is crossed and one for a place within, if there is a step at all.
int literal_vertices(int from, int to, const row_window& window)
{
    int count = 0;
    if (from == to)
        return count;
    if (is_above(from, window) != is_above(to, window))
        ++count;
    if (is_below(from, window) != is_below(to, window))
        ++count;
    if (!is_above(to, window) && !is_below(to, window))
        ++count;
    return count;
}

int literal_vertices_at(const rows_in_order& rows, std::size_t index, const row_window& window)
{
    return index == 0 ? 0 : literal_vertices(rows[index - 1], rows[index], window);
}

std::optional<qsizetype> literal_next(const rows_in_order& rows, qsizetype index, qsizetype last)
{
    for (qsizetype i = index + 1; i <= last; ++i) {
        if (rows[static_cast<std::size_t>(i)] != rows[static_cast<std::size_t>(index)])
            return i;
    }
    return std::nullopt;
}

std::optional<qsizetype> literal_previous(const rows_in_order& rows, qsizetype index,
                                          qsizetype first)
{
    for (qsizetype i = index - 1; i >= first; --i) {
        if (rows[static_cast<std::size_t>(i)] != rows[static_cast<std::size_t>(index)])
            return i;
    }
    return std::nullopt;
}

// Values that stay, change a little, lie at the half of a row or far away, all for some time.
std::vector<double> random_values(qsizetype size, QRandomGenerator& random)
{
    std::vector<double> values;
    double value = 50.0;
    int kind = 0;
    while (static_cast<qsizetype>(values.size()) < size) {
        if (random.bounded(40) == 0)
            kind = random.bounded(5);
        if (kind == 1)
            value = random.bounded(100.0);
        else if (kind == 2)
            value = random.bounded(100) + 0.5;
        else if (kind == 3)
            value = random.bounded(2) == 0 ? 1e6 : random.bounded(2) == 0 ? -1e6 : 1e300;
        else if (kind == 4)
            value = 20.0 + 0.1 * random.bounded(3);
        values.push_back(value);
    }
    return values;
}

// Asks all that can be asked of the points from `first` to the one before `end`.
void compare(pixel_rows& rows, const rows_in_order& expected, const row_window& window,
             qsizetype first, qsizetype end)
{
    rows.find(first, end);
    int vertices = 0;
    row_range range{far_away, -far_away};
    for (qsizetype i = first; i < end; ++i) {
        const auto index = static_cast<std::size_t>(i);
        QCOMPARE(bounded(rows.row(i)), expected[index]);
        QCOMPARE(rows.vertices_at(i), literal_vertices_at(expected, index, window));
        vertices += rows.vertices_at(i);
        range = {std::min(range.top, expected[index]), std::max(range.bottom, expected[index])};
        if (std::abs(expected[index]) == far_away)
            continue;
        QCOMPARE(rows.next_row(i, end - 1), literal_next(expected, i, end - 1));
        QCOMPARE(rows.previous_row(i, first), literal_previous(expected, i, first));
    }
    const auto [found, sum] = rows.sum_up(first, end);
    QCOMPARE(bounded(found.top), range.top);
    QCOMPARE(bounded(found.bottom), range.bottom);
    QCOMPARE(sum, vertices);
}

} // namespace

class tst_pixel_rows : public QObject
{
    Q_OBJECT

private slots:
    void window_of_rows();
    void vertices_of_a_step();
    void parts_of_a_series_data();
    void parts_of_a_series();
    void moved_scales_data();
    void moved_scales();
    void rows_are_kept_while_the_scale_moves();
    void rows_at_the_half();
    void level_blocks_at_the_half_data();
    void level_blocks_at_the_half();
    void rows_that_come_near();
    void scales_that_differ_in_one_number();
    void windows_of_a_moved_scale();
};

void tst_pixel_rows::window_of_rows()
{
    const row_window window{3, 7};
    const row_range range{3, 7};
    for (int row = 0; row < 11; ++row) {
        QCOMPARE(window.has(row), row >= 3 && row <= 7);
        QCOMPARE(range.has(row), row >= 3 && row <= 7);
    }
    QVERIFY(window.has(3.0) && window.has(6.9) && !window.has(2.9) && !window.has(7.1));
}

void tst_pixel_rows::vertices_of_a_step()
{
    const row_window window{3, 7};
    for (int from = 0; from < 11; ++from) {
        for (int to = 0; to < 11; ++to) {
            QCOMPARE(window.vertices_of_change(from, to), literal_vertices(from, to, window));
            const int same = from == to && window.has(to) ? 1 : 0;
            QCOMPARE(window.vertices_of_step(from, to), literal_vertices(from, to, window) + same);
        }
    }
}

void tst_pixel_rows::parts_of_a_series_data()
{
    QTest::addColumn<qsizetype>("size");
    for (const qsizetype size : {1, 2, 63, 64, 65, 127, 128, 129, 200, 640})
        QTest::addRow("%lld", static_cast<long long>(size)) << size;
}

void tst_pixel_rows::parts_of_a_series()
{
    QFETCH(qsizetype, size);
    QRandomGenerator random(static_cast<quint32>(size));
    for (int i = 0; i < 60; ++i) {
        const std::vector<double> values = random_values(size, random);
        const value_blocks ranges(values);
        pixel_rows rows(values, ranges);
        const QwtScaleMap scale = scale_from(0.0, 100.0, 100.0, 0.0);
        const row_window window{random.bounded(0, 50), random.bounded(50, 100)};
        rows.set_scale(scale, window);
        const rows_in_order expected = literal_rows(values, scale);
        const qsizetype first = random.bounded(size);
        compare(rows, expected, window, first, random.bounded(first, size) + 1);
        compare(rows, expected, window, 0, size);
    }
}

// Each move: by how many rows the scale moves and how much longer it becomes.
void tst_pixel_rows::moved_scales_data()
{
    QTest::addColumn<QList<double>>("moves");
    QTest::newRow("whole rows") << QList<double>{1, -3, 100, -50, 7};
    QTest::newRow("none") << QList<double>{0, 0};
    QTest::newRow("parts of a row") << QList<double>{0.25, 0.5, 0.75, -0.5};
    QTest::newRow("nearly whole rows") << QList<double>{1.00001, 0.99999, 2.0000001};
    QTest::newRow("far") << QList<double>{9'000, 900, 99, 1, 1, 5'000, -15'000, -14'000};
    QTest::newRow("both") << QList<double>{3, 0.5, 4, 2.5, -3};
}

void tst_pixel_rows::moved_scales()
{
    QFETCH(QList<double>, moves);
    QRandomGenerator random(7);
    for (int i = 0; i < 40; ++i) {
        const std::vector<double> values = random_values(random.bounded(1, 400), random);
        const auto size = static_cast<qsizetype>(values.size());
        const value_blocks ranges(values);
        pixel_rows rows(values, ranges);
        double start = 0.0;
        double length = 100.0;
        for (const double move : moves) {
            start += move;
            if (random.bounded(6) == 0)
                length = 101.0;
            const QwtScaleMap scale = scale_from(start, start + length, 100.0, 0.0);
            const row_window window{random.bounded(0, 50), random.bounded(50, 100)};
            rows.set_scale(scale, window);
            const rows_in_order expected = literal_rows(values, scale);
            const qsizetype first = random.bounded(size);
            compare(rows, expected, window, first, random.bounded(first, size) + 1);
        }
    }
}

// The values are others meanwhile: only what is found anew shows that.
void tst_pixel_rows::rows_are_kept_while_the_scale_moves()
{
    QRandomGenerator random(11);
    std::vector<double> values(500);
    for (double& value : values)
        value = random.bounded(100) + 0.2;
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    const auto scale_at = [](double start) {
        return scale_from(start, start + 100.0, 210.0, 10.0); // two rows for one
    };
    const row_window window{0, 210};
    rows.set_scale(scale_at(0.0), window);
    rows.find(0, 500);
    const rows_in_order expected = literal_rows(values, scale_at(0.0));
    std::ranges::fill(values, 7.2);
    for (const int start : {3, -40, 20, 0}) {
        rows.set_scale(scale_at(start), window);
        rows.find(0, 500);
        for (qsizetype i = 0; i < 500; ++i)
            QCOMPARE(rows.row(i), expected[static_cast<std::size_t>(i)] + 2 * start);
    }
    rows.set_scale(scale_from(0.0, 50.0, 210.0, 10.0), window);
    rows.find(0, 500);
    for (qsizetype i = 0; i < 500; ++i)
        QCOMPARE(rows.row(i), 181); // 181.2
}

// A move by whole rows may round such a value otherwise than before.
void tst_pixel_rows::rows_at_the_half()
{
    std::vector<double> values(300);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t hundreds = i / 100;
        values[i] = 0.1 * static_cast<double>(i % 7) + 0.05 * static_cast<double>(hundreds);
    }
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    for (int i = 0; i < 400; ++i) {
        const double start = 0.1 * (i * 37 % 91) / 3.0;
        const QwtScaleMap scale = scale_from(start, start + 10.0, 300.5, 0.5);
        rows.set_scale(scale, {0, 300});
        compare(rows, literal_rows(values, scale), {0, 300}, 0, 300);
    }
}

// Each block has two values that are nearly the same: one at the half of a row, the other farther
// away than an error of rounding.
void tst_pixel_rows::level_blocks_at_the_half_data()
{
    QTest::addColumn<double>("other");
    QTest::newRow("one value") << 0.0;
    QTest::newRow("another above") << 0.003;
    QTest::newRow("another below") << -0.003;
}

void tst_pixel_rows::level_blocks_at_the_half()
{
    QFETCH(double, other);
    std::vector<double> values(640);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = 0.1 * static_cast<double>(i / 64 * 5 % 7) + (i % 2 == 0 ? 0.0 : other);
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    for (int i = 0; i < 400; ++i) {
        const double start = 0.1 * (i * 37 % 91) / 3.0;
        const QwtScaleMap scale = scale_from(start, start + 10.0, 2.5, -297.5);
        rows.set_scale(scale, {-300, 300});
        compare(rows, literal_rows(values, scale), {-300, 300}, 0, 640);
    }
}

// What was too far away to be told from other rows may come into sight, if the scale moves far.
void tst_pixel_rows::rows_that_come_near()
{
    std::vector<double> values(200, 50.0);
    values[70] = 40'000.0;
    values[150] = -45'000.0;
    const value_blocks ranges(values);
    for (const int step : {500, 9'999, 10'000, 10'001, 20'000, 30'000}) {
        pixel_rows rows(values, ranges);
        for (int start = -45'000; start < 45'000; start += step) {
            const QwtScaleMap scale = scale_from(start, start + 100.0, 100.0, 0.0);
            rows.set_scale(scale, {0, 100});
            compare(rows, literal_rows(values, scale), {0, 100}, 0, 200);
        }
    }
}

// And windows that do.
void tst_pixel_rows::scales_that_differ_in_one_number()
{
    QRandomGenerator random(9);
    const std::vector<double> values = random_values(300, random);
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    struct step
    {
        QwtScaleMap scale;
        row_window window;
    };
    const step steps[] = {
        {scale_from(0.0, 100.0, 100.0, 0.0), {10, 90}},
        {scale_from(0.0, 100.0, 100.0, 0.0), {20, 90}},
        {scale_from(0.0, 100.0, 100.0, 0.0), {20, 70}},
        {scale_from(0.0, 90.0, 100.0, 0.0), {20, 70}},
        {scale_from(5.0, 90.0, 100.0, 0.0), {20, 70}},
        {scale_from(5.0, 90.0, 95.0, 0.0), {20, 70}},
        {scale_from(5.0, 90.0, 95.0, 7.0), {20, 70}},
        {scale_from(6.0, 90.0, 95.0, 7.0), {20, 70}},
        {scale_from(6.0, 90.0, 95.0, 7.0), {20, 70}},
    };
    for (const auto& [scale, window] : steps) {
        rows.set_scale(scale, window);
        compare(rows, literal_rows(values, scale), window, 0, 300);
    }
}

// The window that is kept in mind is that of the rows before they moved.
void tst_pixel_rows::windows_of_a_moved_scale()
{
    QRandomGenerator random(12);
    std::vector<double> values(300);
    for (double& value : values)
        value = random.bounded(100);
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    for (const auto& [start, window] :
         {std::pair{0.0, row_window{10, 90}}, std::pair{3.0, row_window{10, 90}},
          std::pair{3.0, row_window{4, 90}}, std::pair{3.0, row_window{4, 84}},
          std::pair{3.0, row_window{30, 60}}}) {
        const QwtScaleMap scale = scale_from(start, start + 100.0, 100.0, 0.0);
        rows.set_scale(scale, window);
        compare(rows, literal_rows(values, scale), window, 0, 300);
    }
}

QTEST_GUILESS_MAIN(tst_pixel_rows)
#include "tst_pixel_rows.moc"
