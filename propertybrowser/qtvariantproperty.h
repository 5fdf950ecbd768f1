#pragma once

// QVariant based properties: one manager for all the value types the browser knows, and
// one factory making an editor for each of them. Both are meant to be subclassed to add
// further types (override isPropertyTypeSupported(), valueType(), value(), setValue(),
// attributes()... in the manager, and createEditor() in the factory).

#include "qtpropertybrowser.h"

#include <QIcon>
#include <QMap>
#include <QMetaType>
#include <QStringList>
#include <QVariant>

using QtIconMap = QMap<int, QIcon>;

class QtVariantPropertyManager;
class QtVariantPropertyPrivate;
class QtVariantPropertyManagerPrivate;
class QtVariantEditorFactoryPrivate;

// A property of a QtVariantPropertyManager; a convenience front for the manager's calls.
class QtVariantProperty : public QtProperty
{
public:
    ~QtVariantProperty() override;

    QVariant value() const;
    QVariant attributeValue(const QString &attribute) const;
    int valueType() const;
    int propertyType() const;

    void setValue(const QVariant &value);
    void setAttribute(const QString &attribute, const QVariant &value);

protected:
    explicit QtVariantProperty(QtVariantPropertyManager *manager);

private:
    Q_DISABLE_COPY(QtVariantProperty)
    friend class QtVariantPropertyManager;
    QScopedPointer<QtVariantPropertyPrivate> d_ptr;
};

class QtVariantPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtVariantPropertyManager(QObject *parent = nullptr);
    ~QtVariantPropertyManager() override;

    // Null when the type is not supported.
    virtual QtVariantProperty *addProperty(int propertyType, const QString &name = QString());

    int propertyType(const QtProperty *property) const;
    int valueType(const QtProperty *property) const;
    QtVariantProperty *variantProperty(const QtProperty *property) const;

    virtual bool isPropertyTypeSupported(int propertyType) const;
    virtual int valueType(int propertyType) const;
    virtual QStringList attributes(int propertyType) const;
    virtual int attributeType(int propertyType, const QString &attribute) const;

    virtual QVariant value(const QtProperty *property) const;
    virtual QVariant attributeValue(const QtProperty *property, const QString &attribute) const;

    // Property types that have no QVariant type of their own: an int chosen from
    // "enumNames", an int of bits named by "flagNames", a value-less group, and a map
    // from int to icon.
    static int enumTypeId();
    static int flagTypeId();
    static int groupTypeId();
    static int iconMapTypeId();

public Q_SLOTS:
    virtual void setValue(QtProperty *property, const QVariant &val);
    virtual void setAttribute(QtProperty *property, const QString &attribute,
                              const QVariant &value);

Q_SIGNALS:
    void valueChanged(QtProperty *property, const QVariant &val);
    void attributeChanged(QtProperty *property, const QString &attribute, const QVariant &val);

protected:
    bool hasValue(const QtProperty *property) const override;
    QString valueText(const QtProperty *property) const override;
    QIcon valueIcon(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;
    QtProperty *createProperty() override;

private:
    Q_DISABLE_COPY(QtVariantPropertyManager)
    friend class QtVariantPropertyManagerPrivate;
    QScopedPointer<QtVariantPropertyManagerPrivate> d_ptr;
};

class QtVariantEditorFactory : public QtAbstractEditorFactory<QtVariantPropertyManager>
{
    Q_OBJECT
public:
    explicit QtVariantEditorFactory(QObject *parent = nullptr);
    ~QtVariantEditorFactory() override;

protected:
    void connectPropertyManager(QtVariantPropertyManager *manager) override;
    QWidget *createEditor(QtVariantPropertyManager *manager, QtProperty *property,
                          QWidget *parent) override;
    void disconnectPropertyManager(QtVariantPropertyManager *manager) override;

private:
    Q_DISABLE_COPY(QtVariantEditorFactory)
    QScopedPointer<QtVariantEditorFactoryPrivate> d_ptr;
};

Q_DECLARE_METATYPE(QtIconMap)
