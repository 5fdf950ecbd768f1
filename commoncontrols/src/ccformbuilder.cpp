#include "nui/CommonControls/CcFormBuilder.hpp"

#include "ccdomentries.h"
#include "ccentrylists.h"
#include "ccformtranslator.h"
#include "ccgridcells.h"
#include "ccwidgetclasses.h"

#include "qtcompat.h"

#include <QtDesigner/private/ui4_p.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QMetaEnum>
#include <QTableView>
#include <QTreeView>
#include <QXmlStreamReader>

#include <algorithm>

namespace VoCc {

namespace {

using Factory = QWidget *(*)(QWidget *parent);

template<class Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

struct WidgetClass
{
    const char *name;
    Factory create;
    // Whether the form's child widgets of this class are saved (containers), as opposed to
    // the inner widgets a control is built from.
    bool container;
};

// Every class of the library, as a form names it.
#define CC_FORM_CLASS(Class, header, container, entries) {"VoCc::" #Class, make<Class>, container},
const WidgetClass widgetClasses[] = {CC_WIDGET_CLASSES(CC_FORM_CLASS)};
#undef CC_FORM_CLASS

const WidgetClass *findWidgetClass(const QString &name)
{
    for (const WidgetClass &widgetClass : widgetClasses) {
        if (name == QLatin1String(widgetClass.name))
            return &widgetClass;
    }
    return nullptr;
}

using namespace DomEntries;

const QVector<Field> optionFields = {Text, Icon, ToolTip, Data};
const QVector<Field> checkComboFields = {Text, ToolTip};
const QVector<Field> matrixFields = {Text, Icon, ToolTip, Action};
const QVector<Field> popCellFields = {Icon, ToolTip, Action};

const QString rowProperty = QStringLiteral("row");
const QString columnProperty = QStringLiteral("column");
const QString textListProperty = QStringLiteral("textList");
const QString currentIndexProperty = QStringLiteral("currentIndex");
const QString windowTitleProperty = QStringLiteral("windowTitle");

// Lists padded with empty entries to the same length, so that entry i of each list belongs
// to one entry of the widget.
void padLists(Lists &lists, const QVector<Field> &fields)
{
    int count = 0;
    for (Field field : fields)
        count = qMax(count, lists[field].size());
    for (Field field : fields) {
        while (lists[field].size() < count)
            lists[field].append(QString());
    }
}

// Only the first count entries of each list belong to an entry of the widget; whatever a
// list holds beyond them (a tool tip left from an earlier, longer list) is not saved.
void fitToEntries(Lists &lists, const QVector<Field> &fields, int count)
{
    for (Field field : fields) {
        if (lists[field].size() > count)
            lists[field].erase(lists[field].begin() + count, lists[field].end());
    }
}

// A matrix shows row x column cells whatever its lists hold, and an entry that is empty in
// every list is a blank cell: trailing ones carry nothing and are not written, so a grid
// written with its lists padded to the cell count saves as it did before.
void dropTrailingBlankCells(Lists &lists, const QVector<Field> &fields)
{
    int count = 0;
    for (Field field : fields) {
        const QStringList &list = lists[field];
        for (int i = list.size(); i > count; --i) {
            if (!list.at(i - 1).isEmpty()) {
                count = i;
                break;
            }
        }
    }
    fitToEntries(lists, fields, count);
}

// The translation attributes of a widget's texts and tool tips travel with its lists.
template<class Widget>
void takeAttributes(Lists &lists, const Widget *widget)
{
    for (Field field : {Text, ToolTip})
        lists.attributes[field] = widget->stringAttributes(fieldName(field));
}

template<class Widget>
void giveAttributes(Widget *widget, const Lists &lists)
{
    for (Field field : {Text, ToolTip})
        widget->setStringAttributes(fieldName(field), lists.attributes[field]);
}

// The one set of attributes all texts of a list share, when they do: a string list carries
// one set for all its strings. Entries without a text do not count.
bool sharedAttributes(const QStringList &texts, const QVariantList &attributes, QVariantMap *shared)
{
    bool first = true;
    for (int i = 0; i < texts.size(); ++i) {
        if (texts.at(i).isEmpty())
            continue;
        const QVariantMap entry = attributes.value(i).toMap();
        if (first)
            *shared = entry;
        else if (entry != *shared)
            return false;
        first = false;
    }
    return true;
}

// The object name a widget element gives: Designer writes it as the name attribute, the
// run-time writer as an "objectName" property.
QString elementName(const DomWidget *domWidget)
{
    if (domWidget->hasAttributeName())
        return domWidget->attributeName();
    return propertyText(findProperty(domWidget, QStringLiteral("objectName")));
}

DomWidget *findChildElement(const DomWidget *domWidget, const QString &objectName)
{
    const QVector<DomWidget *> children = domWidget->elementWidget();
    for (DomWidget *child : children) {
        if (elementName(child) == objectName)
            return child;
    }
    return nullptr;
}

// The element of each page of the group. The pages' elements are in the order of the pages
// when there is one for each: a name alone may be held by several pages, or by none, and
// Designer gives such pages new names as it loads them. Otherwise pages are found by name.
QVector<DomWidget *> pageElements(const DomWidget *domWidget, const DrawbackBoxGroup *group)
{
    const QVector<DomWidget *> elements = domWidget->elementWidget();
    if (elements.size() == group->count())
        return elements;
    QVector<DomWidget *> pages;
    for (int i = 0; i < group->count(); ++i) {
        QWidget *page = group->widget(i);
        pages.append(page ? findChildElement(domWidget, page->objectName()) : nullptr);
    }
    return pages;
}

// The translation marks of a page title as loaded, kept on the page's box (which moves with
// the page) for the run-time writer, which saves window titles without marks. Designer keeps
// them in the page's own property and needs none of this.
const char titleMarksProperty[] = "voccTitleMarks";

// The translation marks of a widget's string properties as loaded (name -> [text, marks]),
// kept on the widget for the run-time writer, which saves strings without marks. Not form
// content itself.
const char propertyMarksProperty[] = "voccPropertyMarks";

void keepPropertyMarks(const DomWidget *domWidget, QWidget *widget)
{
    QVariantMap kept;
    const QList<DomProperty *> properties = domWidget->elementProperty();
    for (const DomProperty *property : properties) {
        const DomString *string = property->elementString();
        const QVariantMap marks = string ? attributesOf(string) : QVariantMap();
        if (!marks.isEmpty())
            kept.insert(property->attributeName(), QVariantList {string->text(), marks});
    }
    if (!kept.isEmpty())
        widget->setProperty(propertyMarksProperty, kept);
}

// Gives the saved strings of an object their marks as loaded, where the text is still the one
// loaded.
void restorePropertyMarks(const QObject *object, const QList<DomProperty *> &properties)
{
    const QVariantMap kept = object->property(propertyMarksProperty).toMap();
    for (DomProperty *property : properties) {
        const QVariantList loaded = kept.value(property->attributeName()).toList();
        DomString *string = property->elementString();
        if (loaded.size() == 2 && string && string->text() == loaded.first().toString())
            setAttributes(string, loaded.last().toMap());
    }
}

void savePageGroup(DomWidget *domWidget, DrawbackBoxGroup *group)
{
    setNumberProperty(domWidget, currentIndexProperty, group->currentIndex());
    // A page's title is its window title; it goes into the page's own element whether or not
    // the writer of that element saved it.
    const QVector<DomWidget *> elements = pageElements(domWidget, group);
    for (int i = 0; i < group->count(); ++i) {
        DomWidget *pageElement = elements.at(i);
        const QString title = group->pageTitle(i);
        if (!pageElement || title.isEmpty())
            continue;
        // A title the writer saved already keeps its translation attributes.
        const DomProperty *saved = findProperty(pageElement, windowTitleProperty);
        if (!saved || saved->kind() != DomProperty::String || propertyText(saved) != title)
            setStringProperty(pageElement, windowTitleProperty, title);
    }
}

// The marks a title had when it was loaded go back on it when the run-time writer saved it
// without any.
void restoreTitleMarks(DomWidget *domWidget, DrawbackBoxGroup *group)
{
    const QVector<DomWidget *> elements = pageElements(domWidget, group);
    for (int i = 0; i < group->count(); ++i) {
        const QVariantMap marks = group->box(i)->property(titleMarksProperty).toMap();
        const DomProperty *saved =
                elements.at(i) ? findProperty(elements.at(i), windowTitleProperty) : nullptr;
        if (marks.isEmpty() || !saved || saved->kind() != DomProperty::String
            || !attributesOf(saved->elementString()).isEmpty())
            continue;
        setAttributes(const_cast<DomProperty *>(saved)->elementString(), marks);
    }
}

void loadPageGroup(const DomWidget *domWidget, DrawbackBoxGroup *group, QStringList &dropped)
{
    const QVector<DomWidget *> elements = pageElements(domWidget, group);
    for (int i = 0; i < group->count(); ++i) {
        QWidget *page = group->widget(i);
        const DomProperty *title =
                elements.at(i) ? findProperty(elements.at(i), windowTitleProperty) : nullptr;
        if (title && title->kind() == DomProperty::String)
            group->box(i)->setProperty(titleMarksProperty, attributesOf(title->elementString()));
        // A page takes the last of several titles.
        const QList<DomProperty *> properties =
                elements.at(i) ? elements.at(i)->elementProperty() : QList<DomProperty *>();
        for (const DomProperty *property : properties) {
            if (property != title && property->attributeName() == windowTitleProperty)
                dropped += droppedValues(QStringLiteral("page %1 ").arg(i + 1), property,
                                         propertyValues(title));
        }
        // A title of another type than a string is no window title to the loaders: its text
        // is, as it is for the entries of the other widgets, and the rest is named.
        if (page && title && title->kind() != DomProperty::String) {
            if (page->windowTitle().isEmpty())
                page->setWindowTitle(propertyText(title));
            dropped += droppedValues(QStringLiteral("page %1 ").arg(i + 1), title,
                                     {{QString(), page->windowTitle()}});
        }
        if (page && !page->windowTitle().isEmpty())
            group->box(i)->setTitle(page->windowTitle());
    }
    // The loader applied "currentIndex" before the pages existed.
    if (const DomProperty *current = findProperty(domWidget, currentIndexProperty)) {
        if (current->kind() == DomProperty::Number)
            group->setCurrentIndex(current->elementNumber());
    }
}

// How deep elements may nest in a form this builder loads. Qt's .ui reader and form builder
// recurse once per element level, and the widgets they make once per widget level when they
// are shown, painted and deleted, each level also costing time in proportion to its depth:
// far below what would exhaust a thread's stack or take seconds, and far above what a form
// written in Designer uses (a widget in a layout takes three levels).
const int maximumNesting = 512;

// How many widgets one widget of a form may hold side by side. Qt paints the children of a
// widget that overlap what it paints with one level of recursion each.
const int maximumChildWidgets = 10000;

// Containers that show one of their pages at a time: their pages are not painted side by side.
bool holdsPages(QStringView className)
{
    return className == QLatin1String("VoCc::DrawbackBoxGroup")
            || className == QLatin1String("QStackedWidget")
            || className == QLatin1String("QTabWidget") || className == QLatin1String("QToolBox");
}

QString tr(const char *text) { return QCoreApplication::translate("VoCc::FormBuilder", text); }

// Line and column (counted in bytes from 1) of a position in the document.
QString positionText(const QByteArray &contents, int offset)
{
    const int line = contents.left(offset).count('\n') + 1;
    const int column = offset - contents.lastIndexOf('\n', offset - 1);
    return tr("line %1, column %2").arg(line).arg(column);
}

// What keeps the document from being handed to Qt's reader, or an empty text: elements nested
// deeper, or widgets side by side in greater numbers, than Qt can manage, or a NUL byte in an
// 8-bit encoded document (which Qt reports as an unexpected empty character). Other errors
// are left to Qt's reader, which names them well.
QString documentProblem(const QByteArray &contents)
{
    struct WidgetElement
    {
        bool holdsPages;
        int children;
    };
    // The widget elements enclosing the current element; a widget in a layout counts as a
    // child of the widget holding the layout.
    QVector<WidgetElement> widgets;
    QXmlStreamReader reader(contents);
    int depth = 0;
    const QLatin1String widgetTag("widget");
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > maximumNesting) {
                return tr("line %1: elements nested more than %2 levels deep, more than a form "
                          "may have")
                        .arg(reader.lineNumber())
                        .arg(maximumNesting);
            }
            if (reader.name() == widgetTag) {
                if (!widgets.isEmpty() && !widgets.last().holdsPages
                    && ++widgets.last().children > maximumChildWidgets) {
                    return tr("line %1: more than %2 widgets side by side in one widget, more "
                              "than a form may have")
                            .arg(reader.lineNumber())
                            .arg(maximumChildWidgets);
                }
                widgets.append({holdsPages(reader.attributes().value(QLatin1String("class"))), 0});
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            if (reader.name() == widgetTag && !widgets.isEmpty())
                widgets.removeLast();
            break;
        default:
            break;
        }
    }
    // UTF-16 and UTF-32 documents have NUL bytes in their first characters already.
    const int nul = contents.indexOf('\0');
    if (reader.hasError() && nul >= 4 && !contents.left(4).contains('\0'))
        return tr("%1: a NUL byte, which a form may not contain").arg(positionText(contents, nul));
    return QString();
}

// The first path of an icon or picture property that names something other than a file or a
// folder (a FIFO, a device, a socket), or an empty text. Qt's reader would open it and wait
// for a writer, or read a device without end; a missing file only gives no picture.
QString unreadablePath(const DomProperty *property, const QDir &folder)
{
    QStringList paths;
    if (const DomResourceIcon *icon = property->elementIconSet()) {
        paths << icon->text();
        for (const DomResourcePixmap *state :
             {icon->elementNormalOff(), icon->elementNormalOn(), icon->elementDisabledOff(),
              icon->elementDisabledOn(), icon->elementActiveOff(), icon->elementActiveOn(),
              icon->elementSelectedOff(), icon->elementSelectedOn()}) {
            if (state)
                paths << state->text();
        }
    } else if (const DomResourcePixmap *pixmap = property->elementPixmap()) {
        paths << pixmap->text();
    }
    for (const QString &path : qAsConst(paths)) {
        const QFileInfo info(folder, path.trimmed());
        if (!path.trimmed().isEmpty() && info.exists() && !info.isFile() && !info.isDir())
            return path.trimmed();
    }
    return QString();
}

// Leaves out of a list the icon and picture properties that name no file to read, each
// said in dropped.
QList<DomProperty *> withoutUnreadablePaths(const QList<DomProperty *> &properties,
                                            const QDir &folder, const QString &where,
                                            QStringList &dropped)
{
    QList<DomProperty *> kept;
    for (DomProperty *property : properties) {
        const QString path = unreadablePath(property, folder);
        if (path.isEmpty()) {
            kept << property;
            continue;
        }
        dropped << QStringLiteral("%1property \"%2\" \"%3\" (no file: a pipe, device or socket)")
                           .arg(where, property->attributeName(), path);
        delete property;
    }
    return kept;
}

void dropUnreadableItemPaths(const QVector<DomItem *> &items, const QDir &folder,
                             QStringList &dropped)
{
    for (DomItem *item : items) {
        item->setElementProperty(withoutUnreadablePaths(item->elementProperty(), folder,
                                                        QStringLiteral("item "), dropped));
        dropUnreadableItemPaths(item->elementItem(), folder, dropped);
    }
}

void warnNotKept(const QString &className, const QString &name, const QStringList &dropped)
{
    if (!dropped.isEmpty()) {
        qWarning("%s \"%s\": not kept from the form: %s", qPrintable(className), qPrintable(name),
                 qPrintable(dropped.join(QStringLiteral("; "))));
    }
}

// The whole text of a combo box item whose text was cut for showing, kept with the item so
// that saving writes it whole again. Far above the roles an application gives its items.
const int wholeTextRole = Qt::UserRole + 0x5754;

// A combo box shows its items' own texts, and Qt measures every one of them whole: texts
// beyond what any widget of the library shows are cut before the items are made, with one
// warning for the widget. Returns the whole texts by item index.
QHash<int, QString> cutLongItemTexts(DomWidget *domWidget)
{
    const QString textName = fieldName(Text);
    QHash<int, QString> whole;
    int longest = 0;
    const QVector<DomItem *> items = domWidget->elementItem();
    for (int i = 0; i < items.size(); ++i) {
        const QList<DomProperty *> properties = items.at(i)->elementProperty();
        for (DomProperty *property : properties) {
            DomString *string =
                    property->attributeName() == textName ? property->elementString() : nullptr;
            if (string && string->text().size() > EntryLists::maximumShownLength) {
                longest = qMax(longest, string->text().size());
                whole.insert(i, string->text());
                string->setText(EntryLists::shownText(string->text()));
            }
        }
    }
    if (!whole.isEmpty()) {
        qWarning("%s \"%s\": property \"text\" of %d item(s) has up to %d characters, more "
                 "than the %d a widget shows; shown cut to %d, saved whole",
                 qPrintable(domWidget->attributeClass()), qPrintable(domWidget->attributeName()),
                 int(whole.size()), longest, EntryLists::maximumShownLength,
                 EntryLists::maximumShownLength);
    }
    return whole;
}

// Writes the whole texts of items whose texts were cut for showing back into the saved items.
void writeWholeItemTexts(DomWidget *domWidget, const ComboBox *comboBox)
{
    const QVector<DomItem *> items = domWidget->elementItem();
    if (items.size() != comboBox->count())
        return;
    for (int i = 0; i < items.size(); ++i) {
        const QString whole = comboBox->itemData(i, wholeTextRole).toString();
        if (whole.isEmpty() || EntryLists::shownText(whole) != comboBox->itemText(i))
            continue; // not cut, or changed since
        const QList<DomProperty *> properties = items.at(i)->elementProperty();
        for (DomProperty *property : properties) {
            if (property->attributeName() == fieldName(Text) && property->elementString())
                property->elementString()->setText(whole);
        }
    }
}

// The item properties a widget's entries are kept in, by whoever keeps them: the library's
// own fields for its list-like widgets; text and icon, which the form writer keeps, for
// combo boxes; everything for the item widgets of Qt, which the form writer keeps whole.
// Null for a widget whose items nobody keeps.
const QStringList *keptItemProperties(const QWidget *widget)
{
    static const QStringList all = {QStringLiteral("*")};
    static const QStringList options = {QStringLiteral("text"), QStringLiteral("icon"),
                                        QStringLiteral("toolTip"), QStringLiteral("data")};
    static const QStringList checkCombo = {QStringLiteral("text"), QStringLiteral("toolTip")};
    static const QStringList matrix = {QStringLiteral("text"), QStringLiteral("icon"),
                                       QStringLiteral("toolTip"), QStringLiteral("action")};
    static const QStringList comboBox = {QStringLiteral("text"), QStringLiteral("icon"),
                                         QStringLiteral("action")};
    if (qobject_cast<const AbstractOptions *>(widget))
        return &options;
    if (qobject_cast<const CheckableTextComboBox *>(widget))
        return &checkCombo;
    if (qobject_cast<const AbstractMatrixOptions *>(widget)
        || qobject_cast<const MatrixPopButtons *>(widget))
        return &matrix;
    if (qobject_cast<const ComboBox *>(widget))
        return &comboBox;
    if (widget->inherits("QComboBox") || widget->inherits("QListWidget")
        || widget->inherits("QTreeWidget") || widget->inherits("QTableWidget"))
        return &all;
    return nullptr;
}

// Every value of an item's properties and of the items nested in it, for a warning.
void addItemValues(const DomItem *item, const QString &where, QStringList &dropped)
{
    const QList<DomProperty *> properties = item->elementProperty();
    for (const DomProperty *property : properties)
        dropped += droppedValues(where, property);
    const QVector<DomItem *> nested = item->elementItem();
    for (int i = 0; i < nested.size(); ++i)
        addItemValues(nested.at(i), where + QStringLiteral("nested item %1 ").arg(i + 1), dropped);
}

// A form may hold item data no one keeps (items on a widget without entries, an item
// property the widget has no list for, items nested in items): it would be gone after the
// next save, so it is named with the widget's other dropped values.
void dropUnkeptItems(const DomWidget *domWidget, const QWidget *widget, QStringList &dropped)
{
    const QVector<DomItem *> items = domWidget->elementItem();
    const QStringList *kept = keptItemProperties(widget);
    if (kept && kept->contains(QStringLiteral("*")))
        return;
    for (int i = 0; i < items.size(); ++i) {
        const QString where = QStringLiteral("item %1 ").arg(i + 1);
        if (!kept) {
            addItemValues(items.at(i), where, dropped);
            continue;
        }
        const QList<DomProperty *> properties = items.at(i)->elementProperty();
        for (const DomProperty *property : properties) {
            if (!kept->contains(property->attributeName()))
                dropped += droppedValues(where, property);
        }
        const QVector<DomItem *> nested = items.at(i)->elementItem();
        for (int n = 0; n < nested.size(); ++n)
            addItemValues(nested.at(n), where + QStringLiteral("nested item %1 ").arg(n + 1),
                          dropped);
    }
}

// A property a widget's element holds more than once: the widget takes them in order, so the
// last one is what it has, and the values only the earlier ones hold are gone.
void dropRepeatedProperties(const DomWidget *domWidget, QStringList &dropped)
{
    const QList<DomProperty *> properties = domWidget->elementProperty();
    for (int i = 0; i < properties.size(); ++i) {
        const DomProperty *property = properties.at(i);
        if (findProperty(domWidget, property->attributeName()) != property)
            dropped += droppedValues(QString(), property,
                                     propertyValues(findProperty(domWidget, property->attributeName())));
    }
}

// A whole number property of the element the widget did not take as it stands: one of
// another type that is not a number, or a number the widget holds otherwise (an index out
// of range). Qt's reader has already made a <number> of what it could not read 0.
void dropUntakenNumber(const DomWidget *domWidget, const QWidget *widget, const QString &name,
                       QStringList &dropped)
{
    const bool grid = name == rowProperty || name == columnProperty;
    const DomProperty *property = findProperty(domWidget, name);
    if (!property)
        return;
    const int held = widget->property(name.toLatin1().constData()).toInt();
    bool number = property->kind() == DomProperty::Number;
    if (!number)
        propertyText(property).toInt(&number);
    const QString text = propertyText(property);
    if (number && text.toInt() == held)
        return;
    // A grid asked for more rows or columns than it can have said so itself as it was given.
    if (grid && number && text.toInt() > maximumGridDimension && held == maximumGridDimension)
        return;
    const QStringList values = droppedValues(QString(), property);
    for (const QString &value : values)
        dropped.append(QStringLiteral("%1 (it has %2)").arg(value).arg(held));
}

// A pop-button matrix's texts: its "textList", a string list, whose attributes every text
// shares. A single string is a list of one. Texts its items hold as well fill the entries the
// list leaves empty, with their own attributes; those of cells the list already gives a text
// (the same one or another) are not kept. Sets lists' texts and their attributes.
void readPopButtonTexts(const DomWidget *domWidget, Lists &lists, QStringList &dropped)
{
    const DomProperty *property = findProperty(domWidget, textListProperty);
    QStringList texts;
    QVariantMap shared;
    if (property && property->kind() == DomProperty::StringList) {
        texts = property->elementStringList()->elementString();
        shared = attributesOf(property->elementStringList());
    } else if (property) {
        texts.append(propertyText(property));
        if (property->kind() == DomProperty::String)
            shared = attributesOf(property->elementString());
        QVector<QPair<QString, QString>> kept = {{QString(), texts.first()}};
        for (auto a = shared.cbegin(); a != shared.cend(); ++a)
            kept.append({a.key(), a.value().toString()});
        if (shared.value(QStringLiteral("notr")).toBool())
            kept.append({QStringLiteral("notr"), QStringLiteral("true")});
        dropped += droppedValues(QString(), property, kept);
    }
    QVariantList attributes;
    if (!shared.isEmpty()) {
        for (int i = 0; i < texts.size(); ++i)
            attributes.append(shared);
    }
    const QStringList &fromItems = lists[Text];
    for (int i = 0; i < fromItems.size(); ++i) {
        const QString &text = fromItems.at(i);
        const QVariantMap own = lists.attributes[Text].value(i).toMap();
        if (text.isEmpty())
            continue;
        if (!EntryLists::at(texts, i).isEmpty()) {
            const QString where = QStringLiteral("item %1 ").arg(i + 1);
            dropped.append(droppedValue(where, fieldName(Text), {QString(), text}));
            for (auto a = own.cbegin(); a != own.cend(); ++a)
                dropped.append(
                        droppedValue(where, fieldName(Text), {a.key(), a.value().toString()}));
            continue;
        }
        while (texts.size() <= i)
            texts.append(QString());
        texts[i] = text;
        while (attributes.size() <= i)
            attributes.append(shared);
        attributes[i] = own;
    }
    lists[Text] = texts;
    lists.attributes[Text] = attributes;
}

// Qt's writer saves a tree or table view's headers as "header..." attributes of the view: it
// asks for every property of each header and keeps these, but does not delete the others.
bool isItemViewHeader(const QObject *object)
{
    const auto *header = qobject_cast<const QHeaderView *>(object);
    if (!header)
        return false;
    if (const auto *tree = qobject_cast<const QTreeView *>(header->parent()))
        return tree->header() == header;
    const auto *table = qobject_cast<const QTableView *>(header->parent());
    return table && (table->horizontalHeader() == header || table->verticalHeader() == header);
}

QList<DomProperty *> keptAsHeaderAttributes(const QList<DomProperty *> &properties)
{
    static const QStringList kept = {QStringLiteral("visible"),
                                     QStringLiteral("cascadingSectionResizes"),
                                     QStringLiteral("minimumSectionSize"),
                                     QStringLiteral("defaultSectionSize"),
                                     QStringLiteral("highlightSections"),
                                     QStringLiteral("showSortIndicator"),
                                     QStringLiteral("stretchLastSection")};
    QList<DomProperty *> result;
    for (DomProperty *property : properties) {
        if (kept.contains(property->attributeName()))
            result.append(property);
        else
            delete property;
    }
    return result;
}

} // namespace

FormBuilder::FormBuilder()
{
    // Every class of the library is built in; Designer plug-ins are not needed and not
    // looked for.
    setPluginPath(QStringList());
}

FormBuilder::~FormBuilder() = default;

QWidget *FormBuilder::load(QIODevice *device, QWidget *parentWidget)
{
    m_unknownClassNames.clear();
    m_errorString.clear();
    // The document is looked over before Qt sees it: its reader and builder recurse once per
    // element level and its painting once per widget side by side, and a document deep or
    // wide enough would overflow the stack.
    QByteArray contents = device->readAll();
    m_errorString = documentProblem(contents);
    if (!m_errorString.isEmpty()) {
        qWarning("VoCc::FormBuilder: cannot load the form: %s", qPrintable(m_errorString));
        return nullptr;
    }
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    return QFormBuilder::load(&buffer, parentWidget);
}

QString FormBuilder::errorString() const
{
    return m_errorString.isEmpty() ? QFormBuilder::errorString() : m_errorString;
}

QStringList FormBuilder::widgetClassNames()
{
    QStringList names;
    for (const WidgetClass &widgetClass : widgetClasses)
        names.append(QLatin1String(widgetClass.name));
    return names;
}

QWidget *FormBuilder::createCommonControl(const QString &className, QWidget *parent)
{
    const WidgetClass *widgetClass = findWidgetClass(className);
    return widgetClass ? widgetClass->create(parent) : nullptr;
}

QStringList FormBuilder::unknownClassNames() const { return m_unknownClassNames; }

QWidget *FormBuilder::createWidget(const QString &widgetName, QWidget *parentWidget,
                                   const QString &name)
{
    // A page is made on its own and goes into its group while it is still empty, as Qt's
    // builder does with the pages of its containers. Made inside the group, it would leave
    // the group's layout for its box, which searches that layout; moved there once its
    // contents exist (when the loader adds it), it would take them along, at every level of
    // groups nested in pages.
    auto *group = qobject_cast<DrawbackBoxGroup *>(parentWidget);
    if (group)
        parentWidget = nullptr;
    QWidget *widget = createCommonControl(widgetName, parentWidget);
    if (widget) {
        widget->setObjectName(name);
    } else {
        widget = QFormBuilder::createWidget(widgetName, parentWidget, name);
        // For a class it does not know, the loader falls back on the declared base class;
        // "Line" is the one name it legitimately maps to another class.
        if (!widget
            || (widget->metaObject()->className() != widgetName
                && widgetName != QLatin1String("Line"))) {
            if (!m_unknownClassNames.contains(widgetName))
                m_unknownClassNames.append(widgetName);
        }
    }
    if (group && widget)
        group->addPage(widget);
    return widget;
}

void FormBuilder::setTranslationEnabled(bool enabled) { m_translationEnabled = enabled; }

bool FormBuilder::isTranslationEnabled() const { return m_translationEnabled; }

void FormBuilder::setLanguageChangeEnabled(bool enabled) { m_languageChangeEnabled = enabled; }

bool FormBuilder::isLanguageChangeEnabled() const { return m_languageChangeEnabled; }

QWidget *FormBuilder::create(DomUI *ui, QWidget *parentWidget)
{
    if (!m_translationEnabled)
        return QFormBuilder::create(ui, parentWidget);
    // The texts are translated in the document, before any widget exists, so that each
    // widget is built once and already shows them translated.
    FormTranslator translator(ui->elementClass(), m_languageChangeEnabled);
    translator.translate(ui);
    m_translator = &translator;
    QWidget *widget = QFormBuilder::create(ui, parentWidget);
    m_translator = nullptr;
    return widget;
}

QWidget *FormBuilder::create(DomWidget *domWidget, QWidget *parentWidget)
{
    const QHash<int, QString> wholeTexts =
            domWidget->attributeClass() == QLatin1String("VoCc::ComboBox")
            ? cutLongItemTexts(domWidget)
            : QHash<int, QString>();
    QStringList dropped;
    const QDir folder = workingDirectory();
    domWidget->setElementProperty(withoutUnreadablePaths(domWidget->elementProperty(), folder,
                                                         QString(), dropped));
    dropUnreadableItemPaths(domWidget->elementItem(), folder, dropped);
    warnNotKept(domWidget->attributeClass(), domWidget->attributeName(), dropped);
    QWidget *widget = QFormBuilder::create(domWidget, parentWidget);
    if (widget) {
        loadExtraInfo(domWidget, widget, nullptr);
        keepPropertyMarks(domWidget, widget);
    }
    if (auto *comboBox = qobject_cast<ComboBox *>(widget)) {
        for (auto text = wholeTexts.cbegin(); text != wholeTexts.cend(); ++text) {
            if (text.key() < comboBox->count())
                comboBox->setItemData(text.key(), text.value(), wholeTextRole);
        }
    }
    if (widget && m_translator)
        m_translator->watch(domWidget, widget);
    return widget;
}

QAction *FormBuilder::create(DomAction *domAction, QObject *parent)
{
    // An action's icon is read as a widget's is: the same paths are left out.
    QStringList dropped;
    domAction->setElementProperty(withoutUnreadablePaths(domAction->elementProperty(),
                                                         workingDirectory(), QString(), dropped));
    warnNotKept(QStringLiteral("QAction"), domAction->attributeName(), dropped);
    return QFormBuilder::create(domAction, parent);
}

bool FormBuilder::addItem(DomWidget *domWidget, QWidget *widget, QWidget *parentWidget)
{
    if (auto *group = qobject_cast<DrawbackBoxGroup *>(parentWidget)) {
        group->addPage(widget); // a page made here is in the group already; nothing happens
        return true;
    }
    return QFormBuilder::addItem(domWidget, widget, parentWidget);
}

void FormBuilder::saveExtraInfo(QWidget *widget, DomWidget *domWidget, DomWidget *domParentWidget)
{
    QFormBuilder::saveExtraInfo(widget, domWidget, domParentWidget);
    // The base writer keeps the items of QComboBox itself only; Designer writes those of a
    // subclass, so here the texts are written before the actions join them.
    auto *comboBox = qobject_cast<ComboBox *>(widget);
    if (comboBox && domWidget->elementItem().isEmpty()) {
        Lists texts;
        for (int i = 0; i < comboBox->count(); ++i)
            texts[Text].append(comboBox->itemText(i));
        // The marks the items' texts were loaded with, while the items are the ones loaded.
        const QVariantList marks = comboBox->stringAttributes(fieldName(Text));
        if (marks.size() == comboBox->count())
            texts.attributes[Text] = marks;
        writeItems(domWidget, texts, {Text});
        // An empty text leaves an empty item, which would load as nothing: keep it a text.
        const QVector<DomItem *> items = domWidget->elementItem();
        for (DomItem *item : items) {
            if (item->elementProperty().isEmpty()) {
                auto *property = new DomProperty;
                property->setAttributeName(fieldName(Text));
                property->setElementString(new DomString);
                item->setElementProperty({property});
            }
        }
    }
    saveExtraInfo(domWidget, widget, nullptr);
}

DomWidget *FormBuilder::createDom(QWidget *widget, DomWidget *domParentWidget, bool recursive)
{
    const WidgetClass *widgetClass =
            findWidgetClass(QLatin1String(widget->metaObject()->className()));
    if (!widgetClass || widgetClass->container) {
        auto *group = qobject_cast<DrawbackBoxGroup *>(widget);
        if (!group)
            return QFormBuilder::createDom(widget, domParentWidget, recursive);
        // The boxes are the group's own make-up; only the pages inside them are form content.
        DomWidget *domWidget = QFormBuilder::createDom(widget, domParentWidget, false);
        if (domWidget && recursive) {
            QVector<DomWidget *> pages = domWidget->elementWidget();
            for (int i = 0; i < group->count(); ++i) {
                if (DomWidget *page = createDom(group->widget(i), domWidget, true))
                    pages.append(page);
            }
            domWidget->setElementWidget(pages);
            saveExtraInfo(domWidget, widget, nullptr);
            restoreTitleMarks(domWidget, group);
        }
        return domWidget;
    }
    // A control's inner widgets and layout are not form content.
    return QFormBuilder::createDom(widget, domParentWidget, false);
}

QList<DomProperty *> FormBuilder::computeProperties(QObject *object)
{
    // The base writer would save flags as a plain enum, with a warning for each; they are
    // written here as sets of scoped keys, which it reads back. Where the base writer cannot
    // write enums at all (Qt 6), they are written here too, as a scoped key.
    QList<DomProperty *> properties = QFormBuilder::computeProperties(object);
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (!property.isWritable() || !CcQt::isDesignable(property, object))
            continue;
        if (property.isEnumType() && !property.isFlagType() && !CcQt::formBuilderWritesEnums) {
            const QMetaEnum enumeration = property.enumerator();
            const char *key = enumeration.valueToKey(property.read(object).toInt());
            if (!key)
                continue;
            auto *domProperty = new DomProperty;
            domProperty->setAttributeName(QLatin1String(property.name()));
            domProperty->setElementEnum(QLatin1String(enumeration.scope()) + QLatin1String("::")
                                        + QLatin1String(key));
            properties.append(domProperty);
            continue;
        }
        if (!property.isFlagType())
            continue;
        const QMetaEnum flags = property.enumerator();
        const int bits = property.read(object).toInt();
        if (bits == 0)
            continue; // no flag set: the default, nothing to write
        QStringList keys;
        for (const QByteArray &key : flags.valueToKeys(bits).split('|'))
            keys.append(QLatin1String(flags.scope()) + QLatin1String("::") + QLatin1String(key));
        auto *domProperty = new DomProperty;
        domProperty->setAttributeName(QLatin1String(property.name()));
        domProperty->setElementSet(keys.join(QLatin1Char('|')));
        properties.append(domProperty);
    }
    // A property the widget's class does not have was set as a dynamic property when the form
    // was loaded (Designer keeps such properties as well); it is written back as one. Qt's own
    // ("_q_...") are not form content.
    const QList<QByteArray> dynamicNames = object->dynamicPropertyNames();
    for (const QByteArray &name : dynamicNames) {
        if (name.startsWith("_q_") || name == propertyMarksProperty)
            continue;
        if (DomProperty *domProperty =
                    createProperty(object, QString::fromUtf8(name), object->property(name))) {
            domProperty->setAttributeStdset(0);
            properties.append(domProperty);
        }
    }
    restorePropertyMarks(object, properties);
    // Only what the writer keeps of an item view's header, so that it drops nothing.
    return isItemViewHeader(object) ? keptAsHeaderAttributes(properties) : properties;
}

bool FormBuilder::checkProperty(QObject *object, const QString &propertyName) const
{
    const QMetaObject *meta = object->metaObject();
    const int index = meta->indexOfProperty(propertyName.toLatin1().constData());
    if (index >= 0 && meta->property(index).isFlagType())
        return false; // written by computeProperties
    if (index >= 0 && meta->property(index).isEnumType() && !CcQt::formBuilderWritesEnums)
        return false; // written by computeProperties
    return QFormBuilder::checkProperty(object, propertyName);
}

void FormBuilder::saveExtraInfo(DomWidget *domWidget, QWidget *widget, void *context)
{
    Q_UNUSED(context)
    if (!domWidget || !widget)
        return;

    if (auto *options = qobject_cast<AbstractOptions *>(widget)) {
        Lists lists;
        lists[Text] = options->textList();
        lists[Icon] = options->iconList();
        lists[ToolTip] = options->toolTips();
        lists[Data] = options->dataList();
        takeAttributes(lists, options);
        fitToEntries(lists, optionFields, options->count());
        writeItems(domWidget, lists, optionFields);
    } else if (auto *checkCombo = qobject_cast<CheckableTextComboBox *>(widget)) {
        Lists lists;
        lists[Text] = checkCombo->itemTextList();
        lists[ToolTip] = checkCombo->toolTips();
        takeAttributes(lists, checkCombo);
        fitToEntries(lists, checkComboFields, lists[Text].size());
        writeItems(domWidget, lists, checkComboFields);
    } else if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(widget)) {
        Lists lists;
        lists[Text] = matrix->textList();
        lists[Icon] = matrix->iconList();
        lists[ToolTip] = matrix->toolTips();
        lists[Action] = matrix->actionList();
        takeAttributes(lists, matrix);
        setNumberProperty(domWidget, rowProperty, matrix->row());
        setNumberProperty(domWidget, columnProperty, matrix->column());
        dropTrailingBlankCells(lists, matrixFields);
        writeItems(domWidget, lists, matrixFields);
    } else if (auto *popButtons = qobject_cast<MatrixPopButtons *>(widget)) {
        Lists lists;
        lists[Text] = popButtons->textList();
        lists[Icon] = popButtons->iconList();
        lists[ToolTip] = popButtons->toolTips();
        lists[Action] = popButtons->actionList();
        takeAttributes(lists, popButtons);
        dropTrailingBlankCells(lists, matrixFields);
        setNumberProperty(domWidget, rowProperty, popButtons->row());
        setNumberProperty(domWidget, columnProperty, popButtons->column());
        // Texts marked alike are one string list; texts marked differently go into the items,
        // each with its own attributes, as a string list cannot hold them.
        QVariantMap textAttributes;
        if (sharedAttributes(lists[Text], lists.attributes[Text], &textAttributes)) {
            setStringListProperty(domWidget, textListProperty, lists[Text], textAttributes);
            writeItems(domWidget, lists, popCellFields);
        } else {
            removeProperty(domWidget, textListProperty);
            writeItems(domWidget, lists, matrixFields);
        }
    } else if (auto *comboBox = qobject_cast<ComboBox *>(widget)) {
        // The items themselves are the form writer's; each gets its action. Designer writes
        // only the items that carry its text role, those loaded with a text string.
        QStringList actions = comboBox->actionList();
        const int written = domWidget->elementItem().size();
        if (written != comboBox->count()) {
            QStringList ofWritten;
            for (int i = 0; i < comboBox->count(); ++i) {
                if (comboBox->itemData(i, Qt::DisplayPropertyRole).isValid())
                    ofWritten.append(comboBox->actionAt(i));
            }
            if (ofWritten.size() == written)
                actions = ofWritten;
        }
        writeItemActions(domWidget, actions);
        writeWholeItemTexts(domWidget, comboBox);
    } else if (auto *group = qobject_cast<DrawbackBoxGroup *>(widget)) {
        savePageGroup(domWidget, group);
    }
}

void FormBuilder::loadExtraInfo(DomWidget *domWidget, QWidget *widget, void *context)
{
    Q_UNUSED(context)
    if (!domWidget || !widget)
        return;
    // What the form holds that the widget does not keep, named in one warning at the end.
    QStringList dropped;
    dropUnkeptItems(domWidget, widget, dropped);
    if (QByteArray(widget->metaObject()->className()).startsWith("VoCc::"))
        dropRepeatedProperties(domWidget, dropped);

    if (auto *options = qobject_cast<AbstractOptions *>(widget)) {
        Lists lists = readItems(domWidget, optionFields, &dropped);
        options->setTextList(lists[Text]);
        options->setIconList(lists[Icon]);
        options->setToolTips(lists[ToolTip]);
        options->setDataList(lists[Data]);
        giveAttributes(options, lists);
        dropUntakenNumber(domWidget, widget, currentIndexProperty, dropped);
    } else if (auto *checkCombo = qobject_cast<CheckableTextComboBox *>(widget)) {
        Lists lists = readItems(domWidget, checkComboFields, &dropped);
        checkCombo->setItemTextList(lists[Text]);
        checkCombo->setToolTips(lists[ToolTip]);
        giveAttributes(checkCombo, lists);
    } else if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(widget)) {
        Lists lists = readItems(domWidget, matrixFields, &dropped);
        matrix->setTextList(lists[Text]);
        matrix->setIconList(lists[Icon]);
        matrix->setToolTips(lists[ToolTip]);
        matrix->setActionList(lists[Action]);
        giveAttributes(matrix, lists);
        dropUntakenNumber(domWidget, widget, rowProperty, dropped);
        dropUntakenNumber(domWidget, widget, columnProperty, dropped);
    } else if (auto *popButtons = qobject_cast<MatrixPopButtons *>(widget)) {
        // Texts are one string list, or in the items when they are marked differently (or in
        // a file written by hand).
        Lists lists = readItems(domWidget, matrixFields, &dropped);
        if (findProperty(domWidget, textListProperty))
            readPopButtonTexts(domWidget, lists, dropped);
        padLists(lists, {Text, Icon, ToolTip, Action});
        popButtons->setTextList(lists[Text]);
        popButtons->setIconList(lists[Icon]);
        popButtons->setToolTips(lists[ToolTip]);
        popButtons->setActionList(lists[Action]);
        giveAttributes(popButtons, lists);
        dropUntakenNumber(domWidget, widget, rowProperty, dropped);
        dropUntakenNumber(domWidget, widget, columnProperty, dropped);
    } else if (auto *comboBox = qobject_cast<ComboBox *>(widget)) {
        // The texts are the form reader's to load (Designer's, or the base builder's), as they
        // read them: what they leave of an item's text is named here too.
        const Lists lists = readItems(domWidget, {Text, Action}, &dropped);
        // Designer makes an item of one without a string for its text, but does not save it:
        // everything it holds is gone after the next save there.
        const QVector<DomItem *> items = domWidget->elementItem();
        for (int i = 0; i < items.size(); ++i) {
            const QList<DomProperty *> properties = items.at(i)->elementProperty();
            const bool textString = std::any_of(
                    properties.cbegin(), properties.cend(), [](const DomProperty *property) {
                        return property->attributeName() == fieldName(Text)
                                && property->kind() == DomProperty::String;
                    });
            if (!textString)
                addItemValues(items.at(i), QStringLiteral("item %1 (no text string) ").arg(i + 1),
                              dropped);
        }
        comboBox->setActionList(lists[Action]);
        comboBox->setStringAttributes(fieldName(Text), lists.attributes[Text]);
        dropUntakenNumber(domWidget, widget, currentIndexProperty, dropped);
    } else if (auto *group = qobject_cast<DrawbackBoxGroup *>(widget)) {
        loadPageGroup(domWidget, group, dropped);
        dropUntakenNumber(domWidget, widget, currentIndexProperty, dropped);
    }
    if (!dropped.isEmpty()) {
        qWarning("%s \"%s\": not kept from the form: %s", widget->metaObject()->className(),
                 qPrintable(widget->objectName()), qPrintable(dropped.join(QStringLiteral("; "))));
    }
}

} // namespace VoCc
