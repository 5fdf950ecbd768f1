#include "listitemdialog.h"

#include "itemlisteditor.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QDialogButtonBox>
#include <QFrame>
#include <QLayout>
#include <QListWidget>

using namespace qdesigner_internal;

ListItemDialog::ListItemDialog(QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent), m_itemListEditor(new ItemListEditor(form, this))
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);

    m_itemListEditor->layout()->setContentsMargins(0, 0, 0, 0);
    m_itemListEditor->setNewItemText(tr("New Item"));

    auto *line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_itemListEditor);
    layout->addWidget(line);
    layout->addWidget(buttonBox);
    resize(550, 360);
}

void ListItemDialog::fillList(const ItemRecords &items, QWidget *widget,
                              const PropertyDefinition *table)
{
    m_table = table;
    QListWidget *list = m_itemListEditor->listWidget();
    DesignerIconCache *iconCache = m_itemListEditor->iconCache();
    for (const ItemRecord &record : items) {
        // Filled before it joins the list, so the list reports no edits. The designer values
        // are shown through their plain twins.
        auto *item = new QListWidgetItem;
        for (auto it = record.cbegin(); it != record.cend(); ++it) {
            item->setData(it.key(), it.value());
            if (it.key() == ItemRoles::Text)
                item->setText(qvariant_cast<PropertySheetStringValue>(it.value()).value());
            else if (it.key() == ItemRoles::ToolTip)
                item->setToolTip(qvariant_cast<PropertySheetStringValue>(it.value()).value());
            else if (it.key() == ItemRoles::Icon && iconCache)
                item->setIcon(iconCache->icon(qvariant_cast<PropertySheetIconValue>(it.value())));
        }
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        list->addItem(item);
    }
    m_itemListEditor->setupEditor(widget, table);
}

ItemRecords ListItemDialog::readList() const
{
    const QListWidget *list = m_itemListEditor->listWidget();
    ItemRecords items;
    items.reserve(list->count());
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        ItemRecord record;
        for (const PropertyDefinition *property = m_table; property && property->name; ++property) {
            const QVariant value = item->data(property->role);
            if (value.isValid())
                record.insert(property->role, value);
        }
        items.append(record);
    }
    return items;
}
