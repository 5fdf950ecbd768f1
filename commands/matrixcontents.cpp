#include "matrixcontents.h"

#include "entrystringattributes.h"

#include <nui/CommonControls/CcAbstractMatrixOptions.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>

#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/shared_enums_p.h>

#include <QTableWidget>

using qdesigner_internal::DesignerIconCache;
using qdesigner_internal::ItemFlagsShadowRole;
using qdesigner_internal::PropertySheetIconValue;
using qdesigner_internal::PropertySheetPixmapValue;
using qdesigner_internal::PropertySheetStringValue;

namespace {

int newItemFlags()
{
    static const int flags = int(QTableWidgetItem().flags());
    return flags;
}

QString plainString(const QVariant &value)
{
    return qvariant_cast<PropertySheetStringValue>(value).value();
}

// The lists a widget's cells are read from.
struct WidgetLists
{
    QStringList texts, icons, toolTips, actions;
    QVariantList textAttributes, toolTipAttributes;

    template<class Matrix>
    explicit WidgetLists(const Matrix *matrix)
        : texts(matrix->textList()),
          icons(matrix->iconList()),
          toolTips(matrix->toolTips()),
          actions(matrix->actionList()),
          textAttributes(EntryStringAttributes::read(matrix, EntryStringAttributes::texts)),
          toolTipAttributes(EntryStringAttributes::read(matrix, EntryStringAttributes::toolTips))
    { }

    CellStrings at(int index) const
    {
        return {texts.value(index),
                icons.value(index),
                toolTips.value(index),
                actions.value(index),
                textAttributes.value(index).toMap(),
                toolTipAttributes.value(index).toMap()};
    }
};

// Columns outer, rows inner; cell (r, c) is entry column count x r + c of the lists.
template<class Matrix, class HasCell>
void fillFromMatrix(MatrixContents &contents, const Matrix *matrix, HasCell hasCell)
{
    contents.clear();
    contents.rowCount = matrix->row();
    contents.columnCount = matrix->column();
    const WidgetLists lists(matrix);
    for (int c = 0; c < contents.columnCount; ++c) {
        for (int r = 0; r < contents.rowCount; ++r) {
            const int index = contents.columnCount * r + c;
            if (!hasCell(index))
                continue;
            contents.cells.insert({r, c}, CellRecords::fromStrings(lists.at(index), true));
        }
    }
}

} // namespace

namespace CellRecords {

ItemRecord fromStrings(const CellStrings &strings, bool editor)
{
    QTableWidgetItem item;
    if (!strings.text.isEmpty())
        item.setData(ItemRoles::Text, designerString(strings.text, strings.textAttributes));
    if (!strings.iconPath.isEmpty()) {
        const PropertySheetIconValue icon {PropertySheetPixmapValue(strings.iconPath)};
        if (!icon.isEmpty())
            item.setData(ItemRoles::Icon, QVariant::fromValue(icon));
    }
    if (!strings.toolTip.isEmpty())
        item.setData(ItemRoles::ToolTip, designerString(strings.toolTip, strings.toolTipAttributes));
    if (!strings.action.isEmpty()) {
        // The value filled is the one under the role below the action's, on purpose; on a new
        // item both are empty, so it holds the action alone.
        auto action = qvariant_cast<PropertySheetStringValue>(item.data(Qt::UserRole));
        action.setValue(strings.action);
        item.setData(ItemRoles::Action, QVariant::fromValue(action));
    }
    return fromItem(&item, editor);
}

ItemRecord fromItem(const QTableWidgetItem *item, bool editor)
{
    static const int roles[] = {
            Qt::DecorationPropertyRole, Qt::DisplayPropertyRole,   Qt::ToolTipPropertyRole,
            Qt::StatusTipPropertyRole,  Qt::WhatsThisPropertyRole, Qt::FontRole,
            Qt::TextAlignmentRole,      Qt::BackgroundRole,        Qt::ForegroundRole,
            Qt::CheckStateRole,         ItemRoles::Action,         ItemRoles::Data};
    ItemRecord record;
    for (const int role : roles) {
        const QVariant value = item->data(role);
        if (value.isValid())
            record.insert(role, value);
    }
    const int flags = int(item->flags());
    if (editor || flags != newItemFlags())
        record.insert(ItemFlagsShadowRole, flags);
    return record;
}

CellStrings toStrings(const ItemRecord &record)
{
    CellStrings strings;
    for (auto it = record.cbegin(); it != record.cend(); ++it) {
        if (!it.value().isValid())
            continue;
        switch (it.key()) {
        case ItemRoles::Text:
            strings.text = plainString(it.value());
            strings.textAttributes = stringAttributes(it.value());
            break;
        case ItemRoles::Icon:
            strings.iconPath = qvariant_cast<PropertySheetIconValue>(it.value())
                                       .pixmap(QIcon::Normal, QIcon::Off)
                                       .path();
            break;
        case ItemRoles::ToolTip:
            strings.toolTip = plainString(it.value());
            strings.toolTipAttributes = stringAttributes(it.value());
            break;
        case ItemRoles::Action:
            strings.action = plainString(it.value());
            break;
        default:
            break;
        }
    }
    return strings;
}

void toItem(const ItemRecord &record, QTableWidgetItem *item, DesignerIconCache *iconCache,
            bool editor)
{
    for (auto it = record.cbegin(); it != record.cend(); ++it) {
        const int role = it.key();
        const QVariant &value = it.value();
        if (!value.isValid())
            continue;
        if (!editor && role == ItemFlagsShadowRole) {
            item->setFlags(Qt::ItemFlags(value.toInt()));
            continue;
        }
        item->setData(role, value);
        // The designer values are shown through their plain twins.
        switch (role) {
        case Qt::DisplayPropertyRole:
            item->setText(plainString(value));
            break;
        case Qt::DecorationPropertyRole:
            if (iconCache)
                item->setIcon(iconCache->icon(qvariant_cast<PropertySheetIconValue>(value)));
            break;
        case Qt::ToolTipPropertyRole:
            item->setToolTip(plainString(value));
            break;
        case Qt::StatusTipPropertyRole:
            item->setStatusTip(plainString(value));
            break;
        case Qt::WhatsThisPropertyRole:
            item->setWhatsThis(plainString(value));
            break;
        default:
            break;
        }
    }
    if (editor)
        item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace CellRecords

void MatrixContents::clear()
{
    columnCount = 0;
    rowCount = 0;
    cells.clear();
}

void MatrixContents::fillFromWidget(const VoCc::AbstractMatrixOptions *matrix)
{
    fillFromMatrix(*this, matrix, [matrix](int index) { return matrix->button(index) != nullptr; });
}

void MatrixContents::fillFromWidget(const VoCc::MatrixPopButtons *matrix)
{
    fillFromMatrix(*this, matrix, [](int) { return true; });
}

void MatrixContents::fillFromTable(const QTableWidget *table)
{
    clear();
    rowCount = table->rowCount();
    columnCount = table->columnCount();
    const QTableWidgetItem fresh;
    for (int r = 0; r < rowCount; ++r) {
        for (int c = 0; c < columnCount; ++c) {
            const QTableWidgetItem *item = table->item(r, c);
            cells.insert({r, c}, CellRecords::fromItem(item ? item : &fresh, true));
        }
    }
}

void MatrixContents::writeToTable(QTableWidget *table, DesignerIconCache *iconCache) const
{
    table->clear();
    table->setColumnCount(columnCount);
    table->setRowCount(rowCount);
    for (auto it = cells.cbegin(); it != cells.cend(); ++it) {
        auto *item = new QTableWidgetItem;
        CellRecords::toItem(it.value(), item, iconCache, true);
        table->setItem(it.key().first, it.key().second, item);
    }
}

void MatrixContents::toLists(QStringList *texts, QStringList *iconPaths, QStringList *toolTips,
                             QStringList *actions) const
{
    const int count = cells.size();
    for (QStringList *list : {texts, iconPaths, toolTips, actions}) {
        list->clear();
        list->reserve(count);
        for (int i = 0; i < count; ++i)
            list->append(QString());
    }
    for (auto it = cells.cbegin(); it != cells.cend(); ++it) {
        const int index = columnCount * it.key().first + it.key().second;
        // Contents made by the editors hold every cell of their grid; no other index comes up.
        if (index < 0 || index >= count)
            continue;
        const CellStrings strings = CellRecords::toStrings(it.value());
        (*texts)[index] = strings.text;
        (*iconPaths)[index] = strings.iconPath;
        (*toolTips)[index] = strings.toolTip;
        (*actions)[index] = strings.action;
    }
}

void MatrixContents::toAttributeLists(QVariantList *textAttributes,
                                      QVariantList *toolTipAttributes) const
{
    const int count = cells.size();
    bool marked[2] = {false, false};
    QVariantList *lists[2] = {textAttributes, toolTipAttributes};
    for (QVariantList *list : lists) {
        list->clear();
        list->reserve(count);
        for (int i = 0; i < count; ++i)
            list->append(QVariantMap());
    }
    for (auto it = cells.cbegin(); it != cells.cend(); ++it) {
        const int index = columnCount * it.key().first + it.key().second;
        if (index < 0 || index >= count)
            continue;
        const QVariantMap attributes[2] = {stringAttributes(it.value().value(ItemRoles::Text)),
                                           stringAttributes(it.value().value(ItemRoles::ToolTip))};
        for (int i = 0; i < 2; ++i) {
            if (!attributes[i].isEmpty()) {
                (*lists[i])[index] = attributes[i];
                marked[i] = true;
            }
        }
    }
    for (int i = 0; i < 2; ++i) {
        if (!marked[i])
            lists[i]->clear();
    }
}

bool sameCells(const MatrixContents &a, const MatrixContents &b)
{
    if (a.columnCount != b.columnCount || a.rowCount != b.rowCount
        || a.cells.size() != b.cells.size())
        return false;
    for (auto i = a.cells.cbegin(), j = b.cells.cbegin(); i != a.cells.cend(); ++i, ++j) {
        if (i.key() != j.key() || !sameRecord(i.value(), j.value()))
            return false;
    }
    return true;
}
