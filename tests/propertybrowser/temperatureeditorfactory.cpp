#include "temperatureeditorfactory.h"

#include "temperaturepropertymanager.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>

QWidget *TemperatureEditorFactory::createEditor(QtVariantPropertyManager *manager,
                                                QtProperty *property, QWidget *parent)
{
    if (manager->propertyType(property) != TemperaturePropertyManager::temperatureTypeId()) {
        QWidget *editor = QtVariantEditorFactory::createEditor(manager, property, parent);
        if (!editor)
            return nullptr;
        auto *frame = new QWidget(parent);
        auto *layout = new QHBoxLayout(frame);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(editor);
        frame->setFocusProxy(editor);
        frame->setAutoFillBackground(true);
        return frame;
    }
    auto *editor = new QLineEdit(parent);
    editor->setAutoFillBackground(true);
    editor->setText(QString::number(manager->value(property).value<Temperature>().celsius));
    QPointer<QtVariantPropertyManager> guardedManager = manager;
    connect(editor, &QLineEdit::editingFinished, this, [guardedManager, property, editor] {
        bool ok = false;
        const double celsius = editor->text().toDouble(&ok);
        if (ok && guardedManager && guardedManager->properties().contains(property))
            guardedManager->setValue(property, QVariant::fromValue(Temperature {celsius}));
    });
    return editor;
}
