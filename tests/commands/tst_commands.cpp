// The change commands and the records they carry. The conversions of one matrix cell between
// its four strings, its record and a table item, and the marks of a whole matrix as lists and
// its contents as a table. The commands on a real form window of a Designer core: each writes
// its contents into its widget, and once the widget is gone its Undo and Redo do nothing.

#include "changecommands.h"
#include "designertestcore.h"
#include "entrystringattributes.h"
#include "matrixcontents.h"
#include "warninglog.h"

#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/shared_enums_p.h>
#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QTableWidget>
#include <QtTest>

using namespace qdesigner_internal;

Q_DECLARE_METATYPE(CellStrings)

namespace {

const int flagsRole = ItemFlagsShadowRole;
const int action = ItemRoles::Action;
const int data = ItemRoles::Data;
const QString icon =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-open-16.png");

QList<int> roles(const ItemRecord &record)
{
    QList<int> keys = record.keys();
    std::sort(keys.begin(), keys.end());
    return keys;
}

// Text, icon path, tool tip and action.
QStringList listed(const CellStrings &strings)
{
    return {strings.text, strings.iconPath, strings.toolTip, strings.action};
}

// One entry, "x", in each kind of contents.
const ItemRecords oneEntry = {{{ItemRoles::Text, designerString(QStringLiteral("x"))}}};
ItemRecords oneEntryFor(QWidget *) { return oneEntry; }
MatrixContents oneCell() { return {1, 1, {{{0, 0}, oneEntry.first()}}}; }
MatrixContents oneEntryFor(VoCc::AbstractMatrixOptions *) { return oneCell(); }
MatrixContents oneEntryFor(VoCc::MatrixPopButtons *) { return oneCell(); }
PageGroupContents oneEntryFor(VoCc::DrawbackBoxGroup *group)
{
    auto *box = new VoCc::DrawbackBox(group);
    box->setWidget(new QWidget);
    return {oneEntry, {box}};
}

template<class Widget>
QString firstText(Widget *widget)
{
    return widget->textList().value(0);
}
QString comboText(VoCc::ComboBox *combo) { return combo->itemText(0); }
QString checkComboText(VoCc::CheckableTextComboBox *combo)
{
    return combo->itemTextList().value(0);
}
QString pageTitle(VoCc::DrawbackBoxGroup *group) { return group->pageTitle(0); }

// The command is run by hand, pushed nowhere. Its redo must show the entry on a new widget;
// with the widget deleted, undo and redo must neither touch it nor warn.
template<class Command, class Widget, QString (*shown)(Widget *)>
void checkCommand()
{
    QDesignerFormWindowInterface *form = CcTest::createFormWindow();
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    auto *widget = new Widget;
    const auto contents = oneEntryFor(widget);
    Command command(form);
    command.init(widget, decltype(contents)(), contents);
    command.redo();
    QCOMPARE(shown(widget), QStringLiteral("x"));
    delete widget;
    CcTest::WarningLog log;
    command.undo();
    command.redo();
    QCOMPARE(log.warnings, QStringList());
}

using Check = void (*)();

} // namespace

Q_DECLARE_METATYPE(Check)

class TestCommands : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // No plug-in module: the commands under test are linked in.
        CcTest::usePluginModulesOnly({});
        QVERIFY(CcTest::designerCore());
    }

    void nothingOnceTheWidgetIsGone_data()
    {
        QTest::addColumn<Check>("check");
        QTest::newRow("ChangeComboBoxCommand")
                << Check(checkCommand<ChangeComboBoxCommand, VoCc::ComboBox, comboText>);
        QTest::newRow("ChangeCheckComboCommand") << Check(
                checkCommand<ChangeCheckComboCommand, VoCc::CheckableTextComboBox, checkComboText>);
        QTest::newRow("ChangeOptionComboCommand")
                << Check(checkCommand<ChangeOptionComboCommand, VoCc::OptionComboBox, firstText>);
        QTest::newRow("ChangeOptionButtonsCommand")
                << Check(checkCommand<ChangeOptionButtonsCommand, VoCc::OptionButtons, firstText>);
        QTest::newRow("ChangeOptionRadiosCommand")
                << Check(checkCommand<ChangeOptionRadiosCommand, VoCc::OptionRadios, firstText>);
        QTest::newRow("ChangeDrawbackBoxCommand")
                << Check(checkCommand<ChangeDrawbackBoxCommand, VoCc::DrawbackBoxGroup, pageTitle>);
        QTest::newRow("ChangeMatrixBtnsCommand")
                << Check(checkCommand<ChangeMatrixBtnsCommand, VoCc::MatrixPushButtons, firstText>);
        QTest::newRow("ChangeMatrixPopBtnsCommand") << Check(
                checkCommand<ChangeMatrixPopBtnsCommand, VoCc::MatrixPopButtons, firstText>);
    }

    void nothingOnceTheWidgetIsGone()
    {
        QFETCH(Check, check);
        check();
    }

    void stringsToRecordAndBack_data()
    {
        QTest::addColumn<CellStrings>("strings");
        QTest::addColumn<bool>("editor");
        QTest::addColumn<QList<int>>("roles");
        const CellStrings all {"Open", icon, "Opens a file", "fileOpen"};
        QTest::newRow("nothing") << CellStrings() << false << QList<int>();
        QTest::newRow("nothing, editor") << CellStrings() << true << QList<int>({flagsRole});
        QTest::newRow("action only, editor")
                << CellStrings {{}, {}, {}, "fileOpen"} << true << QList<int>({action, flagsRole});
        QTest::newRow("all four") << all << false << QList<int>({27, 28, 29, action});
        QTest::newRow("all four, editor")
                << all << true << QList<int>({27, 28, 29, action, flagsRole});
        const QVariantMap notr = {{"notr", true}};
        const QVariantMap commented = {{"comment", "menu"}, {"extracomment", "note"}, {"id", "x"}};
        QTest::newRow("marked for translation")
                << CellStrings {"Open", {}, "tip", {}, notr, commented} << false
                << QList<int>({27, 29});
    }

    void stringsToRecordAndBack()
    {
        QFETCH(CellStrings, strings);
        QFETCH(bool, editor);
        QFETCH(QList<int>, roles);
        const ItemRecord record = CellRecords::fromStrings(strings, editor);
        QCOMPARE(::roles(record), roles);
        if (record.contains(flagsRole))
            QCOMPARE(record.value(flagsRole).toInt(), int(QTableWidgetItem().flags()));
        // Designer values: the action a plain, translatable string value like the text.
        if (record.contains(action))
            QCOMPARE(qvariant_cast<PropertySheetStringValue>(record.value(action)),
                     PropertySheetStringValue(strings.action));
        const CellStrings back = CellRecords::toStrings(record);
        QCOMPARE(listed(back), listed(strings));
        QCOMPARE(back.textAttributes, strings.textAttributes);
        QCOMPARE(back.toolTipAttributes, strings.toolTipAttributes);
    }

    void itemToRecordAndBack()
    {
        // Every designer and item role counts, the plain twins and the first user role do not;
        // flags only where they differ from a new item's, unless for the editor.
        QTableWidgetItem item;
        const QVariant tip = designerString(QStringLiteral("tip"));
        item.setData(Qt::ToolTipPropertyRole, tip);
        item.setData(Qt::StatusTipPropertyRole, tip);
        item.setData(Qt::CheckStateRole, Qt::Checked);
        item.setData(ItemRoles::Data, QStringLiteral("d"));
        item.setData(Qt::ToolTipRole, QStringLiteral("plain"));
        item.setData(Qt::UserRole, QStringLiteral("32"));
        QCOMPARE(roles(CellRecords::fromItem(&item, false)), QList<int>({10, 29, 30, data}));
        item.setFlags(item.flags() & ~Qt::ItemIsEnabled);
        ItemRecord record = CellRecords::fromItem(&item, false);
        QCOMPARE(roles(record), QList<int>({10, 29, 30, data, flagsRole}));
        // Only text, icon, tool tip and action become strings.
        QCOMPARE(listed(CellRecords::toStrings(record)), QStringList({"", "", "tip", ""}));

        // Back into an item: the plain twins follow, flags are applied (or, for the editor, kept
        // as a role and made editable).
        record.insert(Qt::DisplayPropertyRole, designerString(QStringLiteral("Open")));
        QTableWidgetItem plain, edited;
        CellRecords::toItem(record, &plain, nullptr, false);
        QCOMPARE(QStringList({plain.text(), plain.toolTip(), plain.statusTip()}),
                 QStringList({"Open", "tip", "tip"}));
        QCOMPARE(plain.flags(), item.flags());
        QCOMPARE(roles(CellRecords::fromItem(&plain, false)), roles(record));
        CellRecords::toItem(record, &edited, nullptr, true);
        QCOMPARE(edited.flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable),
                 Qt::ItemIsEnabled | Qt::ItemIsEditable);
        QCOMPARE(edited.data(flagsRole), record.value(flagsRole));
    }

    void marksAsListsContentsAsTable()
    {
        // A 2 x 3 grid: cell (r, c) is entry 3 r + c of the lists of marks.
        MatrixContents contents;
        contents.rowCount = 2;
        contents.columnCount = 3;
        for (int i = 0; i < 6; ++i)
            contents.cells.insert({i / 3, i % 3}, CellRecords::fromStrings({}, true));
        contents.cells[{1, 0}] = CellRecords::fromStrings({"d", icon, "tip", "act"}, true);
        contents.cells[{0, 2}] = CellRecords::fromStrings({"c", {}, {}, {}}, true);
        // Translation marks laid out as the lists, or none at all where nothing is marked.
        QVariantList textMarks, tipMarks;
        contents.toAttributeLists(&textMarks, &tipMarks);
        QCOMPARE(textMarks + tipMarks, QVariantList());
        contents.cells[{0, 2}] = CellRecords::fromStrings({"c", {}, {}, {}, {{"id", "c"}}}, true);
        contents.toAttributeLists(&textMarks, &tipMarks);
        QCOMPARE(textMarks,
                 QVariantList({QVariantMap(), QVariantMap(), QVariantMap({{"id", "c"}}),
                               QVariantMap(), QVariantMap(), QVariantMap()}));
        QCOMPARE(tipMarks, QVariantList());

        // Through a table and back, the same cells; a cell without an item reads as a new one's.
        QTableWidget table;
        contents.writeToTable(&table, nullptr);
        QCOMPARE(QSize(table.columnCount(), table.rowCount()), QSize(3, 2));
        QCOMPARE(table.item(1, 0)->text(), QStringLiteral("d"));
        delete table.takeItem(0, 0);
        MatrixContents back;
        back.fillFromTable(&table);
        QVERIFY(sameCells(back, contents));
        back.cells[{1, 1}] = CellRecords::fromStrings({"e", {}, {}, {}}, true);
        QVERIFY(!sameCells(back, contents));
        back.clear();
        QVERIFY(sameCells(back, MatrixContents()));
    }

    void stringAttributesByName()
    {
        // The library's widgets take and give back the marks through their meta-object; an
        // object without the functions gives none, and no call (so no warning) is made.
        const QVariantList marks = {QVariantMap({{"notr", true}}), QVariantMap()};
        VoCc::MatrixPopButtons matrix;
        QObject plain;
        const CcTest::WarningLog log;
        EntryStringAttributes::write(&matrix, EntryStringAttributes::toolTips, marks);
        EntryStringAttributes::write(&plain, EntryStringAttributes::texts, marks);
        QCOMPARE(EntryStringAttributes::read(&matrix, EntryStringAttributes::toolTips), marks);
        QCOMPARE(EntryStringAttributes::read(&matrix, EntryStringAttributes::texts),
                 QVariantList());
        QCOMPARE(EntryStringAttributes::read(&plain, EntryStringAttributes::texts), QVariantList());
        QCOMPARE(log.warnings, QStringList());
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
