#include "examples/linear_store.h"

#include <algorithm>

namespace example {

linear_store::linear_store(seconds residence, seconds step, flow initial)
    : divisor_(residence + step / 2)
    , half_step_(volume_per_half_step(step))
    , outflow_(initial)
    , stock_(initial * residence / 10)
{
}

void linear_store::advance(volume supply)
{
    const volume available = std::max<volume>(0, stock_ + supply - half_step_ * outflow_);
    outflow_ = div_round(available * 10, divisor_);
    stock_ = available - half_step_ * outflow_;
}

store_cascade::store_cascade(int count, seconds residence, seconds step, flow initial)
    : half_step_(volume_per_half_step(step))
    , stores_(static_cast<std::size_t>(count), linear_store(residence, step, initial))
{
}

void store_cascade::advance(volume supply)
{
    for (linear_store& store : stores_) {
        const flow before = store.outflow();
        store.advance(supply);
        supply = half_step_ * (before + store.outflow());
    }
}

volume store_cascade::stock() const
{
    volume sum = 0;
    for (const linear_store& store : stores_) {
        sum += store.stock();
    }
    return sum;
}

} // namespace example
