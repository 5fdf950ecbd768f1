#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
class QDialog;
class QListWidget;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

namespace CcTest {

// Works an item editor dialog the way a user does: through its buttons and spin boxes, the
// in-place editor of its list or table and the editors of the property pane, found by their
// object names and Qt classes only (the dialog's own classes live inside the plug-in module).
class ItemDialogDriver
{
public:
    explicit ItemDialogDriver(QDialog *dialog);
    bool isValid() const { return (m_list || m_table) && m_pane; }

    QListWidget *list() const { return m_list; }
    QTableWidget *table() const { return m_table; }
    // The texts of the list's rows, or of the table's cells row by row.
    QStringList rows() const;
    // The names of the pane's properties, top to bottom, and one's value as it shows.
    QStringList propertyNames() const;
    QString propertyValue(const QString &name) const;

    void select(int row);
    void selectCell(int row, int column);
    // Steps the spin box "rowCounts" or "colCounts" to value with the arrow keys.
    void stepTo(const char *spinBox, int value);
    // Clicks one of "newListItemButton", "deleteListItemButton", "moveListItemUpButton",
    // "moveListItemDownButton".
    void click(const char *button);
    // New below the current row, named by typing into the in-place editor.
    void addRow(const QString &text);
    // Types a new text for the current row or cell into the in-place editor.
    void renameCurrent(const QString &text);
    // Types a value into a string property of the current row.
    void typeProperty(const QString &name, const QString &text);
    // Picks a file for an icon property of the current row through the file dialog.
    void chooseIconFile(const QString &name, const QString &path);

private:
    void openPropertyEditor(const QString &name);
    QTreeWidgetItem *propertyItem(const QString &name) const;
    QAbstractItemView *view() const;

    QDialog *m_dialog;
    QListWidget *m_list;
    QTableWidget *m_table;
    QTreeWidget *m_pane;
};

} // namespace CcTest
