#pragma once

#include "matrixeditorbase.h"

namespace VoCc {
class AbstractMatrixOptions;
}

// The table editor of the push-button, radio-button and check-box matrices.
class MatrixButtonsEditor : public MatrixEditorBase<VoCc::AbstractMatrixOptions>
{
    Q_OBJECT
public:
    MatrixButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

private:
    // Connects the widgets to the slots.
    friend class MatrixEditorBase<VoCc::AbstractMatrixOptions>;

private slots:
    void togglePropertyBrowser() { togglePane(); }
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item) { cellTextChanged(item); }
    void on_rowCountsChanged(int rowCounts) { rowCountChanged(rowCounts); }
    void on_colCountsChanged(int colCounts) { columnCountChanged(colCounts); }
};
