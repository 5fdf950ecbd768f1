#include "defaultxml.h"
#include "extensionregistration.h"
#include "widgetpluginrow.h"
#include "widgetplugins.h"

#include <ccwidgetclasses.h>

#include <iterator>

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

// The colour panel is made with its window flags given, as none.
template<>
QWidget *make<VoCc::ColorPanel>(QWidget *parent)
{
    return new VoCc::ColorPanel(parent, Qt::WindowFlags());
}

const char templates[] = "Tarn Template Widgets";
const char widgets[] = "Tarn Widgets";

// What the library's list says of each class: its name on forms, its header, whether it is
// a container, and how to make one.
template<class WidgetClass>
struct LibraryClass;
#define CC_LIBRARY_CLASS(Class, header, container, entries)                                        \
    template<>                                                                                     \
    struct LibraryClass<VoCc::Class>                                                               \
    {                                                                                              \
        static constexpr WidgetClassRow row = {"VoCc::" #Class, header, container,                 \
                                               make<VoCc::Class>};                                 \
    };
CC_WIDGET_CLASSES(CC_LIBRARY_CLASS)
#undef CC_LIBRARY_CLASS

#define CC_COUNT_CLASS(Class, header, container, entries) +1
constexpr int libraryClassCount = 0 CC_WIDGET_CLASSES(CC_COUNT_CLASS);
#undef CC_COUNT_CLASS

} // namespace

// A plug-in class is its widget class's name with "Plugin"; the rest of its row comes from
// the library's list.
#define PLUGIN(Class)                                                                              \
    &Class##Plugin::staticMetaObject, &makePlugin<Class##Plugin>, LibraryClass<VoCc::Class>::row

// The widget box, in the order it is fed: the template group first, the form proxy among
// them, then the plain widgets in alphabetical order. Each class's context-menu entries come
// with the editing family that serves it (taskmenu/editingfamilies.h).
// clang-format off
static const WidgetPluginRow rows[] = {
//   plug-in                         group      tool tip                 default XML                                   extensions
    {PLUGIN(Angle),                 templates, "",                      standardXml("Angle"),                         nullptr},
    {PLUGIN(CmdButton),             templates, "",                      standardXml("CmdButton"),                     nullptr},
    {PLUGIN(Color),                 templates, "",                      standardXml("Color"),                         nullptr},
    {PLUGIN(ColorTransfer),         templates, "",                      standardXml("ColorTransfer"),                 nullptr},
    {PLUGIN(Distance),              templates, "",                      standardXml("Distance"),                      nullptr},
    {PLUGIN(Entity),                templates, "",                      standardXml("Entity"),                        nullptr},
    {PLUGIN(EntityList),            templates, "",                      standardXml("EntityList"),                    nullptr},
    {PLUGIN(PinEntity),             templates, "",                      standardXml("PinEntity"),                     nullptr},
    {PLUGIN(PinEntityList),         templates, "",                      standardXml("PinEntityList"),                 nullptr},
    {PLUGIN(FormProxy),             widgets,   "",                      standardXml("formProxy"),                     nullptr},
    {PLUGIN(Number),                templates, "",                      standardXml("Number"),                        nullptr},
    {PLUGIN(OptionButtons),         templates, "",                      standardXml("OptionButtons"),                 nullptr},
    {PLUGIN(OptionCheckBox),        templates, "",                      specialXml(DefaultXmlText::optionCheckBox),   registerExtraInfo},
    {PLUGIN(OptionComboBox),        templates, "",                      standardXml("OptionComboBox"),                nullptr},
    {PLUGIN(OptionRadios),          templates, "",                      standardXml("OptionRadios"),                  nullptr},
    {PLUGIN(Point),                 templates, "",                      standardXml("Point"),                         nullptr},
    {PLUGIN(Slider),                templates, "",                      standardXml("Slider"),                        nullptr},
    {PLUGIN(String),                templates, "",                      standardXml("String"),                        nullptr},
    {PLUGIN(Window),                templates, "",                      standardXml("Window"),                        nullptr},
    {PLUGIN(CheckableTextComboBox), widgets,   "",                      standardXml("checkableTextComboBox"),         nullptr},
    {PLUGIN(ColorButton),           widgets,   "",                      standardXml("colorButton"),                   nullptr},
    {PLUGIN(ColorPanel),            widgets,   "",                      standardXml("colorPanel"),                    nullptr},
    {PLUGIN(ColorPicker),           widgets,   "",                      standardXml("colorPicker"),                   nullptr},
    {PLUGIN(ComboBox),              widgets,   "",                      standardXml("comboBox"),                      nullptr},
    {PLUGIN(DrawbackBoxGroup),      widgets,   nullptr,                 specialXml(DefaultXmlText::drawbackBoxGroup), registerPageGroupContainer},
    {PLUGIN(Form),                  widgets,   "",                      specialXml(DefaultXmlText::form),             nullptr},
    {PLUGIN(Line),                  widgets,   "",                      specialXml(DefaultXmlText::line),             nullptr},
    {PLUGIN(LineEditBtn),           widgets,   "",                      standardXmlNoLineFeed("lineEditBtn"),         nullptr},
    {PLUGIN(LineEditEx),            widgets,   "",                      standardXmlNoLineFeed("lineEditEx"),          nullptr},
    {PLUGIN(LineType),              widgets,   "",                      standardXml("lineType"),                      nullptr},
    {PLUGIN(LineWidth),             widgets,   "",                      standardXml("lineWidth"),                     nullptr},
    {PLUGIN(ListView),              widgets,   "",                      standardXmlNoLineFeed("listView"),            nullptr},
    {PLUGIN(ListWidget),            widgets,   "",                      standardXmlNoLineFeed("listWidget"),          nullptr},
    {PLUGIN(MatrixCheckBoxes),      widgets,   "",                      standardXml("matrixCheckBoxes"),              nullptr},
    {PLUGIN(MatrixPopButtons),      widgets,   "",                      specialXml(DefaultXmlText::matrixPopButtons), nullptr},
    {PLUGIN(MatrixPushButtons),     widgets,   "",                      standardXml("matrixPushButtons"),             nullptr},
    {PLUGIN(MatrixRadioButtons),    widgets,   "",                      standardXml("matrixRadioButtons"),            nullptr},
    {PLUGIN(Pane),                  widgets,   "Tarn Collapsible Pane", specialXml(DefaultXmlText::pane),             nullptr},
    {PLUGIN(RealNumberEdit),        widgets,   "",                      standardXml("realNumberEdit"),                nullptr},
    {PLUGIN(RealNumberSlider),      widgets,   "",                      standardXmlNoLineFeed("realNumberSlider"),    nullptr},
    {PLUGIN(SelectList),            widgets,   "",                      standardXmlNoLineFeed("selectList"),          nullptr},
    {PLUGIN(TableWidget),           widgets,   "",                      standardXmlNoLineFeed("tableWidget"),         nullptr},
    {PLUGIN(TextEdit),              widgets,   "",                      standardXml("TextEdit"),                      nullptr},
    {PLUGIN(TreeView),              widgets,   "",                      standardXmlNoLineFeed("treeView"),            nullptr},
};
// clang-format on

#undef PLUGIN

static_assert(std::size(rows) == libraryClassCount, "one plug-in per class of the library");

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
