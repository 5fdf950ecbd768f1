#include "propertytreeview_p.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

namespace CcPropertyBrowserDetail {

static bool isEditable(const QTreeWidgetItem *item)
{
    const Qt::ItemFlags needed = Qt::ItemIsEditable | Qt::ItemIsEnabled;
    return item && (item->flags() & needed) == needed;
}

PropertyTreeView::PropertyTreeView(QWidget *parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setAlternatingRowColors(true);
    setUniformRowHeights(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(true);
}

QTreeWidgetItem *PropertyTreeView::editedItem() const
{
    return m_editedIndex.isValid() ? itemFromIndex(m_editedIndex) : nullptr;
}

void PropertyTreeView::editValue(QTreeWidgetItem *item)
{
    if (!isEditable(item) || item == editedItem())
        return;
    setCurrentItem(item, 1);
    editItem(item, 1);
}

void PropertyTreeView::mousePressEvent(QMouseEvent *event)
{
    QTreeWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    QTreeWidgetItem *item = itemAt(event->pos());
    if (!item)
        return;
    // A press on the branch arrow only opens or closes the branch.
    const QRect nameRect = visualItemRect(item);
    const int contentLeft = visualRect(indexFromItem(item, 0)).left();
    if (header()->logicalIndexAt(event->pos().x()) == 0 && event->pos().x() < contentLeft
        && nameRect.contains(event->pos()))
        return;
    editValue(item);
}

void PropertyTreeView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState && isEditable(currentItem())) {
        editValue(currentItem());
        event->accept();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

bool PropertyTreeView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const QModelIndex valueIndex = index.sibling(index.row(), 1);
    const bool started = QTreeWidget::edit(valueIndex, trigger, event);
    if (started)
        m_editedIndex = valueIndex;
    return started;
}

void PropertyTreeView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    m_editedIndex = QPersistentModelIndex();
    QTreeWidget::closeEditor(editor, hint);
}

} // namespace CcPropertyBrowserDetail
