#pragma once

#include <QtTypes>

#include <span>
#include <vector>

/// The smallest and the largest of each 64 values of a series, so that the range of a long stretch
/// is found without looking at each of its values.
class value_blocks
{
public:
    static constexpr qsizetype length = 64; ///< of a block; the last one may be shorter

    struct extent
    {
        double low;
        double high;
    };

    explicit value_blocks(std::span<const double> values);

    /// Whether no value is infinite or NaN.
    bool all_are_finite() const { return finite; }

    /// The same for a block. If not, its range is unknown.
    bool is_finite(qsizetype index) const { return block(index).low <= block(index).high; }

    qsizetype count() const { return static_cast<qsizetype>(blocks.size()); }
    const extent& block(qsizetype index) const { return blocks[static_cast<std::size_t>(index)]; }

    /// The range of all values, which must be finite.
    extent all() const { return whole; }

private:
    std::vector<extent> blocks;
    extent whole{};
    bool finite = true;
};
