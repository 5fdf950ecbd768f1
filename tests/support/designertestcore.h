#pragma once

// The tests' Designer: the headless core the form checker uses, and what the tests ask of
// its forms.

#include "designercore.h"
#include "uixml.h"

#include <QWidget>

namespace CcTest {

using namespace CcForms;

// The widget of that name and class on a form.
template<class T = QWidget>
T *formChild(QDesignerFormWindowInterface *form, const char *name)
{
    return form->mainContainer()->findChild<T *>(QLatin1String(name));
}

} // namespace CcTest
