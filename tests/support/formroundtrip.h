#pragma once

// A form file through the two roads a form author's file takes: Designer with the module
// (load, save, load the saved text, save again) and VoCc::FormBuilder at run time (load,
// save). Each gives what it saved and every warning raised on the way (collected, not
// printed).

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace CcTest {

struct RoundTrip
{
    bool loaded = false; // false: the form was refused, error says why
    QString error;
    QByteArray saved; // UTF-8
    QStringList warnings;
};

// Needs the Designer core of designertestcore.h.
RoundTrip throughDesigner(const QByteArray &ui);
RoundTrip throughFormBuilder(const QByteArray &ui);

} // namespace CcTest
