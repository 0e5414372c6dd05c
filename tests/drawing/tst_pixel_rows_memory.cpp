#include "plot/drawing/pixel_rows.h"

#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t largest_allocation = 0; // in bytes

} // namespace

// What the standard library's containers hold.
// NOLINTBEGIN(cppcoreguidelines-no-malloc): these are what everything else is made of.
void* operator new(std::size_t size)
{
    largest_allocation = std::max(largest_allocation, size);
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc)

class tst_pixel_rows_memory : public QObject
{
    Q_OBJECT

private slots:
    void scales_gone_by();
};

// A zoom of the value axis takes no more memory than the one before.
void tst_pixel_rows_memory::scales_gone_by()
{
    constexpr std::size_t count = 64'000;
    std::vector<double> values(count);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<double>(i % 100);
    const value_blocks ranges(values);
    pixel_rows rows(values, ranges);
    largest_allocation = 0;
    for (int i = 0; i < 50; ++i) {
        QwtScaleMap scale;
        scale.setScaleInterval(0.0, 100.0 + i);
        scale.setPaintInterval(100.0, 0.0);
        rows.set_scale(scale, {0, 100});
        rows.find(0, static_cast<qsizetype>(count));
    }
    QVERIFY(largest_allocation >= count * sizeof(qint16));
    QVERIFY(largest_allocation < 4 * count * sizeof(qint16));
}

QTEST_GUILESS_MAIN(tst_pixel_rows_memory)
#include "tst_pixel_rows_memory.moc"
