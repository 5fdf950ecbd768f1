#pragma once

#include <QObject>
#include <QPointer>

namespace VoCc {
class DrawbackBoxGroup;
}

// Page switches by a click on a page's header (the title bar of its box) while the page group
// is on a form in Designer, as Designer's own tool box does. Designer's form editor takes the
// mouse events of the widgets on a form through an application-wide event filter, so the
// header itself never sees a click: this filter, installed on the application after it,
// looks at left-button presses and releases on this group's headers only and always lets
// them through, so Designer selects and drags as before. A press and a release on the same
// header switch to its page through the group's container extension, and the page is
// selected on the form the way every page switch is. Outside a form window (a preview) it
// does nothing: the group switches pages itself there.
//
// Lives as a child of its group, and leaves the application's filters with it.
class PageHeaderClicks : public QObject
{
    Q_OBJECT
public:
    explicit PageHeaderClicks(VoCc::DrawbackBoxGroup *group);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The index of the page whose header object is, or -1.
    int pageOfHeader(const QObject *object) const;
    void switchTo(int page);

    VoCc::DrawbackBoxGroup *m_group;
    QPointer<QObject> m_pressed;
};
