#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

struct WidgetPluginRow;
class QDesignerPropertyEditorInterface;

// The shared implementation of every widget plug-in: it answers Designer from the plug-in's
// table row. It is not a QObject, so each plug-in class keeps a meta-object of its own that
// derives directly from QObject's; the plug-in passes itself in as the object its signal
// connections go to, and forwards its slots to the functions below.
class CustomWidgetBase : public QDesignerCustomWidgetInterface
{
public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

protected:
    CustomWidgetBase(QObject *plugin, const WidgetPluginRow *row);

    void repaintEditedWidget() const;
    void reapplyPushButtonMatrices() const;
    void selectCurrentPage(QObject *sender, int index) const;
    void markCurrentPageTitleChanged(QObject *sender) const;

private:
    QObject *m_plugin;
    const WidgetPluginRow *m_row;
    bool m_initialized = false;
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerPropertyEditorInterface *m_propertyEditor = nullptr;
};
