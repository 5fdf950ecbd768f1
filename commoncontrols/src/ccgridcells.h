#pragma once

#include "ccentrylists.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace VoCc {

// The most rows, and the most columns, a grid of buttons has: the matrix editors offer 1 to
// 99. A form asking for more was not written by them, and would have the grid make its
// buttons by the million.
const int maximumGridDimension = 99;

// The row or column count a grid takes for the one asked for: a negative count is none, a
// count beyond the maximum is limited to it, with a warning that names the widget and the
// property.
int gridDimension(const QWidget *grid, const char *property, int requested);

// The four lists of a grid of buttons (texts, icon paths, tool tips, actions), and what the
// buttons show of them. Setting a list only records it; show() then updates the cells whose
// entries changed since they were last shown, so any number of list changes in a row (a
// command that empties every list and sets them again, say) costs one pass that touches only
// the cells that really differ. Setting a list to what it already holds asks for every cell
// to be shown anew (icons are read again, after the resources changed, say).
class GridCells
{
public:
    enum Aspect { Text, Icon, ToolTip, Action, AspectCount };

    QStringList list(Aspect aspect) const { return m_lists[aspect]; }

    // Records a list; true when the buttons were up to date until now (a refresh is due).
    bool setList(Aspect aspect, const QStringList &list)
    {
        if (list == m_lists[aspect])
            m_all = true;
        m_lists[aspect] = list;
        const bool wasCurrent = !m_stale;
        m_stale = true;
        return wasCurrent;
    }

    bool isStale() const { return m_stale; }
    // New buttons show nothing yet: the next show() sets every cell.
    void buttonsMade() { m_stale = m_all = true; }

    // Calls showCell(index, aspect, entry) for every cell below count whose entry differs from
    // what it shows.
    template<class ShowCell>
    void show(int count, ShowCell showCell)
    {
        if (!m_stale)
            return;
        for (int aspect = 0; aspect < AspectCount; ++aspect) {
            QStringList &shown = m_shown[aspect];
            const QStringList &list = m_lists[aspect];
            for (int i = 0; i < count; ++i) {
                const QString entry = EntryLists::at(list, i);
                if (m_all || entry != EntryLists::at(shown, i))
                    showCell(i, Aspect(aspect), entry);
            }
            shown = list;
        }
        m_stale = m_all = false;
    }

private:
    QStringList m_lists[AspectCount];
    QStringList m_shown[AspectCount];
    bool m_stale = false;
    bool m_all = false;
};

} // namespace VoCc
