#include "formvalues.h"

#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

namespace FormValues {

namespace {

const QLatin1String widgetTag("widget");
const QLatin1String propertyTag("property");
const QLatin1String itemTag("item");
const QLatin1String layoutTag("layout");
const QLatin1String pageGroupClass("VoCc::DrawbackBoxGroup");

// The widget a value belongs to, and the key it is matched by across documents.
struct Owner
{
    QString key;
    QString className;
    QString name;
    bool page = false; // only the page title counts
};

struct Frame
{
    QString path;
    int owner = -1; // index into the owners; -1: nothing here counts
    int widget = -1; // the enclosing <widget> frame's owner index, counted or not
    bool widgetElement = false;
    bool counted = false; // values in this element count
    QString property; // the property the values belong to
    QString text;
    int line = 0;
    int children = 0; // child elements seen, for the path's indices
    int firstValue = -1; // of a <property>: where its values start
    QHash<QString, int> childTags;
};

// Names the property a value is looked for under: a pop-button matrix keeps the texts of its
// cells in "textList" or in its items' "text", as their translation marks allow.
QString lookupName(const Owner &owner, const QString &property)
{
    if (owner.className == QLatin1String("VoCc::MatrixPopButtons")
        && property == QLatin1String("textList"))
        return QStringLiteral("text");
    return property;
}

// The attributes Qt's reader keeps of the elements a property holds; it passes over any
// other, and over those of the strings of a string list, so no loader sees them.
bool keptAttribute(const QString &tag, const QString &name)
{
    if (tag == QLatin1String("string") || tag == QLatin1String("stringlist"))
        return name == QLatin1String("notr") || name == QLatin1String("comment")
                || name == QLatin1String("extracomment") || name == QLatin1String("id");
    if (tag == QLatin1String("iconset"))
        return name == QLatin1String("theme") || name == QLatin1String("resource");
    if (tag == QLatin1String("pixmap") || tag == QLatin1String("normaloff")
        || tag == QLatin1String("normalon") || tag == QLatin1String("disabledoff")
        || tag == QLatin1String("disabledon") || tag == QLatin1String("activeoff")
        || tag == QLatin1String("activeon") || tag == QLatin1String("selectedoff")
        || tag == QLatin1String("selectedon"))
        return name == QLatin1String("resource");
    return false;
}

bool excludedProperty(const QString &name)
{
    return name == QLatin1String("objectName") || name == QLatin1String("geometry");
}

struct Collected
{
    QVector<Owner> owners;
    QVector<Value> values;
    QVector<int> ownerOf; // per value
};

Collected collect(const QByteArray &ui)
{
    Collected result;
    QXmlStreamReader reader(ui);
    QVector<Frame> stack;
    QHash<QString, int> ordinals; // per class
    QHash<int, int> pagesOf; // per group owner
    // Owner indices of <widget> frames that are not counted still need a slot, so that a
    // page can find its group: every widget gets an owner entry.
    // An item holding a property twice with the same value holds that value once.
    QSet<QString> itemValues;
    QSet<QString> properties; // each property's place, name and values, as seen so far
    const auto add = [&](const Frame &frame, const QString &property, const QString &value,
                         int line) {
        const int item = frame.path.lastIndexOf(QLatin1String("/item["));
        if (item >= 0) {
            const QString key = frame.path.left(frame.path.indexOf(QLatin1Char(']'), item))
                    + QChar(0x1f) + property + QChar(0x1f) + value;
            if (itemValues.contains(key))
                return;
            itemValues.insert(key);
        }
        const Owner &owner = result.owners.at(frame.owner);
        Value v;
        v.line = line;
        v.path = frame.path;
        v.widgetClass = owner.className;
        v.widgetName = owner.name;
        v.property = property;
        v.value = value;
        result.values.append(v);
        result.ownerOf.append(frame.owner);
    };
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            Frame frame;
            const QString tag = reader.name().toString();
            const QXmlStreamAttributes attributes = reader.attributes();
            frame.line = int(reader.lineNumber());
            QString segment = tag;
            if (!stack.isEmpty()) {
                Frame &parent = stack.last();
                const int index = ++parent.childTags[tag];
                segment += QStringLiteral("[%1]").arg(index);
                frame.path = parent.path + QLatin1Char('/') + segment;
                frame.owner = parent.owner;
                frame.widget = parent.widget;
                frame.counted = parent.counted;
                frame.property = parent.property;
            } else {
                frame.path = QLatin1Char('/') + segment;
            }
            if (tag == widgetTag) {
                Owner owner;
                owner.className = attributes.value(QLatin1String("class")).toString();
                owner.name = attributes.value(QLatin1String("name")).toString();
                // A page is a direct child of its group's element.
                const bool page = !stack.isEmpty() && stack.last().widgetElement
                        && stack.last().widget >= 0
                        && result.owners.at(stack.last().widget).className == pageGroupClass;
                if (owner.className.startsWith(QLatin1String("VoCc::"))) {
                    owner.key = owner.className + QLatin1Char('#')
                            + QString::number(ordinals[owner.className]++);
                } else if (page) {
                    // A page title is an entry of its group: it is the group's to keep.
                    const int group = stack.last().widget;
                    owner.key = result.owners.at(group).key + QStringLiteral("/page#")
                            + QString::number(pagesOf[group]++);
                    owner.className = result.owners.at(group).className;
                    owner.name = result.owners.at(group).name;
                    owner.page = true;
                }
                result.owners.append(owner);
                const int index = result.owners.size() - 1;
                frame.widget = index;
                frame.widgetElement = true;
                frame.owner = owner.key.isEmpty() ? -1 : index;
                frame.counted = false;
                frame.property.clear();
            } else if (tag == layoutTag) {
                frame.owner = -1;
                frame.counted = false;
            } else if (frame.owner >= 0 && tag == propertyTag) {
                const QString name = attributes.value(QLatin1String("name")).toString();
                const Owner &owner = result.owners.at(frame.owner);
                frame.property = lookupName(owner, name);
                frame.counted = !excludedProperty(name)
                        && (!owner.page || name == QLatin1String("windowTitle"));
                frame.firstValue = result.values.size();
            } else if (frame.owner >= 0 && tag == itemTag) {
                frame.counted = false; // its properties count
                frame.property.clear();
            }
            // Attributes of the elements inside a counted property; the property's own name is
            // what the values are found under.
            const bool inList = !stack.isEmpty()
                    && stack.last()
                               .path.section(QLatin1Char('/'), -1)
                               .startsWith(QLatin1String("stringlist["));
            if (frame.counted && !inList) {
                for (const QXmlStreamAttribute &attribute : attributes) {
                    const QString name = attribute.name().toString();
                    const QString value = attribute.value().toString();
                    if (!keptAttribute(tag, name))
                        continue;
                    if (name == QLatin1String("notr") && value == QLatin1String("false"))
                        continue;
                    if (value.isEmpty())
                        continue;
                    add(frame, frame.property + QLatin1Char('@') + name, value, frame.line);
                }
            }
            if (!stack.isEmpty())
                ++stack.last().children;
            stack.append(frame);
        } else if (token == QXmlStreamReader::Characters && !stack.isEmpty()) {
            stack.last().text += reader.text();
        } else if (token == QXmlStreamReader::EndElement && !stack.isEmpty()) {
            const Frame frame = stack.takeLast();
            if (frame.counted && frame.children == 0 && !frame.text.trimmed().isEmpty()) {
                // Qt's reader takes a <number> as QString::toInt() reads it, 0 when that fails:
                // the loaders only ever see that.
                const QString value = reader.name() == QLatin1String("number")
                        ? QString::number(frame.text.toInt())
                        : frame.text;
                add(frame, frame.property, value, frame.line);
            }
            // A property given again exactly as before, in the same widget or item, holds
            // nothing new: its values are not counted twice.
            if (frame.firstValue >= 0) {
                QString key = stack.isEmpty() ? QString() : stack.last().path;
                key += QChar(0x1e) + frame.property;
                for (int i = frame.firstValue; i < result.values.size(); ++i)
                    key += QChar(0x1e) + result.values.at(i).property + QChar(0x1f)
                            + result.values.at(i).value;
                if (properties.contains(key)) {
                    result.values.resize(frame.firstValue);
                    result.ownerOf.resize(frame.firstValue);
                }
                properties.insert(key);
            }
        }
    }
    return result;
}

// A widget's own property of a number type takes a string that reads as a number as that
// number (" 3 " is 3); the entries in items keep their texts as they are.
QString valueKey(const Value &value)
{
    QString text = value.value;
    bool number = false;
    const int n = text.trimmed().toInt(&number);
    if (number && !value.path.contains(QLatin1String("/item["))
        && !value.property.contains(QLatin1Char('@')))
        text = QString::number(n);
    return value.property + QChar(0x1f) + text;
}

// Values found once are enough for: attributes (a string list shares one set among its
// strings) and a widget's own single-valued properties (one given twice with the same value
// is one value). Entries and the strings of a list count one by one.
bool countedOnce(const Value &value)
{
    return value.property.contains(QLatin1Char('@'))
            || (!value.path.contains(QLatin1String("/item["))
                && !value.path.contains(QLatin1String("/stringlist[")));
}

} // namespace

QVector<Value> valuesOf(const QByteArray &ui) { return collect(ui).values; }

QStringList widgetsOf(const QByteArray &ui)
{
    QStringList widgets;
    for (const Owner &owner : collect(ui).owners) {
        const QString widget =
                owner.className + QStringLiteral(" \"") + owner.name + QLatin1Char('"');
        if (!owner.key.isEmpty() && !widgets.contains(widget))
            widgets.append(widget);
    }
    return widgets;
}

bool names(const QString &warning, const Value &value, const QString &otherName)
{
    const QString property = value.property.section(QLatin1Char('@'), -1);
    const auto quoted = [](const QString &name) {
        return QLatin1Char('"') + name + QLatin1Char('"');
    };
    return warning.contains(value.widgetClass)
            && (warning.contains(quoted(value.widgetName))
                || (!otherName.isNull() && warning.contains(quoted(otherName))))
            && warning.contains(property) && warning.contains(value.value);
}

QVector<Value> unexplainedLosses(const QByteArray &input, const QByteArray &output,
                                 const QStringList &warnings)
{
    const Collected before = collect(input);
    const Collected after = collect(output);
    // What the output holds, per widget key.
    QHash<QString, QHash<QString, int>> held;
    for (int i = 0; i < after.values.size(); ++i)
        ++held[after.owners.at(after.ownerOf.at(i)).key][valueKey(after.values.at(i))];
    // The name each widget has in the output: Designer names a widget that had none, or the
    // name of another, anew, and the warnings raised while loading it use that name.
    QHash<QString, QString> outputNames;
    for (const Owner &owner : after.owners) {
        if (!owner.key.isEmpty())
            outputNames.insert(owner.key, owner.name);
    }
    QVector<Value> losses;
    for (int i = 0; i < before.values.size(); ++i) {
        const Value &value = before.values.at(i);
        QHash<QString, int> &ofWidget = held[before.owners.at(before.ownerOf.at(i)).key];
        const QString key = valueKey(value);
        auto found = ofWidget.find(key);
        if (found != ofWidget.end() && found.value() > 0) {
            if (!countedOnce(value))
                --found.value();
            continue;
        }
        bool said = false;
        const QString otherName = outputNames.value(before.owners.at(before.ownerOf.at(i)).key);
        for (const QString &warning : warnings) {
            if (names(warning, value, otherName)) {
                said = true;
                break;
            }
        }
        if (!said)
            losses.append(value);
    }
    return losses;
}

QString shownValue(const Value &value)
{
    return value.value.size() > 80 ? value.value.left(77) + QStringLiteral("...") : value.value;
}

QString describe(const Value &value)
{
    return QStringLiteral("%1: %2: %3 \"%4\": property \"%5\" lost its value \"%6\"")
            .arg(value.line)
            .arg(value.path, value.widgetClass, value.widgetName, value.property, shownValue(value));
}

} // namespace FormValues
