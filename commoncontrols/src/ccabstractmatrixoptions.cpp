#include "nui/CommonControls/CcAbstractMatrixOptions.hpp"

#include "ccentrylists.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QVariant>

namespace VoCc {

AbstractMatrixOptions::AbstractMatrixOptions(QWidget *parent)
    : QWidget(parent), m_layout(new QGridLayout(this)), m_group(new QButtonGroup(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    m_group->setExclusive(false);
    connect(m_group, &QButtonGroup::idClicked, this, &AbstractMatrixOptions::onButtonClicked);
    // The buttons are made on first use of the grid: subclasses choose their kind, which is
    // not known while this constructor runs.
}

AbstractMatrixOptions::~AbstractMatrixOptions() = default;

int AbstractMatrixOptions::row() const { return m_rows; }

void AbstractMatrixOptions::setRow(int rows)
{
    rows = qMax(0, rows);
    if (rows == m_rows && !m_buttons.isEmpty())
        return;
    m_rows = rows;
    rebuildButtons();
}

int AbstractMatrixOptions::column() const { return m_columns; }

void AbstractMatrixOptions::setColumn(int columns)
{
    columns = qMax(0, columns);
    if (columns == m_columns && !m_buttons.isEmpty())
        return;
    m_columns = columns;
    rebuildButtons();
}

QStringList AbstractMatrixOptions::textList() const { return m_textList; }

void AbstractMatrixOptions::setTextList(const QStringList &texts)
{
    m_textList = texts;
    refreshButtons();
}

QStringList AbstractMatrixOptions::iconList() const { return m_iconList; }

void AbstractMatrixOptions::setIconList(const QStringList &iconPaths)
{
    m_iconList = iconPaths;
    refreshButtons();
}

QStringList AbstractMatrixOptions::toolTips() const { return m_toolTips; }

void AbstractMatrixOptions::setToolTips(const QStringList &toolTips)
{
    m_toolTips = toolTips;
    refreshButtons();
}

QStringList AbstractMatrixOptions::actionList() const { return m_actionList; }

void AbstractMatrixOptions::setActionList(const QStringList &actions)
{
    m_actionList = actions;
    refreshButtons();
}

QAbstractButton *AbstractMatrixOptions::button(int index) const
{
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

int AbstractMatrixOptions::buttonCount() const { return m_rows * m_columns; }

void AbstractMatrixOptions::updateGeomtries() { rebuildButtons(); }

bool AbstractMatrixOptions::isExclusive() const { return false; }

void AbstractMatrixOptions::rebuildButtons()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_group->setExclusive(isExclusive());
    for (int i = 0; i < m_rows * m_columns; ++i) {
        QAbstractButton *cell = createButton();
        m_group->addButton(cell, i);
        m_layout->addWidget(cell, i / m_columns, i % m_columns);
        m_buttons.append(cell);
    }
    refreshButtons();
    updateGeometry();
}

void AbstractMatrixOptions::refreshButtons()
{
    if (m_buttons.isEmpty() && m_rows * m_columns > 0) {
        rebuildButtons();
        return;
    }
    for (int i = 0; i < m_buttons.size(); ++i) {
        QAbstractButton *cell = m_buttons.at(i);
        cell->setText(EntryLists::at(m_textList, i));
        cell->setIcon(EntryLists::iconFromPath(EntryLists::at(m_iconList, i)));
        cell->setToolTip(EntryLists::at(m_toolTips, i));
        cell->setProperty("action", EntryLists::at(m_actionList, i));
    }
}

void AbstractMatrixOptions::onButtonClicked(int index)
{
    emit buttonClicked(index);
    const QString action = EntryLists::at(m_actionList, index);
    if (!action.isEmpty())
        emit actionTriggered(action);
}

} // namespace VoCc
