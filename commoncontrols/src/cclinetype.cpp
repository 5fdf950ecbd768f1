#include "nui/CommonControls/CcLineType.hpp"

#include "cclinesamples.h"

namespace VoCc {

LineType::LineType(QWidget *parent) : QComboBox(parent)
{
    const struct
    {
        Qt::PenStyle style;
        const char *name;
    } styles[] = {{Qt::SolidLine, QT_TR_NOOP("Solid")},
                  {Qt::DashLine, QT_TR_NOOP("Dash")},
                  {Qt::DotLine, QT_TR_NOOP("Dot")},
                  {Qt::DashDotLine, QT_TR_NOOP("Dash dot")},
                  {Qt::DashDotDotLine, QT_TR_NOOP("Dash dot dot")}};
    setIconSize(QSize(64, 16));
    for (const auto &entry : styles) {
        addItem(lineSampleIcon(entry.style, 2, palette().color(QPalette::Text)), tr(entry.name),
                int(entry.style));
    }
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int) { emit lineStyleChanged(lineStyle()); });
}

Qt::PenStyle LineType::lineStyle() const { return Qt::PenStyle(currentData().toInt()); }

void LineType::setLineStyle(Qt::PenStyle style)
{
    const int index = findData(int(style));
    if (index >= 0)
        setCurrentIndex(index);
}

} // namespace VoCc
