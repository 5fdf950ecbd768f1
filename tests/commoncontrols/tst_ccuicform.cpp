// The example form compiled by uic: its header paths are the library's, and the generated
// code builds the form against the library's API.
#include "ui_allwidgets.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTest>
#include <QToolButton>

class TestCcUicForm : public QObject
{
    Q_OBJECT

private slots:
    void generatedFormBuilds();
};

void TestCcUicForm::generatedFormBuilds()
{
    VoCc::Form form;
    Ui::AllWidgets ui;
    ui.setupUi(&form);

    QCOMPARE(form.mode(), VoCc::Form::Dockable);
    QCOMPARE(form.functionName(), QStringLiteral("showAllWidgets"));
    QCOMPARE(ui.templatePane->title(), QStringLiteral("Template widgets"));
    QCOMPARE(ui.Angle->value(), 30.0);
    QCOMPARE(ui.Angle->caption(), QStringLiteral("Angle"));
    QCOMPARE(ui.Angle->property("id").toInt(), 1);
    QCOMPARE(ui.ColorTransfer->toColor(), QColor(250, 200, 0));
    QCOMPARE(ui.Point->zCoordinate(), 3.0);
    QCOMPARE(ui.lineType->lineStyle(), Qt::DashLine);
    QCOMPARE(ui.lineWidth->lineWidth(), 3);
    QCOMPARE(ui.selectList->selectedItems(), QStringList {QStringLiteral("Mass")});

    // Pages go in through addPage; the current index, set before them, still counts.
    QCOMPARE(ui.drawbackBoxGroup->count(), 3);
    QCOMPARE(ui.drawbackBoxGroup->currentIndex(), 1);
    QCOMPARE(ui.drawbackBoxGroup->widget(2), ui.page_2);
    QCOMPARE(ui.drawbackBoxGroup->pageTitle(0), QStringLiteral("Lists"));
    QVERIFY(ui.page_0->isAncestorOf(ui.listWidget));

    // The items uic knows of: those of Qt item classes.
    QCOMPARE(ui.comboBox->count(), 3);
    QCOMPARE(ui.comboBox->itemText(1), QStringLiteral("Save"));
    QCOMPARE(ui.listWidget->count(), 2);

    // Dimensions and texts that are properties.
    QCOMPARE(ui.matrixPushButtons->row(), 2);
    QCOMPARE(ui.matrixPushButtons->column(), 3);
    QVERIFY(ui.matrixPushButtons->button(5));
    QVERIFY(!ui.matrixPushButtons->button(6));
    QCOMPARE(ui.matrixPopButtons->textList().value(2), QStringLiteral("Spline"));
    QCOMPARE(ui.matrixPopButtons->button(2)->text(), QStringLiteral("Spline"));
    QVERIFY(ui.matrixPopButtons->menu(0));
}

QTEST_MAIN(TestCcUicForm)
#include "tst_ccuicform.moc"
