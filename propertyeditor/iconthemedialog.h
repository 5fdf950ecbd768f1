#pragma once

#include <QDialog>

namespace qdesigner_internal {

class IconThemeEditor;

// Asks for the name of a theme icon ("document-open"), with Designer's preview of it.
class IconThemeDialog : public QDialog
{
    Q_OBJECT
public:
    explicit IconThemeDialog(QWidget *parent);

    QString theme() const;
    void setTheme(const QString &theme);
    IconThemeEditor *editor() const { return m_editor; }

    // Runs the dialog; *ok tells whether the user accepted it.
    static QString getTheme(QWidget *parent, const QString &theme, bool *ok);

private:
    IconThemeEditor *m_editor;
};

} // namespace qdesigner_internal
