#include "nui/CommonControls/CcPane.hpp"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace VoCc {

namespace {
const int TitlePadding = 4;
const int ArrowSize = 9;
// Marks the children that collapsing hid.
const char *const collapsedProperty = "_vocc_paneCollapsed";
} // namespace

Pane::Pane(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground, false);
    updateMargins();
}

QString Pane::title() const { return m_title; }

void Pane::setTitle(const QString &title)
{
    m_title = title;
    update(titleBarRect());
}

bool Pane::isExpanded() const { return m_expanded; }

void Pane::setExpanded(bool expanded)
{
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    // Collapsed, the pane is only its title bar: the children are hidden and the height is
    // held to the bar's, to be given back on expanding.
    if (expanded) {
        setMaximumHeight(m_expandedMaximumHeight);
        // Inside a layout the layout gives the height back; a free pane takes its own.
        if (!parentWidget() || !parentWidget()->layout())
            resize(width(), qMax(m_expandedHeight, minimumSizeHint().height()));
        const QList<QWidget *> children =
                findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *child : children) {
            if (child->property(collapsedProperty).toBool()) {
                child->setProperty(collapsedProperty, QVariant());
                child->show();
            }
        }
    } else {
        m_expandedMaximumHeight = maximumHeight();
        m_expandedHeight = height();
        hideChildren();
        setMaximumHeight(titleBarHeight());
    }
    updateGeometry();
    update();
    emit expandedChanged(expanded);
}

void Pane::hideChildren()
{
    // Only the children this pane hides come back on expanding; those hidden by anyone else
    // stay hidden.
    const QList<QWidget *> children =
            findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isHidden()) {
            child->setProperty(collapsedProperty, true);
            child->hide();
        }
    }
}

void Pane::showEvent(QShowEvent *event)
{
    // A pane collapsed before its children were made (a form loader sets properties first)
    // hides them when it is shown.
    if (!m_expanded)
        hideChildren();
    QWidget::showEvent(event);
}

QSize Pane::sizeHint() const
{
    const QSize contents = QWidget::sizeHint();
    if (!m_expanded)
        return QSize(qMax(contents.width(), 100), titleBarHeight());
    return contents.isValid() ? contents : QSize(150, 100);
}

QSize Pane::minimumSizeHint() const
{
    const QSize contents = QWidget::minimumSizeHint();
    const int height = m_expanded && contents.isValid() ? contents.height() : titleBarHeight();
    return QSize(qMax(contents.width(), fontMetrics().horizontalAdvance(m_title) + 2 * ArrowSize),
                 height);
}

void Pane::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect bar = titleBarRect();

    // The frame around the whole pane, the title bar shaded like a header.
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = rect();
    frame.frameShape = QFrame::StyledPanel;
    frame.lineWidth = 1;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    painter.fillRect(bar.adjusted(1, 1, -1, 0), palette().button());

    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(bar.left() + TitlePadding, bar.center().y() - ArrowSize / 2, ArrowSize,
                       ArrowSize);
    style()->drawPrimitive(m_expanded ? QStyle::PE_IndicatorArrowDown
                                      : QStyle::PE_IndicatorArrowRight,
                           &arrow, &painter, this);

    QRect text = bar.adjusted(2 * TitlePadding + ArrowSize, 0, -TitlePadding, 0);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, text.width()));
}

void Pane::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && titleBarRect().contains(event->pos())) {
        setExpanded(!m_expanded);
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void Pane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateMargins();
    QWidget::changeEvent(event);
}

int Pane::titleBarHeight() const { return fontMetrics().height() + 2 * TitlePadding; }

QRect Pane::titleBarRect() const { return QRect(0, 0, width(), titleBarHeight()); }

void Pane::updateMargins()
{
    // Layouts and children start below the title bar.
    setContentsMargins(1, titleBarHeight(), 1, 1);
}

} // namespace VoCc
