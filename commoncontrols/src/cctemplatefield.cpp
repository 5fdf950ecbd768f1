#include "nui/CommonControls/Template/CcTemplateField.hpp"

#include <QHBoxLayout>
#include <QLabel>

namespace VoCc {

TemplateField::TemplateField(QWidget *parent) : QWidget(parent), m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

TemplateField::~TemplateField() = default;

QString TemplateField::caption() const
{
    return m_captionLabel ? m_captionLabel->text() : QString();
}

void TemplateField::setCaption(const QString &caption)
{
    // Without a label, an empty caption leaves everything as it is.
    if (!m_captionLabel && caption.isEmpty())
        return;
    captionLabel()->setText(caption);
    m_captionLabel->setVisible(!caption.isEmpty());
}

QLabel *TemplateField::captionLabel() const
{
    if (!m_captionLabel) {
        // Most fields never get a caption, so the label is made on first use: hidden, first in
        // the row, naming the editor, as if it had been there from the start.
        auto *self = const_cast<TemplateField *>(this);
        auto *label = new QLabel(self);
        label->hide();
        m_layout->insertWidget(0, label);
        label->setBuddy(focusProxy());
        self->m_captionLabel = label;
    }
    return m_captionLabel;
}

void TemplateField::addEditor(QWidget *editor, int stretch)
{
    editor->setParent(this);
    m_layout->addWidget(editor, stretch);
    if (!focusProxy())
        setFocusProxy(editor);
    if (m_captionLabel)
        m_captionLabel->setBuddy(focusProxy());
}

QHBoxLayout *TemplateField::rowLayout() const { return m_layout; }

} // namespace VoCc
