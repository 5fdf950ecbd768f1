#include "widgetpluginimpl.h"

#include "pageheaderclicks.h"
#include "widgetpluginrow.h"

#include <itemedits.h>

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>

#include <QIcon>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/private/qtresourcemodel_p.h>

namespace {

// Push-button matrices only, whichever matrix plug-in asks: their buttons carry the icons.
const char pushButtonMatrixClass[] = "VoCc::MatrixPushButtons";

void reapplyPushButtonMatrices(QObject *object)
{
    if (qstrcmp(object->metaObject()->className(), pushButtonMatrixClass) == 0) {
        if (auto *matrix = qobject_cast<VoCc::AbstractMatrixOptions *>(object))
            matrix->setTextList(matrix->textList());
    }
    // A copy: rebuilding a matrix replaces its buttons.
    const QObjectList children = object->children();
    for (QObject *child : children)
        reapplyPushButtonMatrices(child);
}

} // namespace

WidgetPluginImpl::WidgetPluginImpl(QObject *plugin, const WidgetPluginRow *row)
    : m_plugin(plugin),
      m_row(row),
      // What a plug-in follows is what its declaration gave it slots for.
      m_followsPropertyEditor(row->plugin->indexOfSlot("propertyChanged(QString,QVariant)") >= 0),
      m_followsResources(row->plugin->indexOfSlot("resourceSetActivated(QtResourceSet*,bool)")
                         >= 0),
      m_followsPages(row->plugin->indexOfSlot("currentIndexChanged(int)") >= 0)
{
    Q_ASSERT(row);
}

QString WidgetPluginImpl::name() const { return QLatin1String(m_row->widget.name); }

QString WidgetPluginImpl::group() const { return QLatin1String(m_row->group); }

QString WidgetPluginImpl::toolTip() const
{
    return m_row->toolTip ? QString(QLatin1String(m_row->toolTip)) : QString();
}

QString WidgetPluginImpl::whatsThis() const
{
    return m_row->toolTip ? QString(QLatin1String("")) : QString();
}

QString WidgetPluginImpl::includeFile() const { return QLatin1String(m_row->widget.includeFile); }

QIcon WidgetPluginImpl::icon() const { return QIcon(); }

bool WidgetPluginImpl::isContainer() const { return m_row->widget.container; }

QWidget *WidgetPluginImpl::createWidget(QWidget *parent)
{
    // One connection per created widget, on purpose: the slots run once per widget made.
    // clang-format off
    if (m_followsPropertyEditor && m_core) {
        m_propertyEditor = m_core->propertyEditor();
        if (m_propertyEditor)
            QObject::connect(m_propertyEditor, SIGNAL(propertyChanged(QString ,QVariant)),
                             m_plugin, SLOT(propertyChanged(QString,QVariant)));
        if (m_followsResources)
            QObject::connect(m_core->resourceModel(),
                             SIGNAL(resourceSetActivated(QtResourceSet*, bool)),
                             m_plugin, SLOT(resourceSetActivated(QtResourceSet*, bool)));
    }
    // clang-format on
    QWidget *widget = m_row->widget.create(parent);
    if (m_followsPages) {
        QObject::connect(widget, SIGNAL(currentIndexChanged(int)), m_plugin,
                         SLOT(currentIndexChanged(int)));
        QObject::connect(widget, SIGNAL(pageTitleChanged(QString)), m_plugin,
                         SLOT(pageTitleChanged(QString)));
        if (auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(widget))
            new PageHeaderClicks(group);
    }
    return widget;
}

bool WidgetPluginImpl::isInitialized() const { return m_initialized; }

void WidgetPluginImpl::initialize(QDesignerFormEditorInterface *core)
{
    if (m_initialized)
        return;
    if (m_row->extensions)
        m_row->extensions(core);
    registerTaskMenus(core, m_row->widget.name);
    m_core = core;
    m_initialized = true;
}

QString WidgetPluginImpl::domXml() const
{
    const DefaultXml &xml = m_row->domXml;
    if (xml.text)
        return QLatin1String(xml.text);
    QString text = QLatin1String("<widget class=\"") + QLatin1String(m_row->widget.name)
            + QLatin1String("\" name=\"") + QLatin1String(xml.objectName)
            + QLatin1String("\">\n"
                            " <property name=\"id\" stdset=\"0\">\n"
                            "  <number></number>\n"
                            " </property>\n"
                            "</widget>");
    if (xml.lineFeed)
        text += QLatin1Char('\n');
    return text;
}

void WidgetPluginImpl::repaintEditedWidget() const
{
    if (!m_propertyEditor)
        return;
    QObject *object = m_propertyEditor->object();
    if (object && object->isWidgetType()
        && qstrcmp(object->metaObject()->className(), m_row->widget.name) == 0)
        static_cast<QWidget *>(object)->update();
}

void WidgetPluginImpl::reapplyPushButtonMatrices() const
{
    if (!m_core)
        return;
    if (QDesignerFormWindowInterface *formWindow = m_core->formWindowManager()->activeFormWindow())
        ::reapplyPushButtonMatrices(formWindow);
}

void WidgetPluginImpl::selectCurrentPage(QObject *sender, int index) const
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(sender);
    if (!group)
        return;
    // A group outside a form (a preview, say) has nothing to select.
    if (QDesignerFormWindowInterface *formWindow =
                QDesignerFormWindowInterface::findFormWindow(group))
        formWindow->selectWidget(group->widget(index), true);
}

void WidgetPluginImpl::markCurrentPageTitleChanged(QObject *sender) const
{
    auto *group = qobject_cast<VoCc::DrawbackBoxGroup *>(sender);
    if (!group)
        return;
    // Always the current page: the group edits the title of its current page.
    QWidget *page = group->widget(group->currentIndex());
    QDesignerFormWindowInterface *formWindow = QDesignerFormWindowInterface::findFormWindow(group);
    if (!formWindow || !page)
        return;
    // Designer writes only properties marked changed; this puts the title into the form file.
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(
            formWindow->core()->extensionManager(), page);
    if (sheet)
        sheet->setChanged(sheet->indexOf(QStringLiteral("windowTitle")), true);
}
