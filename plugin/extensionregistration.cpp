#include "extensionregistration.h"

#include <drawbackboxgroupextensionfactory.h>
#include <extrainfoextensionfactory.h>

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerExtraInfoExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

void registerPageGroupContainer(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core->extensionManager();
    manager->registerExtensions(new DrawbackBoxGroupExtensionFactory(manager),
                                Q_TYPEID(QDesignerContainerExtension));
}

// Once registered, the factory serves every widget on every form.
void registerExtraInfo(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core->extensionManager();
    manager->registerExtensions(new ExtraInfoExtensionFactory(manager, core),
                                Q_TYPEID(QDesignerExtraInfoExtension));
}
