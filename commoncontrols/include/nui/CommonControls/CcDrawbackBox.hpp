#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

class QToolButton;
class QVBoxLayout;

namespace VoCc {

// One collapsible box of a page group: a title bar that expands or collapses the box, and
// the page widget below it. The title follows the page's window title.
class VOCC_EXPORT DrawbackBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded)

public:
    explicit DrawbackBox(QWidget *parent = nullptr);
    ~DrawbackBox() override;

    QWidget *widget() const;
    // Puts page into the box. A previous page is deleted; take it out first with takeWidget()
    // to keep it.
    void setWidget(QWidget *page);
    // Removes the page from the box without deleting it; the caller owns it afterwards.
    QWidget *takeWidget();

    QString title() const;
    void setTitle(const QString &title);

    bool isExpanded() const;
    void setExpanded(bool expanded);

signals:
    // The user clicked the title bar.
    void titleClicked();
    void titleChanged(const QString &title);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateTitleBar();

    QToolButton *m_titleBar = nullptr;
    QVBoxLayout *m_layout = nullptr;
    QWidget *m_page = nullptr;
    QString m_title;
    bool m_expanded = true;
};

} // namespace VoCc
