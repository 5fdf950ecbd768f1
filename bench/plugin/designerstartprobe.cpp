#include "benchsupport.h"
#include "designertestcore.h"

#include <QApplication>
#include <QDesignerFormEditorInterface>
#include <QElapsedTimer>
#include <QTextStream>

// One Designer start, in a process of its own: creates a Designer core that loads the module
// given on the command line (or none) and prints the time it took and the peak memory.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    CcTest::usePluginModulesOnly(arguments);
    QElapsedTimer timer;
    timer.start();
    QDesignerFormEditorInterface *core = CcTest::designerCore();
    const double ms = timer.nsecsElapsed() / 1e6;
    QTextStream(stdout) << ms << ' ' << Bench::peakMemoryKiB() << ' '
                        << core->pluginInstances().size() << '\n';
    // The core stays alive to the end, as in Designer; exit without tearing it down.
    std::fflush(stdout);
    std::_Exit(0);
}
