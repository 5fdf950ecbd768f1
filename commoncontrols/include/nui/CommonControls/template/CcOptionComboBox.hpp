#pragma once

#include "CcAbstractOptions.hpp"

#include <QStringList>

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
    // The icon path each entry shows (icons themselves cannot be compared).
    QStringList m_shownIcons;
};

} // namespace VoCc
