#include "nui/CommonControls/CcAbstractMatrixOptions.hpp"

#include "ccentrylists.h"
#include "ccgridcells.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QVariant>

namespace VoCc {

AbstractMatrixOptions::AbstractMatrixOptions(QWidget *parent)
    : QWidget(parent), m_layout(new QGridLayout(this)), m_cells(new GridCells)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    // The buttons are made on first use of the grid: subclasses choose their kind, which is
    // not known while this constructor runs.
}

AbstractMatrixOptions::~AbstractMatrixOptions() = default;

int AbstractMatrixOptions::row() const { return m_rows; }

void AbstractMatrixOptions::setRow(int rows)
{
    rows = gridDimension(this, "row", rows);
    if (rows == m_rows && !m_buttons.isEmpty())
        return;
    m_rows = rows;
    rebuildButtons();
}

int AbstractMatrixOptions::column() const { return m_columns; }

void AbstractMatrixOptions::setColumn(int columns)
{
    columns = gridDimension(this, "column", columns);
    if (columns == m_columns && !m_buttons.isEmpty())
        return;
    m_columns = columns;
    rebuildButtons();
}

QStringList AbstractMatrixOptions::textList() const { return m_cells->list(GridCells::Text); }

void AbstractMatrixOptions::setTextList(const QStringList &texts)
{
    setList(GridCells::Text, texts);
}

QStringList AbstractMatrixOptions::iconList() const { return m_cells->list(GridCells::Icon); }

void AbstractMatrixOptions::setIconList(const QStringList &iconPaths)
{
    setList(GridCells::Icon, iconPaths);
}

QStringList AbstractMatrixOptions::toolTips() const { return m_cells->list(GridCells::ToolTip); }

void AbstractMatrixOptions::setToolTips(const QStringList &toolTips)
{
    setList(GridCells::ToolTip, toolTips);
}

QVariantList AbstractMatrixOptions::stringAttributes(const QString &list) const
{
    return EntryLists::stringAttributes(m_stringAttributes, list);
}

void AbstractMatrixOptions::setStringAttributes(const QString &list, const QVariantList &attributes)
{
    EntryLists::setStringAttributes(m_stringAttributes, list, attributes);
}

QStringList AbstractMatrixOptions::actionList() const { return m_cells->list(GridCells::Action); }

void AbstractMatrixOptions::setActionList(const QStringList &actions)
{
    setList(GridCells::Action, actions);
}

QAbstractButton *AbstractMatrixOptions::button(int index) const
{
    // Whoever asks for a button sees the lists as they are now.
    const_cast<AbstractMatrixOptions *>(this)->refreshButtons();
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

int AbstractMatrixOptions::buttonCount() const { return m_rows * m_columns; }

void AbstractMatrixOptions::updateGeomtries()
{
    if (m_buttons.size() != m_rows * m_columns) {
        rebuildButtons();
        return;
    }
    refreshButtons();
    m_layout->invalidate();
    updateGeometry();
}

void AbstractMatrixOptions::setList(int aspect, const QStringList &list)
{
    // The first change since the buttons were last brought up to date schedules that; any
    // further ones join it.
    if (m_cells->setList(GridCells::Aspect(aspect), list))
        QMetaObject::invokeMethod(
                this, [this] { refreshButtons(); }, Qt::QueuedConnection);
}

bool AbstractMatrixOptions::isExclusive() const { return false; }

void AbstractMatrixOptions::rebuildButtons()
{
    // The group goes as a whole: buttons leaving it one by one would each search its list.
    delete m_group;
    m_group = new QButtonGroup(this);
    m_group->setExclusive(isExclusive());
    connect(m_group, &QButtonGroup::idClicked, this, &AbstractMatrixOptions::onButtonClicked);
    qDeleteAll(m_buttons);
    m_buttons.clear();
    for (int i = 0; i < m_rows * m_columns; ++i) {
        QAbstractButton *cell = createButton();
        m_group->addButton(cell, i);
        m_layout->addWidget(cell, i / m_columns, i % m_columns);
        m_buttons.append(cell);
    }
    m_cells->buttonsMade();
    refreshButtons();
    updateGeometry();
}

void AbstractMatrixOptions::refreshButtons()
{
    if (m_buttons.isEmpty() && m_rows * m_columns > 0) {
        rebuildButtons();
        return;
    }
    m_cells->show(m_buttons.size(), [this](int i, GridCells::Aspect aspect, const QString &entry) {
        QAbstractButton *cell = m_buttons.at(i);
        switch (aspect) {
        case GridCells::Text:
            cell->setText(EntryLists::shownText(entry));
            break;
        case GridCells::Icon:
            cell->setIcon(EntryLists::iconFromPath(entry));
            break;
        case GridCells::ToolTip:
            cell->setToolTip(entry);
            break;
        default:
            cell->setProperty("action", entry);
            break;
        }
    });
}

void AbstractMatrixOptions::onButtonClicked(int index)
{
    emit buttonClicked(index);
    const QString action = EntryLists::at(m_cells->list(GridCells::Action), index);
    if (!action.isEmpty())
        emit actionTriggered(action);
}

} // namespace VoCc
