#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace VoCc {
namespace EntryLists {

// Entry index of a list, or an empty text when the list is shorter.
inline QString at(const QStringList &list, int index)
{
    return index >= 0 && index < list.size() ? list.at(index) : QString();
}

// The icon of a pixmap path; an empty or unreadable path, or one that names no regular file
// (a directory, a device, a FIFO: never opened), gives a null icon without a warning.
QIcon iconFromPath(const QString &path);

// The most characters of an entry's text that a widget shows. Qt measures and shapes a text
// whole, and its styles draw a widget's background into a picture of the widget's size, so an
// entry of a few million characters would take seconds and gigabytes to show.
const int maximumShownLength = 1000;

// What a widget shows of an entry's text: the text, or its first characters up to the
// maximum and an ellipsis. The entry itself keeps its whole text.
QString shownText(const QString &text);

// The translation attributes of one list of entries ("text" or "toolTip"), kept in a store
// keyed by list. A list whose maps are all empty is not kept: most forms mark nothing, and a
// grid of 99 x 99 cells would otherwise carry 9,801 empty maps.
QVariantList stringAttributes(const QVariantMap &store, const QString &list);
void setStringAttributes(QVariantMap &store, const QString &list, const QVariantList &attributes);

} // namespace EntryLists
} // namespace VoCc
