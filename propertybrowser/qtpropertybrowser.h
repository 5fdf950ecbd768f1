#pragma once

// The core of the property-browser framework: properties, their managers, the editor
// factories that make editing widgets for them, and the abstract browser that shows them.
// Class names and signatures follow the Qt Solutions property browser, so code written
// against this API builds against either implementation.

#include <QHash>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QScopedPointer>
#include <QSet>
#include <QString>
#include <QWidget>

class QtAbstractPropertyManager;
class QtPropertyPrivate;
class QtAbstractPropertyManagerPrivate;
class QtBrowserItemPrivate;
class QtAbstractPropertyBrowserPrivate;

// One property: a name, descriptive texts, state flags and an ordered list of
// sub-properties. Its value lives in the manager that created it.
class QtProperty
{
public:
    virtual ~QtProperty();

    QList<QtProperty *> subProperties() const;

    QtAbstractPropertyManager *propertyManager() const;

    QString toolTip() const;
    QString statusTip() const;
    QString whatsThis() const;
    QString propertyName() const;
    bool isEnabled() const;
    bool isModified() const;

    bool hasValue() const;
    QIcon valueIcon() const;
    QString valueText() const;

    void setToolTip(const QString &text);
    void setStatusTip(const QString &text);
    void setWhatsThis(const QString &text);
    void setPropertyName(const QString &text);
    void setEnabled(bool enable);
    void setModified(bool modified);

    void addSubProperty(QtProperty *property);
    void insertSubProperty(QtProperty *property, QtProperty *afterProperty);
    void removeSubProperty(QtProperty *property);

protected:
    explicit QtProperty(QtAbstractPropertyManager *manager);
    void propertyChanged();

private:
    Q_DISABLE_COPY(QtProperty)
    friend class QtAbstractPropertyManager;
    QScopedPointer<QtPropertyPrivate> d_ptr;
};

// Creates and owns properties of the kinds it manages; all of them are deleted with it.
class QtAbstractPropertyManager : public QObject
{
    Q_OBJECT
public:
    explicit QtAbstractPropertyManager(QObject *parent = nullptr);
    ~QtAbstractPropertyManager() override;

    QSet<QtProperty *> properties() const;
    void clear() const;

    QtProperty *addProperty(const QString &name = QString());

Q_SIGNALS:
    void propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after);
    void propertyChanged(QtProperty *property);
    void propertyRemoved(QtProperty *property, QtProperty *parent);
    void propertyDestroyed(QtProperty *property);

protected:
    virtual bool hasValue(const QtProperty *property) const;
    virtual QIcon valueIcon(const QtProperty *property) const;
    virtual QString valueText(const QtProperty *property) const;
    virtual void initializeProperty(QtProperty *property) = 0;
    virtual void uninitializeProperty(QtProperty *property);
    virtual QtProperty *createProperty();

private:
    Q_DISABLE_COPY(QtAbstractPropertyManager)
    friend class QtProperty;
    friend class QtAbstractPropertyManagerPrivate;
    QScopedPointer<QtAbstractPropertyManagerPrivate> d_ptr;
};

// The untyped side of an editor factory, which is all a browser needs to know of it.
class QtAbstractEditorFactoryBase : public QObject
{
    Q_OBJECT
public:
    virtual QWidget *createEditor(QtProperty *property, QWidget *parent) = 0;

protected:
    explicit QtAbstractEditorFactoryBase(QObject *parent = nullptr) : QObject(parent) { }

    virtual void breakConnection(QtAbstractPropertyManager *manager) = 0;

protected Q_SLOTS:
    virtual void managerDestroyed(QObject *manager) = 0;

    friend class QtAbstractPropertyBrowser;
    friend class QtAbstractPropertyBrowserPrivate;
};

// A factory making editing widgets for the properties of managers of one type.
template<class PropertyManager>
class QtAbstractEditorFactory : public QtAbstractEditorFactoryBase
{
public:
    explicit QtAbstractEditorFactory(QObject *parent) : QtAbstractEditorFactoryBase(parent) { }

    QWidget *createEditor(QtProperty *property, QWidget *parent) override
    {
        if (PropertyManager *manager = propertyManager(property))
            return createEditor(manager, property, parent);
        return nullptr;
    }

    void addPropertyManager(PropertyManager *manager)
    {
        if (!manager || m_managers.contains(manager))
            return;
        m_managers.insert(manager);
        m_managerObjects.insert(manager, manager);
        connectPropertyManager(manager);
        connect(manager, &QObject::destroyed, this, &QtAbstractEditorFactory::managerDestroyed);
    }

    void removePropertyManager(PropertyManager *manager)
    {
        if (!m_managers.contains(manager))
            return;
        disconnect(manager, &QObject::destroyed, this, &QtAbstractEditorFactory::managerDestroyed);
        disconnectPropertyManager(manager);
        m_managers.remove(manager);
        m_managerObjects.remove(manager);
    }

    QSet<PropertyManager *> propertyManagers() const { return m_managers; }

    PropertyManager *propertyManager(QtProperty *property) const
    {
        if (!property)
            return nullptr;
        QtAbstractPropertyManager *manager = property->propertyManager();
        for (PropertyManager *candidate : m_managers) {
            if (candidate == manager)
                return candidate;
        }
        return nullptr;
    }

protected:
    virtual void connectPropertyManager(PropertyManager *manager) = 0;
    virtual QWidget *createEditor(PropertyManager *manager, QtProperty *property,
                                  QWidget *parent) = 0;
    virtual void disconnectPropertyManager(PropertyManager *manager) = 0;

    void managerDestroyed(QObject *manager) override
    {
        // Looked up by the QObject address recorded when the manager was added: the
        // manager is past its own destructor here and must not be cast.
        if (PropertyManager *gone = m_managerObjects.take(manager))
            m_managers.remove(gone);
    }

private:
    void breakConnection(QtAbstractPropertyManager *manager) override
    {
        for (PropertyManager *candidate : m_managers) {
            if (candidate == manager) {
                removePropertyManager(candidate);
                return;
            }
        }
    }

    QSet<PropertyManager *> m_managers;
    QHash<QObject *, PropertyManager *> m_managerObjects;
};

class QtAbstractPropertyBrowser;

// One occurrence of a property in one browser. A property shown in several places (or
// several browsers) has one item per place. Items are owned by their browser.
class QtBrowserItem
{
public:
    QtProperty *property() const;
    QtBrowserItem *parent() const;
    QList<QtBrowserItem *> children() const;
    QtAbstractPropertyBrowser *browser() const;

private:
    explicit QtBrowserItem(QtAbstractPropertyBrowser *browser, QtProperty *property,
                           QtBrowserItem *parent);
    ~QtBrowserItem();
    Q_DISABLE_COPY(QtBrowserItem)
    QScopedPointer<QtBrowserItemPrivate> d_ptr;
    friend class QtAbstractPropertyBrowserPrivate;
};

// The base of every browser widget: keeps the tree of browser items in step with the
// properties and their managers, and asks the registered factories for editors.
class QtAbstractPropertyBrowser : public QWidget
{
    Q_OBJECT
public:
    explicit QtAbstractPropertyBrowser(QWidget *parent = nullptr);
    ~QtAbstractPropertyBrowser() override;

    QList<QtProperty *> properties() const;
    QList<QtBrowserItem *> items(QtProperty *property) const;
    QtBrowserItem *topLevelItem(QtProperty *property) const;
    QList<QtBrowserItem *> topLevelItems() const;
    void clear();

    template<class PropertyManager>
    void setFactoryForManager(PropertyManager *manager,
                              QtAbstractEditorFactory<PropertyManager> *factory)
    {
        QtAbstractPropertyManager *abstractManager = manager;
        QtAbstractEditorFactoryBase *abstractFactory = factory;
        if (addFactory(abstractManager, abstractFactory))
            factory->addPropertyManager(manager);
    }

    void unsetFactoryForManager(QtAbstractPropertyManager *manager);

    QtBrowserItem *currentItem() const;
    void setCurrentItem(QtBrowserItem *item);

Q_SIGNALS:
    void currentItemChanged(QtBrowserItem *current);

public Q_SLOTS:
    QtBrowserItem *addProperty(QtProperty *property);
    QtBrowserItem *insertProperty(QtProperty *property, QtProperty *afterProperty);
    void removeProperty(QtProperty *property);

protected:
    virtual void itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem) = 0;
    virtual void itemRemoved(QtBrowserItem *item) = 0;
    // Called whenever the property of the item changes (name, value, state...).
    virtual void itemChanged(QtBrowserItem *item) = 0;

    virtual QWidget *createEditor(QtProperty *property, QWidget *parent);

private:
    bool addFactory(QtAbstractPropertyManager *abstractManager,
                    QtAbstractEditorFactoryBase *abstractFactory);

    Q_DISABLE_COPY(QtAbstractPropertyBrowser)
    QScopedPointer<QtAbstractPropertyBrowserPrivate> d_ptr;
    friend class QtAbstractPropertyBrowserPrivate;
};
