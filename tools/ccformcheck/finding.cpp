#include "finding.h"

#include <QJsonArray>

QJsonObject FormResult::toJson() const
{
    QJsonArray list;
    for (const Finding &finding : findings)
        list.append(QJsonObject {{QStringLiteral("line"), finding.line},
                                 {QStringLiteral("error"), finding.error},
                                 {QStringLiteral("message"), finding.message}});
    return {{QStringLiteral("file"), file},
            {QStringLiteral("findings"), list},
            {QStringLiteral("picture"), picture},
            {QStringLiteral("thumbnail"), thumbnail},
            {QStringLiteral("pictureNote"), pictureNote},
            {QStringLiteral("seconds"), seconds},
            {QStringLiteral("peakKilobytes"), double(peakKilobytes)}};
}

FormResult FormResult::fromJson(const QJsonObject &object)
{
    FormResult result;
    result.file = object.value(QLatin1String("file")).toString();
    const QJsonArray list = object.value(QLatin1String("findings")).toArray();
    for (const QJsonValue &value : list) {
        const QJsonObject finding = value.toObject();
        result.add(finding.value(QLatin1String("line")).toInt(),
                   finding.value(QLatin1String("error")).toBool(),
                   finding.value(QLatin1String("message")).toString());
    }
    result.picture = object.value(QLatin1String("picture")).toString();
    result.thumbnail = object.value(QLatin1String("thumbnail")).toString();
    result.pictureNote = object.value(QLatin1String("pictureNote")).toString();
    result.seconds = object.value(QLatin1String("seconds")).toDouble();
    result.peakKilobytes = qint64(object.value(QLatin1String("peakKilobytes")).toDouble());
    return result;
}
