#pragma once

#include "editingfamilies.h"

#include <QAction>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QExtensionFactory>
#include <QPointer>

// Every widget class a factory may serve.
#include <ccwidgetclasses.h>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QExtensionManager;
QT_END_NAMESPACE

// The context-menu entries of the list-like widgets, declared from the editing families'
// table (editingfamilies.h). Each task menu and each factory is a class of its own with a
// meta-object of its own, so moc must see every one of them spelled out: the table is
// expanded here, in the header moc reads (moc expands the macros). A task menu's only
// meta-method is its editItems() slot, defined with its family's editor and command in
// itemedits.cpp; its entry text is translated in its class name's context.

// clang-format off
#define CC_TASK_MENU(Class, actionText)                                                       \
    class Class : public QObject, public QDesignerTaskMenuExtension                            \
    {                                                                                          \
        Q_OBJECT                                                                               \
        Q_INTERFACES(QDesignerTaskMenuExtension)                                               \
    public:                                                                                    \
        Class(QWidget *widget, QObject *parent)                                                \
            : QObject(parent), m_editItemsAction(new QAction(tr(actionText), this)),           \
              m_widget(widget)                                                                 \
        {                                                                                      \
            connect(m_editItemsAction, &QAction::triggered, this, &Class::editItems);          \
            /* Goes with its widget; its factory only forgets it then. */                      \
            connect(widget, &QObject::destroyed, this, &QObject::deleteLater);                 \
        }                                                                                      \
        QAction *preferredEditAction() const override { return m_editItemsAction; }            \
        QList<QAction *> taskActions() const override { return {m_editItemsAction}; }          \
                                                                                               \
    private Q_SLOTS:                                                                           \
        void editItems();                                                                      \
                                                                                               \
    private:                                                                                   \
        QAction *m_editItemsAction;                                                            \
        QWidget *m_widget;                                                                     \
        QPointer<QDesignerFormWindowInterface> m_formWindow;                                   \
    };

// A factory answers task-menu requests only (the identifier is tested before the class).
#define CC_TASK_MENU_FACTORY(Class, TaskMenu, WidgetClass)                                     \
    class Class : public QExtensionFactory                                                     \
    {                                                                                          \
        Q_OBJECT                                                                               \
    public:                                                                                    \
        Class(QExtensionManager *parent, QDesignerFormEditorInterface *core)                   \
            : QExtensionFactory(parent), m_core(core)                                          \
        {                                                                                      \
        }                                                                                      \
                                                                                               \
    protected:                                                                                 \
        QObject *createExtension(QObject *object, const QString &iid,                          \
                                 QObject *parent) const override                               \
        {                                                                                      \
            if (iid != QLatin1String(Q_TYPEID(QDesignerTaskMenuExtension)))                    \
                return nullptr;                                                                \
            auto *widget = qobject_cast<WidgetClass *>(object);                                \
            return widget ? new TaskMenu(widget, parent) : nullptr;                            \
        }                                                                                      \
                                                                                               \
    private:                                                                                   \
        QDesignerFormEditorInterface *m_core;                                                  \
    };

#define CC_DECLARE_FAMILY(TaskMenu, Factory, WidgetClass, Editor, Command, entryText,         \
                          windowTitle)                                                         \
    CC_TASK_MENU(TaskMenu, entryText)                                                          \
    CC_TASK_MENU_FACTORY(Factory, TaskMenu, WidgetClass)
#define CC_DECLARE_FACTORY(Factory, TaskMenu, WidgetClass)                                     \
    CC_TASK_MENU_FACTORY(Factory, TaskMenu, WidgetClass)

CC_EDITING_FAMILIES(CC_DECLARE_FAMILY, CC_DECLARE_FACTORY)
// clang-format on
