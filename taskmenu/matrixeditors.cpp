// The table editors of the button matrices and the dialogs that hold them.

#include "matrixbuttonsdialog.h"
#include "matrixpopbuttonsdialog.h"

#include "designerpropertymanager.h"
#include "itempropertybrowser.h"

#include <nui/CommonControls/CcAbstractMatrixOptions.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QScopedValueRollback>

using namespace qdesigner_internal;

namespace {

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;

const PropertyDefinition cellProperties[] = {
        {Qt::DisplayPropertyRole, 0, stringType, "text"},
        {Qt::DecorationPropertyRole, 0, &DesignerPropertyManager::designerIconTypeId, "icon"},
        {Qt::ToolTipPropertyRole, 0, stringType, "toolTip"},
        {ItemRoles::Action, 0, stringType, "action"},
        {0, 0, nullptr, nullptr}};

} // namespace

template<class Matrix>
MatrixEditorBase<Matrix>::MatrixEditorBase(QDesignerFormWindowInterface *form, QWidget *parent)
    : AbstractItemEditor(form, parent)
{
    m_ui.setupUi(static_cast<QDialog *>(parent));
    injectPropertyBrowser(m_ui.tab, m_ui.widget);
}

template<class Matrix>
template<class Editor>
void MatrixEditorBase<Matrix>::finishSetup(Editor *editor)
{
    connect(m_ui.showPropertiesButton, &QAbstractButton::clicked, editor,
            &Editor::togglePropertyBrowser);
    m_ui.showPropertiesButton->setText(metaObject()->tr("Properties &<<", nullptr, -1));
    m_propertyBrowser->hide();
    // Also takes the editor, an empty child of the dialog, out of sight.
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_ui.tableWidget->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_ui.tableWidget, &QTableWidget::currentCellChanged, editor,
            &Editor::on_tableWidget_currentCellChanged);
    connect(m_ui.tableWidget, &QTableWidget::itemChanged, editor,
            &Editor::on_tableWidget_itemChanged);
    connect(m_ui.rowCounts, qOverload<int>(&QSpinBox::valueChanged), editor,
            &Editor::on_rowCountsChanged);
    connect(m_ui.colCounts, qOverload<int>(&QSpinBox::valueChanged), editor,
            &Editor::on_colCountsChanged);
}

template<class Matrix>
void MatrixEditorBase<Matrix>::fillContentsFromWidget(MatrixContents &contents, Matrix *widget)
{
    contents.fillFromWidget(widget);
    {
        // Cells filled by the editor are no edits of the user's.
        QScopedValueRollback<bool> updating(m_updatingBrowser, true);
        contents.writeToTable(m_ui.tableWidget, iconCache());
    }
    m_ui.rowCounts->setValue(widget->row());
    m_ui.colCounts->setValue(widget->column());
    setupProperties(cellProperties);
    setupObject(widget);
    if (m_ui.tableWidget->columnCount() > 0 && m_ui.tableWidget->rowCount() > 0)
        m_ui.tableWidget->setCurrentCell(0, 0);
    refreshTable();
}

template<class Matrix>
void MatrixEditorBase<Matrix>::contents(MatrixContents &out) const
{
    out.fillFromTable(m_ui.tableWidget);
}

template<class Matrix>
void MatrixEditorBase<Matrix>::setItemData(int role, const QVariant &value)
{
    QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    QTableWidget *table = m_ui.tableWidget;
    QTableWidgetItem *item = table->currentItem();
    if (!item) {
        // A cell never given an item gets one with its first value; with no cell current
        // there is nowhere to put it.
        if (table->currentRow() < 0 || table->currentColumn() < 0)
            return;
        item = new QTableWidgetItem;
        table->setItem(table->currentRow(), table->currentColumn(), item);
    }
    item->setData(role, value);
}

template<class Matrix>
QVariant MatrixEditorBase<Matrix>::getItemData(int role) const
{
    const QTableWidgetItem *item = m_ui.tableWidget->currentItem();
    return item ? item->data(role) : QVariant();
}

template<class Matrix>
void MatrixEditorBase<Matrix>::togglePane()
{
    const bool show = m_propertyBrowser->isHidden();
    m_propertyBrowser->setVisible(show);
    m_ui.showPropertiesButton->setText(show ? metaObject()->tr("Properties &>>", nullptr, -1)
                                            : metaObject()->tr("Properties &<<", nullptr, -1));
}

template<class Matrix>
void MatrixEditorBase<Matrix>::cellTextChanged(QTableWidgetItem *item)
{
    if (m_updatingBrowser)
        return;
    // Typed in place: the new text goes into the designer value, keeping its translation data.
    auto value = qvariant_cast<PropertySheetStringValue>(item->data(Qt::DisplayPropertyRole));
    value.setValue(item->text());
    {
        QScopedValueRollback<bool> updating(m_updatingBrowser, true);
        item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(value));
    }
    updateBrowser();
}

// Both take 1 from the coordinate that did not change as well: after the refresh has made
// (0, 0) current, no cell is current, and the pane shows defaults until one is clicked.
template<class Matrix>
void MatrixEditorBase<Matrix>::rowCountChanged(int rows)
{
    m_ui.tableWidget->setRowCount(rows);
    refreshTable();
    m_ui.tableWidget->setCurrentCell(rows - 1, m_ui.tableWidget->currentColumn() - 1);
}

template<class Matrix>
void MatrixEditorBase<Matrix>::columnCountChanged(int columns)
{
    m_ui.tableWidget->setColumnCount(columns);
    refreshTable();
    m_ui.tableWidget->setCurrentCell(m_ui.tableWidget->currentRow() - 1, columns - 1);
}

template<class Matrix>
void MatrixEditorBase<Matrix>::refreshTable()
{
    // The third tab does not exist, so it never counts as enabled, and a table with cells
    // gets (0, 0) as its current cell on every refresh.
    QTableWidget *table = m_ui.tableWidget;
    const bool wasEnabled = m_ui.tabWidget->isTabEnabled(2);
    const bool enabled = table->columnCount() > 0 && table->rowCount() > 0;
    m_ui.tabWidget->setTabEnabled(2, enabled);
    if (!wasEnabled && enabled)
        table->setCurrentCell(0, 0);
    QMetaObject::invokeMethod(table, "updateGeometries");
    table->viewport()->update();
}

template class MatrixEditorBase<VoCc::AbstractMatrixOptions>;
template class MatrixEditorBase<VoCc::MatrixPopButtons>;

MatrixButtonsEditor::MatrixButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : MatrixEditorBase(form, parent)
{
    finishSetup(this);
}

void MatrixButtonsEditor::on_tableWidget_currentCellChanged(int currentRow, int currentCol, int,
                                                            int)
{
    Q_UNUSED(currentRow)
    Q_UNUSED(currentCol)
    updateBrowser();
}

MatrixPopButtonsEditor::MatrixPopButtonsEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : MatrixEditorBase(form, parent)
{
    finishSetup(this);
}

void MatrixPopButtonsEditor::on_tableWidget_currentCellChanged(int currentRow, int currentCol, int,
                                                               int)
{
    Q_UNUSED(currentRow)
    Q_UNUSED(currentCol)
    updateBrowser();
}

MatrixButtonsDialog::MatrixButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent), m_editor(form, this)
{ }

void MatrixButtonsDialog::fillContentsFromWidget(MatrixContents &contents,
                                                 VoCc::AbstractMatrixOptions *widget)
{
    m_editor.fillContentsFromWidget(contents, widget);
}

MatrixPopButtonsDialog::MatrixPopButtonsDialog(QDesignerFormWindowInterface *form, QWidget *parent)
    : QDialog(parent), m_editor(form, this)
{ }

void MatrixPopButtonsDialog::fillContentsFromWidget(MatrixContents &contents,
                                                    VoCc::MatrixPopButtons *widget)
{
    m_editor.fillContentsFromWidget(contents, widget);
}
