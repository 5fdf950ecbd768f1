#include "formxml.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>

namespace {

bool isNamedObject(const QString &tag)
{
    return tag == QLatin1String("widget") || tag == QLatin1String("layout")
            || tag == QLatin1String("action") || tag == QLatin1String("actiongroup")
            || tag == QLatin1String("buttongroup");
}

// The states of an icon, each a path of its own.
bool isIconState(const QString &tag)
{
    static const QSet<QString> states = {
        QStringLiteral("normaloff"),   QStringLiteral("normalon"),
        QStringLiteral("disabledoff"), QStringLiteral("disabledon"),
        QStringLiteral("activeoff"),   QStringLiteral("activeon"),
        QStringLiteral("selectedoff"), QStringLiteral("selectedon")};
    return states.contains(tag);
}

// The widgets without an "id": a line and the dockable form.
bool carriesId(const QString &className)
{
    return className.startsWith(QLatin1String("VoCc::")) && className != QLatin1String("VoCc::Line")
            && className != QLatin1String("VoCc::Form");
}

// The resource paths (":/prefix/name") a .qrc file gives.
QSet<QString> resourcePathsOf(const QString &qrcFile)
{
    QSet<QString> paths;
    QFile file(qrcFile);
    if (!file.open(QIODevice::ReadOnly))
        return paths;
    QXmlStreamReader reader(&file);
    QString prefix;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("qresource")) {
            prefix = reader.attributes().value(QLatin1String("prefix")).toString();
        } else if (reader.name() == QLatin1String("file")) {
            const QString alias = reader.attributes().value(QLatin1String("alias")).toString();
            const QString name = reader.readElementText().trimmed();
            paths.insert(QDir::cleanPath(QStringLiteral(":/") + prefix + QLatin1Char('/')
                                         + (alias.isEmpty() ? name : alias)));
        }
    }
    return paths;
}

// Why a path does not name a regular file, or an empty text. Only the file's kind is asked
// for, never its contents: a FIFO or a device is not opened.
QString notAFile(const QFileInfo &info)
{
    if (!info.exists())
        return QStringLiteral("no file");
    if (info.isDir())
        return QStringLiteral("a folder, not a file");
    if (!info.isFile())
        return QStringLiteral("a device, pipe or socket, not a file");
    return QString();
}

} // namespace

FormXml::FormXml(const QByteArray &contents, const QString &folder) : m_folder(folder)
{
    QXmlStreamReader reader(contents);
    QStringList open; // the elements the reader is in, innermost last
    int widgetOfProperty = -1; // the id slot the "id" property being read belongs to
    QVector<int> idSlots; // per open <widget>: its slot in m_ids, or -1
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement) {
            const QString tag = open.takeLast();
            if (tag == QLatin1String("widget"))
                idSlots.removeLast();
            if (tag == QLatin1String("property"))
                widgetOfProperty = -1;
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        const int line = int(reader.lineNumber());
        const QString tag = reader.name().toString();
        const bool inWidget = !open.isEmpty() && open.last() == QLatin1String("widget");
        open.append(tag);
        const QXmlStreamAttributes attributes = reader.attributes();
        if (isNamedObject(tag)) {
            const QString className = attributes.value(QLatin1String("class")).toString();
            const QString name = attributes.value(QLatin1String("name")).toString();
            m_named.append({tag, className, name, line});
            if (tag == QLatin1String("widget")) {
                int slot = -1;
                if (carriesId(className)) {
                    m_ids.append({className, name, line, false, 0});
                    slot = m_ids.size() - 1;
                }
                idSlots.append(slot);
            }
        } else if (tag == QLatin1String("property")) {
            // Only a widget's own property; an item's or a layout's "id" is not the widget's.
            const bool id = attributes.value(QLatin1String("name")) == QLatin1String("id");
            widgetOfProperty = inWidget && id ? idSlots.last() : -1;
        } else if (tag == QLatin1String("number") && widgetOfProperty >= 0) {
            Id &id = m_ids[widgetOfProperty];
            id.value = reader.readElementText().trimmed().toLongLong(&id.given);
            open.removeLast(); // the text was read up to the element's end
        } else if (tag == QLatin1String("include")) {
            const QString location = attributes.value(QLatin1String("location")).toString();
            if (!location.isEmpty())
                m_resourceFiles.append({location, line});
        } else if (isIconState(tag) || tag == QLatin1String("pixmap")) {
            const QString path = reader.readElementText().trimmed();
            open.removeLast();
            if (!path.isEmpty())
                m_paths.append({path, line});
        }
    }
}

void FormXml::checkNames(FormResult *result) const
{
    QHash<QString, const Named *> first;
    for (const Named &named : m_named) {
        if (named.name.isEmpty())
            continue; // Designer and uic name it
        const Named *earlier = first.value(named.name);
        if (!earlier) {
            first.insert(named.name, &named);
            continue;
        }
        result->add(named.line, true,
                    QStringLiteral("object name \"%1\" is already the name of the %2 on line %3")
                            .arg(named.name,
                                 earlier->className.isEmpty() ? earlier->tag : earlier->className)
                            .arg(earlier->line));
    }
}

void FormXml::checkIds(FormResult *result) const
{
    QHash<qint64, const Id *> first;
    for (const Id &id : m_ids) {
        const QString widget = QStringLiteral("%1 \"%2\"").arg(id.className, id.name);
        if (!id.given || id.value == 0) {
            result->add(id.line, true, QStringLiteral("%1 has no id (a non-zero \"id\" property)")
                                               .arg(widget));
            continue;
        }
        if (const Id *earlier = first.value(id.value)) {
            result->add(id.line, true,
                        QStringLiteral("%1 has id %2, as %3 \"%4\" on line %5 has")
                                .arg(widget)
                                .arg(id.value)
                                .arg(earlier->className, earlier->name)
                                .arg(earlier->line));
            continue;
        }
        first.insert(id.value, &id);
    }
}

void FormXml::checkFiles(FormResult *result) const
{
    const QDir folder(m_folder);
    QSet<QString> resourcePaths;
    QStringList resourceFiles;
    for (const Reference &include : m_resourceFiles) {
        const QFileInfo info(folder, include.path);
        const QString problem = notAFile(info);
        if (!problem.isEmpty()) {
            result->add(include.line, true,
                        QStringLiteral("resource file \"%1\" names %2").arg(include.path, problem));
            continue;
        }
        resourcePaths.unite(resourcePathsOf(info.filePath()));
        resourceFiles << include.path;
    }
    QSet<QString> reported; // each path once, where it is first used
    for (const Reference &reference : m_paths) {
        if (reported.contains(reference.path))
            continue;
        reported.insert(reference.path);
        if (reference.path.startsWith(QLatin1Char(':'))) {
            // Unchecked when a resource file was missing: the finding above says it.
            if (resourceFiles.size() != m_resourceFiles.size())
                continue;
            // Resources of Qt's own libraries are always there.
            if (QFile::exists(reference.path))
                continue;
            if (resourceFiles.isEmpty()) {
                result->add(reference.line, false,
                            QStringLiteral("icon \"%1\" is a resource, and the form names no "
                                           "resource file to find it in")
                                    .arg(reference.path));
            } else if (!resourcePaths.contains(QDir::cleanPath(reference.path))) {
                result->add(reference.line, true,
                            QStringLiteral("icon \"%1\" is in none of the form's resource files "
                                           "(%2)")
                                    .arg(reference.path, resourceFiles.join(QStringLiteral(", "))));
            }
            continue;
        }
        const QString problem = notAFile(QFileInfo(folder, reference.path));
        if (!problem.isEmpty())
            result->add(reference.line, true,
                        QStringLiteral("icon \"%1\" names %2").arg(reference.path, problem));
    }
}

int FormXml::lineOfWidgetIn(const QString &message) const
{
    for (const Named &named : m_named) {
        if (!named.name.isEmpty()
            && message.contains(QLatin1Char('"') + named.name + QLatin1Char('"')))
            return named.line;
    }
    return 0;
}

int FormXml::lineOfClass(const QString &className) const
{
    for (const Named &named : m_named) {
        if (named.className == className)
            return named.line;
    }
    return 0;
}
