#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

namespace VoCc {
namespace EntryLists {

// Entry index of a list, or an empty text when the list is shorter.
inline QString at(const QStringList &list, int index)
{
    return index >= 0 && index < list.size() ? list.at(index) : QString();
}

// The icon of a pixmap path; an empty or unreadable path gives a null icon without a warning.
QIcon iconFromPath(const QString &path);

} // namespace EntryLists
} // namespace VoCc
