#pragma once

#include <QtGlobal>

// The editing families: one row each, naming everything an item edit of a widget class goes
// through. CC_EDITING_FAMILIES(FAMILY, FACTORY) calls
//   FAMILY(TaskMenu, Factory, WidgetClass, Editor, Command, entryText, windowTitle)
// once per family: the task menu that offers the context-menu entry entryText (translated in
// the task menu's context), the factory that makes the task menu for widgets of WidgetClass,
// the editor dialog the entry opens (titled windowTitle, translated in the editor's context),
// and the command that applies an accepted edit to the widget (its contents type and write
// function are the command's). A task menu that serves more classes gets a factory for each
// further class through FACTORY(Factory, TaskMenu, WidgetClass). The texts are marked with
// their contexts, so that lupdate finds them here.
//
// The list is expanded three times: into the task menus' and factories' declarations
// (taskmenus.h, where moc reads them), into their edit slots and the factory registrations
// (itemedits.cpp), and nowhere else. Adding a family is a row here, its editor, and its
// command with its write function.

// clang-format off
#define CC_EDITING_FAMILIES(FAMILY, FACTORY) \
    FAMILY(ComboBoxTaskMenu, ComboBoxFactory, VoCc::ComboBox, ComboBoxEditor, ChangeComboBoxCommand, \
           QT_TRANSLATE_NOOP("ComboBoxTaskMenu", "Edit Items"), \
           QT_TRANSLATE_NOOP("ComboBoxEditor", "Edit ComboBox")) \
    FAMILY(CheckComboTaskMenu, CheckComboFactory, VoCc::CheckableTextComboBox, CheckComboEditor, ChangeCheckComboCommand, \
           QT_TRANSLATE_NOOP("CheckComboTaskMenu", "Edit Items"), \
           QT_TRANSLATE_NOOP("CheckComboEditor", "Edit Checkable ComboBox")) \
    FAMILY(OptionComboTaskMenu, OptionComboFactory, VoCc::OptionComboBox, OptionComboEditor, ChangeOptionComboCommand, \
           QT_TRANSLATE_NOOP("OptionComboTaskMenu", "Edit Items"), \
           QT_TRANSLATE_NOOP("OptionComboEditor", "Edit Option ComboBox")) \
    FAMILY(OptionButtonsTaskMenu, OptionButtonsFactory, VoCc::OptionButtons, OptionsEditor, ChangeOptionButtonsCommand, \
           QT_TRANSLATE_NOOP("OptionButtonsTaskMenu", "Edit Buttons"), \
           QT_TRANSLATE_NOOP("OptionsEditor", "Edit OptionButtons")) \
    FAMILY(OptionRadiosTaskMenu, OptionRadiosFactory, VoCc::OptionRadios, OptionsEditor, ChangeOptionRadiosCommand, \
           QT_TRANSLATE_NOOP("OptionRadiosTaskMenu", "Edit Buttons"), \
           QT_TRANSLATE_NOOP("OptionsEditor", "Edit OptionRadios")) \
    FAMILY(DrawbackBoxTaskMenu, DrawbackBoxFactory, VoCc::DrawbackBoxGroup, DrawbackBoxEditor, ChangeDrawbackBoxCommand, \
           QT_TRANSLATE_NOOP("DrawbackBoxTaskMenu", "Edit DrawbackBox"), \
           QT_TRANSLATE_NOOP("DrawbackBoxEditor", "Edit DrawbackBoxGroup")) \
    FAMILY(MatrixPushButtonsTaskMenu, MatrixPushButtonsFactory, VoCc::MatrixPushButtons, MatrixButtonsDialog, ChangeMatrixBtnsCommand, \
           QT_TRANSLATE_NOOP("MatrixPushButtonsTaskMenu", "Edit Buttons"), \
           QT_TRANSLATE_NOOP("MatrixButtonsDialog", "Edit Matrix buttons")) \
    FACTORY(MatrixRadioButtonsFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixRadioButtons) \
    FACTORY(MatrixCheckBoxesFactory, MatrixPushButtonsTaskMenu, VoCc::MatrixCheckBoxes) \
    FAMILY(MatrixPopButtonsTaskMenu, MatrixPopButtonsFactory, VoCc::MatrixPopButtons, MatrixPopButtonsDialog, ChangeMatrixPopBtnsCommand, \
           QT_TRANSLATE_NOOP("MatrixPopButtonsTaskMenu", "Edit Buttons"), \
           QT_TRANSLATE_NOOP("MatrixPopButtonsDialog", "Edit Matrix PopButtons"))
// clang-format on
