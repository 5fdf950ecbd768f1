// Times loading forms at run time through VoCc::FormBuilder (load, show, the first layout and
// paint): every list-like widget with 1,000, 10,000 and 100,000 entries, and the button
// matrices at 10 x 10, 99 x 99 and a form asking for 65,536 x 65,536, each against a
// VoCc::ComboBox with as many entries in the same run. Prints medians and ratios; a last row
// puts the page group's pages in a QStackedWidget, for what the form's page widgets cost alone.
// Last, forms of 100,000 entries loaded with translation on against off, with a translator
// installed that translates every text of the form.

#include "benchsupport.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QTranslator>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace {

QString formXml(const QString &body)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n"
                          " <widget class=\"QWidget\" name=\"Form\">\n%1 </widget>\n</ui>\n")
            .arg(body);
}

QString items(int count)
{
    QString xml;
    for (int i = 0; i < count; ++i)
        xml += QStringLiteral("   <item><property name=\"text\"><string>Entry %1</string>"
                              "</property></item>\n")
                       .arg(i);
    return xml;
}

QString widgetXml(const char *className, const QString &contents)
{
    return QStringLiteral("  <widget class=\"%1\" name=\"measured\">\n%2  </widget>\n")
            .arg(QLatin1String(className), contents);
}

// The entries of a widget of the class, written as the form builder writes them.
QString listForm(const char *className, int count)
{
    if (qstrcmp(className, "VoCc::DrawbackBoxGroup") == 0
        || qstrcmp(className, "QStackedWidget") == 0) {
        QString pages;
        for (int i = 0; i < count; ++i)
            pages += QStringLiteral("   <widget class=\"QWidget\" name=\"page_%1\"><property "
                                    "name=\"windowTitle\"><string>Entry %1</string></property>"
                                    "</widget>\n")
                             .arg(i);
        return formXml(widgetXml(className, pages));
    }
    if (qstrcmp(className, "VoCc::MatrixPopButtons") == 0) {
        QString texts;
        for (int i = 0; i < count; ++i)
            texts += QStringLiteral("<string>Entry %1</string>").arg(i);
        return formXml(widgetXml(
                className,
                QStringLiteral("   <property name=\"textList\"><stringlist>%1</stringlist>"
                               "</property>\n")
                        .arg(texts)));
    }
    return formXml(widgetXml(className, items(count)));
}

// A matrix asking for rows x columns, with an entry for every cell it gets.
QString matrixForm(const char *className, int rows, int columns, int cells)
{
    return formXml(widgetXml(className,
                             QStringLiteral("   <property name=\"row\"><number>%1</number>"
                                            "</property>\n   <property name=\"column\"><number>"
                                            "%2</number></property>\n")
                                             .arg(rows)
                                             .arg(columns)
                                     + items(cells)));
}

int warnings = 0;
void countWarnings(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++warnings;
}

// Milliseconds to load the form and show it; the form is deleted outside the time.
double loadOnce(const QByteArray &xml, bool translate = true)
{
    QScopedPointer<QWidget> form;
    const double ms = Bench::timeIt([&] {
        VoCc::FormBuilder builder;
        builder.setTranslationEnabled(translate);
        QBuffer buffer;
        buffer.setData(xml);
        buffer.open(QIODevice::ReadOnly);
        form.reset(builder.load(&buffer));
        if (!form) {
            std::fprintf(stderr, "bench_loading: %s\n", qPrintable(builder.errorString()));
            std::exit(1);
        }
        form->setAttribute(Qt::WA_DontShowOnScreen);
        form->show();
    });
    return ms;
}

// Medians of the two forms, loaded in turn so that both see the same conditions.
QPair<double, double> compare(const QByteArray &baseline, const QByteArray &measured, int runs)
{
    QList<double> base, mine;
    loadOnce(baseline);
    loadOnce(measured);
    for (int i = 0; i < runs; ++i) {
        base << loadOnce(baseline);
        mine << loadOnce(measured);
    }
    return {Bench::median(base), Bench::median(mine)};
}

// The form of a widget with count entries, as the class "Form" whose texts lupdate would put
// in that context.
QByteArray translatableForm(const char *className, int count)
{
    return listForm(className, count)
            .replace(QStringLiteral("<ui version=\"4.0\">\n"),
                     QStringLiteral("<ui version=\"4.0\">\n <class>Form</class>\n"))
            .toUtf8();
}

// A translation of "Entry 0" to "Entry <count - 1>" in the context "Form", made by lrelease
// from a .ts written here. Exits when lrelease fails.
void loadTranslation(QTranslator *translator, const QTemporaryDir &folder, int count)
{
    const QString ts = folder.filePath(QStringLiteral("entries.ts"));
    const QString qm = folder.filePath(QStringLiteral("entries.qm"));
    QFile file(ts);
    if (!file.open(QIODevice::WriteOnly))
        std::exit(1);
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                     "<TS version=\"2.1\" language=\"fr\">\n<context>\n<name>Form</name>\n";
    for (int i = 0; i < count; ++i)
        xml += "<message><source>Entry " + QByteArray::number(i)
                + "</source><translation>Entr\xc3\xa9e " + QByteArray::number(i)
                + "</translation></message>\n";
    xml += "</context>\n</TS>\n";
    file.write(xml);
    file.close();
    QProcess lrelease;
    lrelease.start(QStringLiteral(CC_LRELEASE), {ts, QStringLiteral("-qm"), qm});
    if (!lrelease.waitForFinished(600000) || lrelease.exitCode() != 0 || !translator->load(qm)) {
        std::fprintf(stderr, "bench_loading: lrelease could not make %s\n", qPrintable(qm));
        std::exit(1);
    }
}

const char *const listFamilies[] = {
        "VoCc::CheckableTextComboBox", "VoCc::OptionComboBox",   "VoCc::OptionButtons",
        "VoCc::OptionRadios",          "VoCc::OptionCheckBox",   "VoCc::MatrixPushButtons",
        "VoCc::MatrixRadioButtons",    "VoCc::MatrixCheckBoxes", "VoCc::MatrixPopButtons",
        "VoCc::DrawbackBoxGroup",      "QStackedWidget",
};

const char *const matrices[] = {
        "VoCc::MatrixPushButtons",
        "VoCc::MatrixRadioButtons",
        "VoCc::MatrixCheckBoxes",
        "VoCc::MatrixPopButtons",
};

int runsFor(int entries) { return entries >= 100000 ? 3 : 5; }

// Prints the loads with translation on against off; returns the exit code.
int translationRatios()
{
    // Translation: every entry's text is looked up in a translation that has them all.
    const int translated = 100000;
    QTemporaryDir folder;
    QTranslator translator;
    loadTranslation(&translator, folder, translated);
    QCoreApplication::installTranslator(&translator);
    std::printf("Loading with translation on (every text translated) against off, %d entries, "
                "medians of 5 runs\n",
                translated);
    double worstTranslation = 0;
    for (const char *family : {"VoCc::OptionButtons", "VoCc::ComboBox", "VoCc::OptionRadios",
                               "VoCc::CheckableTextComboBox", "VoCc::MatrixPopButtons"}) {
        const QByteArray form = translatableForm(family, translated);
        QList<double> off, on;
        loadOnce(form, false);
        loadOnce(form, true);
        for (int i = 0; i < 5; ++i) {
            off << loadOnce(form, false);
            on << loadOnce(form, true);
        }
        const double ratio = Bench::median(on) / Bench::median(off);
        worstTranslation = qMax(worstTranslation, ratio);
        std::printf("  %-28s %8.1f ms vs %8.1f %5.2fx\n", family, Bench::median(on),
                    Bench::median(off), ratio);
        std::fflush(stdout);
    }
    std::printf("Worst ratio of translation on to off: %.2fx (target <= 1.30)\n", worstTranslation);
    QCoreApplication::removeTranslator(&translator);

    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    qInstallMessageHandler(countWarnings);
    const int sizes[] = {1000, 10000, 100000};
    double worst = 0;
    // "--translation" measures the translated loads only.
    if (QCoreApplication::arguments().contains(QStringLiteral("--translation")))
        return translationRatios();

    std::printf("Loading through VoCc::FormBuilder (load and show), medians of 5 runs (3 at "
                "100,000): each cell is the widget's time vs a VoCc::ComboBox with as many "
                "entries, and their ratio\n");
    std::printf("  %-28s", "entries");
    for (int size : sizes)
        std::printf(" %22d", size);
    std::printf("\n");
    QByteArray comboForms[3];
    for (int s = 0; s < 3; ++s)
        comboForms[s] = listForm("VoCc::ComboBox", sizes[s]).toUtf8();
    // The last row is no family of ours: the same pages in Qt's own page container, what the
    // page widgets of the form cost by themselves.
    const char *const reference = "QStackedWidget";
    for (const char *family : listFamilies) {
        std::printf("  %-28s", family == reference ? "(QStackedWidget, same pages)" : family);
        for (int s = 0; s < 3; ++s) {
            const QByteArray form = listForm(family, sizes[s]).toUtf8();
            const auto times = compare(comboForms[s], form, runsFor(sizes[s]));
            const double ratio = times.second / times.first;
            if (sizes[s] == 100000 && family != reference)
                worst = qMax(worst, ratio);
            std::printf(" %8.1f ms vs %6.1f %5.2fx", times.second, times.first, ratio);
        }
        std::printf("\n");
        std::fflush(stdout);
    }

    // The grid a form asking for 65,536 x 65,536 gets is 99 x 99, with one warning for each
    // dimension: it is compared with as many entries as that grid has cells.
    const struct
    {
        const char *label;
        int rows, columns, cells;
    } grids[] = {{"10 x 10", 10, 10, 100},
                 {"99 x 99", 99, 99, 99 * 99},
                 {"65536 x 65536 (gets 99 x 99)", 65536, 65536, 99 * 99}};
    std::printf("Button matrices with an entry per cell, against a VoCc::ComboBox with as many "
                "entries, medians of 5 runs\n");
    for (const auto &grid : grids) {
        const QByteArray combo = listForm("VoCc::ComboBox", grid.cells).toUtf8();
        std::printf("  %-28s\n", grid.label);
        for (const char *matrix : matrices) {
            warnings = 0;
            const QByteArray form =
                    matrixForm(matrix, grid.rows, grid.columns, grid.cells).toUtf8();
            const auto times = compare(combo, form, 5);
            std::printf("    %-26s %8.1f ms vs %6.1f %5.2fx, %d warnings per load\n", matrix,
                        times.second, times.first, times.second / times.first, warnings / 6);
            std::fflush(stdout);
        }
    }
    translationRatios();
    std::printf("Worst ratio at 100,000 entries: %.2fx (target <= 2.00); peak memory %lld MiB\n",
                worst, Bench::peakMemoryKiB() / 1024);
    return 0;
}
