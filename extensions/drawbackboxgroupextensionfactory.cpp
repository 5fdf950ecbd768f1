#include "drawbackboxgroupextensionfactory.h"

#include "drawbackboxgroupcontainerextension.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

DrawbackBoxGroupExtensionFactory::DrawbackBoxGroupExtensionFactory(QExtensionManager *parent)
    : QExtensionFactory(parent)
{ }

DrawbackBoxGroupExtensionFactory::~DrawbackBoxGroupExtensionFactory() = default;

QObject *DrawbackBoxGroupExtensionFactory::createExtension(QObject *object, const QString &iid,
                                                           QObject *parent) const
{
    // The class is tested before the identifier; subclasses of the group pass too.
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(object);
    if (!group)
        return nullptr;
    if (iid != Q_TYPEID(QDesignerContainerExtension))
        return nullptr;
    // Owned by the factory (Designer passes it as parent), one per group; it goes with its
    // group.
    return new DrawbackBoxGroupContainerExtension(group, parent);
}
