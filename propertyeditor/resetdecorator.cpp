#include "resetdecorator.h"

#include "resetwidget.h"

#include "qtpropertybrowser.h"

namespace qdesigner_internal {

ResetDecorator::ResetDecorator(QDesignerFormEditorInterface *core, QObject *parent)
    : QObject(parent), m_core(core)
{ }

ResetDecorator::~ResetDecorator()
{
    // The browser may outlive us; its editors must not call back.
    const QList<QObject *> widgets = m_resetWidgetToProperty.keys();
    for (QObject *widget : widgets)
        disconnect(widget, nullptr, this, nullptr);
}

void ResetDecorator::connectPropertyManager(QtAbstractPropertyManager *manager)
{
    connect(manager, &QtAbstractPropertyManager::propertyChanged, this,
            &ResetDecorator::slotPropertyChanged);
}

void ResetDecorator::disconnectPropertyManager(QtAbstractPropertyManager *manager)
{
    disconnect(manager, &QtAbstractPropertyManager::propertyChanged, this,
               &ResetDecorator::slotPropertyChanged);
}

void ResetDecorator::setSpacing(int spacing) { m_spacing = spacing; }

QWidget *ResetDecorator::editor(QWidget *subEditor, bool resettable,
                                QtAbstractPropertyManager *manager, QtProperty *property,
                                QWidget *parent)
{
    Q_UNUSED(manager)
    if (!resettable)
        return subEditor;
    auto *resetWidget = new ResetWidget(property, parent);
    if (subEditor) {
        resetWidget->setWidget(subEditor);
    } else {
        resetWidget->setValueText(property->valueText());
        resetWidget->setValueIcon(property->valueIcon());
    }
    resetWidget->setResetEnabled(property->isModified());
    if (m_spacing >= 0)
        resetWidget->setSpacing(m_spacing);
    connect(resetWidget, &ResetWidget::resetProperty, this, &ResetDecorator::resetProperty);
    connect(resetWidget, &QObject::destroyed, this, &ResetDecorator::slotEditorDestroyed);
    m_createdResetWidgets[property].append(resetWidget);
    m_resetWidgetToProperty.insert(resetWidget, property);
    return resetWidget;
}

void ResetDecorator::slotPropertyChanged(QtProperty *property)
{
    const QVector<QObject *> widgets = m_createdResetWidgets.value(property);
    for (QObject *object : widgets) {
        auto *widget = static_cast<ResetWidget *>(object);
        widget->setResetEnabled(property->isModified());
        widget->setValueText(property->valueText());
        widget->setValueIcon(property->valueIcon());
    }
}

void ResetDecorator::slotEditorDestroyed(QObject *object)
{
    QtProperty *property = m_resetWidgetToProperty.take(object);
    if (!property)
        return;
    auto it = m_createdResetWidgets.find(property);
    if (it == m_createdResetWidgets.end())
        return;
    it->removeAll(object);
    if (it->isEmpty())
        m_createdResetWidgets.erase(it);
}

} // namespace qdesigner_internal
