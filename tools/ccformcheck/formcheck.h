#pragma once

// Checking one form, in a worker process: as the application loads it (VoCc::FormBuilder), as
// Designer loads and saves it (the headless core with the module), what its XML names, and
// whether uic compiles it.

#include "finding.h"

#include <QString>

#include <functional>

struct CheckOptions
{
    bool requireIds = false;
    QString uic; // the uic program
    QString pictureFolder; // empty: no pictures
};

// stage is told before each step, so that the caller can say which step a form hung or
// crashed in.
FormResult checkForm(const QString &file, int index, const CheckOptions &options,
                     const std::function<void(const QString &stage)> &stage);
