// Forms through a real Designer core, whose save and load call the extra-info hooks that hand
// each widget's entries to the library's form builder. The example form comes back whole,
// without growing; forms a hand or another tool wrote, loadable but odd, keep what they hold,
// or a warning says what is left out.

#include "designertestcore.h"

#include <QDesignerFormWindowInterface>
#include <QFile>
#include <QtTest>

namespace {

QStringList warnings;
QtMessageHandler previousHandler = nullptr;
void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg && !message.contains(QLatin1String("propagateSizeHints")))
        warnings << message;
    previousHandler(type, context, message);
}

QString widget(const char *className, const QString &inner)
{
    return QStringLiteral("<widget class=\"%1\" name=\"odd\">%2</widget>\n")
            .arg(QLatin1String(className), inner);
}

QString item(const QString &properties)
{
    return QStringLiteral("<item>%1</item>").arg(properties);
}

QString prop(const char *name, const char *value, const char *kind = "string")
{
    return QStringLiteral("<property name=\"%1\"><%3>%2</%3></property>")
            .arg(QLatin1String(name), QLatin1String(value), QLatin1String(kind));
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
        // What the saved form must still hold, unless a warning names it.
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown item property")
                << widget("VoCc::OptionButtons", item(prop("text", "A") + prop("colour", "red")))
                << "red"
                << "colour";
        QTest::newRow("lists of unequal length") << widget(
                "VoCc::OptionRadios",
                item(prop("text", "A") + prop("data", "1")) + item(prop("toolTip", "only a tip")))
                                                 << "only a tip"
                                                 << "";
        QTest::newRow("empty item")
                << widget("VoCc::OptionComboBox", item(QString()) + item(prop("text", "B")))
                << ">B<"
                << "";
        QTest::newRow("missing icon") << widget(
                "VoCc::OptionButtons", item(prop("text", "A") + prop("icon", "/nowhere/x.png")))
                                      << "/nowhere/x.png"
                                      << "";
        QTest::newRow("rows beyond the editor")
                << widget("VoCc::MatrixPushButtons",
                          prop("row", "500", "number") + prop("column", "2", "number"))
                << "<number>500</number>"
                << "row";
        QTest::newRow("items on a widget without entries")
                << widget("VoCc::Pane", item(prop("text", "lost"))) << "lost"
                << "item";
        QTest::newRow("unknown widget property")
                << widget("VoCc::ComboBox", prop("bogus", "7", "number")) << "bogus"
                << "bogus";
    }

    void keptOrSaid()
    {
        QFETCH(QString, body);
        QFETCH(QString, held);
        QFETCH(QString, named);
        warnings.clear();
        previousHandler = qInstallMessageHandler(collect);
        QDesignerFormWindowInterface *form = CcTest::createFormWindow(CcTest::formXml(body));
        const QString saved = form->contents();
        qInstallMessageHandler(previousHandler);
        CcTest::closeFormWindow(form);
        const bool said = !named.isEmpty() && warnings.join(QLatin1Char('\n')).contains(named);
        QVERIFY2(saved.contains(held) || said, qPrintable(saved));
    }
};

QTEST_MAIN(TestFormsInDesigner)
#include "tst_formsindesigner.moc"
