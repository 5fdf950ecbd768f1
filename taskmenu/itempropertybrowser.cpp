#include "itempropertybrowser.h"

#include <QCoreApplication>
#include <QFontMetrics>

namespace qdesigner_internal {

ItemPropertyBrowser::ItemPropertyBrowser()
{
    setResizeMode(Interactive);
    // The sample is the longest name in the pane: an icon's "Selected Off" part.
    const QString sample =
            QCoreApplication::translate("ItemPropertyBrowser", "XX Icon Selected off");
    m_width = fontMetrics().horizontalAdvance(sample);
    setSplitterPosition(m_width);
    m_width += fontMetrics().horizontalAdvance(QStringLiteral("/this/is/some/random/path"));
}

QSize ItemPropertyBrowser::sizeHint() const { return QSize(m_width, 1); }

} // namespace qdesigner_internal
