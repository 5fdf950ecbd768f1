#pragma once

#include <QStringList>

namespace CcTest {

// Collects the warnings raised while it lives, and passes every message on. The offscreen
// platform's notes about size hints are not ours and are left out. One log at a time.
class WarningLog
{
public:
    WarningLog() : m_previous(qInstallMessageHandler(collect)) { s_log = this; }
    ~WarningLog()
    {
        qInstallMessageHandler(m_previous);
        s_log = nullptr;
    }
    QStringList warnings;

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type != QtDebugMsg && type != QtInfoMsg
            && !message.contains(QLatin1String("propagateSizeHints")))
            s_log->warnings << message;
        s_log->m_previous(type, context, message);
    }
    static inline WarningLog *s_log = nullptr;
    QtMessageHandler m_previous;
};

} // namespace CcTest
