#pragma once

class QDesignerCustomWidgetInterface;
class QDesignerFormEditorInterface;
class QObject;
class QWidget;
struct QMetaObject;

// The default XML of a widget class: either the standard element with a dynamic "id"
// property and the given object name, or a complete text of its own.
struct DefaultXml
{
    const char *objectName;
    bool lineFeed;
    const char *text;
};

constexpr DefaultXml standardXml(const char *objectName) { return {objectName, true, nullptr}; }
constexpr DefaultXml standardXmlNoLineFeed(const char *objectName)
{
    return {objectName, false, nullptr};
}
constexpr DefaultXml specialXml(const char *text) { return {nullptr, false, text}; }

using ExtensionRegistration = void (*)(QDesignerFormEditorInterface *core);

// A class of the library as its list gives it (ccwidgetclasses.h).
struct WidgetClassRow
{
    const char *name;
    const char *includeFile;
    bool container;
    QWidget *(*create)(QWidget *parent);
};

// One widget class as the widget box shows it, and what its plug-in does for Designer. The
// task-menu factories a plug-in registers come from the editing families that serve its
// class.
struct WidgetPluginRow
{
    const QMetaObject *plugin;
    QDesignerCustomWidgetInterface *(*createPlugin)(QObject *parent);
    WidgetClassRow widget;
    const char *group;
    const char *toolTip; // null: the plug-in answers both description texts with null strings
    DefaultXml domXml;
    ExtensionRegistration extensions;
};

// The widget plug-ins in the order the widget box is fed.
const WidgetPluginRow *widgetPluginRows();
int widgetPluginCount();

// The row of a plug-in class, found by its meta-object; null for a class not in the table.
const WidgetPluginRow *widgetPluginRow(const QMetaObject *plugin);
