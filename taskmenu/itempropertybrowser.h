#pragma once

#include "qttreepropertybrowser.h"

namespace qdesigner_internal {

// The property pane of the item editors: a tree whose name column fits the longest icon
// state name and which asks for room for a typical resource path beside it.
class ItemPropertyBrowser : public QtTreePropertyBrowser
{
    Q_OBJECT
public:
    ItemPropertyBrowser();

    QSize sizeHint() const override;

private:
    int m_width;
};

} // namespace qdesigner_internal
