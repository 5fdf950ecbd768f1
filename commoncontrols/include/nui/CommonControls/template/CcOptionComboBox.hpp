#pragma once

#include "CcAbstractOptions.hpp"

class QComboBox;

namespace VoCc {

// The option entries as a drop-down list.
class VOCC_EXPORT OptionComboBox : public AbstractOptions
{
    Q_OBJECT

public:
    explicit OptionComboBox(QWidget *parent = nullptr);

    QComboBox *comboBox() const;

protected:
    void rebuildEntries() override;
    void showCurrentIndex(int index) override;

private:
    QComboBox *m_comboBox = nullptr;
};

} // namespace VoCc
