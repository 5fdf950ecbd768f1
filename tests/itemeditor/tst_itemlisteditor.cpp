#include "qtcompat.h"

#include "designertestcore.h"
#include "itemeditortestsupport.h"

#include "itemlisteditor.h"
#include "itempropertybrowser.h"
#include "pixmapeditor.h"
#include "resetwidget.h"
#include "texteditor.h"

#include <QtDesigner/private/formwindowbase_p.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDesignerFormWindowInterface>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

using namespace qdesigner_internal;
using CcTest::openEditor;

namespace {

// Answers every translation request with nothing, and remembers "context|source".
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        seen.insert(QLatin1String(context) + QLatin1Char('|') + QLatin1String(sourceText));
        return QString();
    }
    bool isEmpty() const override { return false; }
    mutable QSet<QString> seen;
};

QListWidgetItem *makeItem(const QString &text)
{
    auto *item = new QListWidgetItem(text);
    item->setData(Qt::DisplayPropertyRole, CcTest::stringValue(text));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

PropertySheetStringValue stringOf(const QVariant &value)
{
    return qvariant_cast<PropertySheetStringValue>(value);
}

QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int i = 0; i < list->count(); ++i)
        result.append(list->item(i)->text());
    return result;
}

int freshItemFlags() { return int(QListWidgetItem().flags()); }

} // namespace

class TestItemListEditor : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup() { m_editor.reset(); }
    void cleanupTestCase();

    void formTextsAndPaneToggle();
    void propertyTableBecomesProperties();
    void editingValuesInThePaneSetsAndMirrorsRoles();
    void defaultsAndResetRemoveTheRole();
    void listOperationsAndSelectionRules();
    void reLayoutOnlyWhenTheLineCountChanges();
    void rendersIconsFromTheCache();

private:
    // An editor on the form's combo box holding the given items, set up with every kind of
    // property and its pane shown; it lives until the end of the test.
    ItemListEditor *makeEditor(const QStringList &texts);
    QtVariantProperty *itemProperty(const char *name) const;

    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_object = nullptr;
    QScopedPointer<ItemListEditor> m_editor;
    CcTest::TestPictures m_pictures;
};

void TestItemListEditor::initTestCase()
{
    CcTest::usePluginModulesOnly({});
    CcTest::designerCore();
    m_form = CcTest::createFormWindow(
            CcTest::formXml(QStringLiteral("<widget class=\"QComboBox\" name=\"combo\"/>")));
    QVERIFY(qobject_cast<FormWindowBase *>(m_form));
    m_object = m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("combo"));
    QVERIFY(m_object);
    QVERIFY(!m_pictures.red.isEmpty() && !m_pictures.blue.isEmpty());
}

void TestItemListEditor::cleanupTestCase() { CcTest::closeFormWindow(m_form); }

ItemListEditor *TestItemListEditor::makeEditor(const QStringList &texts)
{
    m_editor.reset(new ItemListEditor(m_form, nullptr));
    m_editor->setNewItemText(QStringLiteral("New Item"));
    for (const QString &text : texts)
        m_editor->listWidget()->addItem(makeItem(text));
    m_editor->setupEditor(m_object, CcTest::allItemProperties());
    m_editor->setPropertyBrowserVisible(true);
    m_editor->show();
    return m_editor.data();
}

QtVariantProperty *TestItemListEditor::itemProperty(const char *name) const
{
    const QList<QtVariantProperty *> properties = m_editor->properties();
    for (QtVariantProperty *property : properties) {
        if (property->propertyName() == QLatin1String(name))
            return property;
    }
    return nullptr;
}

void TestItemListEditor::formTextsAndPaneToggle()
{
    RecordingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    ItemListEditor editor(m_form, nullptr);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(editor.objectName(), QStringLiteral("qdesigner_internal__ItemListEditor"));
    QCOMPARE(editor.size(), QSize(550, 360));
    QCOMPARE(editor.listWidget()->objectName(), QStringLiteral("listWidget"));
    QCOMPARE(editor.listWidget()->toolTip(), QStringLiteral("Items List"));

    // Buttons with their tool tips and texts, all looked up in the form's context.
    const QString context = QStringLiteral("qdesigner_internal::ItemListEditor|");
    const char *const buttons[][3] = {{"newListItemButton", "New Item", "&New"},
                                      {"deleteListItemButton", "Delete Item", "&Delete"},
                                      {"moveListItemUpButton", "Move Item Up", "U"},
                                      {"moveListItemDownButton", "Move Item Down", "D"},
                                      {"showPropertiesButton", "", "Properties &<<"}};
    for (const auto &row : buttons) {
        auto *button = editor.findChild<QAbstractButton *>(QLatin1String(row[0]));
        QVERIFY2(button, row[0]);
        QCOMPARE(button->toolTip(), QLatin1String(row[1]));
        QCOMPARE(button->text(), QLatin1String(row[2]));
        QVERIFY2(!qobject_cast<QToolButton *>(button) || !button->icon().isNull(), row[0]);
        for (const char *text : {row[1], row[2]})
            QVERIFY2(!*text || translator.seen.contains(context + QLatin1String(text)), text);
    }
    for (const QString &seen :
         {context + QStringLiteral("Items List"), context + QStringLiteral("Properties &>>"),
          QStringLiteral("ItemPropertyBrowser|XX Icon Selected off")})
        QVERIFY2(translator.seen.contains(seen), qPrintable(seen));

    // The pane starts hidden; the button toggles it and tells what a click will do.
    editor.show();
    auto *toggle = editor.findChild<QPushButton *>(QStringLiteral("showPropertiesButton"));
    QVERIFY(!editor.propertyBrowser()->isVisible());
    for (const bool visible : {true, false}) {
        QTest::mouseClick(toggle, Qt::LeftButton);
        QCOMPARE(editor.propertyBrowser()->isVisible(), visible);
        QCOMPARE(toggle->text(),
                 visible ? QStringLiteral("Properties &>>") : QStringLiteral("Properties &<<"));
    }
    editor.setPropertyBrowserVisible(true);
    QCOMPARE(toggle->text(), QStringLiteral("Properties &>>"));
}

void TestItemListEditor::propertyTableBecomesProperties()
{
    ItemListEditor *editor = makeEditor({"One"});
    const QList<QtVariantProperty *> properties = editor->properties();
    const QList<QtBrowserItem *> shown = editor->propertyBrowser()->topLevelItems();
    QCOMPARE(shown.size(), properties.size());
    QStringList names;
    for (QtVariantProperty *property : properties) {
        QCOMPARE(shown.at(names.size())->property(), static_cast<QtProperty *>(property));
        QCOMPARE(property->attributeValue(QStringLiteral("resettable")), QVariant(true));
        names.append(property->propertyName());
    }
    QCOMPARE(names,
             QStringList({"text", "icon", "toolTip", "statusTip", "whatsThis", "font", "checkState",
                          "flags"}));
    const std::pair<const char *, int> modes[] = {{"text", ValidationMultiLine},
                                                  {"toolTip", ValidationRichText},
                                                  {"statusTip", ValidationSingleLine},
                                                  {"whatsThis", ValidationRichText}};
    for (const auto &mode : modes)
        QCOMPARE(itemProperty(mode.first)->attributeValue("validationMode").toInt(), mode.second);
    QCOMPARE(itemProperty("flags")->attributeValue(QStringLiteral("flagNames")),
             QVariant(QStringList({"Selectable", "Editable", "DragEnabled", "DropEnabled",
                                   "UserCheckable", "Enabled", "Tristate"})));
    QCOMPARE(itemProperty("checkState")->attributeValue(QStringLiteral("enumNames")),
             QVariant(QStringList({"Unchecked", "PartiallyChecked", "Checked"})));

    // Filled from row 0: set roles show as modified, missing ones as the default.
    QCOMPARE(stringOf(itemProperty("text")->value()).value(), QStringLiteral("One"));
    QVERIFY(itemProperty("text")->isModified());
    QCOMPARE(itemProperty("flags")->value().toInt(), freshItemFlags());
    QVERIFY(!itemProperty("flags")->isModified());
}

void TestItemListEditor::editingValuesInThePaneSetsAndMirrorsRoles()
{
    ItemListEditor *editor = makeEditor({"One", "Two"});
    editor->listWidget()->setCurrentRow(1);
    QListWidgetItem *item = editor->listWidget()->item(1);
    QSignalSpy changed(editor, &ItemListEditor::itemChanged);
    ItemPropertyBrowser *browser = editor->propertyBrowser();

    // Strings typed into the pane: "\n" becomes a line break only where the property's
    // validation mode allows several lines.
    const struct
    {
        const char *property;
        int role;
        int plainRole;
        const char *typed;
        const char *stored;
    } strings[] = {
            {"text", Qt::DisplayPropertyRole, Qt::EditRole, "Two\\nlines", "Two\nlines"},
            {"toolTip", Qt::ToolTipPropertyRole, Qt::ToolTipRole, "<b>a</b>\\nb", "<b>a</b>\nb"},
            {"statusTip", Qt::StatusTipPropertyRole, Qt::StatusTipRole, "a\\nb", "a\\nb"},
            {"whatsThis", Qt::WhatsThisPropertyRole, Qt::WhatsThisRole, "<i>w</i>", "<i>w</i>"},
    };
    for (const auto &c : strings) {
        auto *textEditor = openEditor<TextEditor>(browser, itemProperty(c.property));
        QVERIFY2(textEditor, c.property);
        QVERIFY(qobject_cast<ResetWidget *>(textEditor->parentWidget()));
        QLineEdit *line = textEditor->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(c.typed));
        const QString stored = QLatin1String(c.stored);
        QCOMPARE(stringOf(item->data(c.role)), PropertySheetStringValue(stored));
        QCOMPARE(item->data(c.plainRole).toString(), stored);
        // Reported twice: the designer value, then its plain twin.
        QVERIFY(changed.size() >= 2);
        QCOMPARE(changed.at(changed.size() - 2).mid(0, 2), QVariantList({1, c.role}));
        QCOMPARE(changed.last(), QVariantList({1, c.plainRole, stored}));
    }

    // Icon: a file chosen through the pixmap editor's menu and Designer's file dialog.
    auto *pixmapEditor = openEditor<PixmapEditor>(browser, itemProperty("icon"));
    QVERIFY(pixmapEditor);
    const QString red = m_pictures.red;
    QVERIFY(CcTest::answerModal<QFileDialog>(
            [&] { pixmapEditor->chooseFileAction()->trigger(); },
            [red](QFileDialog *d) { CcTest::typeFileName(d, red); }));
    const auto iconValue =
            qvariant_cast<PropertySheetIconValue>(item->data(Qt::DecorationPropertyRole));
    QCOMPARE(iconValue.pixmap(QIcon::Normal, QIcon::Off).path(), red);
    const QIcon shown = qvariant_cast<QIcon>(item->data(Qt::DecorationRole));
    QCOMPARE(shown.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
    QCOMPARE(itemProperty("icon")->valueText(), QStringLiteral("red.png"));

    // Font: one part ticked in the tree; the item's font is resolved against the list's.
    auto *boldBox = openEditor<QCheckBox>(
            browser, CcTest::subProperty(itemProperty("font"), QStringLiteral("Bold")));
    QVERIFY(boldBox);
    boldBox->click();
    const QFont itemFont = qvariant_cast<QFont>(item->data(Qt::FontRole));
    QVERIFY(itemFont.bold());
    QCOMPARE(CcQt::fontResolveMask(itemFont), uint(QFont::WeightResolved));
    QCOMPARE(itemFont.family(), editor->listWidget()->font().family());
    QCOMPARE(changed.last().at(1).toInt(), int(Qt::FontRole));

    // Flags: one named flag cleared through its sub-property.
    auto *enabledBox = openEditor<QCheckBox>(
            browser, CcTest::subProperty(itemProperty("flags"), QStringLiteral("Enabled")));
    QVERIFY(enabledBox && enabledBox->isChecked());
    enabledBox->click();
    QCOMPARE(item->data(ItemFlagsRole).toInt(), freshItemFlags() & ~int(Qt::ItemIsEnabled));

    // Enum: check state chosen by name.
    auto *stateBox = openEditor<QComboBox>(browser, itemProperty("checkState"));
    QVERIFY(stateBox);
    stateBox->setCurrentIndex(stateBox->findText(QStringLiteral("Checked")));
    QCOMPARE(item->data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(itemProperty("checkState")->valueText(), QStringLiteral("Checked"));
    for (const QtVariantProperty *edited : editor->properties())
        QVERIFY2(edited->isModified(), qPrintable(edited->propertyName()));

    // Only the current row changed: the pane shows the other one's own values.
    editor->listWidget()->setCurrentRow(0);
    for (const QtVariantProperty *untouched : editor->properties())
        QCOMPARE(untouched->isModified(), untouched->propertyName() == QLatin1String("text"));
    QCOMPARE(itemProperty("checkState")->value().toInt(), 0);
    editor->listWidget()->setCurrentRow(1);
    QVERIFY(itemProperty("icon")->isModified());
    QCOMPARE(itemProperty("checkState")->value().toInt(), 2);
}

void TestItemListEditor::defaultsAndResetRemoveTheRole()
{
    ItemListEditor *editor = makeEditor({"One"});
    QListWidgetItem *item = editor->listWidget()->item(0);
    ItemPropertyBrowser *browser = editor->propertyBrowser();
    auto isEmpty = [](const QVariant &v) {
        return v.userType() == QMetaType::QIcon ? qvariant_cast<QIcon>(v).isNull()
                                                : v.toString().isEmpty();
    };

    // A set value is removed again by the property's reset button in the pane, or by setting
    // the default: the role goes, its plain twin empties, the property is not modified.
    const struct
    {
        const char *property;
        int role;
        int plainRole;
        QVariant value;
        QVariant defaultValue;
    } cases[] = {
            {"text", Qt::DisplayPropertyRole, Qt::EditRole, {}, {}},
            {"toolTip", Qt::ToolTipPropertyRole, Qt::ToolTipRole, CcTest::stringValue("tip"), {}},
            {"icon", Qt::DecorationPropertyRole, Qt::DecorationRole,
             CcTest::iconValue(m_pictures.red), QVariant::fromValue(PropertySheetIconValue())},
            {"flags", ItemFlagsRole, -1, 0, freshItemFlags()},
    };
    for (const auto &c : cases) {
        QtVariantProperty *property = itemProperty(c.property);
        for (const bool byReset : {false, true}) {
            if (!byReset && !c.defaultValue.isValid())
                continue;
            if (c.value.isValid())
                property->setValue(c.value);
            QVERIFY2(item->data(c.role).isValid() && property->isModified(), c.property);
            QSignalSpy changed(editor, &ItemListEditor::itemChanged);
            if (byReset) {
                auto *reset = openEditor<ResetWidget>(browser, property);
                QVERIFY(reset && reset->resetButton()->isEnabled());
                reset->resetButton()->click();
            } else {
                property->setValue(c.defaultValue);
            }
            QVERIFY2(!item->data(c.role).isValid(), c.property);
            QVERIFY(!property->isModified());
            QVERIFY(!changed.isEmpty() && !changed.first().at(2).isValid());
            QCOMPARE(changed.first().at(1).toInt(), c.role);
            if (c.plainRole >= 0) {
                QVERIFY2(isEmpty(item->data(c.plainRole)), c.property);
                QCOMPARE(changed.last().at(1).toInt(), c.plainRole);
            }
        }
        // Nothing left to reset.
        QVERIFY(!openEditor<ResetWidget>(browser, property)->resetButton()->isEnabled());
    }
    QCOMPARE(itemProperty("flags")->value().toInt(), freshItemFlags());

    // Resetting the only font part that was set leaves nothing resolved: the role goes.
    QtVariantProperty *italic = CcTest::subProperty(itemProperty("font"), QStringLiteral("Italic"));
    italic->setValue(true);
    QVERIFY(item->data(Qt::FontRole).isValid());
    auto *italicReset = openEditor<ResetWidget>(browser, italic);
    QVERIFY(italicReset && italicReset->resetButton()->isEnabled());
    italicReset->resetButton()->click();
    QVERIFY(!item->data(Qt::FontRole).isValid());
    QVERIFY(!itemProperty("font")->isModified());

    // An icon part's reset clears that part only, and the icon is still set.
    PropertySheetIconValue twoStates {PropertySheetPixmapValue(m_pictures.red)};
    twoStates.setPixmap(QIcon::Normal, QIcon::On, PropertySheetPixmapValue(m_pictures.blue));
    itemProperty("icon")->setValue(QVariant::fromValue(twoStates));
    QtProperty *normalOn = CcTest::subProperty(itemProperty("icon"), QStringLiteral("Normal On"));
    openEditor<ResetWidget>(browser, normalOn)->resetButton()->click();
    const auto left = qvariant_cast<PropertySheetIconValue>(item->data(Qt::DecorationPropertyRole));
    QCOMPARE(left.pixmap(QIcon::Normal, QIcon::On).path(), QString());
    QCOMPARE(left.pixmap(QIcon::Normal, QIcon::Off).path(), m_pictures.red);
    QVERIFY(itemProperty("icon")->isModified());
}

void TestItemListEditor::listOperationsAndSelectionRules()
{
    ItemListEditor *editor = makeEditor({"A", "B", "C"});
    QListWidget *list = editor->listWidget();
    auto button = [editor](const char *name) {
        return editor->findChild<QToolButton *>(QLatin1String(name));
    };
    QToolButton *newButton = button("newListItemButton");
    QToolButton *deleteButton = button("deleteListItemButton");
    QToolButton *upButton = button("moveListItemUpButton");
    QToolButton *downButton = button("moveListItemDownButton");
    QSignalSpy inserted(editor, &ItemListEditor::itemInserted);
    QSignalSpy deleted(editor, &ItemListEditor::itemDeleted);
    QSignalSpy movedUp(editor, &ItemListEditor::itemMovedUp);
    QSignalSpy movedDown(editor, &ItemListEditor::itemMovedDown);
    QSignalSpy index(editor, &ItemListEditor::indexChanged);
    // New makes the item current and opens it for renaming; Escape keeps the new text.
    auto clickNew = [&](int expectedRow) {
        QTest::mouseClick(newButton, Qt::LeftButton);
        QCOMPARE(inserted.last().at(0).toInt(), expectedRow);
        QCOMPARE(list->currentRow(), expectedRow);
        QLineEdit *inPlace = list->findChild<QLineEdit *>();
        QVERIFY(inPlace && inPlace->isVisible());
        QCOMPARE(inPlace->text(), QStringLiteral("New Item"));
        QTest::keyClick(inPlace, Qt::Key_Escape);
        CcTest::settle();
    };
    auto noMoveOrDelete = [&] {
        return !deleteButton->isEnabled() && !upButton->isEnabled() && !downButton->isEnabled();
    };

    QCOMPARE(list->currentRow(), 0);
    QVERIFY(!upButton->isEnabled() && downButton->isEnabled() && deleteButton->isEnabled());
    // setCurrentIndex selects silently; a user's selection is reported.
    editor->setCurrentIndex(2);
    QVERIFY(upButton->isEnabled() && !downButton->isEnabled());
    list->setCurrentRow(1);
    QCOMPARE(index.size(), 1);
    QCOMPARE(index.last().at(0).toInt(), 1);

    // New goes below the current row, appends on the last, and goes first with none current.
    clickNew(2);
    QCOMPARE(stringOf(list->item(2)->data(Qt::DisplayPropertyRole)),
             PropertySheetStringValue(QStringLiteral("New Item")));
    list->setCurrentRow(3);
    clickNew(4);
    list->setCurrentRow(-1);
    QVERIFY(noMoveOrDelete());
    clickNew(0);
    QCOMPARE(texts(list), QStringList({"New Item", "A", "B", "New Item", "C", "New Item"}));

    // Up and down move the item and keep it current; the signal names the old row.
    list->setCurrentRow(4); // "C"
    QTest::mouseClick(upButton, Qt::LeftButton);
    QCOMPARE(list->currentRow(), 3);
    for (int i = 0; i < 3; ++i) // the last click is on the last row: disabled
        QTest::mouseClick(downButton, Qt::LeftButton);
    QCOMPARE(texts(list), QStringList({"New Item", "A", "B", "New Item", "New Item", "C"}));
    QCOMPARE(list->currentRow(), 5);
    QCOMPARE(movedUp.size(), 1);
    QCOMPARE(movedUp.last().at(0).toInt(), 4);
    QCOMPARE(movedDown.size(), 2);
    QCOMPARE(movedDown.last().at(0).toInt(), 4);

    // Deleting a middle row keeps that row number selected, and the pane shows its new item.
    list->setCurrentRow(1);
    QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(deleted.last().at(0).toInt(), 1);
    QCOMPARE(list->currentRow(), 1);
    QCOMPARE(stringOf(itemProperty("text")->value()).value(), QStringLiteral("B"));
    // Deleting the last row of several selects the new last row.
    list->setCurrentRow(4);
    QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(texts(list), QStringList({"New Item", "B", "New Item", "New Item"}));
    QCOMPARE(deleted.last().at(0).toInt(), 4);
    QCOMPARE(list->currentRow(), 3);
    QVERIFY(upButton->isEnabled() && !downButton->isEnabled());

    // Deleting everything leaves an empty list, no enabled buttons and an empty pane.
    while (list->count())
        QTest::mouseClick(deleteButton, Qt::LeftButton);
    QCOMPARE(deleted.size(), 6);
    QCOMPARE(deleted.last().at(0).toInt(), 0);
    QCOMPARE(list->currentRow(), -1);
    QVERIFY(noMoveOrDelete());
    QVERIFY(editor->propertyBrowser()->topLevelItems().isEmpty());
    clickNew(0);
    QCOMPARE(editor->propertyBrowser()->topLevelItems().size(), 8);

    // Renaming in place keeps the value's translation data and reports the display role.
    QListWidgetItem *item = list->item(0);
    const PropertySheetStringValue before(QStringLiteral("B"), false, QStringLiteral("dis"),
                                          QStringLiteral("note"));
    item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(before));
    QSignalSpy changed(editor, &ItemListEditor::itemChanged);
    list->editItem(item);
    QLineEdit *inPlace = list->findChild<QLineEdit *>();
    QVERIFY(inPlace);
    inPlace->selectAll();
    QTest::keyClicks(inPlace, QStringLiteral("Renamed"));
    QTest::keyClick(inPlace, Qt::Key_Return);
    CcTest::settle();
    PropertySheetStringValue renamed = before;
    renamed.setValue(QStringLiteral("Renamed"));
    QCOMPARE(stringOf(item->data(Qt::DisplayPropertyRole)), renamed);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toInt(), 0);
    QCOMPARE(changed.first().at(1).toInt(), int(Qt::DisplayPropertyRole));
    QCOMPARE(stringOf(changed.first().at(2)), renamed);
    QCOMPARE(stringOf(itemProperty("text")->value()), renamed);
}

void TestItemListEditor::reLayoutOnlyWhenTheLineCountChanges()
{
    // Enough rows to scroll by pixels: the scroll range follows the rows' heights as soon as
    // the list is laid out, and is not brought up to date by reading it.
    QStringList rows;
    for (int i = 0; i < 30; ++i)
        rows.append(QStringLiteral("Row %1").arg(i));
    QListWidget *list = makeEditor(rows)->listWidget();
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QApplication::processEvents();
    QScrollBar *bar = list->verticalScrollBar();
    const int oneLine = bar->maximum();
    QVERIFY(oneLine > 0);

    m_editor->setItemData(Qt::EditRole, QStringLiteral("A longer single line"));
    QCOMPARE(bar->maximum(), oneLine);
    m_editor->setItemData(Qt::EditRole, QStringLiteral("Two\nlines"));
    const int twoLines = bar->maximum();
    QVERIFY(twoLines > oneLine);
    m_editor->setItemData(Qt::EditRole, QStringLiteral("Other\ntext"));
    QCOMPARE(bar->maximum(), twoLines);
    m_editor->setItemData(Qt::EditRole, QStringLiteral("One"));
    QCOMPARE(bar->maximum(), oneLine);
    // A font always lays out.
    QFont big = list->font();
    big.setPointSize(list->font().pointSize() * 3);
    m_editor->setItemData(Qt::FontRole, big);
    QVERIFY(bar->maximum() > oneLine);
}

void TestItemListEditor::rendersIconsFromTheCache()
{
    ItemListEditor *editor = makeEditor({});
    QListWidget *list = editor->listWidget();
    for (const char *name : {"Apple", "Banana", "Cherry"})
        list->addItem(makeItem(QLatin1String(name)));
    list->setCurrentRow(0);
    itemProperty("icon")->setValue(CcTest::iconValue(m_pictures.red));
    itemProperty("toolTip")->setValue(CcTest::stringValue(QStringLiteral("A fruit")));

    // An item whose icon is known but not drawn yet gets it when the form's cache reloads,
    // and the pane shows its icon properties anew.
    QListWidgetItem *banana = list->item(1);
    banana->setData(Qt::DecorationPropertyRole, CcTest::iconValue(m_pictures.blue));
    banana->setData(Qt::DecorationRole, QVariant());
    bool iconRepainted = false;
    connect(editor->propertyManager(), &QtAbstractPropertyManager::propertyChanged, editor,
            [&](QtProperty *changed) { iconRepainted |= changed == itemProperty("icon"); });
    emit editor->iconCache()->reloaded();
    QVERIFY(iconRepainted);
    const QIcon shown = qvariant_cast<QIcon>(banana->data(Qt::DecorationRole));
    QCOMPARE(shown.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue));

    QApplication::processEvents();
    const QImage image = editor->grab().toImage();
    QVERIFY(image.save(QStringLiteral(CC_SCREENSHOT_DIR "/itemlisteditor.png")));
    // The icon is drawn in the list: a red pixel (tinted, as the row is selected) lies at
    // the start of the first row.
    const QRect row = list->visualItemRect(list->item(0));
    const QPoint origin = list->viewport()->mapTo(editor, row.topLeft());
    bool red = false;
    for (int x = origin.x(); x < origin.x() + 24 && !red; ++x) {
        for (int y = origin.y(); y < origin.y() + row.height() && !red; ++y) {
            const QColor c = image.pixelColor(x, y);
            red = c.red() > 120 && c.red() > 2 * c.green() && c.red() > 2 * c.blue();
        }
    }
    QVERIFY(red);
}

QTEST_MAIN(TestItemListEditor)
#include "tst_itemlisteditor.moc"
