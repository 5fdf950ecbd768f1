#include "ccdomentries.h"

#include <QtDesigner/private/ui4_p.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

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

Lists readItems(const DomWidget *domWidget, const QVector<Field> &fields, QStringList *dropped)
{
    Lists lists;
    bool marked[FieldCount] = {};
    const QVector<DomItem *> items = domWidget->elementItem();
    for (int i = 0; i < items.size(); ++i) {
        const DomItem *item = items.at(i);
        const QString where = QStringLiteral("item %1 ").arg(i + 1);
        QString values[FieldCount];
        QVariantMap attributes[FieldCount];
        const DomProperty *taken[FieldCount] = {};
        const QList<DomProperty *> properties = item->elementProperty();
        for (const DomProperty *property : properties) {
            for (Field field : fields) {
                if (property->attributeName() != fieldName(field))
                    continue;
                // An item holding a property twice has the last one, as a widget does.
                if (taken[field] && dropped)
                    *dropped += droppedValues(where, taken[field], propertyValues(property));
                taken[field] = property;
                values[field] = propertyText(property);
                attributes[field].clear();
                if (carriesAttributes(field) && property->kind() == DomProperty::String)
                    attributes[field] = attributesOf(property->elementString());
            }
        }
        for (Field field : fields) {
            lists[field].append(values[field]);
            lists.attributes[field].append(attributes[field]);
            marked[field] = marked[field] || !attributes[field].isEmpty();
            if (!taken[field] || !dropped)
                continue;
            // A string keeps all it holds when it is a text or tool tip, and all but its
            // comments and id when it is an identifier: the usual case costs no more than
            // reading its attributes.
            if (taken[field]->kind() == DomProperty::String) {
                const DomString *string = taken[field]->elementString();
                if (carriesAttributes(field) || !string
                    || (string->attributeComment().isEmpty()
                        && string->attributeExtraComment().isEmpty()
                        && string->attributeId().isEmpty()))
                    continue;
            }
            // What of the value is kept: its text, and a string's translation marks (notr
            // on identifiers is theirs anyway).
            QVector<QPair<QString, QString>> kept = {{QString(), values[field]}};
            for (auto a = attributes[field].cbegin(); a != attributes[field].cend(); ++a)
                kept.append({a.key(), a.value().toString()});
            const QVector<QPair<QString, QString>> all = propertyValues(taken[field]);
            for (const auto &value : all) {
                if (value.first == QLatin1String("notr") && !carriesAttributes(field))
                    kept.append(value);
                if (value.first == QLatin1String("notr") && value.second == QLatin1String("true")
                    && attributes[field].value(QStringLiteral("notr")).toBool())
                    kept.append(value);
            }
            *dropped += droppedValues(where, taken[field], kept);
        }
    }
    // Lists of plain strings carry no attributes at all.
    for (Field field : fields) {
        if (!marked[field])
            lists.attributes[field].clear();
    }
    return lists;
}

QVector<QPair<QString, QString>> propertyValues(const DomProperty *property)
{
    QVector<QPair<QString, QString>> values;
    if (!property)
        return values;
    // The property as the form writer spells it, read back element by element: every kind of
    // value the format has is covered without a case for each.
    QString xml;
    {
        QXmlStreamWriter writer(&xml);
        property->write(writer);
    }
    QXmlStreamReader reader(xml);
    QString text;
    bool leaf = false;
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            ++depth;
            text.clear();
            leaf = true;
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute &attribute : attributes) {
                const QString name = attribute.name().toString();
                const QString value = attribute.value().toString();
                if (depth == 1
                    && (name == QLatin1String("name") || name == QLatin1String("stdset")))
                    continue;
                if ((name == QLatin1String("notr") && value == QLatin1String("false"))
                    || value.isEmpty())
                    continue;
                values.append({name, value});
            }
            break;
        }
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            if (leaf && !text.trimmed().isEmpty())
                values.append({QString(), text});
            leaf = false;
            text.clear();
            break;
        default:
            break;
        }
    }
    return values;
}

QString droppedValue(const QString &where, const QString &property,
                     const QPair<QString, QString> &value)
{
    if (value.first.isEmpty())
        return QStringLiteral("%1property \"%2\" value \"%3\"").arg(where, property, value.second);
    return QStringLiteral("%1property \"%2\" attribute %3=\"%4\"")
            .arg(where, property, value.first, value.second);
}

QStringList droppedValues(const QString &where, const DomProperty *property,
                          const QVector<QPair<QString, QString>> &kept)
{
    QStringList dropped;
    const QVector<QPair<QString, QString>> values = propertyValues(property);
    for (const auto &value : values) {
        if (!kept.contains(value))
            dropped.append(droppedValue(where, property->attributeName(), value));
    }
    return dropped;
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
    for (int i = properties.size() - 1; i >= 0; --i) {
        if (properties.at(i)->attributeName() == name)
            return properties.at(i);
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
