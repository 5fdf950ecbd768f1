#pragma once

#include <QDesignerFormEditorInterface>
#include <QExtensionManager>

// Registrations of extension factories with Designer's extension manager, which owns the
// factories from then on. Each runs from one plug-in's first initialisation.
void registerPageGroupContainer(QDesignerFormEditorInterface *core);
void registerExtraInfo(QDesignerFormEditorInterface *core);
