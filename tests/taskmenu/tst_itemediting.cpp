#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"
#include "testpictures.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QAbstractButton>
#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QDesignerContainerExtension>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QDialog>
#include <QExtensionFactory>
#include <QExtensionManager>
#include <QListWidget>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QUndoStack>
#include <QtTest>

namespace {

using Driver = CcTest::ItemDialogDriver;
using Shown = QStringList (*)(QWidget *);

QStringList comboTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

// What each widget shows of its entries.
QStringList shownByComboBox(QWidget *w) { return comboTexts(qobject_cast<QComboBox *>(w)); }
template<class Widget>
QStringList shownByInnerCombo(QWidget *w)
{
    return comboTexts(qobject_cast<Widget *>(w)->comboBox());
}
template<class Widget>
QStringList shownByButtons(QWidget *w)
{
    auto *widget = qobject_cast<Widget *>(w);
    QStringList texts;
    for (int i = 0; widget && widget->button(i); ++i)
        texts.append(widget->button(i)->text());
    return texts;
}
// A matrix: its dimensions, then its buttons' texts row by row.
template<class Matrix>
QStringList shownByMatrix(QWidget *w)
{
    auto *matrix = qobject_cast<Matrix *>(w);
    return QStringList(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()))
            + shownByButtons<Matrix>(w);
}
QStringList shownByPageGroup(QWidget *w)
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(w);
    QStringList titles;
    for (int i = 0; i < group->count(); ++i)
        titles.append(group->box(i)->title());
    return titles;
}

QString item(const QString &properties)
{
    return QStringLiteral("<item>") + properties + QStringLiteral("</item>");
}
QString textProperty(const char *name, const char *value, bool notr = false)
{
    return QStringLiteral("<property name=\"%1\"><string%2>%3</string></property>")
            .arg(QLatin1String(name), notr ? QStringLiteral(" notr=\"true\"") : QString(),
                 QLatin1String(value));
}
QString numberProperty(const char *name, int value)
{
    return QStringLiteral("<property name=\"%1\"><number>%2</number></property>")
            .arg(QLatin1String(name))
            .arg(value);
}
QString page(const char *name, const char *title)
{
    return QStringLiteral("<widget class=\"QWidget\" name=\"%1\">%2</widget>")
            .arg(QLatin1String(name), textProperty("windowTitle", title));
}

// Entries A, B and C; B carries the extra values its widget keeps.
QString entries(const QString &extraOfB)
{
    return item(textProperty("text", "A")) + item(textProperty("text", "B") + extraOfB)
            + item(textProperty("text", "C"));
}
const QString optionExtras = textProperty("toolTip", "tipB") + textProperty("data", "dB", true);

// A 2 x 3 matrix a..e and an empty cell; a has an icon, a tool tip and an action.
const QString firstCellExtras =
        textProperty("icon",
                     ":/qt-project.org/styles/commonstyle/images/standardbutton-open-16.png", true)
        + textProperty("toolTip", "tipa") + textProperty("action", "acta", true);
QString matrixEntries()
{
    QString xml = numberProperty("row", 2) + numberProperty("column", 3);
    for (const char *text : {"a", "b", "c", "d", "e"})
        xml += item(textProperty("text", text) + (*text == 'a' ? firstCellExtras : QString()));
    return xml;
}
QString popEntries()
{
    return numberProperty("row", 2) + numberProperty("column", 3)
            + QStringLiteral("<property name=\"textList\"><stringlist><string>a</string>"
                             "<string>b</string><string>c</string><string>d</string>"
                             "<string>e</string><string></string></stringlist></property>")
            + item(firstCellExtras);
}

// A picture on disk for the icons a user picks.
QString testIcon;

// The scripts a user follows in an editor: what it shows when it opens, a change made and
// undone there, and a real edit.
void listOpened(Driver &dialog) { QCOMPARE(dialog.rows(), QStringList({"A", "B", "C"})); }
void listCancelled(Driver &dialog) { dialog.addRow(QStringLiteral("Cancelled")); }
void listUnchanged(Driver &dialog)
{
    dialog.select(1);
    dialog.typeProperty(QStringLiteral("text"), QStringLiteral("Bx"));
    dialog.typeProperty(QStringLiteral("text"), QStringLiteral("B"));
}
// A new entry with every value the editor offers, a deletion, a move.
void listEdit(Driver &dialog)
{
    dialog.select(1);
    dialog.addRow(QStringLiteral("Addd"));
    dialog.renameCurrent(QStringLiteral("Added"));
    for (const QString &property : dialog.propertyNames()) {
        if (property == QLatin1String("icon"))
            dialog.chooseIconFile(property, testIcon);
        else if (property != QLatin1String("text"))
            dialog.typeProperty(property, property + QStringLiteral("Added"));
    }
    dialog.select(0);
    dialog.click("deleteListItemButton");
    dialog.select(1);
    dialog.click("moveListItemUpButton");
    QCOMPARE(dialog.rows(), QStringList({"Added", "B", "C"}));
}

void matrixOpened(Driver &dialog)
{
    // Both matrix dialogs are one form: its name, one tab, spin boxes from 1 to 99.
    QWidget *window = dialog.table()->window();
    QCOMPARE(window->objectName(), QStringLiteral("MatrixPushButtonsEditor"));
    auto *tabs = window->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    QVERIFY(tabs && tabs->count() == 1 && tabs->tabText(0) == QLatin1String("Items"));
    auto *rows = window->findChild<QSpinBox *>(QStringLiteral("rowCounts"));
    auto *columns = window->findChild<QSpinBox *>(QStringLiteral("colCounts"));
    QVERIFY(rows && columns);
    QCOMPARE(rows->minimum(), 1);
    QCOMPARE(columns->maximum(), 99);
    QCOMPARE(dialog.rows(), QStringList({"a", "b", "c", "d", "e", ""}));
    QCOMPARE(rows->value(), 2);
    QCOMPARE(columns->value(), 3);
    QCOMPARE(dialog.table()->currentRow(), 0);
    QCOMPARE(dialog.table()->currentColumn(), 0);
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QStringLiteral("a"));
    QCOMPARE(dialog.propertyValue(QStringLiteral("toolTip")), QStringLiteral("tipa"));
    QCOMPARE(dialog.propertyValue(QStringLiteral("action")), QStringLiteral("acta"));
}
void matrixCancelled(Driver &dialog) { dialog.stepTo("rowCounts", 3); }
void matrixUnchanged(Driver &dialog)
{
    dialog.selectCell(0, 1);
    dialog.typeProperty(QStringLiteral("text"), QStringLiteral("bx"));
    dialog.typeProperty(QStringLiteral("text"), QStringLiteral("b"));
}
// A row more and a column less, a cell typed in place, values on a cell that had no item.
void matrixEdit(Driver &dialog)
{
    // No cell is current after a change of size; the pane shows defaults.
    dialog.stepTo("rowCounts", 3);
    QCOMPARE(dialog.table()->currentRow(), -1);
    dialog.stepTo("colCounts", 2);
    QCOMPARE(dialog.table()->currentRow(), -1);
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QString());
    dialog.selectCell(2, 0);
    dialog.renameCurrent(QStringLiteral("g"));
    QCOMPARE(dialog.propertyValue(QStringLiteral("text")), QStringLiteral("g"));
    dialog.typeProperty(QStringLiteral("toolTip"), QStringLiteral("tipg"));
    dialog.selectCell(2, 1);
    dialog.typeProperty(QStringLiteral("action"), QStringLiteral("acth"));
    QCOMPARE(dialog.rows(), QStringList({"a", "b", "d", "e", "g", ""}));
}

using Script = void (*)(Driver &);

struct Family
{
    const char *className;
    const char *taskMenu;
    const char *factory;
    const char *entry;
    const char *title;
    QStringList properties;
    const char *command;
    Shown shown;
    QString entriesXml;
    bool list;
    Script whenOpened, changedAndCancelled, changedBack, edit;
    // Shown before and after the edit, and after undoing only the edit's change command.
    QStringList opened, edited, changeUndone;
    // Values the edit set that the saved form holds ("@icon" stands for the test icon), and
    // those it does not.
    QStringList saved, notSaved;
    // Commands the edit pushes: the change, and for the button matrices their two counts.
    int pushes;
};

const QStringList abc = {"A", "B", "C"};
const QStringList addedBC = {"Added", "B", "C"};
const QStringList grid = {"2x3", "a", "b", "c", "d", "e", ""};
const QStringList editedGrid = {"3x2", "a", "b", "d", "e", "g", ""};
const QStringList gridIn3x2 = {"3x2", "a", "b", "c", "d", "e", ""};
const QStringList matrixSaved = {">g<", "tipg", "acth", ">b<", "tipa"};

// clang-format off
const Family families[] = {
    {"VoCc::ComboBox", "ComboBoxTaskMenu", "ComboBoxFactory", "Edit Items", "Edit ComboBox", {"text", "icon", "action"}, "",
     shownByComboBox, entries(textProperty("action", "actB", true)), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {"@icon", "actionAdded", "actB"}, {}, 1},
    {"VoCc::CheckableTextComboBox", "CheckComboTaskMenu", "CheckComboFactory", "Edit Items", "Edit Checkable ComboBox", {"text", "toolTip"}, "",
     shownByInnerCombo<VoCc::CheckableTextComboBox>, entries(textProperty("toolTip", "tipB")), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {"toolTipAdded", "tipB"}, {}, 1},
    {"VoCc::OptionComboBox", "OptionComboTaskMenu", "OptionComboFactory", "Edit Items", "Edit Option ComboBox", {"text", "icon", "data"}, "",
     shownByInnerCombo<VoCc::OptionComboBox>, entries(textProperty("data", "dB", true)), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {"@icon", "dataAdded", "dB"}, {}, 1},
    {"VoCc::OptionButtons", "OptionButtonsTaskMenu", "OptionButtonsFactory", "Edit Buttons", "Edit OptionButtons", {"text", "icon", "tooltip", "data"}, "Change OptionButtons Contents",
     shownByButtons<VoCc::OptionButtons>, entries(optionExtras), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {"@icon", "tooltipAdded", "dataAdded", "tipB", "dB"}, {}, 1},
    {"VoCc::OptionRadios", "OptionRadiosTaskMenu", "OptionRadiosFactory", "Edit Buttons", "Edit OptionRadios", {"text", "icon", "tooltip", "data"}, "Change OptionRadios Contents",
     shownByButtons<VoCc::OptionRadios>, entries(optionExtras), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {"@icon", "tooltipAdded", "dataAdded", "tipB", "dB"}, {}, 1},
    {"VoCc::DrawbackBoxGroup", "DrawbackBoxTaskMenu", "DrawbackBoxFactory", "Edit DrawbackBox", "Edit DrawbackBoxGroup", {"text", "tooltip", "data"}, "Change OptionRadios Contents",
     shownByPageGroup, page("pageA", "A") + page("pageB", "B") + page("pageC", "C"), true, listOpened, listCancelled, listUnchanged, listEdit, abc, addedBC, abc, {}, {"tooltipAdded", "dataAdded"}, 1},
    {"VoCc::MatrixPushButtons", "MatrixPushButtonsTaskMenu", "MatrixPushButtonsFactory", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents",
     shownByMatrix<VoCc::AbstractMatrixOptions>, matrixEntries(), false, matrixOpened, matrixCancelled, matrixUnchanged, matrixEdit, grid, editedGrid, gridIn3x2, matrixSaved, {}, 3},
    {"VoCc::MatrixRadioButtons", "MatrixPushButtonsTaskMenu", "MatrixRadioButtonsFactory", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents",
     shownByMatrix<VoCc::AbstractMatrixOptions>, matrixEntries(), false, matrixOpened, matrixCancelled, matrixUnchanged, matrixEdit, grid, editedGrid, gridIn3x2, matrixSaved, {}, 3},
    {"VoCc::MatrixCheckBoxes", "MatrixPushButtonsTaskMenu", "MatrixCheckBoxesFactory", "Edit Buttons", "Edit Matrix buttons", {"text", "icon", "toolTip", "action"}, "Change MatrixButtons Contents",
     shownByMatrix<VoCc::AbstractMatrixOptions>, matrixEntries(), false, matrixOpened, matrixCancelled, matrixUnchanged, matrixEdit, grid, editedGrid, gridIn3x2, matrixSaved, {}, 3},
    {"VoCc::MatrixPopButtons", "MatrixPopButtonsTaskMenu", "MatrixPopButtonsFactory", "Edit Buttons", "Edit Matrix PopButtons", {"text", "icon", "toolTip", "action"}, "Change MatrixPopButtons Contents",
     shownByMatrix<VoCc::MatrixPopButtons>, popEntries(), false, matrixOpened, matrixCancelled, matrixUnchanged, matrixEdit, grid, editedGrid, grid, matrixSaved, {}, 1},
};
// clang-format on

const Family &pageGroupFamily() { return families[5]; }

const QString pageGroupDeclaration = QStringLiteral(
        "<customwidget><class>VoCc::DrawbackBoxGroup</class><extends>QWidget</extends>"
        "<addpagemethod>addPage</addpagemethod></customwidget>");

// A form holding one widget of the family, named "edited", with the given entries.
QString familyForm(const Family &family, const QString &entriesXml)
{
    return CcTest::formXml(QStringLiteral("<widget class=\"%1\" name=\"edited\">%2</widget>\n")
                                   .arg(QLatin1String(family.className), entriesXml),
                           pageGroupDeclaration);
}

QWidget *editedWidget(QDesignerFormWindowInterface *form)
{
    return form->mainContainer()->findChild<QWidget *>(QStringLiteral("edited"));
}

QDesignerTaskMenuExtension *taskMenuOf(QObject *widget)
{
    return qt_extension<QDesignerTaskMenuExtension *>(CcTest::designerCore()->extensionManager(),
                                                      widget);
}

// Chooses the widget's entry, works the editor with act and presses OK or Cancel. Tells
// whether an editor came up.
bool edit(QWidget *widget, const std::function<void(Driver &)> &act, bool accept = true)
{
    QDesignerTaskMenuExtension *menu = taskMenuOf(widget);
    if (!menu)
        return false;
    QAction *entry = menu->preferredEditAction();
    return CcTest::answerModal<QDialog>([entry] { entry->trigger(); },
                                        [act](QDialog *dialog) {
                                            CcTest::ItemDialogDriver driver(dialog);
                                            if (driver.isValid())
                                                act(driver);
                                        },
                                        accept);
}

// The form with the current index of its page group blotted out.
QString withoutCurrentPage(QString ui)
{
    static const QRegularExpression current(
            QStringLiteral("(<property name=\"currentIndex\">\\s*<number>)\\d+(</number>)"));
    return ui.replace(current, QStringLiteral("\\1#\\2"));
}

// The form as the run-time loader builds it, without Designer and the plug-in.
QStringList shownAtRunTime(const QString &ui, Shown shown)
{
    QBuffer buffer;
    buffer.setData(ui.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    VoCc::FormBuilder builder;
    QScopedPointer<QWidget> form(builder.load(&buffer));
    QWidget *widget = form ? form->findChild<QWidget *>(QStringLiteral("edited")) : nullptr;
    return widget ? shown(widget) : QStringList({"<not loaded>"});
}

} // namespace

class TestItemEditing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init()
    {
        CcTest::settle();
        m_topLevels = QApplication::topLevelWidgets().size();
    }
    void cleanup();

    void editingThroughTheContextMenu_data();
    void editingThroughTheContextMenu();
    void pageGroupKeepsItsPageObjects();
    void entriesAndFactories();

private:
    CcTest::TestPictures m_pictures;
    int m_topLevels = 0;
};

void TestItemEditing::initTestCase()
{
    CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
    QVERIFY(CcTest::designerCore());
    testIcon = m_pictures.red;
    QVERIFY(!testIcon.isEmpty());
}

void TestItemEditing::cleanup()
{
    // Nothing of an edit outlives it: no dialog, no editor.
    CcTest::settle();
    QCOMPARE(QApplication::topLevelWidgets().size(), m_topLevels);
}

void TestItemEditing::editingThroughTheContextMenu_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(families)); ++i)
        QTest::newRow(families[i].className) << i;
}

void TestItemEditing::editingThroughTheContextMenu()
{
    QFETCH(int, index);
    const Family &family = families[index];
    QDesignerFormWindowInterface *form =
            CcTest::createFormWindow(familyForm(family, family.entriesXml));
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    QWidget *widget = editedWidget(form);
    QVERIFY(widget);
    QCOMPARE(family.shown(widget), family.opened);
    // The page group is left on its last page by every change; that is all Undo may leave
    // different.
    const bool pageGroup = family.shown == shownByPageGroup;
    auto comparable = [pageGroup](const QString &ui) {
        return pageGroup ? withoutCurrentPage(ui) : ui;
    };
    QUndoStack *history = form->commandHistory();
    form->setDirty(false);
    const QString before = form->contents();

    // The editor opens on the widget's entries; Cancel after a change and OK without one
    // leave the form alone.
    QVERIFY(edit(
            widget,
            [&](Driver &dialog) {
                QCOMPARE(dialog.table() ? dialog.table()->window()->windowTitle()
                                        : dialog.list()->window()->windowTitle(),
                         QLatin1String(family.title));
                QCOMPARE(dialog.propertyNames(), family.properties);
                family.whenOpened(dialog);
                family.changedAndCancelled(dialog);
            },
            false));
    QVERIFY(edit(widget, family.changedBack));
    QCOMPARE(history->count(), 0);
    QVERIFY(!form->isDirty());

    QVERIFY(edit(widget, family.edit));
    QCOMPARE(history->count(), family.pushes);
    QCOMPARE(history->text(0), QLatin1String(family.command));
    QVERIFY(form->isDirty());
    QCOMPARE(family.shown(widget), family.edited);

    // The saved form holds the entries; another form window loads and saves it unchanged,
    // and the run-time loader shows the same.
    const QString after = form->contents();
    for (QString value : family.saved)
        QVERIFY2(after.contains(value.replace(QLatin1String("@icon"), testIcon)),
                 qPrintable(value));
    for (const QString &value : family.notSaved)
        QVERIFY2(!after.contains(value), qPrintable(value));
    QDesignerFormWindowInterface *reloaded = CcTest::createFormWindow(after);
    QCOMPARE(reloaded->contents(), after);
    CcTest::closeFormWindow(reloaded);
    QCOMPARE(shownAtRunTime(after, family.shown), family.edited);

    // Undoing what the edit pushed gives back the form as it was, to the byte; Redo the
    // edited one.
    for (int i = 0; i < family.pushes; ++i)
        history->undo();
    QCOMPARE(family.shown(widget), family.opened);
    QCOMPARE(comparable(form->contents()), comparable(before));
    for (int i = 0; i < family.pushes; ++i)
        history->redo();
    QCOMPARE(family.shown(widget), family.edited);
    QCOMPARE(form->contents(), after);
    // The change command alone: a button matrix keeps its new counts.
    auto *change = const_cast<QUndoCommand *>(history->command(0));
    change->undo();
    QCOMPARE(family.shown(widget), family.changeUndone);
    change->redo();
    QCOMPARE(form->contents(), after);
    if (!family.list)
        return;

    // Deleting every entry leaves the widget as a new one is; its editor then starts empty.
    QVERIFY(edit(widget, [](Driver &dialog) {
        while (dialog.list()->count())
            dialog.click("deleteListItemButton");
    }));
    QCOMPARE(family.shown(widget), QStringList());
    QDesignerFormWindowInterface *empty = CcTest::createFormWindow(familyForm(family, QString()));
    const QString emptyUi = comparable(empty->contents());
    CcTest::closeFormWindow(empty);
    QCOMPARE(comparable(form->contents()), emptyUi);
    QVERIFY(edit(widget, [](Driver &dialog) {
        QCOMPARE(dialog.rows(), QStringList());
        QVERIFY(dialog.propertyNames().isEmpty());
        dialog.addRow(QStringLiteral("Only"));
    }));
    QCOMPARE(family.shown(widget), QStringList({"Only"}));
    history->undo();
    history->undo();
    QCOMPARE(comparable(form->contents()), comparable(after));
}

void TestItemEditing::pageGroupKeepsItsPageObjects()
{
    const Family &family = pageGroupFamily();
    QDesignerFormWindowInterface *form =
            CcTest::createFormWindow(familyForm(family, family.entriesXml));
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(editedWidget(form));
    QVERIFY(group);
    auto pages = [group] {
        QWidgetList list;
        for (int i = 0; i < group->count(); ++i)
            list.append(group->widget(i));
        return list;
    };
    const QWidgetList original = pages();
    const int boxes = group->findChildren<VoCc::DrawbackBox *>().size();

    // Up then down, and an insert deleted again, come back to the pages as they were: nothing
    // is pushed and no page is made.
    QVERIFY(edit(group, [](Driver &dialog) {
        dialog.select(1);
        dialog.click("moveListItemUpButton");
        dialog.click("moveListItemDownButton");
        dialog.addRow(QStringLiteral("Gone"));
        dialog.click("deleteListItemButton");
    }));
    QCOMPARE(form->commandHistory()->count(), 0);
    QCOMPARE(group->findChildren<VoCc::DrawbackBox *>().size(), boxes);

    // A move keeps the page objects; new rows become new pages with names of their own, and
    // Undo and Redo move the same objects back and forth.
    QVERIFY(edit(group, [](Driver &dialog) {
        dialog.select(2);
        dialog.click("moveListItemUpButton");
        dialog.addRow(QStringLiteral("New1"));
        dialog.addRow(QStringLiteral("New2"));
    }));
    const QWidgetList edited = pages();
    QCOMPARE(edited.size(), 5);
    QCOMPARE(edited.mid(0, 2), QWidgetList({original.at(0), original.at(2)}));
    QCOMPARE(edited.at(4), original.at(1));
    QCOMPARE(shownByPageGroup(group), QStringList({"A", "C", "New1", "New2", "B"}));
    QVERIFY(!original.contains(edited.at(2)) && !original.contains(edited.at(3)));
    QVERIFY(edited.at(2)->objectName().startsWith(QLatin1String("page")));
    QVERIFY(edited.at(2)->objectName() != edited.at(3)->objectName());
    QCOMPARE(group->currentIndex(), 4);
    form->commandHistory()->undo();
    QCOMPARE(pages(), original);
    QCOMPARE(group->currentIndex(), 2);
    form->commandHistory()->redo();
    QCOMPARE(pages(), edited);
}

void TestItemEditing::entriesAndFactories()
{
    QWidget standalone;
    for (const Family &family : families) {
        QScopedPointer<QWidget> widget(VoCc::FormBuilder::createCommonControl(
                QLatin1String(family.className), &standalone));
        QVERIFY(widget);
        QDesignerTaskMenuExtension *menu = taskMenuOf(widget.data());
        QVERIFY2(menu, family.className);
        auto *menuObject = dynamic_cast<QObject *>(menu);
        // Its own class, answering to the interface by name and by identifier, with one
        // entry and one slot.
        const QMetaObject *meta = menuObject->metaObject();
        QCOMPARE(meta->className(), family.taskMenu);
        QCOMPARE(menuObject->qt_metacast("QDesignerTaskMenuExtension"), static_cast<void *>(menu));
        QCOMPARE(menuObject->qt_metacast("org.qt-project.Qt.Designer.TaskMenu"),
                 static_cast<void *>(menu));
        QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
        QCOMPARE(meta->method(meta->methodOffset()).methodSignature(), QByteArray("editItems()"));
        QCOMPARE(menu->taskActions(), QList<QAction *>({menu->preferredEditAction()}));
        QCOMPARE(menu->preferredEditAction()->text(), QLatin1String(family.entry));

        auto *factory = qobject_cast<QExtensionFactory *>(menuObject->parent());
        QVERIFY(factory);
        QCOMPARE(factory->metaObject()->className(), family.factory);
        QVERIFY(!factory->extension(widget.data(), QString(Q_TYPEID(QDesignerContainerExtension))));
        QVERIFY(!factory->extension(&standalone, QString(Q_TYPEID(QDesignerTaskMenuExtension))));

        // A widget on no form window: the entry opens nothing.
        QVERIFY(!edit(widget.data(), [](Driver &) {}));
    }
}

QTEST_MAIN(TestItemEditing)
#include "tst_itemediting.moc"
