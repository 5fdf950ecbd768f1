#pragma once

// What the checker writes: findings in the compiler format, JUnit XML, and an HTML contact
// sheet of the forms' pictures.

#include "finding.h"

#include <QString>
#include <QVector>

// "FILE:LINE: error|warning: message" (without ":LINE" when no line is known), a line each.
QString compilerLines(const FormResult &result);

// "N forms checked, E errors, W warnings".
QString summaryLine(int forms, int errors, int warnings);

// One test suite, a test case per form, failed when the form has errors. False when the file
// cannot be written.
bool writeJUnit(const QString &fileName, const QVector<FormResult> &results, double seconds);

// folder/index.html: a thumbnail per form (linking to its full picture) with its findings
// beside it, forms with errors first, then those with warnings, then the rest. The pictures
// are already in the folder. False when the page cannot be written.
bool writeContactSheet(const QString &folder, const QVector<FormResult> &results);
