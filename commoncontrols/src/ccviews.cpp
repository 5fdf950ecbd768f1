// The item views with the application's defaults.
#include "nui/CommonControls/CcListView.hpp"
#include "nui/CommonControls/CcListWidget.hpp"
#include "nui/CommonControls/CcTableWidget.hpp"
#include "nui/CommonControls/CcTreeView.hpp"

#include <QHeaderView>

namespace VoCc {

ListView::ListView(QWidget *parent) : QListView(parent)
{
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
}

ListWidget::ListWidget(QWidget *parent) : QListWidget(parent)
{
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
}

TreeView::TreeView(QWidget *parent) : QTreeView(parent)
{
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
}

TableWidget::TableWidget(QWidget *parent) : QTableWidget(parent)
{
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    horizontalHeader()->setStretchLastSection(true);
}

} // namespace VoCc
