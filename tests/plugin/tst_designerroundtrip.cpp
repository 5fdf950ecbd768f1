// The library's form builder under a real Designer: the example form goes through Designer's
// own save and load (which call the extra-info hooks), and comes back whole, without growing.
#include "designertestcore.h"

#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
#include <nui/CommonControls/CcLineEditEx.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>

#include <QBuffer>
#include <QDesignerFormWindowInterface>
#include <QFile>
#include <QScopedPointer>
#include <QTest>

using namespace VoCc;

namespace {

// What the list-like widgets of one form hold, in one comparable text.
QString entriesOf(QWidget *form)
{
    QStringList lines;
    auto line = [&lines](const QString &what, const QStringList &values) {
        lines.append(what + QLatin1String(": ") + values.join(QLatin1Char('|')));
    };
    for (AbstractOptions *options : form->findChildren<AbstractOptions *>()) {
        const QString name = options->objectName();
        line(name + QLatin1String(" texts"), options->textList());
        line(name + QLatin1String(" icons"), options->iconList());
        line(name + QLatin1String(" tips"), options->toolTips());
        line(name + QLatin1String(" data"), options->dataList());
    }
    for (AbstractMatrixOptions *matrix : form->findChildren<AbstractMatrixOptions *>()) {
        const QString name = matrix->objectName();
        line(name + QLatin1String(" size"),
             {QString::number(matrix->row()), QString::number(matrix->column())});
        line(name + QLatin1String(" texts"), matrix->textList());
        line(name + QLatin1String(" icons"), matrix->iconList());
        line(name + QLatin1String(" tips"), matrix->toolTips());
        line(name + QLatin1String(" actions"), matrix->actionList());
    }
    for (MatrixPopButtons *pop : form->findChildren<MatrixPopButtons *>()) {
        line(QStringLiteral("pop size"),
             {QString::number(pop->row()), QString::number(pop->column())});
        line(QStringLiteral("pop texts"), pop->textList());
        line(QStringLiteral("pop icons"), pop->iconList());
        line(QStringLiteral("pop tips"), pop->toolTips());
        line(QStringLiteral("pop actions"), pop->actionList());
    }
    for (CheckableTextComboBox *check : form->findChildren<CheckableTextComboBox *>()) {
        line(QStringLiteral("check texts"), check->itemTextList());
        line(QStringLiteral("check tips"), check->toolTips());
    }
    for (ComboBox *combo : form->findChildren<ComboBox *>()) {
        QStringList texts;
        for (int i = 0; i < combo->count(); ++i)
            texts.append(combo->itemText(i));
        line(QStringLiteral("combo texts"), texts);
        line(QStringLiteral("combo actions"), combo->actionList());
    }
    for (DrawbackBoxGroup *group : form->findChildren<DrawbackBoxGroup *>()) {
        QStringList titles;
        for (int i = 0; i < group->count(); ++i)
            titles.append(group->pageTitle(i));
        line(QStringLiteral("group titles"), titles);
        line(QStringLiteral("group current"), {QString::number(group->currentIndex())});
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class TestDesignerRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)}); }
    void exampleFormSurvivesDesigner();
};

void TestDesignerRoundTrip::exampleFormSurvivesDesigner()
{
    QFile file(QStringLiteral(CC_EXAMPLE_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray original = file.readAll();

    // The reference: the form as the library's own loader builds it.
    FormBuilder builder;
    QBuffer buffer;
    buffer.setData(original);
    buffer.open(QIODevice::ReadOnly);
    QScopedPointer<QWidget> runtimeForm(builder.load(&buffer));
    QVERIFY(runtimeForm);
    const QString expected = entriesOf(runtimeForm.data());
    QVERIFY(expected.contains(QStringLiteral("combo actions: fileOpen|fileSave|")));

    // Designer loads it, shows the same entries, and saves it.
    QDesignerFormWindowInterface *first = CcTest::createFormWindow(QString::fromUtf8(original));
    QCOMPARE(entriesOf(first->mainContainer()), expected);
    const QString saved = first->contents();
    // Designer wrote the combo box items and the matrix dimensions once, the library added
    // the actions without doubling them.
    QCOMPARE(saved.count(QStringLiteral("<string notr=\"true\">fileOpen</string>")), 1);
    const QString row = QStringLiteral("<property name=\"row\">");
    QCOMPARE(saved.count(row), QString::fromUtf8(original).count(row));

    // Reopened in Designer and at run time, the saved form holds the same entries.
    QDesignerFormWindowInterface *second = CcTest::createFormWindow(saved);
    QCOMPARE(entriesOf(second->mainContainer()), expected);
    buffer.close();
    buffer.setData(saved.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    QScopedPointer<QWidget> reloaded(builder.load(&buffer));
    QCOMPARE(entriesOf(reloaded.data()), expected);

    // Any number of cycles writes the same file.
    const QString savedAgain = second->contents();
    QCOMPARE(savedAgain, saved);
    QDesignerFormWindowInterface *third = CcTest::createFormWindow(savedAgain);
    QCOMPARE(third->contents(), saved);

    CcTest::closeFormWindow(third);
    CcTest::closeFormWindow(second);
    CcTest::closeFormWindow(first);
}

QTEST_MAIN(TestDesignerRoundTrip)
#include "tst_designerroundtrip.moc"
