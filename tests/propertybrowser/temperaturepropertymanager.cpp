#include "temperaturepropertymanager.h"

static QString unitAttribute() { return QStringLiteral("fahrenheit"); }

TemperaturePropertyManager::~TemperaturePropertyManager() { clear(); }

int TemperaturePropertyManager::temperatureTypeId() { return qMetaTypeId<Temperature>(); }

QtVariantProperty *TemperaturePropertyManager::addProperty(int propertyType, const QString &name)
{
    ++m_made[propertyType];
    return QtVariantPropertyManager::addProperty(propertyType, name);
}

bool TemperaturePropertyManager::isPropertyTypeSupported(int propertyType) const
{
    return propertyType == temperatureTypeId()
            || QtVariantPropertyManager::isPropertyTypeSupported(propertyType);
}

int TemperaturePropertyManager::valueType(int propertyType) const
{
    return propertyType == temperatureTypeId() ? propertyType
                                               : QtVariantPropertyManager::valueType(propertyType);
}

QVariant TemperaturePropertyManager::value(const QtProperty *property) const
{
    auto it = m_data.constFind(property);
    return it == m_data.cend() ? QtVariantPropertyManager::value(property)
                               : QVariant::fromValue(it->value);
}

QVariant TemperaturePropertyManager::attributeValue(const QtProperty *property,
                                                    const QString &attribute) const
{
    auto it = m_data.constFind(property);
    if (it == m_data.cend())
        return QtVariantPropertyManager::attributeValue(property, attribute);
    return attribute == unitAttribute() ? QVariant(it->fahrenheit) : QVariant();
}

void TemperaturePropertyManager::setValue(QtProperty *property, const QVariant &value)
{
    auto it = m_data.find(property);
    if (it == m_data.end()) {
        QtVariantPropertyManager::setValue(property, value);
        return;
    }
    if (value.userType() != temperatureTypeId())
        return;
    const Temperature temperature = value.value<Temperature>();
    if (temperature == it->value)
        return;
    it->value = temperature;
    emit propertyChanged(property);
    emit valueChanged(property, value);
}

void TemperaturePropertyManager::setAttribute(QtProperty *property, const QString &attribute,
                                              const QVariant &value)
{
    auto it = m_data.find(property);
    if (it == m_data.end()) {
        QtVariantPropertyManager::setAttribute(property, attribute, value);
        return;
    }
    if (attribute != unitAttribute() || it->fahrenheit == value.toBool())
        return;
    it->fahrenheit = value.toBool();
    emit attributeChanged(property, attribute, value);
    emit propertyChanged(property);
}

QString TemperaturePropertyManager::valueText(const QtProperty *property) const
{
    auto it = m_data.constFind(property);
    if (it == m_data.cend())
        return QtVariantPropertyManager::valueText(property);
    if (it->fahrenheit)
        return QStringLiteral("%1 F").arg(it->value.celsius * 9 / 5 + 32);
    return QStringLiteral("%1 C").arg(it->value.celsius);
}

void TemperaturePropertyManager::initializeProperty(QtProperty *property)
{
    QtVariantPropertyManager::initializeProperty(property);
    if (propertyType(property) == temperatureTypeId())
        m_data.insert(property, Data());
}

void TemperaturePropertyManager::uninitializeProperty(QtProperty *property)
{
    m_data.remove(property);
    QtVariantPropertyManager::uninitializeProperty(property);
}
