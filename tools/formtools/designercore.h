#pragma once

// A real Designer core, headless, in the process that asks for it: what the form checker
// loads and saves forms with, and what the tests run the module in.

#include <QDesignerFormWindowInterface>
#include <QString>
#include <QStringList>

class QDesignerFormEditorInterface;

namespace CcForms {

// Makes the given plug-in modules the only ones Designer will find. Call it once, after the
// application object exists and before the first Designer core is created: Designer scans
// "<library path>/designer" for every library path when a core starts, so the library paths
// are replaced by one private folder whose designer/ holds links to just these modules. The
// other plug-in kinds (platforms, image formats, styles...) stay reachable through links to
// the system folders.
void usePluginModulesOnly(const QStringList &modulePaths);

// A real Designer core, headless, as the designer program builds it: widget box, property
// editor, plug-ins, integration. One per process is kept alive until exit, because a core
// does not survive being torn down and created again in one process.
QDesignerFormEditorInterface *designerCore();

// From now on the core asks nobody: each message box it would show becomes a warning (title and
// text), answered No where it asks, else OK; a file dialog gives no file. For programs that run
// without a user, where one modal box would wait for ever.
void answerDialogsWithWarnings();

// A new form window of the shared core, made the active one, optionally filled from .ui
// text. It is owned by the form window manager; close it with closeFormWindow().
QDesignerFormWindowInterface *createFormWindow(const QString &uiXml = QString());
void closeFormWindow(QDesignerFormWindowInterface *formWindow);

} // namespace CcForms
