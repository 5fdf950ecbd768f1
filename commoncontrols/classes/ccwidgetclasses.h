#pragma once

// The widget classes of the CommonControls library, written once for everything that goes
// through all of them: the form builder's registry of classes it creates, the Designer
// plug-in's widget table. CC_WIDGET_CLASSES(X) calls X(Class, header, container, entries)
// once per class, in the order Designer's widget box is fed:
// - Class: the class name in the namespace VoCc;
// - header: the header that declares it, as a form's generated code includes it (several
//   classes share one);
// - container: whether the widgets put into it on a form belong to the form (pages,
//   contents), as opposed to the inner widgets it is built from;
// - entries: whether its entries are saved as <item> elements of its own (the list-like
//   widgets but the combo box, whose items are Designer's).
//
// The includes below are those headers, so that whoever expands the list knows every class.

#include <nui/CommonControls/CcColorButton.hpp>
#include <nui/CommonControls/CcColorPanel.hpp>
#include <nui/CommonControls/CcColorPicker.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcForm.hpp>
#include <nui/CommonControls/CcFormProxy.hpp>
#include <nui/CommonControls/CcLine.hpp>
#include <nui/CommonControls/CcLineEditEx.hpp>
#include <nui/CommonControls/CcLineType.hpp>
#include <nui/CommonControls/CcLineWidth.hpp>
#include <nui/CommonControls/CcListView.hpp>
#include <nui/CommonControls/CcListWidget.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcPane.hpp>
#include <nui/CommonControls/CcRealNumber.hpp>
#include <nui/CommonControls/CcRealNumberEdit.hpp>
#include <nui/CommonControls/CcSelectList.hpp>
#include <nui/CommonControls/CcTableWidget.hpp>
#include <nui/CommonControls/CcTextEdit.hpp>
#include <nui/CommonControls/CcTreeView.hpp>
#include <nui/CommonControls/Template/CcAngle.hpp>
#include <nui/CommonControls/Template/CcCmdButton.hpp>
#include <nui/CommonControls/Template/CcColor.hpp>
#include <nui/CommonControls/Template/CcDistance.hpp>
#include <nui/CommonControls/Template/CcEntity.hpp>
#include <nui/CommonControls/Template/CcEntityList.hpp>
#include <nui/CommonControls/Template/CcNumber.hpp>
#include <nui/CommonControls/Template/CcPinEntity.hpp>
#include <nui/CommonControls/Template/CcPinEntityList.hpp>
#include <nui/CommonControls/Template/CcPoint.hpp>
#include <nui/CommonControls/Template/CcSlider.hpp>
#include <nui/CommonControls/Template/CcString.hpp>
#include <nui/CommonControls/Template/CcWindow.hpp>
#include <nui/CommonControls/Template/ColorTransfer.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionCheckBox.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

// clang-format off
#define CC_WIDGET_CLASSES(X) \
    X(Angle,                 "nui/CommonControls/Template/CcAngle.hpp",          false, false) \
    X(CmdButton,             "nui/CommonControls/Template/CcCmdButton.hpp",      false, false) \
    X(Color,                 "nui/CommonControls/Template/CcColor.hpp",          false, false) \
    X(ColorTransfer,         "nui/CommonControls/Template/ColorTransfer.hpp",    false, false) \
    X(Distance,              "nui/CommonControls/Template/CcDistance.hpp",       false, false) \
    X(Entity,                "nui/CommonControls/Template/CcEntity.hpp",         false, false) \
    X(EntityList,            "nui/CommonControls/Template/CcEntityList.hpp",     false, false) \
    X(PinEntity,             "nui/CommonControls/Template/CcPinEntity.hpp",      false, false) \
    X(PinEntityList,         "nui/CommonControls/Template/CcPinEntityList.hpp",  false, false) \
    X(FormProxy,             "nui/CommonControls/CcFormProxy.hpp",               false, false) \
    X(Number,                "nui/CommonControls/Template/CcNumber.hpp",         false, false) \
    X(OptionButtons,         "nui/CommonControls/template/CcOptionButtons.hpp",  false, true) \
    X(OptionCheckBox,        "nui/CommonControls/template/CcOptionCheckBox.hpp", false, true) \
    X(OptionComboBox,        "nui/CommonControls/template/CcOptionComboBox.hpp", false, true) \
    X(OptionRadios,          "nui/CommonControls/template/CcOptionRadios.hpp",   false, true) \
    X(Point,                 "nui/CommonControls/Template/CcPoint.hpp",          false, false) \
    X(Slider,                "nui/CommonControls/Template/CcSlider.hpp",         false, false) \
    X(String,                "nui/CommonControls/Template/CcString.hpp",         false, false) \
    X(Window,                "nui/CommonControls/Template/CcWindow.hpp",         false, false) \
    X(CheckableTextComboBox, "nui/CommonControls/CcLineEditEx.hpp",              false, true) \
    X(ColorButton,           "nui/CommonControls/CcColorButton.hpp",             false, false) \
    X(ColorPanel,            "nui/CommonControls/CcColorPanel.hpp",              false, false) \
    X(ColorPicker,           "nui/CommonControls/CcColorPicker.hpp",             false, false) \
    X(ComboBox,              "nui/CommonControls/CcComboBox.hpp",                false, false) \
    X(DrawbackBoxGroup,      "nui/CommonControls/CcDrawbackBoxGroup.hpp",        true,  false) \
    X(Form,                  "nui/CommonControls/CcForm.hpp",                    true,  false) \
    X(Line,                  "nui/CommonControls/CcLine.hpp",                    false, false) \
    X(LineEditBtn,           "nui/CommonControls/CcLineEditEx.hpp",              false, false) \
    X(LineEditEx,            "nui/CommonControls/CcLineEditEx.hpp",              false, false) \
    X(LineType,              "nui/CommonControls/CcLineType.hpp",                false, false) \
    X(LineWidth,             "nui/CommonControls/CcLineWidth.hpp",               false, false) \
    X(ListView,              "nui/CommonControls/CcListView.hpp",                false, false) \
    X(ListWidget,            "nui/CommonControls/CcListWidget.hpp",              false, false) \
    X(MatrixCheckBoxes,      "nui/CommonControls/CcMatrixButtons.hpp",           false, true) \
    X(MatrixPopButtons,      "nui/CommonControls/CcMatrixPopButtons.hpp",        false, true) \
    X(MatrixPushButtons,     "nui/CommonControls/CcMatrixButtons.hpp",           false, true) \
    X(MatrixRadioButtons,    "nui/CommonControls/CcMatrixButtons.hpp",           false, true) \
    X(Pane,                  "nui/CommonControls/CcPane.hpp",                    true,  false) \
    X(RealNumberEdit,        "nui/CommonControls/CcRealNumberEdit.hpp",          false, false) \
    X(RealNumberSlider,      "nui/CommonControls/CcRealNumber.hpp",              false, false) \
    X(SelectList,            "nui/CommonControls/CcSelectList.hpp",              false, false) \
    X(TableWidget,           "nui/CommonControls/CcTableWidget.hpp",             false, false) \
    X(TextEdit,              "nui/CommonControls/CcTextEdit.hpp",                false, false) \
    X(TreeView,              "nui/CommonControls/CcTreeView.hpp",                false, false)
// clang-format on
