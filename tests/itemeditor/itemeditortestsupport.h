#pragma once

// Helpers shared by the item editor and property component tests: a property table with one
// row of every kind, test pictures on disk, opening a property's editor in the pane as a
// user would, and answering a modal dialog from a timer.

#include "designerpropertymanager.h"
#include "propertydefinition.h"
#include "qttreepropertybrowser.h"
#include "qtvariantproperty.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>

namespace CcTest {

inline const qdesigner_internal::PropertyDefinition *allItemProperties()
{
    using qdesigner_internal::DesignerPropertyManager;
    const auto string = DesignerPropertyManager::designerStringTypeId;
    static const qdesigner_internal::PropertyDefinition table[] = {
            {Qt::DisplayPropertyRole, 0, string, "text"},
            {Qt::DecorationPropertyRole, 0, DesignerPropertyManager::designerIconTypeId, "icon"},
            {Qt::ToolTipPropertyRole, 0, string, "toolTip"},
            {Qt::StatusTipPropertyRole, 0, string, "statusTip"},
            {Qt::WhatsThisPropertyRole, 0, string, "whatsThis"},
            {Qt::FontRole, QVariant::Font, nullptr, "font"},
            {Qt::CheckStateRole, 0, QtVariantPropertyManager::enumTypeId, "checkState"},
            {qdesigner_internal::ItemFlagsRole, 0, QtVariantPropertyManager::flagTypeId, "flags"},
            {0, 0, nullptr, nullptr}};
    return table;
}

// A red and a blue 16x16 PNG in a temporary folder.
struct TestPictures
{
    QString write(const QColor &color, const QString &name)
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(color);
        const QString path = dir.filePath(name);
        return pixmap.save(path, "PNG") ? path : QString();
    }
    QTemporaryDir dir;
    const QString red = write(Qt::red, QStringLiteral("red.png"));
    const QString blue = write(Qt::blue, QStringLiteral("blue.png"));
};

inline QVariant stringValue(const QString &text)
{
    return QVariant::fromValue(qdesigner_internal::PropertySheetStringValue(text));
}

inline QVariant iconValue(const QString &path)
{
    using namespace qdesigner_internal;
    return QVariant::fromValue(PropertySheetIconValue(PropertySheetPixmapValue(path)));
}

inline QtVariantProperty *subProperty(QtProperty *property, const QString &name)
{
    const QList<QtProperty *> subs = property->subProperties();
    for (QtProperty *sub : subs) {
        if (sub->propertyName() == name)
            return static_cast<QtVariantProperty *>(sub);
    }
    return nullptr;
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
    const QList<QtBrowserItem *> items = browser->items(property);
    if (items.isEmpty())
        return nullptr;
    browser->editItem(items.first());
    settle();
    const QList<T *> editors = browser->findChildren<T *>();
    for (T *editor : editors) {
        if (editor->isVisibleTo(browser))
            return editor;
    }
    return editors.isEmpty() ? nullptr : editors.first();
}

// Opens a modal dialog of type T through open(), runs act on it as soon as it is shown and
// accepts or rejects it. Should the dialog still be up a while later (a file dialog may still
// be loading its folder and ignore the first answer), it is answered again. Tells whether the
// dialog was seen.
template<class T>
bool answerModal(const std::function<void()> &open, const std::function<void(T *)> &act,
                 bool accept = true)
{
    auto done = std::make_shared<bool>(false);
    auto *timer = new QTimer(qApp); // gone with the application at the latest
    auto clock = std::make_shared<QElapsedTimer>();
    auto sinceAct = std::make_shared<QElapsedTimer>();
    auto answered = std::make_shared<QPointer<T>>();
    clock->start();
    QObject::connect(timer, &QTimer::timeout, [=] {
        T *dialog = qobject_cast<T *>(QApplication::activeModalWidget());
        const bool again = *done && dialog && dialog == answered->data();
        if (dialog && (!*done || (again && sinceAct->elapsed() > 300))) {
            *done = true;
            *answered = dialog;
            sinceAct->start();
            act(dialog);
            QMetaObject::invokeMethod(dialog, accept ? "accept" : "reject");
        } else if ((*done && !again) || clock->elapsed() > 20000) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(20);
    open();
    return *done;
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
