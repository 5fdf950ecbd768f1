#pragma once

#include <QtDesigner/private/shared_enums_p.h>

#include <QFont>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QToolButton;
QT_END_NAMESPACE

namespace qdesigner_internal {

class TextPropertyEditor;

// The in-place editor of a text property: Designer's line edit for texts (which shows line
// breaks as "\n") and, for multi-line and rich texts, a "..." button that opens Designer's
// plain-text or rich-text dialog.
class TextEditor : public QWidget
{
    Q_OBJECT
public:
    TextEditor(QDesignerFormEditorInterface *core, QWidget *parent);

    TextPropertyValidationMode textPropertyValidationMode() const { return m_validationMode; }
    void setTextPropertyValidationMode(TextPropertyValidationMode mode);

    QString text() const;
    void setSpacing(int spacing);
    // The font the dialogs show the text in.
    void setDefaultFont(const QFont &font) { m_defaultFont = font; }

    QToolButton *dialogButton() const { return m_button; }
    TextPropertyEditor *lineEditor() const { return m_editor; }

public slots:
    void setText(const QString &text);

signals:
    void textChanged(const QString &text);

private slots:
    void openDialog();

private:
    QDesignerFormEditorInterface *m_core;
    TextPropertyEditor *m_editor;
    QToolButton *m_button;
    TextPropertyValidationMode m_validationMode = ValidationMultiLine;
    QFont m_defaultFont;
};

} // namespace qdesigner_internal
