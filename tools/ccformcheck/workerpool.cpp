#include "workerpool.h"

#include <QJsonDocument>

namespace {

const QByteArray stageTag("@ccformcheck stage ");
const QByteArray resultTag("@ccformcheck result ");
const int keptErrorBytes = 4000;
const QString startingStage = QStringLiteral("starting the checker");
// What a new worker may take to start (its Designer core, the plug-ins) before its first form's
// own time begins.
const int startSeconds = 120;

// The last lines of a worker's standard error, as a reason for its end.
QString lastLines(const QByteArray &errors, int count)
{
    QStringList lines = QString::fromLocal8Bit(errors).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines = lines.mid(qMax(0, lines.size() - count));
    return lines.join(QStringLiteral(" / "));
}

} // namespace

WorkerPool::WorkerPool(const QString &program, const QStringList &workerArguments, int workers,
                       int secondsPerForm, QObject *parent)
    : QObject(parent),
      m_program(program),
      m_arguments(workerArguments),
      m_workers(qMax(1, workers)),
      m_secondsPerForm(secondsPerForm)
{
}

WorkerPool::~WorkerPool()
{
    for (const auto &worker : m_pool) {
        if (worker->process) {
            worker->process->disconnect(this);
            worker->process->kill();
            worker->process->waitForFinished();
        }
    }
}

void WorkerPool::check(const QStringList &files)
{
    m_files = files;
    m_next = 0;
    m_pending = files.size();
    if (files.isEmpty()) {
        emit finished();
        return;
    }
    for (int i = 0; i < qMin(m_workers, int(files.size())); ++i) {
        auto worker = std::make_unique<Worker>();
        worker->timer.setSingleShot(true);
        Worker *w = worker.get();
        connect(&w->timer, &QTimer::timeout, this, [this, w] {
            fail(w, QStringLiteral("checking it took longer than %1 s, while %2")
                            .arg(m_secondsPerForm)
                            .arg(w->stage));
        });
        m_pool.push_back(std::move(worker));
        start(w);
    }
}

void WorkerPool::start(Worker *worker)
{
    worker->process = std::make_unique<QProcess>();
    worker->started = false;
    QProcess *process = worker->process.get();
    worker->output.clear();
    worker->errors.clear();
    connect(process, &QProcess::readyReadStandardOutput, this, [this, worker] { read(worker); });
    connect(process, &QProcess::readyReadStandardError, this, [worker] {
        worker->errors += worker->process->readAllStandardError();
        worker->errors = worker->errors.right(keptErrorBytes);
    });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, worker](int code, QProcess::ExitStatus status) {
                worker->errors += worker->process->readAllStandardError();
                const QString how = status == QProcess::CrashExit
                        ? QStringLiteral("the checker crashed")
                        : QStringLiteral("the checker ended (exit code %1)").arg(code);
                fail(worker, QStringLiteral("%1 while %2").arg(how, worker->stage));
            });
    process->start(m_program, m_arguments);
    next(worker);
}

void WorkerPool::next(Worker *worker)
{
    if (m_next >= m_files.size()) {
        worker->index = -1;
        // Its end of input lets it finish.
        worker->process->disconnect(this);
        worker->process->closeWriteChannel();
        return;
    }
    worker->index = m_next++;
    worker->stage = startingStage;
    const QByteArray line =
            QByteArray::number(worker->index) + '\t' + m_files.at(worker->index).toUtf8() + '\n';
    worker->process->write(line);
    worker->timer.start((m_secondsPerForm + (worker->started ? 0 : startSeconds)) * 1000);
}

void WorkerPool::read(Worker *worker)
{
    worker->output += worker->process->readAllStandardOutput();
    int end;
    while ((end = worker->output.indexOf('\n')) >= 0) {
        const QByteArray line = worker->output.left(end);
        worker->output.remove(0, end + 1);
        if (line.startsWith(stageTag)) {
            // From its first step on, what the worker says is about this form, and the form's
            // time starts: a worker's own start (its Designer core) does not count against it.
            if (worker->stage == startingStage) {
                worker->started = true;
                worker->errors.clear();
                worker->timer.start(m_secondsPerForm * 1000);
            }
            worker->stage = QString::fromUtf8(line.mid(stageTag.size()));
        } else if (line.startsWith(resultTag) && worker->index >= 0) {
            const QJsonDocument json = QJsonDocument::fromJson(line.mid(resultTag.size()));
            done(worker, FormResult::fromJson(json.object()));
            if (!worker->process)
                return;
        }
    }
}

void WorkerPool::fail(Worker *worker, const QString &what)
{
    worker->timer.stop();
    const int index = worker->index;
    if (worker->process) {
        worker->process->disconnect(this);
        worker->process->kill();
        worker->process->waitForFinished();
        // Deleted later: this may run inside one of its signals.
        worker->process.release()->deleteLater();
    }
    if (index < 0)
        return;
    FormResult result;
    result.file = m_files.at(index);
    QString message = what;
    const QString said = lastLines(worker->errors, 3);
    if (!said.isEmpty())
        message += QStringLiteral(" (it said: %1)").arg(said);
    result.add(0, true, message);
    worker->index = -1;
    --m_pending;
    emit formChecked(index, result);
    if (m_next < m_files.size())
        start(worker);
    else if (m_pending == 0)
        emit finished();
}

void WorkerPool::done(Worker *worker, const FormResult &result)
{
    worker->timer.stop();
    const int index = worker->index;
    FormResult named = result;
    named.file = m_files.at(index);
    --m_pending;
    emit formChecked(index, named);
    next(worker);
    if (m_pending == 0)
        emit finished();
}
