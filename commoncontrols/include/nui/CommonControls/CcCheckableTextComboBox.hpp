#pragma once

#include "CcGlobal.hpp"

#include <QStringList>
#include <QVariantMap>
#include <QWidget>

class QComboBox;
class QStandardItemModel;

namespace VoCc {

// A drop-down list of checkable texts; the closed box shows the checked texts joined by
// ", ". Entries come from the item text list; the tool-tip list is aligned with it by index.
class VOCC_EXPORT CheckableTextComboBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList checkedTexts READ checkedTexts WRITE setCheckedTexts)

public:
    explicit CheckableTextComboBox(QWidget *parent = nullptr);
    ~CheckableTextComboBox() override;

    QComboBox *comboBox() const;

    QStringList itemTextList() const;
    void setItemTextList(const QStringList &texts);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);
    // How the entries' texts and tool tips are marked for translation (see AbstractOptions).
    Q_INVOKABLE QVariantList stringAttributes(const QString &list) const;
    Q_INVOKABLE void setStringAttributes(const QString &list, const QVariantList &attributes);

    bool isChecked(int index) const;
    void setChecked(int index, bool checked);
    QStringList checkedTexts() const;
    void setCheckedTexts(const QStringList &texts);

signals:
    void checkedTextsChanged(const QStringList &texts);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void rebuildItems();
    void applyToolTips();
    void updateSummary();

    QComboBox *m_comboBox = nullptr;
    QStandardItemModel *m_model = nullptr;
    QStringList m_itemTextList;
    QStringList m_toolTips;
    // The texts to check, kept across a change of the entries (and set before any exist).
    QStringList m_checkedTexts;
    bool m_updating = false;
    QVariantMap m_stringAttributes;
};

} // namespace VoCc
