#include "itemedits.h"

#include "changecommands.h"
#include "drawbackboxeditor.h"
#include "listeditors.h"
#include "matrixeditors.h"

#include <nui/CommonControls/CcAbstractMatrixOptions.hpp>
#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
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

// The steps every item edit shares.
template<class Editor, class Command, class Widget>
void edit(const QPointer<QDesignerFormWindowInterface> &form, Widget *widget)
{
    const QPointer<Widget> guard(widget);
    Editor editor(form, widget->window());
    const auto oldContents = openedContents(editor, widget);
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

} // namespace

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::CheckableTextComboBox *widget)
{
    edit<CheckComboEditor, ChangeCheckComboCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::ComboBox *widget)
{
    edit<ComboBoxEditor, ChangeComboBoxCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionComboBox *widget)
{
    edit<OptionComboEditor, ChangeOptionComboCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionButtons *widget)
{
    edit<OptionsEditor, ChangeOptionButtonsCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::OptionRadios *widget)
{
    edit<OptionsEditor, ChangeOptionRadiosCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::DrawbackBoxGroup *widget)
{
    edit<DrawbackBoxEditor, ChangeDrawbackBoxCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::AbstractMatrixOptions *widget)
{
    edit<MatrixButtonsDialog, ChangeMatrixBtnsCommand>(form, widget);
}

void editItems(QPointer<QDesignerFormWindowInterface> form, VoCc::MatrixPopButtons *widget)
{
    edit<MatrixPopButtonsDialog, ChangeMatrixPopBtnsCommand>(form, widget);
}
