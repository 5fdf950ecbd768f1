#include "itemlisteditor.h"

#include "itempropertybrowser.h"

#include <QtDesigner/private/iconloader_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QScopedValueRollback>

namespace qdesigner_internal {

ItemListEditor::ItemListEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : AbstractItemEditor(form, parent), m_updating(false)
{
    ui.setupUi(this);
    injectPropertyBrowser(this, ui.widget);
    connect(ui.showPropertiesButton, &QAbstractButton::clicked, this,
            &ItemListEditor::togglePropertyBrowser);
    ui.showPropertiesButton->setText(tr("Properties &<<"));
    m_propertyBrowser->hide();

    ui.moveListItemUpButton->setIcon(createIconSet(QStringLiteral("up.png")));
    ui.moveListItemDownButton->setIcon(createIconSet(QStringLiteral("down.png")));
    ui.newListItemButton->setIcon(createIconSet(QStringLiteral("plus.png")));
    ui.deleteListItemButton->setIcon(createIconSet(QStringLiteral("minus.png")));

    // Besides the base's connection to its own cacheReloaded(), so a reload runs both.
    if (iconCache())
        connect(iconCache(), &qdesigner_internal::DesignerIconCache::reloaded, this,
                &ItemListEditor::cacheReloaded);
}

void ItemListEditor::setupEditor(QWidget *object, const PropertyDefinition *table)
{
    setupProperties(table);
    setupObject(object);
    if (ui.listWidget->count())
        ui.listWidget->setCurrentRow(0);
    else
        updateEditor();
}

void ItemListEditor::setCurrentIndex(int row)
{
    QScopedValueRollback<bool> updating(m_updating, true);
    ui.listWidget->setCurrentRow(row);
}

void ItemListEditor::setItemData(int role, const QVariant &value)
{
    QListWidgetItem *item = ui.listWidget->currentItem();
    if (!item)
        return;
    // Items of a different height need the list laid out again.
    const QLatin1Char lineFeed('\n');
    const bool reLayout = role == Qt::FontRole
            || (role == Qt::EditRole
                && value.toString().count(lineFeed) != item->text().count(lineFeed));

    QVariant newValue = value;
    if (role == Qt::FontRole && value.type() == QVariant::Font) {
        newValue = qvariant_cast<QFont>(value).resolve(ui.listWidget->font());
        // Otherwise an equal font with another resolve mask would not be taken.
        item->setData(role, QVariant());
    }
    item->setData(role, newValue);
    if (reLayout)
        ui.listWidget->doItemsLayout();
    emit itemChanged(ui.listWidget->currentRow(), role, newValue);
}

QVariant ItemListEditor::getItemData(int role) const
{
    const QListWidgetItem *item = ui.listWidget->currentItem();
    return item ? item->data(role) : QVariant();
}

void ItemListEditor::setPropertyBrowserVisible(bool visible)
{
    ui.showPropertiesButton->setText(visible ? tr("Properties &>>") : tr("Properties &<<"));
    m_propertyBrowser->setVisible(visible);
}

bool ItemListEditor::isPropertyBrowserVisible() const
{
    // Asked of the pane itself, so that it also answers before the editor is shown.
    return !m_propertyBrowser->isHidden();
}

void ItemListEditor::togglePropertyBrowser()
{
    setPropertyBrowserVisible(!isPropertyBrowserVisible());
}

void ItemListEditor::updateEditor()
{
    QListWidgetItem *item = ui.listWidget->currentItem();
    const int row = ui.listWidget->currentRow();
    ui.deleteListItemButton->setEnabled(item != nullptr);
    ui.moveListItemUpButton->setEnabled(item && row > 0);
    ui.moveListItemDownButton->setEnabled(item && row < ui.listWidget->count() - 1);
    if (item)
        updateBrowser();
    else
        m_propertyBrowser->clear();
}

void ItemListEditor::on_newListItemButton_clicked()
{
    const int row = ui.listWidget->currentRow() + 1;
    auto *item = new QListWidgetItem(m_newItemText);
    item->setData(Qt::DisplayPropertyRole,
                  QVariant::fromValue(PropertySheetStringValue(m_newItemText)));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    if (row < ui.listWidget->count())
        ui.listWidget->insertItem(row, item);
    else
        ui.listWidget->addItem(item);
    emit itemInserted(row);
    ui.listWidget->setCurrentItem(item);
    ui.listWidget->editItem(item);
}

void ItemListEditor::on_deleteListItemButton_clicked()
{
    int row = ui.listWidget->currentRow();
    if (row != -1) {
        delete ui.listWidget->takeItem(row);
        emit itemDeleted(row);
    }
    if (row == ui.listWidget->count())
        --row;
    if (row < 0)
        updateEditor();
    else if (ui.listWidget->currentRow() == row)
        updateEditor(); // the list moved the selection here while the item was still there
    else
        ui.listWidget->setCurrentRow(row);
}

void ItemListEditor::on_moveListItemUpButton_clicked()
{
    const int row = ui.listWidget->currentRow();
    if (row <= 0)
        return;
    ui.listWidget->insertItem(row - 1, ui.listWidget->takeItem(row));
    ui.listWidget->setCurrentRow(row - 1);
    emit itemMovedUp(row);
}

void ItemListEditor::on_moveListItemDownButton_clicked()
{
    const int row = ui.listWidget->currentRow();
    if (row == -1 || row == ui.listWidget->count() - 1)
        return;
    ui.listWidget->insertItem(row + 1, ui.listWidget->takeItem(row));
    ui.listWidget->setCurrentRow(row + 1);
    emit itemMovedDown(row);
}

void ItemListEditor::on_listWidget_currentRowChanged()
{
    updateEditor();
    if (!m_updating)
        emit indexChanged(ui.listWidget->currentRow());
}

void ItemListEditor::on_listWidget_itemChanged(QListWidgetItem *item)
{
    if (m_updatingBrowser)
        return;
    // Renamed in place: the new text goes into the designer value, keeping its
    // translation data.
    auto value = qvariant_cast<PropertySheetStringValue>(item->data(Qt::DisplayPropertyRole));
    value.setValue(item->text());
    QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    const QVariant stored = QVariant::fromValue(value);
    item->setData(Qt::DisplayPropertyRole, stored);
    emit itemChanged(ui.listWidget->currentRow(), Qt::DisplayPropertyRole, stored);
    updateBrowser();
}

void ItemListEditor::cacheReloaded() { reloadIconResources(iconCache(), ui.listWidget); }

} // namespace qdesigner_internal
