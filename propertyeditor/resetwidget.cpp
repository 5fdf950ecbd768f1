#include "resetwidget.h"

#include <QtDesigner/private/iconloader_p.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace qdesigner_internal {

ResetWidget::ResetWidget(QtProperty *property, QWidget *parent)
    : QWidget(parent),
      m_property(property),
      m_layout(new QHBoxLayout(this)),
      m_iconLabel(new QLabel(this)),
      m_textLabel(new QLabel(this)),
      m_button(new QToolButton(this))
{
    m_textLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_button->setIcon(createIconSet(QStringLiteral("resetproperty.png")));
    m_button->setIconSize(QSize(8, 8));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
    m_button->setToolTip(tr("Reset to default"));
    m_button->setAutoRaise(true);
    connect(m_button, &QToolButton::clicked, this, &ResetWidget::slotClicked);

    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_iconLabel);
    m_layout->addWidget(m_textLabel);
    m_layout->addWidget(m_button);
    setFocusProxy(m_textLabel);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ResetWidget::setWidget(QWidget *widget)
{
    if (m_widget) {
        delete m_widget;
        m_widget = nullptr;
    }
    delete m_iconLabel;
    m_iconLabel = nullptr;
    delete m_textLabel;
    m_textLabel = nullptr;
    m_widget = widget;
    if (!widget)
        return;
    m_layout->insertWidget(0, widget);
    setFocusProxy(widget);
}

void ResetWidget::setResetEnabled(bool enabled) { m_button->setEnabled(enabled); }

void ResetWidget::setValueText(const QString &text)
{
    if (m_textLabel)
        m_textLabel->setText(text);
}

void ResetWidget::setValueIcon(const QIcon &icon)
{
    if (!m_iconLabel)
        return;
    const QPixmap pixmap = icon.pixmap(QSize(16, 16));
    m_iconLabel->setPixmap(pixmap);
    m_iconLabel->setVisible(!pixmap.isNull());
}

void ResetWidget::setSpacing(int spacing) { m_layout->setSpacing(spacing); }

void ResetWidget::slotClicked() { emit resetProperty(m_property); }

} // namespace qdesigner_internal
