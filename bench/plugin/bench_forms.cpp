#include "benchsupport.h"
#include "designertestcore.h"

#include <QApplication>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QElapsedTimer>
#include <QTextStream>

namespace {

QString items(const QStringList &texts, bool withData)
{
    QString xml;
    for (int i = 0; i < texts.size(); ++i) {
        xml += QStringLiteral(
                       "    <item>\n     <property name=\"text\"><string>%1</string></property>\n")
                       .arg(texts.at(i));
        if (withData)
            xml += QStringLiteral("     <property name=\"data\"><string notr=\"true\">%1</string>"
                                  "</property>\n")
                           .arg(i);
        xml += QStringLiteral("    </item>\n");
    }
    return xml;
}

QString children(const char *className, const QString &prefix, const QStringList &texts)
{
    QString xml;
    for (int i = 0; i < texts.size(); ++i)
        xml += QStringLiteral("    <widget class=\"%1\" name=\"%2_%3\">\n"
                              "     <property name=\"geometry\"><rect><x>%4</x><y>0</y>"
                              "<width>40</width><height>20</height></rect></property>\n"
                              "     <property name=\"text\"><string>%5</string></property>\n"
                              "    </widget>\n")
                       .arg(QLatin1String(className), prefix)
                       .arg(i)
                       .arg(i * 40)
                       .arg(texts.at(i));
    return xml;
}

// One unit of the form: a CommonControls widget with its entries, and the built-in Qt widget
// of the nearest kind (option groups and matrices become a plain widget holding buttons).
struct Unit
{
    const char *ours;
    const char *builtIn;
    enum Entries { None, Items, ItemsWithData, Buttons, Radios, CheckBox } entries;
};

const Unit units[] = {
        {"VoCc::ComboBox", "QComboBox", Unit::Items},
        {"VoCc::OptionButtons", "QWidget", Unit::ItemsWithData},
        {"VoCc::OptionRadios", "QWidget", Unit::ItemsWithData},
        {"VoCc::MatrixPushButtons", "QWidget", Unit::Items},
        {"VoCc::OptionCheckBox", "QCheckBox", Unit::ItemsWithData},
        {"VoCc::LineEditEx", "QLineEdit", Unit::None},
        {"VoCc::RealNumberEdit", "QLineEdit", Unit::None},
        {"VoCc::ListWidget", "QListWidget", Unit::None},
        {"VoCc::TextEdit", "QTextEdit", Unit::None},
        {"VoCc::ColorButton", "QToolButton", Unit::None},
};

QString buildForm(int count, bool ours)
{
    QString body;
    const int unitCount = int(sizeof(units) / sizeof(units[0]));
    for (int i = 0; i < count; ++i) {
        const Unit &unit = units[i % unitCount];
        const QString name = QStringLiteral("w%1").arg(i);
        QStringList texts = {QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")};
        if (qstrcmp(unit.ours, "VoCc::MatrixPushButtons") == 0)
            texts << QStringLiteral("Four");
        if (qstrcmp(unit.ours, "VoCc::OptionCheckBox") == 0)
            texts = QStringList {QStringLiteral("Yes"), QStringLiteral("No")};
        const char *className = ours ? unit.ours : unit.builtIn;
        body += QStringLiteral("  <widget class=\"%1\" name=\"%2\">\n"
                               "   <property name=\"geometry\"><rect><x>%3</x><y>%4</y>"
                               "<width>160</width><height>24</height></rect></property>\n")
                        .arg(QLatin1String(className), name)
                        .arg((i % 10) * 170)
                        .arg((i / 10) * 30);
        if (unit.entries == Unit::None) {
        } else if (ours) {
            body += items(texts, unit.entries == Unit::ItemsWithData);
        } else if (qstrcmp(unit.builtIn, "QComboBox") == 0) {
            body += items(texts, false);
        } else if (qstrcmp(unit.builtIn, "QCheckBox") == 0) {
            body += QStringLiteral("   <property name=\"text\"><string>Yes</string></property>\n");
        } else {
            const bool radios = qstrcmp(unit.ours, "VoCc::OptionRadios") == 0;
            body += children(radios ? "QRadioButton" : "QPushButton", name, texts);
        }
        body += QStringLiteral("  </widget>\n");
    }
    return CcTest::formXml(body);
}

struct Timing
{
    QList<double> load, save, reload;
};

void measure(const QString &xml, Timing &timing)
{
    QElapsedTimer timer;
    timer.start();
    QDesignerFormWindowInterface *form = CcTest::createFormWindow(xml);
    timing.load << timer.nsecsElapsed() / 1e6;
    timer.restart();
    const QString saved = form->contents();
    timing.save << timer.nsecsElapsed() / 1e6;
    CcTest::closeFormWindow(form);

    // The saved text again, in a fresh form window.
    timer.restart();
    QDesignerFormWindowInterface *again = CcTest::createFormWindow(saved);
    timing.reload << timer.nsecsElapsed() / 1e6;
    CcTest::closeFormWindow(again);
}

} // namespace

// Loading and saving a form of 2,000 CommonControls widgets in Designer, against the same
// layout of built-in Qt widgets, in the same process, alternating, medians.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    CcTest::usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
    QDesignerFormEditorInterface *core = CcTest::designerCore();
    QTextStream out(stdout);
    if (core->pluginInstances().size() != 1) {
        out << "the module did not load\n";
        return 1;
    }
    const int count = qEnvironmentVariableIsSet("CC_BENCH_WIDGETS")
            ? qEnvironmentVariableIntValue("CC_BENCH_WIDGETS")
            : 2000;
    const int runs = qEnvironmentVariableIsSet("CC_BENCH_RUNS")
            ? qEnvironmentVariableIntValue("CC_BENCH_RUNS")
            : 5;
    const QString oursXml = buildForm(count, true);
    const QString builtInXml = buildForm(count, false);

    Timing warmUp, ours, builtIn;
    measure(builtInXml, warmUp);
    measure(oursXml, warmUp);
    for (int i = 0; i < runs; ++i) {
        measure(builtInXml, builtIn);
        measure(oursXml, ours);
    }

    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    out << "Form of " << count << " widgets, median of " << runs << " runs each\n";
    const struct
    {
        const char *what;
        QList<double> Timing::*values;
    } rows[] = {{"load (setContents)", &Timing::load},
                {"save (contents)", &Timing::save},
                {"second load, fresh window", &Timing::reload}};
    for (const auto &row : rows) {
        const double base = Bench::median(builtIn.*row.values);
        const double mine = Bench::median(ours.*row.values);
        out << "  " << qSetFieldWidth(27) << Qt::left << row.what << qSetFieldWidth(0)
            << "built-in " << base << " ms, CommonControls " << mine << " ms, ratio " << mine / base
            << "x (target <= 1.20)\n";
    }
    out.flush();
    // The core stays alive to the end, as in Designer; exit without tearing it down.
    std::_Exit(0);
}
