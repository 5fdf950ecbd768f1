#pragma once

#include "matrixeditorbase.h"

namespace VoCc {
class MatrixPopButtons;
}

// The table editor of the pop-button matrix.
class MatrixPopButtonsEditor : public MatrixEditorBase<VoCc::MatrixPopButtons>
{
    Q_OBJECT
public:
    MatrixPopButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

private:
    // Connects the widgets to the slots.
    friend class MatrixEditorBase<VoCc::MatrixPopButtons>;

private slots:
    void togglePropertyBrowser() { togglePane(); }
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item) { cellTextChanged(item); }
    void on_rowCountsChanged(int rowCounts) { rowCountChanged(rowCounts); }
    void on_colCountsChanged(int colCounts) { columnCountChanged(colCounts); }
};
