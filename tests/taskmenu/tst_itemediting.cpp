#include "designertestcore.h"
#include "editingfamilies.h"
#include "modalanswer.h"
#include "testpictures.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QAction>
#include <QApplication>
#include <QDesignerContainerExtension>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QDir>
#include <QExtensionFactory>
#include <QFileInfo>
#include <QListWidget>
#include <QMetaMethod>
#include <QTableWidget>
#include <QUndoStack>
#include <QtTest>

using namespace CcTest;
using Driver = ItemDialogDriver;

class TestItemEditing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init()
    {
        CcTest::settle();
        m_dialogs = dialogCount();
    }
    void cleanup();

    void editingThroughTheContextMenu_data();
    void editingThroughTheContextMenu();
    void pageGroupKeepsItsPageObjects();
    void entriesAndFactories();

private:
    CcTest::TestPictures m_pictures;
    int m_dialogs = 0;
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
    QCOMPARE(dialogCount(), m_dialogs);
}

void TestItemEditing::editingThroughTheContextMenu_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < familyCount(); ++i)
        QTest::newRow(family(i).className) << i;
}

void TestItemEditing::editingThroughTheContextMenu()
{
    QFETCH(int, index);
    const Family &family = CcTest::family(index);
    QDesignerFormWindowInterface *form =
            CcTest::createFormWindow(familyForm(family, family.entriesXml));
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    QWidget *widget = editedWidget(form);
    QVERIFY(widget);
    QCOMPARE(family.shown(widget), family.opened);
    // The page group is left on its last page by every change; that is all Undo may leave
    // different.
    const bool pageGroup = isPageGroup(family);
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
    // Designer writes icon paths relative to where the form would be saved.
    const QFileInfo icon(testIcon);
    const QString iconPath = icon.dir().dirName() + QLatin1Char('/') + icon.fileName();
    for (QString value : family.saved)
        QVERIFY2(after.contains(value.replace(QLatin1String("@icon"), iconPath)),
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
    QCOMPARE(family.shown(group), QStringList({"A", "C", "New1", "New2", "B"}));
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
    for (int i = 0; i < familyCount(); ++i) {
        const Family &family = CcTest::family(i);
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
