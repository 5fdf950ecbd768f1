// The change commands on a real form window of a Designer core: each writes its contents
// into its widget, and once the widget is gone its Undo and Redo do nothing.

#include "changecommands.h"
#include "designertestcore.h"
#include "warninglog.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QtTest>

namespace {

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

class TestChangeCommands : public QObject
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
};

QTEST_MAIN(TestChangeCommands)
#include "tst_changecommands.moc"
