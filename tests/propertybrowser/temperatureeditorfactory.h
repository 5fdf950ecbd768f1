#pragma once

#include "qtvariantproperty.h"

// Makes its own editor for temperatures and, as a decorating factory does, puts the base's
// editors for the other types into a frame of its own.
class TemperatureEditorFactory : public QtVariantEditorFactory
{
    Q_OBJECT
public:
    using QtVariantEditorFactory::QtVariantEditorFactory;

protected:
    QWidget *createEditor(QtVariantPropertyManager *manager, QtProperty *property,
                          QWidget *parent) override;
};
