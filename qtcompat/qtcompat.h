#pragma once

// The few places where Qt 5.15 and Qt 6 spell the same thing differently. The project builds
// against either; everything else is written once, in what both versions offer.

#include <QFont>
#include <QMetaProperty>
#include <QVariant>
#include <QtGlobal>

namespace CcQt {

// Which attributes a font sets explicitly: Qt 5 calls the mask resolve(), Qt 6 resolveMask().
inline uint fontResolveMask(const QFont &font)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return uint(font.resolveMask());
#else
    return font.resolve();
#endif
}

inline void setFontResolveMask(QFont &font, uint mask)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    font.setResolveMask(mask);
#else
    font.resolve(mask);
#endif
}

// A default-constructed value of a meta-type id: Qt 6 takes the type as a QMetaType.
inline QVariant defaultValue(int typeId)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QVariant(QMetaType(typeId), nullptr);
#else
    return QVariant(typeId, nullptr);
#endif
}

// Whether Designer shows a property of this object: Qt 5 can ask a DESIGNABLE function of the
// object, Qt 6 has only the flag.
inline bool isDesignable(const QMetaProperty &property, const QObject *object)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    Q_UNUSED(object);
    return property.isDesignable();
#else
    return property.isDesignable(object);
#endif
}

// Whether Qt's run-time form builder writes enum properties: Qt 6.4's warns that their types
// are "not supported yet" and leaves them out.
constexpr bool formBuilderWritesEnums = QT_VERSION < QT_VERSION_CHECK(6, 0, 0);

// The function moc exports for a plug-in's metadata: Qt 6 gave it a new name with a new layout.
constexpr const char *pluginMetaDataFunction =
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        "qt_plugin_query_metadata_v2";
#else
        "qt_plugin_query_metadata";
#endif

} // namespace CcQt
