#include "pixmapeditor.h"

#include "iconthemedialog.h"

#include <QtDesigner/private/iconselector_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesignerFormEditorInterface>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace qdesigner_internal {

namespace {
const int previewSize = 16;
}

PixmapEditor::PixmapEditor(QDesignerFormEditorInterface *core, QWidget *parent)
    : QWidget(parent),
      m_core(core),
      m_preview(new QLabel(this)),
      m_text(new QLabel(this)),
      m_button(new QToolButton(this)),
      m_resourceAction(new QAction(tr("Choose Resource..."), this)),
      m_fileAction(new QAction(tr("Choose File..."), this)),
      m_themeAction(new QAction(tr("Set Icon From Theme..."), this)),
      m_copyAction(new QAction(tr("Copy Path"), this)),
      m_pasteAction(new QAction(tr("Paste Path"), this))
{
    m_preview->setFixedSize(previewSize, previewSize);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_button->setText(tr("..."));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    m_button->setFixedWidth(30);
    m_button->setPopupMode(QToolButton::MenuButtonPopup);

    auto *menu = new QMenu(this);
    menu->addAction(m_resourceAction);
    menu->addAction(m_fileAction);
    menu->addAction(m_themeAction);
    menu->addSeparator();
    menu->addAction(m_copyAction);
    menu->addAction(m_pasteAction);
    m_button->setMenu(menu);
    m_themeAction->setVisible(false);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_preview);
    layout->addWidget(m_text);
    layout->addWidget(m_button);
    setFocusProxy(m_button);

    connect(m_button, &QToolButton::clicked, this, &PixmapEditor::chooseResource);
    connect(m_resourceAction, &QAction::triggered, this, &PixmapEditor::chooseResource);
    connect(m_fileAction, &QAction::triggered, this, &PixmapEditor::chooseFile);
    connect(m_themeAction, &QAction::triggered, this, &PixmapEditor::chooseTheme);
    connect(m_copyAction, &QAction::triggered, this, &PixmapEditor::copyPath);
    connect(m_pasteAction, &QAction::triggered, this, &PixmapEditor::pastePath);
    updateDisplay();
}

void PixmapEditor::setSpacing(int spacing) { layout()->setSpacing(spacing); }

void PixmapEditor::setPixmapCache(DesignerPixmapCache *cache)
{
    m_pixmapCache = cache;
    updateDisplay();
}

void PixmapEditor::setIconThemeModeEnabled(bool enabled) { m_themeAction->setVisible(enabled); }

void PixmapEditor::setPath(const QString &path)
{
    if (m_path == path)
        return;
    m_path = path;
    updateDisplay();
}

void PixmapEditor::setTheme(const QString &theme)
{
    if (m_theme == theme)
        return;
    m_theme = theme;
    updateDisplay();
}

QString PixmapEditor::displayText() const { return m_text->text(); }

void PixmapEditor::updateDisplay()
{
    QPixmap preview;
    QString text;
    if (!m_path.isEmpty()) {
        text = QFileInfo(m_path).fileName();
        // A path naming a FIFO or a device is not opened: reading it could block or never end.
        const bool file = QFileInfo(m_path).isFile();
        const QPixmap pixmap = !file    ? QPixmap()
                : m_pixmapCache ? m_pixmapCache->pixmap(PropertySheetPixmapValue(m_path))
                                : QPixmap(m_path);
        if (!pixmap.isNull())
            preview = pixmap.scaled(previewSize, previewSize, Qt::KeepAspectRatio,
                                    Qt::SmoothTransformation);
    } else if (!m_theme.isEmpty()) {
        text = tr("[Theme] %1").arg(m_theme);
        preview = QIcon::fromTheme(m_theme).pixmap(previewSize, previewSize);
    }
    m_preview->setPixmap(preview);
    m_text->setText(text);
    m_text->setToolTip(m_path);
    m_copyAction->setEnabled(!m_path.isEmpty());
}

void PixmapEditor::applyPath(const QString &path)
{
    if (path.isEmpty() || path == m_path)
        return;
    setPath(path);
    emit pathChanged(path);
}

void PixmapEditor::chooseResource()
{
    applyPath(IconSelector::choosePixmapResource(m_core, m_core->resourceModel(), m_path, this));
}

void PixmapEditor::chooseFile()
{
    const QString directory = m_path.isEmpty() || m_path.startsWith(QLatin1Char(':'))
            ? QString()
            : QFileInfo(m_path).absolutePath();
    applyPath(IconSelector::choosePixmapFile(directory, m_core->dialogGui(), this));
}

void PixmapEditor::chooseTheme()
{
    bool ok = false;
    const QString theme = IconThemeDialog::getTheme(this, m_theme, &ok);
    if (!ok || theme == m_theme)
        return;
    setTheme(theme);
    emit themeChanged(theme);
}

void PixmapEditor::copyPath() { QApplication::clipboard()->setText(m_path); }

void PixmapEditor::pastePath()
{
    const QString path = QApplication::clipboard()->text().trimmed();
    if (IconSelector::checkPixmap(path, IconSelector::CheckFast))
        applyPath(path);
}

} // namespace qdesigner_internal
