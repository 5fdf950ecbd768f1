#pragma once

#include "../CcGlobal.hpp"

#include <QStringList>
#include <QVariantMap>
#include <QWidget>

namespace VoCc {

// Base of the option widgets: a set of entries, each with a text, an icon (a pixmap path),
// a tool tip and a data string, one of them current. The four lists are kept as given and
// aligned by index; an entry missing from a shorter list reads as empty. The number of
// entries is the length of the text list.
class VOCC_EXPORT AbstractOptions : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit AbstractOptions(QWidget *parent = nullptr);
    ~AbstractOptions() override;

    QStringList textList() const;
    void setTextList(const QStringList &texts);
    // Pixmap paths (files or resources); a path that cannot be loaded gives no icon.
    QStringList iconList() const;
    void setIconList(const QStringList &iconPaths);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);
    // How the entries' texts and tool tips are marked for translation, as a form file marks
    // them: for the list "text" or "toolTip", one map per entry with any of "notr" (true: not
    // to be translated), "comment" (the disambiguation), "extracomment" (a note for the
    // translator) and "id". An empty map, or none, is a plain translatable text.
    Q_INVOKABLE QVariantList stringAttributes(const QString &list) const;
    Q_INVOKABLE void setStringAttributes(const QString &list, const QVariantList &attributes);
    virtual QStringList dataList() const;
    virtual void setDataList(const QStringList &data);

    int count() const;
    QString textAt(int index) const;
    QString iconAt(int index) const;
    QString toolTipAt(int index) const;
    QString dataAt(int index) const;

    int currentIndex() const;
    QString currentText() const;
    QString currentData() const;

    // Rebuilds the entries from the lists and lays them out again.
    Q_INVOKABLE void updateGeomtries();

public slots:
    // An index beyond the entries so far is remembered and applied once there are enough of
    // them, so a current entry set before the entries (as form loaders do) still counts.
    void setCurrentIndex(int index);

signals:
    void currentIndexChanged(int index);

protected:
    // Shows the entries anew; called whenever a list changes.
    virtual void rebuildEntries() = 0;
    // Shows which entry is current.
    virtual void showCurrentIndex(int index) = 0;
    // For subclasses reporting a choice made by the user.
    void userSelected(int index);

private:
    QStringList m_textList;
    QStringList m_iconList;
    QStringList m_toolTips;
    QStringList m_dataList;
    int m_currentIndex = -1;
    int m_pendingIndex = -1;
    QVariantMap m_stringAttributes;
};

} // namespace VoCc
