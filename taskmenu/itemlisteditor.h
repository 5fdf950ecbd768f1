#pragma once

#include "abstractitemeditor.h"

#include "ui_itemlisteditor.h"

QT_BEGIN_NAMESPACE
class QListWidget;
class QListWidgetItem;
QT_END_NAMESPACE

namespace qdesigner_internal {

// A list of items with New, Delete, Up and Down buttons and the property pane of the
// current item, shown or hidden by the "Properties" button. The owner fills the list, calls
// setupEditor() and reads the list back; every change is also reported by a signal.
class ItemListEditor : public AbstractItemEditor
{
    Q_OBJECT
public:
    ItemListEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    void setupEditor(QWidget *object, const PropertyDefinition *table);
    QListWidget *listWidget() const { return ui.listWidget; }
    void setNewItemText(const QString &text) { m_newItemText = text; }
    QString newItemText() const { return m_newItemText; }
    // Selects a row without emitting indexChanged().
    void setCurrentIndex(int row);

    void setItemData(int role, const QVariant &value) override;
    QVariant getItemData(int role) const override;

    void setPropertyBrowserVisible(bool visible);
    bool isPropertyBrowserVisible() const;
    void updateEditor();

signals:
    void indexChanged(int idx);
    void itemChanged(int idx, int role, const QVariant &v);
    void itemInserted(int idx);
    void itemDeleted(int idx);
    void itemMovedUp(int idx);
    void itemMovedDown(int idx);

private slots:
    void on_newListItemButton_clicked();
    void on_deleteListItemButton_clicked();
    void on_moveListItemUpButton_clicked();
    void on_moveListItemDownButton_clicked();
    void on_listWidget_currentRowChanged();
    void on_listWidget_itemChanged(QListWidgetItem *item);
    void togglePropertyBrowser();
    void cacheReloaded();

private:
    Ui::ItemListEditor ui;
    bool m_updating;
    QString m_newItemText;
};

} // namespace qdesigner_internal
