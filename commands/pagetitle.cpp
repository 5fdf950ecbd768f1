#include "pagetitle.h"

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerPropertySheetExtension>
#include <QExtensionManager>

namespace PageTitle {

namespace {

QDesignerPropertySheetExtension *sheetOf(QDesignerFormWindowInterface *form, QWidget *page,
                                         int *index)
{
    auto *sheet = page && form ? qt_extension<QDesignerPropertySheetExtension *>(
                                         form->core()->extensionManager(), page)
                               : nullptr;
    *index = sheet ? sheet->indexOf(QStringLiteral("windowTitle")) : -1;
    return *index >= 0 ? sheet : nullptr;
}

} // namespace

QVariant read(QDesignerFormWindowInterface *form, QWidget *page)
{
    int index;
    QDesignerPropertySheetExtension *sheet = sheetOf(form, page, &index);
    return sheet ? sheet->property(index) : QVariant();
}

void write(QDesignerFormWindowInterface *form, QWidget *page, const QVariant &title)
{
    int index;
    if (QDesignerPropertySheetExtension *sheet = sheetOf(form, page, &index))
        sheet->setProperty(index, title);
}

} // namespace PageTitle
