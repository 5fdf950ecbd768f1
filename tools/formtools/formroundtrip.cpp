#include "formroundtrip.h"

#include "designercore.h"

#include <QtDesigner/private/qtresourcemodel_p.h>

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QBuffer>
#include <QCoreApplication>
#include <QDesignerFormEditorInterface>
#include <QScopedPointer>

namespace CcForms {

namespace {

// Collects the warnings raised while it lives without passing them on: a caller shows them
// when they matter. The offscreen platform's notes about size hints are not ours.
class QuietLog
{
public:
    QuietLog() : m_previous(qInstallMessageHandler(collect)) { s_log = this; }
    ~QuietLog()
    {
        qInstallMessageHandler(m_previous);
        s_log = nullptr;
    }
    QStringList warnings;

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtFatalMsg)
            s_log->m_previous(type, context, message);
        if (type != QtDebugMsg && type != QtInfoMsg
            && !message.contains(QLatin1String("propagateSizeHints")))
            s_log->warnings << message;
    }
    static inline QuietLog *s_log = nullptr;
    QtMessageHandler m_previous;
};

} // namespace

RoundTrip throughDesigner(const QByteArray &ui, int saves, const QString &fileName)
{
    RoundTrip trip;
    const QuietLog log;
    QBuffer buffer;
    buffer.setData(ui);
    buffer.open(QIODevice::ReadOnly);
    QDesignerFormWindowInterface *form = createFormWindow();
    if (!fileName.isEmpty())
        form->setFileName(fileName);
    trip.loaded = form->setContents(&buffer, &trip.error);
    // Designer makes the resource files a form names the current ones when the form becomes
    // the active one; the save finds each icon's resource file among them.
    if (trip.loaded && form->resourceSet())
        form->core()->resourceModel()->setCurrentResourceSet(form->resourceSet());
    // Widgets bring their cells up to date from the event loop, icons read among them.
    QCoreApplication::processEvents();
    const QString saved = trip.loaded ? form->contents() : QString();
    closeFormWindow(form);
    trip.saved = saved.toUtf8();
    if (trip.loaded && saves > 1) {
        QDesignerFormWindowInterface *again = createFormWindow(saved);
        trip.saved = again->contents().toUtf8();
        closeFormWindow(again);
    }
    trip.warnings = log.warnings;
    return trip;
}

RoundTrip throughFormBuilder(
        const QByteArray &ui,
        const std::function<void(QWidget *, const VoCc::FormBuilder &)> &visit, bool save)
{
    RoundTrip trip;
    const QuietLog log;
    VoCc::FormBuilder builder;
    QBuffer buffer;
    buffer.setData(ui);
    buffer.open(QIODevice::ReadOnly);
    const QScopedPointer<QWidget> form(builder.load(&buffer));
    trip.loaded = !form.isNull();
    QCoreApplication::processEvents();
    if (form) {
        if (visit)
            visit(form.data(), builder);
        if (save) {
            QBuffer out;
            out.open(QIODevice::WriteOnly);
            builder.save(&out, form.data());
            trip.saved = out.data();
        }
    } else {
        trip.error = builder.errorString();
    }
    trip.warnings = log.warnings;
    return trip;
}

} // namespace CcForms
