#include "benchsupport.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTextStream>

// Designer's start with the CommonControls module against a start with no plug-in at all,
// each in fresh processes, alternating, medians of several runs.
int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int runs = qEnvironmentVariableIsSet("CC_BENCH_RUNS")
            ? qEnvironmentVariableIntValue("CC_BENCH_RUNS")
            : 9;
    const int widgetClasses = 44;
    QList<double> baseMs, pluginMs, baseKiB, pluginKiB;
    QTextStream out(stdout);

    auto runProbe = [](const QStringList &modules, QList<double> &ms, QList<double> &kib) {
        QProcess probe;
        probe.start(QStringLiteral(CC_DESIGNER_START_PROBE), modules);
        if (!probe.waitForFinished(120000) || probe.exitCode() != 0)
            return false;
        const QList<QByteArray> fields = probe.readAllStandardOutput().simplified().split(' ');
        if (fields.size() != 3 || fields.at(2).toInt() != modules.size())
            return false;
        ms << fields.at(0).toDouble();
        kib << fields.at(1).toDouble();
        return true;
    };

    // A warm-up of each kind, not counted: the first start pays for cold disk caches.
    QList<double> ignored, ignoredKiB;
    if (!runProbe({}, ignored, ignoredKiB)
        || !runProbe({QStringLiteral(CC_PLUGIN_MODULE)}, ignored, ignoredKiB)) {
        out << "probe failed\n";
        return 1;
    }
    for (int i = 0; i < runs; ++i) {
        if (!runProbe({}, baseMs, baseKiB)
            || !runProbe({QStringLiteral(CC_PLUGIN_MODULE)}, pluginMs, pluginKiB)) {
            out << "probe failed\n";
            return 1;
        }
    }

    const double base = Bench::median(baseMs);
    const double withPlugin = Bench::median(pluginMs);
    const double added = withPlugin - base;
    const double addedMiB = (Bench::median(pluginKiB) - Bench::median(baseKiB)) / 1024.0;
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    out << "Designer start, median of " << runs << " runs each (separate processes)\n"
        << "  no plug-in (baseline):      " << base << " ms, peak "
        << Bench::median(baseKiB) / 1024.0 << " MiB\n"
        << "  CommonControls module:      " << withPlugin << " ms, peak "
        << Bench::median(pluginKiB) / 1024.0 << " MiB\n"
        << "  ratio to baseline:          " << withPlugin / base << "x\n"
        << "  added for " << widgetClasses << " classes:      " << added << " ms (target < 18)\n"
        << "  added per class:            " << added / widgetClasses << " ms (target <= 0.4)\n"
        << "  added peak memory:          " << addedMiB << " MiB (target < 3)\n";
    return 0;
}
