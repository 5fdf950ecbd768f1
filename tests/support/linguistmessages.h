#pragma once

// What Qt's lupdate finds in a form: the messages a translator would get; and a translator that
// records what it is asked.

#include <QtCore>

namespace CcTest {

// A message: the form class it belongs to, its text, its disambiguation (a .ts file's
// "comment"), the translator's comment and its id. The first three tell messages apart, as a
// translator looks them up.
struct Message
{
    Message(const QString &context = {}, const QString &source = {}, const QString &comment = {},
            const QString &extracomment = {}, const QString &id = {})
        : context(context), source(source), comment(comment), extracomment(extracomment), id(id)
    {
    }
    QString context, source, comment, extracomment, id;
    bool operator==(const Message &other) const
    {
        return context == other.context && source == other.source && comment == other.comment;
    }
};
inline decltype(::qHash(QString())) qHash(const Message &message,
                                          decltype(::qHash(QString())) seed = 0)
{
    return ::qHash(message.context + QLatin1Char('\n') + message.source + QLatin1Char('\n')
                           + message.comment,
                   seed);
}

// Runs a tool to its end: what went wrong, or an empty text.
inline QString runTool(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return QStringLiteral("%1 %2 failed: %3")
                .arg(program, arguments.join(QLatin1Char(' ')),
                     QString::fromLocal8Bit(process.readAllStandardError()));
    return QString();
}

// The messages of a .ts file, in its order.
inline QVector<Message> tsMessages(const QString &tsFile)
{
    QFile file(tsFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Message> messages;
    QString context;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.name() == QLatin1String("message"))
            messages.append(Message(context, {}, {}, {},
                                    reader.attributes().value(QLatin1String("id")).toString()));
        else if (reader.name() == QLatin1String("source"))
            messages.last().source = reader.readElementText();
        else if (reader.name() == QLatin1String("comment"))
            messages.last().comment = reader.readElementText();
        else if (reader.name() == QLatin1String("extracomment"))
            messages.last().extracomment = reader.readElementText();
    }
    return messages;
}

#ifdef CC_LUPDATE
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
    const QString failure = runTool(QStringLiteral(CC_LUPDATE),
                                    {QStringLiteral("-silent"), QStringLiteral("-locations"),
                                     QStringLiteral("none"), form.fileName(),
                                     QStringLiteral("-ts"), ts});
    if (!failure.isEmpty())
        return {failure};
    QStringList messages;
    for (const Message &m : tsMessages(ts))
        messages.append(QStringList({m.source, m.comment, m.extracomment, m.id})
                                .join(QStringLiteral(" | ")));
    messages.sort();
    return messages;
}
#endif

// Records what it is asked to translate, and translates nothing.
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int) const override
    {
        asked.append(Message(QString::fromUtf8(context), QString::fromUtf8(sourceText),
                             QString::fromUtf8(disambiguation)));
        return QString();
    }
    bool isEmpty() const override { return false; }
    mutable QVector<Message> asked;
};

} // namespace CcTest
