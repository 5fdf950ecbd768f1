#pragma once

#include "widgetpluginimpl.h"
#include "widgetpluginrow.h"

#include <QIcon>
#include <QObject>
#include <QVariant>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class QtResourceSet;

// Each widget plug-in is a small QObject of its own (its meta-object carries its class name
// and the slots it needs); everything else comes from its table row through
// WidgetPluginImpl. The slots are declared with Q_SLOTS so that moc sees them through the
// macros.
//
// The declarations below are a list of their own, apart from the library's list of classes
// (ccwidgetclasses.h): moc makes a meta-object only for a class declared in a header it
// reads, and which of the declaration macros a class takes (the slots its plug-in follows
// the form with) is the plug-in's business, not the library's.

// clang-format off
#define CC_WIDGET_PLUGIN_BEGIN(Class)                                                      \
    class Class : public QObject, public QDesignerCustomWidgetInterface                    \
    {                                                                                      \
        Q_OBJECT                                                                           \
        Q_INTERFACES(QDesignerCustomWidgetInterface)                                       \
    public:                                                                                \
        explicit Class(QObject *parent = nullptr)                                          \
            : QObject(parent), m_impl(this, widgetPluginRow(&staticMetaObject))            \
        {                                                                                  \
        }                                                                                  \
        QString name() const override { return m_impl.name(); }                            \
        QString group() const override { return m_impl.group(); }                          \
        QString toolTip() const override { return m_impl.toolTip(); }                      \
        QString whatsThis() const override { return m_impl.whatsThis(); }                  \
        QString includeFile() const override { return m_impl.includeFile(); }              \
        QIcon icon() const override { return m_impl.icon(); }                              \
        bool isContainer() const override { return m_impl.isContainer(); }                 \
        QWidget *createWidget(QWidget *parent) override                                    \
        {                                                                                  \
            return m_impl.createWidget(parent);                                            \
        }                                                                                  \
        bool isInitialized() const override { return m_impl.isInitialized(); }             \
        void initialize(QDesignerFormEditorInterface *core) override                       \
        {                                                                                  \
            m_impl.initialize(core);                                                       \
        }                                                                                  \
        QString domXml() const override { return m_impl.domXml(); }                        \
                                                                                           \
    private:                                                                               \
        WidgetPluginImpl m_impl;

#define CC_WIDGET_PLUGIN_END };

// A plug-in that only describes and creates its widget.
#define CC_WIDGET_PLUGIN(Class) CC_WIDGET_PLUGIN_BEGIN(Class) CC_WIDGET_PLUGIN_END

// A plug-in that repaints its widget whenever a property is edited.
#define CC_REPAINTING_WIDGET_PLUGIN(Class)                                                  \
    CC_WIDGET_PLUGIN_BEGIN(Class)                                                          \
    private Q_SLOTS:                                                                       \
        void propertyChanged(const QString &, const QVariant &)                            \
        {                                                                                  \
            m_impl.repaintEditedWidget();                                                  \
        }                                                                                  \
    CC_WIDGET_PLUGIN_END

// A button-matrix plug-in: repaints on property edits and rebuilds the push-button matrices
// of the active form when a resource set is activated.
#define CC_MATRIX_WIDGET_PLUGIN(Class)                                                      \
    CC_WIDGET_PLUGIN_BEGIN(Class)                                                          \
    private Q_SLOTS:                                                                       \
        void propertyChanged(const QString &, const QVariant &)                            \
        {                                                                                  \
            m_impl.repaintEditedWidget();                                                  \
        }                                                                                  \
        void resourceSetActivated(QtResourceSet *resourceSet, bool resourceSetChanged)     \
        {                                                                                  \
            Q_UNUSED(resourceSet)                                                          \
            Q_UNUSED(resourceSetChanged)                                                   \
            m_impl.reapplyPushButtonMatrices();                                            \
        }                                                                                  \
    CC_WIDGET_PLUGIN_END

CC_WIDGET_PLUGIN(AnglePlugin)
CC_WIDGET_PLUGIN(CmdButtonPlugin)
CC_WIDGET_PLUGIN(ColorPlugin)
CC_WIDGET_PLUGIN(ColorTransferPlugin)
CC_WIDGET_PLUGIN(DistancePlugin)
CC_WIDGET_PLUGIN(EntityPlugin)
CC_WIDGET_PLUGIN(EntityListPlugin)
CC_WIDGET_PLUGIN(PinEntityPlugin)
CC_WIDGET_PLUGIN(PinEntityListPlugin)
CC_WIDGET_PLUGIN(FormProxyPlugin)
CC_WIDGET_PLUGIN(NumberPlugin)
CC_WIDGET_PLUGIN(OptionButtonsPlugin)
CC_WIDGET_PLUGIN(OptionCheckBoxPlugin)
CC_WIDGET_PLUGIN(OptionComboBoxPlugin)
CC_WIDGET_PLUGIN(OptionRadiosPlugin)
CC_WIDGET_PLUGIN(PointPlugin)
CC_WIDGET_PLUGIN(SliderPlugin)
CC_WIDGET_PLUGIN(StringPlugin)
CC_WIDGET_PLUGIN(WindowPlugin)
CC_REPAINTING_WIDGET_PLUGIN(CheckableTextComboBoxPlugin)
CC_WIDGET_PLUGIN(ColorButtonPlugin)
CC_WIDGET_PLUGIN(ColorPanelPlugin)
CC_WIDGET_PLUGIN(ColorPickerPlugin)
CC_WIDGET_PLUGIN(ComboBoxPlugin)

// The page group follows its groups' page switches and title changes on the form.
CC_WIDGET_PLUGIN_BEGIN(DrawbackBoxGroupPlugin)
    private Q_SLOTS:
        void currentIndexChanged(int index) { m_impl.selectCurrentPage(sender(), index); }
        void pageTitleChanged(const QString &title)
        {
            Q_UNUSED(title)
            m_impl.markCurrentPageTitleChanged(sender());
        }
CC_WIDGET_PLUGIN_END

CC_WIDGET_PLUGIN(FormPlugin)
CC_WIDGET_PLUGIN(LinePlugin)
CC_REPAINTING_WIDGET_PLUGIN(LineEditBtnPlugin)
CC_REPAINTING_WIDGET_PLUGIN(LineEditExPlugin)
CC_WIDGET_PLUGIN(LineTypePlugin)
CC_WIDGET_PLUGIN(LineWidthPlugin)
CC_REPAINTING_WIDGET_PLUGIN(ListViewPlugin)
CC_REPAINTING_WIDGET_PLUGIN(ListWidgetPlugin)
CC_MATRIX_WIDGET_PLUGIN(MatrixCheckBoxesPlugin)
CC_REPAINTING_WIDGET_PLUGIN(MatrixPopButtonsPlugin)
CC_MATRIX_WIDGET_PLUGIN(MatrixPushButtonsPlugin)
CC_MATRIX_WIDGET_PLUGIN(MatrixRadioButtonsPlugin)
CC_WIDGET_PLUGIN(PanePlugin)
CC_REPAINTING_WIDGET_PLUGIN(RealNumberEditPlugin)
CC_REPAINTING_WIDGET_PLUGIN(RealNumberSliderPlugin)
CC_REPAINTING_WIDGET_PLUGIN(SelectListPlugin)
CC_REPAINTING_WIDGET_PLUGIN(TableWidgetPlugin)
CC_REPAINTING_WIDGET_PLUGIN(TextEditPlugin)
CC_REPAINTING_WIDGET_PLUGIN(TreeViewPlugin)
// clang-format on
