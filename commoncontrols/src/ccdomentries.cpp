#include "ccdomentries.h"

#include <QtDesigner/private/ui4_p.h>

namespace VoCc {
namespace DomEntries {

namespace {

// The "notr" attribute each field is written with: data and action names are identifiers,
// texts and tool tips are for translation.
const char *notrOf(Field field)
{
    switch (field) {
    case Data:
    case Icon:
    case Action:
        return "true";
    default:
        return "false";
    }
}

bool carriesAttributes(Field field) { return field == Text || field == ToolTip; }

DomProperty *stringProperty(const QString &name, const QString &value, const char *notr,
                            const QVariantMap &attributes = QVariantMap())
{
    auto *string = new DomString;
    string->setText(value);
    if (notr)
        string->setAttributeNotr(QLatin1String(notr));
    setAttributes(string, attributes);
    auto *property = new DomProperty;
    property->setAttributeName(name);
    property->setElementString(string);
    return property;
}

void replaceProperty(DomWidget *domWidget, DomProperty *replacement)
{
    removeProperty(domWidget, replacement->attributeName());
    QList<DomProperty *> properties = domWidget->elementProperty();
    properties.append(replacement);
    domWidget->setElementProperty(properties);
}

} // namespace

QString fieldName(Field field)
{
    static const char *const names[FieldCount] = {"data", "text", "icon", "toolTip", "action"};
    return QLatin1String(names[field]);
}

void writeItems(DomWidget *domWidget, const Lists &lists, const QVector<Field> &fields)
{
    int count = 0;
    for (Field field : fields)
        count = qMax(count, lists[field].size());

    // Fields are written in one fixed order whatever order the caller lists them in.
    QVector<Field> ordered;
    for (int field = 0; field < FieldCount; ++field) {
        if (fields.contains(Field(field)))
            ordered.append(Field(field));
    }

    QVector<DomItem *> items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        QList<DomProperty *> properties;
        for (Field field : qAsConst(ordered)) {
            const QString value = lists[field].value(i);
            if (!value.isEmpty())
                properties.append(stringProperty(fieldName(field), value, notrOf(field),
                                                 lists.attributes[field].value(i).toMap()));
        }
        auto *item = new DomItem;
        item->setElementProperty(properties);
        items.append(item);
    }
    qDeleteAll(domWidget->elementItem());
    domWidget->setElementItem(items);
}

Lists readItems(const DomWidget *domWidget, const QVector<Field> &fields)
{
    Lists lists;
    bool marked[FieldCount] = {};
    const QVector<DomItem *> items = domWidget->elementItem();
    for (const DomItem *item : items) {
        QString values[FieldCount];
        QVariantMap attributes[FieldCount];
        const QList<DomProperty *> properties = item->elementProperty();
        for (const DomProperty *property : properties) {
            for (Field field : fields) {
                if (property->attributeName() != fieldName(field))
                    continue;
                values[field] = propertyText(property);
                if (carriesAttributes(field) && property->kind() == DomProperty::String)
                    attributes[field] = attributesOf(property->elementString());
            }
        }
        for (Field field : fields) {
            lists[field].append(values[field]);
            lists.attributes[field].append(attributes[field]);
            marked[field] = marked[field] || !attributes[field].isEmpty();
        }
    }
    // Lists of plain strings carry no attributes at all.
    for (Field field : fields) {
        if (!marked[field])
            lists.attributes[field].clear();
    }
    return lists;
}

QString propertyText(const DomProperty *property)
{
    if (!property)
        return QString();
    switch (property->kind()) {
    case DomProperty::String:
        return property->elementString() ? property->elementString()->text() : QString();
    case DomProperty::Cstring:
        return property->elementCstring();
    case DomProperty::Number:
        return QString::number(property->elementNumber());
    case DomProperty::Double:
        return QString::number(property->elementDouble());
    case DomProperty::Float:
        return QString::number(property->elementFloat());
    case DomProperty::LongLong:
        return QString::number(property->elementLongLong());
    case DomProperty::Bool:
        return property->elementBool();
    case DomProperty::Enum:
        return property->elementEnum();
    case DomProperty::Pixmap:
        return property->elementPixmap() ? property->elementPixmap()->text() : QString();
    case DomProperty::IconSet:
        if (const DomResourceIcon *icon = property->elementIconSet()) {
            if (icon->elementNormalOff() && !icon->elementNormalOff()->text().isEmpty())
                return icon->elementNormalOff()->text();
            return icon->text();
        }
        return QString();
    default:
        return QString();
    }
}

void setNumberProperty(DomWidget *domWidget, const QString &name, int value)
{
    auto *property = new DomProperty;
    property->setAttributeName(name);
    property->setElementNumber(value);
    replaceProperty(domWidget, property);
}

void setStringProperty(DomWidget *domWidget, const QString &name, const QString &value)
{
    replaceProperty(domWidget, stringProperty(name, value, nullptr));
}

void setStringListProperty(DomWidget *domWidget, const QString &name, const QStringList &value,
                           const QVariantMap &attributes)
{
    auto *list = new DomStringList;
    list->setElementString(value);
    setAttributes(list, attributes);
    auto *property = new DomProperty;
    property->setAttributeName(name);
    property->setElementStringList(list);
    replaceProperty(domWidget, property);
}

void removeProperty(DomWidget *domWidget, const QString &name)
{
    QList<DomProperty *> properties = domWidget->elementProperty();
    for (int i = properties.size() - 1; i >= 0; --i) {
        if (properties.at(i)->attributeName() == name)
            delete properties.takeAt(i);
    }
    domWidget->setElementProperty(properties);
}

namespace {

// DomString and DomStringList spell their translation attributes alike.
template<class Element>
QVariantMap attributesOfElement(const Element *element)
{
    QVariantMap attributes;
    if (!element)
        return attributes;
    if (element->hasAttributeNotr() && element->attributeNotr() == QLatin1String("true"))
        attributes.insert(QStringLiteral("notr"), true);
    if (!element->attributeComment().isEmpty())
        attributes.insert(QStringLiteral("comment"), element->attributeComment());
    if (!element->attributeExtraComment().isEmpty())
        attributes.insert(QStringLiteral("extracomment"), element->attributeExtraComment());
    if (!element->attributeId().isEmpty())
        attributes.insert(QStringLiteral("id"), element->attributeId());
    return attributes;
}

template<class Element>
void setElementAttributes(Element *element, const QVariantMap &attributes)
{
    if (attributes.value(QStringLiteral("notr")).toBool())
        element->setAttributeNotr(QStringLiteral("true"));
    const QString comment = attributes.value(QStringLiteral("comment")).toString();
    if (!comment.isEmpty())
        element->setAttributeComment(comment);
    const QString extraComment = attributes.value(QStringLiteral("extracomment")).toString();
    if (!extraComment.isEmpty())
        element->setAttributeExtraComment(extraComment);
    const QString id = attributes.value(QStringLiteral("id")).toString();
    if (!id.isEmpty())
        element->setAttributeId(id);
}

} // namespace

QVariantMap attributesOf(const DomString *string) { return attributesOfElement(string); }
QVariantMap attributesOf(const DomStringList *list) { return attributesOfElement(list); }
void setAttributes(DomString *string, const QVariantMap &attributes)
{
    setElementAttributes(string, attributes);
}
void setAttributes(DomStringList *list, const QVariantMap &attributes)
{
    setElementAttributes(list, attributes);
}

const DomProperty *findProperty(const DomWidget *domWidget, const QString &name)
{
    const QList<DomProperty *> properties = domWidget->elementProperty();
    for (const DomProperty *property : properties) {
        if (property->attributeName() == name)
            return property;
    }
    return nullptr;
}

void writeItemActions(DomWidget *domWidget, const QStringList &actions)
{
    const QString actionName = fieldName(Action);
    const QVector<DomItem *> items = domWidget->elementItem();
    for (int i = 0; i < items.size(); ++i) {
        DomItem *item = items.at(i);
        QList<DomProperty *> properties = item->elementProperty();
        for (int p = properties.size() - 1; p >= 0; --p) {
            if (properties.at(p)->attributeName() == actionName)
                delete properties.takeAt(p);
        }
        const QString action = actions.value(i);
        if (!action.isEmpty())
            properties.append(stringProperty(actionName, action, notrOf(Action)));
        item->setElementProperty(properties);
    }
}

} // namespace DomEntries
} // namespace VoCc
