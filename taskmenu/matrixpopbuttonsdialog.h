#pragma once

#include "matrixpopbuttonseditor.h"

#include <QDialog>

// The dialog the pop-button matrix's task menu runs: the table editor's form, on the dialog.
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
