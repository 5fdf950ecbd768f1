#include "ccentrylists.h"

#include <QFileInfo>
#include <QPixmap>

#include <algorithm>

namespace VoCc {
namespace EntryLists {

QIcon iconFromPath(const QString &path)
{
    if (path.isEmpty())
        return QIcon();
    // Only a file (a resource too) is read: a path naming a FIFO would block the reader until
    // someone writes to it, a device such as /dev/zero would be read without end, and a
    // directory is no picture. QFileInfo only looks at the path, it opens nothing.
    if (!QFileInfo(path).isFile())
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

QVariantList stringAttributes(const QVariantMap &store, const QString &list)
{
    return store.value(list).toList();
}

void setStringAttributes(QVariantMap &store, const QString &list, const QVariantList &attributes)
{
    const bool marked = std::any_of(attributes.cbegin(), attributes.cend(),
                                    [](const QVariant &entry) { return !entry.toMap().isEmpty(); });
    if (marked)
        store.insert(list, attributes);
    else
        store.remove(list);
}

} // namespace EntryLists
} // namespace VoCc
