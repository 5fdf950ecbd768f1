#include "changecommands.h"

#include "entrystringattributes.h"
#include "pagetitle.h"

#include <nui/CommonControls/CcAbstractMatrixOptions.hpp>
#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>


#include <QCoreApplication>
#include <QStandardItemModel>

using qdesigner_internal::DesignerIconCache;
using qdesigner_internal::FormWindowBase;
using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

// The option groups re-lay out their buttons through this method, called by name (the
// library spells it so).
void relayOut(QWidget *options) { QMetaObject::invokeMethod(options, "updateGeomtries"); }

// How the texts and tool tips are marked for translation goes with them.
void applyStringAttributes(QObject *widget, const QVariantList &texts, const QVariantList &toolTips)
{
    EntryStringAttributes::write(widget, EntryStringAttributes::texts, texts);
    EntryStringAttributes::write(widget, EntryStringAttributes::toolTips, toolTips);
}

void applyStringAttributes(QObject *widget, const ItemRecords &items)
{
    applyStringAttributes(widget, recordStringAttributes(items, ItemRoles::Text),
                          recordStringAttributes(items, ItemRoles::ToolTip));
}

// The cells of a matrix: its lists emptied first, then written whole.
template<class Matrix>
void applyCells(Matrix *matrix, const MatrixContents &contents)
{
    QStringList texts, iconPaths, toolTips, actions;
    contents.toLists(&texts, &iconPaths, &toolTips, &actions);
    QVariantList textAttributes, toolTipAttributes;
    contents.toAttributeLists(&textAttributes, &toolTipAttributes);
    matrix->setTextList(texts);
    matrix->setIconList(iconPaths);
    matrix->setToolTips(toolTips);
    matrix->setActionList(actions);
    applyStringAttributes(matrix, textAttributes, toolTipAttributes);
    relayOut(matrix);
}

template<class Matrix>
void clearCells(Matrix *matrix)
{
    matrix->setTextList({});
    matrix->setIconList({});
    matrix->setToolTips({});
    matrix->setActionList({});
}

template<class Options>
void applyOptions(Options *options, const ItemRecords &items)
{
    options->setTextList(recordStrings(items, ItemRoles::Text));
    options->setIconList(recordIconPaths(items));
    options->setToolTips(recordStrings(items, ItemRoles::ToolTip));
    options->setDataList(recordStrings(items, ItemRoles::Data));
    applyStringAttributes(options, items);
    relayOut(options);
}

} // namespace

// Three commands carry no text on purpose: their steps show unlabelled in the undo history.
QString changeCommandText(const char *text)
{
    return text ? QCoreApplication::translate("Command", text) : QString();
}

DesignerIconCache *formIconCache(QDesignerFormWindowInterface *formWindow)
{
    auto *formBase = qobject_cast<FormWindowBase *>(formWindow);
    return formBase ? formBase->iconCache() : nullptr;
}

ChangeCheckComboCommand::ChangeCheckComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(nullptr, formWindow)
{ }

void ChangeCheckComboCommand::applyItems(const ItemRecords &items)
{
    m_widget->setItemTextList(recordStrings(items, ItemRoles::Text));
    m_widget->setToolTips(recordStrings(items, ItemRoles::ToolTip));
    applyStringAttributes(m_widget, items);
}

ChangeComboBoxCommand::ChangeComboBoxCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(nullptr, formWindow)
{ }

void ChangeComboBoxCommand::applyItems(const ItemRecords &items)
{
    m_widget->clear();
    // All rows go into the combo box's own model in one insertion; a model of another kind
    // gets them one at a time.
    auto *model = qobject_cast<QStandardItemModel *>(m_widget->model());
    QList<QStandardItem *> rows;
    QStringList actions;
    actions.reserve(items.size());
    for (const ItemRecord &item : items) {
        const QVariant text = item.value(ItemRoles::Text);
        const QVariant icon = item.value(ItemRoles::Icon);
        const QIcon shownIcon = m_iconCache && icon.isValid()
                ? m_iconCache->icon(qvariant_cast<PropertySheetIconValue>(icon))
                : QIcon();
        const QString shownText = qvariant_cast<PropertySheetStringValue>(text).value();
        // Designer writes a combo box's items from the designer values, and the editor reads
        // them back from there.
        if (model) {
            auto *row = new QStandardItem(shownText);
            if (!shownIcon.isNull())
                row->setIcon(shownIcon);
            row->setData(text, ItemRoles::Text);
            row->setData(icon, ItemRoles::Icon);
            rows.append(row);
        } else {
            m_widget->addItem(shownIcon, shownText, QVariant());
            const int index = m_widget->count() - 1;
            m_widget->setItemData(index, text, ItemRoles::Text);
            m_widget->setItemData(index, icon, ItemRoles::Icon);
        }
        actions.append(recordString(item, ItemRoles::Action));
    }
    if (model)
        model->invisibleRootItem()->appendRows(rows);
    m_widget->setActionList(actions);
}

ChangeOptionComboCommand::ChangeOptionComboCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(nullptr, formWindow)
{ }

void ChangeOptionComboCommand::applyItems(const ItemRecords &items)
{
    m_widget->setTextList(recordStrings(items, ItemRoles::Text));
    m_widget->setIconList(recordIconPaths(items));
    m_widget->setDataList(recordStrings(items, ItemRoles::Data));
    applyStringAttributes(m_widget, items);
}

ChangeOptionButtonsCommand::ChangeOptionButtonsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QT_TRANSLATE_NOOP("Command", "Change OptionButtons Contents"),
                            formWindow)
{ }

void ChangeOptionButtonsCommand::applyItems(const ItemRecords &items)
{
    applyOptions(m_widget.data(), items);
}

ChangeOptionRadiosCommand::ChangeOptionRadiosCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QT_TRANSLATE_NOOP("Command", "Change OptionRadios Contents"),
                            formWindow)
{ }

void ChangeOptionRadiosCommand::applyItems(const ItemRecords &items)
{
    applyOptions(m_widget.data(), items);
}

// The page group's steps are labelled like the option radios' ones; a known quirk kept as is.
ChangeDrawbackBoxCommand::ChangeDrawbackBoxCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QT_TRANSLATE_NOOP("Command", "Change OptionRadios Contents"),
                            formWindow)
{ }

void ChangeDrawbackBoxCommand::init(VoCc::DrawbackBoxGroup *group,
                                    const PageGroupContents &oldContents,
                                    const PageGroupContents &newContents,
                                    const QList<int> &initialOrder, const QList<int> &finalOrder)
{
    ChangeContentsCommand::init(group, oldContents, newContents);
    m_initialOrder = initialOrder;
    m_finalOrder = finalOrder;
}

void ChangeDrawbackBoxCommand::applyItems(const PageGroupContents &contents)
{
    VoCc::DrawbackBoxGroup *group = m_widget.data();
    group->replaceBoxes(contents.pages);
    const QStringList titles = recordStrings(contents.items, ItemRoles::Text);
    // Titles are set through the current page, so the group ends on its last page.
    for (int i = 0; i < group->count(); ++i) {
        group->setCurrentIndex(i);
        group->setPageTitle(titles.value(i));
        // The sheet's value carries how the title is marked for translation.
        const QVariant title = contents.items.value(i).value(ItemRoles::Text);
        PageTitle::write(formWindow(), group->widget(i),
                         title.isValid() ? title : designerString(QString()));
    }
    QMetaObject::invokeMethod(group, "repaint");
    // Pages came or went: the object inspector shows the form's tree anew.
    cheapUpdate();
}

ChangeMatrixBtnsCommand::ChangeMatrixBtnsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QT_TRANSLATE_NOOP("Command", "Change MatrixButtons Contents"),
                            formWindow)
{ }

void ChangeMatrixBtnsCommand::applyItems(const MatrixContents &contents)
{
    VoCc::AbstractMatrixOptions *matrix = m_widget.data();
    clearCells(matrix);
    applyCells(matrix, contents);
}

ChangeMatrixPopBtnsCommand::ChangeMatrixPopBtnsCommand(QDesignerFormWindowInterface *formWindow)
    : ChangeContentsCommand(QT_TRANSLATE_NOOP("Command", "Change MatrixPopButtons Contents"),
                            formWindow)
{ }

void ChangeMatrixPopBtnsCommand::applyItems(const MatrixContents &contents)
{
    VoCc::MatrixPopButtons *matrix = m_widget.data();
    clearCells(matrix);
    matrix->setColumn(contents.columnCount);
    matrix->setRow(contents.rowCount);
    applyCells(matrix, contents);
}
