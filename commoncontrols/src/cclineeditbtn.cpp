#include "nui/CommonControls/CcLineEditBtn.hpp"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

namespace VoCc {

LineEditBtn::LineEditBtn(QWidget *parent)
    : QWidget(parent), m_lineEdit(new QLineEdit(this)), m_button(new QToolButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_lineEdit, 1);
    layout->addWidget(m_button);
    m_button->setText(QStringLiteral("..."));
    setFocusProxy(m_lineEdit);
    setSizePolicy(m_lineEdit->sizePolicy());
    connect(m_lineEdit, &QLineEdit::textChanged, this, &LineEditBtn::textChanged);
    connect(m_button, &QToolButton::clicked, this, &LineEditBtn::buttonClicked);
}

QLineEdit *LineEditBtn::lineEdit() const { return m_lineEdit; }

QToolButton *LineEditBtn::button() const { return m_button; }

QString LineEditBtn::text() const { return m_lineEdit->text(); }

void LineEditBtn::setText(const QString &text) { m_lineEdit->setText(text); }

QString LineEditBtn::buttonText() const { return m_button->text(); }

void LineEditBtn::setButtonText(const QString &text) { m_button->setText(text); }

bool LineEditBtn::isReadOnly() const { return m_lineEdit->isReadOnly(); }

void LineEditBtn::setReadOnly(bool readOnly) { m_lineEdit->setReadOnly(readOnly); }

} // namespace VoCc
