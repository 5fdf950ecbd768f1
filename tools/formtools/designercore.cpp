#include "designercore.h"

#include <QApplication>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtDesigner/private/abstractdialoggui_p.h>

namespace CcForms {

void usePluginModulesOnly(const QStringList &modulePaths)
{
    // Kept for the life of the process: the loaded modules live in it.
    static QTemporaryDir *root = new QTemporaryDir;
    const QDir dir(root->path());
    dir.mkpath(QStringLiteral("designer"));
    for (const QString &module : modulePaths) {
        const QFileInfo info(module);
        QFile::link(info.absoluteFilePath(),
                    dir.filePath(QStringLiteral("designer/") + info.fileName()));
    }
    const QDir system(QLibraryInfo::location(QLibraryInfo::PluginsPath));
    const QStringList kinds = system.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &kind : kinds) {
        if (kind != QLatin1String("designer"))
            QFile::link(system.filePath(kind), dir.filePath(kind));
    }
    QCoreApplication::setLibraryPaths({root->path()});
}

QDesignerFormEditorInterface *designerCore()
{
    static QDesignerFormEditorInterface *core = nullptr;
    if (core)
        return core;
    core = QDesignerComponents::createFormEditor(nullptr);
    QDesignerComponents::initializeResources();
    core->setWidgetBox(QDesignerComponents::createWidgetBox(core, nullptr));
    core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core, nullptr));
    QDesignerComponents::initializePlugins(core);
    // Without an integration, creating a form window crashes.
    new QDesignerIntegration(core, core);
    return core;
}

namespace {

class WarningDialogGui : public QDesignerDialogGuiInterface
{
public:
    QMessageBox::StandardButton message(QWidget *, Message, QMessageBox::Icon,
                                        const QString &title, const QString &text,
                                        QMessageBox::StandardButtons buttons,
                                        QMessageBox::StandardButton) override
    {
        return answer(title, text, buttons);
    }
    QMessageBox::StandardButton message(QWidget *, Message, QMessageBox::Icon,
                                        const QString &title, const QString &text,
                                        const QString &informativeText,
                                        QMessageBox::StandardButtons buttons,
                                        QMessageBox::StandardButton) override
    {
        return answer(title, text + QLatin1Char(' ') + informativeText, buttons);
    }
    QMessageBox::StandardButton message(QWidget *, Message, QMessageBox::Icon,
                                        const QString &title, const QString &text,
                                        const QString &informativeText, const QString &,
                                        QMessageBox::StandardButtons buttons,
                                        QMessageBox::StandardButton) override
    {
        return answer(title, text + QLatin1Char(' ') + informativeText, buttons);
    }
    QString getExistingDirectory(QWidget *, const QString &, const QString &,
                                 QFileDialog::Options) override
    {
        return QString();
    }
    QString getOpenFileName(QWidget *, const QString &, const QString &, const QString &,
                            QString *, QFileDialog::Options) override
    {
        return QString();
    }
    QStringList getOpenFileNames(QWidget *, const QString &, const QString &, const QString &,
                                 QString *, QFileDialog::Options) override
    {
        return QStringList();
    }
    QString getSaveFileName(QWidget *, const QString &, const QString &, const QString &,
                            QString *, QFileDialog::Options) override
    {
        return QString();
    }

private:
    static QMessageBox::StandardButton answer(const QString &title, const QString &text,
                                              QMessageBox::StandardButtons buttons)
    {
        // Designer's messages are rich text at times.
        QString plain = text;
        plain.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
        qWarning("%s: %s", qPrintable(title), qPrintable(plain.simplified()));
        if (buttons & QMessageBox::No)
            return QMessageBox::No;
        return buttons & QMessageBox::Ok ? QMessageBox::Ok : QMessageBox::Cancel;
    }
};

} // namespace

void answerDialogsWithWarnings()
{
    // The core lives until the process ends, and so does what it asks.
    static WarningDialogGui gui;
    designerCore()->setDialogGui(&gui);
}

QDesignerFormWindowInterface *createFormWindow(const QString &uiXml)
{
    QDesignerFormWindowManagerInterface *manager = designerCore()->formWindowManager();
    QDesignerFormWindowInterface *formWindow = manager->createFormWindow(nullptr);
    manager->setActiveFormWindow(formWindow);
    if (!uiXml.isEmpty())
        formWindow->setContents(uiXml);
    return formWindow;
}

void closeFormWindow(QDesignerFormWindowInterface *formWindow)
{
    if (!formWindow)
        return;
    designerCore()->formWindowManager()->removeFormWindow(formWindow);
    delete formWindow;
}

} // namespace CcForms
