#include "nui/CommonControls/CcFormBuilder.hpp"

#include "ccdomentries.h"
#include "ccentrylists.h"
#include "ccformtranslator.h"
#include "ccwidgetclasses.h"

#include "qtcompat.h"

#include <QtDesigner/private/ui4_p.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QHeaderView>
#include <QMetaEnum>
#include <QTableView>
#include <QTreeView>
#include <QXmlStreamReader>

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

DomWidget *findChildElement(DomWidget *domWidget, const QString &objectName)
{
    const QVector<DomWidget *> children = domWidget->elementWidget();
    for (DomWidget *child : children) {
        if (child->attributeName() == objectName)
            return child;
    }
    return nullptr;
}

void savePageGroup(DomWidget *domWidget, DrawbackBoxGroup *group)
{
    setNumberProperty(domWidget, currentIndexProperty, group->currentIndex());
    // A page's title is its window title; it goes into the page's own element whether or not
    // the writer of that element saved it.
    for (int i = 0; i < group->count(); ++i) {
        QWidget *page = group->widget(i);
        DomWidget *pageElement = page ? findChildElement(domWidget, page->objectName()) : nullptr;
        const QString title = group->pageTitle(i);
        if (!pageElement || title.isEmpty())
            continue;
        // A title the writer saved already keeps its translation attributes.
        const DomProperty *saved = findProperty(pageElement, windowTitleProperty);
        if (!saved || saved->kind() != DomProperty::String || propertyText(saved) != title)
            setStringProperty(pageElement, windowTitleProperty, title);
    }
}

void loadPageGroup(const DomWidget *domWidget, DrawbackBoxGroup *group)
{
    for (int i = 0; i < group->count(); ++i) {
        QWidget *page = group->widget(i);
        if (page && !page->windowTitle().isEmpty())
            group->box(i)->setTitle(page->windowTitle());
    }
    // The loader applied "currentIndex" before the pages existed.
    if (const DomProperty *current = findProperty(domWidget, currentIndexProperty)) {
        if (current->kind() == DomProperty::Number)
            group->setCurrentIndex(current->elementNumber());
    }
}

const DomStringList *stringListProperty(const DomWidget *domWidget, const QString &name)
{
    const DomProperty *property = findProperty(domWidget, name);
    return property && property->kind() == DomProperty::StringList ? property->elementStringList()
                                                                     : nullptr;
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

// A combo box shows its items' own texts, and Qt measures every one of them whole: texts
// beyond what any widget of the library shows are cut before the items are made, with one
// warning for the widget.
void cutLongItemTexts(DomWidget *domWidget)
{
    const QString textName = fieldName(Text);
    int cut = 0;
    int longest = 0;
    const QVector<DomItem *> items = domWidget->elementItem();
    for (DomItem *item : items) {
        const QList<DomProperty *> properties = item->elementProperty();
        for (DomProperty *property : properties) {
            DomString *string =
                    property->attributeName() == textName ? property->elementString() : nullptr;
            if (string && string->text().size() > EntryLists::maximumShownLength) {
                longest = qMax(longest, string->text().size());
                string->setText(EntryLists::shownText(string->text()));
                ++cut;
            }
        }
    }
    if (cut > 0) {
        qWarning("%s \"%s\": property \"text\" of %d item(s) has up to %d characters, more "
                 "than the %d a widget shows; cut to %d",
                 qPrintable(domWidget->attributeClass()), qPrintable(domWidget->attributeName()),
                 cut, longest, EntryLists::maximumShownLength, EntryLists::maximumShownLength);
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

// A form may hold item data no one keeps (items on a widget without entries, an item
// property the widget has no list for): it would be gone after the next save, so it is named
// once per widget.
void warnOfDroppedItems(const DomWidget *domWidget, const QWidget *widget)
{
    const QVector<DomItem *> items = domWidget->elementItem();
    if (items.isEmpty())
        return;
    const QStringList *kept = keptItemProperties(widget);
    if (!kept) {
        qWarning("%s \"%s\": its %d item(s) are not kept; this widget has no entries",
                 widget->metaObject()->className(), qPrintable(widget->objectName()),
                 int(items.size()));
        return;
    }
    if (kept->contains(QStringLiteral("*")))
        return;
    QStringList dropped;
    for (const DomItem *item : items) {
        const QList<DomProperty *> properties = item->elementProperty();
        for (const DomProperty *property : properties) {
            if (!kept->contains(property->attributeName())
                && !dropped.contains(property->attributeName()))
                dropped.append(property->attributeName());
        }
    }
    if (!dropped.isEmpty())
        qWarning("%s \"%s\": item properties %s are not kept; its entries have %s",
                 widget->metaObject()->className(), qPrintable(widget->objectName()),
                 qPrintable(dropped.join(QStringLiteral(", "))),
                 qPrintable(kept->join(QStringLiteral(", "))));
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
    if (domWidget->attributeClass() == QLatin1String("VoCc::ComboBox"))
        cutLongItemTexts(domWidget);
    QWidget *widget = QFormBuilder::create(domWidget, parentWidget);
    if (widget)
        loadExtraInfo(domWidget, widget, nullptr);
    if (widget && m_translator)
        m_translator->watch(domWidget, widget);
    return widget;
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
        // The items themselves are the form writer's; each gets its action.
        writeItemActions(domWidget, comboBox->actionList());
    } else if (auto *group = qobject_cast<DrawbackBoxGroup *>(widget)) {
        savePageGroup(domWidget, group);
    }
}

void FormBuilder::loadExtraInfo(DomWidget *domWidget, QWidget *widget, void *context)
{
    Q_UNUSED(context)
    if (!domWidget || !widget)
        return;
    warnOfDroppedItems(domWidget, widget);

    if (auto *options = qobject_cast<AbstractOptions *>(widget)) {
        Lists lists = readItems(domWidget, optionFields);
        options->setTextList(lists[Text]);
        options->setIconList(lists[Icon]);
        options->setToolTips(lists[ToolTip]);
        options->setDataList(lists[Data]);
        giveAttributes(options, lists);
    } else if (auto *checkCombo = qobject_cast<CheckableTextComboBox *>(widget)) {
        Lists lists = readItems(domWidget, checkComboFields);
        checkCombo->setItemTextList(lists[Text]);
        checkCombo->setToolTips(lists[ToolTip]);
        giveAttributes(checkCombo, lists);
    } else if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(widget)) {
        Lists lists = readItems(domWidget, matrixFields);
        matrix->setTextList(lists[Text]);
        matrix->setIconList(lists[Icon]);
        matrix->setToolTips(lists[ToolTip]);
        matrix->setActionList(lists[Action]);
        giveAttributes(matrix, lists);
    } else if (auto *popButtons = qobject_cast<MatrixPopButtons *>(widget)) {
        // Texts are one string list, or in the items when they are marked differently (or in
        // a file written by hand).
        const DomStringList *textList = stringListProperty(domWidget, textListProperty);
        QVector<Field> fields = popCellFields;
        if (!textList)
            fields.append(Text);
        Lists lists = readItems(domWidget, fields);
        if (textList) {
            lists[Text] = textList->elementString();
            const QVariantMap shared = attributesOf(textList);
            if (!shared.isEmpty()) {
                for (int i = 0; i < lists[Text].size(); ++i)
                    lists.attributes[Text].append(shared);
            }
        }
        padLists(lists, {Text, Icon, ToolTip, Action});
        popButtons->setTextList(lists[Text]);
        popButtons->setIconList(lists[Icon]);
        popButtons->setToolTips(lists[ToolTip]);
        popButtons->setActionList(lists[Action]);
        giveAttributes(popButtons, lists);
    } else if (auto *comboBox = qobject_cast<ComboBox *>(widget)) {
        QStringList actions = readItems(domWidget, {Action})[Action];
        comboBox->setActionList(actions);
    } else if (auto *group = qobject_cast<DrawbackBoxGroup *>(widget)) {
        loadPageGroup(domWidget, group);
    }
}

} // namespace VoCc
