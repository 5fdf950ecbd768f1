#include "nui/CommonControls/CcDrawbackBox.hpp"

#include "ccentrylists.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace VoCc {

DrawbackBox::DrawbackBox(QWidget *parent)
    : QWidget(parent), m_titleBar(new QToolButton(this)), m_layout(new QVBoxLayout)
{
    // A layout asks its widget to lay it out by posting it an event when it is first changed,
    // and Qt looks for an earlier such event to merge it with among all events waiting in the
    // application: a form of many pages, loaded without the event loop running in between,
    // took time growing with the square of their number. Changed before it is the box's, the
    // layout asks nothing; it is laid out when the box is shown, and asks as usual from then.
    m_layout->invalidate();
    setLayout(m_layout);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_titleBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_titleBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_titleBar->setAutoRaise(false);
    m_titleBar->setCheckable(false);
    m_layout->addWidget(m_titleBar);
    connect(m_titleBar, &QToolButton::clicked, this, &DrawbackBox::titleClicked);
    updateTitleBar();
}

DrawbackBox::~DrawbackBox() = default;

QWidget *DrawbackBox::widget() const { return m_page; }

void DrawbackBox::setWidget(QWidget *page)
{
    if (page == m_page)
        return;
    delete takeWidget();
    m_page = page;
    if (!page)
        return;
    page->setParent(this);
    page->installEventFilter(this);
    m_layout->addWidget(page, 1);
    page->setVisible(m_expanded);
    if (!page->windowTitle().isEmpty())
        setTitle(page->windowTitle());
    else
        page->setWindowTitle(m_title);
}

QWidget *DrawbackBox::takeWidget()
{
    QWidget *page = m_page;
    if (!page)
        return nullptr;
    m_page = nullptr;
    page->removeEventFilter(this);
    m_layout->removeWidget(page);
    page->hide();
    page->setParent(nullptr);
    return page;
}

QString DrawbackBox::title() const { return m_title; }

void DrawbackBox::setTitle(const QString &title)
{
    if (title == m_title)
        return;
    m_title = title;
    if (m_page && m_page->windowTitle() != title)
        m_page->setWindowTitle(title);
    updateTitleBar();
    emit titleChanged(title);
}

bool DrawbackBox::isExpanded() const { return m_expanded; }

void DrawbackBox::setExpanded(bool expanded)
{
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    if (m_page)
        m_page->setVisible(expanded);
    setSizePolicy(QSizePolicy::Preferred, expanded ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    updateTitleBar();
}

bool DrawbackBox::eventFilter(QObject *watched, QEvent *event)
{
    // The page's window title is the page title: it may be set on the page directly (a form
    // loader does so) and the box follows.
    if (watched == m_page && event->type() == QEvent::WindowTitleChange)
        setTitle(m_page->windowTitle());
    return QWidget::eventFilter(watched, event);
}

void DrawbackBox::updateTitleBar()
{
    m_titleBar->setText(EntryLists::shownText(m_title));
    m_titleBar->setArrowType(m_expanded ? Qt::DownArrow : Qt::RightArrow);
}

} // namespace VoCc
