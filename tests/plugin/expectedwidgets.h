#pragma once

#include <QByteArray>
#include <QString>

// What the widget box must show for each plug-in, in the order the collection hands them
// out, written down independently of the plug-in's own table.
namespace Expected {

enum XmlKind { StandardLf, StandardNoLf, Special };
enum SlotKind { NoSlots, PropertySlot, MatrixSlots, PageSlots };

struct Widget
{
    const char *plugin;
    const char *name;
    bool templateGroup;
    const char *includeFile;
    bool container;
    XmlKind xml;
    const char *objectName;
    SlotKind slotKind;
};

// clang-format off
constexpr Widget widgets[] = {
    {"AnglePlugin", "VoCc::Angle", true, "nui/CommonControls/Template/CcAngle.hpp", false, StandardLf, "Angle", NoSlots},
    {"CmdButtonPlugin", "VoCc::CmdButton", true, "nui/CommonControls/Template/CcCmdButton.hpp", false, StandardLf, "CmdButton", NoSlots},
    {"ColorPlugin", "VoCc::Color", true, "nui/CommonControls/Template/CcColor.hpp", false, StandardLf, "Color", NoSlots},
    {"ColorTransferPlugin", "VoCc::ColorTransfer", true, "nui/CommonControls/Template/ColorTransfer.hpp", false, StandardLf, "ColorTransfer", NoSlots},
    {"DistancePlugin", "VoCc::Distance", true, "nui/CommonControls/Template/CcDistance.hpp", false, StandardLf, "Distance", NoSlots},
    {"EntityPlugin", "VoCc::Entity", true, "nui/CommonControls/Template/CcEntity.hpp", false, StandardLf, "Entity", NoSlots},
    {"EntityListPlugin", "VoCc::EntityList", true, "nui/CommonControls/Template/CcEntityList.hpp", false, StandardLf, "EntityList", NoSlots},
    {"PinEntityPlugin", "VoCc::PinEntity", true, "nui/CommonControls/Template/CcPinEntity.hpp", false, StandardLf, "PinEntity", NoSlots},
    {"PinEntityListPlugin", "VoCc::PinEntityList", true, "nui/CommonControls/Template/CcPinEntityList.hpp", false, StandardLf, "PinEntityList", NoSlots},
    {"FormProxyPlugin", "VoCc::FormProxy", false, "nui/CommonControls/CcFormProxy.hpp", false, StandardLf, "formProxy", NoSlots},
    {"NumberPlugin", "VoCc::Number", true, "nui/CommonControls/Template/CcNumber.hpp", false, StandardLf, "Number", NoSlots},
    {"OptionButtonsPlugin", "VoCc::OptionButtons", true, "nui/CommonControls/template/CcOptionButtons.hpp", false, StandardLf, "OptionButtons", NoSlots},
    {"OptionCheckBoxPlugin", "VoCc::OptionCheckBox", true, "nui/CommonControls/template/CcOptionCheckBox.hpp", false, Special, "OptionCheckBox", NoSlots},
    {"OptionComboBoxPlugin", "VoCc::OptionComboBox", true, "nui/CommonControls/template/CcOptionComboBox.hpp", false, StandardLf, "OptionComboBox", NoSlots},
    {"OptionRadiosPlugin", "VoCc::OptionRadios", true, "nui/CommonControls/template/CcOptionRadios.hpp", false, StandardLf, "OptionRadios", NoSlots},
    {"PointPlugin", "VoCc::Point", true, "nui/CommonControls/Template/CcPoint.hpp", false, StandardLf, "Point", NoSlots},
    {"SliderPlugin", "VoCc::Slider", true, "nui/CommonControls/Template/CcSlider.hpp", false, StandardLf, "Slider", NoSlots},
    {"StringPlugin", "VoCc::String", true, "nui/CommonControls/Template/CcString.hpp", false, StandardLf, "String", NoSlots},
    {"WindowPlugin", "VoCc::Window", true, "nui/CommonControls/Template/CcWindow.hpp", false, StandardLf, "Window", NoSlots},
    {"CheckableTextComboBoxPlugin", "VoCc::CheckableTextComboBox", false, "nui/CommonControls/CcLineEditEx.hpp", false, StandardLf, "checkableTextComboBox", PropertySlot},
    {"ColorButtonPlugin", "VoCc::ColorButton", false, "nui/CommonControls/CcColorButton.hpp", false, StandardLf, "colorButton", NoSlots},
    {"ColorPanelPlugin", "VoCc::ColorPanel", false, "nui/CommonControls/CcColorPanel.hpp", false, StandardLf, "colorPanel", NoSlots},
    {"ColorPickerPlugin", "VoCc::ColorPicker", false, "nui/CommonControls/CcColorPicker.hpp", false, StandardLf, "colorPicker", NoSlots},
    {"ComboBoxPlugin", "VoCc::ComboBox", false, "nui/CommonControls/CcComboBox.hpp", false, StandardLf, "comboBox", NoSlots},
    {"DrawbackBoxGroupPlugin", "VoCc::DrawbackBoxGroup", false, "nui/CommonControls/CcDrawbackBoxGroup.hpp", true, Special, "drawbackBoxGroup", PageSlots},
    {"FormPlugin", "VoCc::Form", false, "nui/CommonControls/CcForm.hpp", true, Special, "form", NoSlots},
    {"LinePlugin", "VoCc::Line", false, "nui/CommonControls/CcLine.hpp", false, Special, "line", NoSlots},
    {"LineEditBtnPlugin", "VoCc::LineEditBtn", false, "nui/CommonControls/CcLineEditEx.hpp", false, StandardNoLf, "lineEditBtn", PropertySlot},
    {"LineEditExPlugin", "VoCc::LineEditEx", false, "nui/CommonControls/CcLineEditEx.hpp", false, StandardNoLf, "lineEditEx", PropertySlot},
    {"LineTypePlugin", "VoCc::LineType", false, "nui/CommonControls/CcLineType.hpp", false, StandardLf, "lineType", NoSlots},
    {"LineWidthPlugin", "VoCc::LineWidth", false, "nui/CommonControls/CcLineWidth.hpp", false, StandardLf, "lineWidth", NoSlots},
    {"ListViewPlugin", "VoCc::ListView", false, "nui/CommonControls/CcListView.hpp", false, StandardNoLf, "listView", PropertySlot},
    {"ListWidgetPlugin", "VoCc::ListWidget", false, "nui/CommonControls/CcListWidget.hpp", false, StandardNoLf, "listWidget", PropertySlot},
    {"MatrixCheckBoxesPlugin", "VoCc::MatrixCheckBoxes", false, "nui/CommonControls/CcMatrixButtons.hpp", false, StandardLf, "matrixCheckBoxes", MatrixSlots},
    {"MatrixPopButtonsPlugin", "VoCc::MatrixPopButtons", false, "nui/CommonControls/CcMatrixPopButtons.hpp", false, Special, "matrixPopButtons", PropertySlot},
    {"MatrixPushButtonsPlugin", "VoCc::MatrixPushButtons", false, "nui/CommonControls/CcMatrixButtons.hpp", false, StandardLf, "matrixPushButtons", MatrixSlots},
    {"MatrixRadioButtonsPlugin", "VoCc::MatrixRadioButtons", false, "nui/CommonControls/CcMatrixButtons.hpp", false, StandardLf, "matrixRadioButtons", MatrixSlots},
    {"PanePlugin", "VoCc::Pane", false, "nui/CommonControls/CcPane.hpp", true, Special, "pane", NoSlots},
    {"RealNumberEditPlugin", "VoCc::RealNumberEdit", false, "nui/CommonControls/CcRealNumberEdit.hpp", false, StandardLf, "realNumberEdit", PropertySlot},
    {"RealNumberSliderPlugin", "VoCc::RealNumberSlider", false, "nui/CommonControls/CcRealNumber.hpp", false, StandardNoLf, "realNumberSlider", PropertySlot},
    {"SelectListPlugin", "VoCc::SelectList", false, "nui/CommonControls/CcSelectList.hpp", false, StandardNoLf, "selectList", PropertySlot},
    {"TableWidgetPlugin", "VoCc::TableWidget", false, "nui/CommonControls/CcTableWidget.hpp", false, StandardNoLf, "tableWidget", PropertySlot},
    {"TextEditPlugin", "VoCc::TextEdit", false, "nui/CommonControls/CcTextEdit.hpp", false, StandardLf, "TextEdit", PropertySlot},
    {"TreeViewPlugin", "VoCc::TreeView", false, "nui/CommonControls/CcTreeView.hpp", false, StandardNoLf, "treeView", PropertySlot},
};
// clang-format on
constexpr int count = int(sizeof(widgets) / sizeof(widgets[0]));

inline QString standardXml(const Widget &w)
{
    QString xml = QStringLiteral("<widget class=\"%1\" name=\"%2\">\n"
                                 " <property name=\"id\" stdset=\"0\">\n"
                                 "  <number></number>\n"
                                 " </property>\n"
                                 "</widget>")
                          .arg(QLatin1String(w.name), QLatin1String(w.objectName));
    if (w.xml == StandardLf)
        xml += QLatin1Char('\n');
    return xml;
}

// The complete default texts of the plug-ins whose XML is not the standard element.
inline QString specialXml(const QByteArray &plugin)
{
    if (plugin == "LinePlugin")
        return QStringLiteral("<widget class=\"VoCc::Line\" name=\"line\">\n</widget>\n");
    if (plugin == "PanePlugin")
        return QStringLiteral(
                "<widget class=\"VoCc::Pane\" name=\"pane\">\n <property name=\"geometry\">\n"
                "  <rect>\n   <x>0</x>\n   <y>0</y>\n   <width>150</width>\n"
                "   <height>100</height>\n  </rect>\n </property>\n"
                " <property name=\"title\">\n  <string>untitled</string>\n </property>\n"
                " <property name=\"id\" stdset=\"0\">\n  <number></number>\n </property>\n"
                "</widget>\n");
    if (plugin == "MatrixPopButtonsPlugin")
        return QStringLiteral(
                "<widget class=\"VoCc::MatrixPopButtons\" name=\"matrixPopButtons\">\n"
                " <property name=\"id\" stdset=\"0\">\n  <number></number>\n </property>\n"
                " <property name=\"textList\">\n  <stringlist>\n   <string>item0</string>\n"
                "   <string>item1</string>\n   <string>item2</string>\n"
                "   <string>item3</string>\n  </stringlist>\n </property>\n</widget>\n");
    if (plugin == "OptionCheckBoxPlugin")
        return QStringLiteral(
                "<widget class=\"VoCc::OptionCheckBox\" name=\"OptionCheckBox\">\n"
                " <property name=\"id\" stdset=\"0\">\n  <number></number>\n </property>\n"
                " <item>\n  <property name=\"data\">\n   <string notr=\"true\">1</string>\n"
                "  </property>\n  <property name=\"text\">\n"
                "   <string notr=\"false\">Yes</string>\n  </property>\n </item>\n"
                " <item>\n  <property name=\"data\">\n   <string notr=\"true\">0</string>\n"
                "  </property>\n  <property name=\"text\">\n"
                "   <string notr=\"false\">No</string>\n  </property>\n </item>\n"
                "</widget>\n");
    if (plugin == "DrawbackBoxGroupPlugin")
        return QStringLiteral(
                "<ui language=\"c++\">\n <widget class=\"VoCc::DrawbackBoxGroup\" "
                "name=\"drawbackBoxGroup\">\n  <widget class=\"QWidget\" name=\"page\" />\n"
                " </widget>\n <customwidgets>\n  <customwidget>\n"
                "   <class>VoCc::DrawbackBoxGroup</class>\n   <extends>QWidget</extends>\n"
                "   <addpagemethod>addPage</addpagemethod>\n  </customwidget>\n"
                " </customwidgets>\n</ui>\n");
    if (plugin == "FormPlugin") {
        QString pages;
        const char *titles[] = {"Required", "Optional", "Advanced"};
        for (int i = 0; i < 3; ++i)
            pages += QStringLiteral("    <widget class=\"QWidget\" name=\"page_%1\">\n"
                                    "     <property name=\"windowTitle\">\n"
                                    "      <string>%2</string>\n"
                                    "     </property>\n"
                                    "    </widget>\n")
                             .arg(i)
                             .arg(QLatin1String(titles[i]));
        return QStringLiteral(
                       "<widget class=\"VoCc::Form\" name=\"form\">\n"
                       " <property name=\"geometry\">\n  <rect>\n   <x>0</x>\n   <y>0</y>\n"
                       "   <width>275</width>\n   <height>360</height>\n  </rect>\n"
                       " </property>\n"
                       " <property name=\"mode\">\n  <enum>VoCc::Form::Dockable</enum>\n"
                       " </property>\n"
                       " <property name=\"functionName\">\n  <string notr=\"true\"/>\n"
                       " </property>\n"
                       " <layout class=\"QVBoxLayout\" name=\"verticalLayout\">\n"
                       "  <property name=\"margin\">\n   <number>2</number>\n  </property>\n"
                       "  <item>\n"
                       "   <widget class=\"VoCc::DrawbackBoxGroup\" name=\"drawbackBoxGroup\">\n"
                       "    <property name=\"currentIndex\">\n     <number>0</number>\n"
                       "    </property>\n")
                + pages + QStringLiteral("   </widget>\n  </item>\n </layout>\n</widget>\n");
    }
    return QString();
}

} // namespace Expected
