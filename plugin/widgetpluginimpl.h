#pragma once

#include <QString>

struct WidgetPluginRow;
class QDesignerFormEditorInterface;
class QDesignerPropertyEditorInterface;
class QIcon;
class QObject;
class QWidget;

// The shared implementation of every widget plug-in: it answers Designer from the plug-in's
// table row. Each plug-in class derives from QObject and QDesignerCustomWidgetInterface
// itself, so that its meta-object carries its own class name and casts to the interface by
// name, and forwards the interface and its slots to one of these. The plug-in passes itself
// in as the object that signal connections go to; what it follows (the property editor, the
// resource sets, its page groups) is read from the slots its class declares.
class WidgetPluginImpl
{
public:
    WidgetPluginImpl(QObject *plugin, const WidgetPluginRow *row);

    QString name() const;
    QString group() const;
    QString toolTip() const;
    QString whatsThis() const;
    QString includeFile() const;
    QIcon icon() const;
    bool isContainer() const;
    QWidget *createWidget(QWidget *parent);
    bool isInitialized() const;
    void initialize(QDesignerFormEditorInterface *core);
    QString domXml() const;

    void repaintEditedWidget() const;
    void reapplyPushButtonMatrices() const;
    void selectCurrentPage(QObject *sender, int index) const;
    void markCurrentPageTitleChanged(QObject *sender) const;

private:
    QObject *m_plugin;
    const WidgetPluginRow *m_row;
    const bool m_followsPropertyEditor;
    const bool m_followsResources;
    const bool m_followsPages;
    bool m_initialized = false;
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerPropertyEditorInterface *m_propertyEditor = nullptr;
};
