#pragma once

#include "CcAbstractOptions.hpp"

class QAbstractButton;

namespace VoCc {

class ButtonRow;

// The option entries as a row (or column) of exclusive tool buttons.
class VOCC_EXPORT OptionButtons : public AbstractOptions
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    explicit OptionButtons(QWidget *parent = nullptr);
    ~OptionButtons() override;

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    // The button of the entry at index, or null.
    QAbstractButton *button(int index) const;

protected:
    void rebuildEntries() override;
    void showCurrentIndex(int index) override;

private:
    ButtonRow *m_row = nullptr;
};

} // namespace VoCc
