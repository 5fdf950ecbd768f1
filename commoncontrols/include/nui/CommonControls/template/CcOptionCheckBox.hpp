#pragma once

#include "CcAbstractOptions.hpp"

class QCheckBox;

namespace VoCc {

// A check box choosing between two entries: checked is the first entry ("Yes", data "1" in
// a new widget), unchecked the second. The box shows the text of the entry in force.
class VOCC_EXPORT OptionCheckBox : public AbstractOptions
{
    Q_OBJECT
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)

public:
    explicit OptionCheckBox(QWidget *parent = nullptr);

    QCheckBox *checkBox() const;
    bool isChecked() const;
    void setChecked(bool checked);

protected:
    void rebuildEntries() override;
    void showCurrentIndex(int index) override;

private:
    QCheckBox *m_checkBox = nullptr;
};

} // namespace VoCc
