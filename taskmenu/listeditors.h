#pragma once

#include "listitemdialog.h"

namespace VoCc {
class AbstractOptions;
class CheckableTextComboBox;
class ComboBox;
class OptionComboBox;
} // namespace VoCc

// The item editors of the combo boxes and option groups. Each reads its widget's entries
// into records (loadFromWidget, which returns them as they were) and, after an accept,
// returns the edited list (contents).

class CheckComboEditor : public ListItemDialog
{
    Q_OBJECT
public:
    CheckComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::CheckableTextComboBox *comboBox);
    ItemRecords contents() const { return readList(); }
};

class ComboBoxEditor : public ListItemDialog
{
    Q_OBJECT
public:
    ComboBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::ComboBox *comboBox);
    ItemRecords contents() const { return readList(); }
};

class OptionComboEditor : public ListItemDialog
{
    Q_OBJECT
public:
    OptionComboEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::OptionComboBox *options);
    ItemRecords contents() const { return readList(); }
};

// Serves both option groups, the buttons and the radios.
class OptionsEditor : public ListItemDialog
{
    Q_OBJECT
public:
    OptionsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    ItemRecords loadFromWidget(VoCc::AbstractOptions *options);
    ItemRecords contents() const { return readList(); }
};
