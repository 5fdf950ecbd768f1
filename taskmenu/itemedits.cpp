#include "itemedits.h"

#include "changecommands.h"
#include "checkcomboeditor.h"
#include "comboboxeditor.h"
#include "drawbackboxeditor.h"
#include "matrixbuttonsdialog.h"
#include "matrixpopbuttonsdialog.h"
#include "optioncomboeditor.h"
#include "optionseditor.h"
#include "taskmenus.h"

#include <nui/CommonControls/CcAbstractMatrixOptions.hpp>
#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QExtensionManager>

#include <QCoreApplication>
#include <QUndoStack>

namespace {

// What an editor holds when it opens on a widget (the widget's contents), and after the user
// accepted it.
template<class ListEditor, class Widget>
auto openedContents(ListEditor &editor, Widget *widget)
{
    return editor.loadFromWidget(widget);
}

template<class ListEditor>
auto editedContents(const ListEditor &editor)
{
    return editor.contents();
}

template<class Widget>
MatrixContents openedContents(MatrixButtonsDialog &dialog, Widget *widget)
{
    MatrixContents contents;
    dialog.fillContentsFromWidget(contents, widget);
    return contents;
}

MatrixContents openedContents(MatrixPopButtonsDialog &dialog, VoCc::MatrixPopButtons *widget)
{
    MatrixContents contents;
    dialog.fillContentsFromWidget(contents, widget);
    return contents;
}

template<class MatrixDialog>
MatrixContents matrixContents(const MatrixDialog &dialog)
{
    MatrixContents contents;
    dialog.contents(contents);
    return contents;
}

MatrixContents editedContents(const MatrixButtonsDialog &dialog) { return matrixContents(dialog); }
MatrixContents editedContents(const MatrixPopButtonsDialog &dialog)
{
    return matrixContents(dialog);
}

bool sameContents(const ItemRecords &a, const ItemRecords &b) { return sameRecords(a, b); }

bool sameContents(const PageGroupContents &a, const PageGroupContents &b)
{
    return a.pages == b.pages && sameRecords(a.items, b.items);
}

bool sameContents(const MatrixContents &a, const MatrixContents &b) { return sameCells(a, b); }

template<class Command, class Editor, class Widget, class Contents>
void initCommand(Command *command, const Editor &, Widget *widget, const Contents &oldContents,
                 const Contents &newContents)
{
    command->init(widget, oldContents, newContents);
}

void initCommand(ChangeDrawbackBoxCommand *command, const DrawbackBoxEditor &editor,
                 VoCc::DrawbackBoxGroup *group, const PageGroupContents &oldContents,
                 const PageGroupContents &newContents)
{
    command->init(group, oldContents, newContents, editor.initialOrder(), editor.currentOrder());
}

// Pushes the change on the form's undo stack; pushing runs it.
template<class Command, class Widget, class Contents>
void pushChange(QDesignerFormWindowInterface *form, Command *command, Widget *, const Contents &)
{
    form->commandHistory()->push(command);
}

// The button matrices' command leaves the dimensions alone: they go to the form as property
// changes of their own, rows first. The three make one step, labelled like the change, so
// one Undo takes the whole edit back.
void pushChange(QDesignerFormWindowInterface *form, ChangeMatrixBtnsCommand *command,
                VoCc::AbstractMatrixOptions *matrix, const MatrixContents &contents)
{
    QUndoStack *history = form->commandHistory();
    history->beginMacro(command->text());
    history->push(command);
    form->cursor()->setWidgetProperty(matrix, QStringLiteral("row"), contents.rowCount);
    form->cursor()->setWidgetProperty(matrix, QStringLiteral("column"), contents.columnCount);
    history->endMacro();
}

// The steps every item edit shares. The editor opens over the form's window on the widget's
// contents; when the user accepts a change, the command that applies it goes on the form's
// undo stack. A cancel, an unchanged list, or a form or widget gone while the dialog was
// open, changes nothing.
template<class Editor, class Command>
void edit(const QPointer<QDesignerFormWindowInterface> &form, QWidget *target,
          const char *windowTitle)
{
    using Widget = typename Command::WidgetType;
    auto *widget = qobject_cast<Widget *>(target);
    if (!widget)
        return;
    const QPointer<Widget> guard(widget);
    Editor editor(form, widget->window());
    const auto oldContents = openedContents(editor, widget);
    editor.setWindowTitle(
            QCoreApplication::translate(Editor::staticMetaObject.className(), windowTitle));
    // The nested event loop may have closed the form or deleted the widget.
    if (editor.exec() != QDialog::Accepted || !form || !guard)
        return;
    // Read once: the page group's editor makes the pages of inserted rows here.
    const auto newContents = editedContents(editor);
    if (sameContents(oldContents, newContents))
        return;
    auto *command = new Command(form);
    initCommand(command, editor, widget, oldContents, newContents);
    pushChange(form, command, widget, newContents);
}

template<class Factory>
void registerFactory(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core->extensionManager();
    manager->registerExtensions(new Factory(manager, core), Q_TYPEID(QDesignerTaskMenuExtension));
}

} // namespace

// Each task menu's entry: the widget's form window, looked up afresh on every edit. The edit
// gets its own guard: the form, and the task menu with it, may go while the editor runs.
// clang-format off
#define CC_DEFINE_EDIT(TaskMenu, Factory, WidgetClass, Editor, Command, entryText, windowTitle) \
    void TaskMenu::editItems()                                                                 \
    {                                                                                          \
        m_formWindow = QDesignerFormWindowInterface::findFormWindow(m_widget);                 \
        if (const QPointer<QDesignerFormWindowInterface> form = m_formWindow)                  \
            edit<Editor, Command>(form, m_widget, windowTitle);                                \
    }
#define CC_NO_EDIT(Factory, TaskMenu, WidgetClass)
CC_EDITING_FAMILIES(CC_DEFINE_EDIT, CC_NO_EDIT)

#define CC_REGISTER_FACTORY(Factory, TaskMenu, WidgetClass)                                    \
    if (qstrcmp(widgetClass, WidgetClass::staticMetaObject.className()) == 0)                  \
        registerFactory<Factory>(core);
#define CC_REGISTER_FAMILY(TaskMenu, Factory, WidgetClass, Editor, Command, entryText,         \
                           windowTitle)                                                        \
    CC_REGISTER_FACTORY(Factory, TaskMenu, WidgetClass)
// clang-format on

void registerTaskMenus(QDesignerFormEditorInterface *core, const char *widgetClass)
{
    CC_EDITING_FAMILIES(CC_REGISTER_FAMILY, CC_REGISTER_FACTORY)
}
