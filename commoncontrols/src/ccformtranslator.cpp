#include "ccformtranslator.h"

#include "ccentrylists.h"
#include "ccwidgetclasses.h"
#include "nui/CommonControls/CcComboBox.hpp"
#include "nui/CommonControls/CcFormBuilder.hpp"

#include <QtDesigner/private/ui4_p.h>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QListWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBox>
#include <QTreeWidget>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <memory>

namespace VoCc {

namespace {

// A translatable text: its source, and the comment that tells it apart from the same text
// used elsewhere in the form.
struct Text
{
    QString source;
    QString comment;
};

// The source texts of a string or string-list property or attribute. For an item of a tree,
// the column the property belongs to.
struct PropertyTexts
{
    QString name;
    QVector<Text> texts;
    bool list = false;
    int column = 0;
};

// The translatable properties of an item of one of Qt's item widgets, and its child items
// (a tree's). A table's items say which cell they are.
struct ItemTexts
{
    QVector<PropertyTexts> properties;
    QVector<ItemTexts> children;
    int row = -1;
    int column = -1;
};

struct ActionTexts
{
    QString name;
    QVector<PropertyTexts> properties;
};

const QString textName = QStringLiteral("text");
const QString textListName = QStringLiteral("textList");

bool isMarkedUntranslated(const QString &notr)
{
    return notr.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

// Item properties that hold identifiers (entry data, icon paths, action names), never text.
bool holdsIdentifier(const QString &itemProperty)
{
    return itemProperty == QLatin1String("data") || itemProperty == QLatin1String("icon")
            || itemProperty == QLatin1String("action");
}

// The library's widgets whose entries are loaded by FormBuilder::loadExtraInfo from <item>
// elements (and, for the pop-button matrix, its "textList" property).
bool loadsEntries(const QString &className)
{
    // clang-format off
#define CC_ENTRY_CLASS(Class, header, container, entries)                                  \
    if (entries) classes.append(QStringLiteral("VoCc::" #Class));
    // clang-format on
    static const QStringList classes = [] {
        QStringList classes;
        CC_WIDGET_CLASSES(CC_ENTRY_CLASS)
        return classes;
    }();
#undef CC_ENTRY_CLASS
    return classes.contains(className);
}

// The item data role an item property of Qt's item widgets sets, or -1.
int roleOf(const QString &itemProperty)
{
    if (itemProperty == textName)
        return Qt::DisplayRole;
    if (itemProperty == QLatin1String("toolTip"))
        return Qt::ToolTipRole;
    if (itemProperty == QLatin1String("statusTip"))
        return Qt::StatusTipRole;
    if (itemProperty == QLatin1String("whatsThis"))
        return Qt::WhatsThisRole;
    return -1;
}

} // namespace

// What a widget element holds to translate again on a language change.
struct WidgetSources
{
    QVector<PropertyTexts> properties;
    // Its attributes as a page of a tab widget or tool box ("title", "label", "toolTip"...).
    QVector<PropertyTexts> attributes;
    // The items of a Qt item widget, and a table's or tree's rows and columns (header items).
    QVector<ItemTexts> items;
    QVector<QVector<PropertyTexts>> rows;
    QVector<QVector<PropertyTexts>> columns;
    QVector<ActionTexts> actions;
    // The entries of a list-like widget of the library, untranslated, as .ui text: its items
    // and its "textList" property.
    QString entries;

    bool isEmpty() const
    {
        return properties.isEmpty() && attributes.isEmpty() && items.isEmpty() && rows.isEmpty()
                && columns.isEmpty() && actions.isEmpty() && entries.isEmpty();
    }
};

namespace {

// Translates the texts of document elements in place, in one context, and optionally keeps
// what it translated.
class Translation
{
public:
    explicit Translation(const QByteArray &context) : m_context(context) { }

    QString operator()(const Text &text) const
    {
        if (text.source.isEmpty())
            return text.source;
        const QByteArray comment = text.comment.toUtf8();
        return QCoreApplication::translate(m_context.constData(), text.source.toUtf8().constData(),
                                           comment.isEmpty() ? nullptr : comment.constData());
    }

    QVariant value(const PropertyTexts &property) const
    {
        if (!property.list)
            return (*this)(property.texts.value(0));
        QStringList strings;
        strings.reserve(property.texts.size());
        for (const Text &text : property.texts)
            strings.append((*this)(text));
        return strings;
    }

    // Translates a string or string-list property unless it is marked untranslated; the
    // source texts go into kept when it is given.
    bool translateProperty(DomProperty *property, PropertyTexts *kept) const
    {
        if (property->kind() == DomProperty::String) {
            DomString *string = property->elementString();
            if (!string || isMarkedUntranslated(string->attributeNotr())
                || string->text().isEmpty())
                return false;
            const Text text {string->text(), string->attributeComment()};
            string->setText((*this)(text));
            if (kept) {
                kept->name = property->attributeName();
                kept->texts = {text};
            }
            return true;
        }
        if (property->kind() == DomProperty::StringList) {
            DomStringList *list = property->elementStringList();
            if (!list || isMarkedUntranslated(list->attributeNotr()))
                return false;
            QStringList strings = list->elementString();
            QVector<Text> texts;
            if (kept)
                texts.reserve(strings.size());
            for (QString &string : strings) {
                const Text text {string, list->attributeComment()};
                string = (*this)(text);
                if (kept)
                    texts.append(text);
            }
            list->setElementString(strings);
            if (kept) {
                kept->name = property->attributeName();
                kept->texts = texts;
                kept->list = true;
            }
            return true;
        }
        return false;
    }

    void translateProperties(const QList<DomProperty *> &properties,
                             QVector<PropertyTexts> *kept) const
    {
        for (DomProperty *property : properties) {
            PropertyTexts texts;
            if (translateProperty(property, kept ? &texts : nullptr) && kept)
                kept->append(texts);
        }
    }

    // Items and their child items. Every item is kept, translatable or not, so that item i of
    // the form stays item i of the widget. In a tree item each "text" starts the next column,
    // and the other properties belong to the column of the text before them.
    void translateItems(const QVector<DomItem *> &items, QVector<ItemTexts> *kept) const
    {
        if (kept)
            kept->reserve(items.size());
        for (DomItem *item : items) {
            ItemTexts itemTexts;
            if (item->hasAttributeRow())
                itemTexts.row = item->attributeRow();
            if (item->hasAttributeColumn())
                itemTexts.column = item->attributeColumn();
            int column = -1;
            const QList<DomProperty *> properties = item->elementProperty();
            for (DomProperty *property : properties) {
                if (property->attributeName() == textName)
                    ++column;
                if (holdsIdentifier(property->attributeName()))
                    continue;
                PropertyTexts texts;
                texts.column = qMax(column, 0);
                if (translateProperty(property, kept ? &texts : nullptr) && kept)
                    itemTexts.properties.append(texts);
            }
            translateItems(item->elementItem(), kept ? &itemTexts.children : nullptr);
            if (kept)
                kept->append(itemTexts);
        }
    }

private:
    QByteArray m_context;
};

// The entries of a list-like widget element, as .ui text that DomWidget::read() takes back.
QString entriesText(const DomWidget *element)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement(QStringLiteral("widget"));
    writer.writeAttribute(QStringLiteral("class"), element->attributeClass());
    const QList<DomProperty *> properties = element->elementProperty();
    for (DomProperty *property : properties) {
        if (property->attributeName() == textListName)
            property->write(writer);
    }
    const QVector<DomItem *> items = element->elementItem();
    for (DomItem *item : items)
        item->write(writer);
    writer.writeEndElement();
    return text;
}

// Keeps a widget's source texts and sets their translations again when the widget receives
// QEvent::LanguageChange. A child of the widget: it goes with it.
class TranslationWatcher : public QObject
{
public:
    TranslationWatcher(QWidget *widget, const QByteArray &context, WidgetSources *sources)
        : QObject(widget), m_widget(widget), m_translation(context), m_sources(sources)
    {
        setObjectName(QStringLiteral("_vocc_translationwatcher"));
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_widget && event->type() == QEvent::LanguageChange)
            retranslate();
        return QObject::eventFilter(watched, event);
    }

private:
    void retranslate()
    {
        // The entries first: a checkable combo box finds the entries its "checkedTexts" name
        // by their texts, which must be the new ones when that property is set again.
        if (!m_sources->entries.isEmpty())
            retranslateEntries();
        for (const PropertyTexts &property : qAsConst(m_sources->properties))
            m_widget->setProperty(property.name.toUtf8().constData(),
                                  m_translation.value(property));
        if (!m_sources->attributes.isEmpty())
            retranslateAttributes();
        if (!m_sources->items.isEmpty() || !m_sources->rows.isEmpty()
            || !m_sources->columns.isEmpty())
            retranslateItems();
        for (const ActionTexts &actionTexts : qAsConst(m_sources->actions)) {
            QAction *action = m_widget->findChild<QAction *>(actionTexts.name);
            if (!action)
                continue;
            for (const PropertyTexts &property : actionTexts.properties)
                action->setProperty(property.name.toUtf8().constData(),
                                    m_translation.value(property));
        }
    }

    void retranslateEntries()
    {
        DomWidget element;
        QXmlStreamReader reader(m_sources->entries);
        reader.readNextStartElement();
        element.read(reader);
        m_translation.translateProperties(element.elementProperty(), nullptr);
        m_translation.translateItems(element.elementItem(), nullptr);
        FormBuilder::loadExtraInfo(&element, m_widget, nullptr);
    }

    // The widget's attributes are those of a page of the nearest tab widget or tool box.
    void retranslateAttributes()
    {
        for (QWidget *parent = m_widget->parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto *tabs = qobject_cast<QTabWidget *>(parent)) {
                const int index = tabs->indexOf(m_widget);
                for (const PropertyTexts &attribute : qAsConst(m_sources->attributes)) {
                    const QString text = m_translation.value(attribute).toString();
                    if (index < 0)
                        break;
                    if (attribute.name == QLatin1String("title"))
                        tabs->setTabText(index, text);
                    else if (attribute.name == QLatin1String("toolTip"))
                        tabs->setTabToolTip(index, text);
                    else if (attribute.name == QLatin1String("whatsThis"))
                        tabs->setTabWhatsThis(index, text);
                }
                return;
            }
            if (auto *toolBox = qobject_cast<QToolBox *>(parent)) {
                const int index = toolBox->indexOf(m_widget);
                for (const PropertyTexts &attribute : qAsConst(m_sources->attributes)) {
                    const QString text = m_translation.value(attribute).toString();
                    if (index < 0)
                        break;
                    if (attribute.name == QLatin1String("label"))
                        toolBox->setItemText(index, text);
                    else if (attribute.name == QLatin1String("toolTip"))
                        toolBox->setItemToolTip(index, text);
                }
                return;
            }
        }
    }

    template<class SetData>
    void applyRoles(const QVector<PropertyTexts> &properties, SetData setData)
    {
        for (const PropertyTexts &property : properties) {
            const int role = roleOf(property.name);
            if (role >= 0)
                setData(property.column, role, m_translation.value(property).toString());
        }
    }

    void retranslateTreeItem(QTreeWidgetItem *item, const ItemTexts &texts)
    {
        applyRoles(texts.properties, [item](int column, int role, const QString &value) {
            item->setData(column, role, value);
        });
        for (int i = 0; i < texts.children.size() && i < item->childCount(); ++i)
            retranslateTreeItem(item->child(i), texts.children.at(i));
    }

    void retranslateItems()
    {
        const QVector<ItemTexts> &items = m_sources->items;
        if (auto *combo = qobject_cast<QComboBox *>(m_widget)) {
            // The library's combo box shows at most the first characters of a long text, as
            // when it was loaded.
            const bool cut = qobject_cast<ComboBox *>(m_widget) != nullptr;
            for (int i = 0; i < items.size() && i < combo->count(); ++i) {
                applyRoles(items.at(i).properties, [=](int, int role, const QString &value) {
                    combo->setItemData(i,
                                       cut && role == Qt::DisplayRole ? EntryLists::shownText(value)
                                                                      : value,
                                       role);
                });
            }
        } else if (auto *list = qobject_cast<QListWidget *>(m_widget)) {
            for (int i = 0; i < items.size() && i < list->count(); ++i) {
                QListWidgetItem *item = list->item(i);
                applyRoles(items.at(i).properties, [item](int, int role, const QString &value) {
                    item->setData(role, value);
                });
            }
        } else if (auto *tree = qobject_cast<QTreeWidget *>(m_widget)) {
            QTreeWidgetItem *header = tree->headerItem();
            for (int column = 0; column < m_sources->columns.size(); ++column) {
                applyRoles(m_sources->columns.at(column), [=](int, int role, const QString &value) {
                    header->setData(column, role, value);
                });
            }
            for (int i = 0; i < items.size() && i < tree->topLevelItemCount(); ++i)
                retranslateTreeItem(tree->topLevelItem(i), items.at(i));
        } else if (auto *table = qobject_cast<QTableWidget *>(m_widget)) {
            const auto headers = [this](const QVector<QVector<PropertyTexts>> &lines,
                                        auto headerItem) {
                for (int i = 0; i < lines.size(); ++i) {
                    QTableWidgetItem *item = headerItem(i);
                    if (!item)
                        continue;
                    applyRoles(lines.at(i), [item](int, int role, const QString &value) {
                        item->setData(role, value);
                    });
                }
            };
            headers(m_sources->rows, [table](int i) { return table->verticalHeaderItem(i); });
            headers(m_sources->columns, [table](int i) { return table->horizontalHeaderItem(i); });
            for (const ItemTexts &texts : items) {
                QTableWidgetItem *item = table->item(texts.row, texts.column);
                if (!item)
                    continue;
                applyRoles(texts.properties, [item](int, int role, const QString &value) {
                    item->setData(role, value);
                });
            }
        }
    }

    QWidget *m_widget;
    Translation m_translation;
    std::unique_ptr<WidgetSources> m_sources;
};

} // namespace

FormTranslator::FormTranslator(const QString &context, bool followLanguageChanges)
    : m_context(context.toUtf8()), m_follow(followLanguageChanges)
{ }

FormTranslator::~FormTranslator() { qDeleteAll(m_sources); }

namespace {

class DocumentWalk
{
public:
    DocumentWalk(const QByteArray &context, bool keep,
                 QHash<const DomWidget *, WidgetSources *> *sources)
        : m_translation(context), m_keep(keep), m_sources(sources)
    { }

    void translateWidget(DomWidget *element)
    {
        std::unique_ptr<WidgetSources> kept(m_keep ? new WidgetSources : nullptr);
        const bool entries = loadsEntries(element->attributeClass());
        if (kept && entries)
            kept->entries = entriesText(element);

        const QList<DomProperty *> properties = element->elementProperty();
        for (DomProperty *property : properties) {
            PropertyTexts texts;
            // A list-like widget's "textList" is one of its entry lists, kept with them.
            if (m_translation.translateProperty(property, kept ? &texts : nullptr) && kept
                && !(entries && property->attributeName() == textListName))
                kept->properties.append(texts);
        }
        m_translation.translateProperties(element->elementAttribute(),
                                          kept ? &kept->attributes : nullptr);
        m_translation.translateItems(element->elementItem(),
                                     kept && !entries ? &kept->items : nullptr);
        for (DomRow *row : element->elementRow()) {
            QVector<PropertyTexts> texts;
            m_translation.translateProperties(row->elementProperty(), kept ? &texts : nullptr);
            if (kept)
                kept->rows.append(texts);
        }
        for (DomColumn *column : element->elementColumn()) {
            QVector<PropertyTexts> texts;
            m_translation.translateProperties(column->elementProperty(), kept ? &texts : nullptr);
            if (kept)
                kept->columns.append(texts);
        }
        translateActions(element->elementAction(), kept.get());
        for (DomActionGroup *group : element->elementActionGroup())
            translateActionGroup(group, kept.get());
        for (DomLayout *layout : element->elementLayout())
            translateLayout(layout);
        for (DomWidget *child : element->elementWidget())
            translateWidget(child);

        if (kept && !kept->isEmpty())
            m_sources->insert(element, kept.release());
    }

private:
    void translateActions(const QVector<DomAction *> &actions, WidgetSources *kept)
    {
        for (DomAction *action : actions) {
            ActionTexts texts {action->attributeName(), {}};
            m_translation.translateProperties(action->elementProperty(),
                                              kept ? &texts.properties : nullptr);
            if (kept && !texts.properties.isEmpty())
                kept->actions.append(texts);
        }
    }

    void translateActionGroup(DomActionGroup *group, WidgetSources *kept)
    {
        translateActions(group->elementAction(), kept);
        for (DomActionGroup *inner : group->elementActionGroup())
            translateActionGroup(inner, kept);
    }

    void translateLayout(DomLayout *layout)
    {
        for (DomLayoutItem *item : layout->elementItem()) {
            if (item->elementWidget())
                translateWidget(item->elementWidget());
            if (item->elementLayout())
                translateLayout(item->elementLayout());
        }
    }

    Translation m_translation;
    bool m_keep;
    QHash<const DomWidget *, WidgetSources *> *m_sources;
};

} // namespace

void FormTranslator::translate(DomUI *ui)
{
    if (DomWidget *top = ui->elementWidget())
        DocumentWalk(m_context, m_follow, &m_sources).translateWidget(top);
}

void FormTranslator::watch(const DomWidget *element, QWidget *widget)
{
    WidgetSources *sources = m_sources.take(element);
    if (sources)
        new TranslationWatcher(widget, m_context, sources);
}

} // namespace VoCc
