#pragma once

#include "listitemdialog.h"

namespace VoCc {
class OptionComboBox;
}

// The item editor of the option combo box: text, icon and data per entry. It reads the
// widget's entries into records (loadFromWidget, which returns them as they were) and, after
// an accept, returns the edited list (contents).
class OptionComboEditor : public ListItemDialog
{
    Q_OBJECT
public:
    OptionComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::OptionComboBox *options);
    ItemRecords contents() const { return readList(); }
};
