#include "designertestcore.h"

#include <QApplication>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTemporaryDir>

namespace CcTest {

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

} // namespace CcTest
