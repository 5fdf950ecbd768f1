// Editing a form as a form author does, in a real Designer core that loads the built module:
// the page group's editor makes new pages for new rows whatever was deleted around them, and a
// click on a page header of a page group on the form switches to that page. That an item edit
// is one step of the form's undo history the item editing tests show for every family.

#include "itemdialogdriver.h"
#include "pagegroup.h"
#include "uixml.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QtDesigner>

using namespace CcTest;

namespace {

// Pages A, B and C, each holding a label of its own.
QString pageGroupForm()
{
    QString pages;
    for (const char *title : {"A", "B", "C"})
        pages +=
                widgetXml("QWidget", (QByteArray("page") + title).constData(),
                          propertyXml("windowTitle", title)
                                  + widgetXml("QLabel", (QByteArray("label") + title).constData()));
    return formXml(widgetXml("VoCc::DrawbackBoxGroup", "group", pages), pageGroupDeclaration());
}

QStringList titlesOf(const VoCc::DrawbackBoxGroup *group)
{
    QStringList titles;
    for (int i = 0; i < group->count(); ++i)
        titles << group->pageTitle(i);
    return titles;
}

// A page's header on the form: the title bar of its box.
QWidget *headerOf(VoCc::DrawbackBoxGroup *group, int index)
{
    return group->box(index)->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

// Orders of deletes, inserts and moves in the page group's editor on pages A, B and C, as the
// driver plays them: the titles after the edit, the original pages the group keeps in its new
// order (-1: a new page) and the steps added to the undo history.
struct PageEdit
{
    const char *name, *script;
    QStringList titles;
    QVector<int> kept;
    int pushes;
};
const PageEdit pageEdits[] = {
        {"delete last, New", "s2 d s1 nN", {"A", "B", "N"}, {0, 1, -1}, 1},
        {"delete middle, New", "s1 d s1 nN", {"A", "C", "N"}, {0, 2, -1}, 1},
        {"New, delete, New", "s2 nN1 s2 d s2 nN2", {"A", "B", "N1", "N2"}, {0, 1, -1, -1}, 1},
        {"delete last two, New, New", "s2 d s1 d s0 nN1 nN2", {"A", "N1", "N2"}, {0, -1, -1}, 1},
        {"move up, New, New", "s2 u nN1 nN2", {"A", "C", "N1", "N2", "B"}, {0, 2, -1, -1, 1}, 1},
        {"moves and a New that cancel out", "s1 u D nGone d", {"A", "B", "C"}, {0, 1, 2}, 0},
};

// What a user does with the mouse on a page group with pages A, B and C, page A current: a
// press on a page's header (-1: on page A's label) and a release on a header (-2: outside the
// widget pressed), and what the form shows then: the current page, the page selected (-1: none)
// and the form's current widget, the one Designer's property editor shows (null: Designer's own
// business).
struct Clicks
{
    const char *name;
    int pressed, released;
    Qt::MouseButton button;
    int current, selected;
    const char *currentWidget;
};
const int outside = -2;
const Clicks clicks[] = {
        {"header of the last page", 2, 2, Qt::LeftButton, 2, 2, "pageC"},
        {"header of the middle page", 1, 1, Qt::LeftButton, 1, 1, "pageB"},
        {"header of the current page", 0, 0, Qt::LeftButton, 0, -1, "group"},
        {"right button on a header", 2, 2, Qt::RightButton, 0, -1, nullptr},
        {"pressed on one header, released on another", 1, 2, Qt::LeftButton, 0, -1, "group"},
        {"released outside the header", 2, outside, Qt::LeftButton, 0, -1, "group"},
        {"the page's label", -1, -1, Qt::LeftButton, 0, -1, "labelA"},
};

} // namespace

class TestFormEditing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
    }

    void newRowsMakeNewPages_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(pageEdits)); ++i)
            QTest::newRow(pageEdits[i].name) << i;
    }

    // A new row is a new, empty page with a name of its own, never a page deleted in the same
    // edit; moved pages stay the same objects; the deleted pages leave the group and come back
    // with Undo. A change leaves the group on its last page; an edit that changes nothing
    // pushes nothing and makes no box.
    void newRowsMakeNewPages()
    {
        QFETCH(int, index);
        const auto [name, script, titles, kept, pushes] = pageEdits[index];
        QDesignerFormWindowInterface *form = createFormWindow(pageGroupForm());
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        const QWidgetList original = pagesOf(group);
        const int boxes = group->findChildren<VoCc::DrawbackBox *>().size();

        QCOMPARE(edit(group, [script = script](ItemDialogDriver &dialog) { dialog.play(script); }),
                 QString());
        QCOMPARE(titlesOf(group), titles);
        QCOMPARE(form->commandHistory()->count(), pushes);
        if (pushes)
            QCOMPARE(group->currentIndex(), titles.size() - 1);
        else
            QCOMPARE(group->findChildren<VoCc::DrawbackBox *>().size(), boxes);
        const QWidgetList edited = pagesOf(group);
        QSet<QString> names;
        for (int i = 0; i < edited.size(); ++i) {
            QWidget *page = edited.at(i);
            const QByteArray name = page->objectName().toUtf8();
            names << page->objectName();
            if (kept.at(i) >= 0) {
                QCOMPARE(page, original.at(kept.at(i)));
                continue;
            }
            QVERIFY2(!original.contains(page), name);
            QVERIFY2(page->findChildren<QWidget *>().isEmpty(), name);
            QVERIFY2(name.startsWith("page"), name);
        }
        QCOMPARE(names.size(), edited.size());
        for (int i = 0; i < original.size(); ++i) {
            if (!kept.contains(i))
                QVERIFY(!original.at(i)->isVisibleTo(form));
        }

        form->commandHistory()->undo();
        QCOMPARE(pagesOf(group), original);
        QCOMPARE(group->currentIndex(), pushes ? 2 : 0);
        QCOMPARE(titlesOf(group), QStringList({"A", "B", "C"}));
        form->commandHistory()->redo();
        QCOMPARE(pagesOf(group), edited);
    }

    void pageHeaderClicks_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(clicks)); ++i)
            QTest::newRow(clicks[i].name) << i;
    }

    // A left click on a page's header switches to the page and selects it on the form, as a
    // switch through "currentIndex" does; nothing else switches pages, and Designer handles
    // every click as before.
    void pageHeaderClicks()
    {
        QFETCH(int, index);
        QDesignerFormWindowInterface *form = createFormWindow(pageGroupForm());
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        // Pages loaded through addPage are not managed yet; Designer selects managed widgets
        // only.
        for (QWidget *page : pagesOf(group))
            form->manageWidget(page);
        group->setCurrentIndex(0);
        form->clearSelection();
        settle();

        const Clicks &click = clicks[index];
        const auto target = [group](int page) {
            return page >= 0 ? headerOf(group, page) : group->widget(0)->findChild<QWidget *>();
        };
        QTest::mousePress(target(click.pressed), click.button);
        if (click.released == outside)
            QTest::mouseRelease(target(click.pressed), click.button, {}, QPoint(-5, -5));
        else
            QTest::mouseRelease(target(click.released), click.button);
        settle();
        QCOMPARE(group->currentIndex(), click.current);
        for (int i = 0; i < group->count(); ++i)
            QCOMPARE(form->cursor()->isWidgetSelected(group->widget(i)), i == click.selected);
        // Designer saw the press too: it selected the group or what was clicked.
        if (click.currentWidget)
            QCOMPARE(form->cursor()->current()->objectName(), QLatin1String(click.currentWidget));
    }

    // Headers of pages added in Designer switch too.
    void pageHeaderClickOnNewPage()
    {
        QDesignerFormWindowInterface *form = createFormWindow(pageGroupForm());
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        auto *container = qt_extension<QDesignerContainerExtension *>(
                form->core()->extensionManager(), group);
        QVERIFY(container);
        auto *page = new QWidget;
        container->addWidget(page);
        form->manageWidget(page);
        group->setCurrentIndex(0);
        settle();

        QTest::mouseClick(headerOf(group, 3), Qt::LeftButton);
        QCOMPARE(group->currentIndex(), 3);
        QVERIFY(form->cursor()->isWidgetSelected(page));
    }
};

QTEST_MAIN(TestFormEditing)
#include "tst_formediting.moc"
