#include "texteditor.h"

#include <QtDesigner/private/plaintexteditor_p.h>
#include <QtDesigner/private/richtexteditor_p.h>
#include <QtDesigner/private/textpropertyeditor_p.h>

#include <QDialog>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>

namespace qdesigner_internal {

TextEditor::TextEditor(QDesignerFormEditorInterface *core, QWidget *parent)
    : QWidget(parent),
      m_core(core),
      m_editor(new TextPropertyEditor(this, TextPropertyEditor::EmbeddingTreeView)),
      m_button(new QToolButton(this))
{
    m_button->setText(tr("..."));
    m_button->setToolTip(tr("Edit text"));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    m_button->setFixedWidth(20);
    setFocusProxy(m_editor);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor);
    layout->addWidget(m_button);

    connect(m_editor, &TextPropertyEditor::textChanged, this, &TextEditor::textChanged);
    connect(m_button, &QToolButton::clicked, this, &TextEditor::openDialog);
    setTextPropertyValidationMode(ValidationMultiLine);
}

void TextEditor::setTextPropertyValidationMode(TextPropertyValidationMode mode)
{
    m_validationMode = mode;
    m_editor->setTextPropertyValidationMode(mode);
    // Only texts with line breaks or markup have a dialog to go with them.
    m_button->setVisible(mode == ValidationMultiLine || mode == ValidationRichText);
}

QString TextEditor::text() const { return m_editor->text(); }

void TextEditor::setText(const QString &text) { m_editor->setText(text); }

void TextEditor::setSpacing(int spacing) { layout()->setSpacing(spacing); }

void TextEditor::openDialog()
{
    const QString oldText = m_editor->text();
    QString newText;
    if (m_validationMode == ValidationRichText) {
        RichTextEditorDialog dialog(m_core, this);
        dialog.setDefaultFont(m_defaultFont);
        dialog.setText(oldText);
        if (dialog.showDialog() != QDialog::Accepted)
            return;
        newText = dialog.text(Qt::AutoText);
    } else {
        PlainTextEditorDialog dialog(m_core, this);
        dialog.setDefaultFont(m_defaultFont);
        dialog.setText(oldText);
        if (dialog.showDialog() != QDialog::Accepted)
            return;
        newText = dialog.text();
    }
    if (newText == oldText)
        return;
    {
        const QSignalBlocker blocker(m_editor);
        m_editor->setText(newText);
    }
    emit textChanged(newText);
}

} // namespace qdesigner_internal
