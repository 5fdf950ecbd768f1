#pragma once

#include "itemrecord.h"

#include <QMap>
#include <QPair>

QT_BEGIN_NAMESPACE
class QTableWidget;
class QTableWidgetItem;
QT_END_NAMESPACE

namespace qdesigner_internal {
class DesignerIconCache;
}

namespace VoCc {
class AbstractMatrixOptions;
class MatrixPopButtons;
} // namespace VoCc

// One cell of a button matrix as its four strings: what the widget's lists hold at the
// cell's index, with the translation attributes of its text and tool tip.
struct CellStrings
{
    QString text;
    QString iconPath;
    QString toolTip;
    QString action;
    QVariantMap textAttributes = {};
    QVariantMap toolTipAttributes = {};
};

// The conversions of one cell between its record, its four strings and a table item. With
// the editor flag, the record always carries the item's flags (ItemFlagsRole) and a table
// item made from a record is editable; without it, flags count only where they differ from a
// new item's.
namespace CellRecords {
ItemRecord fromStrings(const CellStrings &strings, bool editor);
ItemRecord fromItem(const QTableWidgetItem *item, bool editor);
CellStrings toStrings(const ItemRecord &record);
void toItem(const ItemRecord &record, QTableWidgetItem *item,
            qdesigner_internal::DesignerIconCache *iconCache, bool editor);
} // namespace CellRecords

// A button matrix while it is edited: its dimensions and one record per cell, keyed by
// (row, column) and ordered by row, then column. A cell the widget has no button for has no
// record.
struct MatrixContents
{
    using Cell = QPair<int, int>; // row, column

    int columnCount = 0;
    int rowCount = 0;
    QMap<Cell, ItemRecord> cells;

    void clear();
    // Cells that have a button (all of them, in a sound widget).
    void fillFromWidget(const VoCc::AbstractMatrixOptions *matrix);
    // Every cell of the grid.
    void fillFromWidget(const VoCc::MatrixPopButtons *matrix);
    void fillFromTable(const QTableWidget *table);
    void writeToTable(QTableWidget *table, qdesigner_internal::DesignerIconCache *iconCache) const;

    // The four lists a widget takes: as many entries as there are cells, the strings of the
    // cell (row, column) at column count x row + column, empty where a cell has none.
    void toLists(QStringList *texts, QStringList *iconPaths, QStringList *toolTips,
                 QStringList *actions) const;
    // The translation attributes of the texts and tool tips, laid out as those lists; a list
    // is empty when no cell's string carries any.
    void toAttributeLists(QVariantList *textAttributes, QVariantList *toolTipAttributes) const;
};

// Same dimensions and the same cells with equal values.
bool sameCells(const MatrixContents &a, const MatrixContents &b);
