#pragma once

#include "CcAbstractOptions.hpp"

class QAbstractButton;

namespace VoCc {

class ButtonRow;

// The option entries as exclusive radio buttons, one under the other by default.
class VOCC_EXPORT OptionRadios : public AbstractOptions
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    explicit OptionRadios(QWidget *parent = nullptr);
    ~OptionRadios() override;

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    // The radio button of the entry at index, or null.
    QAbstractButton *button(int index) const;

protected:
    void rebuildEntries() override;
    void showCurrentIndex(int index) override;

private:
    ButtonRow *m_row = nullptr;
};

} // namespace VoCc
