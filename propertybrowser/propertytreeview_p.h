#pragma once

#include <QTreeWidget>

namespace CcPropertyBrowserDetail {

// The tree inside the browser. A click on an editable row opens the value editor at once
// (no double click), as in Designer's property editor; editing always happens in the
// value column, whichever column the user pointed at.
class PropertyTreeView : public QTreeWidget
{
    Q_OBJECT
public:
    explicit PropertyTreeView(QWidget *parent = nullptr);

    QTreeWidgetItem *editedItem() const;
    QTreeWidgetItem *rowFromIndex(const QModelIndex &index) const { return itemFromIndex(index); }
    void editValue(QTreeWidgetItem *item);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    QPersistentModelIndex m_editedIndex;
};

} // namespace CcPropertyBrowserDetail
