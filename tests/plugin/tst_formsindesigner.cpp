// Forms through a real Designer core, whose save and load call the extra-info hooks that hand
// each widget's entries to the library's form builder. The example form comes back whole,
// without growing; forms a hand or another tool wrote, loadable but odd, keep what they hold,
// or a warning says what is left out.

#include "designertestcore.h"
#include "uixml.h"
#include "warninglog.h"

#include <QDesignerFormWindowInterface>
#include <QFile>
#include <QtTest>

namespace {

using CcTest::itemXml;
using CcTest::propertyXml;

// A row of keptOrSaid: a widget of the class holding inner, what the saved form must still
// hold unless a warning names what is left out.
void oddForm(const char *row, const char *className, const QString &inner, const char *held,
             const char *named = "")
{
    QTest::newRow(row) << CcTest::widgetXml(className, "odd", inner) << QString(held)
                       << QString(named);
}

} // namespace

class TestFormsInDesigner : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(CcTest::designerCore());
    }

    void exampleFormSurvivesDesigner()
    {
        // The example form is kept as Designer saves it, Designer 5 and Designer 6 alike:
        // loaded and saved, it comes back byte for byte, each widget's entries written once
        // through the extra-info hooks.
        QFile file(QStringLiteral(CC_EXAMPLE_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString original = QString::fromUtf8(file.readAll());
        QCOMPARE(original.count(QStringLiteral("<string notr=\"true\">fileOpen</string>")), 1);
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(original);
        QCOMPARE(form->contents(), original);
        CcTest::closeFormWindow(form);
    }

    void keptOrSaid_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("named");
        const QString textA = propertyXml("text", "A");
        oddForm("unknown item property", "VoCc::OptionButtons",
                itemXml(textA + propertyXml("colour", "red")), "red", "colour");
        oddForm("lists of unequal length", "VoCc::OptionRadios",
                itemXml(textA + propertyXml("data", "1"))
                        + itemXml(propertyXml("toolTip", "only a tip")),
                "only a tip");
        oddForm("empty item", "VoCc::OptionComboBox",
                itemXml(QString()) + itemXml(propertyXml("text", "B")), ">B<");
        oddForm("missing icon", "VoCc::OptionButtons",
                itemXml(textA + propertyXml("icon", "/nowhere/x.png")), "/nowhere/x.png");
        oddForm("rows beyond the editor", "VoCc::MatrixPushButtons",
                propertyXml("row", "500", "number") + propertyXml("column", "2", "number"),
                "<number>500</number>", "row");
        oddForm("items on a widget without entries", "VoCc::Pane",
                itemXml(propertyXml("text", "lost")), "lost", "item");
        oddForm("unknown widget property", "VoCc::ComboBox", propertyXml("bogus", "7", "number"),
                "bogus", "bogus");
    }

    void keptOrSaid()
    {
        QFETCH(QString, body);
        QFETCH(QString, held);
        QFETCH(QString, named);
        const CcTest::WarningLog log;
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(body));
        const QString saved = form->contents();
        CcTest::closeFormWindow(form);
        const bool said = !named.isEmpty() && log.warnings.join(QLatin1Char('\n')).contains(named);
        QVERIFY2(saved.contains(held) || said, qPrintable(saved));
    }
};

QTEST_MAIN(TestFormsInDesigner)
#include "tst_formsindesigner.moc"
