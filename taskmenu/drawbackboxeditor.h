#pragma once

#include "listitemdialog.h"
#include "pagegroupcontents.h"

#include <QPointer>

namespace VoCc {
class DrawbackBoxGroup;
}

// The page group's editor: one row per page, its title the row's text. Besides the rows it
// follows the pages themselves through ids (0 to n-1 for the pages it was opened with, ids
// never given before for rows inserted since), so that contents() can hand back the group's
// own page objects in their new order, with new pages made for inserted rows.
class DrawbackBoxEditor : public ListItemDialog
{
    Q_OBJECT
public:
    DrawbackBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent);

    PageGroupContents loadFromWidget(VoCc::DrawbackBoxGroup *group);
    // Makes the pages of inserted rows (on the group, hidden until the change is applied):
    // call it once, after an accept.
    PageGroupContents contents() const;

    QList<int> initialOrder() const { return m_initialOrder; }
    QList<int> currentOrder() const { return m_currentOrder; }

private slots:
    void itemMoveUp(int row);
    void itemMoveDown(int row);
    void itemInsert(int row);
    void itemDelete(int row);

private:
    VoCc::DrawbackBox *makePage() const;

    QPointer<VoCc::DrawbackBoxGroup> m_group;
    QPointer<QDesignerFormWindowInterface> m_formWindow;
    PageGroupContents m_loaded;
    QList<int> m_initialOrder;
    QList<int> m_currentOrder;
    // The largest id given out so far, deleted rows' ids included.
    int m_lastId = 0;
};
