#pragma once

#include "CcAbstractMatrixOptions.hpp"

namespace VoCc {

// A grid of radio buttons of which one at most is checked.
class VOCC_EXPORT MatrixRadioButtons : public AbstractMatrixOptions
{
    Q_OBJECT

public:
    explicit MatrixRadioButtons(QWidget *parent = nullptr);

protected:
    QAbstractButton *createButton() override;
    bool isExclusive() const override;
};

} // namespace VoCc
