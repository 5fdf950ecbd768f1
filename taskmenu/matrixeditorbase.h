#pragma once

#include "abstractitemeditor.h"
#include "matrixcontents.h"

#include "ui_matrixbuttonseditor.h"

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
    template<class Editor>
    void finishSetup(Editor *editor);

    void togglePane();
    void cellTextChanged(QTableWidgetItem *item);
    void rowCountChanged(int rows);
    void columnCountChanged(int columns);

private:
    void refreshTable();

    Ui::MatrixPushButtonsEditor m_ui;
};
