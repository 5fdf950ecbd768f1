#include "itemrecord.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetPixmapValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

bool sameValue(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType())
        return false;
    if (a.userType() == qMetaTypeId<PropertySheetStringValue>())
        return qvariant_cast<PropertySheetStringValue>(a)
                == qvariant_cast<PropertySheetStringValue>(b);
    if (a.userType() == qMetaTypeId<PropertySheetIconValue>())
        return qvariant_cast<PropertySheetIconValue>(a) == qvariant_cast<PropertySheetIconValue>(b);
    return a == b;
}

} // namespace

bool sameRecord(const ItemRecord &a, const ItemRecord &b)
{
    if (a.size() != b.size())
        return false;
    for (auto it = a.cbegin(); it != a.cend(); ++it) {
        const auto other = b.constFind(it.key());
        if (other == b.cend() || !sameValue(it.value(), other.value()))
            return false;
    }
    return true;
}

bool sameRecords(const ItemRecords &a, const ItemRecords &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (!sameRecord(a.at(i), b.at(i)))
            return false;
    }
    return true;
}

QString recordString(const ItemRecord &record, int role)
{
    return qvariant_cast<PropertySheetStringValue>(record.value(role)).value();
}

QString recordIconPath(const ItemRecord &record)
{
    return qvariant_cast<PropertySheetIconValue>(record.value(ItemRoles::Icon))
            .pixmap(QIcon::Normal, QIcon::Off)
            .path();
}

QStringList recordStrings(const ItemRecords &records, int role)
{
    QStringList strings;
    strings.reserve(records.size());
    for (const ItemRecord &record : records)
        strings.append(recordString(record, role));
    return strings;
}

QStringList recordIconPaths(const ItemRecords &records)
{
    QStringList paths;
    paths.reserve(records.size());
    for (const ItemRecord &record : records)
        paths.append(recordIconPath(record));
    return paths;
}

QVariant designerString(const QString &text, const QVariantMap &attributes)
{
    PropertySheetStringValue value(text, !attributes.value(QStringLiteral("notr")).toBool(),
                                   attributes.value(QStringLiteral("comment")).toString(),
                                   attributes.value(QStringLiteral("extracomment")).toString());
    value.setId(attributes.value(QStringLiteral("id")).toString());
    return QVariant::fromValue(value);
}

QVariantMap stringAttributes(const QVariant &designerString)
{
    QVariantMap attributes;
    if (!designerString.canConvert<PropertySheetStringValue>())
        return attributes;
    const auto value = qvariant_cast<PropertySheetStringValue>(designerString);
    if (!value.translatable())
        attributes.insert(QStringLiteral("notr"), true);
    const QString texts[] = {value.disambiguation(), value.comment(), value.id()};
    const char *const names[] = {"comment", "extracomment", "id"};
    for (int i = 0; i < 3; ++i) {
        if (!texts[i].isEmpty())
            attributes.insert(QLatin1String(names[i]), texts[i]);
    }
    return attributes;
}

QVariantList recordStringAttributes(const ItemRecords &records, int role)
{
    QVariantList attributes;
    bool marked = false;
    attributes.reserve(records.size());
    for (const ItemRecord &record : records) {
        const QVariantMap entry = stringAttributes(record.value(role));
        marked = marked || !entry.isEmpty();
        attributes.append(entry);
    }
    return marked ? attributes : QVariantList();
}

QVariant designerIcon(const QString &pixmapPath)
{
    return QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(pixmapPath)));
}

void setRecordString(ItemRecord &record, int role, const QString &text,
                     const QVariantMap &attributes)
{
    if (!text.isEmpty())
        record.insert(role, designerString(text, attributes));
}
