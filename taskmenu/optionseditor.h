#pragma once

#include "listitemdialog.h"

namespace VoCc {
class AbstractOptions;
}

// The item editor of both option groups, the buttons and the radios: text, icon, tool tip and
// data per entry. It reads the widget's entries into records (loadFromWidget, which returns
// them as they were) and, after an accept, returns the edited list (contents).
class OptionsEditor : public ListItemDialog
{
    Q_OBJECT
public:
    OptionsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::AbstractOptions *options);
    ItemRecords contents() const { return readList(); }
};
