#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

namespace VoCc {

// A container with a title bar; clicking the bar collapses the pane to the bar alone or
// expands it again. Child widgets and layouts sit below the bar.
class VOCC_EXPORT Pane : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY expandedChanged)

public:
    explicit Pane(QWidget *parent = nullptr);

    QString title() const;
    void setTitle(const QString &title);

    bool isExpanded() const;
    void setExpanded(bool expanded);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void expandedChanged(bool expanded);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    int titleBarHeight() const;
    QRect titleBarRect() const;
    void updateMargins();
    void hideChildren();

    QString m_title;
    bool m_expanded = true;
    int m_expandedMaximumHeight = QWIDGETSIZE_MAX;
    int m_expandedHeight = 0;
};

} // namespace VoCc
