#include "ccentrylists.h"

#include <QFileInfo>
#include <QPixmap>

namespace VoCc {
namespace EntryLists {

QIcon iconFromPath(const QString &path)
{
    if (path.isEmpty())
        return QIcon();
    // QPixmap(path) stays silent for a missing file, and checking first keeps null icons
    // from pretending to be there.
    const QPixmap pixmap(path);
    if (pixmap.isNull())
        return QIcon();
    return QIcon(pixmap);
}

QString shownText(const QString &text)
{
    if (text.size() <= maximumShownLength)
        return text;
    return text.left(maximumShownLength - 1) + QChar(0x2026);
}

} // namespace EntryLists
} // namespace VoCc
