#pragma once

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

namespace CcTest {

// A page group's pages in order.
inline QWidgetList pagesOf(const VoCc::DrawbackBoxGroup *group)
{
    QWidgetList pages;
    for (int i = 0; i < group->count(); ++i)
        pages << group->widget(i);
    return pages;
}

} // namespace CcTest
