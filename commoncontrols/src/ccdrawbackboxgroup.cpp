#include "nui/CommonControls/CcDrawbackBoxGroup.hpp"

#include <QSet>
#include <QVBoxLayout>

namespace VoCc {

DrawbackBoxGroup::DrawbackBoxGroup(QWidget *parent)
    : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(1);
    m_layout->addStretch(1);
}

DrawbackBoxGroup::~DrawbackBoxGroup() = default;

int DrawbackBoxGroup::count() const { return m_boxes.size(); }

int DrawbackBoxGroup::currentIndex() const { return m_currentIndex; }

QWidget *DrawbackBoxGroup::widget(int index) const
{
    DrawbackBox *pageBox = box(index);
    return pageBox ? pageBox->widget() : nullptr;
}

DrawbackBox *DrawbackBoxGroup::box(int index) const
{
    return index >= 0 && index < m_boxes.size() ? m_boxes.at(index) : nullptr;
}

int DrawbackBoxGroup::indexOf(QWidget *page) const
{
    if (!page)
        return -1;
    // From the back: the page asked about most is the one added last (loaders add a page
    // they made in the group once more).
    for (int i = m_boxes.size() - 1; i >= 0; --i) {
        if (m_boxes.at(i)->widget() == page)
            return i;
    }
    return -1;
}

void DrawbackBoxGroup::addPage(QWidget *page) { insertPage(count(), page); }

void DrawbackBoxGroup::insertPage(int index, QWidget *page)
{
    // A page already in the group stays where it is: form loaders may hand a page over
    // through more than one route. Only a page in a box of the group can be one.
    if (!page)
        return;
    const QWidget *holder = page->parentWidget();
    if (holder && holder->parentWidget() == this && indexOf(page) >= 0)
        return;
    if (index < 0 || index > count())
        index = count();

    const int previous = m_currentIndex;
    // The current page stays current, at its index after the insertion.
    const int shifted = previous >= index ? previous + 1 : previous;
    if (m_pendingIndex >= 0 && m_pendingIndex <= count()) {
        m_currentIndex = m_pendingIndex;
        m_pendingIndex = -1;
    } else {
        m_currentIndex = previous < 0 ? 0 : shifted;
    }

    auto *pageBox = new DrawbackBox(this);
    // Collapsed before the page goes in, so that a page that is not current is hidden at once.
    pageBox->setExpanded(false);
    pageBox->setWidget(page);
    connect(pageBox, &DrawbackBox::titleClicked, this, &DrawbackBoxGroup::onBoxTitleClicked);
    m_boxes.insert(index, pageBox);
    m_layout->insertWidget(index, pageBox);
    showCurrent(shifted);
    // A new box shows with the group. Shown on its own while the group is hidden (a loader
    // filling it), its layout would be laid out at once and ask to be laid out anew at each
    // later change, a request Qt files among all waiting events (see DrawbackBox).
    if (isVisible())
        pageBox->show();
    // Also when a page inserted in front shifts the current one: the index is what listeners
    // hold on to.
    if (previous != m_currentIndex)
        emit currentIndexChanged(m_currentIndex);
}

void DrawbackBoxGroup::removePage(int index)
{
    DrawbackBox *pageBox = box(index);
    if (!pageBox)
        return;
    m_boxes.removeAt(index);
    if (QWidget *page = pageBox->takeWidget()) {
        // The page is not ours to delete: whoever removes it may put it back.
        page->setParent(this);
        page->hide();
    }
    delete pageBox;

    const int previous = m_currentIndex;
    if (m_boxes.isEmpty())
        m_currentIndex = -1;
    else if (index < m_currentIndex || m_currentIndex >= m_boxes.size())
        --m_currentIndex;
    updateBoxes();
    if (previous != m_currentIndex || index == previous)
        emit currentIndexChanged(m_currentIndex);
}

QString DrawbackBoxGroup::pageTitle(int index) const
{
    DrawbackBox *pageBox = box(index);
    return pageBox ? pageBox->title() : QString();
}

void DrawbackBoxGroup::setPageTitle(const QString &title)
{
    DrawbackBox *pageBox = box(m_currentIndex);
    if (!pageBox)
        return;
    pageBox->setTitle(title);
    emit pageTitleChanged(title);
}

int DrawbackBoxGroup::replaceBoxes(const QList<DrawbackBox *> &boxes)
{
    DrawbackBox *current = box(m_currentIndex);
    QList<DrawbackBox *> order;
    QSet<DrawbackBox *> kept;
    for (DrawbackBox *pageBox : boxes) {
        if (pageBox && !kept.contains(pageBox)) {
            order.append(pageBox);
            kept.insert(pageBox);
        }
    }
    QSet<DrawbackBox *> before;
    for (DrawbackBox *pageBox : qAsConst(m_boxes)) {
        before.insert(pageBox);
        if (!kept.contains(pageBox)) {
            m_layout->removeWidget(pageBox);
            pageBox->hide();
            disconnect(pageBox, nullptr, this, nullptr);
        }
    }
    for (DrawbackBox *pageBox : qAsConst(order)) {
        if (!before.contains(pageBox)) {
            pageBox->setParent(this);
            connect(pageBox, &DrawbackBox::titleClicked, this,
                    &DrawbackBoxGroup::onBoxTitleClicked);
        }
    }
    m_boxes = order;
    placeBoxes();

    const int previous = m_currentIndex;
    m_currentIndex = m_boxes.indexOf(current);
    if (m_currentIndex < 0 && !m_boxes.isEmpty())
        m_currentIndex = 0;
    updateBoxes();
    for (DrawbackBox *pageBox : qAsConst(m_boxes))
        pageBox->show();
    if (previous != m_currentIndex)
        emit currentIndexChanged(m_currentIndex);
    return count();
}

void DrawbackBoxGroup::setCurrentIndex(int index)
{
    if (index < 0)
        return;
    if (index >= count()) {
        m_pendingIndex = index;
        return;
    }
    m_pendingIndex = -1;
    if (index == m_currentIndex)
        return;
    const int previous = m_currentIndex;
    m_currentIndex = index;
    showCurrent(previous);
    emit currentIndexChanged(index);
}

void DrawbackBoxGroup::onBoxTitleClicked()
{
    setCurrentIndex(m_boxes.indexOf(qobject_cast<DrawbackBox *>(sender())));
}

void DrawbackBoxGroup::updateBoxes()
{
    for (int i = 0; i < m_boxes.size(); ++i)
        m_boxes.at(i)->setExpanded(i == m_currentIndex);
    // The expanded box takes the spare height; with none, a stretch keeps the bars on top.
    m_layout->setStretch(m_layout->count() - 1, m_currentIndex < 0 ? 1 : 0);
    for (int i = 0; i < m_boxes.size(); ++i)
        m_layout->setStretch(i, i == m_currentIndex ? 1 : 0);
}

void DrawbackBoxGroup::showCurrent(int previous)
{
    // Only the box that was current and the one that is now change.
    if (previous != m_currentIndex) {
        if (DrawbackBox *pageBox = box(previous)) {
            pageBox->setExpanded(false);
            m_layout->setStretch(previous, 0);
        }
    }
    if (DrawbackBox *pageBox = box(m_currentIndex)) {
        pageBox->setExpanded(true);
        m_layout->setStretch(m_currentIndex, 1);
    }
    m_layout->setStretch(m_boxes.size(), m_currentIndex < 0 ? 1 : 0);
}

void DrawbackBoxGroup::placeBoxes()
{
    // Re-insert the boxes in page order ahead of the closing stretch.
    for (DrawbackBox *pageBox : qAsConst(m_boxes))
        m_layout->removeWidget(pageBox);
    for (int i = 0; i < m_boxes.size(); ++i)
        m_layout->insertWidget(i, m_boxes.at(i));
}

} // namespace VoCc
