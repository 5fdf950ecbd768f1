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

private:
    VoCc::DrawbackBoxGroup *m_group;
};
