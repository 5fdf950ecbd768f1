// ccformcheck on 200 forms the size of the example form, with its default number of workers,
// against running ccpreview once per form, in the same run; each measured twice, alternately,
// and the medians compared. Reports forms per second and the peak memory of the largest
// worker.
#include "benchsupport.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <sys/resource.h>

namespace {

const int formCount = 200;

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    process.waitForFinished(-1);
    process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QFile example(QStringLiteral(CC_EXAMPLE_FORM));
    if (!example.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray form = example.readAll();
    QTemporaryDir dir;
    const QDir forms(dir.path());
    QStringList files;
    for (int i = 0; i < formCount; ++i) {
        files << forms.filePath(QStringLiteral("form%1.ui").arg(i, 3, 10, QLatin1Char('0')));
        QFile file(files.last());
        file.open(QIODevice::WriteOnly);
        // Each its own form class, as an application's forms are.
        file.write(QByteArray(form).replace("<class>AllWidgets</class>",
                                            "<class>Form" + QByteArray::number(i) + "</class>"));
    }

    QList<double> checker;
    QList<double> checkerWithPictures;
    QList<double> previews;
    const QString png = forms.filePath(QStringLiteral("preview.png"));
    const QString sheet = forms.filePath(QStringLiteral("sheet"));
    for (int round = 0; round < 2; ++round) {
        checker << Bench::timeIt([&] { run(QStringLiteral(CC_FORMCHECK), {dir.path()}); });
        checkerWithPictures << Bench::timeIt([&] {
            run(QStringLiteral(CC_FORMCHECK), {QStringLiteral("--html"), sheet, dir.path()});
        });
        previews << Bench::timeIt([&] {
            for (const QString &file : files)
                run(QStringLiteral(CC_PREVIEW), {file, png});
        });
    }
    rusage children {};
    getrusage(RUSAGE_CHILDREN, &children);

    const double check = Bench::median(checker);
    const double pictures = Bench::median(checkerWithPictures);
    const double preview = Bench::median(previews);
    out << formCount << " forms of " << form.size() / 1024 << " KiB, "
        << QThread::idealThreadCount() << " workers\n";
    out << QStringLiteral("ccpreview once per form: %1 s (%2 forms/s)\n")
                    .arg(preview / 1000, 0, 'f', 1)
                    .arg(formCount * 1000 / preview, 0, 'f', 1);
    out << QStringLiteral("ccformcheck:              %1 s (%2 forms/s), %3x ccpreview\n")
                    .arg(check / 1000, 0, 'f', 1)
                    .arg(formCount * 1000 / check, 0, 'f', 1)
                    .arg(check / preview, 0, 'f', 2);
    out << QStringLiteral("ccformcheck --html:       %1 s (%2 forms/s), %3x ccpreview\n")
                    .arg(pictures / 1000, 0, 'f', 1)
                    .arg(formCount * 1000 / pictures, 0, 'f', 1)
                    .arg(pictures / preview, 0, 'f', 2);
    out << QStringLiteral("peak memory of the largest process (a worker): %1 MiB\n")
                    .arg(children.ru_maxrss / 1024.0, 0, 'f', 1);
    return 0;
}
