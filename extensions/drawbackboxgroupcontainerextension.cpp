#include "drawbackboxgroupcontainerextension.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QDebug>

DrawbackBoxGroupContainerExtension::DrawbackBoxGroupContainerExtension(
        VoCc::DrawbackBoxGroup *widget, QObject *parent)
    : QObject(parent), m_group(widget)
{
    // The factory that owns the extension lives as long as Designer's core and only forgets
    // the extension when the group goes; the extension goes with its group instead.
    connect(widget, &QObject::destroyed, this, [this] { delete this; });
}

int DrawbackBoxGroupContainerExtension::count() const { return m_group->count(); }

QWidget *DrawbackBoxGroupContainerExtension::widget(int index) const
{
    return m_group->widget(index);
}

int DrawbackBoxGroupContainerExtension::currentIndex() const { return m_group->currentIndex(); }

void DrawbackBoxGroupContainerExtension::setCurrentIndex(int index)
{
    // A trace of every page switch Designer asks for, also when the page is already current.
    const QString trace =
            QStringLiteral("DrawbackBoxGroupContainerExtension::currentIndexChanged %1").arg(index);
    qDebug("%s", trace.toLatin1().constData());
    m_group->setCurrentIndex(index);
    m_group->repaint();
}

// Each change repaints at once, so the form shows the new page layout before Designer
// continues with its own updates.
void DrawbackBoxGroupContainerExtension::addWidget(QWidget *widget)
{
    m_group->addPage(widget);
    m_group->repaint();
}

void DrawbackBoxGroupContainerExtension::insertWidget(int index, QWidget *widget)
{
    m_group->insertPage(index, widget);
    m_group->repaint();
}

void DrawbackBoxGroupContainerExtension::remove(int index)
{
    m_group->removePage(index);
    m_group->repaint();
}
