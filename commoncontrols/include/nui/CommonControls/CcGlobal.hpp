#pragma once

#include <QtCore/qglobal.h>

// Symbols of the CommonControls shared library: exported while the library itself is built,
// imported by everything that links it.
#if defined(COMMONCONTROLS_LIBRARY)
#define VOCC_EXPORT Q_DECL_EXPORT
#else
#define VOCC_EXPORT Q_DECL_IMPORT
#endif
