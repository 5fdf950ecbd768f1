#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"
#include "testpictures.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
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
#include <QUndoStack>
#include <QtTest>

namespace {

using Shown = QStringList (*)(QWidget *);

QStringList comboTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

template<class Options>
QStringList buttonTexts(QWidget *widget)
{
    auto *options = qobject_cast<Options *>(widget);
    QStringList texts;
    for (int i = 0; options && options->button(i); ++i)
        texts.append(options->button(i)->text());
    return texts;
}

// What each widget shows of its entries.
QStringList shownByComboBox(QWidget *w) { return comboTexts(qobject_cast<QComboBox *>(w)); }
template<class Widget>
QStringList shownByInnerCombo(QWidget *w)
{
    return comboTexts(qobject_cast<Widget *>(w)->comboBox());
}
QStringList shownByPageGroup(QWidget *w)
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(w);
    QStringList titles;
    for (int i = 0; i < group->count(); ++i)
        titles.append(group->box(i)->title());
    return titles;
}

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
    // The three entries A, B and C as the form file holds them.
    QString entriesXml;
};

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

// clang-format off
const Family families[] = {
    {"VoCc::ComboBox", "ComboBoxTaskMenu", "ComboBoxFactory", "Edit Items", "Edit ComboBox",
     {"text", "icon", "action"}, "", shownByComboBox, entries(textProperty("action", "actB", true))},
    {"VoCc::CheckableTextComboBox", "CheckComboTaskMenu", "CheckComboFactory", "Edit Items", "Edit Checkable ComboBox",
     {"text", "toolTip"}, "", shownByInnerCombo<VoCc::CheckableTextComboBox>, entries(textProperty("toolTip", "tipB"))},
    {"VoCc::OptionComboBox", "OptionComboTaskMenu", "OptionComboFactory", "Edit Items", "Edit Option ComboBox",
     {"text", "icon", "data"}, "", shownByInnerCombo<VoCc::OptionComboBox>, entries(textProperty("data", "dB", true))},
    {"VoCc::OptionButtons", "OptionButtonsTaskMenu", "OptionButtonsFactory", "Edit Buttons", "Edit OptionButtons",
     {"text", "icon", "tooltip", "data"}, "Change OptionButtons Contents", buttonTexts<VoCc::OptionButtons>, entries(optionExtras)},
    {"VoCc::OptionRadios", "OptionRadiosTaskMenu", "OptionRadiosFactory", "Edit Buttons", "Edit OptionRadios",
     {"text", "icon", "tooltip", "data"}, "Change OptionRadios Contents", buttonTexts<VoCc::OptionRadios>, entries(optionExtras)},
    {"VoCc::DrawbackBoxGroup", "DrawbackBoxTaskMenu", "DrawbackBoxFactory", "Edit DrawbackBox", "Edit DrawbackBoxGroup",
     {"text", "tooltip", "data"}, "Change OptionRadios Contents", shownByPageGroup, page("pageA", "A") + page("pageB", "B") + page("pageC", "C")},
};
// clang-format on

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
bool edit(QWidget *widget, const std::function<void(CcTest::ItemDialogDriver &)> &act,
          bool accept = true)
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

// The page group is left on its last page by every change; that is all Undo may leave
// different.
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
    QVERIFY(!m_pictures.red.isEmpty());
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
    const bool pageGroup = family.shown == shownByPageGroup;
    QDesignerFormWindowInterface *form =
            CcTest::createFormWindow(familyForm(family, family.entriesXml));
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    QWidget *widget = editedWidget(form);
    QVERIFY(widget);
    QUndoStack *history = form->commandHistory();
    form->setDirty(false);
    const QString before = form->contents();

    // The editor opens on the widget's entries; Cancel after a change and OK without one
    // leave the form alone.
    QVERIFY(edit(
            widget,
            [&](CcTest::ItemDialogDriver &dialog) {
                QCOMPARE(dialog.rows(), QStringList({"A", "B", "C"}));
                QCOMPARE(dialog.list()->window()->windowTitle(), QLatin1String(family.title));
                QCOMPARE(dialog.propertyNames(), family.properties);
                dialog.addRow(QStringLiteral("Cancelled"));
            },
            false));
    QVERIFY(edit(widget, [](CcTest::ItemDialogDriver &dialog) {
        // Changed and changed back: equal values, though not the same ones.
        dialog.select(1);
        dialog.typeProperty(QStringLiteral("text"), QStringLiteral("Bx"));
        dialog.typeProperty(QStringLiteral("text"), QStringLiteral("B"));
    }));
    QCOMPARE(history->count(), 0);
    QVERIFY(!form->isDirty());

    // A real edit: a new entry with every value the editor offers, a deletion, a move.
    const QString red = m_pictures.red;
    QVERIFY(edit(widget, [&](CcTest::ItemDialogDriver &dialog) {
        dialog.select(1);
        dialog.addRow(QStringLiteral("Addd"));
        dialog.renameCurrent(QStringLiteral("Added"));
        for (const QString &property : family.properties) {
            if (property == QLatin1String("icon"))
                dialog.chooseIconFile(property, red);
            else if (property != QLatin1String("text"))
                dialog.typeProperty(property, property + QStringLiteral("Added"));
        }
        dialog.select(0);
        dialog.click("deleteListItemButton");
        dialog.select(1);
        dialog.click("moveListItemUpButton");
        QCOMPARE(dialog.rows(), QStringList({"Added", "B", "C"}));
    }));
    QCOMPARE(history->count(), 1);
    QCOMPARE(history->text(0), QLatin1String(family.command));
    QVERIFY(form->isDirty());
    const QStringList edited = {"Added", "B", "C"};
    QCOMPARE(family.shown(widget), edited);

    // The saved form holds the entries; another form window loads and saves it unchanged,
    // and so does the run-time loader.
    const QString after = form->contents();
    QVERIFY2(after.contains(QLatin1String(">Added<")), qPrintable(after));
    // The page group applies titles only.
    for (const QString &property : family.properties.mid(1)) {
        const QString value =
                property == QLatin1String("icon") ? red : property + QStringLiteral("Added");
        QVERIFY2(after.contains(value) != pageGroup, qPrintable(property));
    }
    QDesignerFormWindowInterface *reloaded = CcTest::createFormWindow(after);
    QCOMPARE(reloaded->contents(), after);
    CcTest::closeFormWindow(reloaded);
    QCOMPARE(shownAtRunTime(after, family.shown), edited);

    // Undo gives back the form as it was, Redo the edited one.
    history->undo();
    QCOMPARE(family.shown(widget), QStringList({"A", "B", "C"}));
    if (pageGroup)
        QCOMPARE(withoutCurrentPage(form->contents()), withoutCurrentPage(before));
    else
        QCOMPARE(form->contents(), before);
    history->redo();
    QCOMPARE(family.shown(widget), edited);
    QCOMPARE(form->contents(), after);

    // Deleting every entry leaves the widget as a new one is; its editor then starts empty.
    QVERIFY(edit(widget, [](CcTest::ItemDialogDriver &dialog) {
        while (dialog.list()->count())
            dialog.click("deleteListItemButton");
    }));
    QCOMPARE(family.shown(widget), QStringList());
    QDesignerFormWindowInterface *empty = CcTest::createFormWindow(familyForm(family, QString()));
    const QString emptyUi = withoutCurrentPage(empty->contents());
    CcTest::closeFormWindow(empty);
    QCOMPARE(withoutCurrentPage(form->contents()), emptyUi);
    QVERIFY(edit(widget, [](CcTest::ItemDialogDriver &dialog) {
        QCOMPARE(dialog.rows(), QStringList());
        QVERIFY(dialog.propertyNames().isEmpty());
        dialog.addRow(QStringLiteral("Only"));
    }));
    QCOMPARE(family.shown(widget), QStringList({"Only"}));
    history->undo();
    history->undo();
    QCOMPARE(withoutCurrentPage(form->contents()), withoutCurrentPage(after));
}

void TestItemEditing::pageGroupKeepsItsPageObjects()
{
    const Family &family = families[std::size(families) - 1];
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
    QVERIFY(edit(group, [](CcTest::ItemDialogDriver &dialog) {
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
    QVERIFY(edit(group, [](CcTest::ItemDialogDriver &dialog) {
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
        QVERIFY(!edit(widget.data(), [](CcTest::ItemDialogDriver &) {}));
    }
}

QTEST_MAIN(TestItemEditing)
#include "tst_itemediting.moc"
