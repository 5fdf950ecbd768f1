#include "nui/CommonControls/template/CcOptionComboBox.hpp"

#include "ccentrylists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStandardItemModel>

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
    auto *model = qobject_cast<QStandardItemModel *>(m_comboBox->model());
    if (m_comboBox->count() != count() || !model) {
        m_comboBox->clear();
        m_shownIcons.clear();
        if (model) {
            // All entries go in at once: the combo box then takes note of the new rows once,
            // not once per entry.
            QList<QStandardItem *> items;
            items.reserve(count());
            for (int i = 0; i < count(); ++i) {
                auto *item = new QStandardItem(EntryLists::shownText(textAt(i)));
                item->setData(dataAt(i), Qt::UserRole);
                items.append(item);
            }
            model->invisibleRootItem()->appendRows(items);
        } else {
            for (int i = 0; i < count(); ++i)
                m_comboBox->addItem(EntryLists::shownText(textAt(i)), dataAt(i));
        }
    }
    // Each list change comes here: only the entries that show something else change.
    m_shownIcons.reserve(count());
    while (m_shownIcons.size() < count())
        m_shownIcons.append(QString());
    for (int i = 0; i < count(); ++i) {
        const QString text = EntryLists::shownText(textAt(i));
        if (m_comboBox->itemText(i) != text)
            m_comboBox->setItemText(i, text);
        if (m_shownIcons.at(i) != iconAt(i)) {
            m_shownIcons[i] = iconAt(i);
            m_comboBox->setItemIcon(i, EntryLists::iconFromPath(iconAt(i)));
        }
        const QVariant data = m_comboBox->itemData(i);
        if (data.toString() != dataAt(i) || data.userType() != QMetaType::QString)
            m_comboBox->setItemData(i, dataAt(i));
        const QString toolTip = toolTipAt(i);
        if (m_comboBox->itemData(i, Qt::ToolTipRole).toString() != toolTip)
            m_comboBox->setItemData(i, toolTip.isEmpty() ? QVariant() : toolTip, Qt::ToolTipRole);
    }
}

void OptionComboBox::showCurrentIndex(int index)
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentIndex(index);
}

} // namespace VoCc
