#pragma once

// Helpers shared by the item editor tests: a property table with one row of every kind, a
// test picture on disk, opening a property's editor in the pane as a user would, and
// answering a modal dialog from a timer.

#include "designerpropertymanager.h"
#include "propertydefinition.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace CcTest {

inline const qdesigner_internal::PropertyDefinition *allItemProperties()
{
    using qdesigner_internal::DesignerPropertyManager;
    static const qdesigner_internal::PropertyDefinition table[] = {
            {Qt::DisplayPropertyRole, 0, DesignerPropertyManager::designerStringTypeId, "text"},
            {Qt::DecorationPropertyRole, 0, DesignerPropertyManager::designerIconTypeId, "icon"},
            {Qt::ToolTipPropertyRole, 0, DesignerPropertyManager::designerStringTypeId, "toolTip"},
            {Qt::StatusTipPropertyRole, 0, DesignerPropertyManager::designerStringTypeId,
             "statusTip"},
            {Qt::WhatsThisPropertyRole, 0, DesignerPropertyManager::designerStringTypeId,
             "whatsThis"},
            {Qt::FontRole, QVariant::Font, nullptr, "font"},
            {Qt::CheckStateRole, 0, QtVariantPropertyManager::enumTypeId, "checkState"},
            {qdesigner_internal::ItemFlagsRole, 0, QtVariantPropertyManager::flagTypeId, "flags"},
            {0, 0, nullptr, nullptr}};
    return table;
}

// A small coloured square saved as PNG at path.
inline bool writeTestPicture(const QString &path, const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.drawRect(0, 0, 15, 15);
    painter.end();
    return pixmap.save(path, "PNG");
}

// Lets queued work and deferred deletions (closed editors) happen.
inline void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// Opens the value editor of a shown property and returns the first widget of type T in it.
template<class T>
T *openEditor(QtTreePropertyBrowser *browser, QtProperty *property)
{
    QtBrowserItem *item = nullptr;
    const QList<QtBrowserItem *> items = browser->items(property);
    if (!items.isEmpty())
        item = items.first();
    if (!item)
        return nullptr;
    browser->editItem(item);
    settle();
    const QList<T *> editors = browser->findChildren<T *>();
    for (T *editor : editors) {
        if (editor->isVisibleTo(browser))
            return editor;
    }
    return editors.isEmpty() ? nullptr : editors.first();
}

// Runs act on the next modal dialog of type T as soon as it is shown; act accepts or rejects
// it. Should the dialog still be up a while later (a file dialog may still be loading its
// folder and ignore the first answer), act runs again. Returns a flag that tells whether act
// ran at all.
template<class T>
std::shared_ptr<bool> whenModal(std::function<void(T *)> act)
{
    auto done = std::make_shared<bool>(false);
    auto *timer = new QTimer(qApp); // gone with the application at the latest
    auto clock = std::make_shared<QElapsedTimer>();
    auto sinceAct = std::make_shared<QElapsedTimer>();
    auto answered = std::make_shared<QPointer<T>>();
    clock->start();
    QObject::connect(timer, &QTimer::timeout, [timer, act, done, clock, sinceAct, answered] {
        T *dialog = qobject_cast<T *>(QApplication::activeModalWidget());
        const bool again = *done && dialog && dialog == answered->data();
        if (dialog && (!*done || (again && sinceAct->elapsed() > 300))) {
            *done = true;
            *answered = dialog;
            sinceAct->start();
            act(dialog);
        } else if ((*done && !again) || clock->elapsed() > 20000) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(20);
    return done;
}

// Picks a file in a file dialog as a user typing its full path does, and accepts.
inline void answerFileDialog(QFileDialog *dialog, const QString &path)
{
    if (auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        edit->setText(path);
    else
        dialog->selectFile(path);
    QMetaObject::invokeMethod(dialog, "accept");
    if (dialog->isVisible())
        qWarning("file dialog still open, selected: %s",
                 qPrintable(dialog->selectedFiles().join(QLatin1Char(' '))));
}

} // namespace CcTest
