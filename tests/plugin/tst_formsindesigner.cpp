// Forms through a real Designer core, whose save and load call the extra-info hooks that hand
// each widget's entries to the library's form builder. The example form comes back whole,
// without growing; forms a hand or another tool wrote, loadable but odd, keep what they hold,
// or a warning says what is left out.

#include "designertestcore.h"
#include "formroundtrip.h"
#include "formvalues.h"
#include "linguistmessages.h"
#include "uixml.h"
#include "warninglog.h"

#include <QtDesigner>
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

// A string property marked as a form author marks one for translation.
QString markedProperty(const char *name, const char *text, const char *attributes)
{
    return QStringLiteral("<property name=\"%1\"><string %2>%3</string></property>")
            .arg(QLatin1String(name), QLatin1String(attributes), QLatin1String(text));
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

// A row of everyValueKeptOrNamed: a form of one widget of the class holding inner.
void formOf(const char *row, const char *className, const QString &inner)
{
    QTest::newRow(row) << CcTest::formXml(CcTest::widgetXml(className, "odd", inner),
                                          CcTest::pageGroupDeclaration());
}

QString stringsXml(const char *name, const QStringList &strings)
{
    QString list;
    for (const QString &string : strings)
        list += QStringLiteral("<string>%1</string>").arg(string);
    return QStringLiteral("<property name=\"%1\"><stringlist>%2</stringlist></property>")
            .arg(QLatin1String(name), list);
}

QString losses(const char *road, const QByteArray &input, const CcTest::RoundTrip &trip)
{
    QStringList lost;
    if (!trip.loaded)
        lost << QStringLiteral("not loaded: ") + trip.error;
    for (const FormValues::Value &loss :
         FormValues::unexplainedLosses(input, trip.saved, trip.warnings))
        lost << FormValues::describe(loss);
    if (lost.isEmpty())
        return QString();
    return QStringLiteral("%1:\n%2\nwarnings:\n%3\nsaved:\n%4")
            .arg(QLatin1String(road), lost.join(QLatin1Char('\n')),
                 trip.warnings.join(QLatin1Char('\n')), QString::fromUtf8(trip.saved));
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
                "VoCc::OptionButtons \"odd\": not kept from the form: item 1 property "
                "\"colour\" value \"red\"");
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
                "VoCc::Pane \"odd\": not kept from the form: item 1 property \"text\" value "
                "\"lost\"");
        oddForm("unknown widget property", "VoCc::ComboBox", propertyXml("bogus", "7", "number"),
                "bogus");
    }

    void everyValueKeptOrNamed_data()
    {
        QTest::addColumn<QString>("form");
        const QString textA = propertyXml("text", "A");
        const QString grid = propertyXml("row", "2", "number") + propertyXml("column", "2", "number");
        formOf("item text as a string list", "VoCc::OptionButtons",
               itemXml(stringsXml("text", {"listed", "twice"})) + itemXml(textA));
        formOf("item property given twice", "VoCc::OptionRadios",
               itemXml(propertyXml("text", "first") + propertyXml("text", "second")));
        formOf("unknown widget property", "VoCc::CheckableTextComboBox",
               propertyXml("zork", "7", "number") + propertyXml("note", "kept"));
        formOf("combo box item text given twice", "VoCc::ComboBox",
               itemXml(propertyXml("text", "first") + propertyXml("text", "second")));
        formOf("combo box item text as an icon", "VoCc::ComboBox",
               itemXml(textA + propertyXml("action", "a1"))
                       + itemXml(QStringLiteral("<property name=\"text\"><iconset><normaloff>x.png"
                                                "</normaloff></iconset></property>")
                                 + propertyXml("action", "a2"))
                       + itemXml(propertyXml("text", "C") + propertyXml("action", "a3")));
        formOf("item nested in an item", "VoCc::CheckableTextComboBox",
               itemXml(textA + itemXml(propertyXml("text", "inner"))));
        formOf("item nested in a combo box item", "VoCc::ComboBox",
               itemXml(textA + itemXml(propertyXml("text", "inner"))));
        formOf("marked combo box item", "VoCc::ComboBox",
               itemXml(markedProperty("text", "Delta", "comment=\"menu\" extracomment=\"note\"")));
        formOf("unknown item property", "VoCc::OptionButtons",
               itemXml(textA + propertyXml("colour", "red")));
        formOf("items on a widget without entries", "VoCc::Pane",
               itemXml(propertyXml("text", "lost")));
        formOf("marks on data", "VoCc::OptionComboBox",
               itemXml(textA + QStringLiteral("<property name=\"data\"><string notr=\"true\" "
                                              "comment=\"why\">d1</string></property>")));
        formOf("pop-button text list as one string", "VoCc::MatrixPopButtons",
               grid + propertyXml("textList", "alone")
                       + itemXml(propertyXml("toolTip", "tip")));
        formOf("pop-button texts in the list and the items", "VoCc::MatrixPopButtons",
               grid + stringsXml("textList", {"one", ""})
                       + itemXml(propertyXml("text", "other")) + itemXml(propertyXml("text", "two")));
        formOf("pop-button text list given twice", "VoCc::MatrixPopButtons",
               grid + stringsXml("textList", {"old"}) + stringsXml("textList", {"new"}));
        formOf("rows given twice", "VoCc::MatrixPushButtons",
               grid + propertyXml("row", "3", "number") + itemXml(textA));
        formOf("rows below zero", "VoCc::MatrixRadioButtons",
               propertyXml("row", "-3", "number") + propertyXml("column", "2", "number"));
        formOf("columns not a number", "VoCc::MatrixCheckBoxes",
               propertyXml("row", "2", "number") + propertyXml("column", "many"));
        formOf("current entry out of range", "VoCc::OptionButtons",
               propertyXml("currentIndex", "7", "number") + itemXml(textA));
        formOf("current combo box item out of range", "VoCc::ComboBox",
               propertyXml("currentIndex", "2147483647") + itemXml(textA));
        formOf("current page out of range", "VoCc::DrawbackBoxGroup",
               propertyXml("currentIndex", "4", "number")
                       + CcTest::widgetXml("QWidget", "page", propertyXml("windowTitle", "only")));
        formOf("marked page title", "VoCc::DrawbackBoxGroup",
               CcTest::widgetXml("QWidget", "page",
                                 markedProperty("windowTitle", "Title", "comment=\"c\" id=\"t\"")));
        formOf("page title as a picture and a list", "VoCc::DrawbackBoxGroup",
               CcTest::widgetXml("QWidget", "picture", propertyXml("windowTitle", "p.png", "pixmap"))
                       + CcTest::widgetXml("QWidget", "list", stringsXml("windowTitle", {"a", "b"})));
        formOf("page title given twice", "VoCc::DrawbackBoxGroup",
               CcTest::widgetXml("QWidget", "page",
                                 propertyXml("windowTitle", "first") + propertyXml("windowTitle", "second")));
        formOf("page without a name titled by a picture", "VoCc::DrawbackBoxGroup",
               CcTest::widgetXml("QWidget", "page", propertyXml("windowTitle", "first"))
                       + QStringLiteral("<widget class=\"QWidget\">%1</widget>")
                                 .arg(propertyXml("windowTitle", "p.png", "pixmap")));
        formOf("pages of one name", "VoCc::DrawbackBoxGroup",
               CcTest::widgetXml("QWidget", "page", propertyXml("windowTitle", "first"))
                       + CcTest::widgetXml("QWidget", "page", propertyXml("windowTitle", "second")));
    }

    void everyValueKeptOrNamed()
    {
        // Through Designer (load, save, load, save) and through VoCc::FormBuilder (load, save),
        // every value of the form is in what was saved, or a warning names the widget, the
        // property and the value.
        QFETCH(QString, form);
        const QByteArray input = form.toUtf8();
        const QString designer = losses("Designer", input, CcTest::throughDesigner(input));
        QVERIFY2(designer.isEmpty(), qPrintable(designer));
        const QString builder = losses("VoCc::FormBuilder", input, CcTest::throughFormBuilder(input));
        QVERIFY2(builder.isEmpty(), qPrintable(builder));
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
