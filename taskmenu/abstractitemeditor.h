#pragma once

#include "itempropertybrowser.h"
#include "propertydefinition.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

class QtProperty;
class QtVariantProperty;

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
class QSplitter;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerEditorFactory;
class DesignerIconCache;
class DesignerPropertyManager;

// The base of the item editors: a property pane for the current item whose rows, declared
// by a PropertyDefinition table, each edit one item data role. Changing a designer value
// role (text, icon, tips) also writes the plain role the widget displays.
class AbstractItemEditor : public QWidget
{
    Q_OBJECT
public:
    AbstractItemEditor(QDesignerFormWindowInterface *form, QWidget *parent);
    ~AbstractItemEditor() override;

    DesignerIconCache *iconCache() const { return m_iconCache; }

    // One role of the current item.
    virtual void setItemData(int role, const QVariant &value) = 0;
    virtual QVariant getItemData(int role) const = 0;

    DesignerPropertyManager *propertyManager() const { return m_propertyManager; }
    DesignerEditorFactory *editorFactory() const { return m_editorFactory; }
    ItemPropertyBrowser *propertyBrowser() const { return m_propertyBrowser; }
    QSplitter *propertySplitter() const { return m_propertySplitter; }
    QList<QtVariantProperty *> properties() const { return m_properties; }
    // The role a property edits, or -1.
    int propertyRole(QtProperty *property) const;

protected:
    void setupProperties(const PropertyDefinition *table);
    void setupObject(QWidget *object);
    // Puts widget (the item view) and the property pane side by side into parent's layout.
    void injectPropertyBrowser(QWidget *parent, QWidget *widget);
    void updateBrowser();

    DesignerIconCache *m_iconCache;
    DesignerPropertyManager *m_propertyManager;
    DesignerEditorFactory *m_editorFactory;
    QSplitter *m_propertySplitter = nullptr;
    QPointer<ItemPropertyBrowser> m_propertyBrowser;
    QList<QtVariantProperty *> m_properties;
    QList<QtVariantProperty *> m_rootProperties;
    QHash<QtVariantProperty *, int> m_propertyToRole;
    bool m_updatingBrowser;

private slots:
    void propertyChanged(QtProperty *property);
    void resetProperty(QtProperty *property);
    void cacheReloaded();
};

} // namespace qdesigner_internal
