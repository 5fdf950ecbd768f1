#include "extrainfoextension.h"

#include "extrainfoextensionfactory.h"

#include <nui/CommonControls/CcFormBuilder.hpp>

#include <QWidget>

ExtraInfoExtension::ExtraInfoExtension(QWidget *widget, ExtraInfoExtensionFactory *factory)
    : m_widget(widget), m_factory(factory)
{
    // Nothing owns the extension: its factory only forgets it when the widget goes, and
    // drops it from its cache when the extension goes. So it goes with its widget.
    connect(widget, &QObject::destroyed, this, [this] { delete this; });
}

QDesignerFormEditorInterface *ExtraInfoExtension::core() const { return m_factory->core(); }

QWidget *ExtraInfoExtension::widget() const { return m_widget; }

bool ExtraInfoExtension::saveUiExtraInfo(DomUI *ui)
{
    Q_UNUSED(ui)
    return true;
}

bool ExtraInfoExtension::loadUiExtraInfo(DomUI *ui)
{
    Q_UNUSED(ui)
    return true;
}

// What goes into the element is the form builder's business; it gets no context.
bool ExtraInfoExtension::saveWidgetExtraInfo(DomWidget *ui_widget)
{
    VoCc::FormBuilder::saveExtraInfo(ui_widget, m_widget, nullptr);
    return true;
}

bool ExtraInfoExtension::loadWidgetExtraInfo(DomWidget *ui_widget)
{
    VoCc::FormBuilder::loadExtraInfo(ui_widget, m_widget, nullptr);
    return true;
}
