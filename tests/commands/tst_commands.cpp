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


const ItemRecords oneEntry = {{{ItemRoles::Text, designerString(QStringLiteral("x"))}}};

MatrixContents oneCell()
{
    MatrixContents contents;
    contents.rowCount = 1;
    contents.columnCount = 1;
    contents.cells.insert({0, 0}, oneEntry.first());
    return contents;
}

// Pushes nothing: the command is run by hand. Its redo must show the contents; with the
// widget deleted, undo and redo must neither touch it nor warn.
template<class Command, class Contents, class Shown>
void checkCommand(typename Command::WidgetType *widget, const Contents &oldContents,
                  const Contents &newContents, Shown shown)
{
    QDesignerFormWindowInterface *form = CcTest::createFormWindow();
    const auto closeForm = qScopeGuard([form] { CcTest::closeFormWindow(form); });
    Command command(form);
    command.init(widget, oldContents, newContents);
    command.redo();
    QCOMPARE(shown(widget), QStringLiteral("x"));
    delete widget;
    CcTest::WarningLog log;
    command.undo();
    command.redo();
    QCOMPARE(log.warnings, QStringList());
}

template<class Widget>
QString firstText(Widget *widget)
{
    return widget->textList().value(0);
}

// One row per command: a new widget, the contents before and after, and how it shows them.
const struct
{
    const char *name;
    void (*check)();
} commands[] = {
        {"ChangeComboBoxCommand",
         [] {
             checkCommand<ChangeComboBoxCommand>(new VoCc::ComboBox, ItemRecords(), oneEntry,
                                                 [](VoCc::ComboBox *w) { return w->itemText(0); });
         }},
        {"ChangeCheckComboCommand",
         [] {
             checkCommand<ChangeCheckComboCommand>(
                     new VoCc::CheckableTextComboBox, ItemRecords(), oneEntry,
                     [](VoCc::CheckableTextComboBox *w) { return w->itemTextList().value(0); });
         }},
        {"ChangeOptionComboCommand",
         [] {
             checkCommand<ChangeOptionComboCommand>(new VoCc::OptionComboBox, ItemRecords(),
                                                    oneEntry, firstText<VoCc::OptionComboBox>);
         }},
        {"ChangeOptionButtonsCommand",
         [] {
             checkCommand<ChangeOptionButtonsCommand>(new VoCc::OptionButtons, ItemRecords(),
                                                      oneEntry, firstText<VoCc::OptionButtons>);
         }},
        {"ChangeOptionRadiosCommand",
         [] {
             checkCommand<ChangeOptionRadiosCommand>(new VoCc::OptionRadios, ItemRecords(),
                                                     oneEntry, firstText<VoCc::OptionRadios>);
         }},
        {"ChangeDrawbackBoxCommand",
         [] {
             auto *group = new VoCc::DrawbackBoxGroup;
             auto *box = new VoCc::DrawbackBox(group);
             box->setWidget(new QWidget);
             checkCommand<ChangeDrawbackBoxCommand>(
                     group, PageGroupContents(), PageGroupContents {oneEntry, {box}},
                     [](VoCc::DrawbackBoxGroup *w) { return w->pageTitle(0); });
         }},
        {"ChangeMatrixBtnsCommand",
         [] {
             checkCommand<ChangeMatrixBtnsCommand>(new VoCc::MatrixPushButtons, MatrixContents(),
                                                   oneCell(),
                                                   firstText<VoCc::AbstractMatrixOptions>);
         }},
        {"ChangeMatrixPopBtnsCommand",
         [] {
             checkCommand<ChangeMatrixPopBtnsCommand>(new VoCc::MatrixPopButtons, MatrixContents(),
                                                      oneCell(), firstText<VoCc::MatrixPopButtons>);
         }},
};

} // namespace

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
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(commands)); ++i)
            QTest::newRow(commands[i].name) << i;
    }

    void nothingOnceTheWidgetIsGone()
    {
        QFETCH(int, index);
        commands[index].check();
    }

    void stringsToRecordAndBack_data()
    {
        QTest::addColumn<CellStrings>("strings");
        QTest::addColumn<bool>("editor");
        QTest::addColumn<QList<int>>("roles");
        const CellStrings all {"Open", icon, "Opens a file", "fileOpen"};
        QTest::newRow("nothing") << CellStrings() << false << QList<int>();
        QTest::newRow("nothing, editor") << CellStrings() << true << QList<int>({flagsRole});
        QTest::newRow("text") << CellStrings {"Open", {}, {}, {}} << false << QList<int>({27});
        QTest::newRow("icon") << CellStrings {{}, icon, {}, {}} << false << QList<int>({28});
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
        if (!strings.text.isEmpty())
            QCOMPARE(qvariant_cast<PropertySheetStringValue>(record.value(27)).translatable(),
                     !strings.textAttributes.value("notr").toBool());
    }

    void itemToRecordAndBack()
    {
        // Every designer and item role counts, the plain twins and the first user role do not;
        // flags only where they differ from a new item's, unless for the editor.
        QTableWidgetItem item;
        const QVariant tip = QVariant::fromValue(PropertySheetStringValue(QStringLiteral("tip")));
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
        record.insert(Qt::DisplayPropertyRole,
                      QVariant::fromValue(PropertySheetStringValue(QStringLiteral("Open"))));
        QTableWidgetItem plain;
        CellRecords::toItem(record, &plain, nullptr, false);
        QCOMPARE(QStringList({plain.text(), plain.toolTip(), plain.statusTip()}),
                 QStringList({"Open", "tip", "tip"}));
        QCOMPARE(plain.flags(), item.flags());
        QCOMPARE(roles(CellRecords::fromItem(&plain, false)), roles(record));
        QTableWidgetItem edited;
        CellRecords::toItem(record, &edited, nullptr, true);
        QVERIFY(edited.flags() & Qt::ItemIsEnabled);
        QVERIFY(edited.flags() & Qt::ItemIsEditable);
        QCOMPARE(edited.data(flagsRole), record.value(flagsRole));
    }

    void marksAsListsContentsAsTable()
    {
        // A 2 x 3 grid: cell (r, c) is entry 3 r + c of the lists of marks.
        MatrixContents contents;
        contents.rowCount = 2;
        contents.columnCount = 3;
        for (int r = 0; r < 2; ++r) {
            for (int c = 0; c < 3; ++c)
                contents.cells.insert({r, c}, CellRecords::fromStrings({}, true));
        }
        contents.cells[{1, 0}] = CellRecords::fromStrings({"d", icon, "tip", "act"}, true);
        contents.cells[{0, 2}] = CellRecords::fromStrings({"c", {}, {}, {}}, true);
        // Translation marks laid out as the lists, or none at all where nothing is marked.
        QVariantList textMarks, tipMarks;
        contents.toAttributeLists(&textMarks, &tipMarks);
        QVERIFY(textMarks.isEmpty());
        QVERIFY(tipMarks.isEmpty());
        contents.cells[{0, 2}] = CellRecords::fromStrings({"c", {}, {}, {}, {{"id", "c"}}}, true);
        contents.toAttributeLists(&textMarks, &tipMarks);
        QCOMPARE(textMarks, QVariantList({QVariantMap(), QVariantMap(), QVariantMap({{"id", "c"}}),
                                          QVariantMap(), QVariantMap(), QVariantMap()}));
        QVERIFY(tipMarks.isEmpty());

        // Through a table and back, the same cells; a cell without an item reads as a new one's.
        QTableWidget table;
        contents.writeToTable(&table, nullptr);
        QCOMPARE(table.rowCount(), 2);
        QCOMPARE(table.columnCount(), 3);
        QCOMPARE(table.item(1, 0)->text(), QStringLiteral("d"));
        delete table.takeItem(0, 0);
        MatrixContents back;
        back.fillFromTable(&table);
        QVERIFY(sameCells(back, contents));
        back.cells[{1, 1}] = CellRecords::fromStrings({"e", {}, {}, {}}, true);
        QVERIFY(!sameCells(back, contents));
        back.clear();
        QVERIFY(back.cells.isEmpty());
        QCOMPARE(back.rowCount, 0);
        QCOMPARE(back.columnCount, 0);
    }

    void stringAttributesByName()
    {
        // The library's widgets take and give back the marks through their meta-object; an
        // object without the functions gives none, and no call (so no warning) is made.
        const QVariantList marks = {QVariantMap({{"notr", true}}), QVariantMap()};
        VoCc::MatrixPopButtons matrix;
        EntryStringAttributes::write(&matrix, EntryStringAttributes::toolTips, marks);
        QCOMPARE(EntryStringAttributes::read(&matrix, EntryStringAttributes::toolTips), marks);
        QVERIFY(EntryStringAttributes::read(&matrix, EntryStringAttributes::texts).isEmpty());
        const CcTest::WarningLog log;
        QObject plain;
        EntryStringAttributes::write(&plain, EntryStringAttributes::texts, marks);
        QVERIFY(EntryStringAttributes::read(&plain, EntryStringAttributes::texts).isEmpty());
        QCOMPARE(log.warnings, QStringList());
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
