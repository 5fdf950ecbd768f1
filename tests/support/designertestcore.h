#pragma once

#include "uixml.h"

#include <QDesignerFormWindowInterface>
#include <QString>
#include <QStringList>
#include <QWidget>

class QDesignerFormEditorInterface;

namespace CcTest {

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

// A new form window of the shared core, made the active one, optionally filled from .ui
// text. It is owned by the form window manager; close it with closeFormWindow().
QDesignerFormWindowInterface *createFormWindow(const QString &uiXml = QString());
void closeFormWindow(QDesignerFormWindowInterface *formWindow);

// The widget of that name and class on a form.
template<class T = QWidget>
T *formChild(QDesignerFormWindowInterface *form, const char *name)
{
    return form->mainContainer()->findChild<T *>(QLatin1String(name));
}

} // namespace CcTest
