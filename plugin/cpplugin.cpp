#include "cpplugin.h"

#include <widgetpluginrow.h>

CpPlugin::CpPlugin(QObject *parent) : QObject(parent)
{
    const WidgetPluginRow *rows = widgetPluginRows();
    const int count = widgetPluginCount();
    m_widgets.reserve(count);
    for (int i = 0; i < count; ++i)
        m_widgets.append(rows[i].createPlugin(this));
}

CpPlugin::~CpPlugin()
{
    // Each plug-in leaves the children list as it goes, so QObject deletes none of them again.
    const QList<QDesignerCustomWidgetInterface *> widgets = m_widgets;
    for (QDesignerCustomWidgetInterface *widget : widgets)
        delete widget;
}

QList<QDesignerCustomWidgetInterface *> CpPlugin::customWidgets() const { return m_widgets; }
