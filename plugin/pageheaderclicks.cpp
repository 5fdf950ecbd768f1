#include "pageheaderclicks.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>

#include <QApplication>
#include <QMouseEvent>

PageHeaderClicks::PageHeaderClicks(VoCc::DrawbackBoxGroup *group) : QObject(group), m_group(group)
{
    qApp->installEventFilter(this);
}

int PageHeaderClicks::pageOfHeader(const QObject *object) const
{
    // A box's header is whatever the box shows besides its page.
    auto *box =
            object->isWidgetType() ? qobject_cast<VoCc::DrawbackBox *>(object->parent()) : nullptr;
    if (!box || box->parent() != m_group || object == box->widget())
        return -1;
    for (int i = 0; i < m_group->count(); ++i) {
        if (m_group->box(i) == box)
            return i;
    }
    return -1;
}

bool PageHeaderClicks::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if ((type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        || static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
        return false;
    const int page = pageOfHeader(watched);
    if (page < 0)
        return false;
    if (type == QEvent::MouseButtonPress) {
        m_pressed = watched;
    } else if (m_pressed == watched) {
        m_pressed = nullptr;
        if (static_cast<QWidget *>(watched)->rect().contains(
                    static_cast<QMouseEvent *>(event)->pos()))
            switchTo(page);
    }
    return false;
}

void PageHeaderClicks::switchTo(int page)
{
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(m_group);
    if (!form)
        return;
    // Through the container extension, as Designer switches pages itself; the group's
    // currentIndexChanged then selects the page on the form.
    auto *container =
            qt_extension<QDesignerContainerExtension *>(form->core()->extensionManager(), m_group);
    if (container)
        container->setCurrentIndex(page);
    else
        m_group->setCurrentIndex(page);
}
