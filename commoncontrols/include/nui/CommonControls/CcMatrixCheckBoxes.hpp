#pragma once

#include "CcAbstractMatrixOptions.hpp"

namespace VoCc {

// A grid of independent check boxes.
class VOCC_EXPORT MatrixCheckBoxes : public AbstractMatrixOptions
{
    Q_OBJECT

public:
    explicit MatrixCheckBoxes(QWidget *parent = nullptr);

protected:
    QAbstractButton *createButton() override;
};

} // namespace VoCc
