#pragma once

#include "CcGlobal.hpp"

#include <QComboBox>
#include <QStringList>

namespace VoCc {

// A combo box whose entries may each name an action. The entry texts and icons are ordinary
// combo items; the action names are kept in a list aligned with them by index.
class VOCC_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    QStringList actionList() const;
    void setActionList(const QStringList &actions);

    // The action name of the entry at index, or an empty text when it has none.
    QString actionAt(int index) const;

signals:
    // Emitted when the user picks an entry that names an action.
    void actionTriggered(const QString &action);

private:
    void onActivated(int index);

    QStringList m_actionList;
};

} // namespace VoCc
