#pragma once

#include <QObject>
#include <QtDesigner/QDesignerContainerExtension>

namespace VoCc {
class DrawbackBoxGroup;
}

// Lets Designer treat a page group as a multi-page container: it adds, inserts, removes and
// switches the group's pages on the form. Indices go to the group unchecked; range handling
// is the widget's.
class DrawbackBoxGroupContainerExtension : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)
public:
    DrawbackBoxGroupContainerExtension(VoCc::DrawbackBoxGroup *widget, QObject *parent);

    int count() const override;
    QWidget *widget(int index) const override;
    int currentIndex() const override;
    void setCurrentIndex(int index) override;
    void addWidget(QWidget *widget) override;
    void insertWidget(int index, QWidget *widget) override;
    void remove(int index) override;
    // Pages may always be added and removed. Qt 5 answers so by default; Qt 6 asks every
    // container to say it.
    bool canAddWidget() const override { return true; }
    bool canRemove(int) const override { return true; }

private:
    VoCc::DrawbackBoxGroup *m_group;
};
