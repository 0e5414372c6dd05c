#pragma once

#include "plot/korimo_plot.h"

#include <memory>

/// Two plots and a document on them, as the main window has them.
struct plot_pair
{
    std::unique_ptr<QwtPlot> lower = std::make_unique<QwtPlot>();
    std::unique_ptr<QwtPlot> upper = std::make_unique<QwtPlot>();
    std::unique_ptr<korimo_plot> document = std::make_unique<korimo_plot>(lower.get(), upper.get());

    void plot() const { document->plot_the_curves(lower.get(), upper.get()); }
};
