#pragma once

#include <qwt_plot_curve.h>

#include <memory>

class sampled_line;

/// A curve of which every zoom step is quick, however many points it has: it looks like any other
/// QwtPlotCurve, but draws only what can be seen.
class long_curve : public QwtPlotCurve
{
public:
    long_curve();
    ~long_curve() override;

    QRectF boundingRect() const override;

protected:
    void drawLines(QPainter* painter, const QwtScaleMap& x_map, const QwtScaleMap& y_map,
                   const QRectF& canvas, int from, int to) const override;
    void dataChanged() override;

private:
    sampled_line* orderly_line() const;
    bool is_plain() const;

    mutable std::unique_ptr<sampled_line> line; // made from the data when it is first needed
};
