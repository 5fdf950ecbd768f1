#include "nui/CommonControls/CcColorPicker.hpp"

#include "cclazyicon.h"

#include <QPainter>
#include <QPixmap>

namespace VoCc {

namespace {
QIcon swatchIcon(const QColor &color)
{
    // Drawn when the list first shows it.
    return lazyPixmapIcon([color] {
        QPixmap pixmap(16, 16);
        pixmap.fill(color);
        QPainter painter(&pixmap);
        painter.setPen(Qt::darkGray);
        painter.drawRect(0, 0, 15, 15);
        return pixmap;
    });
}
} // namespace

ColorPicker::ColorPicker(QWidget *parent) : QComboBox(parent)
{
    const struct
    {
        Qt::GlobalColor color;
        const char *name;
    } standard[] = {{Qt::black, QT_TR_NOOP("Black")},     {Qt::white, QT_TR_NOOP("White")},
                    {Qt::red, QT_TR_NOOP("Red")},         {Qt::green, QT_TR_NOOP("Green")},
                    {Qt::blue, QT_TR_NOOP("Blue")},       {Qt::cyan, QT_TR_NOOP("Cyan")},
                    {Qt::magenta, QT_TR_NOOP("Magenta")}, {Qt::yellow, QT_TR_NOOP("Yellow")},
                    {Qt::gray, QT_TR_NOOP("Gray")}};
    for (const auto &entry : standard)
        addColor(entry.color, tr(entry.name));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int) { emit colorChanged(color()); });
}

QColor ColorPicker::color() const { return currentData().value<QColor>(); }

void ColorPicker::setColor(const QColor &color)
{
    int index = findData(color);
    if (index < 0) {
        addColor(color, color.name());
        index = count() - 1;
    }
    setCurrentIndex(index);
}

void ColorPicker::addColor(const QColor &color, const QString &name)
{
    addItem(swatchIcon(color), name, color);
}

} // namespace VoCc
