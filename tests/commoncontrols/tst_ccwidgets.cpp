// The list-like widgets of the CommonControls library: entries, alignment of their lists,
// grids and pages.
#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcPane.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionCheckBox.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QtWidgets>
#include <QtTest>

using namespace VoCc;

namespace {
const QString okIcon =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-ok-16.png");

// prefix0, prefix1... as many as count.
QStringList numbered(const char *prefix, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << QLatin1String(prefix) + QString::number(i);
    return list;
}

QAbstractButton *optionButton(AbstractOptions *options, int index)
{
    if (auto *buttons = qobject_cast<OptionButtons *>(options))
        return buttons->button(index);
    auto *radios = qobject_cast<OptionRadios *>(options);
    return radios ? radios->button(index) : nullptr;
}

QString entry(const QString &text, const QString &toolTip, bool icon, bool current)
{
    return (current ? QStringLiteral("*") : QString()) + text + QLatin1Char('|') + toolTip
            + (icon ? QStringLiteral("|icon") : QString());
}

// What a combo box or a row of buttons shows, entry by entry ("*" marks the current one).
QString shown(AbstractOptions *options)
{
    QStringList shown;
    if (auto *combo = qobject_cast<OptionComboBox *>(options)) {
        const QComboBox *box = combo->comboBox();
        for (int i = 0; i < box->count(); ++i)
            shown << entry(box->itemText(i), box->itemData(i, Qt::ToolTipRole).toString(),
                           !box->itemIcon(i).isNull(), box->currentIndex() == i)
                            + QLatin1Char('|') + box->itemData(i).toString();
    } else {
        for (int i = 0; QAbstractButton *button = optionButton(options, i); ++i)
            shown << entry(button->text(), button->toolTip(), !button->icon().isNull(),
                           button->isChecked());
    }
    return shown.join(QLatin1Char(' '));
}

// What it should show of its lists: every entry, an icon where the file is there.
QString expected(AbstractOptions *options)
{
    QStringList expected;
    for (int i = 0; i < options->count(); ++i)
        expected << entry(options->textAt(i), options->toolTipAt(i),
                          !QPixmap(options->iconAt(i)).isNull(), options->currentIndex() == i)
                        + (qobject_cast<OptionComboBox *>(options)
                                   ? QLatin1Char('|') + options->dataAt(i)
                                   : QString());
    return expected.join(QLatin1Char(' '));
}

// The values a signal reported since the last look.
QString reported(QSignalSpy &spy)
{
    QStringList values;
    for (const QList<QVariant> &arguments : qAsConst(spy))
        values << arguments.value(0).toString();
    spy.clear();
    return values.join(QLatin1Char(','));
}

// A page group as its user sees it: the page titles in order, the current page in brackets,
// "!" where a box or a page shows when it should not or the other way round, or where a box's
// title is not its page's; then the current indexes reported since the last look.
QString pages(const DrawbackBoxGroup &group, QSignalSpy &currentChanged)
{
    QStringList pages;
    for (int i = 0; i < group.count(); ++i) {
        const bool current = i == group.currentIndex();
        const QString title = group.widget(i)->windowTitle();
        pages << (current ? QLatin1Char('[') + title + QLatin1Char(']') : title)
                        + (group.box(i)->isExpanded() != current
                                           || group.widget(i)->isHidden() == current
                                           || group.pageTitle(i) != title
                                   ? QStringLiteral("!")
                                   : QString());
    }
    return pages.join(QLatin1Char(' ')) + QStringLiteral(" <- ") + reported(currentChanged);
}

QWidget *page(const QString &title)
{
    auto *page = new QWidget;
    page->setWindowTitle(title);
    return page;
}

// The checks of a matrix of buttons and of pop buttons, which share their interface only.
template<class Grid>
void checkGrid(Grid *grid)
{
    grid->setRow(3);
    grid->setColumn(4);
    grid->setTextList(numbered("b", 12));
    grid->setIconList({okIcon});
    grid->setToolTips(numbered("tip ", 12));
    grid->setActionList(numbered("act", 12));
    QCOMPARE(grid->buttonCount(), 12);
    QCOMPARE(grid->button(11)->text(), QStringLiteral("b11"));
    QCOMPARE(grid->button(11)->toolTip(), QStringLiteral("tip 11"));
    QVERIFY(!grid->button(0)->icon().isNull());
    QVERIFY(grid->button(1)->icon().isNull());
    QVERIFY(!grid->button(12));
    QVERIFY(!grid->button(-1));
    // Button 5 of a 3 x 4 grid sits in row 1, column 1.
    grid->resize(400, 120);
    grid->show();
    QVERIFY(QTest::qWaitForWindowExposed(grid));
    QVERIFY(grid->button(5)->x() > grid->button(4)->x());
    QVERIFY(grid->button(5)->y() > grid->button(1)->y());
    QCOMPARE(grid->button(5)->x(), grid->button(1)->x());

    // A shorter list leaves the other buttons blank, and the lists are kept as given.
    grid->setTextList({QStringLiteral("only")});
    QCOMPARE(grid->button(0)->text(), QStringLiteral("only"));
    QCOMPARE(grid->button(11)->text(), QString());
    QCOMPARE(grid->textList().size(), 1);

    // A click reports the index; the cell's action comes from a click on a matrix, from the
    // menu of a pop button.
    QSignalSpy clicked(grid, &Grid::buttonClicked);
    QSignalSpy triggered(grid, &Grid::actionTriggered);
    grid->button(6)->click();
    if (auto *pop = qobject_cast<MatrixPopButtons *>(grid))
        pop->menu(6)->actions().at(0)->trigger();
    QCOMPARE(reported(clicked), QStringLiteral("6"));
    QCOMPARE(reported(triggered), QStringLiteral("act6"));

    // Shrinking the grid drops buttons, not entries; a grid of nothing has no buttons.
    grid->setRow(1);
    QVERIFY(grid->button(3));
    QVERIFY(!grid->button(4));
    QCOMPARE(grid->toolTips().size(), 12);
    grid->setColumn(-3);
    QCOMPARE(grid->column(), 0);
    QVERIFY(!grid->button(0));
    grid->setColumn(2);
    QVERIFY(QMetaObject::invokeMethod(grid, "updateGeomtries"));
    QCOMPARE(grid->button(1)->toolTip(), QStringLiteral("tip 1"));
}

} // namespace

class TestCcWidgets : public QObject
{
    Q_OBJECT

private slots:
    void optionWidgets()
    {
        OptionComboBox combo;
        OptionButtons buttons;
        OptionRadios radios;
        OptionCheckBox checkBox;
        for (AbstractOptions *options :
             QList<AbstractOptions *> {&combo, &buttons, &radios, &checkBox}) {
            QSignalSpy currentChanged(options, &AbstractOptions::currentIndexChanged);
            // After each change: the current entry as reported, and what the widget shows (the
            // check box, one entry at a time, has a test of its own).
            const auto check = [&](int current, const char *reports) {
                QCOMPARE(options->currentIndex(), current);
                QCOMPARE(reported(currentChanged), QLatin1String(reports));
                QCOMPARE(options->currentText() + options->currentData(),
                         options->textAt(current) + options->dataAt(current));
                if (options != &checkBox)
                    QCOMPARE(shown(options), expected(options));
            };
            // The first list makes the first entry current. The lists stay as given; an entry
            // beyond a short list reads as empty.
            options->setTextList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
            options->setIconList({okIcon, QStringLiteral("/no/such/icon.png")});
            options->setToolTips({QStringLiteral("tip a")});
            options->setDataList({"1", "", "3", "4"});
            check(0, "0");
            QCOMPARE(options->dataList().size(), 4);
            QCOMPARE(options->textAt(3), QString());
            options->setCurrentIndex(2);
            check(2, "2");
            // An entry that is not there yet becomes current once it is.
            options->setCurrentIndex(5);
            check(2, "");
            options->setTextList(numbered("e", 40));
            check(5, "5");
            if (options != &checkBox) {
                // A user's pick; fewer entries by many leave those that stay working.
                optionButton(options, 0) ? optionButton(options, 1)->click()
                                         : emit combo.comboBox()->activated(1);
                check(1, "1");
                options->setTextList({QStringLiteral("a"), QStringLiteral("b")});
                check(1, "");
                optionButton(options, 0) ? optionButton(options, 0)->click()
                                         : emit combo.comboBox()->activated(0);
                check(0, "0");
            }
            // A shrinking list keeps the current entry in range.
            options->setTextList({QStringLiteral("only")});
            options->setTextList({});
            check(-1, options == &checkBox ? "0,-1" : "-1");
            // The invokable re-layout is reachable by its name, as undo commands call it.
            QVERIFY(QMetaObject::invokeMethod(options, "updateGeomtries"));
        }
    }

    void optionCheckBoxChoosesBetweenTwoEntries()
    {
        OptionCheckBox box;
        box.setTextList({QStringLiteral("Yes"), QStringLiteral("No")});
        box.setDataList({QStringLiteral("1"), QStringLiteral("0")});
        QVERIFY(box.isChecked());
        QCOMPARE(box.checkBox()->text(), QStringLiteral("Yes"));

        box.checkBox()->click();
        QVERIFY(!box.isChecked());
        QCOMPARE(box.currentData(), QStringLiteral("0"));
        QCOMPARE(box.checkBox()->text(), QStringLiteral("No"));
        box.setCurrentIndex(0);
        QVERIFY(box.isChecked());
    }

    void checkableComboBoxEntries()
    {
        // New entries show the tool tips of their places, and keep the checks of texts that stay.
        CheckableTextComboBox box;
        box.setItemTextList({"Red", "Green", "Blue"});
        box.setToolTips({QStringLiteral("warm")});
        box.setChecked(2, true);
        box.setItemTextList({QStringLiteral("Blue"), QStringLiteral("Black")});
        QCOMPARE(box.toolTips(), QStringList {QStringLiteral("warm")});
        QCOMPARE(box.comboBox()->itemData(0, Qt::ToolTipRole).toString(), QStringLiteral("warm"));
        QCOMPARE(box.checkedTexts(), QStringList {QStringLiteral("Blue")});
    }

    void grids()
    {
        MatrixPushButtons matrix;
        checkGrid(&matrix);
        MatrixPopButtons pop;
        checkGrid(&pop);
    }

    void matrixButtonKinds()
    {
        MatrixRadioButtons radios;
        MatrixCheckBoxes checks;
        QVERIFY(radios.button(0)->inherits("QRadioButton"));
        QVERIFY(checks.button(0)->inherits("QCheckBox"));
        // Radio buttons are exclusive, also after the grid is rebuilt; check boxes are not.
        for (AbstractMatrixOptions *matrix : QList<AbstractMatrixOptions *> {&radios, &checks}) {
            for (int rows : {2, 3}) {
                matrix->setRow(rows);
                matrix->button(0)->click();
                matrix->button(3)->click();
                QCOMPARE(matrix->button(0)->isChecked(), matrix == &checks);
            }
        }
    }

    void pageGroupAddInsertRemove()
    {
        DrawbackBoxGroup group;
        QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
        QVERIFY(!group.widget(0));
        QWidget *a = page(QStringLiteral("A"));
        QVERIFY(QMetaObject::invokeMethod(&group, "addPage", Q_ARG(QWidget *, a)));
        group.addPage(a); // a page in the group already stays where it is
        QCOMPARE(pages(group, currentChanged), QStringLiteral("[A] <- 0"));
        QCOMPARE(group.box(0)->widget(), a);

        // Inserting in front of the current page keeps that page current; an index beyond the
        // pages appends.
        group.addPage(page(QStringLiteral("C")));
        group.insertPage(1, page(QStringLiteral("B")));
        group.setCurrentIndex(1);
        group.insertPage(0, page(QStringLiteral("0")));
        group.insertPage(99, page(QStringLiteral("D")));
        QCOMPARE(pages(group, currentChanged), QStringLiteral("0 A [B] C D <- 1,2"));
        QCOMPARE(group.indexOf(group.widget(3)), 3);

        // Removing takes the page out but keeps it alive.
        QPointer<QWidget> removed = group.widget(2);
        group.removePage(2);
        group.removePage(17);
        // Not deleted later either: the one who removed it may put it back.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(removed);
        QVERIFY(removed->isHidden());
        QCOMPARE(group.indexOf(removed), -1);
        QCOMPARE(pages(group, currentChanged), QStringLiteral("0 A [C] D <- 2"));
        group.removePage(0);
        QCOMPARE(pages(group, currentChanged), QStringLiteral("A [C] D <- 1"));
        while (group.count() > 0)
            group.removePage(group.count() - 1);
        QCOMPARE(pages(group, currentChanged), QStringLiteral(" <- 0,-1"));
        delete removed;
    }

    void pageGroupCurrentAndTitles()
    {
        DrawbackBoxGroup group;
        QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
        QSignalSpy titleChanged(&group, &DrawbackBoxGroup::pageTitleChanged);

        // A current index set before the pages exist, as a form loader does, takes effect; one
        // out of range, or the current one again, changes nothing.
        QVERIFY(group.setProperty("currentIndex", 2));
        for (const char *title : {"p0", "p1", "p2"})
            group.addPage(page(QLatin1String(title)));
        QCOMPARE(pages(group, currentChanged), QStringLiteral("p0 p1 [p2] <- 0,2"));
        group.setCurrentIndex(2);
        group.setCurrentIndex(-1);
        group.setCurrentIndex(0);
        QCOMPARE(pages(group, currentChanged), QStringLiteral("[p0] p1 p2 <- 0"));

        // A title goes to the current page and its box; a window title set on a page (as a form
        // loader does) shows on its box.
        group.setPageTitle(QStringLiteral("General"));
        group.widget(1)->setWindowTitle(QStringLiteral("Loaded"));
        QCOMPARE(reported(titleChanged), QStringLiteral("General"));
        QCOMPARE(pages(group, currentChanged), QStringLiteral("[General] Loaded p2 <- "));

        // Clicking a box's title bar makes its page current; that page fills its box below the
        // title bar.
        auto *titleBar = group.box(1)->findChild<QToolButton *>();
        QCOMPARE(titleBar->text(), QStringLiteral("Loaded"));
        titleBar->click();
        QCOMPARE(pages(group, currentChanged), QStringLiteral("General [Loaded] p2 <- 1"));
        group.resize(200, 300);
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        QTRY_COMPARE(group.widget(1)->geometry(),
                     QRect(0, titleBar->height(), group.box(1)->width(),
                           group.box(1)->height() - titleBar->height()));
        QVERIFY(group.widget(1)->height() > titleBar->height());

        DrawbackBoxGroup empty;
        QSignalSpy emptyTitle(&empty, &DrawbackBoxGroup::pageTitleChanged);
        empty.setPageTitle(QStringLiteral("none"));
        QCOMPARE(emptyTitle.count(), 0);
    }

    void pageGroupReplaceBoxes()
    {
        DrawbackBoxGroup group;
        for (const char *title : {"p0", "p1", "p2"})
            group.addPage(page(QLatin1String(title)));
        group.setCurrentIndex(1);
        QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
        QList<DrawbackBox *> boxes = {group.box(0), group.box(1), group.box(2)};

        // A new box from elsewhere, two kept in a new order (once each), one left out: the page
        // that was current stays current; the box left out is kept, hidden, for whoever wants it
        // back.
        auto *newBox = new DrawbackBox;
        newBox->setWidget(page(QStringLiteral("new")));
        QCOMPARE(group.replaceBoxes({boxes.at(2), newBox, nullptr, boxes.at(1), boxes.at(2)}), 3);
        QCOMPARE(pages(group, currentChanged), QStringLiteral("p2 new [p1] <- 2"));
        QCOMPARE(newBox->parentWidget(), &group);
        QVERIFY(boxes.at(0)->isHidden());
        newBox->findChild<QToolButton *>()->click();
        QCOMPARE(pages(group, currentChanged), QStringLiteral("p2 [new] p1 <- 1"));

        // Its page comes back with it; clicks on it reach the group again.
        QCOMPARE(group.replaceBoxes(boxes), 3);
        boxes.at(1)->findChild<QToolButton *>()->click();
        boxes.at(0)->findChild<QToolButton *>()->click();
        QCOMPARE(pages(group, currentChanged), QStringLiteral("[p0] p1 p2 <- 0,1,0"));
        // newBox is now a hidden child of the group and goes with it.
        QCOMPARE(group.replaceBoxes({}), 0);
        QCOMPARE(group.currentIndex(), -1);
    }

    void paneCollapses()
    {
        Pane pane;
        auto *child = new QLabel(QStringLiteral("inside"), &pane);
        auto *hiddenChild = new QLabel(QStringLiteral("hidden"), &pane);
        hiddenChild->hide();
        pane.resize(200, 150);
        pane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pane));
        // Children sit below the title bar; a click on it collapses the pane to it.
        QVERIFY(pane.contentsRect().top() > 0);
        QSignalSpy expandedChanged(&pane, &Pane::expandedChanged);
        QTest::mouseClick(&pane, Qt::LeftButton, {}, QPoint(20, 5));
        QCOMPARE(reported(expandedChanged), QStringLiteral("false"));
        QVERIFY(child->isHidden());
        QVERIFY(pane.height() <= pane.contentsRect().top() + 1);
        pane.setExpanded(true);
        QVERIFY(!child->isHidden());
        QVERIFY(hiddenChild->isHidden()); // a child hidden before collapsing stays hidden
        // A click below the title bar does not collapse it.
        QTest::mouseClick(&pane, Qt::LeftButton, {}, QPoint(20, pane.height() - 5));
        QVERIFY(pane.isExpanded());

        // Collapsed before its children exist, as a loaded form is: they are hidden on show.
        Pane collapsedFirst;
        collapsedFirst.setExpanded(false);
        auto *late = new QLabel(QStringLiteral("late"), &collapsedFirst);
        collapsedFirst.show();
        QVERIFY(late->isHidden());
    }
};

QTEST_MAIN(TestCcWidgets)
#include "tst_ccwidgets.moc"
