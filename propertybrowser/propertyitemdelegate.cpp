#include "propertyitemdelegate_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace CcPropertyBrowserDetail {

PropertyItemDelegate::PropertyItemDelegate(EditorCreator createEditor, QObject *parent)
    : QStyledItemDelegate(parent), m_createEditor(std::move(createEditor))
{ }

QWidget *PropertyItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    Q_UNUSED(option)
    if (index.column() != 1 || !m_createEditor)
        return nullptr;
    return m_createEditor(index, parent);
}

void PropertyItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // The editor shows the property's value from its factory on.
    Q_UNUSED(editor)
    Q_UNUSED(index)
}

void PropertyItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                        const QModelIndex &index) const
{
    // The editor wrote through the property's manager already.
    Q_UNUSED(editor)
    Q_UNUSED(model)
    Q_UNUSED(index)
}

void PropertyItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    Q_UNUSED(index)
    editor->setGeometry(option.rect.adjusted(0, 0, -1, -1));
}

QSize PropertyItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    // Room for an editor in every row, so opening one does not shift the rows.
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return QSize(size.width(), qMax(size.height() + 4, option.fontMetrics.height() + 8));
}

void PropertyItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);

    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    const QColor gridColor = QColor::fromRgba(
            static_cast<QRgb>(style->styleHint(QStyle::SH_Table_GridLineColor, &option)));
    painter->save();
    painter->setPen(QPen(gridColor));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (index.column() == 0 && option.rect.right() < option.widget->width())
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter->restore();
}

bool PropertyItemDelegate::eventFilter(QObject *object, QEvent *event)
{
    // Escape abandons the edit: the editor is closed without writing what it holds (an
    // editor writes when it loses the focus, which closing it makes it do). The editor may
    // be a wrapper around the widget that writes, so its children fall silent as well.
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        object->blockSignals(true);
        const QList<QObject *> children = object->findChildren<QObject *>();
        for (QObject *child : children)
            child->blockSignals(true);
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace CcPropertyBrowserDetail
