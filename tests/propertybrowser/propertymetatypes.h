#pragma once

// The property and browser-item pointers carried by the signals of managers and browsers,
// made known to QVariant so that QSignalSpy can record them. Call
// registerPropertyMetaTypes() before creating a spy.

#include "qtpropertybrowser.h"

#include <QMetaType>

Q_DECLARE_METATYPE(QtProperty *)
Q_DECLARE_METATYPE(QtBrowserItem *)

inline void registerPropertyMetaTypes()
{
    qRegisterMetaType<QtProperty *>("QtProperty*");
    qRegisterMetaType<QtBrowserItem *>("QtBrowserItem*");
}
