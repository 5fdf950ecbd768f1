#include "nui/CommonControls/CcMatrixPopButtons.hpp"

#include "ccentrylists.h"

#include <QGridLayout>
#include <QMenu>
#include <QToolButton>

namespace VoCc {

MatrixPopButtons::MatrixPopButtons(QWidget *parent)
    : QWidget(parent), m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    rebuildButtons();
}

MatrixPopButtons::~MatrixPopButtons() = default;

int MatrixPopButtons::row() const { return m_rows; }

void MatrixPopButtons::setRow(int rows)
{
    rows = qMax(0, rows);
    if (rows == m_rows)
        return;
    m_rows = rows;
    rebuildButtons();
}

int MatrixPopButtons::column() const { return m_columns; }

void MatrixPopButtons::setColumn(int columns)
{
    columns = qMax(0, columns);
    if (columns == m_columns)
        return;
    m_columns = columns;
    rebuildButtons();
}

QStringList MatrixPopButtons::textList() const { return m_textList; }

void MatrixPopButtons::setTextList(const QStringList &texts)
{
    m_textList = texts;
    refreshButtons();
}

QStringList MatrixPopButtons::iconList() const { return m_iconList; }

void MatrixPopButtons::setIconList(const QStringList &iconPaths)
{
    m_iconList = iconPaths;
    refreshButtons();
}

QStringList MatrixPopButtons::toolTips() const { return m_toolTips; }

void MatrixPopButtons::setToolTips(const QStringList &toolTips)
{
    m_toolTips = toolTips;
    refreshButtons();
}

QStringList MatrixPopButtons::actionList() const { return m_actionList; }

void MatrixPopButtons::setActionList(const QStringList &actions)
{
    m_actionList = actions;
    refreshButtons();
}

QToolButton *MatrixPopButtons::button(int index) const
{
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

QMenu *MatrixPopButtons::menu(int index) const
{
    QToolButton *cell = button(index);
    return cell ? cell->menu() : nullptr;
}

int MatrixPopButtons::buttonCount() const { return m_rows * m_columns; }

void MatrixPopButtons::updateGeomtries() { rebuildButtons(); }

void MatrixPopButtons::rebuildButtons()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    for (int i = 0; i < m_rows * m_columns; ++i) {
        auto *cell = new QToolButton(this);
        cell->setPopupMode(QToolButton::MenuButtonPopup);
        cell->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        cell->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        cell->setMenu(new QMenu(cell));
        connect(cell, &QToolButton::clicked, this, [this, i] { emit buttonClicked(i); });
        m_layout->addWidget(cell, i / m_columns, i % m_columns);
        m_buttons.append(cell);
    }
    refreshButtons();
    updateGeometry();
}

void MatrixPopButtons::refreshButtons()
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        QToolButton *cell = m_buttons.at(i);
        cell->setText(EntryLists::at(m_textList, i));
        cell->setIcon(EntryLists::iconFromPath(EntryLists::at(m_iconList, i)));
        cell->setToolTip(EntryLists::at(m_toolTips, i));

        // The first menu entry is the cell's action; entries an application added stay.
        QMenu *popup = cell->menu();
        const QString action = EntryLists::at(m_actionList, i);
        QAction *first = popup->actions().value(0);
        if (first && first->property("ccCellAction").toBool()) {
            if (action.isEmpty()) {
                popup->removeAction(first);
                delete first;
            } else {
                first->setText(action);
            }
        } else if (!action.isEmpty()) {
            auto *entry = new QAction(action, popup);
            entry->setProperty("ccCellAction", true);
            connect(entry, &QAction::triggered, this,
                    [this, entry] { emit actionTriggered(entry->text()); });
            popup->insertAction(first, entry);
        }
    }
}

} // namespace VoCc
