#include "extrainfoextensionfactory.h"

#include "extrainfoextension.h"

#include <QWidget>

ExtraInfoExtensionFactory::ExtraInfoExtensionFactory(QExtensionManager *parent,
                                                     QDesignerFormEditorInterface *core)
    : QExtensionFactory(parent), m_core(core)
{ }

ExtraInfoExtensionFactory::~ExtraInfoExtensionFactory() = default;

QObject *ExtraInfoExtensionFactory::createExtension(QObject *object, const QString &iid,
                                                    QObject *parent) const
{
    Q_UNUSED(parent)
    // The identifier is tested first; then any widget qualifies, of any class.
    if (iid != Q_TYPEID(QDesignerExtraInfoExtension))
        return nullptr;
    if (!object->isWidgetType())
        return nullptr;
    // Deliberately without a parent: the extension deletes itself when its widget is
    // destroyed, and QExtensionFactory then drops it from its per-object cache.
    return new ExtraInfoExtension(static_cast<QWidget *>(object),
                                  const_cast<ExtraInfoExtensionFactory *>(this));
}
