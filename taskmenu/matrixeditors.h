#pragma once

#include "abstractitemeditor.h"
#include "matrixcontents.h"

#include "ui_matrixbuttonseditor.h"

#include <QDialog>

namespace VoCc {
class AbstractMatrixOptions;
class MatrixPopButtons;
} // namespace VoCc

// The table editor of a button matrix: one cell per button, the Rows and Columns spin boxes,
// and the property pane of the current cell. It builds its form on the dialog that holds it
// and stays an empty child itself. Matrix is the widget class it reads (the button matrices'
// base, or the pop-button matrix).
template<class Matrix>
class MatrixEditorBase : public qdesigner_internal::AbstractItemEditor
{
public:
    // Reads the widget into contents (the cells before the edit) and shows them.
    void fillContentsFromWidget(MatrixContents &contents, Matrix *widget);
    // The cells as the table holds them now.
    void contents(MatrixContents &out) const;

    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;

protected:
    MatrixEditorBase(QDesignerFormWindowInterface *form, QWidget *parent);
    // The rest of the set-up, run by the concrete editor, whose slots and translation context
    // exist only once it is constructed.
    void finishSetup();

    void togglePane();
    void cellTextChanged(QTableWidgetItem *item);
    void rowCountChanged(int rows);
    void columnCountChanged(int columns);

private:
    void refreshTable();

    Ui::MatrixPushButtonsEditor m_ui;
};

class MatrixButtonsEditor : public MatrixEditorBase<VoCc::AbstractMatrixOptions>
{
    Q_OBJECT
public:
    MatrixButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

private slots:
    void togglePropertyBrowser() { togglePane(); }
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item) { cellTextChanged(item); }
    void on_rowCountsChanged(int rowCounts) { rowCountChanged(rowCounts); }
    void on_colCountsChanged(int colCounts) { columnCountChanged(colCounts); }
};

class MatrixPopButtonsEditor : public MatrixEditorBase<VoCc::MatrixPopButtons>
{
    Q_OBJECT
public:
    MatrixPopButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent);

private slots:
    void togglePropertyBrowser() { togglePane(); }
    void on_tableWidget_currentCellChanged(int currentRow, int currentCol, int, int);
    void on_tableWidget_itemChanged(QTableWidgetItem *item) { cellTextChanged(item); }
    void on_rowCountsChanged(int rowCounts) { rowCountChanged(rowCounts); }
    void on_colCountsChanged(int colCounts) { columnCountChanged(colCounts); }
};

// The dialogs the task menus run: the editor's form, on the dialog.
class MatrixButtonsDialog : public QDialog
{
    Q_OBJECT
public:
    MatrixButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent);

    void fillContentsFromWidget(MatrixContents &contents, VoCc::AbstractMatrixOptions *widget);
    void contents(MatrixContents &out) const { m_editor.contents(out); }

private:
    MatrixButtonsEditor m_editor;
};

class MatrixPopButtonsDialog : public QDialog
{
    Q_OBJECT
public:
    MatrixPopButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent);

    void fillContentsFromWidget(MatrixContents &contents, VoCc::MatrixPopButtons *widget);
    void contents(MatrixContents &out) const { m_editor.contents(out); }

private:
    MatrixPopButtonsEditor m_editor;
};
