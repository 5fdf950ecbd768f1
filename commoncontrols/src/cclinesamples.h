#pragma once

#include <QIcon>
#include <Qt>

namespace VoCc {

// A sample of a line drawn with a pen style and width, for the entries of line pickers.
QIcon lineSampleIcon(Qt::PenStyle style, int width, const QColor &color);

} // namespace VoCc
