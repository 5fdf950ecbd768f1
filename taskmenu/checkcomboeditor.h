#pragma once

#include "listitemdialog.h"

namespace VoCc {
class CheckableTextComboBox;
}

// The item editor of the checkable combo box: text and tool tip per entry. It reads the
// widget's entries into records (loadFromWidget, which returns them as they were) and, after
// an accept, returns the edited list (contents).
class CheckComboEditor : public ListItemDialog
{
    Q_OBJECT
public:
    CheckComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::CheckableTextComboBox *comboBox);
    ItemRecords contents() const { return readList(); }
};
