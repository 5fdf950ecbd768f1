#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>
#include <QVector>

QT_BEGIN_NAMESPACE
class DomItem;
class DomProperty;
class DomString;
class DomStringList;
class DomWidget;
QT_END_NAMESPACE

namespace VoCc {
namespace DomEntries {

// The names of the item properties that carry the entries of list-like widgets.
enum Field { Data, Text, Icon, ToolTip, Action, FieldCount };
QString fieldName(Field field);

// One list per field, aligned by index. Texts and tool tips may carry translation
// attributes: one map per entry ("notr", "comment", "extracomment", "id"), as the widgets
// keep them; a missing or empty map is a plain translatable string.
struct Lists
{
    QStringList lists[FieldCount];
    QVariantList attributes[FieldCount];

    QStringList &operator[](Field field) { return lists[field]; }
    const QStringList &operator[](Field field) const { return lists[field]; }
};

// Replaces the widget element's items with one item per entry of the given fields: item i
// holds entry i of every listed field that is not empty, in the order data, text, icon,
// toolTip, action. The number of items is the length of the longest list. Texts and tool
// tips are written with their attributes (notr="false" unless marked), the other fields
// with notr="true".
void writeItems(DomWidget *domWidget, const Lists &lists, const QVector<Field> &fields);

// Reads the given fields from the element's items; every list gets one entry per item
// (an empty one where the item lacks the property), texts and tool tips their attributes.
// Unknown properties are ignored. What of the given fields is not kept is added to dropped
// (see droppedValue()), when given: a property an item holds twice (the last one counts, as
// for a widget's properties), the parts of a value of another type than a string that are
// not its text (the strings of a list, an icon's theme...), and the translation marks of
// data, icon paths and actions, which are identifiers.
Lists readItems(const DomWidget *domWidget, const QVector<Field> &fields,
                QStringList *dropped = nullptr);

// The values a property holds, as the form spells them: the text of each element and each
// attribute (first: the attribute's name, or empty for a text), the property's name and
// notr="false" (the default) aside.
QVector<QPair<QString, QString>> propertyValues(const DomProperty *property);

// One value a widget does not keep, for a warning: where (e.g. "item 2 "), the property, and
// the value or attribute.
QString droppedValue(const QString &where, const QString &property,
                     const QPair<QString, QString> &value);
// Every value of a property, as droppedValue() spells them; those equal to one of kept
// (first: attribute name or empty, second: value) are left out.
QStringList droppedValues(const QString &where, const DomProperty *property,
                          const QVector<QPair<QString, QString>> &kept = {});

// The text of a property of any string-like kind (string, number, pixmap, icon set...), or
// an empty text.
QString propertyText(const DomProperty *property);

// Sets one property of a widget element, replacing every property of that name before.
void setNumberProperty(DomWidget *domWidget, const QString &name, int value);
void setStringProperty(DomWidget *domWidget, const QString &name, const QString &value);

// A string list property with the given translation attributes (a string list has one set).
void setStringListProperty(DomWidget *domWidget, const QString &name, const QStringList &value,
                           const QVariantMap &attributes);
// Removes every property of that name.
void removeProperty(DomWidget *domWidget, const QString &name);

// The translation attributes of a string or string list as a map, and back; notr="false"
// and empty attributes are the plain case and give nothing.
QVariantMap attributesOf(const DomString *string);
QVariantMap attributesOf(const DomStringList *list);
void setAttributes(DomString *string, const QVariantMap &attributes);
void setAttributes(DomStringList *list, const QVariantMap &attributes);

// The property of that name of an element, or null; of several, the last (a widget takes its
// properties in order, so the last one given is the one it has).
const DomProperty *findProperty(const DomWidget *domWidget, const QString &name);

// Replaces the "action" property of item i of the element with actions[i] (or removes it when
// the action is empty). Items are never added or removed.
void writeItemActions(DomWidget *domWidget, const QStringList &actions);

} // namespace DomEntries
} // namespace VoCc
