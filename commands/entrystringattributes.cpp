#include "entrystringattributes.h"

#include <QMetaObject>
#include <QObject>

namespace EntryStringAttributes {

const QString texts = QStringLiteral("text");
const QString toolTips = QStringLiteral("toolTip");

namespace {

// Asked first, so that a widget without the function gets no call and Qt prints no warning.
bool offers(const QObject *widget, const char *signature)
{
    return widget && widget->metaObject()->indexOfMethod(signature) >= 0;
}

} // namespace

QVariantList read(const QObject *widget, const QString &list)
{
    QVariantList attributes;
    if (offers(widget, "stringAttributes(QString)"))
        QMetaObject::invokeMethod(const_cast<QObject *>(widget), "stringAttributes",
                                  Qt::DirectConnection, Q_RETURN_ARG(QVariantList, attributes),
                                  Q_ARG(QString, list));
    return attributes;
}

void write(QObject *widget, const QString &list, const QVariantList &attributes)
{
    if (offers(widget, "setStringAttributes(QString,QVariantList)"))
        QMetaObject::invokeMethod(widget, "setStringAttributes", Qt::DirectConnection,
                                  Q_ARG(QString, list), Q_ARG(QVariantList, attributes));
}

} // namespace EntryStringAttributes
