#pragma once

#include "CcGlobal.hpp"

#include <QStringList>
#include <QWidget>

class QListWidget;
class QToolButton;

namespace VoCc {

// Two lists side by side: the available texts and the selected ones, with buttons that move
// the highlighted texts from one to the other.
class VOCC_EXPORT SelectList : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList availableItems READ availableItems WRITE setAvailableItems)
    Q_PROPERTY(QStringList selectedItems READ selectedItems WRITE setSelectedItems NOTIFY
                       selectionChanged)

public:
    explicit SelectList(QWidget *parent = nullptr);

    QStringList availableItems() const;
    void setAvailableItems(const QStringList &items);
    QStringList selectedItems() const;
    void setSelectedItems(const QStringList &items);

    QListWidget *availableList() const;
    QListWidget *selectedList() const;

public slots:
    void selectHighlighted();
    void deselectHighlighted();

signals:
    void selectionChanged();

private:
    QListWidget *m_available = nullptr;
    QListWidget *m_selected = nullptr;
    QToolButton *m_selectButton = nullptr;
    QToolButton *m_deselectButton = nullptr;
};

} // namespace VoCc
