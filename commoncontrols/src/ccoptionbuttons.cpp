#include "nui/CommonControls/template/CcOptionButtons.hpp"

#include "ccbuttonrow.h"

#include <QBoxLayout>
#include <QToolButton>

namespace VoCc {

OptionButtons::OptionButtons(QWidget *parent) : AbstractOptions(parent)
{
    auto *layout = new QBoxLayout(QBoxLayout::LeftToRight, this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_row = new ButtonRow(this, layout, [](AbstractOptions *owner, int index) -> QAbstractButton * {
        auto *button = new EntryButton<QToolButton>(owner, index);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(false);
        return button;
    });
}

OptionButtons::~OptionButtons() { delete m_row; }

Qt::Orientation OptionButtons::orientation() const { return m_row->orientation(); }

void OptionButtons::setOrientation(Qt::Orientation orientation)
{
    m_row->setOrientation(orientation);
}

QAbstractButton *OptionButtons::button(int index) const { return m_row->button(index); }

void OptionButtons::rebuildEntries() { m_row->rebuild(); }

void OptionButtons::showCurrentIndex(int index) { m_row->check(index); }

} // namespace VoCc
