#include "nui/CommonControls/CcColorPanel.hpp"

#include <QMouseEvent>
#include <QPainter>

namespace VoCc {

namespace {
const int SwatchSize = 16;
const int SwatchSpacing = 3;

QList<QColor> standardColors()
{
    QList<QColor> colors;
    const Qt::GlobalColor named[] = {Qt::black,     Qt::darkGray, Qt::gray,        Qt::lightGray,
                                     Qt::white,     Qt::red,      Qt::darkRed,     Qt::green,
                                     Qt::darkGreen, Qt::blue,     Qt::darkBlue,    Qt::cyan,
                                     Qt::darkCyan,  Qt::magenta,  Qt::darkMagenta, Qt::yellow};
    for (Qt::GlobalColor color : named)
        colors.append(QColor(color));
    return colors;
}
} // namespace

ColorPanel::ColorPanel(QWidget *parent) : ColorPanel(parent, Qt::WindowFlags()) { }

ColorPanel::ColorPanel(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_colors(standardColors())
{ }

QColor ColorPanel::color() const { return m_color; }

void ColorPanel::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
    emit colorChanged(color);
}

int ColorPanel::columns() const { return m_columns; }

void ColorPanel::setColumns(int columns)
{
    m_columns = qMax(1, columns);
    updateGeometry();
    update();
}

QList<QColor> ColorPanel::colors() const { return m_colors; }

void ColorPanel::setColors(const QList<QColor> &colors)
{
    m_colors = colors;
    updateGeometry();
    update();
}

QSize ColorPanel::sizeHint() const
{
    const int rows = (m_colors.size() + m_columns - 1) / m_columns;
    return QSize(m_columns * (SwatchSize + SwatchSpacing) + SwatchSpacing,
                 qMax(1, rows) * (SwatchSize + SwatchSpacing) + SwatchSpacing);
}

void ColorPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int i = 0; i < m_colors.size(); ++i) {
        const QRect swatch = swatchRect(i);
        painter.fillRect(swatch, m_colors.at(i));
        const bool selected = m_colors.at(i) == m_color;
        painter.setPen(QPen(palette().color(selected ? QPalette::Highlight : QPalette::Shadow),
                            selected ? 2 : 1));
        painter.drawRect(swatch);
    }
}

void ColorPanel::mousePressEvent(QMouseEvent *event)
{
    for (int i = 0; i < m_colors.size(); ++i) {
        if (swatchRect(i).contains(event->pos())) {
            setColor(m_colors.at(i));
            emit colorSelected(m_colors.at(i));
            return;
        }
    }
    QWidget::mousePressEvent(event);
}

QRect ColorPanel::swatchRect(int index) const
{
    const int row = index / m_columns;
    const int column = index % m_columns;
    return QRect(SwatchSpacing + column * (SwatchSize + SwatchSpacing),
                 SwatchSpacing + row * (SwatchSize + SwatchSpacing), SwatchSize, SwatchSize);
}

} // namespace VoCc
