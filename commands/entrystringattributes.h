#pragma once

#include <QString>
#include <QVariantList>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

// How a widget's entry texts and tool tips are marked for translation. The library's
// list-like widgets keep it through two invokable functions, "stringAttributes" and
// "setStringAttributes", taking the list ("text" or "toolTip") and one map per entry
// ("notr", "comment", "extracomment", "id"). They are reached through the meta-object, so
// against a library without them the editors still work, with plain strings.
namespace EntryStringAttributes {

extern const QString texts;
extern const QString toolTips;

QVariantList read(const QObject *widget, const QString &list);
void write(QObject *widget, const QString &list, const QVariantList &attributes);

} // namespace EntryStringAttributes
