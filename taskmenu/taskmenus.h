#pragma once

#include "itemedits.h"

#include <QAction>
#include <QDesignerFormWindowInterface>
#include <QDesignerTaskMenuExtension>
#include <QExtensionFactory>
#include <QPointer>

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
class QExtensionManager;
QT_END_NAMESPACE

// The context-menu entries of the list-like widgets. Each task menu offers one entry that
// opens its widget's editor (editItems() for the widget's class picks which); each factory
// serves one widget class. The classes differ only in names, widget class and entry text,
// so each is a short declaration over these macros, with a meta-object of its own (a task
// menu's only meta-method is its editItems() slot; the entry text is translated in its class
// name's context).

// clang-format off
#define CC_TASK_MENU(Class, WidgetClass, actionText)                                          \
    class Class : public QObject, public QDesignerTaskMenuExtension                            \
    {                                                                                          \
        Q_OBJECT                                                                               \
        Q_INTERFACES(QDesignerTaskMenuExtension)                                               \
    public:                                                                                    \
        Class(WidgetClass *widget, QObject *parent)                                            \
            : QObject(parent), m_editItemsAction(new QAction(tr(actionText), this)),           \
              m_widget(widget)                                                                 \
        {                                                                                      \
            connect(m_editItemsAction, SIGNAL(triggered()), this, SLOT(editItems()));          \
            /* Goes with its widget; its factory only forgets it then. */                      \
            connect(widget, &QObject::destroyed, this, &QObject::deleteLater);                 \
        }                                                                                      \
        QAction *preferredEditAction() const override { return m_editItemsAction; }            \
        QList<QAction *> taskActions() const override { return {m_editItemsAction}; }          \
                                                                                               \
    private Q_SLOTS:                                                                           \
        void editItems()                                                                       \
        {                                                                                      \
            m_formWindow = QDesignerFormWindowInterface::findFormWindow(m_widget);             \
            /* The edit gets its own guard: the form, and this menu with it, may go while */   \
            /* the editor runs. */                                                             \
            if (const QPointer<QDesignerFormWindowInterface> form = m_formWindow)              \
                ::editItems(form, m_widget);                                                   \
        }                                                                                      \
                                                                                               \
    private:                                                                                   \
        QAction *m_editItemsAction;                                                            \
        WidgetClass *m_widget;                                                                 \
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

CC_TASK_MENU(ComboBoxTaskMenu, VoCc::ComboBox, "Edit Items")
CC_TASK_MENU_FACTORY(ComboBoxFactory, ComboBoxTaskMenu, VoCc::ComboBox)

CC_TASK_MENU(CheckComboTaskMenu, VoCc::CheckableTextComboBox, "Edit Items")
CC_TASK_MENU_FACTORY(CheckComboFactory, CheckComboTaskMenu, VoCc::CheckableTextComboBox)

CC_TASK_MENU(OptionComboTaskMenu, VoCc::OptionComboBox, "Edit Items")
CC_TASK_MENU_FACTORY(OptionComboFactory, OptionComboTaskMenu, VoCc::OptionComboBox)

CC_TASK_MENU(OptionButtonsTaskMenu, VoCc::OptionButtons, "Edit Buttons")
CC_TASK_MENU_FACTORY(OptionButtonsFactory, OptionButtonsTaskMenu, VoCc::OptionButtons)

CC_TASK_MENU(OptionRadiosTaskMenu, VoCc::OptionRadios, "Edit Buttons")
CC_TASK_MENU_FACTORY(OptionRadiosFactory, OptionRadiosTaskMenu, VoCc::OptionRadios)

CC_TASK_MENU(DrawbackBoxTaskMenu, VoCc::DrawbackBoxGroup, "Edit DrawbackBox")
CC_TASK_MENU_FACTORY(DrawbackBoxFactory, DrawbackBoxTaskMenu, VoCc::DrawbackBoxGroup)

// One task menu serves the three button matrices, each through a factory of its own.
CC_TASK_MENU(MatrixPushButtonsTaskMenu, VoCc::AbstractMatrixOptions, "Edit Buttons")
CC_TASK_MENU_FACTORY(MatrixPushButtonsFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixPushButtons)
CC_TASK_MENU_FACTORY(MatrixRadioButtonsFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixRadioButtons)
CC_TASK_MENU_FACTORY(MatrixCheckBoxesFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixCheckBoxes)

CC_TASK_MENU(MatrixPopButtonsTaskMenu, VoCc::MatrixPopButtons, "Edit Buttons")
CC_TASK_MENU_FACTORY(MatrixPopButtonsFactory, MatrixPopButtonsTaskMenu, VoCc::MatrixPopButtons)
// clang-format on
