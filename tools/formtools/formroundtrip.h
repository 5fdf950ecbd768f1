#pragma once

// A form file through the two roads a form author's file takes: Designer with the module
// (load, save, load the saved text, save again) and VoCc::FormBuilder at run time (load,
// save). Each gives what it saved and every warning raised on the way (collected, not
// printed).

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;
namespace VoCc {
class FormBuilder;
}

namespace CcForms {

struct RoundTrip
{
    bool loaded = false; // false: the form was refused, error says why
    QString error;
    QByteArray saved; // UTF-8
    QStringList warnings;
};

// Needs the Designer core of designercore.h.
// saves: 2 loads the saved text once more and saves that (a save that is a fixed point gives
// the same text again); 1 stops after the first save. fileName, when given, is where the form
// is said to come from: Designer finds the resource files it names from there.
RoundTrip throughDesigner(const QByteArray &ui, int saves = 2,
                          const QString &fileName = QString());
// visit, when given, sees the loaded form before it is saved, and the builder that loaded it.
// With save false the form is only loaded: saved stays empty, and warnings are the loader's.
RoundTrip throughFormBuilder(
        const QByteArray &ui,
        const std::function<void(QWidget *, const VoCc::FormBuilder &)> &visit = {},
        bool save = true);

} // namespace CcForms
