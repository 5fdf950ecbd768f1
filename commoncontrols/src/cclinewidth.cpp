#include "nui/CommonControls/CcLineWidth.hpp"

#include "cclinesamples.h"

namespace VoCc {

LineWidth::LineWidth(QWidget *parent) : QComboBox(parent)
{
    setIconSize(QSize(64, 16));
    fill();
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int) { emit lineWidthChanged(lineWidth()); });
}

int LineWidth::lineWidth() const { return currentData().toInt(); }

void LineWidth::setLineWidth(int width)
{
    const int index = findData(width);
    if (index >= 0)
        setCurrentIndex(index);
}

int LineWidth::maximumLineWidth() const { return m_maximumLineWidth; }

void LineWidth::setMaximumLineWidth(int width)
{
    width = qBound(1, width, 16);
    if (width == m_maximumLineWidth)
        return;
    const int current = lineWidth();
    m_maximumLineWidth = width;
    fill();
    setLineWidth(qMin(current, width));
}

void LineWidth::fill()
{
    clear();
    for (int width = 1; width <= m_maximumLineWidth; ++width) {
        addItem(lineSampleIcon(Qt::SolidLine, width, palette().color(QPalette::Text)),
                tr("%1 px").arg(width), width);
    }
}

} // namespace VoCc
