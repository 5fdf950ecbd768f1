// The list-like widgets of the CommonControls library: entries, alignment of their lists,
// grids and pages.
#include <nui/CommonControls/CcColorPanel.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcForm.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
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
#include <QMetaEnum>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QToolButton>

using namespace VoCc;

namespace {
const QString okIcon =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-ok-16.png");
const QString missingIcon = QStringLiteral("/no/such/icon.png");

QStringList buttonTexts(const QList<QAbstractButton *> &buttons)
{
    QStringList texts;
    for (const QAbstractButton *button : buttons)
        texts.append(button->text());
    return texts;
}
} // namespace

class TestCcWidgets : public QObject
{
    Q_OBJECT

private slots:
    void everyClassHasItsQualifiedMetaObject();
    void ownPropertiesKeepWhatIsWritten();
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
    void paneAndForm();
    void lineEditExClearsAndValidates();
};

void TestCcWidgets::everyClassHasItsQualifiedMetaObject()
{
    const QStringList names = FormBuilder::widgetClassNames();
    QCOMPARE(names.size(), 44);
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 44);
    QWidget parent;
    for (const QString &name : names) {
        QWidget *widget = FormBuilder::createCommonControl(name, &parent);
        QVERIFY2(widget, qPrintable(name));
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
        QCOMPARE(widget->parentWidget(), &parent);
        // Designer and form authors set a dynamic "id" on every widget.
        widget->setProperty("id", 7);
        QCOMPARE(widget->property("id").toInt(), 7);
    }
    QVERIFY(!FormBuilder::createCommonControl(QStringLiteral("VoCc::NoSuchWidget"), &parent));
    QVERIFY(!FormBuilder::createCommonControl(QStringLiteral("QComboBox"), &parent));

    ColorPanel *panel = new ColorPanel(&parent, Qt::Tool);
    QVERIFY(panel->windowFlags() & Qt::Tool);
}

// A value of the property's type that differs from what a new widget holds.
static QVariant otherValue(const QMetaProperty &property, const QVariant &current)
{
    if (property.isEnumType()) {
        const QMetaEnum enumerator = property.enumerator();
        for (int i = 0; i < enumerator.keyCount(); ++i) {
            if (enumerator.value(i) != current.toInt() && enumerator.value(i) != 0)
                return enumerator.value(i);
        }
        return current;
    }
    switch (property.userType()) {
    case QMetaType::Int:
        return current.toInt() == 3 ? 4 : 3;
    case QMetaType::Double:
        return current.toDouble() == 2.5 ? 1.5 : 2.5;
    case QMetaType::Bool:
        return !current.toBool();
    case QMetaType::QString:
        return QStringLiteral("abc");
    case QMetaType::QStringList:
        return QStringList {QStringLiteral("a"), QStringLiteral("b")};
    case QMetaType::QColor:
        return QColor(10, 20, 30);
    default:
        return QVariant();
    }
}

void TestCcWidgets::ownPropertiesKeepWhatIsWritten()
{
    // What a form author (or a form file) writes into a property of a library class reads
    // back unchanged. Properties whose meaning depends on entries are tested with them.
    const QSet<QByteArray> dependOnEntries = {"currentIndex", "checkedTexts"};
    for (const QString &name : FormBuilder::widgetClassNames()) {
        QScopedPointer<QWidget> widget(FormBuilder::createCommonControl(name, nullptr));
        const QMetaObject *meta = widget->metaObject();
        // The properties the library adds, from its topmost class down.
        const QMetaObject *own = meta;
        while (own->superClass() && QByteArray(own->superClass()->className()).startsWith("VoCc::"))
            own = own->superClass();
        for (int i = own->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (!property.isWritable() || dependOnEntries.contains(property.name()))
                continue;
            const QVariant before = property.read(widget.data());
            const QVariant value = otherValue(property, before);
            const QByteArray where = name.toLatin1() + "::" + property.name();
            QVERIFY2(value.isValid() && value != before, where.constData());
            QVERIFY2(property.write(widget.data(), value), where.constData());
            QVERIFY2(property.read(widget.data()) == value, where.constData());
        }
    }
}

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
        QCOMPARE(options->iconList().size(), 2);
        QCOMPARE(options->dataList().size(), 4);
        QCOMPARE(options->toolTipAt(1), QString());
        QCOMPARE(options->iconAt(2), QString());
        QCOMPARE(options->dataAt(2), QStringLiteral("3"));
        QCOMPARE(options->textAt(3), QString());
        QCOMPARE(options->textAt(-1), QString());

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
    QCOMPARE(combo.comboBox()->count(), 2);
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
        QVERIFY(buttonAt(0) && buttonAt(1));
        QVERIFY(!buttonAt(2));
        QVERIFY(!buttonAt(-1));
        QCOMPARE(buttonAt(1)->text(), QStringLiteral("Right"));
        QCOMPARE(buttonAt(1)->toolTip(), QStringLiteral("to the right"));
        QVERIFY(buttonAt(0)->icon().isNull());
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
    }
    QCOMPARE(buttons.orientation(), Qt::Horizontal);
    QCOMPARE(radios.orientation(), Qt::Vertical);
    radios.setProperty("orientation", Qt::Horizontal);
    QCOMPARE(radios.orientation(), Qt::Horizontal);
}

void TestCcWidgets::optionCheckBoxChoosesBetweenTwoEntries()
{
    OptionCheckBox box;
    box.setTextList({QStringLiteral("Yes"), QStringLiteral("No")});
    box.setDataList({QStringLiteral("1"), QStringLiteral("0")});
    QVERIFY(box.isChecked());
    QCOMPARE(box.currentData(), QStringLiteral("1"));
    QCOMPARE(box.checkBox()->text(), QStringLiteral("Yes"));

    box.checkBox()->click();
    QVERIFY(!box.isChecked());
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(box.currentData(), QStringLiteral("0"));
    QCOMPARE(box.checkBox()->text(), QStringLiteral("No"));

    box.setCurrentIndex(0);
    QVERIFY(box.isChecked());
    box.setChecked(false);
    QCOMPARE(box.currentIndex(), 1);
}

void TestCcWidgets::checkableComboBoxEntries()
{
    CheckableTextComboBox box;
    // Checked texts set before the entries exist apply once they do.
    box.setCheckedTexts({QStringLiteral("Blue")});
    box.setItemTextList({QStringLiteral("Red"), QStringLiteral("Green"), QStringLiteral("Blue")});
    box.setToolTips({QStringLiteral("warm")});
    QCOMPARE(box.comboBox()->count(), 3);
    QCOMPARE(box.itemTextList().size(), 3);
    QCOMPARE(box.toolTips(), QStringList {QStringLiteral("warm")});
    QCOMPARE(box.comboBox()->itemData(0, Qt::ToolTipRole).toString(), QStringLiteral("warm"));
    QCOMPARE(box.comboBox()->itemData(2, Qt::ToolTipRole).toString(), QString());
    QCOMPARE(box.checkedTexts(), QStringList {QStringLiteral("Blue")});

    QSignalSpy checkedChanged(&box, &CheckableTextComboBox::checkedTextsChanged);
    box.setChecked(0, true);
    QCOMPARE(checkedChanged.count(), 1);
    QCOMPARE(box.checkedTexts(), (QStringList {QStringLiteral("Red"), QStringLiteral("Blue")}));
    QCOMPARE(box.comboBox()->lineEdit()->text(), QStringLiteral("Red, Blue"));
    auto *model = qobject_cast<QStandardItemModel *>(box.comboBox()->model());
    QVERIFY(model->item(1)->flags() & Qt::ItemIsUserCheckable);

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
    QCOMPARE(box.actionList().size(), 2);
    QCOMPARE(box.actionAt(0), QStringLiteral("fileOpen"));
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
    QCOMPARE(matrix.buttonCount(), matrix.row() * matrix.column());
    QVERIFY(matrix.setProperty("row", 3));
    QVERIFY(matrix.setProperty("column", 4));
    QCOMPARE(matrix.row(), 3);
    QCOMPARE(matrix.column(), 4);

    QStringList texts, icons, tips, actions;
    for (int i = 0; i < 12; ++i) {
        texts << QStringLiteral("b%1").arg(i);
        icons << okIcon;
        tips << QStringLiteral("tip %1").arg(i);
        actions << QStringLiteral("act%1").arg(i);
    }
    matrix.setTextList(texts);
    matrix.setIconList(icons);
    matrix.setToolTips(tips);
    matrix.setActionList(actions);
    QList<QAbstractButton *> buttons;
    for (int i = 0; i < 12; ++i) {
        QAbstractButton *button = matrix.button(i);
        QVERIFY(button);
        buttons << button;
        QCOMPARE(button->toolTip(), tips.at(i));
        QVERIFY(!button->icon().isNull());
    }
    QCOMPARE(buttonTexts(buttons), texts);
    QVERIFY(!matrix.button(12));
    QVERIFY(!matrix.button(-1));
    // Button 5 of a 3 x 4 grid sits in row 1, column 1.
    QVERIFY(matrix.button(5)->geometry().isValid());
    matrix.resize(400, 120);
    matrix.show();
    QVERIFY(QTest::qWaitForWindowExposed(&matrix));
    QVERIFY(matrix.button(5)->x() > matrix.button(4)->x());
    QVERIFY(matrix.button(5)->y() > matrix.button(1)->y());
    QCOMPARE(matrix.button(5)->x(), matrix.button(1)->x());

    // A shorter list leaves the other buttons blank, and the lists are kept as given.
    matrix.setTextList({QStringLiteral("only")});
    matrix.setIconList({});
    QCOMPARE(matrix.button(0)->text(), QStringLiteral("only"));
    QCOMPARE(matrix.button(11)->text(), QString());
    QVERIFY(matrix.button(11)->icon().isNull());
    QCOMPARE(matrix.textList().size(), 1);
    QCOMPARE(matrix.toolTips().size(), 12);

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
    matrix.setColumn(0);
    QVERIFY(!matrix.button(0));
    matrix.setColumn(-3);
    QCOMPARE(matrix.column(), 0);
    matrix.setColumn(2);
    QCOMPARE(matrix.button(1)->toolTip(), QStringLiteral("tip 1"));
    QVERIFY(QMetaObject::invokeMethod(&matrix, "updateGeomtries"));
    QCOMPARE(matrix.button(1)->toolTip(), QStringLiteral("tip 1"));
}

void TestCcWidgets::matrixButtonKinds()
{
    MatrixRadioButtons radios;
    MatrixCheckBoxes checks;
    MatrixPushButtons pushes;
    QVERIFY(radios.button(0)->inherits("QRadioButton"));
    QVERIFY(checks.button(0)->inherits("QCheckBox"));
    QVERIFY(pushes.button(0)->inherits("QPushButton"));

    radios.button(0)->click();
    radios.button(3)->click();
    QVERIFY(!radios.button(0)->isChecked());
    QVERIFY(radios.button(3)->isChecked());
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
    QVERIFY(pop.setProperty(
            "textList",
            QStringList {QStringLiteral("Line"), QStringLiteral("Arc"), QStringLiteral("Spline")}));
    QCOMPARE(pop.textList().size(), 3);
    pop.setColumn(3);
    pop.setRow(2);
    QCOMPARE(pop.buttonCount(), 6);
    QCOMPARE(pop.button(2)->text(), QStringLiteral("Spline"));
    QCOMPARE(pop.button(5)->text(), QString());
    QVERIFY(!pop.button(6));
    QVERIFY(!pop.menu(6));
    QCOMPARE(pop.button(0)->popupMode(), QToolButton::MenuButtonPopup);

    pop.setActionList({QStringLiteral("drawLine"), QString(), QStringLiteral("drawSpline")});
    pop.setIconList({okIcon});
    pop.setToolTips({QString(), QStringLiteral("an arc")});
    QVERIFY(!pop.button(0)->icon().isNull());
    QCOMPARE(pop.button(1)->toolTip(), QStringLiteral("an arc"));
    QCOMPARE(pop.menu(0)->actions().size(), 1);
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
    QVERIFY(QMetaObject::invokeMethod(&pop, "updateGeomtries"));
    QCOMPARE(pop.button(2)->text(), QStringLiteral("Spline"));
}

void TestCcWidgets::pageGroupAddInsertRemove()
{
    DrawbackBoxGroup group;
    QSignalSpy currentChanged(&group, &DrawbackBoxGroup::currentIndexChanged);
    QCOMPARE(group.count(), 0);
    QCOMPARE(group.currentIndex(), -1);
    QVERIFY(!group.widget(0));
    QVERIFY(!group.box(0));

    auto *first = new QWidget;
    first->setWindowTitle(QStringLiteral("First"));
    QVERIFY(QMetaObject::invokeMethod(&group, "addPage", Q_ARG(QWidget *, first)));
    QCOMPARE(group.count(), 1);
    QCOMPARE(group.currentIndex(), 0);
    QCOMPARE(currentChanged.count(), 1);
    QCOMPARE(group.widget(0), first);
    QCOMPARE(group.box(0)->widget(), first);
    QCOMPARE(group.pageTitle(0), QStringLiteral("First"));
    QVERIFY(group.isAncestorOf(first));

    // Adding the same page twice does nothing.
    group.addPage(first);
    QCOMPARE(group.count(), 1);

    auto *third = new QWidget;
    group.addPage(third);
    auto *second = new QWidget;
    group.insertPage(1, second);
    QCOMPARE(group.count(), 3);
    QCOMPARE(group.widget(1), second);
    QCOMPARE(group.widget(2), third);
    QCOMPARE(group.indexOf(third), 2);
    // Inserting in front of the current page keeps that page current.
    group.setCurrentIndex(1);
    auto *zeroth = new QWidget;
    group.insertPage(0, zeroth);
    QCOMPARE(group.currentIndex(), 2);
    QCOMPARE(group.widget(group.currentIndex()), second);
    group.insertPage(99, new QWidget);
    QCOMPARE(group.count(), 5);

    // Removing takes the page out but keeps it alive.
    QPointer<QWidget> removed = group.widget(2);
    currentChanged.clear();
    group.removePage(2);
    QCOMPARE(group.count(), 4);
    QVERIFY(removed);
    QVERIFY(removed->isHidden());
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
    QCOMPARE(group.property("currentIndex").toInt(), 0);

    // A title goes to the current page, its window title and its box.
    group.setPageTitle(QStringLiteral("General"));
    QCOMPARE(titleChanged.count(), 1);
    QCOMPARE(titleChanged.at(0).at(0).toString(), QStringLiteral("General"));
    QCOMPARE(group.pageTitle(0), QStringLiteral("General"));
    QCOMPARE(group.widget(0)->windowTitle(), QStringLiteral("General"));
    QCOMPARE(group.box(0)->title(), QStringLiteral("General"));
    QCOMPARE(group.pageTitle(1), QString());
    QCOMPARE(group.pageTitle(9), QString());

    // A window title set on the page itself (as a form loader does) shows on its box.
    group.widget(1)->setWindowTitle(QStringLiteral("Loaded"));
    QCOMPARE(group.pageTitle(1), QStringLiteral("Loaded"));

    // Clicking a box's title bar makes its page current.
    auto *titleBar = group.box(1)->findChild<QToolButton *>();
    QVERIFY(titleBar);
    QCOMPARE(titleBar->text(), QStringLiteral("Loaded"));
    titleBar->click();
    QCOMPARE(group.currentIndex(), 1);

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

void TestCcWidgets::paneAndForm()
{
    Pane pane;
    QVERIFY(pane.setProperty("title", QStringLiteral("Options")));
    QCOMPARE(pane.title(), QStringLiteral("Options"));
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

    Form form;
    const QMetaProperty mode =
            form.metaObject()->property(form.metaObject()->indexOfProperty("mode"));
    QVERIFY(mode.isEnumType());
    QCOMPARE(QString::fromLatin1(mode.enumerator().scope()), QStringLiteral("VoCc::Form"));
    QVERIFY(mode.enumerator().keyToValue("Dockable") == Form::Dockable);
    QVERIFY(form.setProperty("mode", Form::Floating));
    QCOMPARE(form.mode(), Form::Floating);
    QVERIFY(form.setProperty("functionName", QStringLiteral("openSketch")));
    QCOMPARE(form.functionName(), QStringLiteral("openSketch"));
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
