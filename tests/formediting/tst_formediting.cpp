// Editing a form as a form author does, in a real Designer core that loads the built module:
// an item edit is one step of the form's undo history.

#include "designertestcore.h"
#include "itemdialogdriver.h"
#include "modalanswer.h"
#include "uixml.h"

#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QUndoStack>

using namespace CcTest;
using Driver = ItemDialogDriver;

namespace {

QString textItem(const char *text) { return itemXml(propertyXml("text", text)); }

} // namespace

class TestFormEditing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
    }

    void matrixEditIsOneStep_data()
    {
        QTest::addColumn<QString>("className");
        for (const char *name :
             {"VoCc::MatrixPushButtons", "VoCc::MatrixRadioButtons", "VoCc::MatrixCheckBoxes"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    // Cells and counts change in one step of the history, labelled like the change; one Undo
    // gives back the form to the byte, one Redo the edited form.
    void matrixEditIsOneStep()
    {
        QFETCH(QString, className);
        const QByteArray cls = className.toLatin1();
        const QString entries = propertyXml("row", "2", "number")
                + propertyXml("column", "3", "number") + textItem("a") + textItem("b")
                + textItem("c") + textItem("d") + textItem("e") + textItem("f");
        QDesignerFormWindowInterface *form =
                createFormWindow(formXml(widgetXml(cls.constData(), "matrix", entries)));
        const auto closeForm = qScopeGuard([form] { closeFormWindow(form); });
        auto *matrix = formChild<VoCc::AbstractMatrixOptions>(form, "matrix");
        QVERIFY(matrix);
        const QString original = form->contents();

        QVERIFY(edit(matrix, [](Driver &dialog) {
            dialog.stepTo("rowCounts", 3);
            dialog.stepTo("colCounts", 2);
            dialog.selectCell(0, 0);
            dialog.renameCurrent(QStringLiteral("z"));
        }));
        QUndoStack *history = form->commandHistory();
        QCOMPARE(history->count(), 1);
        QCOMPARE(history->text(0), QStringLiteral("Change MatrixButtons Contents"));
        QCOMPARE(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()),
                 QStringLiteral("3x2"));
        QCOMPARE(matrix->textList().value(0), QStringLiteral("z"));
        const QString edited = form->contents();

        history->undo();
        QCOMPARE(history->index(), 0);
        QCOMPARE(form->contents(), original);
        QCOMPARE(QStringLiteral("%1x%2").arg(matrix->row()).arg(matrix->column()),
                 QStringLiteral("2x3"));
        history->redo();
        QCOMPARE(history->index(), 1);
        QCOMPARE(form->contents(), edited);
    }

};

QTEST_MAIN(TestFormEditing)
#include "tst_formediting.moc"
