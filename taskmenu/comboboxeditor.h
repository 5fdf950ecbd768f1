#pragma once

#include "listitemdialog.h"

namespace VoCc {
class ComboBox;
}

// The item editor of the combo box: text, icon and action per entry. It reads the widget's
// entries into records (loadFromWidget, which returns them as they were) and, after an
// accept, returns the edited list (contents).
class ComboBoxEditor : public ListItemDialog
{
    Q_OBJECT
public:
    ComboBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::ComboBox *comboBox);
    ItemRecords contents() const { return readList(); }
};
