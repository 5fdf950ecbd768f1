#include "nui/CommonControls/CcFormProxy.hpp"

#include <QPainter>

namespace VoCc {

FormProxy::FormProxy(QWidget *parent) : QWidget(parent) { }

QString FormProxy::formName() const { return m_formName; }

void FormProxy::setFormName(const QString &name)
{
    m_formName = name;
    update();
}

QSize FormProxy::sizeHint() const { return QSize(160, 60); }

void FormProxy::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    const QString text = m_formName.isEmpty() ? tr("(form)") : m_formName;
    painter.drawText(rect(), Qt::AlignCenter, text);
}

} // namespace VoCc
