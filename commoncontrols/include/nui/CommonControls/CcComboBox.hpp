#pragma once

#include "CcGlobal.hpp"

#include <QComboBox>
#include <QStringList>
#include <QVariantMap>

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

    // How the items' texts were marked for translation in the form they were loaded from
    // (list "text", one map per item, see AbstractOptions), for the form builder to write
    // them again. Designer keeps the marks of a combo box's items itself.
    Q_INVOKABLE QVariantList stringAttributes(const QString &list) const;
    Q_INVOKABLE void setStringAttributes(const QString &list, const QVariantList &attributes);

signals:
    // Emitted when the user picks an entry that names an action.
    void actionTriggered(const QString &action);

private:
    void onActivated(int index);

    QStringList m_actionList;
    QVariantMap m_stringAttributes;
};

} // namespace VoCc
