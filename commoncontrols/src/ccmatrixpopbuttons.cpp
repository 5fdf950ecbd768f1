#include "nui/CommonControls/CcMatrixPopButtons.hpp"

#include "ccentrylists.h"
#include "ccgridcells.h"

#include <QGridLayout>
#include <QMenu>
#include <QToolButton>

namespace VoCc {

MatrixPopButtons::MatrixPopButtons(QWidget *parent)
    : QWidget(parent), m_layout(new QGridLayout(this)), m_cells(new GridCells)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    rebuildButtons();
}

MatrixPopButtons::~MatrixPopButtons() = default;

int MatrixPopButtons::row() const { return m_rows; }

void MatrixPopButtons::setRow(int rows)
{
    rows = gridDimension(this, "row", rows);
    if (rows == m_rows)
        return;
    m_rows = rows;
    rebuildButtons();
}

int MatrixPopButtons::column() const { return m_columns; }

void MatrixPopButtons::setColumn(int columns)
{
    columns = gridDimension(this, "column", columns);
    if (columns == m_columns)
        return;
    m_columns = columns;
    rebuildButtons();
}

QStringList MatrixPopButtons::textList() const { return m_cells->list(GridCells::Text); }

void MatrixPopButtons::setTextList(const QStringList &texts) { setList(GridCells::Text, texts); }

QStringList MatrixPopButtons::iconList() const { return m_cells->list(GridCells::Icon); }

void MatrixPopButtons::setIconList(const QStringList &iconPaths)
{
    setList(GridCells::Icon, iconPaths);
}

QStringList MatrixPopButtons::toolTips() const { return m_cells->list(GridCells::ToolTip); }

void MatrixPopButtons::setToolTips(const QStringList &toolTips)
{
    setList(GridCells::ToolTip, toolTips);
}

QVariantList MatrixPopButtons::stringAttributes(const QString &list) const
{
    return EntryLists::stringAttributes(m_stringAttributes, list);
}

void MatrixPopButtons::setStringAttributes(const QString &list, const QVariantList &attributes)
{
    EntryLists::setStringAttributes(m_stringAttributes, list, attributes);
}

QStringList MatrixPopButtons::actionList() const { return m_cells->list(GridCells::Action); }

void MatrixPopButtons::setActionList(const QStringList &actions)
{
    setList(GridCells::Action, actions);
}

QToolButton *MatrixPopButtons::button(int index) const
{
    // Whoever asks for a button sees the lists as they are now.
    const_cast<MatrixPopButtons *>(this)->refreshButtons();
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

QMenu *MatrixPopButtons::menu(int index) const
{
    QToolButton *cell = button(index);
    return cell ? cell->menu() : nullptr;
}

int MatrixPopButtons::buttonCount() const { return m_rows * m_columns; }

void MatrixPopButtons::updateGeomtries()
{
    if (m_buttons.size() != m_rows * m_columns) {
        rebuildButtons();
        return;
    }
    refreshButtons();
    m_layout->invalidate();
    updateGeometry();
}

void MatrixPopButtons::setList(int aspect, const QStringList &list)
{
    // The first change since the buttons were last brought up to date schedules that; any
    // further ones join it.
    if (m_cells->setList(GridCells::Aspect(aspect), list))
        QMetaObject::invokeMethod(
                this, [this] { refreshButtons(); }, Qt::QueuedConnection);
}

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
    m_cells->buttonsMade();
    refreshButtons();
    updateGeometry();
}

void MatrixPopButtons::refreshButtons()
{
    m_cells->show(m_buttons.size(), [this](int i, GridCells::Aspect aspect, const QString &entry) {
        QToolButton *cell = m_buttons.at(i);
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
            showAction(cell->menu(), entry);
            break;
        }
    });
}

// The first menu entry is the cell's action; entries an application added stay.
void MatrixPopButtons::showAction(QMenu *popup, const QString &action)
{
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

} // namespace VoCc
