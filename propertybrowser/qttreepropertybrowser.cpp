#include "qttreepropertybrowser.h"

#include "propertyitemdelegate_p.h"
#include "propertytreeview_p.h"

#include <QHash>
#include <QHeaderView>
#include <QVBoxLayout>

using CcPropertyBrowserDetail::PropertyItemDelegate;
using CcPropertyBrowserDetail::PropertyTreeView;

class QtTreePropertyBrowserPrivate
{
public:
    QTreeWidgetItem *treeItem(QtBrowserItem *item) const { return m_treeItems.value(item); }
    QtBrowserItem *browserItem(QTreeWidgetItem *treeItem) const
    {
        return m_browserItems.value(treeItem);
    }
    QtBrowserItem *browserItem(const QModelIndex &index) const
    {
        return browserItem(m_view->rowFromIndex(index));
    }

    bool isEnabled(QtBrowserItem *item) const;
    void updateItem(QtBrowserItem *item);
    void updateSubtree(QtBrowserItem *item);
    void applyResizeMode();

    QtTreePropertyBrowser *q_ptr = nullptr;
    PropertyTreeView *m_view = nullptr;
    QHash<QtBrowserItem *, QTreeWidgetItem *> m_treeItems;
    QHash<QTreeWidgetItem *, QtBrowserItem *> m_browserItems;
    QHash<QtBrowserItem *, QColor> m_backgroundColors;
    QtTreePropertyBrowser::ResizeMode m_resizeMode = QtTreePropertyBrowser::Stretch;
    bool m_markPropertiesWithoutValue = false;
    bool m_syncingCurrent = false;
};

// Disabled as soon as the property or any property above it is.
bool QtTreePropertyBrowserPrivate::isEnabled(QtBrowserItem *item) const
{
    for (QtBrowserItem *it = item; it; it = it->parent()) {
        if (!it->property()->isEnabled())
            return false;
    }
    return true;
}

void QtTreePropertyBrowserPrivate::updateItem(QtBrowserItem *item)
{
    QTreeWidgetItem *row = treeItem(item);
    if (!row)
        return;
    QtProperty *property = item->property();
    const bool hasValue = property->hasValue();
    const bool enabled = isEnabled(item);

    Qt::ItemFlags flags = Qt::ItemIsSelectable;
    if (enabled)
        flags |= Qt::ItemIsEnabled;
    if (enabled && hasValue)
        flags |= Qt::ItemIsEditable;
    row->setFlags(flags);

    const QString name = property->propertyName();
    row->setText(0, name);
    row->setToolTip(0, property->toolTip().isEmpty() ? name : property->toolTip());
    row->setStatusTip(0, property->statusTip());
    row->setWhatsThis(0, property->whatsThis());
    if (hasValue) {
        const QString text = property->valueText();
        row->setText(1, text);
        row->setIcon(1, property->valueIcon());
        row->setToolTip(1, text);
    } else {
        row->setText(1, QString());
        row->setIcon(1, QIcon());
        row->setToolTip(1, QString());
    }
    row->setStatusTip(1, property->statusTip());
    row->setWhatsThis(1, property->whatsThis());

    // A modified property has a bold name, as in Designer. The font only sets the weight,
    // so everything else follows the browser's own font.
    QFont nameFont;
    nameFont.setBold(true);
    row->setData(0, Qt::FontRole, property->isModified() ? QVariant(nameFont) : QVariant());

    // A group has no value: its name spans the row, on a darker band when marked.
    const bool marked = !hasValue && m_markPropertiesWithoutValue;
    row->setFirstColumnSpanned(!hasValue);
    const QPalette palette = q_ptr->palette();
    const QColor background =
            marked ? palette.color(QPalette::Dark) : q_ptr->calculatedBackgroundColor(item);
    for (int column = 0; column < 2; ++column) {
        row->setData(column, Qt::BackgroundRole,
                     background.isValid() ? QVariant(QBrush(background)) : QVariant());
        row->setData(column, Qt::ForegroundRole,
                     marked ? QVariant(palette.brush(QPalette::BrightText)) : QVariant());
    }
}

void QtTreePropertyBrowserPrivate::updateSubtree(QtBrowserItem *item)
{
    updateItem(item);
    const QList<QtBrowserItem *> children = item->children();
    for (QtBrowserItem *child : children)
        updateSubtree(child);
}

void QtTreePropertyBrowserPrivate::applyResizeMode()
{
    QHeaderView::ResizeMode mode = QHeaderView::Interactive;
    switch (m_resizeMode) {
    case QtTreePropertyBrowser::Interactive:
        mode = QHeaderView::Interactive;
        break;
    case QtTreePropertyBrowser::Stretch:
        mode = QHeaderView::Stretch;
        break;
    case QtTreePropertyBrowser::Fixed:
        mode = QHeaderView::Fixed;
        break;
    case QtTreePropertyBrowser::ResizeToContents:
        mode = QHeaderView::ResizeToContents;
        break;
    }
    // The value column always takes the rest of the width.
    QHeaderView *header = m_view->header();
    header->setStretchLastSection(true);
    header->setSectionResizeMode(0, mode);
    header->setSectionResizeMode(
            1, mode == QHeaderView::Stretch ? QHeaderView::Stretch : QHeaderView::Interactive);
}

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget *parent)
    : QtAbstractPropertyBrowser(parent), d_ptr(new QtTreePropertyBrowserPrivate)
{
    QtTreePropertyBrowserPrivate *d = d_ptr.data();
    d->q_ptr = this;
    d->m_view = new PropertyTreeView(this);
    d->m_view->setHeaderLabels({tr("Property"), tr("Value")});
    d->m_view->setItemDelegate(new PropertyItemDelegate(
            [this, d](const QModelIndex &index, QWidget *parent) -> QWidget * {
                QtBrowserItem *item = d->browserItem(index);
                return item ? createEditor(item->property(), parent) : nullptr;
            },
            d->m_view));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->m_view);
    setFocusProxy(d->m_view);
    d->applyResizeMode();

    connect(d->m_view, &QTreeWidget::itemExpanded, this, [this, d](QTreeWidgetItem *row) {
        if (QtBrowserItem *item = d->browserItem(row))
            emit expanded(item);
    });
    connect(d->m_view, &QTreeWidget::itemCollapsed, this, [this, d](QTreeWidgetItem *row) {
        if (QtBrowserItem *item = d->browserItem(row))
            emit collapsed(item);
    });
    // The tree's current row and the browser's current item follow each other.
    connect(d->m_view, &QTreeWidget::currentItemChanged, this, [this, d](QTreeWidgetItem *row) {
        if (d->m_syncingCurrent)
            return;
        d->m_syncingCurrent = true;
        setCurrentItem(d->browserItem(row));
        d->m_syncingCurrent = false;
    });
    connect(this, &QtAbstractPropertyBrowser::currentItemChanged, this, [d](QtBrowserItem *item) {
        if (d->m_syncingCurrent)
            return;
        d->m_syncingCurrent = true;
        d->m_view->setCurrentItem(d->treeItem(item));
        d->m_syncingCurrent = false;
    });
}

QtTreePropertyBrowser::~QtTreePropertyBrowser()
{
    // The tree goes first, with any open editor, while this object is still whole.
    QtTreePropertyBrowserPrivate *d = d_ptr.data();
    QTreeWidget *view = d->m_view;
    d->m_view = nullptr;
    d->m_treeItems.clear();
    d->m_browserItems.clear();
    delete view;
}

int QtTreePropertyBrowser::indentation() const { return d_ptr->m_view->indentation(); }

void QtTreePropertyBrowser::setIndentation(int i) { d_ptr->m_view->setIndentation(i); }

bool QtTreePropertyBrowser::rootIsDecorated() const { return d_ptr->m_view->rootIsDecorated(); }

void QtTreePropertyBrowser::setRootIsDecorated(bool show)
{
    d_ptr->m_view->setRootIsDecorated(show);
}

bool QtTreePropertyBrowser::alternatingRowColors() const
{
    return d_ptr->m_view->alternatingRowColors();
}

void QtTreePropertyBrowser::setAlternatingRowColors(bool enable)
{
    d_ptr->m_view->setAlternatingRowColors(enable);
}

bool QtTreePropertyBrowser::isHeaderVisible() const { return !d_ptr->m_view->isHeaderHidden(); }

void QtTreePropertyBrowser::setHeaderVisible(bool visible)
{
    d_ptr->m_view->setHeaderHidden(!visible);
}

QtTreePropertyBrowser::ResizeMode QtTreePropertyBrowser::resizeMode() const
{
    return d_ptr->m_resizeMode;
}

void QtTreePropertyBrowser::setResizeMode(ResizeMode mode)
{
    d_ptr->m_resizeMode = mode;
    d_ptr->applyResizeMode();
}

int QtTreePropertyBrowser::splitterPosition() const
{
    return d_ptr->m_view->header()->sectionSize(0);
}

void QtTreePropertyBrowser::setSplitterPosition(int position)
{
    d_ptr->m_view->header()->resizeSection(0, position);
}

void QtTreePropertyBrowser::setExpanded(QtBrowserItem *item, bool expanded)
{
    if (QTreeWidgetItem *row = d_ptr->treeItem(item))
        row->setExpanded(expanded);
}

bool QtTreePropertyBrowser::isExpanded(QtBrowserItem *item) const
{
    QTreeWidgetItem *row = d_ptr->treeItem(item);
    return row && row->isExpanded();
}

bool QtTreePropertyBrowser::isItemVisible(QtBrowserItem *item) const
{
    QTreeWidgetItem *row = d_ptr->treeItem(item);
    return row && !row->isHidden();
}

void QtTreePropertyBrowser::setItemVisible(QtBrowserItem *item, bool visible)
{
    if (QTreeWidgetItem *row = d_ptr->treeItem(item))
        row->setHidden(!visible);
}

void QtTreePropertyBrowser::setBackgroundColor(QtBrowserItem *item, const QColor &color)
{
    if (!d_ptr->treeItem(item))
        return;
    if (color.isValid())
        d_ptr->m_backgroundColors.insert(item, color);
    else
        d_ptr->m_backgroundColors.remove(item);
    d_ptr->updateSubtree(item);
}

QColor QtTreePropertyBrowser::backgroundColor(QtBrowserItem *item) const
{
    return d_ptr->m_backgroundColors.value(item);
}

QColor QtTreePropertyBrowser::calculatedBackgroundColor(QtBrowserItem *item) const
{
    for (QtBrowserItem *it = item; it; it = it->parent()) {
        const QColor color = d_ptr->m_backgroundColors.value(it);
        if (color.isValid())
            return color;
    }
    return QColor();
}

void QtTreePropertyBrowser::setPropertiesWithoutValueMarked(bool mark)
{
    if (d_ptr->m_markPropertiesWithoutValue == mark)
        return;
    d_ptr->m_markPropertiesWithoutValue = mark;
    const QList<QtBrowserItem *> items = topLevelItems();
    for (QtBrowserItem *item : items)
        d_ptr->updateSubtree(item);
}

bool QtTreePropertyBrowser::propertiesWithoutValueMarked() const
{
    return d_ptr->m_markPropertiesWithoutValue;
}

void QtTreePropertyBrowser::editItem(QtBrowserItem *item)
{
    if (QTreeWidgetItem *row = d_ptr->treeItem(item))
        d_ptr->m_view->editValue(row);
}

void QtTreePropertyBrowser::itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem)
{
    QtTreePropertyBrowserPrivate *d = d_ptr.data();
    if (!d->m_view)
        return;
    QTreeWidgetItem *parentRow = item->parent() ? d->treeItem(item->parent()) : nullptr;
    QTreeWidgetItem *afterRow = afterItem ? d->treeItem(afterItem) : nullptr;
    auto *row = new QTreeWidgetItem;
    if (parentRow) {
        parentRow->insertChild(afterRow ? parentRow->indexOfChild(afterRow) + 1 : 0, row);
    } else {
        d->m_view->insertTopLevelItem(afterRow ? d->m_view->indexOfTopLevelItem(afterRow) + 1 : 0,
                                      row);
    }
    d->m_treeItems.insert(item, row);
    d->m_browserItems.insert(row, item);
    d->updateItem(item);
    row->setExpanded(true);
}

void QtTreePropertyBrowser::itemRemoved(QtBrowserItem *item)
{
    QtTreePropertyBrowserPrivate *d = d_ptr.data();
    d->m_backgroundColors.remove(item);
    QTreeWidgetItem *row = d->m_treeItems.take(item);
    if (!row)
        return;
    d->m_browserItems.remove(row);
    delete row;
}

void QtTreePropertyBrowser::itemChanged(QtBrowserItem *item)
{
    // Enabling or disabling a property changes how everything below it is drawn.
    d_ptr->updateSubtree(item);
}
