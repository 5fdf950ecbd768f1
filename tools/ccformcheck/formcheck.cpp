#include "formcheck.h"

#include "formpreview.h"
#include "formroundtrip.h"
#include "formvalues.h"
#include "formxml.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

#include <sys/resource.h>

namespace {

const int thumbnailWidth = 320;

// The line a message of Qt's or uic's gives ("line 12", "Line: 12", "line 12, column 3").
int lineIn(const QString &message)
{
    static const QRegularExpression line(QStringLiteral("\\b[Ll]ine:? (\\d+)"));
    const QRegularExpressionMatch match = line.match(message);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

// Values Designer's save lost without a word: errors, each on the line where the input holds
// it.
void addLosses(FormResult *result, const QByteArray &input, const CcForms::RoundTrip &trip)
{
    for (const FormValues::Value &value :
         FormValues::unexplainedLosses(input, trip.saved, trip.warnings)) {
        result->add(value.line, true,
                    QStringLiteral("%1 \"%2\": Designer's save drops the value \"%3\" of "
                                   "property \"%4\" without a warning")
                            .arg(value.widgetClass, value.widgetName, FormValues::shownValue(value),
                                 value.property));
    }
}

// A loader's warnings, each said once for the form (said holds those already reported) and
// on the line of the widget it names; skip leaves out others. The reason a load failed is
// its error, not a warning again. Qt's form readers start their messages with "Designer: ",
// at run time too; after a prefix of ours that is left out.
void addWarnings(FormResult *result, const FormXml &xml, const CcForms::RoundTrip &trip,
                 const QString &prefix, QSet<QString> *said,
                 const std::function<bool(const QString &)> &skip = {})
{
    for (const QString &warning : trip.warnings) {
        if (said->contains(warning) || (skip && skip(warning)))
            continue;
        said->insert(warning);
        const QString text = warning.startsWith(QLatin1String("Designer: ")) ? warning.mid(10)
                                                                             : warning;
        if (!trip.loaded && trip.error.contains(text))
            continue;
        result->add(xml.lineOfWidgetIn(warning), false,
                    prefix.isEmpty() ? warning : prefix + text);
    }
}

// Runs uic on the form, reading what it writes; started first, it works while the form loads.
class Uic
{
public:
    Uic(const QString &program, const QString &file)
    {
        m_process.setProgram(program);
        m_process.setArguments({file});
        m_process.start();
    }
    void report(FormResult *result)
    {
        m_process.waitForFinished(-1);
        if (m_process.error() == QProcess::FailedToStart) {
            result->add(0, true,
                        QStringLiteral("uic could not be started: %1")
                                .arg(m_process.errorString()));
            return;
        }
        const bool failed =
                m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0;
        const QStringList lines = QString::fromLocal8Bit(m_process.readAllStandardError())
                                          .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const QString said = line.trimmed();
            result->add(lineIn(said), failed,
                        said.startsWith(QLatin1String("uic")) ? said
                                                              : QStringLiteral("uic: ") + said);
        }
        if (failed && lines.isEmpty())
            result->add(0, true, QStringLiteral("uic cannot compile the form (exit code %1)")
                                         .arg(m_process.exitCode()));
    }

private:
    QProcess m_process;
};

} // namespace

FormResult checkForm(const QString &file, int index, const CheckOptions &options,
                     const std::function<void(const QString &stage)> &stage)
{
    QElapsedTimer clock;
    clock.start();
    FormResult result;
    result.file = file;
    const auto finish = [&] {
        if (!options.pictureFolder.isEmpty() && result.picture.isEmpty()
            && result.pictureNote.isEmpty())
            result.pictureNote = QStringLiteral("the form did not load");
        result.seconds = clock.elapsed() / 1000.0;
        rusage usage {};
        getrusage(RUSAGE_SELF, &usage);
        result.peakKilobytes = usage.ru_maxrss;
        return result;
    };

    // A path that is no regular file is never opened: a FIFO would block the reader.
    const QFileInfo info(file);
    if (!info.isFile()) {
        result.add(0, true, info.exists() ? QStringLiteral("not a regular file")
                                          : QStringLiteral("no such file"));
        return finish();
    }
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        result.add(0, true, QStringLiteral("cannot be read: %1").arg(in.errorString()));
        return finish();
    }
    const QByteArray contents = in.readAll();
    const QString xmlProblem = FormPreview::xmlProblem(contents);
    if (!xmlProblem.isEmpty()) {
        result.add(lineIn(xmlProblem), true, QStringLiteral("not a form: ") + xmlProblem);
        return finish();
    }

    stage(QStringLiteral("starting uic"));
    Uic uic(options.uic, file);

    const FormXml xml(contents, info.absolutePath());
    xml.checkNames(&result);
    if (options.requireIds)
        xml.checkIds(&result);
    xml.checkFiles(&result);

    // As the application loads it.
    stage(QStringLiteral("loading it through VoCc::FormBuilder"));
    QImage picture;
    QStringList unknownClasses;
    const CcForms::RoundTrip atRunTime = CcForms::throughFormBuilder(
            contents, [&](QWidget *form, const VoCc::FormBuilder &builder) {
                for (const QString &name : builder.unknownClassNames()) {
                    const bool ours = name.startsWith(QLatin1String("VoCc::"));
                    unknownClasses << name;
                    result.add(xml.lineOfClass(name), ours,
                               ours ? QStringLiteral("%1 is no class of the CommonControls "
                                                     "library")
                                              .arg(name)
                                    : QStringLiteral("VoCc::FormBuilder does not know class %1: "
                                                     "loaded at run time, the form shows a "
                                                     "plain QWidget in its place")
                                              .arg(name));
                }
                if (!options.pictureFolder.isEmpty())
                    picture = FormPreview::picture(form, &result.pictureNote);
            },
            false);
    if (!atRunTime.loaded) {
        result.add(lineIn(atRunTime.error), true,
                   QStringLiteral("VoCc::FormBuilder cannot load the form: %1")
                           .arg(atRunTime.error));
    }
    QSet<QString> said;
    addWarnings(&result, xml, atRunTime, QString(), &said, [&](const QString &warning) {
        // Qt's own note on a class it could not create says what the finding above says.
        return std::any_of(unknownClasses.cbegin(), unknownClasses.cend(),
                           [&](const QString &name) {
                               return warning.contains(QLatin1Char('\'') + name
                                                       + QLatin1Char('\''));
                           });
    });

    // As Designer loads and saves it; what it says that the run-time load did not say too.
    stage(QStringLiteral("loading and saving it in Designer"));
    const CcForms::RoundTrip inDesigner =
            CcForms::throughDesigner(contents, 1, info.absoluteFilePath());
    if (!inDesigner.loaded) {
        result.add(lineIn(inDesigner.error), true,
                   QStringLiteral("Designer cannot load the form: %1").arg(inDesigner.error));
    }
    addWarnings(&result, xml, inDesigner, QStringLiteral("in Designer: "), &said);
    if (inDesigner.loaded)
        addLosses(&result, contents, inDesigner);

    stage(QStringLiteral("waiting for uic"));
    uic.report(&result);

    if (!picture.isNull()) {
        const QDir folder(options.pictureFolder);
        result.picture = folder.filePath(QStringLiteral("%1.png").arg(index));
        result.thumbnail = folder.filePath(QStringLiteral("%1-small.png").arg(index));
        picture.save(result.picture, "PNG");
        (picture.width() > thumbnailWidth
                 ? picture.scaledToWidth(thumbnailWidth, Qt::SmoothTransformation)
                 : picture)
                .save(result.thumbnail, "PNG");
    }
    return finish();
}
