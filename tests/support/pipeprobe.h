#pragma once

// A FIFO in a temporary folder, and whether anything opened it for reading while the probe
// watched. Opening a FIFO to read blocks until a writer comes; the probe's thread tries to
// open it for writing, which only succeeds while a reader waits, and then lets that reader go
// on (it reads the end of the file). So a test finds that code opened the pipe instead of
// hanging in it.

#include <QtCore>

#include <atomic>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace CcTest {

class PipeProbe
{
public:
    PipeProbe()
    {
        path = dir.filePath(QStringLiteral("pipe"));
        const QByteArray name = QFile::encodeName(path);
        if (mkfifo(name.constData(), 0600) != 0)
            path.clear();
        m_watcher = std::thread([this, name] {
            while (!m_done) {
                const int fd = open(name.constData(), O_WRONLY | O_NONBLOCK);
                if (fd >= 0) {
                    m_opened = true;
                    close(fd);
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        });
    }
    ~PipeProbe()
    {
        m_done = true;
        m_watcher.join();
    }
    bool wasOpened() const { return m_opened; }
    void forget() { m_opened = false; }

    QTemporaryDir dir;
    QString path; // empty when the FIFO could not be made

private:
    std::atomic<bool> m_done {false};
    std::atomic<bool> m_opened {false};
    std::thread m_watcher;
};

} // namespace CcTest
