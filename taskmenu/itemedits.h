#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
QT_END_NAMESPACE

// Registers with Designer's extension manager (which owns them from then on) the task-menu
// factories of the editing families that serve widgets of the class named widgetClass (the
// qualified name, "VoCc::ComboBox"); a class no family serves gets none.
void registerTaskMenus(QDesignerFormEditorInterface *core, const char *widgetClass);
