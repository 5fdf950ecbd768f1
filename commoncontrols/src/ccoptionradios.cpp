#include "nui/CommonControls/template/CcOptionRadios.hpp"

#include "ccbuttonrow.h"

#include <QBoxLayout>
#include <QRadioButton>

namespace VoCc {

OptionRadios::OptionRadios(QWidget *parent) : AbstractOptions(parent)
{
    auto *layout = new QBoxLayout(QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_row = new ButtonRow(this, layout, [](AbstractOptions *owner, int index) -> QAbstractButton * {
        return new EntryButton<QRadioButton>(owner, index);
    });
}

OptionRadios::~OptionRadios() { delete m_row; }

Qt::Orientation OptionRadios::orientation() const { return m_row->orientation(); }

void OptionRadios::setOrientation(Qt::Orientation orientation)
{
    m_row->setOrientation(orientation);
}

QAbstractButton *OptionRadios::button(int index) const { return m_row->button(index); }

void OptionRadios::rebuildEntries() { m_row->rebuild(); }

void OptionRadios::showCurrentIndex(int index) { m_row->check(index); }

} // namespace VoCc
