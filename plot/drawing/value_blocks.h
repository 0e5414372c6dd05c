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

    /// `values` must outlive this.
    explicit value_blocks(std::span<const double> values);

    /// Whether no value is infinite or NaN. If there is one, nothing else here may be asked.
    bool all_are_finite() const { return finite; }

    const extent& block(qsizetype index) const { return blocks[static_cast<std::size_t>(index)]; }

    /// The range of the values from `first` to the one before `end`; there must be at least one.
    extent range(qsizetype first, qsizetype end) const;

private:
    std::span<const double> values;
    std::vector<extent> blocks;
    bool finite = true;
};
