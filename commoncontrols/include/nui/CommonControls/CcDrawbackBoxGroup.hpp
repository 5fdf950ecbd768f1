#pragma once

#include "CcDrawbackBox.hpp"
#include "CcGlobal.hpp"

#include <QList>
#include <QWidget>

class QVBoxLayout;

namespace VoCc {

// A stack of collapsible boxes, one per page. Exactly one page is current: its box is
// expanded, the others show only their title bars. A page's title is its window title, so
// a title loaded from a form shows on the box.
//
// Pages that are removed (removePage) or left out of replaceBoxes() are not deleted: a
// removed page stays a hidden child of the group, a box left out stays a hidden child, so a
// caller (an undo command, for instance) can put them back.
class VOCC_EXPORT DrawbackBoxGroup : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit DrawbackBoxGroup(QWidget *parent = nullptr);
    ~DrawbackBoxGroup() override;

    int count() const;
    int currentIndex() const;

    // The page at index, or null outside 0..count()-1.
    QWidget *widget(int index) const;
    // The box holding the page at index, or null outside 0..count()-1.
    DrawbackBox *box(int index) const;
    int indexOf(QWidget *page) const;

    Q_INVOKABLE void addPage(QWidget *page);
    // Inserts page at index; an index outside the range appends.
    Q_INVOKABLE void insertPage(int index, QWidget *page);
    // Takes the page at index out of the group; its box is deleted, the page is not.
    Q_INVOKABLE void removePage(int index);

    QString pageTitle(int index) const;
    // Sets the title of the current page (its window title too) and emits pageTitleChanged.
    void setPageTitle(const QString &title);

    // Makes boxes the group's pages, in that order. Boxes not listed are taken out but not
    // deleted; listed boxes from elsewhere are adopted. Null and repeated entries are skipped.
    // Returns the new page count.
    int replaceBoxes(const QList<DrawbackBox *> &boxes);

public slots:
    // An index beyond the pages so far is remembered and applied once that page is added,
    // so a current page set before the pages (as form loaders do) still takes effect.
    void setCurrentIndex(int index);

signals:
    void currentIndexChanged(int index);
    void pageTitleChanged(const QString &title);

private:
    void onBoxTitleClicked();
    void updateBoxes();
    // Shows the current page after the one at index previous was current.
    void showCurrent(int previous);
    void placeBoxes();

    QVBoxLayout *m_layout = nullptr;
    QList<DrawbackBox *> m_boxes;
    int m_currentIndex = -1;
    int m_pendingIndex = -1;
};

} // namespace VoCc
