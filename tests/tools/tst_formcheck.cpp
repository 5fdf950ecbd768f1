// ccformcheck run as a user runs it: on forms written here, with its real workers, the real
// Designer module and uic; what it prints, writes and returns.
#include "uixml.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using CcTest::formXml;
using CcTest::propertyXml;
using CcTest::widgetXml;

namespace {

struct Run
{
    int status = -1;
    QStringList lines; // standard output
    QString errors;
};

Run check(const QStringList &arguments, const QString &folder = QString())
{
    QProcess process;
    if (!folder.isEmpty())
        process.setWorkingDirectory(folder);
    process.start(QStringLiteral(CC_FORMCHECK), arguments);
    const bool finished = process.waitForFinished(120000);
    Run run;
    run.status = finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    run.lines.removeAll(QString());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QString pane(const char *name, const QString &inner)
{
    return widgetXml("VoCc::Pane", name, inner);
}

QString id(const char *value)
{
    return QStringLiteral("<property name=\"id\" stdset=\"0\"><number>%1</number></property>")
            .arg(QLatin1String(value));
}

QString icon(const QString &path, const QString &resource = QString())
{
    return QStringLiteral("<property name=\"windowIcon\"><iconset%2><normaloff>%1</normaloff>"
                          "</iconset></property>")
            .arg(path, resource.isEmpty() ? QString()
                                          : QStringLiteral(" resource=\"%1\"").arg(resource));
}

// Classes declared as Designer declares promoted widgets: a library's class it may not have,
// an application's own.
QString customWidgets()
{
    return QStringLiteral("<customwidget><class>VoCc::Gauge</class><extends>QWidget</extends>"
                          "<header>CcGauge.hpp</header></customwidget>"
                          "<customwidget><class>Clock</class><extends>QWidget</extends>"
                          "<header>clock.h</header></customwidget>"
                          "<customwidget><class>VoCc::TestFragile</class><extends>QWidget"
                          "</extends><header>testfragile.h</header></customwidget>");
}

// The fragile test widget, with its property set to the given mode.
QString fragile(const char *name, const char *mode)
{
    return widgetXml("VoCc::TestFragile", name, propertyXml("mode", mode));
}

// Both Designer modules: ours and the fragile test widget.
QStringList withModules(const QStringList &arguments)
{
    return QStringList {QStringLiteral("--plugin"), QStringLiteral(CC_PLUGIN_MODULE),
                        QStringLiteral("--plugin"), QStringLiteral(CC_FRAGILE_MODULE)}
            + arguments;
}

void write(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

} // namespace

class TestFormCheck : public QObject
{
    Q_OBJECT

private slots:
    // Each row: a form (body of a QWidget "Form"; the body starts on line 8), the checker's
    // options, and the findings it must print, FORM standing for the form's path.
    void findings_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("clean") << pane("a", id("1")) + pane("b", id("2"))
                               << QStringList {"--require-ids"}
                               << QStringList {};
        QTest::newRow("names") << pane("a", {}) + widgetXml("QLabel", "a") + pane("b", {})
                               << QStringList {}
                               << QStringList {"FORM:9: error: object name \"a\" is already the "
                                               "name of the VoCc::Pane on line 8",
                                               "FORM: warning: uic: FORM: Warning: The name 'a' "
                                               "(QLabel) is already in use, defaulting to 'a1'."};
        QTest::newRow("ids") << pane("a", id("7")) + pane("b", {}) + pane("c", id("0"))
                                        + pane("d", id("7")) + widgetXml("VoCc::Line", "e")
                             << QStringList {"--require-ids"}
                             << QStringList {
                                        "FORM:9: error: VoCc::Pane \"b\" has no id (a non-zero "
                                        "\"id\" property)",
                                        "FORM:10: error: VoCc::Pane \"c\" has no id (a non-zero "
                                        "\"id\" property)",
                                        "FORM:11: error: VoCc::Pane \"d\" has id 7, as VoCc::Pane "
                                        "\"a\" on line 8 has"};
        QTest::newRow("ids unchecked") << pane("b", {}) << QStringList {} << QStringList {};
        QTest::newRow("files")
                << pane("a", icon(QStringLiteral("missing.png")))
                        + pane("b", icon(QStringLiteral("folder")))
                        + pane("d", icon(QStringLiteral("/dev/null")))
                        + pane("e", icon(QStringLiteral("icon.png")))
                        + pane("f", icon(QStringLiteral(":/qt-project.org/styles/commonstyle/"
                                                        "images/standardbutton-open-16.png")))
                        + pane("g", icon(QStringLiteral(":/images/nowhere.png")))
                << QStringList {}
                << QStringList {
                           "FORM:8: error: icon \"missing.png\" names no file",
                           "FORM:9: error: icon \"folder\" names a folder, not a file",
                           "FORM:10: error: icon \"/dev/null\" names a device, pipe or socket, not "
                           "a file",
                           "FORM:13: warning: icon \":/images/nowhere.png\" is a resource, and the "
                           "form names no resource file to find it in",
                           // Loaded at run time, the device is left out with a word; Designer
                           // drops it quietly.
                           "FORM:10: warning: VoCc::Pane \"d\": not kept from the form: property "
                           "\"windowIcon\" \"/dev/null\" (no file: a pipe, device or socket)",
                           "FORM:10: error: VoCc::Pane \"d\": Designer's save drops the value "
                           "\"/dev/null\" of property \"windowIcon\" without a warning"};
        QTest::newRow("resources")
                << pane("a", icon(QStringLiteral(":/images/icon.png"), "icons.qrc"))
                        + pane("b", icon(QStringLiteral(":/images/other.png"), "icons.qrc"))
                        + pane("c", icon(QStringLiteral(":/images/icon.png"), "icons.qrc"))
                << QStringList {}
                << QStringList {"FORM:9: error: icon \":/images/other.png\" is in none of the "
                                "form's resource files (icons.qrc)",
                                "FORM:9: error: VoCc::Pane \"b\": Designer's save drops the value "
                                "\"icons.qrc\" of property \"windowIcon@resource\" without a "
                                "warning"};
        QTest::newRow("unknown classes")
                << widgetXml("VoCc::Gauge", "gauge") + widgetXml("Clock", "clock")
                << QStringList {}
                << QStringList {"FORM:8: error: VoCc::Gauge is no class of the CommonControls "
                                "library",
                                "FORM:9: warning: VoCc::FormBuilder does not know class Clock: "
                                "loaded at run time, the form shows a plain QWidget in its place"};
        QTest::newRow("lost in Designer")
                << widgetXml("VoCc::TestFragile", "fragile", propertyXml("secret", "kept?"))
                << QStringList {}
                << QStringList {"FORM:8: error: VoCc::TestFragile is no class of the "
                                "CommonControls library",
                                "FORM:8: error: VoCc::TestFragile \"fragile\": Designer's save "
                                "drops the value \"kept?\" of property \"secret\" without a "
                                "warning"};
    }
    void findings()
    {
        QFETCH(QString, body);
        QFETCH(QStringList, options);
        QFETCH(QStringList, expected);
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder")));
        write(dir.filePath(QStringLiteral("icon.png")), "not read");
        write(dir.filePath(QStringLiteral("icons.qrc")),
              "<RCC><qresource prefix=\"/images\"><file>icon.png</file></qresource></RCC>");
        const QString form = dir.filePath(QStringLiteral("form.ui"));
        QString xml = formXml(body, customWidgets());
        if (body.contains(QLatin1String("icons.qrc")))
            xml.replace(QLatin1String("<resources/>"),
                        QLatin1String("<resources><include location=\"icons.qrc\"/></resources>"));
        write(form, xml.toUtf8());
        const Run run = check(withModules(options << form));
        QStringList wanted = expected;
        wanted.replaceInStrings(QStringLiteral("FORM"), form);
        int errors = 0;
        for (const QString &line : expected)
            errors += line.contains(QLatin1String(": error: "));
        wanted << QStringLiteral("1 forms checked, %1 errors, %2 warnings")
                          .arg(errors)
                          .arg(expected.size() - errors);
        QVERIFY2(run.lines == wanted, qPrintable(run.lines.join(QLatin1Char('\n'))));
        QCOMPARE(run.status, errors ? 1 : 0);
    }

    // A form that hangs or crashes its worker is that form's error; the others are checked, in
    // the order named, whatever the order they finish in.
    void badFormsOnlyFailThemselves()
    {
        QTemporaryDir dir;
        // Qt's own icon reader, in Designer, waits for a writer of a FIFO for ever.
        const QString pipe = dir.filePath(QStringLiteral("pipe.png"));
        QVERIFY(mkfifo(QFile::encodeName(pipe), 0600) == 0);
        const QList<QPair<QString, QString>> forms {
                {"1-clean", pane("a", {})},
                {"2-hangs", fragile("fragile", "hang")},
                {"3-pipe", pane("a", icon(pipe))},
                {"4-crashes", fragile("fragile", "crash")},
                {"5-clean", pane("a", {})},
                {"6-clean", pane("a", {})}};
        for (const auto &form : forms)
            write(dir.filePath(form.first + QStringLiteral(".ui")),
                  formXml(form.second, customWidgets()).toUtf8());
        const Run run = check(withModules({"-j", "2", "--timeout", "5", "."}), dir.path());
        const QString inDesigner = QStringLiteral("while loading and saving it in Designer");
        QCOMPARE(run.lines.join(QLatin1Char('\n')),
                 QStringList({"2-hangs.ui: error: checking it took longer than 5 s, " + inDesigner,
                              "3-pipe.ui: error: checking it took longer than 5 s, " + inDesigner,
                              "4-crashes.ui: error: the checker crashed " + inDesigner,
                              "6 forms checked, 3 errors, 0 warnings"})
                         .join(QLatin1Char('\n')));
        QCOMPARE(run.status, 1);
    }

    // A worker's own start, however slow, is not counted as the form's time.
    void slowStartIsNoFormsTime()
    {
        QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("form.ui")), formXml(pane("a", {})).toUtf8());
        qputenv("CC_FRAGILE_START_SECONDS", "3");
        const Run run = check(withModules({"--timeout", "2", "form.ui"}), dir.path());
        qunsetenv("CC_FRAGILE_START_SECONDS");
        QCOMPARE(run.lines, QStringList {"1 forms checked, 0 errors, 0 warnings"});
    }

    // --junit and --html over a folder holding a form with an error, one with a warning and a
    // clean one; and the exit status of bad usage.
    void reportsAndUsage()
    {
        QTemporaryDir dir;
        const QString forms = dir.filePath(QStringLiteral("forms"));
        QVERIFY(QDir().mkpath(forms + QStringLiteral("/sub")));
        write(forms + QStringLiteral("/a-clean.ui"), formXml(pane("a", {})).toUtf8());
        write(forms + QStringLiteral("/sub/b-warning.ui"),
              formXml(widgetXml("Clock", "clock"), customWidgets()).toUtf8());
        write(forms + QStringLiteral("/c-error.ui"), QByteArray("<ui version=\"4.0\"><widget>"));
        write(forms + QStringLiteral("/notes.txt"), "not a form");
        const QString junit = dir.filePath(QStringLiteral("report.xml"));
        const QString html = dir.filePath(QStringLiteral("sheet"));
        const Run run = check({"--junit", junit, "--html", html, "forms"}, dir.path());
        QVERIFY2(run.lines.size() == 3, qPrintable(run.lines.join(QLatin1Char('\n'))));
        QCOMPARE(run.lines.last(), QStringLiteral("3 forms checked, 1 errors, 1 warnings"));
        QCOMPARE(run.status, 1);

        // One test case per form, in the order checked; only the one with an error fails. The
        // contact sheet: errors first, then warnings, then the rest; each loaded form links its
        // picture through a thumbnail, and the one that did not load says so.
        const auto read = [](const QString &fileName) {
            QFile file(fileName);
            return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        };
        const auto matches = [](const QString &text, const char *pattern) {
            QStringList found;
            for (auto it = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
                 it.hasNext();) {
                const QRegularExpressionMatch match = it.next();
                found << match.captured(1) + match.captured(2);
            }
            return found;
        };
        const QString report = read(junit);
        QCOMPARE(matches(report, "<testsuite[^>]* (tests=\"\\d+\" failures=\"\\d+\")"),
                 QStringList {"tests=\"3\" failures=\"1\""});
        QCOMPARE(matches(report, "<testcase [^>]*name=\"([^\"]+)\"[^>]*>\\s*(<failure)?"),
                 QStringList({"forms/a-clean.ui", "forms/c-error.ui<failure",
                              "forms/sub/b-warning.ui"}));
        const QString sheet = read(html + QStringLiteral("/index.html"));
        QCOMPARE(matches(sheet, "<h2>([^<]+)</h2>"),
                 QStringList({"forms/c-error.ui", "forms/sub/b-warning.ui", "forms/a-clean.ui"}));
        QVERIFY(sheet.contains(QLatin1String("no picture: the form did not load")));
        const QStringList thumbnails =
                matches(sheet, "<a href=\"(\\d+\\.png)\"><img src=\"(\\d+-small\\.png)\"");
        QCOMPARE(thumbnails.size(), 2);
        for (const QString &pair : thumbnails) {
            const QStringList names = pair.split(QStringLiteral(".png"));
            const QImage full(html + QLatin1Char('/') + names.at(0) + QStringLiteral(".png"));
            const QImage small(html + QLatin1Char('/') + names.at(1) + QStringLiteral(".png"));
            QVERIFY(!full.isNull());
            QCOMPARE(small.width(), qMin(full.width(), 320));
        }

        // Bad usage: 2, and what was wrong.
        const QList<QPair<QStringList, QString>> usage {
                {{}, "no forms named"},
                {{"-j", "0", "forms"}, "-j needs a number of workers"},
                {{"--timeout", "soon", "forms"}, "--timeout needs a number of seconds"},
                {{"nowhere"}, "no such file or folder: nowhere"},
                {{"--frobnicate", "forms"}, "Unknown option 'frobnicate'"}};
        for (const auto &bad : usage) {
            const Run wrong = check(bad.first, dir.path());
            QCOMPARE(wrong.status, 2);
            QVERIFY2(wrong.errors.startsWith(QStringLiteral("ccformcheck: ") + bad.second),
                     qPrintable(wrong.errors));
        }
    }

    // The example form of this project is clean, ids included.
    void exampleFormsAreClean()
    {
        const Run run = check({"--require-ids", CC_EXAMPLE_FORMS});
        QCOMPARE(run.lines, QStringList {"1 forms checked, 0 errors, 0 warnings"});
        QCOMPARE(run.status, 0);
    }
};

QTEST_GUILESS_MAIN(TestFormCheck)
#include "tst_formcheck.moc"
