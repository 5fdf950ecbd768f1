#pragma once

// Helpers shared by the item editor and property component tests: a property table with one
// row of every kind, test pictures on disk, and opening a property's editor in the pane as a
// user would.

#include "modalanswer.h"
#include "testpictures.h"

#include "designerpropertymanager.h"
#include "propertydefinition.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QApplication>

namespace CcTest {

inline const qdesigner_internal::PropertyDefinition *allItemProperties()
{
    using qdesigner_internal::DesignerPropertyManager;
    const auto string = DesignerPropertyManager::designerStringTypeId;
    static const qdesigner_internal::PropertyDefinition table[] = {
            {Qt::DisplayPropertyRole, 0, string, "text"},
            {Qt::DecorationPropertyRole, 0, DesignerPropertyManager::designerIconTypeId, "icon"},
            {Qt::ToolTipPropertyRole, 0, string, "toolTip"},
            {Qt::StatusTipPropertyRole, 0, string, "statusTip"},
            {Qt::WhatsThisPropertyRole, 0, string, "whatsThis"},
            {Qt::FontRole, QVariant::Font, nullptr, "font"},
            {Qt::CheckStateRole, 0, QtVariantPropertyManager::enumTypeId, "checkState"},
            {qdesigner_internal::ItemFlagsRole, 0, QtVariantPropertyManager::flagTypeId, "flags"},
            {0, 0, nullptr, nullptr}};
    return table;
}

inline QVariant stringValue(const QString &text)
{
    return QVariant::fromValue(qdesigner_internal::PropertySheetStringValue(text));
}

inline qdesigner_internal::PropertySheetStringValue stringOf(const QVariant &value)
{
    return qvariant_cast<qdesigner_internal::PropertySheetStringValue>(value);
}

inline QVariant iconValue(const QString &path)
{
    return QVariant::fromValue(qdesigner_internal::PropertySheetIconValue(
            qdesigner_internal::PropertySheetPixmapValue(path)));
}

inline QtVariantProperty *subProperty(QtProperty *property, const QString &name)
{
    const QList<QtProperty *> subs = property->subProperties();
    const auto named = std::find_if(subs.cbegin(), subs.cend(), [&name](QtProperty *sub) {
        return sub->propertyName() == name;
    });
    return named != subs.cend() ? static_cast<QtVariantProperty *>(*named) : nullptr;
}

// Opens the value editor of a shown property and returns the first widget of type T in it.
template<class T>
T *openEditor(QtTreePropertyBrowser *browser, QtProperty *property)
{
    const QList<QtBrowserItem *> items = browser->items(property);
    if (items.isEmpty())
        return nullptr;
    browser->editItem(items.first());
    settle();
    const QList<T *> editors = browser->findChildren<T *>();
    const auto shown = std::find_if(editors.cbegin(), editors.cend(),
                                    [browser](T *editor) { return editor->isVisibleTo(browser); });
    return shown != editors.cend() ? *shown : editors.value(0);
}

} // namespace CcTest
