#include "nui/CommonControls/CcColorButton.hpp"

#include <QColorDialog>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace VoCc {

ColorButton::ColorButton(QWidget *parent) : QToolButton(parent)
{
    setToolTip(m_color.name());
    connect(this, &QToolButton::clicked, this, &ColorButton::chooseColor);
}

QColor ColorButton::color() const { return m_color; }

void ColorButton::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    setToolTip(color.name());
    update();
    emit colorChanged(color);
}

QSize ColorButton::sizeHint() const { return QSize(40, QToolButton::sizeHint().height()); }

void ColorButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    // The swatch, with a checkerboard behind it so that transparency shows.
    const QRect swatch = rect().adjusted(5, 5, -6, -6);
    painter.fillRect(swatch, QBrush(Qt::lightGray, Qt::Dense4Pattern));
    painter.fillRect(swatch, m_color);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(swatch);
}

void ColorButton::chooseColor()
{
    const QColor chosen =
            QColorDialog::getColor(m_color, this, QString(), QColorDialog::ShowAlphaChannel);
    if (chosen.isValid())
        setColor(chosen);
}

} // namespace VoCc
