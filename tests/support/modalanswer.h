#pragma once

// Answering modal dialogs from a timer, as a user in front of them would, and letting queued
// work happen. Shared by every suite that opens dialogs.

#include <QtWidgets>
#include <algorithm>
#include <functional>

namespace CcTest {

// Lets queued work and deferred deletions (closed editors) happen.
inline void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// Opens a modal dialog of type T through open(), runs act on it as soon as it is shown and
// accepts or rejects it. Should the dialog still be up a while later (a file dialog may still
// be loading its folder and ignore the first answer), it is answered again. Tells whether the
// dialog was seen; an open() that shows none returns false at once.
template<class T>
bool answerModal(const std::function<void()> &open, const std::function<void(T *)> &act,
                 bool accept = true)
{
    // The timer and its connection are gone before this function returns: the lambda may
    // refer to the locals.
    bool done = false;
    QPointer<T> answered;
    QElapsedTimer clock, sinceAct;
    QPointer<QTimer> timer = new QTimer(qApp); // gone with the application at the latest
    clock.start();
    QObject::connect(timer, &QTimer::timeout, [&] {
        T *dialog = qobject_cast<T *>(QApplication::activeModalWidget());
        const bool again = done && dialog && dialog == answered.data();
        if (dialog && (!done || (again && sinceAct.elapsed() > 300))) {
            done = true;
            answered = dialog;
            sinceAct.start();
            act(dialog);
            QMetaObject::invokeMethod(dialog, accept ? "accept" : "reject");
        } else if ((done && !again) || clock.elapsed() > 20000) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(20);
    open();
    // Whatever open() did, its dialog is over: a later one is not this call's to answer.
    delete timer.data();
    return done;
}

// Dialogs alive, shown or not: what an edit must not leave behind.
inline int dialogCount()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return int(std::count_if(windows.cbegin(), windows.cend(),
                             [](const QWidget *w) { return qobject_cast<const QDialog *>(w); }));
}

// Picks a file in a file dialog as a user typing its full path does.
inline void typeFileName(QFileDialog *dialog, const QString &path)
{
    if (auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        edit->setText(path);
    else
        dialog->selectFile(path);
}

} // namespace CcTest
