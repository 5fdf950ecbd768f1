#include "editingfamilies.h"

#include "designertestcore.h"
#include "modalanswer.h"

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

namespace CcTest {

QString testIcon;

namespace {

using Driver = ItemDialogDriver;

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

const QString pageGroupDeclaration = QStringLiteral(
        "<customwidget><class>VoCc::DrawbackBoxGroup</class><extends>QWidget</extends>"
        "<addpagemethod>addPage</addpagemethod></customwidget>");

} // namespace

int familyCount() { return int(std::size(families)); }

const Family &family(int index) { return families[index]; }

const Family &pageGroupFamily() { return families[5]; }

bool isPageGroup(const Family &family) { return family.shown == shownByPageGroup; }

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

bool edit(QWidget *widget, const std::function<void(Driver &)> &act, bool accept)
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

QString withoutCurrentPage(QString ui)
{
    static const QRegularExpression current(
            QStringLiteral("(<property name=\"currentIndex\">\\s*<number>)\\d+(</number>)"));
    return ui.replace(current, QStringLiteral("\\1#\\2"));
}

QStringList shownAtRunTime(const QString &ui, Shown shown, const QString &objectName)
{
    QBuffer buffer;
    buffer.setData(ui.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    VoCc::FormBuilder builder;
    QScopedPointer<QWidget> form(builder.load(&buffer));
    QWidget *widget = form ? form->findChild<QWidget *>(objectName) : nullptr;
    return widget ? shown(widget) : QStringList({"<not loaded>"});
}

} // namespace CcTest
