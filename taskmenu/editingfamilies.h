#pragma once

// The editing families: one row each, naming everything an item edit of a widget class goes
// through. CC_EDITING_FAMILIES(FAMILY, FACTORY) calls
//   FAMILY(TaskMenu, Factory, WidgetClass, Editor, Command, entryText, windowTitle)
// once per family: the task menu that offers the context-menu entry entryText (translated in
// the task menu's context), the factory that makes the task menu for widgets of WidgetClass,
// the editor dialog the entry opens (titled windowTitle, translated in the editor's context),
// and the command that applies an accepted edit to the widget (its contents type and write
// function are the command's). A task menu that serves more classes gets a factory for each
// further class through FACTORY(Factory, TaskMenu, WidgetClass).
//
// The list is expanded three times: into the task menus' and factories' declarations
// (taskmenus.h, where moc reads them), into their edit slots and the factory registrations
// (itemedits.cpp), and nowhere else. Adding a family is a row here, its editor, and its
// command with its write function.

// clang-format off
#define CC_EDITING_FAMILIES(FAMILY, FACTORY)                                                   \
    FAMILY(ComboBoxTaskMenu, ComboBoxFactory, VoCc::ComboBox,                                  \
           ComboBoxEditor, ChangeComboBoxCommand, "Edit Items", "Edit ComboBox")               \
    FAMILY(CheckComboTaskMenu, CheckComboFactory, VoCc::CheckableTextComboBox,                 \
           CheckComboEditor, ChangeCheckComboCommand, "Edit Items", "Edit Checkable ComboBox") \
    FAMILY(OptionComboTaskMenu, OptionComboFactory, VoCc::OptionComboBox,                      \
           OptionComboEditor, ChangeOptionComboCommand, "Edit Items", "Edit Option ComboBox")  \
    FAMILY(OptionButtonsTaskMenu, OptionButtonsFactory, VoCc::OptionButtons,                   \
           OptionsEditor, ChangeOptionButtonsCommand, "Edit Buttons", "Edit OptionButtons")    \
    FAMILY(OptionRadiosTaskMenu, OptionRadiosFactory, VoCc::OptionRadios,                      \
           OptionsEditor, ChangeOptionRadiosCommand, "Edit Buttons", "Edit OptionRadios")      \
    FAMILY(DrawbackBoxTaskMenu, DrawbackBoxFactory, VoCc::DrawbackBoxGroup,                    \
           DrawbackBoxEditor, ChangeDrawbackBoxCommand, "Edit DrawbackBox",                    \
           "Edit DrawbackBoxGroup")                                                            \
    FAMILY(MatrixPushButtonsTaskMenu, MatrixPushButtonsFactory, VoCc::MatrixPushButtons,       \
           MatrixButtonsDialog, ChangeMatrixBtnsCommand, "Edit Buttons", "Edit Matrix buttons")\
    FACTORY(MatrixRadioButtonsFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixRadioButtons)    \
    FACTORY(MatrixCheckBoxesFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixCheckBoxes)        \
    FAMILY(MatrixPopButtonsTaskMenu, MatrixPopButtonsFactory, VoCc::MatrixPopButtons,          \
           MatrixPopButtonsDialog, ChangeMatrixPopBtnsCommand, "Edit Buttons",                 \
           "Edit Matrix PopButtons")
// clang-format on
