// Editing a form as a form author does, in a real Designer core that loads the built module:
// the page group's editor makes new pages for new rows whatever was deleted around them, and a
// click on a page header of a page group on the form switches to that page. That an item edit
// is one step of the form's undo history the item editing tests show for every family.

#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"
#include "pagegroup.h"
#include "uixml.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QtDesigner>

using namespace CcTest;
using Driver = ItemDialogDriver;

namespace {

// Pages A, B and C, each holding a label of its own.
QString pageGroupForm()
{
    QString pages;
    for (const char *title : {"A", "B", "C"}) {
        const QByteArray page = QByteArray("page") + title;
        const QByteArray label = QByteArray("label") + title;
        pages += widgetXml("QWidget", page.constData(),
                           propertyXml("windowTitle", title)
                                   + widgetXml("QLabel", label.constData()));
    }
    return formXml(widgetXml("VoCc::DrawbackBoxGroup", "group", pages), pageGroupDeclaration());
}

QStringList titlesOf(const VoCc::DrawbackBoxGroup *group)
{
    QStringList titles;
    for (int i = 0; i < group->count(); ++i)
        titles << group->pageTitle(i);
    return titles;
}

// Orders of deletes and inserts in the page group's editor, on pages A, B and C.
struct PageEdit
{
    const char *name;
    void (*work)(Driver &);
    QStringList titles; // after the edit
    QVector<int> kept; // the original pages the group keeps, in its new order; -1 a new page
    int pushes; // steps added to the undo history
};

const PageEdit pageEdits[] = {
        {"delete last, New",
         [](Driver &d) {
             d.select(2);
             d.click("deleteListItemButton");
             d.select(1);
             d.addRow(QStringLiteral("N"));
         },
         {"A", "B", "N"},
         {0, 1, -1},
         1},
        {"delete middle, New",
         [](Driver &d) {
             d.select(1);
             d.click("deleteListItemButton");
             d.select(1);
             d.addRow(QStringLiteral("N"));
         },
         {"A", "C", "N"},
         {0, 2, -1},
         1},
        {"New, delete, New",
         [](Driver &d) {
             d.select(2);
             d.addRow(QStringLiteral("N1"));
             d.select(2);
             d.click("deleteListItemButton");
             d.select(2);
             d.addRow(QStringLiteral("N2"));
         },
         {"A", "B", "N1", "N2"},
         {0, 1, -1, -1},
         1},
        {"delete last two, New, New",
         [](Driver &d) {
             d.select(2);
             d.click("deleteListItemButton");
             d.select(1);
             d.click("deleteListItemButton");
             d.select(0);
             d.addRow(QStringLiteral("N1"));
             d.addRow(QStringLiteral("N2"));
         },
         {"A", "N1", "N2"},
         {0, -1, -1},
         1},
        {"move up, New, New",
         [](Driver &d) {
             d.select(2);
             d.click("moveListItemUpButton");
             d.addRow(QStringLiteral("N1"));
             d.addRow(QStringLiteral("N2"));
         },
         {"A", "C", "N1", "N2", "B"},
         {0, 2, -1, -1, 1},
         1},
        {"moves and a New that cancel out",
         [](Driver &d) {
             d.select(1);
             d.click("moveListItemUpButton");
             d.click("moveListItemDownButton");
             d.addRow(QStringLiteral("Gone"));
             d.click("deleteListItemButton");
         },
         {"A", "B", "C"},
         {0, 1, 2},
         0},
};

// A page's header on the form: the title bar of its box.
QWidget *headerOf(VoCc::DrawbackBoxGroup *group, int index)
{
    return group->box(index)->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

// What a user does with the mouse on a page group with pages A, B and C, page A current, and
// what the form shows then: the current page, the page selected (-1: none) and the form's
// current widget, the one Designer's property editor shows (null: Designer's own business).
struct Clicks
{
    const char *name;
    void (*work)(VoCc::DrawbackBoxGroup *);
    int current, selected;
    const char *currentWidget;
};

void clickHeader(VoCc::DrawbackBoxGroup *group, int page, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(headerOf(group, page), button);
}

const Clicks clicks[] = {
        {"header of the last page", [](VoCc::DrawbackBoxGroup *g) { clickHeader(g, 2); }, 2, 2,
         "pageC"},
        {"header of the middle page", [](VoCc::DrawbackBoxGroup *g) { clickHeader(g, 1); }, 1, 1,
         "pageB"},
        {"header of the current page", [](VoCc::DrawbackBoxGroup *g) { clickHeader(g, 0); }, 0, -1,
         "group"},
        {"right button on a header",
         [](VoCc::DrawbackBoxGroup *g) { clickHeader(g, 2, Qt::RightButton); }, 0, -1, nullptr},
        {"pressed on one header, released on another",
         [](VoCc::DrawbackBoxGroup *g) {
             QTest::mousePress(headerOf(g, 1), Qt::LeftButton);
             QTest::mouseRelease(headerOf(g, 2), Qt::LeftButton);
         },
         0, -1, "group"},
        {"released outside the header",
         [](VoCc::DrawbackBoxGroup *g) {
             QWidget *header = headerOf(g, 2);
             QTest::mousePress(header, Qt::LeftButton);
             QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(-5, -5));
         },
         0, -1, "group"},
        {"the page's label",
         [](VoCc::DrawbackBoxGroup *g) {
             QTest::mouseClick(g->widget(0)->findChild<QWidget *>(), Qt::LeftButton);
         },
         0, -1, "labelA"},
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
        const PageEdit &pageEdit = pageEdits[index];
        QDesignerFormWindowInterface *form = createFormWindow(pageGroupForm());
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *group = formChild<VoCc::DrawbackBoxGroup>(form, "group");
        QVERIFY(group);
        const QWidgetList original = pagesOf(group);
        QCOMPARE(original.size(), 3);
        const int boxes = group->findChildren<VoCc::DrawbackBox *>().size();

        QCOMPARE(edit(group, pageEdit.work), QString());
        QCOMPARE(titlesOf(group), pageEdit.titles);
        QCOMPARE(form->commandHistory()->count(), pageEdit.pushes);
        if (pageEdit.pushes)
            QCOMPARE(group->currentIndex(), pageEdit.titles.size() - 1);
        else
            QCOMPARE(group->findChildren<VoCc::DrawbackBox *>().size(), boxes);
        const QWidgetList edited = pagesOf(group);
        QStringList names;
        for (const QWidget *page : edited)
            names << page->objectName();
        QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), names.size());
        QCOMPARE(edited.size(), pageEdit.kept.size());
        QWidgetList newPages;
        for (int i = 0; i < edited.size(); ++i) {
            const int kept = pageEdit.kept.at(i);
            if (kept >= 0) {
                QCOMPARE(edited.at(i), original.at(kept));
                continue;
            }
            QWidget *page = edited.at(i);
            QVERIFY2(!original.contains(page), qPrintable(page->objectName()));
            QVERIFY2(!newPages.contains(page), qPrintable(page->objectName()));
            QVERIFY2(page->findChildren<QWidget *>().isEmpty(), qPrintable(page->objectName()));
            QVERIFY(page->objectName().startsWith(QLatin1String("page")));
            newPages << page;
        }
        for (int i = 0; i < original.size(); ++i) {
            if (!pageEdit.kept.contains(i))
                QVERIFY(!original.at(i)->isVisibleTo(form));
        }

        form->commandHistory()->undo();
        QCOMPARE(pagesOf(group), original);
        QCOMPARE(group->currentIndex(), pageEdit.pushes ? 2 : 0);
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

        clicks[index].work(group);
        settle();
        const Clicks &click = clicks[index];
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
