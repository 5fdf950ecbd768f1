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

QVariantList ComboBox::stringAttributes(const QString &list) const
{
    return EntryLists::stringAttributes(m_stringAttributes, list);
}

void ComboBox::setStringAttributes(const QString &list, const QVariantList &attributes)
{
    EntryLists::setStringAttributes(m_stringAttributes, list, attributes);
}

void ComboBox::onActivated(int index)
{
    const QString action = actionAt(index);
    if (!action.isEmpty())
        emit actionTriggered(action);
}

} // namespace VoCc
