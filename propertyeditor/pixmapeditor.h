#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QAction;
class QDesignerFormEditorInterface;
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerPixmapCache;

// The in-place editor of an icon or pixmap property: a preview, the file name and a "..."
// button whose menu picks a resource, a file or (for icons) a theme icon, and copies or
// pastes the path. Clicking the button itself picks a resource, as in Designer.
class PixmapEditor : public QWidget
{
    Q_OBJECT
public:
    PixmapEditor(QDesignerFormEditorInterface *core, QWidget *parent);

    void setSpacing(int spacing);
    void setPixmapCache(DesignerPixmapCache *cache);
    // Icons may come from the icon theme; pixmaps may not.
    void setIconThemeModeEnabled(bool enabled);

    QString path() const { return m_path; }
    QString theme() const { return m_theme; }
    QString displayText() const;

    QToolButton *button() const { return m_button; }
    QAction *chooseResourceAction() const { return m_resourceAction; }
    QAction *chooseFileAction() const { return m_fileAction; }
    QAction *themeAction() const { return m_themeAction; }

public slots:
    // Only show the values; nothing is emitted.
    void setPath(const QString &path);
    void setTheme(const QString &theme);

signals:
    void pathChanged(const QString &path);
    void themeChanged(const QString &theme);

private slots:
    void chooseResource();
    void chooseFile();
    void chooseTheme();
    void copyPath();
    void pastePath();

private:
    void applyPath(const QString &path);
    void updateDisplay();

    QDesignerFormEditorInterface *m_core;
    DesignerPixmapCache *m_pixmapCache = nullptr;
    QLabel *m_preview;
    QLabel *m_text;
    QToolButton *m_button;
    QAction *m_resourceAction;
    QAction *m_fileAction;
    QAction *m_themeAction;
    QAction *m_copyAction;
    QAction *m_pasteAction;
    QString m_path;
    QString m_theme;
};

} // namespace qdesigner_internal
