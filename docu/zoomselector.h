#pragma once

#include <QComboBox>
#include <QPdfView>

/// Offers the zoom of a page view: two ways to fit the page, a list of percentages, and any
/// percentage that the user types. Factors are fractions: 1.0 is 100 %.
class ZoomSelector : public QComboBox
{
    Q_OBJECT

public:
    explicit ZoomSelector(QWidget* parent);

public slots:
    /// Shows the factor as a whole percentage.
    void setZoomFactor(qreal zoomFactor);
    /// Goes back to 100 %.
    void reset();

signals:
    void zoomModeChanged(QPdfView::ZoomMode zoomMode);
    void zoomFactorChanged(qreal zoomFactor);

private slots:
    void onCurrentTextChanged(const QString& text);
};
