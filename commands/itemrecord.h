#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

// One entry of a list-like widget while it is edited: item data role -> value. Texts, tool
// tips, actions and data are Designer string values (role 27 text, 29 tool tip, 33 action,
// 34 data), the icon a Designer icon value (role 28). A role the entry lacks is absent.
// A map, not a hash: a record holds a few roles, and a matrix keeps one per cell; Qt 6's
// hash allocates room for many entries even for one.
using ItemRecord = QMap<int, QVariant>;
using ItemRecords = QList<ItemRecord>;

namespace ItemRoles {
enum : int {
    Text = Qt::DisplayPropertyRole,
    Icon = Qt::DecorationPropertyRole,
    ToolTip = Qt::ToolTipPropertyRole,
    Action = Qt::UserRole + 1,
    Data = Qt::UserRole + 2,
};
} // namespace ItemRoles

// Designer's value types compare by content here; QVariant itself would compare them by
// address.
bool sameRecord(const ItemRecord &a, const ItemRecord &b);
bool sameRecords(const ItemRecords &a, const ItemRecords &b);

// The plain string of a string role, or an empty string when the record lacks it.
QString recordString(const ItemRecord &record, int role);
// The pixmap path of the icon role (normal mode, off state), or an empty string.
QString recordIconPath(const ItemRecord &record);
// One plain string per record, in record order.
QStringList recordStrings(const ItemRecords &records, int role);
QStringList recordIconPaths(const ItemRecords &records);

// Record values made from plain strings. A string value may carry translation attributes
// as the widgets keep them ("notr", "comment" for the disambiguation, "extracomment" for the
// translator's comment, "id").
QVariant designerString(const QString &text, const QVariantMap &attributes = QVariantMap());
// The translation attributes of a string value: empty for a plain translatable string.
QVariantMap stringAttributes(const QVariant &designerString);
// One map per record, or an empty list when no record's string carries any.
QVariantList recordStringAttributes(const ItemRecords &records, int role);
QVariant designerIcon(const QString &pixmapPath);
// Sets role to a string value (with its translation attributes) unless text is empty.
void setRecordString(ItemRecord &record, int role, const QString &text,
                     const QVariantMap &attributes = QVariantMap());
