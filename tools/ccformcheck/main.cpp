// ccformcheck [options] PATH...
//
// Checks forms that use the CommonControls widgets: files, or folders searched for *.ui. Each
// form is loaded as the application loads it (VoCc::FormBuilder) and as Designer loads and
// saves it (a headless Designer core with the module), its object names, ids and file
// references are checked, and uic compiles it. Findings are printed a line each in the
// compiler format, then a summary line. Exit status: 0 without errors, 1 with errors, 2 on
// bad usage. Forms are checked in worker processes (the same program with --worker), each
// form with a time limit, so a form that hangs or crashes the loader is that form's error.
#include "formcheck.h"
#include "reports.h"
#include "workerpool.h"

#include "designercore.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcessEnvironment>
#include <QTextStream>
#include <QThread>

#include <cstdio>
#include <unistd.h>

namespace {

enum ExitStatus { Clean = 0, Errors = 1, BadUsage = 2 };

struct Options
{
    int jobs = 1;
    int timeout = 60;
    QString junit;
    QString html;
    QStringList plugins;
    CheckOptions check;
};

// Files named, and the forms in the folders named, each folder's in a stable order. A FIFO or
// device named .ui is listed too, to be reported rather than passed over.
QStringList formsIn(const QStringList &paths, QString *missing)
{
    QStringList forms;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (!info.exists() && !info.isSymLink()) {
            *missing = path;
            return {};
        }
        if (!info.isDir()) {
            forms << path;
            continue;
        }
        QStringList found;
        QDirIterator it(path, {QStringLiteral("*.ui")}, QDir::Files | QDir::System | QDir::Hidden,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            found << QDir::cleanPath(it.next());
        found.sort();
        forms << found;
    }
    return forms;
}

// The worker: reads "INDEX<TAB>PATH" lines, answers each with one result line.
int runWorker(const Options &options)
{
    if (!options.plugins.isEmpty())
        CcForms::usePluginModulesOnly(options.plugins);
    CcForms::answerDialogsWithWarnings();
    QFile in;
    in.open(stdin, QIODevice::ReadOnly);
    const auto say = [](const QByteArray &line) {
        std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
        std::fflush(stdout);
    };
    while (true) {
        const QByteArray line = in.readLine();
        if (line.isEmpty())
            return 0;
        const int tab = line.indexOf('\t');
        const int index = line.left(tab).toInt();
        const QString file = QString::fromUtf8(line.mid(tab + 1)).chopped(1);
        const FormResult result = checkForm(file, index, options.check, [&](const QString &stage) {
            say("@ccformcheck stage " + stage.toUtf8() + '\n');
        });
        say("@ccformcheck result " + QJsonDocument(result.toJson()).toJson(QJsonDocument::Compact)
            + '\n');
    }
}

// "  37/200 [######......]" on stderr, drawn over itself.
void drawProgress(int done, int total)
{
    const int width = 30;
    const int filled = total ? done * width / total : width;
    std::fprintf(stderr, "\r%5d/%d [%s%s]", done, total, QByteArray(filled, '#').constData(),
                 QByteArray(width - filled, '.').constData());
    std::fflush(stderr);
}

} // namespace

int main(int argc, char *argv[])
{
    // A worker draws the forms' pictures offscreen, as ccpreview does.
    const bool worker = argc > 1 && qstrcmp(argv[1], "--worker") == 0;
    if (worker)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QScopedPointer<QCoreApplication> app(worker ? new QApplication(argc, argv)
                                                : new QCoreApplication(argc, argv));
    QCoreApplication::setApplicationName(QStringLiteral("ccformcheck"));
    QTextStream err(stderr);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
            "Checks forms that use the CommonControls widgets: as the application and as "
            "Designer load them, their names, ids and files, and uic."));
    parser.addPositionalArgument(QStringLiteral("PATH"),
                                 QStringLiteral("Forms, or folders searched for *.ui files."),
                                 QStringLiteral("PATH..."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption jobs({QStringLiteral("j"), QStringLiteral("jobs")},
                                  QStringLiteral("Worker processes (default: the cores)."),
                                  QStringLiteral("N"));
    const QCommandLineOption timeout(QStringLiteral("timeout"),
                                     QStringLiteral("Time limit per form (default 60)."),
                                     QStringLiteral("SECONDS"));
    const QCommandLineOption requireIds(
            QStringLiteral("require-ids"),
            QStringLiteral("Every CommonControls widget has a non-zero id, unique in its form."));
    const QCommandLineOption junit(QStringLiteral("junit"),
                                   QStringLiteral("Write JUnit XML, a test case per form."),
                                   QStringLiteral("FILE"));
    const QCommandLineOption html(QStringLiteral("html"),
                                  QStringLiteral("Write DIR/index.html, a contact sheet of the "
                                                 "forms' pictures with their findings."),
                                  QStringLiteral("DIR"));
    const QCommandLineOption plugin(QStringLiteral("plugin"),
                                    QStringLiteral("The Designer module to load (repeatable; "
                                                   "default: the one built with this program, "
                                                   "else Designer's plug-in folders)."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption uic(QStringLiteral("uic"),
                                 QStringLiteral("The uic to run (default: the one of the Qt "
                                                "this program was built with)."),
                                 QStringLiteral("PROGRAM"));
    QCommandLineOption workerMode(QStringLiteral("worker"));
    workerMode.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineOption pictures(QStringLiteral("pictures"), QString(),
                                      QStringLiteral("DIR"));
    pictures.setFlags(QCommandLineOption::HiddenFromHelp);
    // A worker's modules: QGuiApplication takes "--plugin" as an option of its own.
    QCommandLineOption modules(QStringLiteral("module"), QString(), QStringLiteral("FILE"));
    modules.setFlags(QCommandLineOption::HiddenFromHelp);
    for (const QCommandLineOption &option :
         {jobs, timeout, requireIds, junit, html, plugin, uic, workerMode, pictures, modules})
        parser.addOption(option);

    const auto usage = [&](const QString &problem) {
        err << "ccformcheck: " << problem << "\n" << parser.helpText();
        return BadUsage;
    };
    if (!parser.parse(QCoreApplication::arguments()))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        QTextStream(stdout) << parser.helpText();
        return Clean;
    }

    Options options;
    bool ok = true;
    options.jobs = parser.isSet(jobs) ? parser.value(jobs).toInt(&ok) : QThread::idealThreadCount();
    if (!ok || options.jobs < 1)
        return usage(QStringLiteral("-j needs a number of workers, 1 or more"));
    if (parser.isSet(timeout))
        options.timeout = parser.value(timeout).toInt(&ok);
    if (!ok || options.timeout < 1)
        return usage(QStringLiteral("--timeout needs a number of seconds, 1 or more"));
    options.junit = parser.value(junit);
    options.html = parser.value(html);
    options.plugins = worker ? parser.values(modules) : parser.values(plugin);
    if (options.plugins.isEmpty() && QFileInfo::exists(QStringLiteral(CC_PLUGIN_MODULE)))
        options.plugins << QStringLiteral(CC_PLUGIN_MODULE);
    options.check.requireIds = parser.isSet(requireIds);
    options.check.uic = parser.isSet(uic) ? parser.value(uic) : QStringLiteral(CC_UIC);
    options.check.pictureFolder = parser.value(pictures);

    if (worker)
        return runWorker(options);

    if (parser.positionalArguments().isEmpty())
        return usage(QStringLiteral("no forms named"));
    QString missing;
    const QStringList forms = formsIn(parser.positionalArguments(), &missing);
    if (!missing.isEmpty())
        return usage(QStringLiteral("no such file or folder: %1").arg(missing));
    if (!options.html.isEmpty() && !QDir().mkpath(options.html))
        return usage(QStringLiteral("cannot make the folder %1").arg(options.html));

    QStringList workerArguments {QStringLiteral("--worker"), QStringLiteral("--uic"),
                                 options.check.uic};
    for (const QString &module : options.plugins)
        workerArguments << QStringLiteral("--module") << QFileInfo(module).absoluteFilePath();
    if (options.check.requireIds)
        workerArguments << QStringLiteral("--require-ids");
    if (!options.html.isEmpty())
        workerArguments << QStringLiteral("--pictures") << QDir(options.html).absolutePath();

    QElapsedTimer clock;
    clock.start();
    QVector<FormResult> results(forms.size());
    QVector<bool> checked(forms.size(), false);
    int printed = 0;
    int done = 0;
    int errors = 0;
    int warnings = 0;
    const bool progress = isatty(STDERR_FILENO) && forms.size() > 3;
    QTextStream out(stdout);
    WorkerPool pool(QCoreApplication::applicationFilePath(), workerArguments, options.jobs,
                    options.timeout);
    QObject::connect(&pool, &WorkerPool::formChecked, [&](int index, const FormResult &result) {
        results[index] = result;
        checked[index] = true;
        ++done;
        errors += result.count(true);
        warnings += result.count(false);
        if (progress)
            std::fputs("\r\033[K", stderr);
        // In the order the forms were named, each as soon as those before it are done.
        while (printed < forms.size() && checked.at(printed))
            out << compilerLines(results.at(printed++));
        out.flush();
        if (progress)
            drawProgress(done, forms.size());
    });
    QObject::connect(&pool, &WorkerPool::finished, app.data(), &QCoreApplication::quit,
                     Qt::QueuedConnection);
    pool.check(forms);
    if (!forms.isEmpty())
        QCoreApplication::exec();
    if (progress)
        std::fputs("\r\033[K", stderr);
    out << summaryLine(forms.size(), errors, warnings) << '\n';
    out.flush();

    if (!options.junit.isEmpty() && !writeJUnit(options.junit, results, clock.elapsed() / 1000.0))
        err << "ccformcheck: cannot write " << options.junit << '\n';
    if (!options.html.isEmpty() && !writeContactSheet(options.html, results))
        err << "ccformcheck: cannot write " << QDir(options.html).filePath("index.html") << '\n';
    return errors > 0 ? Errors : Clean;
}
