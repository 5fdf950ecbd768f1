#include "defaultxml.h"
#include "extensionregistration.h"
#include "widgetpluginrow.h"
#include "widgetplugins.h"

#include <taskmenus.h>

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

namespace {

template<class Plugin>
QDesignerCustomWidgetInterface *makePlugin(QObject *parent)
{
    return new Plugin(parent);
}

template<class WidgetClass>
QWidget *make(QWidget *parent)
{
    return new WidgetClass(parent);
}

QWidget *makeColorPanel(QWidget *parent) { return new VoCc::ColorPanel(parent, Qt::WindowFlags()); }

const char templates[] = "Tarn Template Widgets";
const char widgets[] = "Tarn Widgets";

constexpr bool Container = true;
constexpr bool Widget = false;

} // namespace

#define PLUGIN(Class) &Class::staticMetaObject, &makePlugin<Class>

// The widget box, in the order it is fed: the template group first, the form proxy among
// them, then the plain widgets in alphabetical order. The task-menu column names the factory
// that makes the widget's context-menu entry.
// clang-format off
static const WidgetPluginRow rows[] = {
//   plug-in                             name                            group      include file                                           container  tool tip                 default XML                                          widget                              extensions                   task menu
    {PLUGIN(AnglePlugin),                "VoCc::Angle",                  templates, "nui/CommonControls/Template/CcAngle.hpp",             Widget,    "",                      standardXml("Angle"),                                make<VoCc::Angle>,                    nullptr,                     nullptr},
    {PLUGIN(CmdButtonPlugin),            "VoCc::CmdButton",              templates, "nui/CommonControls/Template/CcCmdButton.hpp",         Widget,    "",                      standardXml("CmdButton"),                            make<VoCc::CmdButton>,                    nullptr,                     nullptr},
    {PLUGIN(ColorPlugin),                "VoCc::Color",                  templates, "nui/CommonControls/Template/CcColor.hpp",             Widget,    "",                      standardXml("Color"),                                make<VoCc::Color>,                    nullptr,                     nullptr},
    {PLUGIN(ColorTransferPlugin),        "VoCc::ColorTransfer",          templates, "nui/CommonControls/Template/ColorTransfer.hpp",       Widget,    "",                      standardXml("ColorTransfer"),                        make<VoCc::ColorTransfer>,                    nullptr,                     nullptr},
    {PLUGIN(DistancePlugin),             "VoCc::Distance",               templates, "nui/CommonControls/Template/CcDistance.hpp",          Widget,    "",                      standardXml("Distance"),                             make<VoCc::Distance>,                    nullptr,                     nullptr},
    {PLUGIN(EntityPlugin),               "VoCc::Entity",                 templates, "nui/CommonControls/Template/CcEntity.hpp",            Widget,    "",                      standardXml("Entity"),                               make<VoCc::Entity>,                    nullptr,                     nullptr},
    {PLUGIN(EntityListPlugin),           "VoCc::EntityList",             templates, "nui/CommonControls/Template/CcEntityList.hpp",        Widget,    "",                      standardXml("EntityList"),                           make<VoCc::EntityList>,                    nullptr,                     nullptr},
    {PLUGIN(PinEntityPlugin),            "VoCc::PinEntity",              templates, "nui/CommonControls/Template/CcPinEntity.hpp",         Widget,    "",                      standardXml("PinEntity"),                            make<VoCc::PinEntity>,                    nullptr,                     nullptr},
    {PLUGIN(PinEntityListPlugin),        "VoCc::PinEntityList",          templates, "nui/CommonControls/Template/CcPinEntityList.hpp",     Widget,    "",                      standardXml("PinEntityList"),                        make<VoCc::PinEntityList>,                    nullptr,                     nullptr},
    {PLUGIN(FormProxyPlugin),            "VoCc::FormProxy",              widgets,   "nui/CommonControls/CcFormProxy.hpp",                  Widget,    "",                      standardXml("formProxy"),                            make<VoCc::FormProxy>,                    nullptr,                     nullptr},
    {PLUGIN(NumberPlugin),               "VoCc::Number",                 templates, "nui/CommonControls/Template/CcNumber.hpp",            Widget,    "",                      standardXml("Number"),                               make<VoCc::Number>,                    nullptr,                     nullptr},
    {PLUGIN(OptionButtonsPlugin),        "VoCc::OptionButtons",          templates, "nui/CommonControls/template/CcOptionButtons.hpp",     Widget,    "",                      standardXml("OptionButtons"),                        make<VoCc::OptionButtons>,                    nullptr,                     registerTaskMenu<OptionButtonsFactory>},
    {PLUGIN(OptionCheckBoxPlugin),       "VoCc::OptionCheckBox",         templates, "nui/CommonControls/template/CcOptionCheckBox.hpp",    Widget,    "",                      specialXml(DefaultXmlText::optionCheckBox),          make<VoCc::OptionCheckBox>,                    registerExtraInfo,           nullptr},
    {PLUGIN(OptionComboBoxPlugin),       "VoCc::OptionComboBox",         templates, "nui/CommonControls/template/CcOptionComboBox.hpp",    Widget,    "",                      standardXml("OptionComboBox"),                       make<VoCc::OptionComboBox>,                    nullptr,                     registerTaskMenu<OptionComboFactory>},
    {PLUGIN(OptionRadiosPlugin),         "VoCc::OptionRadios",           templates, "nui/CommonControls/template/CcOptionRadios.hpp",      Widget,    "",                      standardXml("OptionRadios"),                         make<VoCc::OptionRadios>,                    nullptr,                     registerTaskMenu<OptionRadiosFactory>},
    {PLUGIN(PointPlugin),                "VoCc::Point",                  templates, "nui/CommonControls/Template/CcPoint.hpp",             Widget,    "",                      standardXml("Point"),                                make<VoCc::Point>,                    nullptr,                     nullptr},
    {PLUGIN(SliderPlugin),               "VoCc::Slider",                 templates, "nui/CommonControls/Template/CcSlider.hpp",            Widget,    "",                      standardXml("Slider"),                               make<VoCc::Slider>,                    nullptr,                     nullptr},
    {PLUGIN(StringPlugin),               "VoCc::String",                 templates, "nui/CommonControls/Template/CcString.hpp",            Widget,    "",                      standardXml("String"),                               make<VoCc::String>,                    nullptr,                     nullptr},
    {PLUGIN(WindowPlugin),               "VoCc::Window",                 templates, "nui/CommonControls/Template/CcWindow.hpp",            Widget,    "",                      standardXml("Window"),                               make<VoCc::Window>,                    nullptr,                     nullptr},
    {PLUGIN(CheckableTextComboBoxPlugin), "VoCc::CheckableTextComboBox", widgets,   "nui/CommonControls/CcLineEditEx.hpp",                 Widget,    "",                      standardXml("checkableTextComboBox"),                make<VoCc::CheckableTextComboBox>,             nullptr,                     registerTaskMenu<CheckComboFactory>},
    {PLUGIN(ColorButtonPlugin),          "VoCc::ColorButton",            widgets,   "nui/CommonControls/CcColorButton.hpp",                Widget,    "",                      standardXml("colorButton"),                          make<VoCc::ColorButton>,                    nullptr,                     nullptr},
    {PLUGIN(ColorPanelPlugin),           "VoCc::ColorPanel",             widgets,   "nui/CommonControls/CcColorPanel.hpp",                 Widget,    "",                      standardXml("colorPanel"),                           makeColorPanel,                    nullptr,                     nullptr},
    {PLUGIN(ColorPickerPlugin),          "VoCc::ColorPicker",            widgets,   "nui/CommonControls/CcColorPicker.hpp",                Widget,    "",                      standardXml("colorPicker"),                          make<VoCc::ColorPicker>,                    nullptr,                     nullptr},
    {PLUGIN(ComboBoxPlugin),             "VoCc::ComboBox",               widgets,   "nui/CommonControls/CcComboBox.hpp",                   Widget,    "",                      standardXml("comboBox"),                             make<VoCc::ComboBox>,                       nullptr,                     registerTaskMenu<ComboBoxFactory>},
    {PLUGIN(DrawbackBoxGroupPlugin),     "VoCc::DrawbackBoxGroup",       widgets,   "nui/CommonControls/CcDrawbackBoxGroup.hpp",           Container, nullptr,                 specialXml(DefaultXmlText::drawbackBoxGroup),        make<VoCc::DrawbackBoxGroup>,                      registerPageGroupContainer,  registerTaskMenu<DrawbackBoxFactory>},
    {PLUGIN(FormPlugin),                 "VoCc::Form",                   widgets,   "nui/CommonControls/CcForm.hpp",                       Container, "",                      specialXml(DefaultXmlText::form),                    make<VoCc::Form>,                    nullptr,                     nullptr},
    {PLUGIN(LinePlugin),                 "VoCc::Line",                   widgets,   "nui/CommonControls/CcLine.hpp",                       Widget,    "",                      specialXml(DefaultXmlText::line),                    make<VoCc::Line>,                    nullptr,                     nullptr},
    {PLUGIN(LineEditBtnPlugin),          "VoCc::LineEditBtn",            widgets,   "nui/CommonControls/CcLineEditEx.hpp",                 Widget,    "",                      standardXmlNoLineFeed("lineEditBtn"),                make<VoCc::LineEditBtn>,             nullptr,                     nullptr},
    {PLUGIN(LineEditExPlugin),           "VoCc::LineEditEx",             widgets,   "nui/CommonControls/CcLineEditEx.hpp",                 Widget,    "",                      standardXmlNoLineFeed("lineEditEx"),                 make<VoCc::LineEditEx>,             nullptr,                     nullptr},
    {PLUGIN(LineTypePlugin),             "VoCc::LineType",               widgets,   "nui/CommonControls/CcLineType.hpp",                   Widget,    "",                      standardXml("lineType"),                             make<VoCc::LineType>,                    nullptr,                     nullptr},
    {PLUGIN(LineWidthPlugin),            "VoCc::LineWidth",              widgets,   "nui/CommonControls/CcLineWidth.hpp",                  Widget,    "",                      standardXml("lineWidth"),                            make<VoCc::LineWidth>,                    nullptr,                     nullptr},
    {PLUGIN(ListViewPlugin),             "VoCc::ListView",               widgets,   "nui/CommonControls/CcListView.hpp",                   Widget,    "",                      standardXmlNoLineFeed("listView"),                   make<VoCc::ListView>,             nullptr,                     nullptr},
    {PLUGIN(ListWidgetPlugin),           "VoCc::ListWidget",             widgets,   "nui/CommonControls/CcListWidget.hpp",                 Widget,    "",                      standardXmlNoLineFeed("listWidget"),                 make<VoCc::ListWidget>,             nullptr,                     nullptr},
    {PLUGIN(MatrixCheckBoxesPlugin),     "VoCc::MatrixCheckBoxes",       widgets,   "nui/CommonControls/CcMatrixButtons.hpp",              Widget,    "",                      standardXml("matrixCheckBoxes"),                     make<VoCc::MatrixCheckBoxes>, nullptr,                     registerTaskMenu<MatrixCheckBoxesFactory>},
    {PLUGIN(MatrixPopButtonsPlugin),     "VoCc::MatrixPopButtons",       widgets,   "nui/CommonControls/CcMatrixPopButtons.hpp",           Widget,    "",                      specialXml(DefaultXmlText::matrixPopButtons),        make<VoCc::MatrixPopButtons>,             nullptr,                     registerTaskMenu<MatrixPopButtonsFactory>},
    {PLUGIN(MatrixPushButtonsPlugin),    "VoCc::MatrixPushButtons",      widgets,   "nui/CommonControls/CcMatrixButtons.hpp",              Widget,    "",                      standardXml("matrixPushButtons"),                    make<VoCc::MatrixPushButtons>, nullptr,                     registerTaskMenu<MatrixPushButtonsFactory>},
    {PLUGIN(MatrixRadioButtonsPlugin),   "VoCc::MatrixRadioButtons",     widgets,   "nui/CommonControls/CcMatrixButtons.hpp",              Widget,    "",                      standardXml("matrixRadioButtons"),                   make<VoCc::MatrixRadioButtons>, nullptr,                     registerTaskMenu<MatrixRadioButtonsFactory>},
    {PLUGIN(PanePlugin),                 "VoCc::Pane",                   widgets,   "nui/CommonControls/CcPane.hpp",                       Container, "Tarn Collapsible Pane", specialXml(DefaultXmlText::pane),                    make<VoCc::Pane>,                    nullptr,                     nullptr},
    {PLUGIN(RealNumberEditPlugin),       "VoCc::RealNumberEdit",         widgets,   "nui/CommonControls/CcRealNumberEdit.hpp",             Widget,    "",                      standardXml("realNumberEdit"),                       make<VoCc::RealNumberEdit>,             nullptr,                     nullptr},
    {PLUGIN(RealNumberSliderPlugin),     "VoCc::RealNumberSlider",       widgets,   "nui/CommonControls/CcRealNumber.hpp",                 Widget,    "",                      standardXmlNoLineFeed("realNumberSlider"),           make<VoCc::RealNumberSlider>,             nullptr,                     nullptr},
    {PLUGIN(SelectListPlugin),           "VoCc::SelectList",             widgets,   "nui/CommonControls/CcSelectList.hpp",                 Widget,    "",                      standardXmlNoLineFeed("selectList"),                 make<VoCc::SelectList>,             nullptr,                     nullptr},
    {PLUGIN(TableWidgetPlugin),          "VoCc::TableWidget",            widgets,   "nui/CommonControls/CcTableWidget.hpp",                Widget,    "",                      standardXmlNoLineFeed("tableWidget"),                make<VoCc::TableWidget>,             nullptr,                     nullptr},
    {PLUGIN(TextEditPlugin),             "VoCc::TextEdit",               widgets,   "nui/CommonControls/CcTextEdit.hpp",                   Widget,    "",                      standardXml("TextEdit"),                             make<VoCc::TextEdit>,             nullptr,                     nullptr},
    {PLUGIN(TreeViewPlugin),             "VoCc::TreeView",               widgets,   "nui/CommonControls/CcTreeView.hpp",                   Widget,    "",                      standardXmlNoLineFeed("treeView"),                   make<VoCc::TreeView>,             nullptr,                     nullptr},
};
// clang-format on

#undef PLUGIN

const WidgetPluginRow *widgetPluginRows() { return rows; }

int widgetPluginCount() { return int(sizeof(rows) / sizeof(rows[0])); }

const WidgetPluginRow *widgetPluginRow(const QMetaObject *plugin)
{
    for (const WidgetPluginRow &row : rows) {
        if (row.plugin == plugin)
            return &row;
    }
    return nullptr;
}
