// Editing a form as a form author does, in a real Designer core that loads the built module:
// an item edit is one step of the form's undo history, the page group's editor makes new
// pages for new rows whatever was deleted around them, and a click on a page header of a
// page group on the form switches to that page.

#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"
#include "pagegroup.h"
#include "uixml.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QDesignerContainerExtension>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QExtensionManager>
#include <QToolButton>
#include <QUndoStack>

using namespace CcTest;
using Driver = ItemDialogDriver;

namespace {

QString textItem(const char *text) { return itemXml(propertyXml("text", text)); }

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
         {0, 1, -1}},
        {"delete middle, New",
         [](Driver &d) {
             d.select(1);
             d.click("deleteListItemButton");
             d.select(1);
             d.addRow(QStringLiteral("N"));
         },
         {"A", "C", "N"},
         {0, 2, -1}},
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
         {0, 1, -1, -1}},
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
         {0, -1, -1}},
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

    void matrixEditIsOneStep_data()
    {
        QTest::addColumn<QString>("className");
        for (const char *name :
             {"VoCc::MatrixPushButtons", "VoCc::MatrixRadioButtons", "VoCc::MatrixCheckBoxes"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    // Cells and counts change in one step of the history, labelled like the change; one Undo
    // gives back the form to the byte, one Redo the edited form.
    void matrixEditIsOneStep()
    {
        QFETCH(QString, className);
        const QByteArray cls = className.toLatin1();
        const QString entries = propertyXml("row", "2", "number")
                + propertyXml("column", "3", "number") + textItem("a") + textItem("b")
                + textItem("c") + textItem("d") + textItem("e") + textItem("f");
        QDesignerFormWindowInterface *form =
                createFormWindow(formXml(widgetXml(cls.constData(), "matrix", entries)));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *matrix = formChild<VoCc::AbstractMatrixOptions>(form, "matrix");
        QVERIFY(matrix);
        const QString original = form->contents();

        QCOMPARE(edit(matrix,
                      [](Driver &dialog) {
                          dialog.stepTo("rowCounts", 3);
                          dialog.stepTo("colCounts", 2);
                          dialog.selectCell(0, 0);
                          dialog.renameCurrent(QStringLiteral("z"));
                      }),
                 QString());
        QUndoStack *history = form->commandHistory();
        QCOMPARE(history->count(), 1);
        QCOMPARE(history->text(0), QStringLiteral("Change MatrixButtons Contents"));
        QCOMPARE(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()),
                 QStringLiteral("3x2"));
        QCOMPARE(matrix->textList().value(0), QStringLiteral("z"));
        const QString edited = form->contents();

        history->undo();
        QCOMPARE(history->index(), 0);
        QCOMPARE(form->contents(), original);
        QCOMPARE(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()),
                 QStringLiteral("2x3"));
        history->redo();
        QCOMPARE(history->index(), 1);
        QCOMPARE(form->contents(), edited);
    }

    void newRowsMakeNewPages_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(pageEdits)); ++i)
            QTest::newRow(pageEdits[i].name) << i;
    }

    // A new row is a new, empty page, never a page deleted in the same edit; the deleted
    // pages leave the group and come back with Undo.
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

        QCOMPARE(edit(group, pageEdit.work), QString());
        QCOMPARE(titlesOf(group), pageEdit.titles);
        const QWidgetList edited = pagesOf(group);
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
            newPages << page;
        }
        for (int i = 0; i < original.size(); ++i) {
            if (!pageEdit.kept.contains(i))
                QVERIFY(!original.at(i)->isVisibleTo(form));
        }

        form->commandHistory()->undo();
        QCOMPARE(pagesOf(group), original);
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
