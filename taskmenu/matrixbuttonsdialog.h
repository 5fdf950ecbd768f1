#pragma once

#include "matrixbuttonseditor.h"

#include <QDialog>

// The dialog the button matrices' task menu runs: the table editor's form, on the dialog.
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
