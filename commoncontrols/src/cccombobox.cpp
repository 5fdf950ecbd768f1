#include "nui/CommonControls/CcComboBox.hpp"

#include "ccentrylists.h"

namespace VoCc {

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &ComboBox::onActivated);
}

QStringList ComboBox::actionList() const { return m_actionList; }

void ComboBox::setActionList(const QStringList &actions) { m_actionList = actions; }

QString ComboBox::actionAt(int index) const { return EntryLists::at(m_actionList, index); }

void ComboBox::onActivated(int index)
{
    const QString action = actionAt(index);
    if (!action.isEmpty())
        emit actionTriggered(action);
}

} // namespace VoCc
