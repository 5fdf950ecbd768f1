#include "itemedits.h"

#include "changecommands.h"
#include "drawbackboxeditor.h"
#include "listeditors.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QDesignerFormWindowInterface>
#include <QUndoStack>

namespace {

bool sameContents(const ItemRecords &a, const ItemRecords &b) { return sameRecords(a, b); }

bool sameContents(const PageGroupContents &a, const PageGroupContents &b)
{
    return a.pages == b.pages && sameRecords(a.items, b.items);
}

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

// The steps every list edit shares.
template<class Editor, class Command, class Widget>
void editList(const QPointer<QDesignerFormWindowInterface> &form, Widget *widget)
{
    const QPointer<Widget> guard(widget);
    Editor editor(form, widget->window());
    const auto oldContents = editor.loadFromWidget(widget);
    // The nested event loop may have closed the form or deleted the widget.
    if (editor.exec() != QDialog::Accepted || !form || !guard)
        return;
    // Read once: the page group's editor makes the pages of inserted rows here.
    const auto newContents = editor.contents();
    if (sameContents(oldContents, newContents))
        return;
    auto *command = new Command(form);
    initCommand(command, editor, widget, oldContents, newContents);
    form->commandHistory()->push(command);
}

} // namespace

void editItems(const QPointer<QDesignerFormWindowInterface> &form,
               VoCc::CheckableTextComboBox *widget)
{
    editList<CheckComboEditor, ChangeCheckComboCommand>(form, widget);
}

void editItems(const QPointer<QDesignerFormWindowInterface> &form, VoCc::ComboBox *widget)
{
    editList<ComboBoxEditor, ChangeComboBoxCommand>(form, widget);
}

void editItems(const QPointer<QDesignerFormWindowInterface> &form, VoCc::OptionComboBox *widget)
{
    editList<OptionComboEditor, ChangeOptionComboCommand>(form, widget);
}

void editItems(const QPointer<QDesignerFormWindowInterface> &form, VoCc::OptionButtons *widget)
{
    editList<OptionsEditor, ChangeOptionButtonsCommand>(form, widget);
}

void editItems(const QPointer<QDesignerFormWindowInterface> &form, VoCc::OptionRadios *widget)
{
    editList<OptionsEditor, ChangeOptionRadiosCommand>(form, widget);
}

void editItems(const QPointer<QDesignerFormWindowInterface> &form, VoCc::DrawbackBoxGroup *widget)
{
    editList<DrawbackBoxEditor, ChangeDrawbackBoxCommand>(form, widget);
}
