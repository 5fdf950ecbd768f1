#pragma once

// Forms checked in worker processes, each form with a time limit: a form that hangs or crashes
// its worker is that form's error, and a new worker takes the forms that are left.

#include "finding.h"

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <vector>

class WorkerPool : public QObject
{
    Q_OBJECT
public:
    // workerArguments: what the program is started with to be a worker.
    WorkerPool(const QString &program, const QStringList &workerArguments, int workers,
               int secondsPerForm, QObject *parent = nullptr);
    ~WorkerPool() override;

    // Checks the files; formChecked() comes once for each (in no set order), then finished().
    void check(const QStringList &files);

signals:
    void formChecked(int index, const FormResult &result);
    void finished();

private:
    struct Worker
    {
        std::unique_ptr<QProcess> process;
        QTimer timer;
        int index = -1; // the form being checked, -1 when idle
        bool started = false; // it began a form: its Designer core is up
        QString stage;
        QByteArray output;
        QByteArray errors; // the end of what it wrote to stderr
    };
    void start(Worker *worker);
    void next(Worker *worker);
    void read(Worker *worker);
    void fail(Worker *worker, const QString &what);
    void done(Worker *worker, const FormResult &result);

    QString m_program;
    QStringList m_arguments;
    int m_workers;
    int m_secondsPerForm;
    QStringList m_files;
    int m_next = 0;
    int m_pending = 0;
    std::vector<std::unique_ptr<Worker>> m_pool;
};
