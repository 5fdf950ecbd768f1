#include "iconthemedialog.h"

#include <QtDesigner/private/iconselector_p.h>

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace qdesigner_internal {

IconThemeDialog::IconThemeDialog(QWidget *parent)
    : QDialog(parent), m_editor(new IconThemeEditor(this, false))
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setWindowTitle(tr("Set Icon From Theme"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_editor);
    layout->addStretch();
    layout->addWidget(buttons);
}

QString IconThemeDialog::theme() const { return m_editor->theme(); }

void IconThemeDialog::setTheme(const QString &theme) { m_editor->setTheme(theme); }

QString IconThemeDialog::getTheme(QWidget *parent, const QString &theme, bool *ok)
{
    IconThemeDialog dialog(parent);
    dialog.setTheme(theme);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (ok)
        *ok = accepted;
    return accepted ? dialog.theme() : theme;
}

} // namespace qdesigner_internal
