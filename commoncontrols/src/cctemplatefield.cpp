#include "nui/CommonControls/Template/CcTemplateField.hpp"

#include <QHBoxLayout>
#include <QLabel>

namespace VoCc {

TemplateField::TemplateField(QWidget *parent)
    : QWidget(parent), m_layout(new QHBoxLayout(this)), m_captionLabel(new QLabel(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    m_layout->addWidget(m_captionLabel);
    m_captionLabel->hide();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

TemplateField::~TemplateField() = default;

QString TemplateField::caption() const { return m_captionLabel->text(); }

void TemplateField::setCaption(const QString &caption)
{
    m_captionLabel->setText(caption);
    m_captionLabel->setVisible(!caption.isEmpty());
}

QLabel *TemplateField::captionLabel() const { return m_captionLabel; }

void TemplateField::addEditor(QWidget *editor, int stretch)
{
    editor->setParent(this);
    m_layout->addWidget(editor, stretch);
    if (!focusProxy())
        setFocusProxy(editor);
    m_captionLabel->setBuddy(focusProxy());
}

QHBoxLayout *TemplateField::rowLayout() const { return m_layout; }

} // namespace VoCc
