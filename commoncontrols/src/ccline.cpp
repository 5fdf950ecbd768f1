#include "nui/CommonControls/CcLine.hpp"

namespace VoCc {

Line::Line(QWidget *parent) : QFrame(parent)
{
    setFrameShape(QFrame::HLine);
    setFrameShadow(QFrame::Sunken);
}

Qt::Orientation Line::orientation() const
{
    return frameShape() == QFrame::VLine ? Qt::Vertical : Qt::Horizontal;
}

void Line::setOrientation(Qt::Orientation orientation)
{
    setFrameShape(orientation == Qt::Vertical ? QFrame::VLine : QFrame::HLine);
}

} // namespace VoCc
