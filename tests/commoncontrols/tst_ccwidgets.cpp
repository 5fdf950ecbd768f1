// The list-like widgets of the CommonControls library: entries, alignment of their lists,
// grids and pages.
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcLineEditEx.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcPane.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionCheckBox.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace VoCc;

namespace {
const QString okIcon =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-ok-16.png");
const QString missingIcon = QStringLiteral("/no/such/icon.png");

} // namespace

class TestCcWidgets : public QObject
{
    Q_OBJECT

private slots:
    void optionWidgetsKeepTheirListsAligned();
    void optionButtonsAndRadiosShowOneButtonPerEntry();
    void optionCheckBoxChoosesBetweenTwoEntries();
    void checkableComboBoxEntries();
    void comboBoxActions();
    void matrixGrid();
    void matrixButtonKinds();
    void matrixPopButtons();
    void pageGroupAddInsertRemove();
    void pageGroupCurrentAndTitles();
    void pageGroupReplaceBoxes();
    void paneCollapses();
    void lineEditExClearsAndValidates();
};

void TestCcWidgets::optionWidgetsKeepTheirListsAligned()
{
    OptionComboBox combo;
    OptionButtons buttons;
    OptionRadios radios;
    OptionCheckBox checkBox;
    const QList<AbstractOptions *> widgets = {&combo, &buttons, &radios, &checkBox};
    for (AbstractOptions *options : widgets) {
        const char *name = options->metaObject()->className();
        QSignalSpy currentChanged(options, &AbstractOptions::currentIndexChanged);
        QCOMPARE(options->currentIndex(), -1);
        options->setTextList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        options->setIconList({okIcon, missingIcon});
        options->setToolTips({QStringLiteral("tip a")});
        options->setDataList(
                {QStringLiteral("1"), QString(), QStringLiteral("3"), QStringLiteral("4")});

        // The lists stay as given; an entry beyond a short list reads as empty.
        QCOMPARE(options->count(), 3);
        QCOMPARE(options->dataList().size(), 4);
        QCOMPARE(options->toolTipAt(1), QString());
        QCOMPARE(options->iconAt(2), QString());
        QCOMPARE(options->dataAt(2), QStringLiteral("3"));
        QCOMPARE(options->textAt(3), QString());

        // The first list makes the first entry current; a shrinking list keeps it in range.
        QCOMPARE(options->currentIndex(), 0);
        QCOMPARE(currentChanged.count(), 1);
        options->setCurrentIndex(2);
        QCOMPARE(options->currentData(), QStringLiteral("3"));
        options->setCurrentIndex(5);
        QCOMPARE(options->currentIndex(), 2);
        options->setTextList({QStringLiteral("only")});
        QCOMPARE(options->currentIndex(), 0);
        QCOMPARE(options->currentText(), QStringLiteral("only"));
        options->setTextList({});
        QCOMPARE(options->currentIndex(), -1);
        QCOMPARE(options->currentData(), QString());

        // The invokable re-layout is reachable by its name, as undo commands call it.
        QVERIFY2(QMetaObject::invokeMethod(options, "updateGeomtries"), name);
    }

    combo.setTextList({QStringLiteral("x"), QStringLiteral("y")});
    combo.setIconList({okIcon});
    QCOMPARE(combo.comboBox()->itemText(1), QStringLiteral("y"));
    QVERIFY(!combo.comboBox()->itemIcon(0).isNull());
    QVERIFY(combo.comboBox()->itemIcon(1).isNull());
    QCOMPARE(combo.comboBox()->itemData(0).toString(), QStringLiteral("1"));
    // A user's pick becomes the current entry.
    combo.comboBox()->setCurrentIndex(1);
    emit combo.comboBox()->activated(1);
    QCOMPARE(combo.currentIndex(), 1);
}

void TestCcWidgets::optionButtonsAndRadiosShowOneButtonPerEntry()
{
    OptionButtons buttons;
    OptionRadios radios;
    for (AbstractOptions *options : QList<AbstractOptions *> {&buttons, &radios}) {
        auto buttonAt = [options](int i) {
            if (auto *b = qobject_cast<OptionButtons *>(options))
                return b->button(i);
            return static_cast<OptionRadios *>(options)->button(i);
        };
        options->setTextList({QStringLiteral("Left"), QStringLiteral("Right")});
        options->setIconList({QString(), okIcon});
        options->setToolTips({QStringLiteral("to the left"), QStringLiteral("to the right")});
        QVERIFY(!buttonAt(2));
        QCOMPARE(buttonAt(1)->text(), QStringLiteral("Right"));
        QCOMPARE(buttonAt(1)->toolTip(), QStringLiteral("to the right"));
        QVERIFY(!buttonAt(1)->icon().isNull());
        QVERIFY(buttonAt(0)->isChecked());

        // Clicking a button makes its entry current; only one button stays checked.
        QSignalSpy currentChanged(options, &AbstractOptions::currentIndexChanged);
        buttonAt(1)->click();
        QCOMPARE(options->currentIndex(), 1);
        QCOMPARE(currentChanged.count(), 1);
        QVERIFY(!buttonAt(0)->isChecked());

        // Growing the list rebuilds the buttons and keeps the choice.
        options->setTextList(
                {QStringLiteral("Left"), QStringLiteral("Right"), QStringLiteral("Up")});
        QCOMPARE(buttonAt(2)->text(), QStringLiteral("Up"));
        QVERIFY(buttonAt(1)->isChecked());

        // Shrinking by many leaves the buttons of the remaining entries working.
        QStringList many;
        for (int i = 0; i < 40; ++i)
            many << QStringLiteral("e%1").arg(i);
        options->setTextList(many);
        options->setTextList({QStringLiteral("a"), QStringLiteral("b")});
        QVERIFY(!buttonAt(2));
        QCOMPARE(buttonAt(1)->text(), QStringLiteral("b"));
        QVERIFY(buttonAt(1)->isChecked());
        buttonAt(0)->click();
        QCOMPARE(options->currentIndex(), 0);
        QVERIFY(!buttonAt(1)->isChecked());
    }
}

void TestCcWidgets::optionCheckBoxChoosesBetweenTwoEntries()
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

void TestCcWidgets::checkableComboBoxEntries()
{
    CheckableTextComboBox box;
    // Checked texts set before the entries exist apply once they do.
    box.setCheckedTexts({QStringLiteral("Blue")});
    box.setItemTextList({QStringLiteral("Red"), QStringLiteral("Green"), QStringLiteral("Blue")});
    box.setToolTips({QStringLiteral("warm")});
    QCOMPARE(box.comboBox()->count(), 3);
    QCOMPARE(box.toolTips(), QStringList {QStringLiteral("warm")});
    QCOMPARE(box.comboBox()->itemData(0, Qt::ToolTipRole).toString(), QStringLiteral("warm"));
    QCOMPARE(box.checkedTexts(), QStringList {QStringLiteral("Blue")});

    QSignalSpy checkedChanged(&box, &CheckableTextComboBox::checkedTextsChanged);
    box.setChecked(0, true);
    QCOMPARE(checkedChanged.count(), 1);
    QCOMPARE(box.checkedTexts(), (QStringList {QStringLiteral("Red"), QStringLiteral("Blue")}));
    QCOMPARE(box.comboBox()->lineEdit()->text(), QStringLiteral("Red, Blue"));

    // New entries keep the checks of texts that stay.
    box.setItemTextList({QStringLiteral("Blue"), QStringLiteral("Black")});
    QCOMPARE(box.checkedTexts(), QStringList {QStringLiteral("Blue")});
    box.setChecked(7, true); // outside: nothing happens
    QCOMPARE(box.checkedTexts(), QStringList {QStringLiteral("Blue")});
}

void TestCcWidgets::comboBoxActions()
{
    ComboBox box;
    box.addItems({QStringLiteral("Open"), QStringLiteral("Save"), QStringLiteral("Close")});
    box.setActionList({QStringLiteral("fileOpen"), QString()});
    QCOMPARE(box.actionAt(2), QString());

    QSignalSpy triggered(&box, &ComboBox::actionTriggered);
    emit box.activated(0);
    emit box.activated(1);
    emit box.activated(2);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggered.at(0).at(0).toString(), QStringLiteral("fileOpen"));
}

void TestCcWidgets::matrixGrid()
{
    MatrixPushButtons matrix;
    matrix.setRow(3);
    matrix.setColumn(4);
    QStringList texts, tips, actions;
    for (int i = 0; i < 12; ++i) {
        texts << QStringLiteral("b%1").arg(i);
        tips << QStringLiteral("tip %1").arg(i);
        actions << QStringLiteral("act%1").arg(i);
    }
    matrix.setTextList(texts);
    matrix.setIconList({okIcon});
    matrix.setToolTips(tips);
    matrix.setActionList(actions);
    QCOMPARE(matrix.buttonCount(), 12);
    QCOMPARE(matrix.button(11)->text(), QStringLiteral("b11"));
    QCOMPARE(matrix.button(11)->toolTip(), QStringLiteral("tip 11"));
    QVERIFY(!matrix.button(0)->icon().isNull());
    QVERIFY(matrix.button(1)->icon().isNull());
    QVERIFY(!matrix.button(12));
    QVERIFY(!matrix.button(-1));
    // Button 5 of a 3 x 4 grid sits in row 1, column 1.
    matrix.resize(400, 120);
    matrix.show();
    QVERIFY(QTest::qWaitForWindowExposed(&matrix));
    QVERIFY(matrix.button(5)->x() > matrix.button(4)->x());
    QVERIFY(matrix.button(5)->y() > matrix.button(1)->y());
    QCOMPARE(matrix.button(5)->x(), matrix.button(1)->x());

    // A shorter list leaves the other buttons blank, and the lists are kept as given.
    matrix.setTextList({QStringLiteral("only")});
    QCOMPARE(matrix.button(0)->text(), QStringLiteral("only"));
    QCOMPARE(matrix.button(11)->text(), QString());
    QCOMPARE(matrix.textList().size(), 1);

    // A click reports the index and the cell's action.
    QSignalSpy clicked(&matrix, &AbstractMatrixOptions::buttonClicked);
    QSignalSpy triggered(&matrix, &AbstractMatrixOptions::actionTriggered);
    matrix.button(6)->click();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), 6);
    QCOMPARE(triggered.at(0).at(0).toString(), QStringLiteral("act6"));

    // Shrinking the grid drops buttons, not entries; a grid of nothing has no buttons.
    matrix.setRow(1);
    QCOMPARE(matrix.buttonCount(), 4);
    QVERIFY(!matrix.button(4));
    QCOMPARE(matrix.toolTips().size(), 12);
    matrix.setColumn(-3);
    QCOMPARE(matrix.column(), 0);
    QVERIFY(!matrix.button(0));
    matrix.setColumn(2);
    QVERIFY(QMetaObject::invokeMethod(&matrix, "updateGeomtries"));
    QCOMPARE(matrix.button(1)->toolTip(), QStringLiteral("tip 1"));
}

void TestCcWidgets::matrixButtonKinds()
{
    MatrixRadioButtons radios;
    MatrixCheckBoxes checks;
    QVERIFY(radios.button(0)->inherits("QRadioButton"));
    QVERIFY(checks.button(0)->inherits("QCheckBox"));

    radios.button(0)->click();
    radios.button(3)->click();
    QVERIFY(!radios.button(0)->isChecked());
    // Still exclusive after the grid is rebuilt.
    radios.setRow(3);
    radios.button(4)->click();
    radios.button(5)->click();
    QVERIFY(!radios.button(4)->isChecked());

    checks.button(0)->click();
    checks.button(3)->click();
    QVERIFY(checks.button(0)->isChecked());
    QVERIFY(checks.button(3)->isChecked());
}

void TestCcWidgets::matrixPopButtons()
{
    MatrixPopButtons pop;
    pop.setTextList({QStringLiteral("Line"), QStringLiteral("Arc"), QStringLiteral("Spline")});
    pop.setColumn(3);
    pop.setRow(2);
    QCOMPARE(pop.buttonCount(), 6);
    QCOMPARE(pop.button(2)->text(), QStringLiteral("Spline"));
    QCOMPARE(pop.button(5)->text(), QString());
    QVERIFY(!pop.menu(6));

    pop.setActionList({QStringLiteral("drawLine"), QString(), QStringLiteral("drawSpline")});
    pop.setIconList({okIcon});
    pop.setToolTips({QString(), QStringLiteral("an arc")});
    QVERIFY(!pop.button(0)->icon().isNull());
    QCOMPARE(pop.button(1)->toolTip(), QStringLiteral("an arc"));
    QCOMPARE(pop.menu(0)->actions().at(0)->text(), QStringLiteral("drawLine"));
    QVERIFY(pop.menu(1)->actions().isEmpty());

    // Entries an application adds to a menu stay when the actions change.
    pop.menu(2)->addAction(QStringLiteral("extra"));
    pop.setActionList({QStringLiteral("drawLine"), QString(), QStringLiteral("drawCurve")});
    QCOMPARE(pop.menu(2)->actions().size(), 2);
    QCOMPARE(pop.menu(2)->actions().at(0)->text(), QStringLiteral("drawCurve"));
    pop.setActionList({});
    QCOMPARE(pop.menu(2)->actions().size(), 1);
    QCOMPARE(pop.menu(2)->actions().at(0)->text(), QStringLiteral("extra"));

    QSignalSpy triggered(&pop, &MatrixPopButtons::actionTriggered);
    pop.setActionList({QStringLiteral("drawLine")});
    pop.menu(0)->actions().at(0)->trigger();
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggered.at(0).at(0).toString(), QStringLiteral("drawLine"));
}

void TestCcWidgets::pageGroupAddInsertRemove()
{
    DrawbackBoxGroup group;
    QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
    QVERIFY(!group.widget(0));

    auto *first = new QWidget;
    first->setWindowTitle(QStringLiteral("First"));
    QVERIFY(QMetaObject::invokeMethod(&group, "addPage", Q_ARG(QWidget *, first)));
    QCOMPARE(group.currentIndex(), 0);
    QCOMPARE(currentChanged.count(), 1);
    QCOMPARE(group.box(0)->widget(), first);
    QCOMPARE(group.pageTitle(0), QStringLiteral("First"));

    // Adding the same page twice does nothing.
    group.addPage(first);
    QCOMPARE(group.count(), 1);

    auto *third = new QWidget;
    group.addPage(third);
    auto *second = new QWidget;
    group.insertPage(1, second);
    QCOMPARE(group.count(), 3);
    QCOMPARE(group.widget(1), second);
    QCOMPARE(group.indexOf(third), 2);
    // Inserting in front of the current page keeps that page current.
    group.setCurrentIndex(1);
    auto *zeroth = new QWidget;
    group.insertPage(0, zeroth);
    QCOMPARE(group.currentIndex(), 2);
    group.insertPage(99, new QWidget);
    QCOMPARE(group.count(), 5);

    // Removing takes the page out but keeps it alive.
    QPointer<QWidget> removed = group.widget(2);
    currentChanged.clear();
    group.removePage(2);
    QVERIFY(removed && removed->isHidden());
    QCOMPARE(group.indexOf(removed), -1);
    QCOMPARE(currentChanged.count(), 1);
    QCOMPARE(group.currentIndex(), 2);
    QCOMPARE(group.widget(2), third);
    group.removePage(17);
    QCOMPARE(group.count(), 4);
    while (group.count() > 0)
        group.removePage(0);
    QCOMPARE(group.currentIndex(), -1);
    QCOMPARE(currentChanged.last().at(0).toInt(), -1);
    delete removed;
}

void TestCcWidgets::pageGroupCurrentAndTitles()
{
    DrawbackBoxGroup group;
    QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
    QSignalSpy titleChanged(&group, &DrawbackBoxGroup::pageTitleChanged);

    // A current index set before the pages exist, as a form loader does, takes effect.
    QVERIFY(group.setProperty("currentIndex", 2));
    for (int i = 0; i < 3; ++i)
        group.addPage(new QWidget);
    QCOMPARE(group.currentIndex(), 2);
    QVERIFY(group.box(2)->isExpanded());
    QVERIFY(!group.box(0)->isExpanded());
    QVERIFY(group.widget(0)->isHidden());

    currentChanged.clear();
    group.setCurrentIndex(2);
    group.setCurrentIndex(-1);
    QCOMPARE(currentChanged.count(), 0);
    group.setCurrentIndex(0);
    QCOMPARE(currentChanged.count(), 1);
    QCOMPARE(currentChanged.at(0).at(0).toInt(), 0);

    // A title goes to the current page, its window title and its box.
    group.setPageTitle(QStringLiteral("General"));
    QCOMPARE(titleChanged.count(), 1);
    QCOMPARE(titleChanged.at(0).at(0).toString(), QStringLiteral("General"));
    QCOMPARE(group.widget(0)->windowTitle(), QStringLiteral("General"));
    QCOMPARE(group.box(0)->title(), QStringLiteral("General"));
    QCOMPARE(group.pageTitle(1), QString());

    // A window title set on the page itself (as a form loader does) shows on its box.
    group.widget(1)->setWindowTitle(QStringLiteral("Loaded"));
    QCOMPARE(group.pageTitle(1), QStringLiteral("Loaded"));

    // Clicking a box's title bar makes its page current.
    auto *titleBar = group.box(1)->findChild<QToolButton *>();
    QVERIFY(titleBar);
    QCOMPARE(titleBar->text(), QStringLiteral("Loaded"));
    titleBar->click();
    QCOMPARE(group.currentIndex(), 1);

    // The current page fills its box below the title bar.
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

void TestCcWidgets::pageGroupReplaceBoxes()
{
    DrawbackBoxGroup group;
    for (int i = 0; i < 3; ++i) {
        auto *page = new QWidget;
        page->setWindowTitle(QStringLiteral("p%1").arg(i));
        group.addPage(page);
    }
    group.setCurrentIndex(1);
    QList<DrawbackBox *> boxes = {group.box(0), group.box(1), group.box(2)};

    // A new box from elsewhere, two kept in a new order, one left out.
    auto *newBox = new DrawbackBox;
    auto *newPage = new QWidget;
    newPage->setWindowTitle(QStringLiteral("new"));
    newBox->setWidget(newPage);
    QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
    QCOMPARE(group.replaceBoxes({boxes.at(2), newBox, nullptr, boxes.at(1), boxes.at(2)}), 3);
    QCOMPARE(group.count(), 3);
    QCOMPARE(group.box(0), boxes.at(2));
    QCOMPARE(group.box(1), newBox);
    QCOMPARE(group.box(2), boxes.at(1));
    QCOMPARE(group.pageTitle(1), QStringLiteral("new"));
    QCOMPARE(newBox->parentWidget(), &group);
    // The page that was current stays current.
    QCOMPARE(group.currentIndex(), 2);
    QCOMPARE(currentChanged.count(), 1);
    // The box left out is kept, hidden, for whoever wants it back.
    QVERIFY(boxes.at(0)->isHidden());
    QCOMPARE(boxes.at(0)->title(), QStringLiteral("p0"));

    // Its page comes back with it; clicks on it reach the group again.
    QCOMPARE(group.replaceBoxes(boxes), 3);
    QCOMPARE(group.pageTitle(0), QStringLiteral("p0"));
    QCOMPARE(group.currentIndex(), 1);
    boxes.at(0)->findChild<QToolButton *>()->click();
    QCOMPARE(group.currentIndex(), 0);
    // newBox is now a hidden child of the group and goes with it.

    QCOMPARE(group.replaceBoxes({}), 0);
    QCOMPARE(group.currentIndex(), -1);
    QVERIFY(!group.widget(0));
}

void TestCcWidgets::paneCollapses()
{
    Pane pane;
    auto *child = new QLabel(QStringLiteral("inside"), &pane);
    auto *hiddenChild = new QLabel(QStringLiteral("hidden"), &pane);
    hiddenChild->hide();
    pane.resize(200, 150);
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));
    // Children sit below the title bar.
    QVERIFY(pane.contentsRect().top() > 0);

    QSignalSpy expandedChanged(&pane, &Pane::expandedChanged);
    QTest::mouseClick(&pane, Qt::LeftButton, {}, QPoint(20, 5));
    QVERIFY(!pane.isExpanded());
    QCOMPARE(expandedChanged.count(), 1);
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
    collapsedFirst.setExpanded(true);
    QVERIFY(!late->isHidden());
}

void TestCcWidgets::lineEditExClearsAndValidates()
{
    LineEditEx edit;
    QCOMPARE(edit.actions().size(), 1);
    QAction *clear = edit.actions().at(0);
    QVERIFY(!clear->isVisible());
    edit.setText(QStringLiteral("abc"));
    QVERIFY(clear->isVisible());
    clear->trigger();
    QVERIFY(edit.text().isEmpty());
    QVERIFY(!clear->isVisible());

    // Input must match the pattern; an invalid pattern changes nothing.
    edit.setPattern(QStringLiteral("[A-Z]-[0-9]*"));
    QTest::keyClicks(&edit, QStringLiteral("a1B-12x"));
    QCOMPARE(edit.text(), QStringLiteral("B-12"));
    edit.setPattern(QStringLiteral("(unclosed"));
    QCOMPARE(edit.pattern(), QStringLiteral("[A-Z]-[0-9]*"));
    edit.setPattern(QString());
    QVERIFY(!edit.validator());
    QTest::keyClicks(&edit, QStringLiteral("zz"));
    QCOMPARE(edit.text(), QStringLiteral("B-12zz"));
}

QTEST_MAIN(TestCcWidgets)
#include "tst_ccwidgets.moc"
