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

    /// Whether no value is infinite or NaN. If there is one, nothing else here may be asked.
    bool all_are_finite() const { return finite; }

    qsizetype count() const { return static_cast<qsizetype>(blocks.size()); }
    const extent& block(qsizetype index) const { return blocks[static_cast<std::size_t>(index)]; }

    /// The range of all values; there must be at least one.
    extent all() const;

private:
    std::vector<extent> blocks;
    bool finite = true;
};
