// ccpreview form.ui out.png
//
// Loads a form through the CommonControls form builder, without any Designer plug-in, and
// writes a PNG of it. Runs offscreen unless a platform is chosen. Exit codes: 0 done,
// 1 usage, 2 missing or unreadable file, 3 malformed form, 4 unknown widget class,
// 5 image not written.
#include "formpreview.h"

#include <QApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream err(stderr);

    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.size() != 2) {
        err << "usage: ccpreview form.ui out.png\n";
        return FormPreview::UsageError;
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
