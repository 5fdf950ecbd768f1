#pragma once

#include <QVariant>

QT_BEGIN_NAMESPACE
class QDesignerFormWindowInterface;
class QWidget;
QT_END_NAMESPACE

// A page's title as Designer keeps it: the "windowTitle" of the page's property sheet, a
// string value with how the title is marked for translation, which Designer saves.
namespace PageTitle {

// The sheet's value, or an invalid variant when the page has no sheet.
QVariant read(QDesignerFormWindowInterface *form, QWidget *page);
// Sets the sheet's value (and so the page's window title).
void write(QDesignerFormWindowInterface *form, QWidget *page, const QVariant &title);

} // namespace PageTitle
