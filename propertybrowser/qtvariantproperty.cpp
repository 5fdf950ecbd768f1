#include "qtvariantproperty.h"

#include "qtcompat.h"

#include <QApplication>
#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QFontDatabase>
#include <QHash>
#include <QKeySequence>
#include <QMetaEnum>
#include <QPainter>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QSizePolicy>
#include <QStyle>
#include <QStyleOptionButton>

#include <cfloat>
#include <climits>

// Marker types naming the property types that have no value type of their own.
class QtEnumPropertyType
{
};
class QtFlagPropertyType
{
};
class QtGroupPropertyType
{
};
Q_DECLARE_METATYPE(QtEnumPropertyType)
Q_DECLARE_METATYPE(QtFlagPropertyType)
Q_DECLARE_METATYPE(QtGroupPropertyType)

namespace {

const char *const translationContext = "QtVariantPropertyManager";

QString translated(const char *text)
{
    return QCoreApplication::translate(translationContext, text);
}

QString minimumAttribute() { return QStringLiteral("minimum"); }
QString maximumAttribute() { return QStringLiteral("maximum"); }
QString enumNamesAttribute() { return QStringLiteral("enumNames"); }
QString flagNamesAttribute() { return QStringLiteral("flagNames"); }

// One attribute of a property type: its name, value type and initial value.
struct AttributeSpec
{
    QString name;
    int type;
    QVariant initial;
};

// What the manager knows about one of its own property types.
struct TypeSpec
{
    int valueType = QMetaType::UnknownType;
    QVariant initialValue;
    QList<AttributeSpec> attributes;
};

const QHash<int, TypeSpec> &typeSpecs()
{
    static const QHash<int, TypeSpec> specs = [] {
        const QList<AttributeSpec> intAttributes = {
                {minimumAttribute(), QMetaType::Int, INT_MIN},
                {maximumAttribute(), QMetaType::Int, INT_MAX},
                {QStringLiteral("singleStep"), QMetaType::Int, 1},
        };
        const QList<AttributeSpec> doubleAttributes = {
                {minimumAttribute(), QMetaType::Double, -DBL_MAX},
                {maximumAttribute(), QMetaType::Double, DBL_MAX},
                {QStringLiteral("singleStep"), QMetaType::Double, 1.0},
                {QStringLiteral("decimals"), QMetaType::Int, 2},
        };
        QHash<int, TypeSpec> table;
        table.insert(QMetaType::Bool, {QMetaType::Bool, false, {}});
        table.insert(QMetaType::Int, {QMetaType::Int, 0, intAttributes});
        table.insert(QMetaType::Double, {QMetaType::Double, 0.0, doubleAttributes});
        table.insert(QMetaType::QString, {QMetaType::QString, QString(), {}});
        table.insert(QMetaType::QColor, {QMetaType::QColor, QColor(), {}});
        table.insert(QMetaType::QFont, {QMetaType::QFont, QFont(), {}});
        table.insert(QMetaType::QSize, {QMetaType::QSize, QSize(0, 0), {}});
        table.insert(QMetaType::QPoint, {QMetaType::QPoint, QPoint(), {}});
        table.insert(QMetaType::QRect, {QMetaType::QRect, QRect(), {}});
        table.insert(QMetaType::QKeySequence, {QMetaType::QKeySequence, QKeySequence(), {}});
        table.insert(QMetaType::QSizePolicy, {QMetaType::QSizePolicy, QSizePolicy(), {}});
        table.insert(QMetaType::QIcon, {QMetaType::QIcon, QIcon(), {}});
        table.insert(QMetaType::QPixmap, {QMetaType::QPixmap, QPixmap(), {}});
        table.insert(QtVariantPropertyManager::enumTypeId(),
                     {QMetaType::Int,
                      -1,
                      {{enumNamesAttribute(), QMetaType::QStringList, QStringList()},
                       {QStringLiteral("enumIcons"), QtVariantPropertyManager::iconMapTypeId(),
                        QVariant::fromValue(QtIconMap())}}});
        table.insert(QtVariantPropertyManager::flagTypeId(),
                     {QMetaType::Int,
                      0,
                      {{flagNamesAttribute(), QMetaType::QStringList, QStringList()}}});
        table.insert(QtVariantPropertyManager::groupTypeId(),
                     {QMetaType::UnknownType, QVariant(), {}});
        return table;
    }();
    return specs;
}

const TypeSpec *typeSpec(int propertyType)
{
    const auto &specs = typeSpecs();
    auto it = specs.constFind(propertyType);
    return it == specs.cend() ? nullptr : &it.value();
}

QMetaEnum sizePolicyEnum() { return QMetaEnum::fromType<QSizePolicy::Policy>(); }

QStringList sizePolicyNames()
{
    const QMetaEnum policies = sizePolicyEnum();
    QStringList names;
    for (int i = 0; i < policies.keyCount(); ++i)
        names.append(QLatin1String(policies.key(i)));
    return names;
}

int sizePolicyIndex(QSizePolicy::Policy policy)
{
    const QMetaEnum policies = sizePolicyEnum();
    for (int i = 0; i < policies.keyCount(); ++i) {
        if (policies.value(i) == policy)
            return i;
    }
    return -1;
}

QSizePolicy::Policy sizePolicyAt(int index)
{
    const QMetaEnum policies = sizePolicyEnum();
    if (index < 0 || index >= policies.keyCount())
        return QSizePolicy::Fixed;
    return static_cast<QSizePolicy::Policy>(policies.value(index));
}

// One sub-property of a compound value: how it reads from and writes into the value.
struct FieldSpec
{
    const char *name;
    int propertyType; // 0 stands for the enum type, resolved at run time
    QVariant (*get)(const QVariant &value);
    void (*set)(QVariant &value, const QVariant &field);
    int minimum;
    int maximum;
};

template<class T>
T as(const QVariant &value)
{
    return value.value<T>();
}

const QList<FieldSpec> &fieldSpecs(int valueType)
{
    static const QList<FieldSpec> none;
    static const QHash<int, QList<FieldSpec>> specs = {
            {QMetaType::QSize,
             {
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Width"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QSize>(v).width()); },
                      [](QVariant &v, const QVariant &f) {
                          QSize s = as<QSize>(v);
                          s.setWidth(f.toInt());
                          v = s;
                      },
                      0, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Height"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QSize>(v).height()); },
                      [](QVariant &v, const QVariant &f) {
                          QSize s = as<QSize>(v);
                          s.setHeight(f.toInt());
                          v = s;
                      },
                      0, INT_MAX},
             }},
            {QMetaType::QPoint,
             {
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "X"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QPoint>(v).x()); },
                      [](QVariant &v, const QVariant &f) {
                          QPoint p = as<QPoint>(v);
                          p.setX(f.toInt());
                          v = p;
                      },
                      INT_MIN, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Y"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QPoint>(v).y()); },
                      [](QVariant &v, const QVariant &f) {
                          QPoint p = as<QPoint>(v);
                          p.setY(f.toInt());
                          v = p;
                      },
                      INT_MIN, INT_MAX},
             }},
            {QMetaType::QRect,
             {
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "X"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QRect>(v).x()); },
                      [](QVariant &v, const QVariant &f) {
                          QRect r = as<QRect>(v);
                          r.moveLeft(f.toInt());
                          v = r;
                      },
                      INT_MIN, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Y"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QRect>(v).y()); },
                      [](QVariant &v, const QVariant &f) {
                          QRect r = as<QRect>(v);
                          r.moveTop(f.toInt());
                          v = r;
                      },
                      INT_MIN, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Width"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QRect>(v).width()); },
                      [](QVariant &v, const QVariant &f) {
                          QRect r = as<QRect>(v);
                          r.setWidth(f.toInt());
                          v = r;
                      },
                      0, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Height"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QRect>(v).height()); },
                      [](QVariant &v, const QVariant &f) {
                          QRect r = as<QRect>(v);
                          r.setHeight(f.toInt());
                          v = r;
                      },
                      0, INT_MAX},
             }},
            {QMetaType::QFont,
             {
                     // The family's value is an index into the sub-property's "enumNames";
                     // the manager maps it to and from the family name.
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Family"), 0, nullptr, nullptr,
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Point Size"), QMetaType::Int,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).pointSize()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setPointSize(qMax(1, f.toInt()));
                          v = font;
                      },
                      1, INT_MAX},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Bold"), QMetaType::Bool,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).bold()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setBold(f.toBool());
                          v = font;
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Italic"), QMetaType::Bool,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).italic()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setItalic(f.toBool());
                          v = font;
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Underline"), QMetaType::Bool,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).underline()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setUnderline(f.toBool());
                          v = font;
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Strikeout"), QMetaType::Bool,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).strikeOut()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setStrikeOut(f.toBool());
                          v = font;
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Kerning"), QMetaType::Bool,
                      [](const QVariant &v) { return QVariant(as<QFont>(v).kerning()); },
                      [](QVariant &v, const QVariant &f) {
                          QFont font = as<QFont>(v);
                          font.setKerning(f.toBool());
                          v = font;
                      },
                      0, 0},
             }},
            {QMetaType::QSizePolicy,
             {
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Horizontal Policy"), 0,
                      [](const QVariant &v) {
                          return QVariant(sizePolicyIndex(as<QSizePolicy>(v).horizontalPolicy()));
                      },
                      [](QVariant &v, const QVariant &f) {
                          QSizePolicy p = as<QSizePolicy>(v);
                          p.setHorizontalPolicy(sizePolicyAt(f.toInt()));
                          v = QVariant::fromValue(p);
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Vertical Policy"), 0,
                      [](const QVariant &v) {
                          return QVariant(sizePolicyIndex(as<QSizePolicy>(v).verticalPolicy()));
                      },
                      [](QVariant &v, const QVariant &f) {
                          QSizePolicy p = as<QSizePolicy>(v);
                          p.setVerticalPolicy(sizePolicyAt(f.toInt()));
                          v = QVariant::fromValue(p);
                      },
                      0, 0},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Horizontal Stretch"),
                      QMetaType::Int,
                      [](const QVariant &v) {
                          return QVariant(as<QSizePolicy>(v).horizontalStretch());
                      },
                      [](QVariant &v, const QVariant &f) {
                          QSizePolicy p = as<QSizePolicy>(v);
                          p.setHorizontalStretch(f.toInt());
                          v = QVariant::fromValue(p);
                      },
                      0, 255},
                     {QT_TRANSLATE_NOOP("QtVariantPropertyManager", "Vertical Stretch"),
                      QMetaType::Int,
                      [](const QVariant &v) {
                          return QVariant(as<QSizePolicy>(v).verticalStretch());
                      },
                      [](QVariant &v, const QVariant &f) {
                          QSizePolicy p = as<QSizePolicy>(v);
                          p.setVerticalStretch(f.toInt());
                          v = QVariant::fromValue(p);
                      },
                      0, 255},
             }},
    };
    auto it = specs.constFind(valueType);
    return it == specs.cend() ? none : it.value();
}

// Values compare by what the user sees: a font also by which attributes it sets, images
// by identity (they have no equality of their own).
bool sameValue(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType() || a.isValid() != b.isValid())
        return false;
    switch (a.userType()) {
    case QMetaType::QFont: {
        const QFont fa = as<QFont>(a);
        const QFont fb = as<QFont>(b);
        return fa == fb && CcQt::fontResolveMask(fa) == CcQt::fontResolveMask(fb) && fa.family() == fb.family();
    }
    case QMetaType::QIcon:
        return as<QIcon>(a).cacheKey() == as<QIcon>(b).cacheKey();
    case QMetaType::QPixmap:
        return as<QPixmap>(a).cacheKey() == as<QPixmap>(b).cacheKey();
    default:
        return a == b;
    }
}

QIcon checkBoxIcon(bool checked)
{
    QStyleOptionButton option;
    option.state = QStyle::State_Enabled | (checked ? QStyle::State_On : QStyle::State_Off);
    QStyle *style = QApplication::style();
    const int indicatorWidth = style->pixelMetric(QStyle::PM_IndicatorWidth, &option);
    const int indicatorHeight = style->pixelMetric(QStyle::PM_IndicatorHeight, &option);
    option.rect = QRect(0, 0, indicatorWidth, indicatorHeight);
    QPixmap pixmap(indicatorWidth, indicatorHeight);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
    painter.end();
    return QIcon(pixmap);
}

QIcon colorIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    // A checkerboard under the colour shows its transparency.
    painter.fillRect(0, 0, 16, 16, Qt::white);
    painter.fillRect(0, 0, 8, 8, Qt::lightGray);
    painter.fillRect(8, 8, 8, 8, Qt::lightGray);
    painter.fillRect(0, 0, 16, 16, color);
    painter.setPen(Qt::darkGray);
    painter.drawRect(0, 0, 15, 15);
    painter.end();
    return QIcon(pixmap);
}

QIcon fontIcon(const QFont &font)
{
    QFont sample = font;
    sample.setPointSize(13);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(sample);
    painter.drawText(QRect(0, 0, 16, 16), Qt::AlignCenter, QStringLiteral("A"));
    painter.end();
    return QIcon(pixmap);
}

} // namespace

// ---------------------------------------------------------------------------------------

class QtVariantPropertyPrivate
{
public:
    explicit QtVariantPropertyPrivate(QtVariantPropertyManager *manager) : m_manager(manager) { }
    QtVariantPropertyManager *const m_manager;
};

class QtVariantPropertyManagerPrivate
{
public:
    struct Data
    {
        int propertyType = QMetaType::UnknownType;
        QVariant value;
        QHash<QString, QVariant> attributes;
        // Sub-properties this manager made for a compound value, in field order.
        QList<QtProperty *> fields;
    };

    bool isOwnType(const Data &data) const { return typeSpec(data.propertyType) != nullptr; }

    void createFields(QtProperty *property, int propertyType);
    void createFlagFields(QtProperty *property);
    void deleteFields(QtProperty *property);
    void updateFields(QtProperty *property);
    void fieldChanged(QtProperty *field);
    // Stores a value and tells the world; the value is already normalised.
    void storeValue(QtProperty *property, const QVariant &value);
    QVariant normalized(const Data &data, const QVariant &value, bool *ok) const;
    static QStringList fontFamilies();

    QtVariantPropertyManager *q_ptr = nullptr;
    QHash<const QtProperty *, Data> m_data;
    QHash<const QtProperty *, QtProperty *> m_fieldParent;
    int m_pendingType = QMetaType::UnknownType;
    int m_updatingFields = 0;
};

QStringList QtVariantPropertyManagerPrivate::fontFamilies()
{
    static const QStringList families = QFontDatabase().families();
    return families;
}

void QtVariantPropertyManagerPrivate::createFields(QtProperty *property, int propertyType)
{
    const int valueType = typeSpec(propertyType)->valueType;
    if (propertyType == QtVariantPropertyManager::flagTypeId()) {
        createFlagFields(property);
        return;
    }
    const QList<FieldSpec> &fields = fieldSpecs(valueType);
    for (const FieldSpec &field : fields) {
        const int fieldType =
                field.propertyType ? field.propertyType : QtVariantPropertyManager::enumTypeId();
        // Through the public entry point, so a subclass sees every property it manages made.
        QtVariantProperty *sub = q_ptr->addProperty(fieldType, translated(field.name));
        if (!sub)
            continue;
        if (fieldType == QMetaType::Int) {
            m_data[sub].attributes.insert(minimumAttribute(), field.minimum);
            m_data[sub].attributes.insert(maximumAttribute(), field.maximum);
        } else if (valueType == QMetaType::QFont) {
            m_data[sub].attributes.insert(enumNamesAttribute(), fontFamilies());
        } else if (valueType == QMetaType::QSizePolicy) {
            m_data[sub].attributes.insert(enumNamesAttribute(), sizePolicyNames());
        }
        m_fieldParent.insert(sub, property);
        m_data[property].fields.append(sub);
        property->addSubProperty(sub);
    }
}

void QtVariantPropertyManagerPrivate::createFlagFields(QtProperty *property)
{
    const QStringList names =
            m_data.value(property).attributes.value(flagNamesAttribute()).toStringList();
    for (const QString &name : names) {
        QtVariantProperty *sub = q_ptr->addProperty(QMetaType::Bool, name);
        if (!sub)
            continue;
        m_fieldParent.insert(sub, property);
        m_data[property].fields.append(sub);
        property->addSubProperty(sub);
    }
}

void QtVariantPropertyManagerPrivate::deleteFields(QtProperty *property)
{
    auto data = m_data.find(property);
    if (data == m_data.end())
        return;
    const QList<QtProperty *> fields = data->fields;
    data->fields.clear();
    for (QtProperty *field : fields) {
        m_fieldParent.remove(field);
        delete field;
    }
}

void QtVariantPropertyManagerPrivate::updateFields(QtProperty *property)
{
    const Data data = m_data.value(property);
    if (data.fields.isEmpty())
        return;
    ++m_updatingFields;
    if (data.propertyType == QtVariantPropertyManager::flagTypeId()) {
        const int flags = data.value.toInt();
        for (int i = 0; i < data.fields.size(); ++i)
            storeValue(data.fields.at(i), bool(flags & (1 << i)));
    } else {
        const QList<FieldSpec> &fields = fieldSpecs(data.value.userType());
        for (int i = 0; i < data.fields.size() && i < fields.size(); ++i) {
            QtProperty *field = data.fields.at(i);
            if (fields.at(i).get) {
                storeValue(field, fields.at(i).get(data.value));
                continue;
            }
            // The font family: find the family among the field's names, adding it when
            // the font names one the font database does not list.
            const QString family = as<QFont>(data.value).family();
            QStringList names =
                    m_data.value(field).attributes.value(enumNamesAttribute()).toStringList();
            int index = names.indexOf(family);
            if (index < 0) {
                names.append(family);
                names.sort(Qt::CaseInsensitive);
                index = names.indexOf(family);
                q_ptr->setAttribute(field, enumNamesAttribute(), names);
            }
            storeValue(field, index);
        }
    }
    --m_updatingFields;
}

void QtVariantPropertyManagerPrivate::fieldChanged(QtProperty *field)
{
    QtProperty *property = m_fieldParent.value(field);
    if (!property || m_updatingFields)
        return;
    const Data data = m_data.value(property);
    const int index = data.fields.indexOf(field);
    const QVariant fieldValue = m_data.value(field).value;
    QVariant value = data.value;
    if (data.propertyType == QtVariantPropertyManager::flagTypeId()) {
        const int bit = 1 << index;
        value = fieldValue.toBool() ? (value.toInt() | bit) : (value.toInt() & ~bit);
    } else {
        const FieldSpec &spec = fieldSpecs(data.value.userType()).at(index);
        if (spec.set) {
            spec.set(value, fieldValue);
        } else {
            const QStringList names =
                    m_data.value(field).attributes.value(enumNamesAttribute()).toStringList();
            QFont font = as<QFont>(value);
            font.setFamily(names.value(fieldValue.toInt()));
            value = font;
        }
    }
    // Through the public entry point, so a subclass sees the compound value change.
    q_ptr->setValue(property, value);
}

void QtVariantPropertyManagerPrivate::storeValue(QtProperty *property, const QVariant &value)
{
    auto data = m_data.find(property);
    if (data == m_data.end() || sameValue(data->value, value))
        return;
    data->value = value;
    updateFields(property);
    emit q_ptr->propertyChanged(property);
    emit q_ptr->valueChanged(property, value);
    fieldChanged(property);
}

QVariant QtVariantPropertyManagerPrivate::normalized(const Data &data, const QVariant &value,
                                                     bool *ok) const
{
    *ok = false;
    const TypeSpec *spec = typeSpec(data.propertyType);
    if (!spec || spec->valueType == QMetaType::UnknownType)
        return QVariant();
    QVariant result = value;
    if (result.userType() != spec->valueType) {
        if (!result.isValid())
            result = spec->initialValue;
        else if (!result.convert(spec->valueType))
            return QVariant();
    }
    if (data.propertyType == QMetaType::Int) {
        const int minimum = data.attributes.value(minimumAttribute()).toInt();
        const int maximum = data.attributes.value(maximumAttribute()).toInt();
        result = qBound(minimum, result.toInt(), maximum);
    } else if (data.propertyType == QMetaType::Double) {
        const double minimum = data.attributes.value(minimumAttribute()).toDouble();
        const double maximum = data.attributes.value(maximumAttribute()).toDouble();
        result = qBound(minimum, result.toDouble(), maximum);
    } else if (data.propertyType == QtVariantPropertyManager::enumTypeId()) {
        const int count = data.attributes.value(enumNamesAttribute()).toStringList().size();
        const int index = result.toInt();
        if (index < -1 || index >= count || (index == -1 && count > 0))
            return QVariant();
    } else if (data.propertyType == QtVariantPropertyManager::flagTypeId()) {
        const int count = data.attributes.value(flagNamesAttribute()).toStringList().size();
        const int allBits = count >= 31 ? INT_MAX : (1 << count) - 1;
        result = result.toInt() & allBits;
    }
    *ok = true;
    return result;
}

// ---------------------------------------------------------------------------------------
// QtVariantProperty

QtVariantProperty::QtVariantProperty(QtVariantPropertyManager *manager)
    : QtProperty(manager), d_ptr(new QtVariantPropertyPrivate(manager))
{ }

QtVariantProperty::~QtVariantProperty() = default;

QVariant QtVariantProperty::value() const { return d_ptr->m_manager->value(this); }

QVariant QtVariantProperty::attributeValue(const QString &attribute) const
{
    return d_ptr->m_manager->attributeValue(this, attribute);
}

int QtVariantProperty::valueType() const { return d_ptr->m_manager->valueType(this); }

int QtVariantProperty::propertyType() const { return d_ptr->m_manager->propertyType(this); }

void QtVariantProperty::setValue(const QVariant &value) { d_ptr->m_manager->setValue(this, value); }

void QtVariantProperty::setAttribute(const QString &attribute, const QVariant &value)
{
    d_ptr->m_manager->setAttribute(this, attribute, value);
}

// ---------------------------------------------------------------------------------------
// QtVariantPropertyManager

QtVariantPropertyManager::QtVariantPropertyManager(QObject *parent)
    : QtAbstractPropertyManager(parent), d_ptr(new QtVariantPropertyManagerPrivate)
{
    d_ptr->q_ptr = this;
}

QtVariantPropertyManager::~QtVariantPropertyManager() { clear(); }

int QtVariantPropertyManager::enumTypeId() { return qMetaTypeId<QtEnumPropertyType>(); }

int QtVariantPropertyManager::flagTypeId() { return qMetaTypeId<QtFlagPropertyType>(); }

int QtVariantPropertyManager::groupTypeId() { return qMetaTypeId<QtGroupPropertyType>(); }

int QtVariantPropertyManager::iconMapTypeId() { return qMetaTypeId<QtIconMap>(); }

QtVariantProperty *QtVariantPropertyManager::addProperty(int propertyType, const QString &name)
{
    if (!isPropertyTypeSupported(propertyType))
        return nullptr;
    // initializeProperty() picks the type up; saved and restored, as making a compound
    // property makes its sub-properties on the way.
    const int previous = d_ptr->m_pendingType;
    d_ptr->m_pendingType = propertyType;
    QtProperty *property = QtAbstractPropertyManager::addProperty(name);
    d_ptr->m_pendingType = previous;
    return variantProperty(property);
}

int QtVariantPropertyManager::propertyType(const QtProperty *property) const
{
    auto it = d_ptr->m_data.constFind(property);
    return it == d_ptr->m_data.cend() ? int(QMetaType::UnknownType) : it->propertyType;
}

int QtVariantPropertyManager::valueType(const QtProperty *property) const
{
    return valueType(propertyType(property));
}

QtVariantProperty *QtVariantPropertyManager::variantProperty(const QtProperty *property) const
{
    // Every property of this manager comes from createProperty(), hence is a variant one.
    if (!property || !d_ptr->m_data.contains(property))
        return nullptr;
    return static_cast<QtVariantProperty *>(const_cast<QtProperty *>(property));
}

bool QtVariantPropertyManager::isPropertyTypeSupported(int propertyType) const
{
    return typeSpec(propertyType) != nullptr;
}

int QtVariantPropertyManager::valueType(int propertyType) const
{
    const TypeSpec *spec = typeSpec(propertyType);
    return spec ? spec->valueType : int(QMetaType::UnknownType);
}

QStringList QtVariantPropertyManager::attributes(int propertyType) const
{
    QStringList names;
    if (const TypeSpec *spec = typeSpec(propertyType)) {
        for (const AttributeSpec &attribute : spec->attributes)
            names.append(attribute.name);
    }
    return names;
}

int QtVariantPropertyManager::attributeType(int propertyType, const QString &attribute) const
{
    if (const TypeSpec *spec = typeSpec(propertyType)) {
        for (const AttributeSpec &candidate : spec->attributes) {
            if (candidate.name == attribute)
                return candidate.type;
        }
    }
    return QMetaType::UnknownType;
}

QVariant QtVariantPropertyManager::value(const QtProperty *property) const
{
    return d_ptr->m_data.value(property).value;
}

QVariant QtVariantPropertyManager::attributeValue(const QtProperty *property,
                                                  const QString &attribute) const
{
    return d_ptr->m_data.value(property).attributes.value(attribute);
}

void QtVariantPropertyManager::setValue(QtProperty *property, const QVariant &val)
{
    auto data = d_ptr->m_data.constFind(property);
    if (data == d_ptr->m_data.cend() || !d_ptr->isOwnType(*data))
        return;
    bool ok = false;
    const QVariant value = d_ptr->normalized(*data, val, &ok);
    if (ok)
        d_ptr->storeValue(property, value);
}

void QtVariantPropertyManager::setAttribute(QtProperty *property, const QString &attribute,
                                            const QVariant &value)
{
    auto data = d_ptr->m_data.find(property);
    if (data == d_ptr->m_data.end() || !d_ptr->isOwnType(*data))
        return;
    const int type = attributeType(data->propertyType, attribute);
    if (type == QMetaType::UnknownType)
        return;
    QVariant converted = value;
    if (converted.userType() != type && !converted.convert(type))
        return;
    if (sameValue(data->attributes.value(attribute), converted))
        return;
    data->attributes.insert(attribute, converted);

    // Keep a range valid: moving one bound past the other drags the other along.
    const bool isRange =
            data->propertyType == QMetaType::Int || data->propertyType == QMetaType::Double;
    QString draggedBound;
    if (isRange && (attribute == minimumAttribute() || attribute == maximumAttribute())) {
        const double minimum = data->attributes.value(minimumAttribute()).toDouble();
        const double maximum = data->attributes.value(maximumAttribute()).toDouble();
        if (minimum > maximum) {
            draggedBound =
                    attribute == minimumAttribute() ? maximumAttribute() : minimumAttribute();
            data->attributes.insert(draggedBound, converted);
        }
    }
    const int propertyType = data->propertyType;
    const bool flagNamesChanged = propertyType == flagTypeId() && attribute == flagNamesAttribute();
    const QVariant oldValue = data->value;
    QVariant newValue = oldValue;
    if (propertyType == enumTypeId() && attribute == enumNamesAttribute()) {
        const int count = converted.toStringList().size();
        newValue = count == 0 ? -1 : qBound(0, oldValue.toInt(), count - 1);
    } else {
        bool ok = false;
        newValue = d_ptr->normalized(*data, oldValue, &ok);
    }
    if (flagNamesChanged) {
        d_ptr->deleteFields(property);
        d_ptr->createFlagFields(property);
    }
    data = d_ptr->m_data.find(property); // the hash may have grown meanwhile
    data->value = newValue;
    if (flagNamesChanged)
        d_ptr->updateFields(property);

    emit attributeChanged(property, attribute, converted);
    if (!draggedBound.isEmpty())
        emit attributeChanged(property, draggedBound, converted);
    emit propertyChanged(property);
    if (!sameValue(oldValue, newValue)) {
        d_ptr->updateFields(property);
        emit valueChanged(property, newValue);
    }
}

bool QtVariantPropertyManager::hasValue(const QtProperty *property) const
{
    return propertyType(property) != groupTypeId();
}

QString QtVariantPropertyManager::valueText(const QtProperty *property) const
{
    const auto data = d_ptr->m_data.constFind(property);
    if (data == d_ptr->m_data.cend())
        return QString();
    const QVariant &value = data->value;
    const int type = data->propertyType;
    if (type == enumTypeId())
        return data->attributes.value(enumNamesAttribute()).toStringList().value(value.toInt());
    if (type == flagTypeId()) {
        const QStringList names = data->attributes.value(flagNamesAttribute()).toStringList();
        QStringList set;
        for (int i = 0; i < names.size(); ++i) {
            if (value.toInt() & (1 << i))
                set.append(names.at(i));
        }
        return set.join(QLatin1Char('|'));
    }
    switch (type) {
    case QMetaType::Bool:
        return value.toBool() ? translated(QT_TRANSLATE_NOOP("QtVariantPropertyManager", "True"))
                              : translated(QT_TRANSLATE_NOOP("QtVariantPropertyManager", "False"));
    case QMetaType::Int:
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'f',
                               data->attributes.value(QStringLiteral("decimals")).toInt());
    case QMetaType::QColor: {
        const QColor color = as<QColor>(value);
        return QStringLiteral("[%1, %2, %3] (%4)")
                .arg(color.red())
                .arg(color.green())
                .arg(color.blue())
                .arg(color.alpha());
    }
    case QMetaType::QFont: {
        const QFont font = as<QFont>(value);
        return QStringLiteral("[%1, %2]").arg(font.family()).arg(font.pointSize());
    }
    case QMetaType::QSize: {
        const QSize size = as<QSize>(value);
        return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    }
    case QMetaType::QPoint: {
        const QPoint point = as<QPoint>(value);
        return QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
    }
    case QMetaType::QRect: {
        const QRect rect = as<QRect>(value);
        return QStringLiteral("[(%1, %2), %3 x %4]")
                .arg(rect.x())
                .arg(rect.y())
                .arg(rect.width())
                .arg(rect.height());
    }
    case QMetaType::QKeySequence:
        return as<QKeySequence>(value).toString(QKeySequence::NativeText);
    case QMetaType::QSizePolicy: {
        const QSizePolicy policy = as<QSizePolicy>(value);
        const QMetaEnum policies = sizePolicyEnum();
        return QStringLiteral("[%1, %2, %3, %4]")
                .arg(QLatin1String(policies.valueToKey(policy.horizontalPolicy())),
                     QLatin1String(policies.valueToKey(policy.verticalPolicy())))
                .arg(policy.horizontalStretch())
                .arg(policy.verticalStretch());
    }
    default:
        return QString();
    }
}

QIcon QtVariantPropertyManager::valueIcon(const QtProperty *property) const
{
    const auto data = d_ptr->m_data.constFind(property);
    if (data == d_ptr->m_data.cend())
        return QIcon();
    const QVariant &value = data->value;
    if (data->propertyType == enumTypeId()) {
        const QtIconMap icons =
                data->attributes.value(QStringLiteral("enumIcons")).value<QtIconMap>();
        return icons.value(value.toInt());
    }
    switch (data->propertyType) {
    case QMetaType::Bool:
        return checkBoxIcon(value.toBool());
    case QMetaType::QColor:
        return colorIcon(as<QColor>(value));
    case QMetaType::QFont:
        return fontIcon(as<QFont>(value));
    case QMetaType::QIcon:
        return as<QIcon>(value);
    case QMetaType::QPixmap:
        return QIcon(as<QPixmap>(value));
    default:
        return QIcon();
    }
}

void QtVariantPropertyManager::initializeProperty(QtProperty *property)
{
    QtVariantPropertyManagerPrivate::Data &data = d_ptr->m_data[property];
    data.propertyType = d_ptr->m_pendingType;
    const TypeSpec *spec = typeSpec(data.propertyType);
    if (!spec)
        return; // a subclass's own type: the subclass keeps its value
    data.value = spec->initialValue;
    for (const AttributeSpec &attribute : spec->attributes)
        data.attributes.insert(attribute.name, attribute.initial);
    d_ptr->createFields(property, data.propertyType);
    d_ptr->updateFields(property);
}

void QtVariantPropertyManager::uninitializeProperty(QtProperty *property)
{
    d_ptr->deleteFields(property);
    if (QtProperty *parent = d_ptr->m_fieldParent.take(property)) {
        auto parentData = d_ptr->m_data.find(parent);
        if (parentData != d_ptr->m_data.end())
            parentData->fields.removeOne(property);
    }
    d_ptr->m_data.remove(property);
}

QtProperty *QtVariantPropertyManager::createProperty() { return new QtVariantProperty(this); }
