// Forms through a real Designer core, whose save and load call the extra-info hooks that hand
// each widget's entries to the library's form builder. The example form comes back whole,
// without growing; forms a hand or another tool wrote, loadable but odd, keep what they hold,
// or a warning says what is left out.

#include "designertestcore.h"
#include "linguistmessages.h"
#include "uixml.h"
#include "warninglog.h"

#include <QDesignerFormWindowInterface>
#include <QFile>
#include <QtTest>

namespace {

using CcTest::itemXml;
using CcTest::propertyXml;

// A row of keptOrSaid: a widget of the class holding inner, what the saved form must still
// hold (nothing asked when empty), and the one warning loading and saving it gives, word for
// word (none when empty).
void oddForm(const char *row, const char *className, const QString &inner, const char *held,
             const char *warning = "")
{
    QTest::newRow(row) << CcTest::widgetXml(className, "odd", inner) << QString(held)
                       << QString(warning);
}

// A string marked as a form author marks one for translation.
QString markedString(const char *text, const char *attributes)
{
    return QStringLiteral("<string %1>%2</string>").arg(QLatin1String(attributes), QLatin1String(text));
}
QString markedProperty(const char *name, const char *text, const char *attributes)
{
    return QStringLiteral("<property name=\"%1\">%2</property>")
            .arg(QLatin1String(name), markedString(text, attributes));
}

// Every list family with texts and tool tips marked every way the format allows: a
// disambiguation, a translator's comment, an id, not to be translated.
QString markedEntries()
{
    const char *commented = "comment=\"menu\" extracomment=\"note\" id=\"cc.%1\"";
    const auto marked = [commented](const char *name, const char *text, const char *id) {
        return markedProperty(name, text, qPrintable(QString::fromLatin1(commented).arg(QLatin1String(id))));
    };
    const QString untranslated = markedProperty("toolTip", "tip code", "notr=\"true\"");
    const QString options = itemXml(marked("text", "Alpha", "alpha") + untranslated)
            + itemXml(markedProperty("text", "Beta", "notr=\"true\"")
                      + marked("toolTip", "Beta tip", "beta.tip"));
    const QString grid = propertyXml("row", "1", "number") + propertyXml("column", "2", "number");
    QString body;
    for (const char *className : {"VoCc::OptionButtons", "VoCc::OptionRadios",
                                  "VoCc::CheckableTextComboBox"})
        body += CcTest::widgetXml(className, className + 6, options);
    body += CcTest::widgetXml("VoCc::OptionComboBox", "optionCombo",
                              itemXml(marked("text", "Gamma", "gamma")));
    body += CcTest::widgetXml("VoCc::ComboBox", "combo", itemXml(marked("text", "Delta", "delta")));
    body += CcTest::widgetXml("VoCc::MatrixPushButtons", "matrix", grid + options);
    body += CcTest::widgetXml(
            "VoCc::MatrixPopButtons", "popButtons",
            grid
                    + QStringLiteral("<property name=\"textList\"><stringlist comment=\"menu\" "
                                     "extracomment=\"grid\"><string>One</string><string>Two"
                                     "</string></stringlist></property>")
                    + itemXml(untranslated));
    body += CcTest::widgetXml("VoCc::DrawbackBoxGroup", "group",
                              CcTest::widgetXml("QWidget", "page",
                                                marked("windowTitle", "Page title", "page")));
    return CcTest::formXml(body, CcTest::pageGroupDeclaration());
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

    void translationMarksSurviveDesigner()
    {
        // lupdate finds the same messages in a form before and after Designer saved it: the
        // texts and tool tips of every family with their disambiguations and comments, and
        // none of the strings marked not to be translated. lupdate does not report ids from
        // forms; the saved form holds every one.
        const QString original = markedEntries();
        const QStringList before = CcTest::linguistMessages(original);
        QVERIFY2(before.contains(QStringLiteral("Alpha | menu | note | ")),
                 qPrintable(before.join(QLatin1Char('\n'))));
        QVERIFY(before.contains(QStringLiteral("One | menu | grid | ")));
        QVERIFY(before.filter(QStringLiteral("code")).isEmpty());
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(original);
        const QString saved = form->contents();
        CcTest::closeFormWindow(form);
        QCOMPARE(CcTest::linguistMessages(saved), before);
        const QRegularExpression ids(QStringLiteral(" id=\"cc\\.[a-z.]+\""));
        QCOMPARE(saved.count(ids), original.count(ids));
        QCOMPARE(saved.count(ids), 11);
    }

    void keptOrSaid_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("warning");
        const QString textA = propertyXml("text", "A");
        oddForm("unknown item property", "VoCc::OptionButtons",
                itemXml(textA + propertyXml("colour", "red")), ">A<",
                "VoCc::OptionButtons \"odd\": item properties colour are not kept; its entries "
                "have text, icon, toolTip, data");
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
                "<number>99</number>",
                "VoCc::MatrixPushButtons \"odd\": property \"row\" is 500, more than the 99 rows "
                "or columns a grid can have; limited to 99");
        oddForm("items on a widget without entries", "VoCc::Pane",
                itemXml(propertyXml("text", "lost")), "",
                "VoCc::Pane \"odd\": its 1 item(s) are not kept; this widget has no entries");
        oddForm("unknown widget property", "VoCc::ComboBox", propertyXml("bogus", "7", "number"),
                "bogus");
    }

    void keptOrSaid()
    {
        QFETCH(QString, body);
        QFETCH(QString, held);
        QFETCH(QString, warning);
        const CcTest::WarningLog log;
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(body));
        const QString saved = form->contents();
        CcTest::closeFormWindow(form);
        QVERIFY2(saved.contains(held), qPrintable(saved));
        QCOMPARE(log.warnings, warning.isEmpty() ? QStringList() : QStringList(warning));
    }
};

QTEST_MAIN(TestFormsInDesigner)
#include "tst_formsindesigner.moc"
