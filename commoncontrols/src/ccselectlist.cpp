#include "nui/CommonControls/CcSelectList.hpp"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace VoCc {

namespace {
QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int i = 0; i < list->count(); ++i)
        result.append(list->item(i)->text());
    return result;
}

// Moves the highlighted rows of one list to the end of the other, keeping their order.
bool moveHighlighted(QListWidget *from, QListWidget *to)
{
    bool moved = false;
    for (int i = 0; i < from->count();) {
        if (from->item(i)->isSelected()) {
            to->addItem(from->takeItem(i));
            moved = true;
        } else {
            ++i;
        }
    }
    return moved;
}
} // namespace

SelectList::SelectList(QWidget *parent)
    : QWidget(parent),
      m_available(new QListWidget(this)),
      m_selected(new QListWidget(this)),
      m_selectButton(new QToolButton(this)),
      m_deselectButton(new QToolButton(this))
{
    m_available->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_selected->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_selectButton->setArrowType(Qt::RightArrow);
    m_selectButton->setToolTip(tr("Select"));
    m_deselectButton->setArrowType(Qt::LeftArrow);
    m_deselectButton->setToolTip(tr("Deselect"));

    auto *buttons = new QVBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_selectButton);
    buttons->addWidget(m_deselectButton);
    buttons->addStretch(1);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("Available"), this), 0, 0);
    layout->addWidget(new QLabel(tr("Selected"), this), 0, 2);
    layout->addWidget(m_available, 1, 0);
    layout->addLayout(buttons, 1, 1);
    layout->addWidget(m_selected, 1, 2);

    connect(m_selectButton, &QToolButton::clicked, this, &SelectList::selectHighlighted);
    connect(m_deselectButton, &QToolButton::clicked, this, &SelectList::deselectHighlighted);
    connect(m_available, &QListWidget::itemDoubleClicked, this, &SelectList::selectHighlighted);
    connect(m_selected, &QListWidget::itemDoubleClicked, this, &SelectList::deselectHighlighted);
}

QStringList SelectList::availableItems() const { return texts(m_available); }

void SelectList::setAvailableItems(const QStringList &items)
{
    m_available->clear();
    m_available->addItems(items);
}

QStringList SelectList::selectedItems() const { return texts(m_selected); }

void SelectList::setSelectedItems(const QStringList &items)
{
    m_selected->clear();
    m_selected->addItems(items);
    emit selectionChanged();
}

QListWidget *SelectList::availableList() const { return m_available; }

QListWidget *SelectList::selectedList() const { return m_selected; }

void SelectList::selectHighlighted()
{
    if (moveHighlighted(m_available, m_selected))
        emit selectionChanged();
}

void SelectList::deselectHighlighted()
{
    if (moveHighlighted(m_selected, m_available))
        emit selectionChanged();
}

} // namespace VoCc
