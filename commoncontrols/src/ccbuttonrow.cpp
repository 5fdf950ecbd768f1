#include "ccbuttonrow.h"

#include "ccentrylists.h"
#include "nui/CommonControls/template/CcAbstractOptions.hpp"

#include <QAbstractButton>
#include <QBoxLayout>

namespace VoCc {

ButtonRow::ButtonRow(AbstractOptions *owner, QBoxLayout *layout, Factory factory)
    : m_owner(owner), m_layout(layout), m_factory(factory)
{ }

void ButtonRow::rebuild()
{
    const int count = m_owner->count();
    if (count < m_buttons.size())
        removeButtons(count);
    while (m_buttons.size() < count)
        addButton();
    // Each list change comes here: only the buttons that show something else change.
    for (int i = 0; i < count; ++i) {
        QAbstractButton *button = m_buttons.at(i);
        const QString text = EntryLists::shownText(m_owner->textAt(i));
        if (button->text() != text)
            button->setText(text);
        const QString iconPath = m_owner->iconAt(i);
        if (m_iconPaths.at(i) != iconPath) {
            m_iconPaths[i] = iconPath;
            button->setIcon(EntryLists::iconFromPath(iconPath));
        }
        const QString toolTip = m_owner->toolTipAt(i);
        if (button->toolTip() != toolTip)
            button->setToolTip(toolTip);
    }
}

void ButtonRow::addButton()
{
    QAbstractButton *button = m_factory(m_owner, m_buttons.size());
    button->setCheckable(true);
    // Exclusive among their siblings, the buttons keep the checked one checked when it is
    // clicked again. A button group would do the same with four connections to every button
    // and a table of them, which weighs on a row of many entries.
    button->setAutoExclusive(true);
    m_layout->addWidget(button);
    m_buttons.append(button);
    m_iconPaths.append(QString());
}

void ButtonRow::removeButtons(int keep)
{
    const int surplus = m_buttons.size() - keep;
    if (surplus <= 16) {
        // A few: each one leaves the layout and its parent on its own.
        while (m_buttons.size() > keep) {
            delete m_buttons.takeLast();
            m_iconPaths.removeLast();
        }
        return;
    }
    // Many: one at a time from the end, each would search the lists of the layout and the
    // parent, so all go and the ones to keep are made anew. The layout is emptied from its
    // end, and the buttons go in the order they were made, in which their parent finds each
    // one first.
    while (QLayoutItem *item = m_layout->takeAt(m_layout->count() - 1))
        delete item;
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_iconPaths.clear();
}

void ButtonRow::check(int index)
{
    if (QAbstractButton *current = button(index)) {
        current->setChecked(true); // the one checked before lets go
        return;
    }
    // No current entry: an exclusive button only lets go of its check when allowed to.
    for (QAbstractButton *checked : qAsConst(m_buttons)) {
        if (checked->isChecked()) {
            checked->setAutoExclusive(false);
            checked->setChecked(false);
            checked->setAutoExclusive(true);
        }
    }
}

QAbstractButton *ButtonRow::button(int index) const
{
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

Qt::Orientation ButtonRow::orientation() const
{
    return m_layout->direction() == QBoxLayout::LeftToRight ? Qt::Horizontal : Qt::Vertical;
}

void ButtonRow::setOrientation(Qt::Orientation orientation)
{
    m_layout->setDirection(orientation == Qt::Horizontal ? QBoxLayout::LeftToRight
                                                         : QBoxLayout::TopToBottom);
}

} // namespace VoCc
