#pragma once

#include "itemrecord.h"

namespace VoCc {
class DrawbackBox;
}

// What the page-group editor hands back: one record per page (role 27 the title) and the
// group's page boxes in their new order, new pages included.
struct PageGroupContents
{
    ItemRecords items;
    QList<VoCc::DrawbackBox *> pages;
};
