// The item editors of the combo boxes and option groups.

#include "checkcomboeditor.h"
#include "comboboxeditor.h"
#include "optioncomboeditor.h"
#include "optionseditor.h"

#include "designerpropertymanager.h"
#include "entrystringattributes.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QComboBox>

using qdesigner_internal::DesignerPropertyManager;
using qdesigner_internal::PropertyDefinition;

namespace {

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;
constexpr auto iconType = &DesignerPropertyManager::designerIconTypeId;

// The property names are the ones form authors know from the original tool, "toolTip" and
// "tooltip" included.
const PropertyDefinition checkComboProperties[] = {{ItemRoles::Text, 0, stringType, "text"},
                                                   {ItemRoles::ToolTip, 0, stringType, "toolTip"},
                                                   {0, 0, nullptr, nullptr}};

const PropertyDefinition comboBoxProperties[] = {{ItemRoles::Text, 0, stringType, "text"},
                                                 {ItemRoles::Icon, 0, iconType, "icon"},
                                                 {ItemRoles::Action, 0, stringType, "action"},
                                                 {0, 0, nullptr, nullptr}};

const PropertyDefinition optionComboProperties[] = {{ItemRoles::Text, 0, stringType, "text"},
                                                    {ItemRoles::Icon, 0, iconType, "icon"},
                                                    {ItemRoles::Data, 0, stringType, "data"},
                                                    {0, 0, nullptr, nullptr}};

const PropertyDefinition optionsProperties[] = {{ItemRoles::Text, 0, stringType, "text"},
                                                {ItemRoles::Icon, 0, iconType, "icon"},
                                                {ItemRoles::ToolTip, 0, stringType, "tooltip"},
                                                {ItemRoles::Data, 0, stringType, "data"},
                                                {0, 0, nullptr, nullptr}};

// The records of an option widget: its four lists read by index.
ItemRecords optionRecords(const VoCc::AbstractOptions *options, bool withToolTips)
{
    const QStringList texts = options->textList();
    const QStringList icons = options->iconList();
    const QStringList toolTips = options->toolTips();
    const QStringList data = options->dataList();
    const QVariantList textMarks = EntryStringAttributes::read(options, EntryStringAttributes::texts);
    const QVariantList toolTipMarks =
            EntryStringAttributes::read(options, EntryStringAttributes::toolTips);
    ItemRecords items;
    items.reserve(texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        ItemRecord record;
        setRecordString(record, ItemRoles::Text, texts.at(i), textMarks.value(i).toMap());
        const QString icon = icons.value(i);
        if (!icon.isEmpty())
            record.insert(ItemRoles::Icon, designerIcon(icon));
        if (withToolTips)
            setRecordString(record, ItemRoles::ToolTip, toolTips.value(i),
                            toolTipMarks.value(i).toMap());
        setRecordString(record, ItemRoles::Data, data.value(i));
        items.append(record);
    }
    return items;
}

} // namespace

CheckComboEditor::CheckComboEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ListItemDialog(form, parent)
{ }

ItemRecords CheckComboEditor::loadFromWidget(VoCc::CheckableTextComboBox *comboBox)
{
    const QStringList texts = comboBox->itemTextList();
    const QStringList toolTips = comboBox->toolTips();
    const QVariantList textMarks =
            EntryStringAttributes::read(comboBox, EntryStringAttributes::texts);
    const QVariantList toolTipMarks =
            EntryStringAttributes::read(comboBox, EntryStringAttributes::toolTips);
    const int count = comboBox->comboBox()->count();
    ItemRecords items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        ItemRecord record;
        setRecordString(record, ItemRoles::Text, texts.value(i), textMarks.value(i).toMap());
        setRecordString(record, ItemRoles::ToolTip, toolTips.value(i),
                        toolTipMarks.value(i).toMap());
        items.append(record);
    }
    fillList(items, comboBox, checkComboProperties);
    return items;
}

ComboBoxEditor::ComboBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ListItemDialog(form, parent)
{ }

ItemRecords ComboBoxEditor::loadFromWidget(VoCc::ComboBox *comboBox)
{
    // Text and icon are the designer values kept on each entry (Designer keeps them there
    // when it loads a form, and so does the change command).
    const QStringList actions = comboBox->actionList();
    const int count = comboBox->count();
    ItemRecords items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        ItemRecord record;
        for (const int role : {int(ItemRoles::Text), int(ItemRoles::Icon)}) {
            const QVariant value = comboBox->itemData(i, role);
            if (!value.isNull())
                record.insert(role, value);
        }
        setRecordString(record, ItemRoles::Action, actions.value(i));
        items.append(record);
    }
    fillList(items, comboBox, comboBoxProperties);
    return items;
}

OptionComboEditor::OptionComboEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ListItemDialog(form, parent)
{ }

ItemRecords OptionComboEditor::loadFromWidget(VoCc::OptionComboBox *options)
{
    const ItemRecords items = optionRecords(options, false);
    fillList(items, options, optionComboProperties);
    return items;
}

OptionsEditor::OptionsEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ListItemDialog(form, parent)
{ }

ItemRecords OptionsEditor::loadFromWidget(VoCc::AbstractOptions *options)
{
    const ItemRecords items = optionRecords(options, true);
    fillList(items, options, optionsProperties);
    return items;
}
