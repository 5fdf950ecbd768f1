#include "dialogvalueeditor_p.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace CcPropertyBrowserDetail {

DialogValueEditor::DialogValueEditor(QWidget *parent)
    : QWidget(parent),
      m_iconLabel(new QLabel(this)),
      m_textLabel(new QLabel(this)),
      m_button(new QToolButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_iconLabel);
    layout->addWidget(m_textLabel, 1);
    layout->addWidget(m_button);

    m_button->setText(QStringLiteral("..."));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_button->setFixedWidth(20);
    m_textLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFocusProxy(m_button);
    setFocusPolicy(m_button->focusPolicy());
    setAutoFillBackground(true);
    connect(m_button, &QToolButton::clicked, this, &DialogValueEditor::buttonClicked);
}

void DialogValueEditor::setValue(const QIcon &icon, const QString &text)
{
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_iconLabel->setPixmap(icon.pixmap(extent, extent));
    m_iconLabel->setVisible(!icon.isNull());
    m_textLabel->setText(text);
}

} // namespace CcPropertyBrowserDetail
