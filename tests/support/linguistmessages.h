#pragma once

// What Qt's lupdate finds in a form: the messages a translator would get.

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace CcTest {

// The messages lupdate (CC_LUPDATE, the one of the Qt in use) extracts from .ui text, each as
// "source | disambiguation | translator's comment | id", sorted; or one line saying why there
// are none.
inline QStringList linguistMessages(const QString &uiXml)
{
    QTemporaryDir dir;
    QFile form(dir.filePath(QStringLiteral("form.ui")));
    if (!form.open(QIODevice::WriteOnly) || form.write(uiXml.toUtf8()) < 0)
        return {QStringLiteral("<form not written>")};
    form.close();
    const QString ts = dir.filePath(QStringLiteral("form.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(CC_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
                   form.fileName(), QStringLiteral("-ts"), ts});
    if (!lupdate.waitForFinished(60000) || lupdate.exitCode() != 0)
        return {QStringLiteral("<lupdate failed: %1>")
                        .arg(QString::fromLocal8Bit(lupdate.readAllStandardError()))};
    QFile file(ts);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("<no .ts written>")};
    static const QStringList named = {QStringLiteral("source"), QStringLiteral("comment"),
                                      QStringLiteral("extracomment")};
    QStringList messages;
    QStringList fields;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("message")) {
            fields = QStringList({QString(), QString(), QString(),
                                  reader.attributes().value(QLatin1String("id")).toString()});
        } else if (reader.isStartElement() && named.contains(reader.name().toString())) {
            const int field = named.indexOf(reader.name().toString());
            fields[field] = reader.readElementText();
        } else if (reader.isEndElement() && reader.name() == QLatin1String("message")) {
            messages.append(fields.join(QStringLiteral(" | ")));
        }
    }
    messages.sort();
    return messages;
}

} // namespace CcTest
