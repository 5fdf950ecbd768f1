#include "nui/CommonControls/CcForm.hpp"

#include <QPainter>

namespace VoCc {

Form::Form(QWidget *parent) : QWidget(parent) { }

Form::Mode Form::mode() const { return m_mode; }

void Form::setMode(Mode mode)
{
    m_mode = mode;
    update();
}

QString Form::functionName() const { return m_functionName; }

void Form::setFunctionName(const QString &name) { m_functionName = name; }

void Form::paintEvent(QPaintEvent *)
{
    // A dockable form marks its edge with a grip line along the top, where the dock
    // window's title bar will be.
    if (m_mode != Dockable)
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DotLine));
    painter.drawLine(2, 1, width() - 3, 1);
}

} // namespace VoCc
