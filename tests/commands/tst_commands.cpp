// The change commands on a real form window of a Designer core: each writes its contents into
// its widget, and once the widget is gone its Undo and Redo do nothing. And the marks of the
// entries, written and read through the widgets' meta-objects.

#include "changecommands.h"
#include "designertestcore.h"
#include "entrystringattributes.h"
#include "matrixcontents.h"
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
