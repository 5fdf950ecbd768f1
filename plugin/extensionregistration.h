#pragma once

#include <QDesignerFormEditorInterface>
#include <QDesignerTaskMenuExtension>
#include <QExtensionManager>

// Registrations of extension factories with Designer's extension manager, which owns the
// factories from then on. Each runs from one plug-in's first initialisation.
void registerPageGroupContainer(QDesignerFormEditorInterface *core);
void registerExtraInfo(QDesignerFormEditorInterface *core);

// The task-menu factory of one widget class.
template<class Factory>
void registerTaskMenu(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core->extensionManager();
    manager->registerExtensions(new Factory(manager, core), Q_TYPEID(QDesignerTaskMenuExtension));
}
