#include "nui/CommonControls/CcCheckableTextComboBox.hpp"

#include "ccentrylists.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSet>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace VoCc {

CheckableTextComboBox::CheckableTextComboBox(QWidget *parent)
    : QWidget(parent), m_comboBox(new QComboBox(this))
{
    // The entries live in the combo box's own item model; a model of ours in its place would
    // only cost the swap. Should the combo box ever start with another kind, ours goes in.
    m_model = qobject_cast<QStandardItemModel *>(m_comboBox->model());
    if (!m_model) {
        m_model = new QStandardItemModel(this);
        m_comboBox->setModel(m_model);
    }

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    setFocusProxy(m_comboBox);
    setSizePolicy(m_comboBox->sizePolicy());

    // A read-only line edit shows the summary of the checked texts instead of one entry.
    m_comboBox->setEditable(true);
    m_comboBox->lineEdit()->setReadOnly(true);
    m_comboBox->lineEdit()->installEventFilter(this);
    // Clicking an entry toggles it and keeps the list open.
    m_comboBox->view()->viewport()->installEventFilter(this);
    connect(m_model, &QStandardItemModel::itemChanged, this, [this] {
        if (m_updating)
            return;
        m_checkedTexts = checkedTexts();
        updateSummary();
        emit checkedTextsChanged(checkedTexts());
    });
    connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CheckableTextComboBox::updateSummary);
    updateSummary();
}

CheckableTextComboBox::~CheckableTextComboBox() = default;

QComboBox *CheckableTextComboBox::comboBox() const { return m_comboBox; }

QStringList CheckableTextComboBox::itemTextList() const { return m_itemTextList; }

void CheckableTextComboBox::setItemTextList(const QStringList &texts)
{
    m_itemTextList = texts;
    rebuildItems();
}

QStringList CheckableTextComboBox::toolTips() const { return m_toolTips; }

void CheckableTextComboBox::setToolTips(const QStringList &toolTips)
{
    m_toolTips = toolTips;
    applyToolTips();
}

QVariantList CheckableTextComboBox::stringAttributes(const QString &list) const
{
    return EntryLists::stringAttributes(m_stringAttributes, list);
}

void CheckableTextComboBox::setStringAttributes(const QString &list, const QVariantList &attributes)
{
    EntryLists::setStringAttributes(m_stringAttributes, list, attributes);
}

bool CheckableTextComboBox::isChecked(int index) const
{
    const QStandardItem *item = m_model->item(index);
    return item && item->checkState() == Qt::Checked;
}

void CheckableTextComboBox::setChecked(int index, bool checked)
{
    if (QStandardItem *item = m_model->item(index))
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

QStringList CheckableTextComboBox::checkedTexts() const
{
    QStringList texts;
    for (int i = 0; i < m_model->rowCount(); ++i) {
        if (isChecked(i))
            texts.append(m_itemTextList.value(i));
    }
    return texts;
}

void CheckableTextComboBox::setCheckedTexts(const QStringList &texts)
{
    m_checkedTexts = texts;
    const QSet<QString> checked(texts.cbegin(), texts.cend());
    m_updating = true;
    for (int i = 0; i < m_model->rowCount(); ++i)
        setChecked(i, checked.contains(m_itemTextList.value(i)));
    m_updating = false;
    updateSummary();
    emit checkedTextsChanged(checkedTexts());
}

bool CheckableTextComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_comboBox->lineEdit() && event->type() == QEvent::MouseButtonRelease) {
        m_comboBox->showPopup();
        return true;
    }
    if (watched == m_comboBox->view()->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QModelIndex index = m_comboBox->view()->indexAt(mouse->pos());
        if (QStandardItem *item = m_model->itemFromIndex(index)) {
            item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CheckableTextComboBox::rebuildItems()
{
    // All entries go in at once: the combo box then takes note of the new rows once, not once
    // per entry.
    const QSet<QString> checked(m_checkedTexts.cbegin(), m_checkedTexts.cend());
    QList<QStandardItem *> items;
    items.reserve(m_itemTextList.size());
    for (int i = 0; i < m_itemTextList.size(); ++i) {
        const QString &text = m_itemTextList.at(i);
        auto *item = new QStandardItem(EntryLists::shownText(text));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(checked.contains(text) ? Qt::Checked : Qt::Unchecked);
        const QString toolTip = EntryLists::at(m_toolTips, i);
        if (!toolTip.isEmpty())
            item->setToolTip(toolTip);
        items.append(item);
    }
    m_updating = true;
    m_model->clear();
    m_model->invisibleRootItem()->appendRows(items);
    m_updating = false;
    updateSummary();
}

void CheckableTextComboBox::applyToolTips()
{
    // A tool tip is no change of the checked entries: the summary stays as it is.
    m_updating = true;
    for (int i = 0; i < m_model->rowCount(); ++i) {
        QStandardItem *item = m_model->item(i);
        const QString toolTip = EntryLists::at(m_toolTips, i);
        if (item->toolTip() != toolTip)
            item->setToolTip(toolTip);
    }
    m_updating = false;
}

void CheckableTextComboBox::updateSummary()
{
    // The combo box has no current entry, or it would write that entry's text into the line
    // edit whenever the entry changes; the summary of the checked texts stands there instead.
    if (m_comboBox->currentIndex() != -1) {
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->setCurrentIndex(-1);
    }
    m_comboBox->lineEdit()->setText(
            EntryLists::shownText(checkedTexts().join(QStringLiteral(", "))));
    m_comboBox->lineEdit()->setCursorPosition(0);
}

} // namespace VoCc
