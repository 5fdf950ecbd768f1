#pragma once

// The property pointers carried by the managers' signals, made known to QVariant so that
// QSignalSpy can record them. Call registerPropertyMetaTypes() before creating a spy.

#include "qtpropertybrowser.h"

#include <QMetaType>

Q_DECLARE_METATYPE(QtProperty *)

inline void registerPropertyMetaTypes() { qRegisterMetaType<QtProperty *>("QtProperty*"); }
