#include "ccbuttonrow.h"

#include "ccentrylists.h"
#include "nui/CommonControls/template/CcAbstractOptions.hpp"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QButtonGroup>

namespace VoCc {

ButtonRow::ButtonRow(AbstractOptions *owner, QBoxLayout *layout, Factory factory)
    : m_owner(owner),
      m_layout(layout),
      m_group(new QButtonGroup(owner)),
      m_factory(std::move(factory))
{
    m_group->setExclusive(true);
    QObject::connect(m_group, &QButtonGroup::idClicked, owner, &AbstractOptions::setCurrentIndex);
}

void ButtonRow::rebuild()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    for (int i = 0; i < m_owner->count(); ++i) {
        QAbstractButton *button = m_factory();
        button->setText(m_owner->textAt(i));
        button->setIcon(EntryLists::iconFromPath(m_owner->iconAt(i)));
        button->setToolTip(m_owner->toolTipAt(i));
        button->setCheckable(true);
        m_group->addButton(button, i);
        m_layout->addWidget(button);
        m_buttons.append(button);
    }
}

void ButtonRow::check(int index)
{
    if (QAbstractButton *current = button(index)) {
        current->setChecked(true);
    } else if (QAbstractButton *checked = m_group->checkedButton()) {
        // No current entry: an exclusive group only lets go of its button when allowed to.
        m_group->setExclusive(false);
        checked->setChecked(false);
        m_group->setExclusive(true);
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
