#include "nui/CommonControls/template/CcOptionComboBox.hpp"

#include "ccentrylists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace VoCc {

OptionComboBox::OptionComboBox(QWidget *parent)
    : AbstractOptions(parent), m_comboBox(new QComboBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    setFocusProxy(m_comboBox);
    setSizePolicy(m_comboBox->sizePolicy());
    connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this,
            &OptionComboBox::userSelected);
}

QComboBox *OptionComboBox::comboBox() const { return m_comboBox; }

void OptionComboBox::rebuildEntries()
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->clear();
    for (int i = 0; i < count(); ++i) {
        m_comboBox->addItem(EntryLists::iconFromPath(iconAt(i)), textAt(i), dataAt(i));
        const QString toolTip = toolTipAt(i);
        if (!toolTip.isEmpty())
            m_comboBox->setItemData(i, toolTip, Qt::ToolTipRole);
    }
}

void OptionComboBox::showCurrentIndex(int index)
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentIndex(index);
}

} // namespace VoCc
