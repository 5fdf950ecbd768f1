// ccpreview [--translation file.qm] form.ui out.png
//
// Loads a form through the CommonControls form builder, without any Designer plug-in, and
// writes a PNG of it. Runs offscreen unless a platform is chosen. With --translation, the
// translation file is installed first and the form shows its texts translated. Exit codes:
// 0 done, 1 usage (also a translation file that is missing or cannot be loaded), 2 missing
// or unreadable form, 3 malformed form, 4 unknown widget class, 5 image not written.
#include "formpreview.h"

#include <QApplication>
#include <QTextStream>
#include <QTranslator>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream err(stderr);

    QStringList arguments = QApplication::arguments().mid(1);
    QString translationFile;
    if (!arguments.isEmpty() && arguments.first() == QLatin1String("--translation")) {
        arguments.removeFirst();
        if (!arguments.isEmpty())
            translationFile = arguments.takeFirst();
        if (translationFile.isEmpty())
            arguments.clear(); // the usage below
    }
    if (arguments.size() != 2) {
        err << "usage: ccpreview [--translation file.qm] form.ui out.png\n";
        return FormPreview::UsageError;
    }
    QTranslator translator;
    if (!translationFile.isEmpty()) {
        if (!translator.load(translationFile)) {
            err << "ccpreview: cannot load the translation " << translationFile << '\n';
            return FormPreview::UsageError;
        }
        QApplication::installTranslator(&translator);
    }

    FormPreview preview;
    FormPreview::Status status = preview.load(arguments.at(0));
    if (status == FormPreview::Ok)
        status = preview.save(arguments.at(1));
    if (status != FormPreview::Ok) {
        err << "ccpreview: " << preview.errorString() << '\n';
        return status;
    }
    if (!preview.note().isEmpty())
        err << "ccpreview: " << preview.note() << '\n';
    return 0;
}
