#include "cclinesamples.h"

#include "cclazyicon.h"

#include <QPainter>
#include <QPixmap>

namespace VoCc {

QIcon lineSampleIcon(Qt::PenStyle style, int width, const QColor &color)
{
    // Drawn when the list first shows it.
    return lazyPixmapIcon([style, width, color] {
        QPixmap pixmap(64, 16);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(QPen(color, width, style, Qt::FlatCap));
        painter.drawLine(2, 8, 61, 8);
        return pixmap;
    });
}

} // namespace VoCc
