#include "docu/zoomselector.h"

#include <QLineEdit>

#include <cmath>

namespace {

constexpr QLatin1StringView fitWidth("Fit Width");
constexpr QLatin1StringView fitPage("Fit Page");
constexpr int indexOf100 = 8;

// Text that is no whole number stands for 100 %.
qreal factorOf(QString text)
{
    bool ok = false;
    const int percent = text.remove(u'%').toInt(&ok);
    return ok ? percent / 100.0 : 1.0;
}

} // namespace

ZoomSelector::ZoomSelector(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    addItems({fitWidth, fitPage, QStringLiteral("12%"), QStringLiteral("25%"),
              QStringLiteral("33%"), QStringLiteral("50%"), QStringLiteral("66%"),
              QStringLiteral("75%"), QStringLiteral("100%"), QStringLiteral("125%"),
              QStringLiteral("150%"), QStringLiteral("200%"), QStringLiteral("400%")});
    connect(this, &QComboBox::currentTextChanged, this, &ZoomSelector::onCurrentTextChanged);
    connect(lineEdit(), &QLineEdit::editingFinished, this,
            [this] { onCurrentTextChanged(lineEdit()->text()); });
}

// Deliberate: the new text comes back as a zoom of its own, so that the view takes the rounded
// percentage; the same text again is no change, which ends the loop.
void ZoomSelector::setZoomFactor(qreal zoomFactor)
{
    setCurrentText(QString::number(std::round(zoomFactor * 100), 'f', 0) + u'%');
}

void ZoomSelector::reset()
{
    setCurrentIndex(indexOf100);
}

void ZoomSelector::onCurrentTextChanged(const QString& text)
{
    if (text == fitWidth) {
        emit zoomModeChanged(QPdfView::ZoomMode::FitToWidth);
    } else if (text == fitPage) {
        emit zoomModeChanged(QPdfView::ZoomMode::FitInView);
    } else {
        emit zoomModeChanged(QPdfView::ZoomMode::Custom);
        emit zoomFactorChanged(factorOf(text));
    }
}
