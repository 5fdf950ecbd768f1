#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QDialog;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

namespace CcTest {

// Works an item list dialog the way a user does: through its buttons, the list's in-place
// editor and the editors of the property pane, found by their object names and Qt classes
// only (the dialog's own classes live inside the plug-in module).
class ItemDialogDriver
{
public:
    explicit ItemDialogDriver(QDialog *dialog);
    bool isValid() const { return m_list && m_pane; }

    QListWidget *list() const { return m_list; }
    QStringList rows() const;
    // The names of the pane's properties, top to bottom.
    QStringList propertyNames() const;

    void select(int row);
    // Clicks one of "newListItemButton", "deleteListItemButton", "moveListItemUpButton",
    // "moveListItemDownButton".
    void click(const char *button);
    // New below the current row, named by typing into the in-place editor.
    void addRow(const QString &text);
    // Types a new text for the current row into the in-place editor.
    void renameCurrent(const QString &text);
    // Types a value into a string property of the current row.
    void typeProperty(const QString &name, const QString &text);
    // Picks a file for an icon property of the current row through the file dialog.
    void chooseIconFile(const QString &name, const QString &path);

private:
    void openPropertyEditor(const QString &name);

    QDialog *m_dialog;
    QListWidget *m_list;
    QTreeWidget *m_pane;
};

} // namespace CcTest
