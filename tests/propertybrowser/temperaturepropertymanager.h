#pragma once

// A property type the variant manager does not know, added by subclassing the manager as
// any user of the property-browser API would (the editor comes from
// TemperatureEditorFactory).

#include "qtvariantproperty.h"

#include <QHash>
#include <QMetaType>

struct Temperature
{
    double celsius = 0.0;
    bool operator==(const Temperature &other) const { return celsius == other.celsius; }
    bool operator!=(const Temperature &other) const { return !(*this == other); }
};
Q_DECLARE_METATYPE(Temperature)

class TemperaturePropertyManager : public QtVariantPropertyManager
{
    Q_OBJECT
public:
    using QtVariantPropertyManager::QtVariantPropertyManager;
    ~TemperaturePropertyManager() override;

    static int temperatureTypeId();

    bool isPropertyTypeSupported(int propertyType) const override;
    int valueType(int propertyType) const override;
    QVariant value(const QtProperty *property) const override;
    QVariant attributeValue(const QtProperty *property, const QString &attribute) const override;

    QtVariantProperty *addProperty(int propertyType, const QString &name = QString()) override;
    // How many properties of a type went through addProperty(), sub-properties included.
    int propertiesMade(int propertyType) const { return m_made.value(propertyType); }

public Q_SLOTS:
    void setValue(QtProperty *property, const QVariant &value) override;
    void setAttribute(QtProperty *property, const QString &attribute,
                      const QVariant &value) override;

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    struct Data
    {
        Temperature value;
        bool fahrenheit = false;
    };
    QHash<const QtProperty *, Data> m_data;
    QHash<int, int> m_made;
};
