#include "qtpropertybrowser.h"

#include <QHash>
#include <QMap>
#include <QPointer>

// ---------------------------------------------------------------------------------------
// QtProperty

class QtPropertyPrivate
{
public:
    explicit QtPropertyPrivate(QtAbstractPropertyManager *manager) : m_manager(manager) { }

    QSet<QtProperty *> m_parentItems;
    QList<QtProperty *> m_subItems;

    QString m_toolTip;
    QString m_statusTip;
    QString m_whatsThis;
    QString m_name;
    bool m_enabled = true;
    bool m_modified = false;

    QtAbstractPropertyManager *const m_manager;
};

class QtAbstractPropertyManagerPrivate
{
public:
    void propertyDestroyed(QtProperty *property);
    void propertyChanged(QtProperty *property) const;
    void propertyRemoved(QtProperty *property, QtProperty *parentProperty) const;
    void propertyInserted(QtProperty *property, QtProperty *parentProperty,
                          QtProperty *afterProperty) const;

    QtAbstractPropertyManager *q_ptr = nullptr;
    QSet<QtProperty *> m_properties;
};

QtProperty::QtProperty(QtAbstractPropertyManager *manager) : d_ptr(new QtPropertyPrivate(manager))
{ }

QtProperty::~QtProperty()
{
    // Leave every parent first, so that browsers drop the items showing this property,
    // then let the manager forget it, and finally detach the children (they belong to
    // their manager and live on).
    const QSet<QtProperty *> parents = d_ptr->m_parentItems;
    for (QtProperty *parent : parents)
        parent->removeSubProperty(this);

    d_ptr->m_manager->d_ptr->propertyDestroyed(this);

    const QList<QtProperty *> children = d_ptr->m_subItems;
    for (QtProperty *child : children)
        child->d_ptr->m_parentItems.remove(this);
}

QList<QtProperty *> QtProperty::subProperties() const { return d_ptr->m_subItems; }

QtAbstractPropertyManager *QtProperty::propertyManager() const { return d_ptr->m_manager; }

QString QtProperty::toolTip() const { return d_ptr->m_toolTip; }

QString QtProperty::statusTip() const { return d_ptr->m_statusTip; }

QString QtProperty::whatsThis() const { return d_ptr->m_whatsThis; }

QString QtProperty::propertyName() const { return d_ptr->m_name; }

bool QtProperty::isEnabled() const { return d_ptr->m_enabled; }

bool QtProperty::isModified() const { return d_ptr->m_modified; }

bool QtProperty::hasValue() const { return d_ptr->m_manager->hasValue(this); }

QIcon QtProperty::valueIcon() const { return d_ptr->m_manager->valueIcon(this); }

QString QtProperty::valueText() const { return d_ptr->m_manager->valueText(this); }

// One setter for all the plain fields: store, and tell the browsers only on a change.
template<class T>
static bool assignChanged(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

void QtProperty::setToolTip(const QString &text)
{
    if (assignChanged(d_ptr->m_toolTip, text))
        propertyChanged();
}

void QtProperty::setStatusTip(const QString &text)
{
    if (assignChanged(d_ptr->m_statusTip, text))
        propertyChanged();
}

void QtProperty::setWhatsThis(const QString &text)
{
    if (assignChanged(d_ptr->m_whatsThis, text))
        propertyChanged();
}

void QtProperty::setPropertyName(const QString &text)
{
    if (assignChanged(d_ptr->m_name, text))
        propertyChanged();
}

void QtProperty::setEnabled(bool enable)
{
    if (assignChanged(d_ptr->m_enabled, enable))
        propertyChanged();
}

void QtProperty::setModified(bool modified)
{
    if (assignChanged(d_ptr->m_modified, modified))
        propertyChanged();
}

void QtProperty::addSubProperty(QtProperty *property)
{
    QtProperty *after = d_ptr->m_subItems.isEmpty() ? nullptr : d_ptr->m_subItems.constLast();
    insertSubProperty(property, after);
}

void QtProperty::insertSubProperty(QtProperty *property, QtProperty *afterProperty)
{
    if (!property || property == this)
        return;

    // A property cannot become a descendant of itself.
    QList<QtProperty *> pending = property->subProperties();
    QSet<QtProperty *> visited;
    while (!pending.isEmpty()) {
        QtProperty *candidate = pending.takeLast();
        if (candidate == this)
            return;
        if (!visited.contains(candidate)) {
            visited.insert(candidate);
            pending += candidate->subProperties();
        }
    }

    // Each property appears once under a parent; a second insertion changes nothing.
    if (d_ptr->m_subItems.contains(property))
        return;

    int position = 0;
    if (afterProperty) {
        const int afterIndex = d_ptr->m_subItems.indexOf(afterProperty);
        if (afterIndex < 0)
            return;
        position = afterIndex + 1;
    }
    d_ptr->m_subItems.insert(position, property);
    property->d_ptr->m_parentItems.insert(this);
    d_ptr->m_manager->d_ptr->propertyInserted(property, this, afterProperty);
}

void QtProperty::removeSubProperty(QtProperty *property)
{
    const int index = d_ptr->m_subItems.indexOf(property);
    if (index < 0)
        return;
    d_ptr->m_subItems.removeAt(index);
    property->d_ptr->m_parentItems.remove(this);
    d_ptr->m_manager->d_ptr->propertyRemoved(property, this);
}

void QtProperty::propertyChanged() { d_ptr->m_manager->d_ptr->propertyChanged(this); }

// ---------------------------------------------------------------------------------------
// QtAbstractPropertyManager

void QtAbstractPropertyManagerPrivate::propertyDestroyed(QtProperty *property)
{
    if (!m_properties.contains(property))
        return;
    emit q_ptr->propertyDestroyed(property);
    q_ptr->uninitializeProperty(property);
    m_properties.remove(property);
}

void QtAbstractPropertyManagerPrivate::propertyChanged(QtProperty *property) const
{
    emit q_ptr->propertyChanged(property);
}

void QtAbstractPropertyManagerPrivate::propertyRemoved(QtProperty *property,
                                                       QtProperty *parentProperty) const
{
    emit q_ptr->propertyRemoved(property, parentProperty);
}

void QtAbstractPropertyManagerPrivate::propertyInserted(QtProperty *property,
                                                        QtProperty *parentProperty,
                                                        QtProperty *afterProperty) const
{
    emit q_ptr->propertyInserted(property, parentProperty, afterProperty);
}

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject *parent)
    : QObject(parent), d_ptr(new QtAbstractPropertyManagerPrivate)
{
    d_ptr->q_ptr = this;
}

QtAbstractPropertyManager::~QtAbstractPropertyManager() { clear(); }

QSet<QtProperty *> QtAbstractPropertyManager::properties() const { return d_ptr->m_properties; }

void QtAbstractPropertyManager::clear() const
{
    // Deleting one property may delete others (sub-properties a manager made for it), so
    // the set is read afresh each time.
    while (!d_ptr->m_properties.isEmpty())
        delete *d_ptr->m_properties.cbegin();
}

QtProperty *QtAbstractPropertyManager::addProperty(const QString &name)
{
    QtProperty *property = createProperty();
    if (property) {
        property->setPropertyName(name);
        d_ptr->m_properties.insert(property);
        initializeProperty(property);
    }
    return property;
}

bool QtAbstractPropertyManager::hasValue(const QtProperty *property) const
{
    Q_UNUSED(property)
    return true;
}

QIcon QtAbstractPropertyManager::valueIcon(const QtProperty *property) const
{
    Q_UNUSED(property)
    return QIcon();
}

QString QtAbstractPropertyManager::valueText(const QtProperty *property) const
{
    Q_UNUSED(property)
    return QString();
}

void QtAbstractPropertyManager::uninitializeProperty(QtProperty *property) { Q_UNUSED(property) }

QtProperty *QtAbstractPropertyManager::createProperty() { return new QtProperty(this); }

// ---------------------------------------------------------------------------------------
// QtBrowserItem

class QtBrowserItemPrivate
{
public:
    QtBrowserItemPrivate(QtAbstractPropertyBrowser *browser, QtProperty *property,
                         QtBrowserItem *parent)
        : m_browser(browser), m_property(property), m_parent(parent)
    { }

    QtAbstractPropertyBrowser *const m_browser;
    QtProperty *const m_property;
    QtBrowserItem *const m_parent;
    QList<QtBrowserItem *> m_children;
};

QtBrowserItem::QtBrowserItem(QtAbstractPropertyBrowser *browser, QtProperty *property,
                             QtBrowserItem *parent)
    : d_ptr(new QtBrowserItemPrivate(browser, property, parent))
{ }

QtBrowserItem::~QtBrowserItem() = default;

QtProperty *QtBrowserItem::property() const { return d_ptr->m_property; }

QtBrowserItem *QtBrowserItem::parent() const { return d_ptr->m_parent; }

QList<QtBrowserItem *> QtBrowserItem::children() const { return d_ptr->m_children; }

QtAbstractPropertyBrowser *QtBrowserItem::browser() const { return d_ptr->m_browser; }

// ---------------------------------------------------------------------------------------
// QtAbstractPropertyBrowser

namespace {

// How many browsers use each factory for each manager. A factory is told about a manager
// when the first browser pairs them, and lets go of it when the last one does.
using FactoryUse = QHash<QtAbstractEditorFactoryBase *, QHash<QtAbstractPropertyManager *, int>>;

FactoryUse &factoryUse()
{
    static FactoryUse use;
    return use;
}

} // namespace

class QtAbstractPropertyBrowserPrivate
{
public:
    QtBrowserItem *createItem(QtProperty *property, QtBrowserItem *parentItem,
                              QtBrowserItem *afterItem);
    void removeItem(QtBrowserItem *item);
    void deleteItemTree(QtBrowserItem *item);

    void useManager(QtAbstractPropertyManager *manager);
    void releaseManager(QtAbstractPropertyManager *manager);

    void propertyInserted(QtProperty *property, QtProperty *parentProperty,
                          QtProperty *afterProperty);
    void propertyRemoved(QtProperty *property, QtProperty *parentProperty);
    void propertyChanged(QtProperty *property);
    void propertyDestroyed(QtProperty *property);

    void releaseFactory(QtAbstractPropertyManager *manager);
    // Both are called for objects already destroyed: only their addresses are used.
    void forgetFactory(QtAbstractEditorFactoryBase *factory);
    void forgetManager(QtAbstractPropertyManager *manager);

    QtAbstractPropertyBrowser *q_ptr = nullptr;

    QList<QtProperty *> m_topLevelProperties;
    QList<QtBrowserItem *> m_topLevelItems;
    QHash<QtProperty *, QtBrowserItem *> m_topLevelPropertyToItem;
    QHash<QtProperty *, QList<QtBrowserItem *>> m_propertyToItems;

    // Managers with properties shown here: their item count and signal connections.
    struct ManagerUse
    {
        int items = 0;
        QList<QMetaObject::Connection> connections;
    };
    QHash<QtAbstractPropertyManager *, ManagerUse> m_managers;

    QHash<QtAbstractPropertyManager *, QtAbstractEditorFactoryBase *> m_factories;
    QHash<QObject *, QMetaObject::Connection> m_lifetimeWatches;

    QtBrowserItem *m_currentItem = nullptr;
};

QtBrowserItem *QtAbstractPropertyBrowserPrivate::createItem(QtProperty *property,
                                                            QtBrowserItem *parentItem,
                                                            QtBrowserItem *afterItem)
{
    auto *item = new QtBrowserItem(q_ptr, property, parentItem);
    QList<QtBrowserItem *> &siblings = parentItem ? parentItem->d_ptr->m_children : m_topLevelItems;
    siblings.insert(afterItem ? siblings.indexOf(afterItem) + 1 : 0, item);
    m_propertyToItems[property].append(item);
    useManager(property->propertyManager());

    q_ptr->itemInserted(item, afterItem);

    QtBrowserItem *previous = nullptr;
    const QList<QtProperty *> subProperties = property->subProperties();
    for (QtProperty *subProperty : subProperties)
        previous = createItem(subProperty, item, previous);
    return item;
}

void QtAbstractPropertyBrowserPrivate::removeItem(QtBrowserItem *item)
{
    const QList<QtBrowserItem *> children = item->d_ptr->m_children;
    for (auto it = children.crbegin(); it != children.crend(); ++it)
        removeItem(*it);

    q_ptr->itemRemoved(item);
    if (m_currentItem == item)
        q_ptr->setCurrentItem(nullptr);

    if (QtBrowserItem *parentItem = item->parent())
        parentItem->d_ptr->m_children.removeOne(item);
    else
        m_topLevelItems.removeOne(item);

    QtProperty *property = item->property();
    auto items = m_propertyToItems.find(property);
    if (items != m_propertyToItems.end()) {
        items->removeOne(item);
        if (items->isEmpty())
            m_propertyToItems.erase(items);
    }
    releaseManager(property->propertyManager());
    delete item;
}

void QtAbstractPropertyBrowserPrivate::deleteItemTree(QtBrowserItem *item)
{
    const QList<QtBrowserItem *> children = item->d_ptr->m_children;
    for (QtBrowserItem *child : children)
        deleteItemTree(child);
    delete item;
}

void QtAbstractPropertyBrowserPrivate::useManager(QtAbstractPropertyManager *manager)
{
    ManagerUse &use = m_managers[manager];
    if (use.items++ > 0)
        return;
    use.connections = {
            QObject::connect(manager, &QtAbstractPropertyManager::propertyInserted, q_ptr,
                             [this](QtProperty *property, QtProperty *parentProperty,
                                    QtProperty *afterProperty) {
                                 propertyInserted(property, parentProperty, afterProperty);
                             }),
            QObject::connect(manager, &QtAbstractPropertyManager::propertyRemoved, q_ptr,
                             [this](QtProperty *property, QtProperty *parentProperty) {
                                 propertyRemoved(property, parentProperty);
                             }),
            QObject::connect(manager, &QtAbstractPropertyManager::propertyChanged, q_ptr,
                             [this](QtProperty *property) { propertyChanged(property); }),
            QObject::connect(manager, &QtAbstractPropertyManager::propertyDestroyed, q_ptr,
                             [this](QtProperty *property) { propertyDestroyed(property); }),
    };
}

void QtAbstractPropertyBrowserPrivate::releaseManager(QtAbstractPropertyManager *manager)
{
    auto use = m_managers.find(manager);
    if (use == m_managers.end() || --use->items > 0)
        return;
    for (const QMetaObject::Connection &connection : qAsConst(use->connections))
        QObject::disconnect(connection);
    m_managers.erase(use);
}

void QtAbstractPropertyBrowserPrivate::propertyInserted(QtProperty *property,
                                                        QtProperty *parentProperty,
                                                        QtProperty *afterProperty)
{
    const QList<QtBrowserItem *> parentItems = m_propertyToItems.value(parentProperty);
    for (QtBrowserItem *parentItem : parentItems) {
        QtBrowserItem *afterItem = nullptr;
        if (afterProperty) {
            for (QtBrowserItem *child : qAsConst(parentItem->d_ptr->m_children)) {
                if (child->property() == afterProperty) {
                    afterItem = child;
                    break;
                }
            }
        }
        createItem(property, parentItem, afterItem);
    }
}

void QtAbstractPropertyBrowserPrivate::propertyRemoved(QtProperty *property,
                                                       QtProperty *parentProperty)
{
    const QList<QtBrowserItem *> parentItems = m_propertyToItems.value(parentProperty);
    for (QtBrowserItem *parentItem : parentItems) {
        const QList<QtBrowserItem *> children = parentItem->d_ptr->m_children;
        for (QtBrowserItem *child : children) {
            if (child->property() == property) {
                removeItem(child);
                break;
            }
        }
    }
}

void QtAbstractPropertyBrowserPrivate::propertyChanged(QtProperty *property)
{
    const QList<QtBrowserItem *> items = m_propertyToItems.value(property);
    for (QtBrowserItem *item : items)
        q_ptr->itemChanged(item);
}

void QtAbstractPropertyBrowserPrivate::propertyDestroyed(QtProperty *property)
{
    // Under a parent it is gone already (it left its parents first); only a top-level
    // occurrence remains.
    if (m_topLevelPropertyToItem.contains(property))
        q_ptr->removeProperty(property);
}

void QtAbstractPropertyBrowserPrivate::releaseFactory(QtAbstractPropertyManager *manager)
{
    QtAbstractEditorFactoryBase *factory = m_factories.take(manager);
    if (!factory)
        return;
    auto use = factoryUse().find(factory);
    if (use == factoryUse().end())
        return;
    auto count = use->find(manager);
    if (count == use->end() || --*count > 0)
        return;
    use->erase(count);
    if (use->isEmpty())
        factoryUse().erase(use);
    factory->breakConnection(manager);
}

void QtAbstractPropertyBrowserPrivate::forgetFactory(QtAbstractEditorFactoryBase *factory)
{
    for (auto it = m_factories.begin(); it != m_factories.end();) {
        if (it.value() == factory)
            it = m_factories.erase(it);
        else
            ++it;
    }
    factoryUse().remove(factory);
}

void QtAbstractPropertyBrowserPrivate::forgetManager(QtAbstractPropertyManager *manager)
{
    m_factories.remove(manager);
    for (auto &use : factoryUse())
        use.remove(manager);
}

QtAbstractPropertyBrowser::QtAbstractPropertyBrowser(QWidget *parent)
    : QWidget(parent), d_ptr(new QtAbstractPropertyBrowserPrivate)
{
    d_ptr->q_ptr = this;
}

QtAbstractPropertyBrowser::~QtAbstractPropertyBrowser()
{
    // The subclass is gone already: drop everything without calling back into it.
    for (auto &use : d_ptr->m_managers) {
        for (const QMetaObject::Connection &connection : qAsConst(use.connections))
            QObject::disconnect(connection);
    }
    d_ptr->m_managers.clear();
    for (const QMetaObject::Connection &watch : qAsConst(d_ptr->m_lifetimeWatches))
        QObject::disconnect(watch);
    const QList<QtAbstractPropertyManager *> managers = d_ptr->m_factories.keys();
    for (QtAbstractPropertyManager *manager : managers)
        d_ptr->releaseFactory(manager);
    const QList<QtBrowserItem *> topLevelItems = d_ptr->m_topLevelItems;
    for (QtBrowserItem *item : topLevelItems)
        d_ptr->deleteItemTree(item);
}

QList<QtProperty *> QtAbstractPropertyBrowser::properties() const
{
    return d_ptr->m_topLevelProperties;
}

QList<QtBrowserItem *> QtAbstractPropertyBrowser::items(QtProperty *property) const
{
    return d_ptr->m_propertyToItems.value(property);
}

QtBrowserItem *QtAbstractPropertyBrowser::topLevelItem(QtProperty *property) const
{
    return d_ptr->m_topLevelPropertyToItem.value(property);
}

QList<QtBrowserItem *> QtAbstractPropertyBrowser::topLevelItems() const
{
    return d_ptr->m_topLevelItems;
}

void QtAbstractPropertyBrowser::clear()
{
    const QList<QtProperty *> properties = d_ptr->m_topLevelProperties;
    for (auto it = properties.crbegin(); it != properties.crend(); ++it)
        removeProperty(*it);
}

QtBrowserItem *QtAbstractPropertyBrowser::addProperty(QtProperty *property)
{
    QtProperty *after = d_ptr->m_topLevelProperties.isEmpty()
            ? nullptr
            : d_ptr->m_topLevelProperties.constLast();
    return insertProperty(property, after);
}

QtBrowserItem *QtAbstractPropertyBrowser::insertProperty(QtProperty *property,
                                                         QtProperty *afterProperty)
{
    if (!property || d_ptr->m_topLevelPropertyToItem.contains(property))
        return nullptr;
    int position = 0;
    QtBrowserItem *afterItem = nullptr;
    if (afterProperty) {
        position = d_ptr->m_topLevelProperties.indexOf(afterProperty) + 1;
        if (position == 0)
            return nullptr;
        afterItem = d_ptr->m_topLevelPropertyToItem.value(afterProperty);
    }
    d_ptr->m_topLevelProperties.insert(position, property);
    QtBrowserItem *item = d_ptr->createItem(property, nullptr, afterItem);
    d_ptr->m_topLevelPropertyToItem.insert(property, item);
    return item;
}

void QtAbstractPropertyBrowser::removeProperty(QtProperty *property)
{
    QtBrowserItem *item = d_ptr->m_topLevelPropertyToItem.take(property);
    if (!item)
        return;
    d_ptr->m_topLevelProperties.removeOne(property);
    d_ptr->removeItem(item);
}

void QtAbstractPropertyBrowser::unsetFactoryForManager(QtAbstractPropertyManager *manager)
{
    d_ptr->releaseFactory(manager);
}

QtBrowserItem *QtAbstractPropertyBrowser::currentItem() const { return d_ptr->m_currentItem; }

void QtAbstractPropertyBrowser::setCurrentItem(QtBrowserItem *item)
{
    if (item == d_ptr->m_currentItem || (item && item->browser() != this))
        return;
    d_ptr->m_currentItem = item;
    emit currentItemChanged(item);
}

QWidget *QtAbstractPropertyBrowser::createEditor(QtProperty *property, QWidget *parent)
{
    if (!property)
        return nullptr;
    QtAbstractEditorFactoryBase *factory = d_ptr->m_factories.value(property->propertyManager());
    return factory ? factory->createEditor(property, parent) : nullptr;
}

bool QtAbstractPropertyBrowser::addFactory(QtAbstractPropertyManager *abstractManager,
                                           QtAbstractEditorFactoryBase *abstractFactory)
{
    if (!abstractManager || !abstractFactory)
        return false;
    if (d_ptr->m_factories.value(abstractManager) == abstractFactory)
        return false;
    d_ptr->releaseFactory(abstractManager);
    d_ptr->m_factories.insert(abstractManager, abstractFactory);

    // Forget pairings whose factory or manager goes away while this browser lives. The
    // typed pointers are taken now, while the objects are whole.
    QObject *managerObject = abstractManager;
    if (!d_ptr->m_lifetimeWatches.contains(managerObject)) {
        d_ptr->m_lifetimeWatches.insert(managerObject,
                                        connect(managerObject, &QObject::destroyed, this,
                                                [this, managerObject, abstractManager] {
                                                    d_ptr->m_lifetimeWatches.remove(managerObject);
                                                    d_ptr->forgetManager(abstractManager);
                                                }));
    }
    QObject *factoryObject = abstractFactory;
    if (!d_ptr->m_lifetimeWatches.contains(factoryObject)) {
        d_ptr->m_lifetimeWatches.insert(factoryObject,
                                        connect(factoryObject, &QObject::destroyed, this,
                                                [this, factoryObject, abstractFactory] {
                                                    d_ptr->m_lifetimeWatches.remove(factoryObject);
                                                    d_ptr->forgetFactory(abstractFactory);
                                                }));
    }

    int &count = factoryUse()[abstractFactory][abstractManager];
    return ++count == 1;
}
