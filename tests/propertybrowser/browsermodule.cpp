// A loadable module with the property browser linked in, as a Designer plug-in has it.
// Only the entry point below is visible from outside.

#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

extern "C" Q_DECL_EXPORT QWidget *ccCreatePropertyBrowser()
{
    auto *browser = new QtTreePropertyBrowser;
    auto *manager = new QtVariantPropertyManager(browser);
    auto *factory = new QtVariantEditorFactory(browser);
    browser->setFactoryForManager(manager, factory);
    browser->addProperty(manager->addProperty(QMetaType::QString, QStringLiteral("text")));
    return browser;
}
