#pragma once

#include <QStyledItemDelegate>

#include <functional>

namespace CcPropertyBrowserDetail {

// Draws the browser's rows with grid lines and hands out the property editors; the
// editors write their values themselves, so there is no model data to set.
class PropertyItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using EditorCreator = std::function<QWidget *(const QModelIndex &index, QWidget *parent)>;

    explicit PropertyItemDelegate(EditorCreator createEditor, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    EditorCreator m_createEditor;
};

} // namespace CcPropertyBrowserDetail
