#pragma once

#include "itemrecord.h"
#include "propertydefinition.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
QT_END_NAMESPACE

namespace qdesigner_internal {
class ItemListEditor;
}

// The dialog shape shared by the list item editors: the item list with its property pane, a
// line, and OK and Cancel; 550 x 360, no context help. The concrete editor reads its widget
// into records, shows them with fillList() and hands back readList() after an accept; it
// never writes into the widget.
class ListItemDialog : public QDialog
{
    Q_OBJECT
public:
    ListItemDialog(QDesignerFormWindowInterface *form, QWidget *parent);

    qdesigner_internal::ItemListEditor *itemListEditor() const { return m_itemListEditor; }

protected:
    // Shows items in the list and sets the editor up on widget with the property table.
    void fillList(const ItemRecords &items, QWidget *widget,
                  const qdesigner_internal::PropertyDefinition *table);
    // One record per row, in row order, holding the roles of the property table.
    ItemRecords readList() const;

private:
    qdesigner_internal::ItemListEditor *m_itemListEditor;
    const qdesigner_internal::PropertyDefinition *m_table = nullptr;
};
